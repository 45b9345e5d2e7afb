#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/kvdbkvn/dialect/context.h"

/// Reads a statement in Oracle's dialect and prints it for the engine in use.
namespace kv::dialect {

/// What a statement does, which settles how a manager may run it.
enum class Kind {
    kRead,     ///< a query
    kChange,   ///< insert, update, delete
    kDefine,   ///< create, drop, alter: commits
    kGrant,    ///< grant, revoke
    kCommit,   ///< commit
    kUnknown,  ///< not understood
};

struct Translation {
    Kind kind = Kind::kUnknown;
    /// The text to send. Empty when the engine has no counterpart: the statement then succeeds.
    /// For a text that could not be read it is the text as it came.
    std::string text;
    /// Not empty: the statement is refused with these words and nothing is run. Where there is a
    /// text, too, the engine may refuse it with better words, and is to be asked for them first.
    std::string refusal;
    /// Lines for the log: what was read in another way than it was written, what was left out.
    std::vector<std::string> notes;
};

/// Translates one statement. Throws nothing but what the context's functions throw.
Translation Translate(std::string_view sql, const Context& context);

}  // namespace kv::dialect
