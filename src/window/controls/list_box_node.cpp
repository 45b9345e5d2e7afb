#include "window/controls/list_box_node.h"

#include <algorithm>

#include "window/dialog_keys.h"
#include "window/window_system.h"

namespace kv {

LRESULT CopyRowText(std::string_view text, LPARAM buffer) {
    if (!buffer) return LB_ERR;
    return CopyText(text, reinterpret_cast<char*>(buffer), text.size() + 1);
}

ListBoxNode::ListBoxNode(int id, DWORD style)
    : Node(NodeClass::kListBox, id, style), rows_((style & LBS_SORT) != 0) {}

int ListBoxNode::Caret() const {
    if (!Multiple() && current_ >= 0) return current_;
    return rows_.Count() == 0 ? -1 : std::max(caret_, 0);
}

int ListBoxNode::Anchor() const {
    return rows_.Count() == 0 ? -1 : std::max(anchor_, 0);
}

bool ListBoxNode::Selected(int row) const {
    if (!rows_.Has(row)) return false;
    return Multiple() ? rows_.Marked(row) : row == current_;
}

std::vector<int> ListBoxNode::SelectedRows() const {
    if (Multiple()) return rows_.MarkedRows();
    return current_ >= 0 ? std::vector<int>{current_} : std::vector<int>{};
}

void ListBoxNode::TellInserted(int first, int count) {
    WindowSystem::Get().NoteChange();
    if (View* view = ViewForRows()) view->RowsInserted(first, count);
}

void ListBoxNode::TellRemoved(int first, int count) {
    WindowSystem::Get().NoteChange();
    if (View* view = ViewForRows()) view->RowsRemoved(first, count);
}

int ListBoxNode::AddRow(std::string_view text) {
    const int row = rows_.Add(text);
    for (int* each : {&current_, &caret_, &anchor_})
        MoveAlong(*each, row);
    TellInserted(row, 1);
    return row;
}

int ListBoxNode::InsertRow(int row, std::string_view text) {
    if (row == -1) row = rows_.Count();
    if (row < 0 || row > rows_.Count()) return LB_ERR;
    rows_.Insert(row, text);
    for (int* each : {&current_, &caret_, &anchor_})
        MoveAlong(*each, row);
    TellInserted(row, 1);
    return row;
}

/// A row that is there already keeps its place in the list, and not its index.
void ListBoxNode::MoveAlong(int& row, int inserted) const {
    if (row >= inserted) ++row;
}

bool ListBoxNode::RemoveRow(int row) {
    if (!rows_.Has(row)) return false;
    rows_.Remove(row);
    current_ = current_ == row ? -1 : current_ - (current_ > row ? 1 : 0);
    for (int* each : {&caret_, &anchor_}) {
        if (*each > row) --*each;
        *each = std::min(*each, rows_.Count() - 1);
    }
    TellRemoved(row, 1);
    return true;
}

void ListBoxNode::Clear() {
    const bool hadRows = rows_.Count() > 0;
    rows_.Clear();
    current_ = caret_ = anchor_ = -1;
    search_.Stop();
    if (hadRows) TellList(Change::kRows);
}

bool ListBoxNode::SetCurrentRow(int row) {
    if (Multiple() || (row != -1 && !rows_.Has(row))) return false;
    if (row == current_) return true;
    current_ = row;
    if (row >= 0) caret_ = anchor_ = row;
    TellList(Change::kSelection);
    return true;
}

bool ListBoxNode::SetSelected(int row, bool selected) {
    if (!Multiple() || (row != -1 && !rows_.Has(row))) return false;
    bool changed = false;
    if (row == -1) {
        changed = rows_.SetAllMarked(selected);
    } else {
        changed = rows_.SetMarked(row, selected);
        if (selected) {
            changed = MoveCaret(row) || changed;
            anchor_ = row;
        }
    }
    if (changed) TellList(Change::kSelection);
    return true;
}

bool ListBoxNode::SetData(int row, LPARAM data) {
    if (row != -1 && !rows_.Has(row)) return false;
    const int first = row == -1 ? 0 : row;
    const int last = row == -1 ? rows_.Count() - 1 : row;
    for (int each = first; each <= last; ++each)
        rows_.SetData(each, data);
    return true;
}

bool ListBoxNode::SetCaret(int row) {
    if (!rows_.Has(row)) return false;
    if (MoveCaret(row)) TellList(Change::kSelection);
    return true;
}

bool ListBoxNode::MoveCaret(int row) {
    const bool changed = caret_ != row;
    caret_ = row;
    return changed;
}

bool ListBoxNode::SelectOnly(int row) {
    bool changed = MoveCaret(row);
    anchor_ = row;
    if (rows_.MarkedCount() == 1 && rows_.Marked(row)) return changed;
    rows_.SetAllMarked(false);
    rows_.SetMarked(row, true);
    return true;
}

/// Selects from the anchor to the row. Kept, the others stay, and the rows become what the anchor
/// is.
bool ListBoxNode::ExtendTo(int row, bool keepOthers) {
    const int anchor = Anchor();
    const bool selected = !keepOthers || rows_.Marked(anchor);
    bool changed = MoveCaret(row);
    if (!keepOthers) changed = rows_.SetAllMarked(false) || changed;
    const auto [first, last] = std::minmax(anchor, row);
    for (int each = first; each <= last; ++each) {
        changed = rows_.SetMarked(each, selected) || changed;
    }
    return changed;
}

void ListBoxNode::NotifyIfAsked(int code) {
    if (HasStyle(LBS_NOTIFY)) Notify(code);
}

void ListBoxNode::UserChanged(bool changed) {
    if (changed) TellList(Change::kSelection);
    NotifyIfAsked(LBN_SELCHANGE);
}

void ListBoxNode::UserSelect(int row, bool shift, bool ctrl) {
    if (!rows_.Has(row)) return;
    search_.Stop();
    const auto keep = shared_from_this();
    if (!Multiple()) {
        SetCurrentRow(row);
        UserChanged(false);
        return;
    }
    const bool extended = HasStyle(LBS_EXTENDEDSEL);
    if (extended && shift) {
        UserChanged(ExtendTo(row, ctrl));
    } else if (!extended || ctrl) {
        rows_.SetMarked(row, !rows_.Marked(row));
        MoveCaret(row);
        anchor_ = row;
        UserChanged(true);
    } else {
        UserChanged(SelectOnly(row));
    }
}

void ListBoxNode::UserSelectRows(const std::vector<int>& rows) {
    const auto keep = shared_from_this();
    if (rows.empty()) {
        TakeSelectionBack();
        return;
    }
    bool ctrl = false;
    for (const int row : rows) {
        if (Destroyed()) return;
        UserSelect(row, false, ctrl);
        ctrl = true;
    }
}

void ListBoxNode::TakeSelectionBack() {
    if (!Multiple()) {
        if (current_ == -1) return;
        SetCurrentRow(-1);
        UserChanged(false);
        return;
    }
    const std::vector<int> selected = SelectedRows();
    if (selected.empty()) return;
    if (!HasStyle(LBS_EXTENDEDSEL)) {
        for (const int row : selected)
            UserSelect(row, false, false);
        return;
    }
    if (selected.size() > 1) UserSelect(selected.front(), false, false);
    if (!Destroyed() && Selected(selected.front())) UserSelect(selected.front(), false, true);
}

void ListBoxNode::UserDoubleClick(int row) {
    if (!rows_.Has(row)) return;
    const auto keep = shared_from_this();
    UserSelect(row, false, false);
    NotifyIfAsked(LBN_DBLCLK);
}

int ListBoxNode::RowsOnPage() const {
    return std::max(1, Rect().Height() / kListRowHeight);
}

bool ListBoxNode::HandleKey(int key) {
    const Modifiers keys = CurrentModifiers();
    const int last = rows_.Count() - 1;
    if (last < 0 || keys.alt) return false;
    const int caret = Caret();
    // With nothing selected yet, the first key selects the caret row itself.
    const int step = !Multiple() && current_ < 0 ? 0 : 1;
    switch (key) {
        case VK_UP:
        case VK_LEFT:
            MoveByKey(caret - step, keys.shift, keys.ctrl);
            return true;
        case VK_DOWN:
        case VK_RIGHT:
            MoveByKey(caret + step, keys.shift, keys.ctrl);
            return true;
        case VK_PRIOR:
            MoveByKey(caret - RowsOnPage(), keys.shift, keys.ctrl);
            return true;
        case VK_NEXT:
            MoveByKey(caret + RowsOnPage(), keys.shift, keys.ctrl);
            return true;
        case VK_HOME:
            MoveByKey(0, keys.shift, keys.ctrl);
            return true;
        case VK_END:
            MoveByKey(last, keys.shift, keys.ctrl);
            return true;
        case VK_SPACE:
            // Within a text that is being typed it is one of its characters.
            if (!Multiple() || search_.Running(Now())) return false;
            UserSelect(caret, keys.shift, keys.ctrl);
            return true;
        default:
            return false;
    }
}

void ListBoxNode::MoveByKey(int row, bool shift, bool ctrl) {
    search_.Stop();
    row = std::clamp(row, 0, rows_.Count() - 1);
    if (!Multiple()) {
        if (row == current_) return;
        SetCurrentRow(row);
        UserChanged(false);
    } else {
        // Such a key is told of whatever it changed.
        const bool caretAlone = !HasStyle(LBS_EXTENDEDSEL) || (ctrl && !shift);
        UserChanged(caretAlone ? MoveCaret(row) : shift ? ExtendTo(row, ctrl) : SelectOnly(row));
    }
}

void ListBoxNode::HandleChar(char ch) {
    if (static_cast<unsigned char>(ch) <= ' ' && !(ch == ' ' && search_.Running(Now()))) return;
    const int row = search_.Type(ch, Now(), rows_, Multiple() ? caret_ : current_);
    if (row < 0) return;
    if (!Multiple()) {
        if (row == current_) return;
        SetCurrentRow(row);
        UserChanged(false);
    } else if (!HasStyle(LBS_EXTENDEDSEL)) {
        if (MoveCaret(row)) TellList(Change::kSelection);
    } else if (SelectOnly(row)) {
        UserChanged(true);
    }
}

LRESULT ListBoxNode::GetSelectedItems(int most, int* rows) const {
    if (!Multiple() || !rows) return LB_ERR;
    const std::vector<int> selected = SelectedRows();
    const std::size_t count =
        std::min(selected.size(), static_cast<std::size_t>(std::max(most, 0)));
    std::copy_n(selected.begin(), count, rows);
    return static_cast<LRESULT>(count);
}

/// From the first to the last row selects; the other way round takes the selection away.
LRESULT ListBoxNode::SelectRange(int first, int last) {
    if (!Multiple() || rows_.Count() == 0) return LB_ERR;
    const bool select = first <= last;
    if (!select) std::swap(first, last);
    first = std::max(first, 0);
    last = std::min(last, rows_.Count() - 1);
    bool changed = false;
    for (int row = first; row <= last; ++row)
        changed = rows_.SetMarked(row, select) || changed;
    if (changed) TellList(Change::kSelection);
    return 0;
}

LRESULT ListBoxNode::SelectString(const char* text, int start) {
    const int row = rows_.FindPrefix(text, start);
    if (row < 0) return LB_ERR;
    if (Multiple()) {
        SetSelected(row, true);
    } else {
        SetCurrentRow(row);
    }
    return row;
}

LRESULT ListBoxNode::ProcessRows(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int row = static_cast<int>(wParam);
    const char* text = TextOf(lParam);
    switch (message) {
        case LB_ADDSTRING:
            return text ? AddRow(text) : LB_ERR;
        case LB_INSERTSTRING:
            return text ? InsertRow(row, text) : LB_ERR;
        case LB_DELETESTRING:
            return RemoveRow(row) ? rows_.Count() : LB_ERR;
        case LB_RESETCONTENT:
            Clear();
            return 0;
        case LB_GETCOUNT:
            return rows_.Count();
        case LB_GETTEXT:
            return rows_.Has(row) ? CopyRowText(rows_.Text(row), lParam) : LB_ERR;
        case LB_GETTEXTLEN:
            return rows_.Has(row) ? static_cast<LRESULT>(rows_.Text(row).size()) : LB_ERR;
        case LB_FINDSTRING:
            return text ? rows_.FindPrefix(text, row) : LB_ERR;
        case LB_FINDSTRINGEXACT:
            return text ? rows_.FindExact(text, row) : LB_ERR;
        case LB_GETITEMDATA:
            return rows_.Has(row) ? rows_.Data(row) : LB_ERR;
        case LB_SETITEMDATA:
            return SetData(row, lParam) ? 0 : LB_ERR;
        default:
            handled = false;
            return 0;
    }
}

LRESULT ListBoxNode::ProcessSelection(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int row = static_cast<int>(wParam);
    switch (message) {
        case LB_GETCURSEL:
            return CurrentRow();
        case LB_SETCURSEL:
            return SetCurrentRow(row) ? row : LB_ERR;
        case LB_SELECTSTRING:
            return lParam ? SelectString(TextOf(lParam), row) : LB_ERR;
        case LB_SETSEL:
            return SetSelected(static_cast<int>(lParam), wParam != 0) ? 0 : LB_ERR;
        case LB_GETSEL:
            return rows_.Has(row) ? Selected(row) : LB_ERR;
        case LB_GETSELCOUNT:
            return Multiple() ? rows_.MarkedCount() : LB_ERR;
        case LB_GETSELITEMS:
            return GetSelectedItems(row, reinterpret_cast<int*>(lParam));
        case LB_SELITEMRANGEEX:
            return SelectRange(row, static_cast<int>(lParam));
        case LB_SETCARETINDEX:
            return SetCaret(row) ? 0 : LB_ERR;
        case LB_GETCARETINDEX:
            return std::max(Caret(), 0);
        default:
            handled = false;
            return 0;
    }
}

LRESULT ListBoxNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    bool handled = true;
    LRESULT result = ProcessRows(message, wParam, lParam, handled);
    if (handled) return result;
    handled = true;
    result = ProcessSelection(message, wParam, lParam, handled);
    if (handled) return result;
    switch (message) {
        case WM_KEYDOWN:
            HandleKey(static_cast<int>(wParam));
            return 0;
        case WM_CHAR:
            HandleChar(static_cast<char>(wParam));
            return 0;
        case WM_SETFOCUS:
            NotifyIfAsked(LBN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            search_.Stop();
            NotifyIfAsked(LBN_KILLFOCUS);
            return 0;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
