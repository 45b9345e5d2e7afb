#pragma once

#include <vector>

#include "base/export.h"
#include "window/node.h"
#include "window/wnd.h"

/// The keyboard of a window with controls: Tab, arrows, Enter, Escape, mnemonics.
namespace kv {

/// Does what the key means to the dialog or bar around `message.hwnd`, if it means anything there:
/// true when it did, and the control does not see the key. A control that wants all keys gets them.
KVGUICTL_API bool HandleDialogKey(const MSG& message);

/// A character on a button, which has no use for it: reaches the control whose text marks it, as
/// with Alt held. True when there is one.
KVGUICTL_API bool HandleDialogCharacter(const MSG& message);

/// The character that a key-down types, 0 for none: the one that it carries in the high half of
/// `lParam`, else what the key means with the modifiers in force.
KVGUICTL_API char CharacterOf(const MSG& keyDown);

/// Alt and a letter: presses, checks or focuses the control with that mnemonic; a label's mnemonic
/// reaches the control behind it. Where several share the letter, the focus goes round them and
/// none is pressed. False when there is none that a person could reach.
KVGUICTL_API bool HandleMnemonic(Node& host, char letter);

/// The push button that Alt and the letter presses while the focus stays; null where it means
/// something else.
KVGUICTL_API Node* ButtonOf(Node& host, char letter);

/// The visible, enabled tab stop in the dialog behind (or ahead of) `from`, going round; `from`
/// itself where it is the only one, null where there is none. Of a radio group it is the checked
/// button.
KVGUICTL_API Node* NextTabStop(Node& host, Node* from, bool forward);

/// Whether a control tells of others only: a label, or the frame of a group.
KVGUICTL_API bool IsCaption(const Node& node);
KVGUICTL_API bool IsPushButton(const Node& node);

/// Moves the focus as Tab does: an edit comes up with its whole text selected. A disabled or hidden
/// control does not get it.
KVGUICTL_API void FocusByTab(Node& node);

/// Whether a control lies wholly outside its dialog, as where the dialog was made smaller: a person
/// does not see it, and cannot reach it.
KVGUICTL_API bool LiesOutside(const Node& control);

/// The button that Enter presses: the focused push button, else the default one. Null where there
/// is none.
KVGUICTL_API Node* DefaultButton(Node& host);

/// The controls of the group that `member` is in, in order: a group begins at a control with
/// WS_GROUP and ends ahead of the next one.
KVGUICTL_API std::vector<Node*> GroupOf(Node& member);

/// What Shift, Ctrl and Alt are while a key or a click is handled.
struct Modifiers {
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};
/// Those in force; set by the input functions for as long as the key or click is handled.
KVGUICTL_API Modifiers CurrentModifiers();

/// Sets the modifiers for its own lifetime.
class KVGUICTL_API ModifierScope {
public:
    explicit ModifierScope(Modifiers modifiers);
    ~ModifierScope();
    ModifierScope(const ModifierScope&) = delete;
    ModifierScope& operator=(const ModifierScope&) = delete;

private:
    Modifiers former_;
};

}  // namespace kv
