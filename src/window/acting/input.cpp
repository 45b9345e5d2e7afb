#include "window/acting/input.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "window/acting/listener.h"
#include "window/acting/row_texts.h"
#include "window/controls/button_node.h"
#include "window/controls/combo_box_node.h"
#include "window/controls/list_box_node.h"
#include "window/controls/spin_node.h"
#include "window/desktop.h"
#include "window/frames/tool_bar_node.h"
#include "window/list_view/list_view_node.h"
#include "window/window_system.h"

namespace kv::input {

namespace {

/// Whether a modal window has opened since this object was made.
class ModalWatch {
public:
    bool Opened() const { return WindowSystem::Get().ModalsOpened() != before_; }

private:
    int before_ = WindowSystem::Get().ModalsOpened();
};

/// What gets the focus when a person clicks there; null where nothing does.
Node* FocusedByClick(Node& control) {
    switch (control.Class()) {
        case NodeClass::kStatic:
        case NodeClass::kProgress:
        case NodeClass::kToolBar:
            return nullptr;
        case NodeClass::kSpin:
            return static_cast<SpinNode&>(control).Buddy();
        case NodeClass::kButton:
            return (control.Style() & BS_TYPEMASK) == BS_GROUPBOX ? nullptr : &control;
        default:
            return &control;
    }
}

/// Moves the focus for a click on the control; false when the click is lost over it: the loss of
/// the focus elsewhere opened a modal window, or put the control out of reach.
bool FocusForClick(Node& control) {
    Node* target = FocusedByClick(control);
    if (!target) return true;
    const ModalWatch watch;
    WindowSystem::Get().SetFocus(target);
    return !watch.Opened() && CanAct(control);
}

/// At the end of an action the handlers have returned.
struct ActionScope {
    ~ActionScope() { WindowSystem::Get().SettleFocus(); }
};

/// The window that gets the keys.
Node* KeyTarget() {
    auto& system = WindowSystem::Get();
    Node* focused = system.Focus();
    if (focused && CanAct(*focused)) return focused;
    Node* active = system.ActiveWindow();
    return active && CanAct(*active) ? active : nullptr;
}

/// The course of one key, with the character that it types where that is known: down, the
/// character, up.
bool RunKey(int key, char character, Modifiers modifiers) {
    Node* target = KeyTarget();
    if (!target) return false;
    const auto keep = target->shared_from_this();
    const ModifierScope scope(modifiers);
    auto& system = WindowSystem::Get();
    const bool mnemonic = modifiers.alt && !modifiers.ctrl && key >= '0' && key <= 'Z';
    const LPARAM data = MAKELPARAM(1, static_cast<unsigned char>(character));
    MSG message{target, mnemonic ? WM_SYSCHAR : WM_KEYDOWN, static_cast<WPARAM>(key), data};
    const bool taken = system.Dispatch(message);
    if (mnemonic) return taken;
    system.DispatchAll();
    MSG up{target, WM_KEYUP, static_cast<WPARAM>(key), 1};
    system.Dispatch(up);
    return true;
}

constexpr std::array<std::pair<std::string_view, int>, 19> kKeyNames{{
    {"Backspace", VK_BACK}, {"Tab", VK_TAB},       {"Enter", VK_RETURN},  {"Escape", VK_ESCAPE},
    {"Space", VK_SPACE},    {"PageUp", VK_PRIOR},  {"PageDown", VK_NEXT}, {"End", VK_END},
    {"Home", VK_HOME},      {"Left", VK_LEFT},     {"Up", VK_UP},         {"Right", VK_RIGHT},
    {"Down", VK_DOWN},      {"Insert", VK_INSERT}, {"Delete", VK_DELETE}, {"F4", VK_F4},
    {"Esc", VK_ESCAPE},     {"Return", VK_RETURN}, {"Del", VK_DELETE},
}};

/// The number of "F1" to "F24"; 0 for other names.
int FunctionKey(std::string_view name) {
    constexpr int kFirst = 0x70;
    if (name.size() < 2 || name.size() > 3 || ToUpper(name[0]) != 'F') return 0;
    std::size_t end = 0;
    const int number = ScanInteger(name.substr(1), &end).value_or(0);
    return end + 1 == name.size() && number >= 1 && number <= 24 ? kFirst + number - 1 : 0;
}

/// The key of a typed character, as far as handlers of key-downs tell keys apart.
int KeyOf(char ch) {
    const char upper = ToUpper(ch);
    if ((upper >= 'A' && upper <= 'Z') || IsDigit(upper) || upper == ' ') return upper;
    if (ch == '\n') return VK_RETURN;
    if (ch == '\t') return VK_TAB;
    if (ch == '\b') return VK_BACK;
    return VK_PACKET;
}

bool PressDown(Node& control, CPoint at, Modifiers modifiers) {
    const auto keep = control.shared_from_this();
    const ActionScope action;
    const ModifierScope scope(modifiers);
    MSG message{&control, WM_LBUTTONDOWN, 1, MAKELPARAM(at.x, at.y)};
    if (WindowSystem::Get().PreTranslate(message) || !FocusForClick(control)) return false;
    Send(control, message.message, message.wParam, message.lParam);
    return true;
}

void LetUp(Node& control, CPoint at) {
    MSG message{&control, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y)};
    WindowSystem::Get().Dispatch(message);
}

/// Types into whatever has the focus. `told` where the characters are part of something else.
bool TypeCharacters(std::string_view text, bool told) {
    auto& system = WindowSystem::Get();
    for (const char& ch : text) {
        if (!system.Focus() || !CanAct(*system.Focus())) return false;
        if (!told) Tell({Act::kTypeHere, *system.Focus(), {}, {&ch, 1}});
        Modifiers modifiers;
        modifiers.shift = ch >= 'A' && ch <= 'Z';
        RunKey(KeyOf(ch), ch == '\n' ? '\r' : ch, modifiers);
        system.Settle();
    }
    return true;
}

}  // namespace

bool CanAct(Node& node) {
    return !node.Destroyed() && node.ReallyEnabled() && node.ReallyVisible() && !LiesOutside(node);
}

bool Click(Node& control) {
    return ClickAt(control, {control.Rect().Width() / 2, control.Rect().Height() / 2});
}

bool ClickAt(Node& control, CPoint at) {
    if (!CanAct(control)) return false;
    const auto keep = control.shared_from_this();
    Tell({Act::kClick, control});
    if (PressDown(control, at, {}) && CanAct(control)) LetUp(control, at);
    return true;
}

bool Press(Node& control, CPoint at, Modifiers modifiers) {
    if (!CanAct(control)) return false;
    Tell({Act::kPress, control, {}, {}, modifiers});
    return PressDown(control, at, modifiers);
}

bool Release(Node& control, CPoint at) {
    if (!CanAct(control)) return false;
    Tell({Act::kRelease, control});
    LetUp(control, at);
    return true;
}

bool HoldOver(Node& button, bool inside) {
    if (!CanAct(button) || button.Class() != NodeClass::kButton) return false;
    if (!static_cast<const ButtonNode&>(button).HeldByMouse()) return false;
    Tell({inside ? Act::kHoldInside : Act::kHoldOutside, button});
    Send(button, BM_SETSTATE, inside);
    return true;
}

bool PressAgain(Node& control, CPoint at) {
    if (!CanAct(control)) return false;
    Tell({Act::kPressAgain, control});
    Send(control, WM_LBUTTONDBLCLK, 1, MAKELPARAM(at.x, at.y));
    return true;
}

bool DoubleClick(Node& list, int row) {
    if (!CanAct(list) || row < 0) return false;
    const auto keep = list.shared_from_this();
    if (auto* box = dynamic_cast<ListBoxNode*>(&list)) {
        if (row >= box->Rows().Count()) return false;
        Tell({Act::kDoubleClick, list, {row}});
        if (FocusForClick(list)) box->UserDoubleClick(row);
        return true;
    }
    if (auto* view = dynamic_cast<ListViewNode*>(&list)) {
        if (row >= view->Count()) return false;
        Tell({Act::kDoubleClick, list, {row}});
        if (FocusForClick(list)) view->UserDoubleClick(row);
        return true;
    }
    return false;
}

bool ClickRow(Node& list, int row, Modifiers modifiers) {
    if (!CanAct(list)) return false;
    const auto keep = list.shared_from_this();
    const ModifierScope scope(modifiers);
    if (auto* combo = dynamic_cast<ComboBoxNode*>(&list)) {
        if (!(combo->Dropped() || combo->Simple()) || !combo->Rows().Has(row)) return false;
        Tell({Act::kClickRow, list, {row}});
        return combo->UserPick(row);
    }
    auto* box = dynamic_cast<ListBoxNode*>(&list);
    auto* view = dynamic_cast<ListViewNode*>(&list);
    if (!box && !view) return false;
    Tell({Act::kClickRow, list, {row}, {}, modifiers});
    if (!FocusForClick(list)) return true;
    if (box) {
        box->UserSelect(row, modifiers.shift, modifiers.ctrl);
    } else {
        view->UserClick(row, modifiers.shift, modifiers.ctrl);
    }
    return true;
}

bool RightClickRow(Node& listView, int row, Modifiers modifiers) {
    auto* view = dynamic_cast<ListViewNode*>(&listView);
    if (!view || !CanAct(listView)) return false;
    const auto keep = listView.shared_from_this();
    const ActionScope action;
    const ModifierScope scope(modifiers);
    Tell({Act::kRightClickRow, listView, {row}, {}, modifiers});
    return FocusForClick(listView) && view->UserRightClick(row);
}

bool ClickColumn(Node& listView, int column) {
    auto* view = dynamic_cast<ListViewNode*>(&listView);
    if (!view || !CanAct(listView)) return false;
    const auto keep = listView.shared_from_this();
    Tell({Act::kClickColumn, listView, {column}});
    if (FocusForClick(listView)) view->UserClickColumn(column);
    return true;
}

bool ResizeColumn(Node& listView, int column, int width) {
    auto* view = dynamic_cast<ListViewNode*>(&listView);
    if (!view || !CanAct(listView)) return false;
    view->SetColumnWidth(column, width);
    return true;
}

bool ToggleCheck(Node& listView, int row) {
    auto* view = dynamic_cast<ListViewNode*>(&listView);
    if (!view || !CanAct(listView)) return false;
    const auto keep = listView.shared_from_this();
    Tell({Act::kToggleCheck, listView, {row}});
    if (FocusForClick(listView)) view->UserToggleCheck(row);
    return true;
}

bool SelectRows(Node& list, const std::vector<int>& rows) {
    if (!CanAct(list)) return false;
    const auto keep = list.shared_from_this();
    const ActionScope action;
    if (auto* box = dynamic_cast<ListBoxNode*>(&list)) {
        const int count = box->Rows().Count();
        const bool inside = std::all_of(rows.begin(), rows.end(),
                                        [count](int row) { return row >= 0 && row < count; });
        if (!inside) return false;
        Tell({Act::kSelectRows, list, rows});
        if (FocusForClick(list)) box->UserSelectRows(rows);
        return true;
    }
    if (auto* view = dynamic_cast<ListViewNode*>(&list)) {
        const bool inside =
            std::all_of(rows.begin(), rows.end(), [view](int row) { return view->Has(row); });
        if (!inside) return false;
        Tell({Act::kSelectRows, list, rows});
        if (FocusForClick(list)) view->UserSelectRows(rows);
        return true;
    }
    if (auto* combo = dynamic_cast<ComboBoxNode*>(&list)) {
        if (rows.size() != 1) return false;
        Tell({Act::kSelectRows, list, rows});
        return !FocusForClick(list) || combo->UserPick(rows.front());
    }
    return false;
}

bool DropDown(Node& combo) {
    auto* box = dynamic_cast<ComboBoxNode*>(&combo);
    if (!box || !CanAct(combo)) return false;
    const auto keep = combo.shared_from_this();
    const ActionScope action;
    Tell({Act::kDropDown, combo});
    if (FocusForClick(combo)) box->UserDrop();
    return true;
}

bool CloseList(Node& combo) {
    auto* box = dynamic_cast<ComboBoxNode*>(&combo);
    if (!box || !box->Dropped() || combo.Destroyed()) return false;
    // A list also closes because its window goes: nobody did that.
    if (CanAct(combo)) Tell({Act::kCloseList, combo});
    Send(combo, CB_SHOWDROPDOWN, FALSE);
    return true;
}

bool TurnWheel(Node& control, int notches) {
    if (!CanAct(control)) return false;
    const auto keep = control.shared_from_this();
    const Node* focus = WindowSystem::Get().Focus();
    auto* spin = dynamic_cast<SpinNode*>(&control);
    if (!spin && focus == &control) spin = SpinOfKeys(control);
    if (spin) {
        const auto keepSpin = spin->shared_from_this();
        Tell({Act::kTurnWheel, control, {notches}});
        for (int turned = 0; turned < std::abs(notches) && CanAct(*spin); ++turned) {
            spin->UserStep(notches > 0);
        }
        return true;
    }
    auto* combo = dynamic_cast<ComboBoxNode*>(&control);
    if (!combo || !focus || !focus->IsSelfOrDescendantOf(control)) return false;
    Tell({Act::kTurnWheel, control, {notches}});
    for (int turned = 0; turned < std::abs(notches) && CanAct(control); ++turned) {
        combo->UserKey(notches > 0 ? VK_UP : VK_DOWN);
    }
    return true;
}

bool StepSpin(Node& spin, bool up) {
    auto* arrows = dynamic_cast<SpinNode*>(&spin);
    if (!arrows || !CanAct(spin)) return false;
    const auto keep = spin.shared_from_this();
    Tell({Act::kStepSpin, spin, {up ? 1 : -1}});
    // The arrows take no focus of their own: what is typed into the buddy is at hand for them.
    Node* buddy = arrows->Buddy();
    if (buddy && CanAct(*buddy) && !FocusForClick(*buddy)) return true;
    if (CanAct(spin)) arrows->UserStep(up);
    return true;
}

bool PressTool(Node& toolBar, int id) {
    auto* bar = dynamic_cast<ToolBarNode*>(&toolBar);
    if (!bar || !CanAct(toolBar)) return false;
    const auto keep = toolBar.shared_from_this();
    Tell({Act::kPressTool, toolBar, {id}});
    return bar->UserPress(id);
}

bool SelectText(Node& edit, int anchor, int caret) {
    if (!CanAct(edit) || edit.Class() != NodeClass::kEdit) return false;
    const auto keep = edit.shared_from_this();
    Tell({Act::kSelectText, edit, {anchor, caret}});
    if (FocusForClick(edit)) {
        Send(edit, EM_SETSEL, static_cast<WPARAM>(anchor), static_cast<LPARAM>(caret));
    }
    return true;
}

bool EditCommand(Node& edit, UINT message) {
    if (!CanAct(edit)) return false;
    const auto keep = edit.shared_from_this();
    Tell({Act::kEditCommand, edit, {static_cast<int>(message)}});
    if (FocusForClick(edit)) Send(edit, message);
    return true;
}

bool CopyRows(Node& list) {
    if (list.Destroyed() || !HasRows(list)) return false;
    const std::vector<int> rows = SelectedRows(list);
    if (rows.empty()) return false;
    Tell({Act::kCopyRows, list});
    std::string text;
    for (const int row : rows) {
        if (!text.empty()) text += '\n';
        text += RowTextOf(list, row);
    }
    WindowSystem::Get().GetDesktop().SetClipboardText(text);
    return true;
}

bool TypeText(Node& control, std::string_view text) {
    if (!CanAct(control) || !FocusedByClick(control)) return false;
    const auto keep = control.shared_from_this();
    const ActionScope action;
    const ModalWatch watch;
    Tell({Act::kTypeText, control, {}, text});
    FocusByTab(control);
    if (watch.Opened()) return true;
    if (text.empty()) {
        // Entered by Tab and nothing typed: what was selected is taken away, as with Delete.
        return RunKey(VK_DELETE, 0, {});
    }
    return TypeCharacters(text, true);
}

bool TypeHere(std::string_view text) {
    return TypeCharacters(text, false);
}

bool PressKey(int key, Modifiers modifiers) {
    Node* target = KeyTarget();
    if (!target) return false;
    const auto keep = target->shared_from_this();
    Tell({Act::kPressKey, *target, {key}, {}, modifiers});
    if (RunKey(key, 0, modifiers)) return true;
    Tell({Act::kInVain, *target});
    return false;
}

int KeyByName(std::string_view name) {
    for (const auto& [known, key] : kKeyNames) {
        if (EqualsNoCase(known, name)) return key;
    }
    if (const int key = FunctionKey(name)) return key;
    if (name.size() == 1) {
        const char upper = ToUpper(name.front());
        if ((upper >= 'A' && upper <= 'Z') || IsDigit(upper)) return upper;
    }
    return 0;
}

bool Paste(Node& control, const std::string& text) {
    if (!CanAct(control) || !FocusedByClick(control)) return false;
    const auto keep = control.shared_from_this();
    const ActionScope action;
    Tell({Act::kPaste, control, {}, text});
    auto& system = WindowSystem::Get();
    system.GetDesktop().SetClipboardText(text);
    const ModalWatch watch;
    FocusByTab(control);
    if (watch.Opened() || !system.Focus()) return true;
    Send(*system.Focus(), WM_PASTE);
    return true;
}

bool MoveFocus(Node& control) {
    Node* target = FocusedByClick(control);
    if (!CanAct(control) || !target) return false;
    const ActionScope action;
    Tell({Act::kMoveFocus, control});
    WindowSystem::Get().SetFocus(target);
    return true;
}

bool Activate(Node& window) {
    if (!CanAct(window)) return false;
    WindowSystem::Get().Activate(window);
    return true;
}

bool CloseWindow(Node& window) {
    if (!CanAct(window)) return false;
    const ActionScope action;
    Tell({Act::kCloseWindow, window});
    Send(window, WM_CLOSE);
    return true;
}

}  // namespace kv::input
