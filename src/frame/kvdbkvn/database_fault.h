#pragma once

#include <functional>
#include <string_view>

#include "base/export.h"

namespace kv::db {

/// Lets calls to the database fail on purpose, for tests. `fails` is asked ahead of each call of an
/// engine, with what it is about to do ("open", "begin immediate", "prepare", "step", "commit" and
/// their kind); where it answers true, the call is not made and fails. What undoes is never asked
/// about. Process-wide; null for none, which is how it starts.
KVGUICTL_API void SetDatabaseFault(std::function<bool(std::string_view call)> fails);

}  // namespace kv::db
