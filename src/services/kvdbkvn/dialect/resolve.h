#pragma once

#include "services/kvdbkvn/dialect/ast.h"
#include "services/kvdbkvn/dialect/context.h"

namespace kv::dialect {

/// Tells the columns in a statement their types, as far as the context knows their tables, and
/// names the columns that "*" means where a join merges some. Throws `Unreadable` where those are
/// not known, and what the context throws.
void Resolve(const Statement& statement, const Context& context, Arena& arena);

}  // namespace kv::dialect
