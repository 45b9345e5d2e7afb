#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "base/export.h"
#include "window/dialog_keys.h"
#include "window/node.h"

/// Hearing of what a person does, at the door by which it comes in.
namespace kv::input {

/// The function of input.h by which something comes in, with what the numbers of a deed are.
enum class Act {
    kClick,
    kPress,
    kPressAgain,
    kRelease,
    kHoldInside,
    kHoldOutside,
    kDoubleClick,    ///< the row
    kClickRow,       ///< the row, -1 for none
    kRightClickRow,  ///< the row, -1 for none
    kClickColumn,    ///< the column
    kToggleCheck,    ///< the row
    kSelectRows,     ///< the rows
    kDropDown,
    kCloseList,
    kTurnWheel,    ///< the notches
    kStepSpin,     ///< 1 for up, -1 for down
    kPressTool,    ///< the id of the tool
    kSelectText,   ///< from where to where, in bytes
    kEditCommand,  ///< the message
    kCopyRows,
    kTypeText,
    kTypeHere,  ///< a byte of text at a time
    kPressKey,  ///< the key
    kPaste,
    kMoveFocus,
    kCloseWindow,
    kInVain,  ///< what was told last came to nothing
};

struct Deed {
    Act act;
    Node& node;  ///< the control or window; of keys, what gets them
    std::vector<int> numbers = {};
    std::string_view text = {};
    Modifiers modifiers = {};
};

/// Told of each thing that a person does, ahead of its being done; not of what a control does not
/// react to, nor of the steps that one thing is made of.
using Listener = std::function<void(const Deed&)>;

/// Names the one listener, null for none, and returns the one there was.
KVGUICTL_API Listener SetListener(Listener listener);

/// Tells the listener, if there is one.
void Tell(const Deed& deed);

}  // namespace kv::input
