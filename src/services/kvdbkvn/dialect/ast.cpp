#include "services/kvdbkvn/dialect/ast.h"

#include <algorithm>
#include <string>

#include "base/text.h"

namespace kv::dialect {
namespace {

bool IsQuoted(std::string_view name) {
    return name.starts_with('"');
}

/// As the dictionary holds it.
std::string DictionaryName(std::string_view name) {
    return IsQuoted(name) ? std::string(name.substr(1, name.size() - 2)) : ToUpper(name);
}

bool SameNames(const std::vector<std::string_view>& a, const std::vector<std::string_view>& b) {
    return std::ranges::equal(a, b, SameName);
}

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
    if (!IsQuoted(a) && !IsQuoted(b)) return EqualsNoCase(a, b);
    return DictionaryName(a) == DictionaryName(b);
}

bool SameExpr(const Expr& a, const Expr& b) {
    if (a.query || b.query) return false;
    if (a.kind != b.kind || a.negated != b.negated || a.distinct != b.distinct) return false;
    if (a.text != b.text || a.signs != b.signs || !SameNames(a.names, b.names)) return false;
    return std::ranges::equal(a.items, b.items, [](const Expr* x, const Expr* y) {
        return x && y ? SameExpr(*x, *y) : x == y;
    });
}

bool IsCallOf(const Expr& expr, std::string_view function) {
    return expr.kind == ExprKind::kCall && expr.names.size() == 1 &&
           EqualsNoCase(expr.names.front(), function);
}

bool IsInteger(const Expr& expr) {
    if (expr.kind == ExprKind::kNegate)
        return expr.items.front()->kind == ExprKind::kNumber && IsInteger(*expr.items.front());
    return expr.kind == ExprKind::kNumber && std::ranges::all_of(expr.text, IsDigit);
}

bool IsBounded(const Query& query) {
    return query.skippedRows > 0 || query.mostRows.has_value();
}

bool IsLiteral(const Expr& expr) {
    switch (expr.kind) {
        case ExprKind::kNull:
        case ExprKind::kText:
        case ExprKind::kNumber:
            return true;
        case ExprKind::kNegate:
            return expr.items.front()->kind == ExprKind::kNumber;
        default:
            return false;
    }
}

}  // namespace kv::dialect
