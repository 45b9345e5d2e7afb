#include "window/acting/user.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <typeinfo>

#include "base/text.h"
#include "window/acting/input.h"
#include "window/acting/row_texts.h"
#include "window/controls/combo_box_node.h"
#include "window/window_system.h"
#include "window/wnd.h"

namespace kv {

namespace {

std::string Number(int value) {
    return std::to_string(value);
}

struct Chord {
    int key = 0;
    Modifiers modifiers;
};

Chord ParseChord(std::string_view text) {
    Chord chord;
    for (;;) {
        if (StartsWithNoCase(text, "Shift+")) {
            chord.modifiers.shift = true;
            text.remove_prefix(6);
        } else if (StartsWithNoCase(text, "Ctrl+")) {
            chord.modifiers.ctrl = true;
            text.remove_prefix(5);
        } else if (StartsWithNoCase(text, "Alt+")) {
            chord.modifiers.alt = true;
            text.remove_prefix(4);
        } else {
            break;
        }
    }
    chord.key = input::KeyByName(text);
    return chord;
}

}  // namespace

std::string ClassName(const CWnd& window) {
    // A window goes by the handle that it was made with, whichever stand in front of that.
    const CWnd* own = &window;
    while (const CWnd* behind = window.m_hWnd ? window.m_hWnd->HandleBehind(own) : nullptr)
        own = behind;
    int status = 0;
    char* name = abi::__cxa_demangle(typeid(*own).name(), nullptr, nullptr, &status);
    std::string result = status == 0 ? name : typeid(*own).name();
    std::free(name);
    return result;
}

std::string Describe(Node& window) {
    CWnd* handle = window.AnyHandle();
    return (handle ? ClassName(*handle) : std::string("window")) + " \"" + window.Text() + "\"";
}

User::User(Node& window, std::function<void(const std::string&)> fail)
    : window_(window.shared_from_this()), fail_(std::move(fail)) {}

CWnd& User::Window() {
    CWnd* handle = window_->AnyHandle();
    if (!handle) Fail("the window is gone");
    return *handle;
}

bool User::Open() const {
    return !window_->Destroyed() && window_->Visible();
}

void User::Fail(const std::string& words) {
    fail_(words);
    std::abort();
}

Node& User::ControlOf(int id, const char* action) {
    if (!Open()) {
        Fail(std::string(action) + " " + Number(id) + ": the window " + Describe(*window_) +
             " is not open any more");
    }
    Node* control = window_->FindChild(id);
    if (!control) {
        Fail(std::string(action) + " " + Number(id) + ": " + Describe(*window_) +
             " has no such control");
    }
    return *control;
}

void User::Done(bool done, const char* action, int id) {
    if (!done) {
        Fail(std::string(action) + " " + Number(id) + ": the control in " + Describe(*window_) +
             " is disabled, hidden or of another kind");
    }
    WindowSystem::Get().Settle();
}

int User::RowOf(Node& control, const std::string& text, const char* action) {
    const std::vector<std::string> rows = RowTexts(control);
    const auto at = std::find(rows.begin(), rows.end(), text);
    if (at == rows.end()) {
        Fail(std::string(action) + " " + Number(control.Id()) + ": no row \"" + text + "\"");
    }
    return static_cast<int>(at - rows.begin());
}

void User::Click(int id) {
    Done(input::Click(ControlOf(id, "click")), "click", id);
}

void User::DoubleClick(int id, int row) {
    Done(input::DoubleClick(ControlOf(id, "doubleclick"), row), "doubleclick", id);
}

void User::DoubleClick(int id, const std::string& rowText) {
    DoubleClick(id, RowOf(ControlOf(id, "doubleclick"), rowText, "doubleclick"));
}

void User::Type(int id, const std::string& text) {
    Done(input::TypeText(ControlOf(id, "type"), text), "type", id);
}

void User::Key(int id, const std::string& key) {
    const Chord chord = ParseChord(key);
    if (!chord.key) Fail("key " + Number(id) + ": no key is named \"" + key + "\"");
    if (id) {
        Node& control = ControlOf(id, "key");
        if (WindowSystem::Get().Focus() != control.FocusTarget()) {
            Done(input::MoveFocus(control), "key", id);
        }
    }
    Done(input::PressKey(chord.key, chord.modifiers), "key", id);
}

void User::Paste(int id, const std::string& text) {
    Done(input::Paste(ControlOf(id, "paste"), text), "paste", id);
}

void User::Select(int id, const std::vector<int>& rows) {
    Done(input::SelectRows(ControlOf(id, "select"), rows), "select", id);
}

void User::Select(int id, int row) {
    Select(id, std::vector<int>{row});
}

void User::Select(int id, const std::string& rowText) {
    Node& control = ControlOf(id, "select");
    // A combo box may fill its list only when it is dropped.
    const auto* combo = dynamic_cast<const ComboBoxNode*>(&control);
    if (combo && !combo->Dropped() && !input::DropDown(control)) Done(false, "select", id);
    Select(id, RowOf(control, rowText, "select"));
}

void User::Drop(int id) {
    Done(input::DropDown(ControlOf(id, "drop")), "drop", id);
}

void User::Focus(int id) {
    Done(input::MoveFocus(ControlOf(id, "focus")), "focus", id);
}

void User::Close() {
    Done(input::CloseWindow(*window_), "close", window_->Id());
}

std::string User::Text(int id) {
    return ControlOf(id, "text").Text();
}

bool User::Checked(int id) {
    return Send(ControlOf(id, "checked"), BM_GETCHECK) == BST_CHECKED;
}

bool User::Enabled(int id) {
    return ControlOf(id, "enabled").ReallyEnabled();
}

bool User::Visible(int id) {
    return ControlOf(id, "visible").ReallyVisible();
}

bool User::HasControl(int id) const {
    return window_->FindChild(id) != nullptr;
}

int User::RowIndex(int id, const std::string& rowText) {
    return RowOf(ControlOf(id, "select"), rowText, "select");
}

std::vector<std::string> User::Rows(int id) {
    return RowTexts(ControlOf(id, "rows"));
}

std::vector<int> User::Selected(int id) {
    return SelectedRows(ControlOf(id, "selected"));
}

}  // namespace kv
