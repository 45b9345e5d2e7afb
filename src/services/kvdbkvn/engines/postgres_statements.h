#pragma once

namespace kv::db {

/// Lets unqualified tables be looked for in the application's schema first. One that is not there
/// is passed over.
inline constexpr const char* kPostgresSearchPath =
    "select set_config('search_path', concat_ws(', ', 'norvadon', "
    "nullif(current_setting('search_path'), '')), false)";

/// A backslash in a text is a backslash.
inline constexpr const char* kPostgresPlainBackslashes = "set standard_conforming_strings to on";

/// Gives up the locks that functions took for the session, which no end of a transaction does.
inline constexpr const char* kPostgresGiveUpLocks = "select pg_advisory_unlock_all()";

}  // namespace kv::db
