#pragma once

#include <string_view>

/// What can be told of a statement without its grammar. For engines whose client library runs
/// whatever it is given; where the text can be taken in two ways, the answer is the careful one.
namespace kv::db {

/// Whether anything stands behind a semicolon that is outside of texts and quoted names. Blocks of
/// a procedural language (begin, declare, create) hold semicolons of their own and count as one.
bool HoldsTwoStatements(std::string_view sql);

/// What an engine is known to hold about the ends of texts and names.
enum class Quoting {
    kUnknown,   ///< a backslash may keep a quote from ending its text
    kStandard,  ///< none does
    kSqlite,    ///< none does, and names may stand in grave accents
};

enum class Reading {
    kReads,
    kDoesMore,
    kDoubtful,  ///< the end of a text in it depends on the engine
};

/// A text only reads if it begins with "select" or "with", is one statement, and has no word
/// outside of texts and quoted names that changes data, definitions or the transaction.
Reading ReadingOf(std::string_view sql, Quoting quoting);

}  // namespace kv::db
