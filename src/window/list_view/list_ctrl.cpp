#include "window/list_view/list_ctrl.h"

#include "window/list_view/list_view_node.h"
#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::ListViewNode, CListCtrl> kRegistered{kv::NodeClass::kListView};

}  // namespace

namespace {

constexpr int kStateImageShift = 12;

WPARAM AsIndex(int index) {
    return static_cast<WPARAM>(index);
}

LPARAM AsRecord(const void* record) {
    return reinterpret_cast<LPARAM>(record);
}

/// Records have one field for texts that go in and texts that come out; this one goes in.
char* TextIn(const char* text) {
    return const_cast<char*>(text);
}

/// A position is the row's index and one, so that the null position is none.
POSITION PositionOf(int row) {
    return reinterpret_cast<POSITION>(static_cast<std::intptr_t>(row + 1));
}
int RowOf(POSITION position) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(position)) - 1;
}

CSize SizeOf(LRESULT answer) {
    const auto size = static_cast<std::uintptr_t>(answer);
    return {LOWORD(size), HIWORD(size)};
}

}  // namespace

int CHeaderCtrl::GetItemCount() const {
    return m_hWnd ? static_cast<int>(SendMessage(HDM_GETITEMCOUNT)) : -1;
}

BOOL CListCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CreateNode(kv::NodeClass::kListView, "", style, rect, parent, static_cast<int>(id));
}

int CListCtrl::Ask(UINT message, WPARAM wParam, LPARAM lParam) const {
    return static_cast<int>(SendMessage(message, wParam, lParam));
}

// Columns.

int CListCtrl::InsertColumn(int column, const LVCOLUMN* record) {
    return m_hWnd ? Ask(LVM_INSERTCOLUMN, AsIndex(column), AsRecord(record)) : -1;
}

int CListCtrl::InsertColumn(int column, const char* heading, int format, int width, int subItem) {
    LVCOLUMN record;
    record.mask = LVCF_TEXT | LVCF_FMT;
    record.pszText = TextIn(heading);
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
    return Ask(LVM_GETCOLUMN, AsIndex(column), AsRecord(record));
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMN* record) {
    return Ask(LVM_SETCOLUMN, AsIndex(column), AsRecord(record));
}

BOOL CListCtrl::DeleteColumn(int column) {
    return Ask(LVM_DELETECOLUMN, AsIndex(column));
}

int CListCtrl::GetColumnWidth(int column) const {
    return Ask(LVM_GETCOLUMNWIDTH, AsIndex(column));
}

BOOL CListCtrl::SetColumnWidth(int column, int width) {
    return Ask(LVM_SETCOLUMNWIDTH, AsIndex(column), width);
}

BOOL CListCtrl::GetColumnOrderArray(int* order, int count) const {
    const int all = count == -1 ? GetColumnCount() : count;
    return Ask(LVM_GETCOLUMNORDERARRAY, AsIndex(all), AsRecord(order));
}

BOOL CListCtrl::SetColumnOrderArray(int count, const int* order) {
    return Ask(LVM_SETCOLUMNORDERARRAY, AsIndex(count), AsRecord(order));
}

int CListCtrl::GetColumnCount() const {
    LVCOLUMN none;
    int count = 0;
    while (GetColumn(count, &none))
        ++count;
    return count;
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const {
    const auto header = reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
    if (!header) return nullptr;
    if (auto* attached = dynamic_cast<CHeaderCtrl*>(header->Handle())) return attached;
    m_header.Detach();
    return m_header.Attach(header) ? &m_header : nullptr;
}

// Rows.

int CListCtrl::GetItemCount() const {
    return Ask(LVM_GETITEMCOUNT);
}

BOOL CListCtrl::SetItemCountEx(int count, DWORD flags) {
    return Ask(LVM_SETITEMCOUNT, AsIndex(count), static_cast<LPARAM>(flags));
}

int CListCtrl::InsertItem(const LVITEM* item) {
    return m_hWnd ? Ask(LVM_INSERTITEM, 0, AsRecord(item)) : -1;
}

int CListCtrl::InsertItem(int row, const char* text, int image) {
    LVITEM item;
    item.mask = LVIF_TEXT | (image == -1 ? 0 : LVIF_IMAGE);
    item.iItem = row;
    item.pszText = TextIn(text);
    item.iImage = image;
    return InsertItem(&item);
}

BOOL CListCtrl::GetItem(LVITEM* item) const {
    return Ask(LVM_GETITEM, 0, AsRecord(item));
}

BOOL CListCtrl::SetItem(const LVITEM* item) {
    return Ask(LVM_SETITEM, 0, AsRecord(item));
}

BOOL CListCtrl::SetItemText(int row, int column, const char* text) {
    LVITEM item;
    item.iSubItem = column;
    item.pszText = TextIn(text);
    return Ask(LVM_SETITEMTEXT, AsIndex(row), AsRecord(&item));
}

int CListCtrl::GetItemText(int row, int column, char* buffer, int size) const {
    LVITEM item;
    item.iSubItem = column;
    item.pszText = buffer;
    item.cchTextMax = size;
    return Ask(LVM_GETITEMTEXT, AsIndex(row), AsRecord(&item));
}

std::string CListCtrl::GetItemText(int row, int column) const {
    // Nobody says how long the text is: a buffer that it fills to the end may have cut it.
    for (int size = 256;; size *= 2) {
        std::string text(static_cast<std::size_t>(size), '\0');
        const int length = GetItemText(row, column, text.data(), size);
        if (length >= size - 1) continue;
        text.resize(static_cast<std::size_t>(length));
        return text;
    }
}

LPARAM CListCtrl::GetItemData(int row) const {
    LVITEM item;
    item.mask = LVIF_PARAM;
    item.iItem = row;
    GetItem(&item);
    return item.lParam;
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

BOOL CListCtrl::DeleteItem(int row) {
    return Ask(LVM_DELETEITEM, AsIndex(row));
}

BOOL CListCtrl::DeleteAllItems() {
    return Ask(LVM_DELETEALLITEMS);
}

int CListCtrl::FindItem(LVFINDINFO* what, int start) const {
    return m_hWnd ? Ask(LVM_FINDITEM, AsIndex(start), AsRecord(what)) : -1;
}

// States.

UINT CListCtrl::GetItemState(int row, UINT mask) const {
    return static_cast<UINT>(Ask(LVM_GETITEMSTATE, AsIndex(row), static_cast<LPARAM>(mask)));
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    LVITEM item;
    item.state = state;
    item.stateMask = mask;
    return SetItemState(row, &item);
}

BOOL CListCtrl::SetItemState(int row, LVITEM* item) {
    return Ask(LVM_SETITEMSTATE, AsIndex(row), AsRecord(item));
}

int CListCtrl::GetCheck(int row) const {
    return static_cast<int>(GetItemState(row, LVIS_STATEIMAGEMASK) >> kStateImageShift) - 1;
}

BOOL CListCtrl::SetCheck(int row, BOOL check) {
    return SetItemState(row, (check ? 2u : 1u) << kStateImageShift, LVIS_STATEIMAGEMASK);
}

UINT CListCtrl::GetSelectedCount() const {
    return static_cast<UINT>(Ask(LVM_GETSELECTEDCOUNT));
}

int CListCtrl::GetNextItem(int start, UINT flags) const {
    return m_hWnd ? Ask(LVM_GETNEXTITEM, AsIndex(start), MAKELPARAM(static_cast<int>(flags), 0))
                  : -1;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const {
    const int row = RowOf(position);
    if (position) position = PositionOf(GetNextItem(row, LVNI_SELECTED));
    return row;
}

int CListCtrl::GetSelectionMark() const {
    return m_hWnd ? Ask(LVM_GETSELECTIONMARK) : -1;
}

int CListCtrl::SetSelectionMark(int row) {
    return m_hWnd ? Ask(LVM_SETSELECTIONMARK, 0, row) : -1;
}

DWORD CListCtrl::GetExtendedStyle() const {
    return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
}

DWORD CListCtrl::SetExtendedStyle(DWORD style) {
    return static_cast<DWORD>(
        SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
}

// Places.

BOOL CListCtrl::EnsureVisible(int row, BOOL partialOk) {
    return Ask(LVM_ENSUREVISIBLE, AsIndex(row), partialOk);
}

int CListCtrl::GetTopIndex() const {
    return Ask(LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const {
    return Ask(LVM_GETCOUNTPERPAGE);
}

int CListCtrl::HitTest(LVHITTESTINFO* info) const {
    return m_hWnd ? Ask(LVM_HITTEST, 0, AsRecord(info)) : -1;
}

int CListCtrl::HitTest(CPoint at, UINT* flags) const {
    LVHITTESTINFO info;
    info.pt = at;
    const int row = HitTest(&info);
    if (flags) *flags = info.flags;
    return row;
}

int CListCtrl::SubItemHitTest(LVHITTESTINFO* info) const {
    return m_hWnd ? Ask(LVM_SUBITEMHITTEST, 0, AsRecord(info)) : -1;
}

BOOL CListCtrl::GetSubItemRect(int row, int column, int area, CRect& rect) const {
    // What is asked for goes in where the answer comes out.
    CRect asked{area, column, 0, 0};
    if (!Ask(LVM_GETSUBITEMRECT, AsIndex(row), AsRecord(&asked))) return FALSE;
    rect = asked;
    return TRUE;
}

CSize CListCtrl::ApproximateViewRect(CSize extent, int count) const {
    return SizeOf(
        SendMessage(LVM_APPROXIMATEVIEWRECT, AsIndex(count), MAKELPARAM(extent.cx, extent.cy)));
}

int CListCtrl::GetStringWidth(const char* text) const {
    return Ask(LVM_GETSTRINGWIDTH, 0, kv::AsParam(text));
}

// Looks.

CImageList* CListCtrl::SetImageList(CImageList* images, int kind) {
    CImageList* former = GetImageList(kind);
    Ask(LVM_SETIMAGELIST, AsIndex(kind),
        reinterpret_cast<LPARAM>(images ? images->GetSafeHandle() : nullptr));
    return former;
}

CImageList* CListCtrl::GetImageList(int kind) const {
    const auto list = reinterpret_cast<HIMAGELIST>(SendMessage(LVM_GETIMAGELIST, AsIndex(kind)));
    return list ? list->Handle() : nullptr;
}

int CListCtrl::GetHotItem() const {
    return m_hWnd ? Ask(LVM_GETHOTITEM) : -1;
}

int CListCtrl::SetHotItem(int row) {
    return m_hWnd ? Ask(LVM_SETHOTITEM, AsIndex(row)) : -1;
}

HCURSOR CListCtrl::GetHotCursor() const {
    return reinterpret_cast<HCURSOR>(SendMessage(LVM_GETHOTCURSOR));
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR cursor) {
    return reinterpret_cast<HCURSOR>(SendMessage(LVM_SETHOTCURSOR, 0, AsRecord(cursor)));
}

DWORD CListCtrl::GetHoverTime() const {
    return static_cast<DWORD>(SendMessage(LVM_GETHOVERTIME));
}

DWORD CListCtrl::SetHoverTime(DWORD milliseconds) {
    return static_cast<DWORD>(SendMessage(LVM_SETHOVERTIME, 0, static_cast<LPARAM>(milliseconds)));
}

CSize CListCtrl::SetIconSpacing(int cx, int cy) {
    return SizeOf(SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
}

BOOL CListCtrl::GetBkImage(LVBKIMAGE* image) const {
    return Ask(LVM_GETBKIMAGE, 0, AsRecord(image));
}

BOOL CListCtrl::SetBkImage(LVBKIMAGE* image) {
    return Ask(LVM_SETBKIMAGE, 0, AsRecord(image));
}

void CListCtrl::SetWorkAreas(int count, const CRect* areas) {
    Ask(LVM_SETWORKAREAS, AsIndex(count), AsRecord(areas));
}

void CListCtrl::GetWorkAreas(int count, CRect* areas) const {
    Ask(LVM_GETWORKAREAS, AsIndex(count), AsRecord(areas));
}

UINT CListCtrl::GetNumberOfWorkAreas() const {
    UINT count = 0;
    Ask(LVM_GETNUMBEROFWORKAREAS, 0, AsRecord(&count));
    return count;
}
