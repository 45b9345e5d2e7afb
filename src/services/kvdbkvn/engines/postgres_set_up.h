#pragma once

namespace kv::db {

/// Lets unqualified tables be looked for in the application's schema first. One that is not there
/// is passed over.
inline constexpr const char* kPostgresSearchPath =
    "select set_config('search_path', concat_ws(', ', 'norvadon', "
    "nullif(current_setting('search_path'), '')), false)";

}  // namespace kv::db
