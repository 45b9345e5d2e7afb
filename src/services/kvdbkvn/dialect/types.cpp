#include "services/kvdbkvn/dialect/types.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"

namespace kv::dialect {
namespace {

constexpr std::array<std::string_view, 12> kTextFunctions = {
    "concat",  "initcap", "lesort", "lower",  "lpad",    "ltrim",
    "replace", "rpad",    "rtrim",  "substr", "to_char", "trim"};
constexpr std::array<std::string_view, 10> kNumberFunctions = {
    "abs", "avg", "ceil", "count", "floor", "instr", "length", "mod", "sum", "to_number"};

bool ReadsAsNumber(std::string_view quoted) {
    std::string_view text = quoted.substr(1, quoted.size() - 2);
    return text.find_first_not_of(" +-.0123456789eE") == std::string_view::npos &&
           std::ranges::any_of(text, IsDigit);
}

/// Of the items from `first` on, each `step`-th.
Type CombineItems(const std::vector<Expr*>& items, std::size_t first, std::size_t step) {
    Type type = Type::kNull;
    for (std::size_t i = first; i < items.size(); i += step)
        if (items[i]) type = Combine(type, TypeOf(*items[i]));
    return type;
}

/// Results stand behind their conditions; what stands alone at the end is the last result.
Type TypeOfChoices(const std::vector<Expr*>& items, std::size_t firstResult) {
    const Type type = CombineItems(items, firstResult, 2);
    const bool lastAlone = (items.size() - firstResult) % 2 == 0;
    return lastAlone && items.back() ? Combine(type, TypeOf(*items.back())) : type;
}

Type TypeOfCall(const Expr& call) {
    const auto isOne = [&](std::string_view name) { return IsCallOf(call, name); };
    if (std::ranges::any_of(kTextFunctions, isOne)) return Type::kText;
    if (std::ranges::any_of(kNumberFunctions, isOne)) return Type::kNumber;
    if (IsCallOf(call, "decode") && call.items.size() >= 3) return TypeOfChoices(call.items, 2);
    if (IsCallOf(call, "nvl")) return CombineItems(call.items, 0, 1);
    return Type::kUnknown;
}

/// What an engine makes of the results of a choice: texts alone are text.
Type Settled(Type type) {
    return type == Type::kNumberAsText ? Type::kText : type;
}

void Collect(const Query& query, std::vector<const Select*>& selects) {
    for (const Member& member : query.members) {
        if (member.select)
            selects.push_back(member.select);
        else
            Collect(*member.query, selects);
    }
}

bool IsStar(const SelectItem& item) {
    return item.expr->kind == ExprKind::kStar;
}

}  // namespace

Type Combine(Type a, Type b) {
    if (a == b || b == Type::kNull) return a;
    if (a == Type::kNull) return b;
    if (a == Type::kText || b == Type::kText) return Type::kText;
    if (a == Type::kUnknown || b == Type::kUnknown) return Type::kUnknown;
    return Type::kNumber;
}

Type TypeOf(const Expr& expr) {
    switch (expr.kind) {
        case ExprKind::kNull:
            return Type::kNull;
        case ExprKind::kText:
            return ReadsAsNumber(expr.text) ? Type::kNumberAsText : Type::kText;
        case ExprKind::kConcat:
            return Type::kText;
        case ExprKind::kNumber:
        case ExprKind::kArithmetic:
        case ExprKind::kNegate:
            return Type::kNumber;
        case ExprKind::kCall:
            return Settled(TypeOfCall(expr));
        case ExprKind::kCase:
            return Settled(TypeOfChoices(expr.items, 2));
        default:
            return Type::kUnknown;
    }
}

std::vector<const Select*> SelectsOf(const Query& query) {
    std::vector<const Select*> selects;
    Collect(query, selects);
    return selects;
}

std::size_t CountColumns(const Query& query) {
    const std::vector<const Select*> selects = SelectsOf(query);
    const std::size_t count = selects.front()->items.size();
    const bool known = std::ranges::all_of(selects, [&](const Select* select) {
        return select->items.size() == count && std::ranges::none_of(select->items, IsStar);
    });
    return known ? count : 0;
}

}  // namespace kv::dialect
