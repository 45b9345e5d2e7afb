#pragma once

#include "base/export.h"

/// Which top-level windows lie in front of which.
namespace kv {

class Node;

/// A view that can be brought in front of others without getting the keyboard.
class KVGUICTL_API Stacked {
public:
    virtual ~Stacked() = default;
    virtual void Raise() = 0;
};

/// Brings a top-level window, with those that it owns, in front of all others. The keyboard stays
/// where it is. Nothing is done for a window that is hidden, nor for one that lies in front
/// already: those that it owns alone may lie over it.
KVGUICTL_API void BringToTop(Node& window);
KVGUICTL_API bool IsOnTop(const Node& window);

/// A window was made or got the keyboard, and came up with that; its view has seen to it itself.
void NoteOnTop(Node& window);

}  // namespace kv
