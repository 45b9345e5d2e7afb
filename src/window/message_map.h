#pragma once

#include <span>

#include "base/export.h"
#include "base/types.h"

class CCmdUI;
class CWnd;

/// Message tables, as windows look things up in them. `message_handlers.h` is what they are written
/// with.
namespace kv {

/// What reaches a handler. Which fields mean something depends on the kind of entry.
struct Event {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    int id = 0;
    CCmdUI* update = nullptr;
};

/// Whether the handler took the event, and what it answered.
struct Handled {
    bool taken = true;
    LRESULT result = 0;
};

struct MessageEntry {
    enum class Kind { kCommand, kReflected, kNotify, kReflectedNotify, kUpdate, kMessage };
    Kind kind;
    int code;  ///< notification, or message number
    int first;
    int last;
    Handled (*call)(CWnd& window, const Event& event);
};

struct MessageMap {
    const MessageMap* base;
    std::span<const MessageEntry> entries;

    /// First entry of the class, or else of its bases, that fits; else null.
    KVGUICTL_API const MessageEntry* Find(MessageEntry::Kind kind, int code, int id) const;
};

}  // namespace kv
