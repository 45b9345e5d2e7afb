#pragma once

#include <functional>
#include <string>

namespace kv::dialect {

/// What kind of server a text is printed for.
enum class Target { kSqlite, kPostgres, kOracle };

/// What the printer must know of the session that the text is for.
struct Context {
    Target target = Target::kSqlite;
    /// Whether the engine has a schema of that name (any case); null counts as "no".
    std::function<bool(const std::string&)> hasSchema;
    /// Whether the session knows the function `lesort`. Where it does not (SQLite behind ODBC, and
    /// PostgreSQL, know none) the sort key is printed as an expression.
    bool hasLeaseSort = true;
};

}  // namespace kv::dialect
