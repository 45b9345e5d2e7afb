#include "window/list_view_node.h"

#include <algorithm>
#include <numeric>

#include "window/dialog_keys.h"
#include "window/text.h"

namespace kv {

namespace {

constexpr UINT kChecked = 0x2000;
constexpr UINT kUnchecked = 0x1000;
constexpr int kPageRows = 10;

ListCell& CellOf(ListRow& row, int column) {
    const auto wanted = static_cast<std::size_t>(column);
    if (row.cells.size() <= wanted) row.cells.resize(wanted + 1);
    return row.cells[wanted];
}

/// Moves an index along when a row comes or goes ahead of it.
void MoveForInsert(int& index, int row) {
    if (index >= row) ++index;
}

void MoveForDelete(int& index, int row) {
    if (index == row) {
        index = -1;
    } else if (index > row) {
        --index;
    }
}

}  // namespace

std::string ListViewNode::CellText(int row, int column) const {
    if (row < 0 || row >= Count() || column < 0) return {};
    const auto& cells = rows_.At(row).cells;
    const auto index = static_cast<std::size_t>(column);
    return index < cells.size() ? cells[index].text : std::string();
}

void ListViewNode::SetSelectionMark(int row) { mark_ = row; }

int ListViewNode::InsertColumn(int index, ListColumn column) {
    const int place = std::clamp(index, 0, static_cast<int>(columns_.size()));
    columns_.insert(columns_.begin() + place, std::move(column));
    order_.resize(columns_.size());
    std::iota(order_.begin(), order_.end(), 0);
    Tell(Change::kColumns);
    return place;
}

bool ListViewNode::SetColumn(int index, ListColumn column) {
    if (index < 0 || index >= static_cast<int>(columns_.size())) return false;
    columns_[static_cast<std::size_t>(index)] = std::move(column);
    Tell(Change::kColumns);
    return true;
}

bool ListViewNode::DeleteColumn(int index) {
    if (index < 0 || index >= static_cast<int>(columns_.size())) return false;
    columns_.erase(columns_.begin() + index);
    order_.resize(columns_.size());
    std::iota(order_.begin(), order_.end(), 0);
    rows_.ForEach([index](ListRow& row) {
        if (index < static_cast<int>(row.cells.size())) row.cells.erase(row.cells.begin() + index);
    });
    Tell(Change::kColumns);
    return true;
}

void ListViewNode::SetColumnWidth(int index, int width) {
    if (index < 0 || index >= static_cast<int>(columns_.size())) return;
    columns_[static_cast<std::size_t>(index)].width = width;
    Tell(Change::kColumns);
}

bool ListViewNode::SetColumnOrder(std::vector<int> order) {
    std::vector<int> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    std::vector<int> all(columns_.size());
    std::iota(all.begin(), all.end(), 0);
    if (sorted != all) return false;
    order_ = std::move(order);
    Tell(Change::kColumns);
    return true;
}

DWORD ListViewNode::SetExtendedStyle(DWORD mask, DWORD style) {
    const DWORD former = extendedStyle_;
    extendedStyle_ = mask ? (former & ~mask) | (style & mask) : style;
    const DWORD changed = former ^ extendedStyle_;
    if (changed & LVS_EX_CHECKBOXES) {
        const UINT image = extendedStyle_ & LVS_EX_CHECKBOXES ? kUnchecked : 0;
        rows_.ForEach([image](ListRow& row) {
            row.state = (row.state & ~LVIS_STATEIMAGEMASK) | image;
        });
    }
    if (changed) Tell(Change::kStyle);
    return former;
}

int ListViewNode::InsertItem(const LVITEM& item) {
    if (item.iSubItem != 0 || item.iItem < 0) return -1;
    const int row = std::min(item.iItem, Count());
    ListRow inserted;
    if (extendedStyle_ & LVS_EX_CHECKBOXES) inserted.state = kUnchecked;
    rows_.Insert(row, std::move(inserted));
    MoveForInsert(focused_, row);
    MoveForInsert(mark_, row);
    LVITEM own = item;
    own.iItem = row;
    ListRow& stored = rows_.At(row);
    ListCell& cell = CellOf(stored, 0);
    if (own.mask & LVIF_TEXT) cell.text = own.pszText ? own.pszText : "";
    if (own.mask & LVIF_IMAGE) cell.image = own.iImage;
    if (own.mask & LVIF_PARAM) stored.data = own.lParam;
    if (own.mask & LVIF_INDENT) stored.indent = own.iIndent;
    if (View* view = GetView()) view->RowsInserted(row, 1);
    Tell(Change::kPaint);
    if (own.mask & LVIF_STATE) SetItemState(row, own.state, own.stateMask);
    return row;
}

bool ListViewNode::SetItem(const LVITEM& item) {
    if (item.iItem < 0 || item.iItem >= Count() || item.iSubItem < 0) return false;
    ListRow& row = rows_.At(item.iItem);
    ListCell& cell = CellOf(row, item.iSubItem);
    if (item.mask & LVIF_TEXT) cell.text = item.pszText ? item.pszText : "";
    if (item.mask & LVIF_IMAGE) cell.image = item.iImage;
    if (item.mask & LVIF_PARAM) row.data = item.lParam;
    if (item.mask & LVIF_INDENT) row.indent = item.iIndent;
    Tell(Change::kPaint);
    if (item.mask & LVIF_STATE) SetItemState(item.iItem, item.state, item.stateMask);
    return true;
}

bool ListViewNode::DeleteItem(int row) {
    if (row < 0 || row >= Count()) return false;
    if (rows_.At(row).state & LVIS_SELECTED) --selected_;
    rows_.Erase(row);
    MoveForDelete(focused_, row);
    MoveForDelete(mark_, row);
    if (View* view = GetView()) view->RowsRemoved(row, 1);
    Tell(Change::kPaint);
    return true;
}

void ListViewNode::DeleteAllItems() {
    rows_.Clear();
    focused_ = mark_ = wanted_ = -1;
    selected_ = 0;
    Tell(Change::kRows);
}

bool ListViewNode::SetItemState(int row, UINT state, UINT mask) {
    if (row == -1) {
        for (int each = 0; each < Count(); ++each) SetItemState(each, state, mask);
        return true;
    }
    if (row < 0 || row >= Count()) return false;
    const bool selects = (mask & state & LVIS_SELECTED) != 0;
    if (selects && HasStyle(LVS_SINGLESEL) && selected_ > 0) {
        const int other = NextItem(-1, LVNI_SELECTED);
        if (other != row) SetItemState(other, 0, LVIS_SELECTED);
    }
    if ((mask & state & LVIS_FOCUSED) && focused_ != row && focused_ >= 0) {
        SetItemState(focused_, 0, LVIS_FOCUSED);
    }
    ListRow& stored = rows_.At(row);
    const UINT before = stored.state;
    stored.state = (before & ~mask) | (state & mask);
    const UINT after = stored.state;
    if (after == before) return true;
    selected_ += static_cast<int>((after & LVIS_SELECTED) != 0) -
                 static_cast<int>((before & LVIS_SELECTED) != 0);
    if (after & LVIS_FOCUSED) {
        focused_ = row;
    } else if (before & LVIS_FOCUSED) {
        focused_ = -1;
    }
    Tell(Change::kSelection);
    TellParent(LVN_ITEMCHANGED, row, 0, after, before, LVIF_STATE);
    return true;
}

int ListViewNode::NextItem(int start, UINT flags) const {
    const UINT wanted = flags & (LVNI_FOCUSED | LVNI_SELECTED);
    if (wanted == LVNI_FOCUSED) return focused_ > start ? focused_ : -1;
    for (int row = start + 1; row < Count(); ++row) {
        if ((rows_.At(row).state & wanted) == wanted) return row;
    }
    return -1;
}

int ListViewNode::FindItem(int start, UINT flags, const std::string& text, LPARAM data) const {
    const int count = Count();
    const int tries = flags & LVFI_WRAP ? count : count - (start + 1);
    for (int step = 1; step <= tries; ++step) {
        const int row = (start + step) % count;
        const std::string own = CellText(row, 0);
        const bool fits = flags & LVFI_PARAM     ? rows_.At(row).data == data
                          : flags & LVFI_PARTIAL ? StartsWithNoCase(own, text)
                                                 : EqualsNoCase(own, text);
        if (fits) return row;
    }
    return -1;
}

void ListViewNode::EnsureVisible(int row) {
    wanted_ = row;
    Tell(Change::kPosition);
}

LRESULT ListViewNode::TellParent(int code, int row, int column, UINT newState, UINT oldState,
                                 UINT changed) {
    if (!Parent() || Destroyed()) return 0;
    const LPARAM data = row >= 0 && row < Count() ? rows_.At(row).data : 0;
    NMLISTVIEW notice{{this, Id(), code}, row, column, newState, oldState, changed, {}, data};
    return Send(*Parent(), WM_NOTIFY, static_cast<WPARAM>(Id()), reinterpret_cast<LPARAM>(&notice));
}

void ListViewNode::SelectOnly(int row) {
    for (int each = NextItem(-1, LVNI_SELECTED); each >= 0; each = NextItem(each, LVNI_SELECTED)) {
        if (each != row) SetItemState(each, 0, LVIS_SELECTED);
    }
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void ListViewNode::SelectRange(int from, int to) {
    const int first = std::min(from, to);
    const int last = std::max(from, to);
    for (int row = 0; row < Count(); ++row) {
        SetItemState(row, row >= first && row <= last ? LVIS_SELECTED : 0, LVIS_SELECTED);
    }
    SetItemState(to, LVIS_FOCUSED, LVIS_FOCUSED);
}

void ListViewNode::UserClick(int row, bool shift, bool ctrl) {
    const auto keep = shared_from_this();
    if (row < 0 || row >= Count()) {
        SelectRange(1, 0);
    } else if (shift && mark_ >= 0 && !HasStyle(LVS_SINGLESEL)) {
        SelectRange(mark_, row);
    } else if (ctrl && !HasStyle(LVS_SINGLESEL)) {
        const UINT toggled = rows_.At(row).state & LVIS_SELECTED ? 0 : LVIS_SELECTED;
        SetItemState(row, toggled | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        mark_ = row;
    } else {
        SelectOnly(row);
        mark_ = row;
    }
    TellParent(NM_CLICK, row, 0, 0, 0, 0);
}

void ListViewNode::UserSelectRows(const std::vector<int>& rows) {
    if (rows.empty()) {
        UserClick(-1, false, false);
        return;
    }
    UserClick(rows.front(), false, false);
    for (std::size_t index = 1; index < rows.size(); ++index) UserClick(rows[index], false, true);
}

void ListViewNode::UserDoubleClick(int row) {
    const auto keep = shared_from_this();
    UserClick(row, false, false);
    if (!Destroyed()) TellParent(NM_DBLCLK, row, 0, 0, 0, 0);
}

void ListViewNode::UserToggleCheck(int row) {
    if (!(extendedStyle_ & LVS_EX_CHECKBOXES) || row < 0 || row >= Count()) return;
    const bool checked = (rows_.At(row).state & LVIS_STATEIMAGEMASK) == kChecked;
    SetItemState(row, checked ? kUnchecked : kChecked, LVIS_STATEIMAGEMASK);
}

void ListViewNode::UserClickColumn(int column) {
    TellParent(LVN_COLUMNCLICK, -1, column, 0, 0, 0);
}

void ListViewNode::MoveBy(int key) {
    if (Count() == 0) return;
    const int last = Count() - 1;
    int row = std::max(focused_, 0);
    switch (key) {
        case VK_UP:
            row -= 1;
            break;
        case VK_DOWN:
            row += focused_ < 0 ? 0 : 1;
            break;
        case VK_PRIOR:
            row -= kPageRows;
            break;
        case VK_NEXT:
            row += kPageRows;
            break;
        case VK_HOME:
            row = 0;
            break;
        default:
            row = last;
            break;
    }
    row = std::clamp(row, 0, last);
    const Modifiers modifiers = CurrentModifiers();
    if (modifiers.shift && !HasStyle(LVS_SINGLESEL)) {
        if (mark_ < 0) mark_ = std::max(focused_, 0);
        SelectRange(mark_, row);
    } else if (modifiers.ctrl) {
        SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
    } else {
        SelectOnly(row);
        mark_ = row;
    }
    EnsureVisible(row);
}

void ListViewNode::JumpTo(char ch) {
    const int row = FindItem(focused_, LVFI_PARTIAL | LVFI_WRAP, std::string(1, ch), 0);
    if (row < 0) return;
    SelectOnly(row);
    mark_ = row;
    EnsureVisible(row);
}

LRESULT ListViewNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
            return TellParent(NM_SETFOCUS, -1, 0, 0, 0, 0);
        case WM_KILLFOCUS:
            return TellParent(NM_KILLFOCUS, -1, 0, 0, 0, 0);
        case WM_KEYDOWN:
            switch (static_cast<int>(wParam)) {
                case VK_UP:
                case VK_DOWN:
                case VK_PRIOR:
                case VK_NEXT:
                case VK_HOME:
                case VK_END:
                    MoveBy(static_cast<int>(wParam));
                    return 0;
                default:
                    return 0;
            }
        case WM_CHAR:
            if (wParam == ' ') {
                if (extendedStyle_ & LVS_EX_CHECKBOXES) {
                    UserToggleCheck(focused_);
                } else if (focused_ >= 0) {
                    UserClick(focused_, false, CurrentModifiers().ctrl);
                }
            } else if (wParam > ' ') {
                JumpTo(static_cast<char>(wParam));
            }
            return 0;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
