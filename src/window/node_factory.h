#pragma once

#include <memory>

#include "window/export.h"
#include "window/node.h"
#include "window/wnd.h"

namespace kv {

/// A handle of the class that fits windows of that class, for look-ups; attached to none.
KVGUICTL_API std::unique_ptr<CWnd> MakeHandle(NodeClass nodeClass);

}  // namespace kv
