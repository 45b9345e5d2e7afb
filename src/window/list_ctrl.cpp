#include "window/list_ctrl.h"

#include <vector>

#include "window/desktop.h"
#include "window/window_system.h"

namespace {

constexpr int kStateImageShift = 12;

kv::ListColumn ColumnFrom(kv::ListColumn column, const LVCOLUMN& record) {
    if (record.mask & LVCF_TEXT) column.text = record.pszText ? record.pszText : "";
    if (record.mask & LVCF_WIDTH) column.width = record.cx;
    if (record.mask & LVCF_FMT) column.format = record.fmt;
    if (record.mask & LVCF_SUBITEM) column.subItem = record.iSubItem;
    return column;
}

/// A position is the row's index and one, so that the null position is none.
POSITION PositionOf(int row) {
    return reinterpret_cast<POSITION>(static_cast<std::intptr_t>(row + 1));
}
int RowOf(POSITION position) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(position)) - 1;
}

}  // namespace

kv::ListViewNode* CListCtrl::List() const { return dynamic_cast<kv::ListViewNode*>(m_hWnd); }

int CListCtrl::InsertColumn(int column, const LVCOLUMN* record) {
    return List() && record ? List()->InsertColumn(column, ColumnFrom({}, *record)) : -1;
}

int CListCtrl::InsertColumn(int column, const char* heading, int format, int width, int subItem) {
    LVCOLUMN record;
    record.mask = LVCF_TEXT | LVCF_FMT;
    record.pszText = heading;
    record.fmt = format;
    if (width != -1) {
        record.mask |= LVCF_WIDTH;
        record.cx = width;
    }
    if (subItem != -1) {
        record.mask |= LVCF_SUBITEM;
        record.iSubItem = subItem;
    }
    return InsertColumn(column, &record);
}

BOOL CListCtrl::GetColumn(int column, LVCOLUMN* record) const {
    if (!record || column < 0 || column >= GetColumnCount()) return FALSE;
    const kv::ListColumn& stored = List()->Columns()[static_cast<std::size_t>(column)];
    record->pszText = stored.text.c_str();
    record->cx = stored.width;
    record->fmt = stored.format;
    record->iSubItem = stored.subItem;
    return TRUE;
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMN* record) {
    if (!record || column < 0 || column >= GetColumnCount()) return FALSE;
    kv::ListColumn present = List()->Columns()[static_cast<std::size_t>(column)];
    return List()->SetColumn(column, ColumnFrom(std::move(present), *record));
}

BOOL CListCtrl::DeleteColumn(int column) { return List() && List()->DeleteColumn(column); }

int CListCtrl::GetColumnWidth(int column) const {
    if (column < 0 || column >= GetColumnCount()) return 0;
    return List()->Columns()[static_cast<std::size_t>(column)].width;
}

BOOL CListCtrl::SetColumnWidth(int column, int width) {
    if (column < 0 || column >= GetColumnCount()) return FALSE;
    List()->SetColumnWidth(column, width);
    return TRUE;
}

BOOL CListCtrl::GetColumnOrderArray(int* order, int count) const {
    if (!List() || !order) return FALSE;
    const auto& stored = List()->ColumnOrder();
    if (count >= 0 && count != static_cast<int>(stored.size())) return FALSE;
    std::copy(stored.begin(), stored.end(), order);
    return TRUE;
}

BOOL CListCtrl::SetColumnOrderArray(int count, const int* order) {
    if (!List() || !order || count < 0) return FALSE;
    return List()->SetColumnOrder(std::vector<int>(order, order + count));
}

int CListCtrl::GetColumnCount() const {
    return List() ? static_cast<int>(List()->Columns().size()) : 0;
}

int CListCtrl::GetItemCount() const { return List() ? List()->Count() : 0; }

int CListCtrl::InsertItem(const LVITEM* item) {
    return List() && item ? List()->InsertItem(*item) : -1;
}

int CListCtrl::InsertItem(int row, const char* text, int image) {
    LVITEM item;
    item.mask = LVIF_TEXT | (image == -1 ? 0 : LVIF_IMAGE);
    item.iItem = row;
    item.pszText = text;
    item.iImage = image;
    return InsertItem(&item);
}

BOOL CListCtrl::GetItem(LVITEM* item) const {
    if (!item || item->iItem < 0 || item->iItem >= GetItemCount()) return FALSE;
    const kv::ListRow& row = List()->Row(item->iItem);
    const auto column = static_cast<std::size_t>(item->iSubItem);
    const kv::ListCell* cell = column < row.cells.size() ? &row.cells[column] : nullptr;
    item->pszText = cell ? cell->text.c_str() : "";
    item->iImage = cell ? cell->image : -1;
    item->lParam = row.data;
    item->iIndent = row.indent;
    item->state = row.state & item->stateMask;
    return TRUE;
}

BOOL CListCtrl::SetItem(const LVITEM* item) { return List() && item && List()->SetItem(*item); }

BOOL CListCtrl::SetItemText(int row, int column, const char* text) {
    LVITEM item;
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = text;
    return SetItem(&item);
}

std::string CListCtrl::GetItemText(int row, int column) const {
    return List() ? List()->CellText(row, column) : std::string();
}

LPARAM CListCtrl::GetItemData(int row) const {
    return row >= 0 && row < GetItemCount() ? List()->Row(row).data : 0;
}

BOOL CListCtrl::SetItemData(int row, LPARAM data) {
    LVITEM item;
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = data;
    return SetItem(&item);
}

BOOL CListCtrl::SetItemImage(int row, int column, int image) {
    LVITEM item;
    item.mask = LVIF_IMAGE;
    item.iItem = row;
    item.iSubItem = column;
    item.iImage = image;
    return SetItem(&item);
}

BOOL CListCtrl::DeleteItem(int row) { return List() && List()->DeleteItem(row); }

BOOL CListCtrl::DeleteAllItems() {
    if (!List()) return FALSE;
    List()->DeleteAllItems();
    return TRUE;
}

int CListCtrl::FindItem(UINT flags, const char* text, LPARAM data, int start) const {
    return List() ? List()->FindItem(start, flags, text ? text : "", data) : -1;
}

BOOL CListCtrl::EnsureVisible(int row, BOOL) {
    if (row < 0 || row >= GetItemCount()) return FALSE;
    List()->EnsureVisible(row);
    return TRUE;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const {
    return row >= 0 && row < GetItemCount() ? List()->Row(row).state & mask : 0;
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    return List() && List()->SetItemState(row, state, mask);
}

int CListCtrl::GetCheck(int row) const {
    return static_cast<int>(GetItemState(row, LVIS_STATEIMAGEMASK) >> kStateImageShift) - 1;
}

BOOL CListCtrl::SetCheck(int row, BOOL check) {
    return SetItemState(row, (check ? 2u : 1u) << kStateImageShift, LVIS_STATEIMAGEMASK);
}

UINT CListCtrl::GetSelectedCount() const {
    return List() ? static_cast<UINT>(List()->SelectedCount()) : 0;
}

int CListCtrl::GetNextItem(int start, UINT flags) const {
    return List() ? List()->NextItem(start, flags) : -1;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const {
    const int row = RowOf(position);
    position = PositionOf(GetNextItem(row, LVNI_SELECTED));
    return row;
}

int CListCtrl::GetSelectionMark() const { return List() ? List()->SelectionMark() : -1; }

int CListCtrl::SetSelectionMark(int row) {
    const int former = GetSelectionMark();
    if (List()) List()->SetSelectionMark(row);
    return former;
}

DWORD CListCtrl::GetExtendedStyle() const { return List() ? List()->ExtendedStyle() : 0; }

DWORD CListCtrl::SetExtendedStyle(DWORD style) {
    return List() ? List()->SetExtendedStyle(0, style) : 0;
}

int CListCtrl::GetStringWidth(const char* text) const {
    auto& desktop = kv::WindowSystem::Get().GetDesktop();
    return desktop.TextExtent(text ? text : "", desktop.DefaultFont()).cx;
}
