#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/kvdbkvn/dialect/ast.h"
#include "services/kvdbkvn/dialect/lexer.h"

namespace kv::dialect {

/// Thrown for a text that is not of the grammar. `near` is where reading stopped; empty at the end.
struct Unreadable {
    std::string_view near;
};

/// Thrown for a text that must not run on any engine.
struct Refused {
    std::string words;
};

/// Brackets and other forms that enclose one another may do so to this depth; what goes deeper is
/// unreadable.
inline constexpr int kDeepest = 100;

/// Reads one statement, without a closing semicolon, to its end. Throws `Unreadable` or `Refused`.
Statement Parse(const std::vector<Token>& tokens, Arena& arena);

}  // namespace kv::dialect
