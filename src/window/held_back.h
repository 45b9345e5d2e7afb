#pragma once

#include <functional>

#include "base/export.h"

/// While work blocks the windows, messages to most of them wait in the queue, and no idle updates
/// run: no handler runs inside the one that does the work.
namespace kv {

class Node;

/// `isBlocked` tells a window whose messages wait; null ends it, and whoever does that wakes the
/// desktop.
KVGUICTL_API void HoldBack(std::function<bool(const Node&)> isBlocked);
KVGUICTL_API bool IsHeldBack(const Node& node);
/// Whether anything is held back just now.
KVGUICTL_API bool HoldsBack();

}  // namespace kv
