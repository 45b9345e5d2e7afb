#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "services/kvdbkvn/dialect/ast.h"

namespace kv::dialect {

/// A written count of rows.
std::optional<std::uint64_t> CountOf(std::string_view digits);

/// Puts a number of rows in the place of the bounds of `rownum` that stand among the conditions of
/// the query's members. Rows are counted ahead of grouping, of taking out doubles and of the order.
/// Throws `Unreadable` where that cannot be said otherwise.
void BoundByRowNumber(Query& query, Arena& arena);

}  // namespace kv::dialect
