#pragma once

#include <functional>
#include <string>

#include "base/export.h"

namespace kv::db {

/// Gets each statement as a dialog sends it, before it is translated and run. Process-wide; null
/// for none.
KVGUICTL_API void SetStatementTrace(std::function<void(const std::string&)> trace);

/// Told of a statement by the manager.
void TraceStatement(const std::string& sql);

}  // namespace kv::db
