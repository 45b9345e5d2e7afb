#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"
#include "window/dialog_keys.h"
#include "window/node.h"

/// The one door by which a user's actions come in, whoever acts: a real widget, a test, a script.
///
/// Each function does what the platform does when a person does this. A control that is disabled,
/// hidden, or lies in a window that a modal one has disabled does not react; each function then
/// answers false and has done nothing.
namespace kv::input {

/// Whether a person could act on this control just now.
KVGUICTL_API bool CanAct(Node& node);

/// Presses and releases the mouse on a control: it gets the focus if it is one that does, and a
/// button then does its work. If the focus change opened a modal window, the click is swallowed.
KVGUICTL_API bool Click(Node& control);
KVGUICTL_API bool ClickAt(Node& control, CPoint at);

/// The two halves of a click. `Press` gives the control the focus and pushes it down; false also
/// when the focus change swallowed the click. `Release` lets it do its work, if it is still down.
KVGUICTL_API bool Press(Node& control, CPoint at, Modifiers modifiers = {});
KVGUICTL_API bool Release(Node& control, CPoint at);
/// The mouse, held since `Press`, enters or leaves the button; false where the button is not held,
/// since it did its work when the mouse went down.
KVGUICTL_API bool HoldOver(Node& button, bool inside);
/// The second press of a double-click, which `Release` follows.
KVGUICTL_API bool PressAgain(Node& control, CPoint at);

/// Double-clicks a row of a list.
KVGUICTL_API bool DoubleClick(Node& list, int row);

/// Clicks a row of a list with keys held; -1 for the empty space behind the rows. In a combo box
/// whose list is open it picks the row.
KVGUICTL_API bool ClickRow(Node& list, int row, Modifiers modifiers = {});

/// Clicks a row of a list view with the right button; -1 for the empty space behind the rows. True
/// when a menu of the list view's own may come up.
KVGUICTL_API bool RightClickRow(Node& listView, int row, Modifiers modifiers = {});

/// Clicks the heading of a column, drags its edge, clicks the check box of a row.
KVGUICTL_API bool ClickColumn(Node& listView, int column);
/// A width may be LVSCW_AUTOSIZE: a double-click on that edge.
KVGUICTL_API bool ResizeColumn(Node& listView, int column, int width);
KVGUICTL_API bool ToggleCheck(Node& listView, int row);

/// Picks rows of a list as a person does: the first by a click, the others with Ctrl held. No rows:
/// takes the selection back. In a combo box it drops the list and picks the one row.
KVGUICTL_API bool SelectRows(Node& list, const std::vector<int>& rows);

/// Drops the list of a combo box, or closes it.
KVGUICTL_API bool DropDown(Node& combo);
/// Closes the open list of a combo box by a click elsewhere.
KVGUICTL_API bool CloseList(Node& combo);

/// Turns the mouse wheel over a control by so many notches, up being positive: a combo box that has
/// the focus goes to another row, a spin button steps, and so does that of an edit which has the
/// focus (UDS_ARROWKEYS). False for all else, which scrolls.
KVGUICTL_API bool TurnWheel(Node& control, int notches);

/// Presses an arrow of a spin button, a button of a tool bar.
KVGUICTL_API bool StepSpin(Node& spin, bool up);
KVGUICTL_API bool PressTool(Node& toolBar, int id);

/// Selects text in an edit as the mouse does: from where it was pressed to where it is now.
KVGUICTL_API bool SelectText(Node& edit, int anchor, int caret);
/// A command of an edit's menu: WM_CUT, WM_COPY, WM_PASTE, WM_CLEAR or WM_UNDO.
KVGUICTL_API bool EditCommand(Node& edit, UINT message);
/// Copies the selected rows of a list to the clipboard, a line each, cells with tabs between.
KVGUICTL_API bool CopyRows(Node& list);

/// Types characters, key by key, into the control, which gets the focus as by Tab first.
KVGUICTL_API bool TypeText(Node& control, std::string_view text);
/// Types into whatever has the focus.
KVGUICTL_API bool TypeHere(std::string_view text);

/// Presses one key, VK_... , in the control that has the focus.
KVGUICTL_API bool PressKey(int key, Modifiers modifiers = {});
/// The key's number by its name ("Enter", "Tab", "F4", "Up", ...); 0 for an unknown one.
KVGUICTL_API int KeyByName(std::string_view name);

/// Puts text on the clipboard and pastes it into the control, which gets the focus first.
KVGUICTL_API bool Paste(Node& control, const std::string& text);

/// Moves the focus to a control as a click into it does.
KVGUICTL_API bool MoveFocus(Node& control);

/// Brings a window to the front.
KVGUICTL_API bool Activate(Node& window);

/// Closes a window by its window button.
KVGUICTL_API bool CloseWindow(Node& window);

}  // namespace kv::input
