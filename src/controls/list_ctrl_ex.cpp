#include "controls/list_ctrl_ex.h"

namespace {

constexpr int kHeadingRoom = 15;
constexpr int kThumbPosition = 4;

LVITEM TextRecord(int item, int subItem, const char* text, int image) {
    LVITEM record;
    record.mask = LVIF_TEXT;
    record.iItem = item;
    record.iSubItem = subItem;
    record.pszText = const_cast<char*>(text);
    if (image != -1) {
        record.mask |= LVIF_IMAGE;
        record.iImage = image;
    }
    return record;
}

}  // namespace

const CRuntimeClass CListCtrlEx::classCListCtrlEx{"CListCtrlEx"};

int CListCtrlEx::InsertColumn(int nCol, const char* pszHeading, int nFormat, int nWidth,
                              int nSubItem, int nOrder, int nImage) {
    LVCOLUMN column;
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.pszText = const_cast<char*>(pszHeading);
    column.fmt = nFormat;
    column.cx = nWidth == -1 ? GetStringWidth(pszHeading) + kHeadingRoom : nWidth;
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    column.iOrder = nOrder;
    column.iImage = nImage;
    return CListCtrl::InsertColumn(nCol, &column);
}

int CListCtrlEx::AddRecord(LVITEM& item) {
    return item.iSubItem == 0 ? InsertItem(&item) : SetItem(&item);
}

int CListCtrlEx::AddItem(int nItem, int nSubItem, const char* pszText, int nImage) {
    LVITEM item = TextRecord(nItem, nSubItem, pszText, nImage);
    return AddRecord(item);
}

int CListCtrlEx::AddItem(int nItem, int nSubItem, const char* pszText, int nImage, long lParam,
                         int nIndent) {
    LVITEM item = TextRecord(nItem, nSubItem, pszText, nImage);
    item.mask |= LVIF_PARAM;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return AddRecord(item);
}

void CListCtrlEx::OnSelchange() {
    const int mark = GetSelectionMark();
    if (mark < 0) return;
    SendMessage(WM_VSCROLL, MAKEWPARAM(kThumbPosition, mark));
    // The message has room for 16 bits of a position.
    EnsureVisible(mark, FALSE);
}
