#include <algorithm>
#include <utility>

#include "window/dialog_keys.h"
#include "window/list_view/list_view_node.h"
#include "window/window_system.h"

// What a person does with a list view.

namespace kv {

namespace {

constexpr char kCtrlA = 0x01;

CPoint PointOf(LPARAM lParam) {
    const auto place = static_cast<std::uintptr_t>(lParam);
    return {static_cast<std::int16_t>(LOWORD(place)), static_cast<std::int16_t>(HIWORD(place))};
}

UINT KeyFlags() {
    const Modifiers keys = CurrentModifiers();
    return (keys.alt ? LVKF_ALT : 0) | (keys.ctrl ? LVKF_CONTROL : 0) |
           (keys.shift ? LVKF_SHIFT : 0);
}

}  // namespace

LRESULT ListViewNode::TellParent(int code, int row, int column, UINT newState, UINT oldState,
                                 UINT changed, CPoint at) {
    if (!Parent() || Destroyed()) return 0;
    // Of a new row nothing but its place is told.
    const LPARAM data = Has(row) && code != LVN_INSERTITEM ? Row(row).data : 0;
    NMITEMACTIVATE notice{{{this, Id(), code}, row, column, newState, oldState, changed, at, data},
                          KeyFlags()};
    NMLISTVIEW& head = notice;
    return Send(*Parent(), WM_NOTIFY, static_cast<WPARAM>(Id()), reinterpret_cast<LPARAM>(&head));
}

void ListViewNode::TellKey(int key) {
    if (!Parent()) return;
    NMLVKEYDOWN notice{{this, Id(), LVN_KEYDOWN}, static_cast<std::uint16_t>(key), 0};
    Send(*Parent(), WM_NOTIFY, static_cast<WPARAM>(Id()), reinterpret_cast<LPARAM>(&notice));
}

/// What is activated are the selected rows.
void ListViewNode::Activate(int row) {
    if (Has(row) && SelectedCount() > 0) TellParent(LVN_ITEMACTIVATE, row);
}

void ListViewNode::SelectOnly(int row) {
    for (int each = NextSelected(-1); each >= 0; each = NextSelected(each)) {
        if (each != row) SetItemState(each, 0, LVIS_SELECTED);
    }
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    mark_ = Has(row) ? row : -1;
}

void ListViewNode::SelectRange(int from, int to, bool keepOthers) {
    const auto [first, last] = std::minmax(from, to);
    for (int each = NextSelected(-1); each >= 0 && !keepOthers; each = NextSelected(each)) {
        if (each < first || each > last) SetItemState(each, 0, LVIS_SELECTED);
    }
    for (int each = first; each <= last; ++each) {
        SetItemState(each, LVIS_SELECTED, LVIS_SELECTED);
    }
    SetItemState(to, LVIS_FOCUSED, LVIS_FOCUSED);
}

void ListViewNode::ClearSelection() {
    for (int each = NextSelected(-1); each >= 0; each = NextSelected(each)) {
        SetItemState(each, 0, LVIS_SELECTED);
    }
}

void ListViewNode::ToggleSelected(int row) {
    const UINT toggled = Selected(row) ? 0 : LVIS_SELECTED;
    SetItemState(row, toggled | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    mark_ = row;
}

void ListViewNode::PressRow(int row, bool shift, bool ctrl) {
    search_.Stop();
    if (!Has(row)) {
        if (!shift && !ctrl) ClearSelection();
    } else if (shift && !SingleSelection()) {
        if (mark_ < 0) mark_ = std::max(focused_, 0);
        SelectRange(mark_, row, ctrl);
    } else if (ctrl && !SingleSelection()) {
        ToggleSelected(row);
    } else {
        SelectOnly(row);
    }
}

void ListViewNode::UserClick(int row, bool shift, bool ctrl) {
    const auto keep = shared_from_this();
    PressRow(row, shift, ctrl);
    TellParent(NM_CLICK, Has(row) ? row : -1);
}

void ListViewNode::UserSelectRows(const std::vector<int>& rows) {
    const auto keep = shared_from_this();
    if (rows.empty()) UserClick(-1, false, false);
    bool ctrl = false;
    for (const int row : rows) {
        if (Destroyed()) return;
        UserClick(row, false, ctrl);
        ctrl = true;
    }
}

void ListViewNode::UserDoubleClick(int row) {
    const auto keep = shared_from_this();
    UserClick(row, false, false);
    TellParent(NM_DBLCLK, Has(row) ? row : -1);
    Activate(row);
}

/// A selected row takes the other selected ones along.
void ListViewNode::PressRight(int row) {
    if (!Selected(row)) {
        PressRow(row, false, false);
    } else {
        SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
    }
}

bool ListViewNode::UserRightClick(int row) {
    const auto keep = shared_from_this();
    PressRight(row);
    return TellParent(NM_RCLICK, Has(row) ? row : -1) == 0 && !Destroyed();
}

void ListViewNode::UserToggleCheck(int row) {
    if (!HasCheckBoxes() || !Has(row)) return;
    const auto keep = shared_from_this();
    SetItemState(row, Checked(row) ? kUnchecked : kChecked, LVIS_STATEIMAGEMASK);
    TellParent(NM_CLICK, row);
}

void ListViewNode::UserClickColumn(int column) {
    if (column < 0 || column >= static_cast<int>(columns_.size())) return;
    TellParent(LVN_COLUMNCLICK, -1, column);
}

/// A selected row takes the other selected ones along.
void ListViewNode::ToggleChecks(int row) {
    if (!Has(row)) return;
    const UINT image = Checked(row) ? kUnchecked : kChecked;
    SetItemState(row, image, LVIS_STATEIMAGEMASK);
    if (!Selected(row)) return;
    for (int each = NextSelected(-1); each >= 0; each = NextSelected(each)) {
        SetItemState(each, image, LVIS_STATEIMAGEMASK);
    }
}

void ListViewNode::MoveTo(int row) {
    row = std::clamp(row, 0, Count() - 1);
    const Modifiers keys = CurrentModifiers();
    if (keys.shift && !SingleSelection()) {
        PressRow(row, true, keys.ctrl);
    } else if (keys.ctrl && !SingleSelection()) {
        SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
    } else {
        SelectOnly(row);
    }
    search_.Stop();
    EnsureVisible(row);
}

bool ListViewNode::HandleKey(int key) {
    if (key == VK_RETURN) {
        TellParent(NM_RETURN, focused_);
        Activate(focused_);
        return true;
    }
    if (Count() == 0 || CurrentModifiers().alt) return false;
    const int row = std::max(focused_, 0);
    // With the focus on no row yet, the first key goes to the first row itself.
    const int step = focused_ < 0 ? 0 : 1;
    switch (key) {
        case VK_UP:
            MoveTo(row - step);
            return true;
        case VK_DOWN:
            MoveTo(row + step);
            return true;
        case VK_PRIOR:
            MoveTo(row - RowsOnPage());
            return true;
        case VK_NEXT:
            MoveTo(row + RowsOnPage());
            return true;
        case VK_HOME:
            MoveTo(0);
            return true;
        case VK_END:
            MoveTo(Count() - 1);
            return true;
        case VK_SPACE:
            if (CurrentModifiers().ctrl && !SingleSelection()) ToggleSelected(row);
            return true;
        default:
            return false;
    }
}

void ListViewNode::JumpTo(char ch) {
    const auto find = [this](const std::string& text, int behind) {
        return FindItem(behind, {LVFI_PARTIAL | LVFI_WRAP, text.c_str(), 0});
    };
    const int row = search_.Type(ch, Now(), find, focused_);
    if (row < 0) return;
    SelectOnly(row);
    EnsureVisible(row);
}

void ListViewNode::HandleChar(char ch) {
    if (Count() == 0) return;
    if (ch == ' ' && !search_.Running(Now())) {
        if (HasCheckBoxes()) {
            ToggleChecks(focused_);
        } else {
            SelectOnly(std::max(focused_, 0));
        }
    } else if (ch == kCtrlA && !SingleSelection()) {
        SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    } else if (static_cast<unsigned char>(ch) >= ' ') {
        JumpTo(ch);
    }
}

/// What lies beside what the row shows counts as behind the rows.
LVHITTESTINFO ListViewNode::HitForPress(CPoint at) const {
    LVHITTESTINFO hit = HitTest(at);
    const bool wholeRow = (extendedStyle_ & LVS_EX_FULLROWSELECT) != 0;
    if (hit.iSubItem > 0 && !wholeRow) hit.iItem = -1;
    return hit;
}

/// A press on a check box leaves the selection as it is.
void ListViewNode::PressAt(CPoint at) {
    const LVHITTESTINFO hit = HitForPress(at);
    pressed_ = hit;
    if (hit.flags == LVHT_ONITEMSTATEICON && HasCheckBoxes()) {
        SetItemState(hit.iItem, Checked(hit.iItem) ? kUnchecked : kChecked, LVIS_STATEIMAGEMASK);
        return;
    }
    const Modifiers keys = CurrentModifiers();
    PressRow(hit.iItem, keys.shift, keys.ctrl);
}

void ListViewNode::DoubleClickAt(CPoint at) {
    PressAt(at);
    const auto hit = std::exchange(pressed_, std::nullopt);
    if (!hit) return;
    TellParent(NM_DBLCLK, hit->iItem, hit->iSubItem, 0, 0, 0, hit->pt);
    if (hit->flags != LVHT_ONITEMSTATEICON) Activate(hit->iItem);
}

LRESULT ListViewNode::ProcessUser(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const auto keep = shared_from_this();
    switch (message) {
        case WM_SETFOCUS:
            return TellParent(NM_SETFOCUS, -1);
        case WM_KILLFOCUS:
            search_.Stop();
            return TellParent(NM_KILLFOCUS, -1);
        case WM_DESTROY:
            TellOfTheEnd();
            return 0;
        case WM_KEYDOWN:
            TellKey(static_cast<int>(wParam));
            if (!Destroyed()) HandleKey(static_cast<int>(wParam));
            return 0;
        case WM_CHAR:
            HandleChar(static_cast<char>(wParam));
            return 0;
        case WM_LBUTTONDOWN:
            PressAt(PointOf(lParam));
            return 0;
        case WM_LBUTTONUP:
            if (const auto hit = std::exchange(pressed_, std::nullopt)) {
                TellParent(NM_CLICK, hit->iItem, hit->iSubItem, 0, 0, 0, hit->pt);
            }
            return 0;
        case WM_LBUTTONDBLCLK:
            DoubleClickAt(PointOf(lParam));
            return 0;
        case WM_RBUTTONDOWN:
            rightPressed_ = HitForPress(PointOf(lParam));
            PressRight(rightPressed_->iItem);
            return 0;
        case WM_RBUTTONUP:
            if (const auto hit = std::exchange(rightPressed_, std::nullopt)) {
                TellParent(NM_RCLICK, hit->iItem, hit->iSubItem, 0, 0, 0, hit->pt);
            }
            return 0;
        default:
            handled = false;
            return 0;
    }
}

}  // namespace kv
