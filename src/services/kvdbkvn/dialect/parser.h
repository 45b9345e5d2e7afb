#pragma once

#include <vector>

#include "services/kvdbkvn/dialect/ast.h"
#include "services/kvdbkvn/dialect/lexer.h"
#include "services/kvdbkvn/dialect/refusals.h"

namespace kv::dialect {

/// Brackets and other forms that enclose one another may do so to this depth; what goes deeper is
/// unreadable.
inline constexpr int kDeepest = 100;

/// Reads one statement, without a closing semicolon, to its end. Throws `Unreadable` or `Refused`.
Statement Parse(const std::vector<Token>& tokens, Arena& arena);

}  // namespace kv::dialect
