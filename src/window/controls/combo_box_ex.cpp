#include "window/controls/combo_box_ex.h"

namespace {

CImageList* HandleOf(LRESULT list) {
    const auto* images = reinterpret_cast<HIMAGELIST>(list);
    return images ? images->Handle() : nullptr;
}

LPARAM AsParam(const void* record) {
    return reinterpret_cast<LPARAM>(record);
}

}  // namespace

int CComboBoxEx::InsertItem(const COMBOBOXEXITEM* item) {
    return m_hWnd ? static_cast<int>(SendMessage(CBEM_INSERTITEM, 0, AsParam(item))) : CB_ERR;
}

BOOL CComboBoxEx::SetItem(const COMBOBOXEXITEM* item) {
    return m_hWnd && SendMessage(CBEM_SETITEM, 0, AsParam(item)) != 0;
}

BOOL CComboBoxEx::GetItem(COMBOBOXEXITEM* item) const {
    return m_hWnd && SendMessage(CBEM_GETITEM, 0, AsParam(item)) != 0;
}

int CComboBoxEx::DeleteItem(int row) {
    return DeleteString(static_cast<UINT>(row));
}

CImageList* CComboBoxEx::SetImageList(CImageList* images) {
    if (!m_hWnd) return nullptr;
    return HandleOf(
        SendMessage(CBEM_SETIMAGELIST, 0, AsParam(images ? images->GetSafeHandle() : nullptr)));
}

CImageList* CComboBoxEx::GetImageList() const {
    return m_hWnd ? HandleOf(SendMessage(CBEM_GETIMAGELIST)) : nullptr;
}
