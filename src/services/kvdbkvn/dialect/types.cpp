#include "services/kvdbkvn/dialect/types.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"
#include "services/kvdbkvn/dialect/type_names.h"

namespace kv::dialect {
namespace {

constexpr std::array<std::string_view, 15> kTextFunctions = {
    "concat",    "initcap", "lesort", "lower",  "lpad",    "ltrim", "regexp_replace", "replace",
    "translate", "rpad",    "rtrim",  "substr", "to_char", "trim",  "upper"};
constexpr std::array<std::string_view, 14> kNumberFunctions = {
    "abs", "avg",   "ceil",  "count", "floor", "instr", "length",
    "mod", "power", "round", "sign",  "sqrt",  "sum",   "to_number"};
constexpr std::array<std::string_view, 2> kDateFunctions = {"sysdate", "to_date"};
/// What they give is of the type of what they are given.
constexpr std::array<std::string_view, 6> kChoosingFunctions = {"coalesce", "greatest", "least",
                                                                "max",      "min",      "nvl"};

Type Settled(Type type);

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
    if (IsCallOf(call, "nvl2") && call.items.size() == 3) return TypeOf(*call.items[1]);
    if (std::ranges::any_of(kDateFunctions, isOne)) return Type::kDate;
    if (std::ranges::any_of(kChoosingFunctions, isOne)) return CombineItems(call.items, 0, 1);
    if ((IsCallOf(call, "trunc") || IsCallOf(call, "nullif")) && !call.items.empty())
        return TypeOf(*call.items.front());
    return Type::kUnknown;
}

/// Days before or after a date are a date; those between two are a number.
Type TypeOfArithmetic(const Expr& expr) {
    const auto dates = std::ranges::count_if(
        expr.items, [](const Expr* item) { return TypeOf(*item) == Type::kDate; });
    return dates == 1 ? Type::kDate : Type::kNumber;
}

/// Of one with a single column.
Type TypeOfQuery(const Query& query) {
    if (CountColumns(query) != 1) return Type::kUnknown;
    Type type = Type::kNull;
    for (const Select* select : SelectsOf(query))
        type = Combine(type, TypeOf(*select->items.front().expr));
    return Settled(type);
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

bool ReadsAsNumber(std::string_view text) {
    const auto takeDigits = [&] {
        const std::size_t before = text.size();
        while (!text.empty() && IsDigit(text.front()))
            text.remove_prefix(1);
        return before - text.size();
    };
    const auto takeIf = [&](std::string_view signs) {
        if (text.empty() || signs.find(text.front()) == std::string_view::npos) return false;
        text.remove_prefix(1);
        return true;
    };
    takeIf("+-");
    std::size_t digits = takeDigits();
    if (takeIf(".")) digits += takeDigits();
    if (digits == 0) return false;
    if (!takeIf("eE")) return text.empty();
    takeIf("+-");
    return takeDigits() > 0 && text.empty();
}

Type Combine(Type a, Type b) {
    if (a == b || b == Type::kNull) return a;
    if (a == Type::kNull) return b;
    if (a == Type::kText || b == Type::kText) return Type::kText;
    if (a == Type::kUnknown || b == Type::kUnknown) return Type::kUnknown;
    if (a == Type::kDate || b == Type::kDate) return Type::kUnknown;
    return Type::kNumber;
}

Type TypeOf(const Expr& expr) {
    switch (expr.kind) {
        case ExprKind::kNull:
            return Type::kNull;
        case ExprKind::kText:
            return ReadsAsNumber(TrimSpace(expr.text.substr(1, expr.text.size() - 2)))
                       ? Type::kNumberAsText
                       : Type::kText;
        case ExprKind::kConcat:
            return Type::kText;
        case ExprKind::kNumber:
        case ExprKind::kNegate:
            return Type::kNumber;
        case ExprKind::kArithmetic:
            return TypeOfArithmetic(expr);
        case ExprKind::kDate:
            return Type::kDate;
        case ExprKind::kColumn:
            return expr.type;
        case ExprKind::kCast:
            return FindTypeName(expr.text).type;
        case ExprKind::kQuery:
            return TypeOfQuery(*expr.query);
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
