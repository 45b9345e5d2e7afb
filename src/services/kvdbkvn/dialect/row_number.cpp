#include "services/kvdbkvn/dialect/row_number.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/text.h"
#include "services/kvdbkvn/dialect/refusals.h"

namespace kv::dialect {
namespace {

using Count = std::optional<std::uint64_t>;

/// How many rows a condition lets pass, and where it says so.
struct Bound {
    std::uint64_t most;
    std::string_view place;
};

constexpr std::array<std::string_view, 5> kAggregates = {"avg", "count", "max", "min", "sum"};

bool IsRowNumber(const Expr& expr) {
    return expr.kind == ExprKind::kColumn && expr.names.size() == 1 &&
           EqualsNoCase(expr.names.front(), "rownum");
}

/// Where the condition is a bound of `rownum`.
std::optional<Bound> BoundOf(const Expr& condition) {
    if (condition.kind != ExprKind::kCompare) return std::nullopt;
    const bool swapped = IsRowNumber(*condition.items[1]);
    const Expr& rowNumber = *condition.items[swapped ? 1 : 0];
    const Expr& number = *condition.items[swapped ? 0 : 1];
    const std::string_view sign = condition.text;
    if (!IsRowNumber(rowNumber) || number.kind != ExprKind::kNumber) return std::nullopt;
    const Count count = CountOf(number.text);
    if (!count) return std::nullopt;
    const std::string_view place = rowNumber.names.front();
    if (sign == (swapped ? ">=" : "<=")) return Bound{*count, place};
    if (sign == (swapped ? ">" : "<")) return Bound{std::max<std::uint64_t>(*count, 1) - 1, place};
    // The first row has the number 1, and there is no second one without it.
    if (sign == "=") return Bound{*count == 1 ? 1u : 0u, place};
    return std::nullopt;
}

/// Takes the bounds out of a condition; the lowest of them.
std::optional<Bound> TakeBounds(Expr*& where) {
    if (!where) return std::nullopt;
    if (const auto bound = BoundOf(*where)) {
        where = nullptr;
        return bound;
    }
    if (where->kind != ExprKind::kAnd) return std::nullopt;
    std::optional<Bound> lowest;
    std::vector<Expr*> others;
    for (Expr* item : where->items) {
        const auto bound = BoundOf(*item);
        if (!bound)
            others.push_back(item);
        else if (!lowest || bound->most < lowest->most)
            lowest = bound;
    }
    where->items = std::move(others);
    if (where->items.size() < 2) where = where->items.empty() ? nullptr : where->items.front();
    return lowest;
}

bool HoldsAggregate(const Expr& expr) {
    const auto isCalled = [&](std::string_view name) { return IsCallOf(expr, name); };
    return std::ranges::any_of(kAggregates, isCalled) ||
           std::ranges::any_of(expr.items,
                               [](const Expr* item) { return item && HoldsAggregate(*item); });
}

/// Whether something is done with the rows once they were counted.
bool Gathers(const Select& select) {
    return select.distinct || !select.groupBy.empty() || select.having ||
           std::ranges::any_of(select.items,
                               [](const SelectItem& item) { return HoldsAggregate(*item.expr); });
}

void LetOrderMatter(Select& select) {
    if (select.from.size() == 1 && select.from.front().query)
        select.from.front().query->orderMatters = true;
}

/// The rows of the select's table that pass its condition, so many of them at most, in the table's
/// place.
void BoundTable(Select& select, const Bound& bound, Arena& arena) {
    if (select.from.size() != 1) throw Unreadable{bound.place};
    TableRef& table = select.from.front();
    Select& inner = arena.selects.emplace_back();
    Expr& star = arena.exprs.emplace_back();
    star.kind = ExprKind::kStar;
    inner.items = {{&star}};
    inner.from = {table};
    inner.where = select.where;
    select.where = nullptr;
    Query& rows = arena.queries.emplace_back();
    rows.members = {{SetOperator::kUnion, &inner}};
    rows.mostRows = bound.most;
    LetOrderMatter(inner);
    table = {Join::kComma, {}, &rows, table.alias.empty() ? table.table.name : table.alias};
}

}  // namespace

Count CountOf(std::string_view digits) {
    std::uint64_t count = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, count);
    static constexpr std::uint64_t kMost = 1'000'000'000'000;
    if (error != std::errc() || stop != end || count > kMost) return std::nullopt;
    return count;
}

void BoundByRowNumber(Query& query, Arena& arena) {
    const bool alone = query.members.size() == 1;
    for (Member& member : query.members) {
        const auto bound = member.select ? TakeBounds(member.select->where) : std::nullopt;
        if (!bound) continue;
        Select& select = *member.select;
        if (Gathers(select) || (alone && !query.orderBy.empty())) {
            BoundTable(select, *bound, arena);
            continue;
        }
        LetOrderMatter(select);
        if (alone && !IsBounded(query)) {
            query.mostRows = bound->most;
            continue;
        }
        Query& rows = arena.queries.emplace_back();
        rows.members = {{SetOperator::kUnion, &select}};
        rows.mostRows = bound->most;
        member.select = nullptr;
        member.query = &rows;
    }
}

}  // namespace kv::dialect
