#include "window/list_view/list_view_node.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "base/text.h"
#include "window/window_system.h"

namespace kv {

namespace {

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

ListCell& CellOf(ListRow& row, int column) {
    const auto wanted = static_cast<std::size_t>(column);
    if (row.cells.size() <= wanted) row.cells.resize(wanted + 1);
    return row.cells[wanted];
}

const ListCell* FindCell(const ListRow& row, int column) {
    const auto index = static_cast<std::size_t>(column);
    return column >= 0 && index < row.cells.size() ? &row.cells[index] : nullptr;
}

ListColumn ColumnFrom(ListColumn column, const LVCOLUMN& record) {
    if (record.mask & LVCF_TEXT) column.text = record.pszText ? record.pszText : "";
    if (record.mask & LVCF_WIDTH) column.width = record.cx;
    if (record.mask & LVCF_FMT) column.format = record.fmt;
    if (record.mask & LVCF_SUBITEM) column.subItem = record.iSubItem;
    if (record.mask & LVCF_IMAGE) column.image = record.iImage;
    return column;
}

}  // namespace

int CopyCellText(const std::string& text, char* buffer, int size) {
    if (!buffer || size <= 0) return 0;
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

// Cells.

std::string ListViewNode::CellText(int row, int column) const {
    const ListCell* cell = Has(row) ? FindCell(Row(row), column) : nullptr;
    return cell ? cell->text : std::string();
}

int ListViewNode::CellImage(int row, int column) const {
    const ListCell* cell = Has(row) ? FindCell(Row(row), column) : nullptr;
    return cell ? cell->image : -1;
}

bool ListViewNode::Checked(int row) const {
    return Has(row) && (Row(row).state & LVIS_STATEIMAGEMASK) == kChecked;
}

bool ListViewNode::GetItem(LVITEM& item) const {
    if (!Has(item.iItem) || item.iSubItem < 0) return false;
    const ListRow& row = Row(item.iItem);
    if (item.mask & LVIF_TEXT) {
        CopyCellText(CellText(item.iItem, item.iSubItem), item.pszText, item.cchTextMax);
    }
    if (item.mask & LVIF_IMAGE) item.iImage = CellImage(item.iItem, item.iSubItem);
    if (item.mask & LVIF_PARAM) item.lParam = row.data;
    if (item.mask & LVIF_INDENT) item.iIndent = row.indent;
    if (item.mask & LVIF_STATE) item.state = row.state & item.stateMask;
    return true;
}

/// Takes from the item what its mask names, states aside. Returns which of it is new.
UINT ListViewNode::Store(ListRow& row, const LVITEM& item) {
    ListCell& cell = CellOf(row, item.iSubItem);
    UINT changed = 0;
    const auto put = [&](UINT field, auto& present, const auto& value) {
        if (!(item.mask & field) || present == value) return;
        present = value;
        changed |= field;
    };
    put(LVIF_TEXT, cell.text, std::string(item.pszText ? item.pszText : ""));
    put(LVIF_IMAGE, cell.image, item.iImage);
    put(LVIF_PARAM, row.data, item.lParam);
    put(LVIF_INDENT, row.indent, item.iIndent);
    return changed;
}

bool ListViewNode::SetItem(const LVITEM& item) {
    if (!Has(item.iItem) || item.iSubItem < 0) return false;
    ListRow& row = RowAt(item.iItem);
    const UINT changed = Store(row, item);
    if (changed) {
        Tell(Change::kPaint);
        const UINT state = row.state;
        TellParent(LVN_ITEMCHANGED, item.iItem, item.iSubItem, state, state, changed);
    }
    if (item.mask & LVIF_STATE) SetItemState(item.iItem, item.state, item.stateMask);
    return true;
}

// Rows.

void ListViewNode::TellInserted(int row) {
    WindowSystem::Get().NoteChange();
    if (View* view = ViewForRows()) view->RowsInserted(row, 1);
}

void ListViewNode::TellRemoved(int row) {
    WindowSystem::Get().NoteChange();
    if (View* view = ViewForRows()) view->RowsRemoved(row, 1);
}

RowId ListViewNode::NewRow() {
    if (!free_.empty()) {
        const RowId id = free_.back();
        free_.pop_back();
        return id;
    }
    rows_.emplace_back();
    return static_cast<RowId>(rows_.size() - 1);
}

int ListViewNode::PlaceFor(const LVITEM& item) const {
    const bool descending = HasStyle(LVS_SORTDESCENDING);
    if (!descending && !HasStyle(LVS_SORTASCENDING)) return std::min(item.iItem, Count());
    const std::string text = item.mask & LVIF_TEXT && item.pszText ? item.pszText : "";
    return order_.PartitionPoint([&](RowId id) {
        const ListCell* cell = FindCell(rows_[id], 0);
        const int compared = CompareNoCase(cell ? cell->text : std::string(), text);
        return descending ? compared >= 0 : compared <= 0;
    });
}

int ListViewNode::InsertItem(const LVITEM& item) {
    if (item.iSubItem != 0 || item.iItem < 0) return -1;
    const int row = PlaceFor(item);
    const RowId id = NewRow();
    Store(rows_[id], item);
    if (HasCheckBoxes()) rows_[id].state = kUnchecked;
    order_.Insert(row, id);
    for (int* each : {&focused_, &mark_, &wanted_, &hotItem_})
        MoveForInsert(*each, row);
    TellInserted(row);
    if (item.mask & LVIF_STATE) SetItemState(row, item.state, item.stateMask);
    return row;
}

bool ListViewNode::DeleteItem(int row) {
    if (!Has(row)) return false;
    const auto keep = shared_from_this();
    const RowId id = order_.At(row);
    const bool hadFocus = focused_ == row;
    selected_.erase(id);
    order_.Erase(row);
    rows_[id] = {};
    free_.push_back(id);
    for (int* each : {&focused_, &mark_, &wanted_, &hotItem_})
        MoveForDelete(*each, row);
    top_ = std::min(top_, std::max(0, Count() - 1));
    TellRemoved(row);
    if (hadFocus && Count() > 0) {
        SetItemState(std::min(row, Count() - 1), LVIS_FOCUSED, LVIS_FOCUSED);
    }
    return true;
}

void ListViewNode::DeleteAllItems() {
    selected_.clear();
    order_.Clear();
    rows_.clear();
    free_.clear();
    focused_ = mark_ = wanted_ = hotItem_ = -1;
    top_ = 0;
    search_.Stop();
    Tell(Change::kRows);
}

// States.

DWORD ListViewNode::SetExtendedStyle(DWORD mask, DWORD style) {
    const DWORD former = extendedStyle_;
    extendedStyle_ = mask ? (former & ~mask) | (style & mask) : style;
    const DWORD changed = former ^ extendedStyle_;
    if (changed & LVS_EX_CHECKBOXES) {
        const UINT image = HasCheckBoxes() ? kUnchecked : 0;
        order_.ForEach(
            [&](RowId id) { rows_[id].state = (rows_[id].state & ~LVIS_STATEIMAGEMASK) | image; });
    }
    if (changed) Tell(Change::kStyle);
    return former;
}

bool ListViewNode::SetItemState(int row, UINT state, UINT mask) {
    const auto keep = shared_from_this();
    if (row == -1) {
        for (int each = 0; each < Count(); ++each)
            SetItemState(each, state, mask);
        return true;
    }
    if (!Has(row)) return false;
    const bool selects = (mask & state & LVIS_SELECTED) != 0;
    if (selects && SingleSelection()) {
        const int other = NextSelected(-1);
        if (other >= 0 && other != row) SetItemState(other, 0, LVIS_SELECTED);
    }
    if ((mask & state & LVIS_FOCUSED) && focused_ >= 0 && focused_ != row) {
        SetItemState(focused_, 0, LVIS_FOCUSED);
    }
    // Who was told of the others may have taken rows away.
    if (!Has(row)) return false;
    const RowId id = order_.At(row);
    const UINT former = rows_[id].state;
    const UINT next = (former & ~mask) | (state & mask);
    if (next == former) return true;
    rows_[id].state = next;
    if (next & LVIS_SELECTED) {
        selected_.insert(selected_.end(), id);
    } else {
        selected_.erase(id);
    }
    if (next & LVIS_FOCUSED) {
        focused_ = row;
    } else if (former & LVIS_FOCUSED) {
        focused_ = -1;
    }
    Tell(Change::kSelection);
    TellParent(LVN_ITEMCHANGED, row, 0, next, former, LVIF_STATE);
    return true;
}

int ListViewNode::NextSelected(int start) const {
    const auto next = selected_.upper_bound(ByPlace::Place{start});
    return next == selected_.end() ? -1 : order_.PlaceOf(*next);
}

int ListViewNode::NextItem(int start, UINT flags) const {
    start = std::max(start, -1);
    switch (flags & (LVNI_FOCUSED | LVNI_SELECTED)) {
        case LVNI_FOCUSED:
            return focused_ > start ? focused_ : -1;
        case LVNI_SELECTED:
            return NextSelected(start);
        case LVNI_FOCUSED | LVNI_SELECTED:
            return focused_ > start && Selected(focused_) ? focused_ : -1;
        default:
            return start + 1 < Count() ? start + 1 : -1;
    }
}

bool ListViewNode::Fits(int row, const LVFINDINFO& what) const {
    const ListRow& candidate = Row(row);
    if (what.flags & LVFI_PARAM) return candidate.data == what.lParam;
    const ListCell* cell = FindCell(candidate, 0);
    const std::string_view text = cell ? std::string_view(cell->text) : std::string_view();
    return what.flags & LVFI_PARTIAL ? StartsWithNoCase(text, what.psz)
                                     : EqualsNoCase(text, what.psz);
}

int ListViewNode::FindItem(int start, const LVFINDINFO& what) const {
    const int count = Count();
    const bool byData = (what.flags & LVFI_PARAM) != 0;
    const bool byText = (what.flags & (LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP)) != 0 && what.psz;
    if (!byData && !byText) return -1;
    start = std::clamp(start, -1, count - 1);
    for (int row = start + 1; row < count; ++row) {
        if (Fits(row, what)) return row;
    }
    if (byData || !(what.flags & LVFI_WRAP)) return -1;
    for (int row = 0; row <= start; ++row) {
        if (Fits(row, what)) return row;
    }
    return -1;
}

// Columns.

int ListViewNode::InsertColumn(int index, ListColumn column) {
    if (index < 0) return -1;
    const int place = std::min(index, static_cast<int>(columns_.size()));
    columns_.insert(columns_.begin() + place, std::move(column));
    for (int& each : columnOrder_)
        MoveForInsert(each, place);
    columnOrder_.insert(columnOrder_.begin() + place, place);
    order_.ForEach([&](RowId id) {
        auto& cells = rows_[id].cells;
        if (place < static_cast<int>(cells.size())) cells.insert(cells.begin() + place, ListCell());
    });
    Tell(Change::kColumns);
    return place;
}

int ListViewNode::InsertColumnRecord(int index, const LVCOLUMN& record) {
    const int place = InsertColumn(index, ColumnFrom({}, record));
    const bool ordered = (record.mask & LVCF_ORDER) && record.iOrder >= 0 &&
                         record.iOrder < static_cast<int>(columnOrder_.size());
    if (place < 0 || !ordered) return place;
    std::vector<int> order = columnOrder_;
    std::erase(order, place);
    order.insert(order.begin() + record.iOrder, place);
    SetColumnOrder(std::move(order));
    return place;
}

bool ListViewNode::SetColumn(int index, ListColumn column) {
    if (index < 0 || index >= static_cast<int>(columns_.size())) return false;
    columns_[static_cast<std::size_t>(index)] = std::move(column);
    Tell(Change::kColumns);
    return true;
}

bool ListViewNode::GetColumn(int index, LVCOLUMN& column) const {
    if (index < 0 || index >= static_cast<int>(columns_.size())) return false;
    const ListColumn& stored = columns_[static_cast<std::size_t>(index)];
    if (column.mask & LVCF_TEXT) CopyCellText(stored.text, column.pszText, column.cchTextMax);
    if (column.mask & LVCF_WIDTH) column.cx = stored.width;
    if (column.mask & LVCF_FMT) column.fmt = stored.format;
    if (column.mask & LVCF_SUBITEM) column.iSubItem = stored.subItem;
    if (column.mask & LVCF_IMAGE) column.iImage = stored.image;
    if (column.mask & LVCF_ORDER) {
        const auto at = std::find(columnOrder_.begin(), columnOrder_.end(), index);
        column.iOrder = static_cast<int>(at - columnOrder_.begin());
    }
    return true;
}

bool ListViewNode::DeleteColumn(int index) {
    if (index < 0 || index >= static_cast<int>(columns_.size())) return false;
    columns_.erase(columns_.begin() + index);
    std::erase(columnOrder_, index);
    for (int& each : columnOrder_)
        MoveForDelete(each, index);
    order_.ForEach([&](RowId id) {
        auto& cells = rows_[id].cells;
        if (index < static_cast<int>(cells.size())) cells.erase(cells.begin() + index);
    });
    Tell(Change::kColumns);
    return true;
}

bool ListViewNode::SetColumnWidth(int index, int width) {
    if (index < 0 || index >= static_cast<int>(columns_.size()) || width < 0) return false;
    columns_[static_cast<std::size_t>(index)].width = width;
    Tell(Change::kColumns);
    return true;
}

bool ListViewNode::SetColumnOrder(std::vector<int> order) {
    std::vector<int> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    std::vector<int> all(columns_.size());
    std::iota(all.begin(), all.end(), 0);
    if (sorted != all) return false;
    columnOrder_ = std::move(order);
    Tell(Change::kColumns);
    return true;
}

bool ListViewNode::GetColumnOrder(int count, int* order) const {
    if (!order || count != static_cast<int>(columnOrder_.size())) return false;
    std::copy(columnOrder_.begin(), columnOrder_.end(), order);
    return true;
}

// Messages.

LRESULT ListViewNode::ProcessRows(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int row = static_cast<int>(wParam);
    auto* item = reinterpret_cast<LVITEM*>(lParam);
    switch (message) {
        case LVM_GETITEMCOUNT:
            return Count();
        case LVM_GETITEM:
            return item && GetItem(*item);
        case LVM_SETITEM:
            return item && SetItem(*item);
        case LVM_INSERTITEM:
            return item ? InsertItem(*item) : -1;
        case LVM_DELETEITEM:
            return DeleteItem(row);
        case LVM_DELETEALLITEMS:
            DeleteAllItems();
            return TRUE;
        case LVM_GETITEMTEXT:
            if (!item) return 0;
            return CopyCellText(CellText(row, item->iSubItem), item->pszText, item->cchTextMax);
        case LVM_SETITEMTEXT: {
            if (!item) return FALSE;
            LVITEM text = *item;
            text.mask = LVIF_TEXT;
            text.iItem = row;
            return SetItem(text);
        }
        case LVM_SETITEMCOUNT:
            if (row > 0) rows_.reserve(static_cast<std::size_t>(row));
            return TRUE;
        case LVM_GETNEXTITEM:
            return NextItem(row, static_cast<UINT>(LOWORD(static_cast<std::uintptr_t>(lParam))));
        case LVM_FINDITEM:
            return lParam ? FindItem(row, *reinterpret_cast<const LVFINDINFO*>(lParam)) : -1;
        default:
            handled = false;
            return 0;
    }
}

LRESULT ListViewNode::ProcessStates(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int row = static_cast<int>(wParam);
    switch (message) {
        case LVM_SETITEMSTATE: {
            const auto* item = reinterpret_cast<const LVITEM*>(lParam);
            return item && SetItemState(row, item->state, item->stateMask);
        }
        case LVM_GETITEMSTATE:
            return Has(row) ? static_cast<LRESULT>(Row(row).state & static_cast<UINT>(lParam)) : 0;
        case LVM_GETSELECTEDCOUNT:
            return SelectedCount();
        case LVM_GETSELECTIONMARK:
            return mark_;
        case LVM_SETSELECTIONMARK: {
            const int former = mark_;
            const int next = static_cast<int>(lParam);
            if (next == -1 || Has(next)) mark_ = next;
            return former;
        }
        case LVM_SETEXTENDEDLISTVIEWSTYLE:
            return SetExtendedStyle(static_cast<DWORD>(wParam), static_cast<DWORD>(lParam));
        case LVM_GETEXTENDEDLISTVIEWSTYLE:
            return extendedStyle_;
        default:
            handled = false;
            return 0;
    }
}

LRESULT ListViewNode::ProcessColumns(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const int index = static_cast<int>(wParam);
    auto* record = reinterpret_cast<LVCOLUMN*>(lParam);
    const bool present = index >= 0 && index < static_cast<int>(columns_.size());
    switch (message) {
        case LVM_GETCOLUMN:
            return record && GetColumn(index, *record);
        case LVM_SETCOLUMN:
            if (!record || !present) return FALSE;
            return SetColumn(index, ColumnFrom(columns_[static_cast<std::size_t>(index)], *record));
        case LVM_INSERTCOLUMN:
            return record ? InsertColumnRecord(index, *record) : -1;
        case LVM_DELETECOLUMN:
            return DeleteColumn(index);
        case LVM_GETCOLUMNWIDTH:
            return present ? columns_[static_cast<std::size_t>(index)].width : 0;
        case LVM_SETCOLUMNWIDTH:
            return SetColumnWidth(index, static_cast<int>(lParam));
        case LVM_SETCOLUMNORDERARRAY: {
            const auto* order = reinterpret_cast<const int*>(lParam);
            return order && index >= 0 && SetColumnOrder(std::vector<int>(order, order + index));
        }
        case LVM_GETCOLUMNORDERARRAY:
            return GetColumnOrder(index, reinterpret_cast<int*>(lParam));
        case LVM_GETHEADER:
            return reinterpret_cast<LRESULT>(Header());
        default:
            handled = false;
            return 0;
    }
}

LRESULT ListViewNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    using Part = LRESULT (ListViewNode::*)(UINT, WPARAM, LPARAM, bool&);
    constexpr Part kParts[] = {&ListViewNode::ProcessRows,    &ListViewNode::ProcessStates,
                               &ListViewNode::ProcessColumns, &ListViewNode::ProcessPlaces,
                               &ListViewNode::ProcessLook,    &ListViewNode::ProcessUser};
    for (const Part part : kParts) {
        bool handled = true;
        const LRESULT result = (this->*part)(message, wParam, lParam, handled);
        if (handled) return result;
    }
    return Node::Process(message, wParam, lParam);
}

}  // namespace kv
