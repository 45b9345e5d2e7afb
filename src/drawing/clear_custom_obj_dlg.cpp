#include "drawing/clear_custom_obj_dlg.h"

#include "drawing/clear_custom_obj_ids.h"

using namespace kv::clear_custom_obj;

CKvGuiClearCustomObjDlg::CKvGuiClearCustomObjDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

BOOL CKvGuiClearCustomObjDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    const auto show = [this](int id, bool checked) {
        Control<CWnd>(id).EnableWindow(TRUE);
        CheckDlgButton(id, checked ? BST_CHECKED : BST_UNCHECKED);
    };
    show(kTexts, m_bClearText);
    show(kPolygons, m_bClearPoly);
    show(kColorFills, m_bClearColorFill);
    return TRUE;
}

void CKvGuiClearCustomObjDlg::OnOK() {
    m_bClearText = IsDlgButtonChecked(kTexts) != BST_UNCHECKED;
    m_bClearPoly = IsDlgButtonChecked(kPolygons) != BST_UNCHECKED;
    m_bClearColorFill = IsDlgButtonChecked(kColorFills) != BST_UNCHECKED;
    CDialog::OnOK();
}
