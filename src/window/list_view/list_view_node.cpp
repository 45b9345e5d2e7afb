#include "window/list_view/list_view_node.h"

#include <algorithm>
#include <numeric>
#include <utility>

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

int CopyOut(const std::string& text, char* buffer, int size) {
    return CopyText(text, buffer, static_cast<std::size_t>(std::max(size, 0)));
}

/// Which of what the item's mask names, states aside, is new to the row.
UINT NewIn(const LVITEM& item, const ListRow& row) {
    static const ListCell kNone;
    const ListCell* found = FindCell(row, item.iSubItem);
    const ListCell& cell = found ? *found : kNone;
    UINT changed = 0;
    const auto note = [&](UINT field, bool differs) {
        if ((item.mask & field) && differs) changed |= field;
    };
    note(LVIF_TEXT, cell.text != (item.pszText ? item.pszText : ""));
    note(LVIF_IMAGE, cell.image != item.iImage);
    note(LVIF_PARAM, row.data != item.lParam);
    note(LVIF_INDENT, row.indent != item.iIndent);
    return changed;
}

/// Takes from the item what its mask names, states aside.
void Store(const LVITEM& item, ListRow& row) {
    ListCell& cell = CellOf(row, item.iSubItem);
    if (item.mask & LVIF_TEXT) cell.text = item.pszText ? item.pszText : "";
    if (item.mask & LVIF_IMAGE) cell.image = item.iImage;
    if (item.mask & LVIF_PARAM) row.data = item.lParam;
    if (item.mask & LVIF_INDENT) row.indent = item.iIndent;
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
        CopyOut(CellText(item.iItem, item.iSubItem), item.pszText, item.cchTextMax);
    }
    if (item.mask & LVIF_IMAGE) item.iImage = CellImage(item.iItem, item.iSubItem);
    if (item.mask & LVIF_PARAM) item.lParam = row.data;
    if (item.mask & LVIF_INDENT) item.iIndent = row.indent;
    if (item.mask & LVIF_STATE) item.state = row.state & item.stateMask;
    return true;
}

bool ListViewNode::SetItem(const LVITEM& item) {
    if (!Has(item.iItem) || item.iSubItem < 0) return false;
    const auto keep = shared_from_this();
    const RowId id = order_.At(item.iItem);
    const UINT state = rows_[id].state;
    if (const UINT changed = NewIn(item, rows_[id])) {
        const auto tell = [&](int code) {
            return TellParent(code, item.iItem, item.iSubItem, state, state, changed);
        };
        if (tell(LVN_ITEMCHANGING) || !IsAt(item.iItem, id)) return false;
        Store(item, rows_[id]);
        Tell(Change::kPaint);
        tell(LVN_ITEMCHANGED);
    }
    return !(item.mask & LVIF_STATE) || SetItemState(item.iItem, item.state, item.stateMask);
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
    Store(item, rows_[id]);
    if (HasCheckBoxes()) rows_[id].state = kUnchecked;
    order_.Insert(row, id);
    for (int* each : {&focused_, &mark_, &wanted_, &hotItem_})
        MoveForInsert(*each, row);
    TellInserted(row);
    const auto keep = shared_from_this();
    TellParent(LVN_INSERTITEM, row);
    if ((item.mask & LVIF_STATE) && IsAt(row, id)) SetItemState(row, item.state, item.stateMask);
    return row;
}

bool ListViewNode::DeleteItem(int row) {
    if (!Has(row)) return false;
    const auto keep = shared_from_this();
    const RowId id = order_.At(row);
    TellParent(LVN_DELETEITEM, row);
    if (!IsAt(row, id)) return false;
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

/// From the last row on, so that the numbers of those still to come stay.
void ListViewNode::TellOfTheEnd() {
    const auto keep = shared_from_this();
    if (TellParent(LVN_DELETEALLITEMS, -1)) return;
    for (int row = Count() - 1; row >= 0; --row)
        TellParent(LVN_DELETEITEM, row);
}

void ListViewNode::DeleteAllItems() {
    TellOfTheEnd();
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
    if (!TakeFromOthers(row, mask & state)) return false;
    // Who was told of the others may have taken rows away.
    if (!Has(row)) return false;
    const RowId id = order_.At(row);
    const auto next = [&] { return (rows_[id].state & ~mask) | (state & mask); };
    if (next() == rows_[id].state) return true;
    if (TellParent(LVN_ITEMCHANGING, row, 0, next(), rows_[id].state, LVIF_STATE)) return false;
    if (!IsAt(row, id)) return false;
    StoreState(row, next());
    return true;
}

/// Only one row has the focus, and with a single selection only one is selected. False when another
/// row was not allowed to give it up.
bool ListViewNode::TakeFromOthers(int row, UINT states) {
    const auto taken = [&](int other, UINT state) {
        if (!(states & state) || other < 0 || other == row) return true;
        return SetItemState(other, 0, state);
    };
    const int selected = SingleSelection() ? NextSelected(-1) : -1;
    return taken(selected, LVIS_SELECTED) && taken(focused_, LVIS_FOCUSED);
}

void ListViewNode::StoreState(int row, UINT next) {
    const RowId id = order_.At(row);
    const UINT former = std::exchange(rows_[id].state, next);
    if (next == former) return;
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
}

int ListViewNode::NextSelected(int start) const {
    const auto next = selected_.upper_bound(ByPlace::Place{start});
    return next == selected_.end() ? -1 : order_.PlaceOf(*next);
}

int ListViewNode::SelectedAhead(int start) const {
    const auto behind = selected_.lower_bound(ByPlace::Place{start});
    return behind == selected_.begin() ? -1 : order_.PlaceOf(*std::prev(behind));
}

int ListViewNode::NextItem(int start, UINT flags) const {
    const UINT states = flags & (LVNI_FOCUSED | LVNI_SELECTED | LVNI_CUT | LVNI_DROPHILITED);
    const bool fromRow = start >= 0;
    const bool up = fromRow && (flags & LVNI_ABOVE);
    // In report form nothing lies beside a row.
    if (fromRow && (flags & (LVNI_TOLEFT | LVNI_TORIGHT))) return -1;
    start = std::clamp(start, -1, Count());
    const auto fits = [&](int row) { return (Row(row).state & states) == states; };
    if (states & LVNI_FOCUSED) {
        const bool beyond = up ? focused_ < start : focused_ > start;
        return focused_ >= 0 && beyond && fits(focused_) ? focused_ : -1;
    }
    const auto next = [&](int row) {
        if (states & LVNI_SELECTED) return up ? SelectedAhead(row) : NextSelected(row);
        row += up ? -1 : 1;
        return Has(row) ? row : -1;
    };
    int row = next(start);
    while (row >= 0 && !fits(row))
        row = next(row);
    return row;
}

bool ListViewNode::Fits(int row, const LVFINDINFO& what) const {
    const ListRow& candidate = Row(row);
    if (what.flags & LVFI_PARAM) return candidate.data == what.lParam;
    const ListCell* cell = FindCell(candidate, 0);
    const std::string_view text = cell ? std::string_view(cell->text) : std::string_view();
    const bool partial = (what.flags & (LVFI_PARTIAL | LVFI_SUBSTRING)) != 0;
    return partial ? StartsWithNoCase(text, what.psz) : EqualsNoCase(text, what.psz);
}

int ListViewNode::FindItem(int start, const LVFINDINFO& what) const {
    const int count = Count();
    const bool byData = (what.flags & LVFI_PARAM) != 0;
    constexpr UINT kByText = LVFI_STRING | LVFI_PARTIAL | LVFI_SUBSTRING | LVFI_WRAP;
    const bool byText = (what.flags & kByText) != 0 && what.psz;
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
    if (column.mask & LVCF_TEXT) CopyOut(stored.text, column.pszText, column.cchTextMax);
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
    if (index < 0 || index >= static_cast<int>(columns_.size())) return false;
    if (width == LVSCW_AUTOSIZE) width = WidthOfCells(index);
    if (width == LVSCW_AUTOSIZE_USEHEADER) width = WidthOfHeading(index);
    if (width < 0) return false;
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
            return CopyOut(CellText(row, item->iSubItem), item->pszText, item->cchTextMax);
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
            return SetColumnWidth(
                index, static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(lParam))));
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
