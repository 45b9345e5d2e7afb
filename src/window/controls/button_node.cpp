#include "window/controls/button_node.h"

#include "window/dialog_keys.h"
#include "window/window_system.h"

namespace kv {

namespace {

constexpr LRESULT kPushedState = 0x0004;
constexpr LRESULT kFocusState = 0x0008;

}  // namespace

int ButtonNode::DialogCode() const {
    switch (Kind()) {
        case BS_GROUPBOX:
            return DLGC_STATIC;
        case BS_AUTORADIOBUTTON:
            return DLGC_BUTTON | DLGC_RADIOBUTTON;
        case BS_PUSHBUTTON:
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON:
            return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        default:
            return DLGC_BUTTON;
    }
}

void ButtonNode::Press() {
    const auto keep = shared_from_this();
    switch (Kind()) {
        case BS_GROUPBOX:
            return;
        case BS_AUTOCHECKBOX:
            Send(*this, BM_SETCHECK, check_ == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
            break;
        case BS_AUTORADIOBUTTON:
            CheckInGroup();
            break;
        default:
            break;
    }
    Notify(BN_CLICKED);
}

void ButtonNode::CheckInGroup() {
    Send(*this, BM_SETCHECK, BST_CHECKED);
    for (Node* member : GroupOf(*this)) {
        const bool isRadio = member->Class() == NodeClass::kButton &&
                             (member->Style() & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
        if (member != this && isRadio) Send(*member, BM_SETCHECK, BST_UNCHECKED);
    }
}

void ButtonNode::SetCheckState(int check) {
    const bool canBeChecked = Kind() == BS_AUTOCHECKBOX || Kind() == BS_AUTORADIOBUTTON;
    if (!canBeChecked || check == check_) return;
    check_ = check;
    Tell(Change::kCheck);
}

void ButtonNode::SetPushed(bool pushed) {
    if (pushed == pushed_) return;
    pushed_ = pushed;
    Tell(Change::kPaint);
}

LRESULT ButtonNode::SetImage(LPARAM image) {
    const LPARAM former = image_;
    image_ = image;
    if (image != former) Tell(Change::kImage);
    return former;
}

LRESULT ButtonNode::GetState() const {
    LRESULT state = check_;
    if (pushed_) state |= kPushedState;
    if (WindowSystem::Get().Focus() == this) state |= kFocusState;
    return state;
}

void ButtonNode::Hold() {
    held_ = true;
    SetPushed(true);
}

void ButtonNode::ReleaseAndPress() {
    held_ = false;
    if (!pushed_) return;
    SetPushed(false);
    Press();
}

/// Of itself only an owner-drawn button tells a double-click apart; others are pressed twice.
void ButtonNode::DoubleClick() {
    if (Kind() == BS_OWNERDRAW || HasStyle(BS_NOTIFY)) {
        Notify(BN_DOUBLECLICKED);
    } else {
        Hold();
    }
}

LRESULT ButtonNode::ProcessMessages(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    switch (message) {
        case BM_GETCHECK:
            return check_;
        case BM_SETCHECK:
            SetCheckState(wParam ? BST_CHECKED : BST_UNCHECKED);
            return 0;
        case BM_GETSTATE:
            return GetState();
        case BM_SETSTATE:
            SetPushed(wParam != 0);
            return 0;
        case BM_SETSTYLE:
            SetStyle((Style() & ~BS_TYPEMASK) | (static_cast<DWORD>(wParam) & BS_TYPEMASK));
            return 0;
        case BM_CLICK:
            if (ReallyEnabled()) Press();
            return 0;
        case BM_GETIMAGE:
            return image_;
        case BM_SETIMAGE:
            return SetImage(lParam);
        default:
            handled = false;
            return 0;
    }
}

LRESULT ButtonNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    bool handled = true;
    const LRESULT result = ProcessMessages(message, wParam, lParam, handled);
    if (handled) return result;
    const bool isSpace = wParam == static_cast<WPARAM>(VK_SPACE);
    switch (message) {
        case WM_LBUTTONDOWN:
            if (Kind() != BS_GROUPBOX) Hold();
            return 0;
        case WM_LBUTTONUP:
            ReleaseAndPress();
            return 0;
        case WM_LBUTTONDBLCLK:
            DoubleClick();
            return 0;
        case WM_KEYDOWN:
            if (isSpace) SetPushed(true);
            return 0;
        case WM_KEYUP:
            if (isSpace) ReleaseAndPress();
            return 0;
        case WM_SETFOCUS:
            if (HasStyle(BS_NOTIFY)) Notify(BN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            held_ = false;
            SetPushed(false);
            if (HasStyle(BS_NOTIFY)) Notify(BN_KILLFOCUS);
            return 0;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
