#include "window/dialog_keys.h"

#include <algorithm>

#include "base/text.h"
#include "window/mnemonics.h"
#include "window/window_system.h"

namespace kv {

namespace {

Modifiers g_modifiers;

bool IsButtonOfKind(const Node& node, DWORD kind) {
    return node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) == kind;
}

bool IsRadio(const Node& node) {
    return IsButtonOfKind(node, BS_AUTORADIOBUTTON);
}

bool CanHoldFocus(const Node& node) {
    return node.Visible() && node.Enabled() && !LiesOutside(node);
}

/// The child of `host` that `node` is or lies in: of a combo box's edit, the combo box.
Node* ControlOf(Node& host, Node* node) {
    while (node && node->Parent() && node->Parent() != &host)
        node = node->Parent();
    return node && node->Parent() == &host ? node : nullptr;
}

bool IsChecked(Node& button) {
    return Send(button, BM_GETCHECK) == BST_CHECKED;
}

/// Of a radio group only one button is a stop: the checked one, or the first that can be reached.
bool IsStop(Node& node) {
    if (!CanHoldFocus(node) || !node.HasStyle(WS_TABSTOP)) {
        return IsRadio(node) && CanHoldFocus(node) && IsChecked(node);
    }
    if (!IsRadio(node)) return true;
    for (Node* member : GroupOf(node)) {
        if (IsRadio(*member) && CanHoldFocus(*member) && IsChecked(*member)) return member == &node;
    }
    return true;
}

void MoveInGroup(Node& focused, bool forward) {
    std::vector<Node*> members = GroupOf(focused);
    std::erase_if(members, [&](Node* member) {
        return !CanHoldFocus(*member) || IsRadio(*member) != IsRadio(focused) ||
               member->Class() != NodeClass::kButton || IsCaption(*member);
    });
    const auto at = std::find(members.begin(), members.end(), &focused);
    if (at == members.end() || members.size() < 2) return;
    const auto count = static_cast<std::ptrdiff_t>(members.size());
    const std::ptrdiff_t index = (at - members.begin() + (forward ? 1 : count - 1)) % count;
    const auto next = members[static_cast<std::size_t>(index)]->shared_from_this();
    WindowSystem::Get().SetFocus(next.get());
    const bool arrived = WindowSystem::Get().Focus() == next.get();
    if (arrived && IsRadio(*next)) next->Press();
}

/// Enter and Escape press the button where there is one that can be pressed, and otherwise send the
/// bare command; a disabled button blocks.
void PressOrSend(Node& host, Node* button, int id) {
    if (button && !button->Enabled()) return;
    if (button && button->Class() == NodeClass::kButton) {
        button->Press();
    } else {
        Send(host, WM_COMMAND, MAKEWPARAM(id, CN_COMMAND), 0);
    }
}

/// What the control wants of the keyboard, of that key above all.
int CodeOf(Node& node, WPARAM key = 0) {
    return static_cast<int>(Send(node, WM_GETDLGCODE, key));
}

/// What the mnemonic of the child at `index` reaches: the button itself, or the control behind a
/// label. Null where that is disabled or there is none.
Node* ReachedFrom(const Node& host, std::size_t index) {
    const auto& children = host.Children();
    if (IsCaption(*children[index])) {
        do {
            if (++index == children.size()) return nullptr;
        } while (IsCaption(*children[index]) || !children[index]->Visible());
    }
    Node& node = *children[index];
    return node.Enabled() && !LiesOutside(node) ? &node : nullptr;
}

/// The letter of a control: with Alt every one, without it one that the text marks.
using LetterOf = char (*)(const Node&);

/// What a mnemonic reaches in `host`, in tab order, from behind the control with the focus on.
std::vector<Node*> ReachedBy(Node& host, char letter, LetterOf letterOf) {
    const auto& children = host.Children();
    const Node* focused = ControlOf(host, WindowSystem::Get().Focus());
    std::vector<Node*> ahead;
    std::vector<Node*> reached;
    for (std::size_t index = 0; index < children.size(); ++index) {
        const Node& child = *children[index];
        const bool asked =
            child.Visible() && !LiesOutside(child) && letterOf(child) == ToUpper(letter);
        Node* node = asked ? ReachedFrom(host, index) : nullptr;
        if (node) reached.push_back(node);
        if (children[index].get() == focused) ahead.swap(reached);
    }
    reached.insert(reached.end(), ahead.begin(), ahead.end());
    return reached;
}

void PressByMnemonic(Node& button) {
    const auto keep = button.shared_from_this();
    if (!IsPushButton(button)) {
        WindowSystem::Get().SetFocus(&button);
        if (WindowSystem::Get().Focus() != &button) return;
    }
    button.Press();
}

bool Reach(Node& host, char letter, LetterOf letterOf) {
    const std::vector<Node*> reached = ReachedBy(host, letter, letterOf);
    if (reached.empty()) return false;
    Node& next = *reached.front();
    if (reached.size() == 1 && next.Class() == NodeClass::kButton) {
        PressByMnemonic(next);
    } else {
        FocusByTab(next);
    }
    return true;
}

}  // namespace

bool IsCaption(const Node& node) {
    return node.Class() == NodeClass::kStatic || IsButtonOfKind(node, BS_GROUPBOX);
}

bool IsPushButton(const Node& node) {
    return IsButtonOfKind(node, BS_PUSHBUTTON) || IsButtonOfKind(node, BS_DEFPUSHBUTTON) ||
           IsButtonOfKind(node, BS_OWNERDRAW);
}

std::vector<Node*> GroupOf(Node& member) {
    std::vector<Node*> group;
    if (!member.Parent()) return {&member};
    const auto& siblings = member.Parent()->Children();
    const auto at = std::find_if(siblings.begin(), siblings.end(),
                                 [&](const auto& each) { return each.get() == &member; });
    auto first = at;
    while (first != siblings.begin() && !(*first)->HasStyle(WS_GROUP))
        --first;
    for (auto each = first; each != siblings.end(); ++each) {
        if (each != first && (*each)->HasStyle(WS_GROUP)) break;
        group.push_back(each->get());
    }
    return group;
}

Node* NextTabStop(Node& host, Node* from, bool forward) {
    const auto& children = host.Children();
    const auto count = static_cast<int>(children.size());
    Node* control = from ? ControlOf(host, from) : nullptr;
    const auto at = std::find_if(children.begin(), children.end(),
                                 [&](const auto& each) { return each.get() == control; });
    int index =
        at != children.end() ? static_cast<int>(at - children.begin()) : (forward ? -1 : count);
    const int step = forward ? 1 : -1;
    for (int tried = 0; tried < count; ++tried) {
        index = (index + step + count) % count;
        Node& node = *children[static_cast<std::size_t>(index)];
        if (!IsStop(node)) continue;
        // Tab leaves a radio group; its buttons are reached by the arrows.
        if (control && &node != control && IsRadio(node) && IsRadio(*control)) {
            const auto group = GroupOf(*control);
            if (std::find(group.begin(), group.end(), &node) != group.end()) continue;
        }
        return &node;
    }
    return nullptr;
}

void FocusByTab(Node& node) {
    if (!CanHoldFocus(node)) return;
    const auto keep = node.shared_from_this();
    WindowSystem::Get().SetFocus(&node);
    Node* target = node.FocusTarget();
    if (WindowSystem::Get().Focus() == target && (CodeOf(*target) & DLGC_HASSETSEL)) {
        Send(*target, EM_SETSEL, 0, -1);
    }
}

bool LiesOutside(const Node& control) {
    const Node* host = control.Parent();
    if (!host || host->Class() != NodeClass::kDialog) return false;
    const CRect& place = control.Rect();
    return place.left >= host->Rect().Width() || place.top >= host->Rect().Height() ||
           (place.left < 0 && place.right <= 0) || (place.top < 0 && place.bottom <= 0);
}

Node* DefaultButton(Node& host) {
    Node* focused = ControlOf(host, WindowSystem::Get().Focus());
    if (focused && IsPushButton(*focused)) return focused;
    for (const auto& child : host.Children()) {
        if (IsButtonOfKind(*child, BS_DEFPUSHBUTTON)) return child.get();
    }
    return nullptr;
}

bool HandleMnemonic(Node& host, char letter) {
    return Reach(host, letter, &MnemonicOf);
}

Node* ButtonOf(Node& host, char letter) {
    const std::vector<Node*> reached = ReachedBy(host, letter, &MnemonicOf);
    return reached.size() == 1 && IsPushButton(*reached.front()) ? reached.front() : nullptr;
}

bool HandleDialogCharacter(const MSG& message) {
    Node& focused = *message.hwnd;
    const char ch = static_cast<char>(message.wParam);
    const bool letter = (ToUpper(ch) >= 'A' && ToUpper(ch) <= 'Z') || IsDigit(ch);
    if (!letter || focused.Class() != NodeClass::kButton) return false;
    if (CodeOf(focused) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) return false;
    return Reach(*focused.Host(), ch, &MarkedMnemonicOf);
}

char CharacterOf(const MSG& keyDown) {
    if (const int carried = HIWORD(static_cast<std::uint32_t>(keyDown.lParam))) {
        return static_cast<char>(carried);
    }
    const Modifiers modifiers = CurrentModifiers();
    const auto key = static_cast<int>(keyDown.wParam);
    if (modifiers.alt) return 0;
    if (key >= 'A' && key <= 'Z') {
        if (modifiers.ctrl) return static_cast<char>(key - 'A' + 1);
        return modifiers.shift ? static_cast<char>(key) : ToLower(static_cast<char>(key));
    }
    if (modifiers.ctrl) return 0;
    const bool same = key == VK_BACK || key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE ||
                      key == VK_TAB || (key >= '0' && key <= '9');
    return same ? static_cast<char>(key) : '\0';
}

namespace {

bool HandleTab(Node& host, Node* control, int code) {
    const Modifiers modifiers = CurrentModifiers();
    if (code & DLGC_WANTTAB || modifiers.ctrl || modifiers.alt) return false;
    if (Node* next = NextTabStop(host, control, !modifiers.shift)) FocusByTab(*next);
    return true;
}

bool HandleArrow(Node* control, int code, bool forward) {
    if (code & DLGC_WANTARROWS || !control || control->Class() != NodeClass::kButton) return false;
    MoveInGroup(*control, forward);
    return true;
}

bool HandleEnter(Node& host) {
    Node* button = DefaultButton(host);
    // A bar has no OK of its own.
    if (!button && host.Class() != NodeClass::kDialog) return false;
    PressOrSend(host, button ? button : host.FindChild(IDOK), IDOK);
    return true;
}

bool HandleEscape(Node& host) {
    if (host.Class() != NodeClass::kDialog) return false;
    PressOrSend(host, host.FindChild(IDCANCEL), IDCANCEL);
    return true;
}

}  // namespace

bool HandleDialogKey(const MSG& message) {
    Node& focused = *message.hwnd;
    Node& host = *focused.Host();
    const bool inBar = host.Class() == NodeClass::kBar && &host != &focused;
    if (host.Class() != NodeClass::kDialog && !inBar) return false;
    const auto keepFocused = focused.shared_from_this();
    const auto keep = host.shared_from_this();
    const int code = CodeOf(focused, message.wParam);
    if (code & DLGC_WANTALLKEYS) return false;
    Node* control = ControlOf(host, &focused);

    switch (static_cast<int>(message.wParam)) {
        case VK_TAB:
            return HandleTab(host, control, code);
        case VK_LEFT:
        case VK_UP:
            return HandleArrow(control, code, false);
        case VK_RIGHT:
        case VK_DOWN:
            return HandleArrow(control, code, true);
        case VK_RETURN:
            return HandleEnter(host);
        case VK_ESCAPE:
            return HandleEscape(host);
        default:
            return false;
    }
}

Modifiers CurrentModifiers() {
    return g_modifiers;
}

ModifierScope::ModifierScope(Modifiers modifiers) : former_(g_modifiers) {
    g_modifiers = modifiers;
}

ModifierScope::~ModifierScope() {
    g_modifiers = former_;
}

}  // namespace kv
