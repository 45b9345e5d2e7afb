#include "window/controls/combo_box.h"

#include <string>
#include "window/controls/combo_box_node.h"
#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::ComboBoxNode, CComboBox> kRegistered{kv::NodeClass::kComboBox};

}  // namespace

BOOL CComboBox::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CreateNode(kv::NodeClass::kComboBox, "", style, rect, parent, static_cast<int>(id));
}

int CComboBox::Ask(UINT message, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd ? static_cast<int>(SendMessage(message, wParam, lParam)) : CB_ERR;
}

int CComboBox::GetCount() const {
    return m_hWnd ? Ask(CB_GETCOUNT) : 0;
}

int CComboBox::AddString(LPCTSTR text) {
    return Ask(CB_ADDSTRING, 0, kv::AsParam(text));
}

int CComboBox::InsertString(int row, LPCTSTR text) {
    return Ask(CB_INSERTSTRING, static_cast<WPARAM>(row), kv::AsParam(text));
}

int CComboBox::DeleteString(UINT row) {
    return Ask(CB_DELETESTRING, row);
}

void CComboBox::ResetContent() {
    Ask(CB_RESETCONTENT);
}

void CComboBox::GetLBText(int row, CString& text) const {
    text.Empty();
    const int length = GetLBTextLen(row);
    if (length <= 0) return;
    std::string buffer(static_cast<std::size_t>(length) + 1, '\0');
    Ask(CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(buffer.data()));
    text = buffer.c_str();
}

int CComboBox::GetLBTextLen(int row) const {
    return Ask(CB_GETLBTEXTLEN, static_cast<WPARAM>(row));
}

LPARAM CComboBox::GetItemData(int row) const {
    return m_hWnd ? SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(row)) : CB_ERR;
}

int CComboBox::SetItemData(int row, LPARAM data) {
    return Ask(CB_SETITEMDATA, static_cast<WPARAM>(row), data);
}

int CComboBox::FindString(int start, LPCTSTR text) const {
    return Ask(CB_FINDSTRING, static_cast<WPARAM>(start), kv::AsParam(text));
}

int CComboBox::FindStringExact(int start, LPCTSTR text) const {
    return Ask(CB_FINDSTRINGEXACT, static_cast<WPARAM>(start), kv::AsParam(text));
}

int CComboBox::GetCurSel() const {
    return Ask(CB_GETCURSEL);
}

int CComboBox::SetCurSel(int row) {
    return Ask(CB_SETCURSEL, static_cast<WPARAM>(row));
}

int CComboBox::SelectString(int start, LPCTSTR text) {
    return Ask(CB_SELECTSTRING, static_cast<WPARAM>(start), kv::AsParam(text));
}

DWORD CComboBox::GetEditSel() const {
    return static_cast<DWORD>(SendMessage(CB_GETEDITSEL));
}

BOOL CComboBox::SetEditSel(int start, int end) {
    return Ask(CB_SETEDITSEL, 0, MAKELPARAM(start, end)) == TRUE;
}

BOOL CComboBox::LimitText(int characters) {
    return Ask(CB_LIMITTEXT, static_cast<WPARAM>(characters)) == TRUE;
}

void CComboBox::ShowDropDown(BOOL show) {
    Ask(CB_SHOWDROPDOWN, static_cast<WPARAM>(show));
}

BOOL CComboBox::GetDroppedState() const {
    return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE));
}

void CComboBox::Cut() {
    SendMessage(WM_CUT);
}

void CComboBox::Copy() {
    SendMessage(WM_COPY);
}

void CComboBox::Paste() {
    SendMessage(WM_PASTE);
}

void CComboBox::Clear() {
    SendMessage(WM_CLEAR);
}
