#include "window/controls/list_box.h"

#include <string>
#include "window/controls/list_box_node.h"
#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::ListBoxNode, CListBox> kRegistered{kv::NodeClass::kListBox};

}  // namespace

BOOL CListBox::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CreateNode(kv::NodeClass::kListBox, "", style, rect, parent, static_cast<int>(id));
}

int CListBox::Ask(UINT message, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd ? static_cast<int>(SendMessage(message, wParam, lParam)) : LB_ERR;
}

int CListBox::GetCount() const {
    return m_hWnd ? Ask(LB_GETCOUNT) : 0;
}

int CListBox::AddString(LPCTSTR text) {
    return Ask(LB_ADDSTRING, 0, kv::AsParam(text));
}

int CListBox::InsertString(int row, LPCTSTR text) {
    return Ask(LB_INSERTSTRING, static_cast<WPARAM>(row), kv::AsParam(text));
}

int CListBox::DeleteString(UINT row) {
    return Ask(LB_DELETESTRING, row);
}

void CListBox::ResetContent() {
    Ask(LB_RESETCONTENT);
}

void CListBox::GetText(int row, CString& text) const {
    text.Empty();
    const int length = GetTextLen(row);
    if (length <= 0) return;
    Ask(LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.GetBuffer(length)));
    text.ReleaseBuffer(length);
}

int CListBox::GetTextLen(int row) const {
    return Ask(LB_GETTEXTLEN, static_cast<WPARAM>(row));
}

LPARAM CListBox::GetItemData(int row) const {
    return m_hWnd ? SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(row)) : LB_ERR;
}

int CListBox::SetItemData(int row, LPARAM data) {
    return Ask(LB_SETITEMDATA, static_cast<WPARAM>(row), data);
}

int CListBox::FindString(int start, LPCTSTR text) const {
    return Ask(LB_FINDSTRING, static_cast<WPARAM>(start), kv::AsParam(text));
}

int CListBox::FindStringExact(int start, LPCTSTR text) const {
    return Ask(LB_FINDSTRINGEXACT, static_cast<WPARAM>(start), kv::AsParam(text));
}

int CListBox::GetCurSel() const {
    return Ask(LB_GETCURSEL);
}

int CListBox::SetCurSel(int row) {
    return Ask(LB_SETCURSEL, static_cast<WPARAM>(row));
}

int CListBox::SelectString(int start, LPCTSTR text) {
    return Ask(LB_SELECTSTRING, static_cast<WPARAM>(start), kv::AsParam(text));
}

int CListBox::GetSel(int row) const {
    return Ask(LB_GETSEL, static_cast<WPARAM>(row));
}

int CListBox::SetSel(int row, BOOL select) {
    return Ask(LB_SETSEL, static_cast<WPARAM>(select), row);
}

int CListBox::GetSelCount() const {
    return Ask(LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int most, int* rows) const {
    return Ask(LB_GETSELITEMS, static_cast<WPARAM>(most), reinterpret_cast<LPARAM>(rows));
}

int CListBox::SelItemRange(BOOL select, int first, int last) {
    if (!select && first == last) return SetSel(first, FALSE);
    return select ? Ask(LB_SELITEMRANGEEX, static_cast<WPARAM>(first), last)
                  : Ask(LB_SELITEMRANGEEX, static_cast<WPARAM>(last), first);
}

int CListBox::GetCaretIndex() const {
    return Ask(LB_GETCARETINDEX);
}

int CListBox::SetCaretIndex(int row, BOOL scroll) {
    return Ask(LB_SETCARETINDEX, static_cast<WPARAM>(row), scroll);
}
