#pragma once

struct sqlite3;

namespace kv::db {

/// Gives a connection the functions that printed statements call and SQLite lacks:
///
///   lesort(text)             the key by which a lease number sorts
///   kv_number(value)         a text that reads as a number, without the blanks around it; what is
///                            no text as it is; an empty text is null, and any other an error
///   kv_to_date(text, format) the date that a text in Oracle's format means, or an error
///   upper(text), lower(text) of letters in every script, one character for one
///
/// Null stays null.
void AddSqliteFunctions(sqlite3* database);

}  // namespace kv::db
