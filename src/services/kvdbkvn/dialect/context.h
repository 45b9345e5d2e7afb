#pragma once

#include <functional>
#include <string>

#include "services/kvdbkvn/dialect/column.h"

namespace kv::dialect {

/// What kind of server a text is printed for.
enum class Target { kSqlite, kPostgres, kOracle };

/// What must be known of the session that the text is for.
struct Context {
    Target target = Target::kSqlite;
    /// Whether the engine has a schema of that name (any case); null counts as "no".
    std::function<bool(const std::string&)> hasSchema;
    /// The columns of a table, in their order, by the names that the engine keeps; the schema may
    /// be empty. None where there is no such table. Null counts as "none".
    std::function<Columns(const std::string& schema, const std::string& table)> columnsOf;
    /// Whether the session knows the functions `lesort` and, on SQLite, `kv_number` and
    /// `kv_to_date`. Where it knows none (SQLite behind ODBC, and PostgreSQL) the sort key is
    /// printed as an expression.
    bool hasOwnFunctions = true;
};

}  // namespace kv::dialect
