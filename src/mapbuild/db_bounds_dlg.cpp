#include "mapbuild/db_bounds_dlg.h"

#include "mapbuild/db_bounds_dlg_ids.h"

using namespace kv::db_bounds_dlg;

CKvDbBoundsDlg::CKvDbBoundsDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

void CKvDbBoundsDlg::SetBounds(CString& strFrom, CString& strTo) {
    m_strFrom = strFrom;
    m_strTo = strTo;
}

BOOL CKvDbBoundsDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_editFrom.SubclassDlgItem(kFrom, this);
    m_editTo.SubclassDlgItem(kTo, this);
    m_editFrom.SetWindowText(m_strFrom);
    m_editTo.SetWindowText(m_strTo);
    return TRUE;
}

void CKvDbBoundsDlg::OnOK() {
    m_editFrom.GetWindowText(m_strFrom);
    m_editTo.GetWindowText(m_strTo);
    m_bOK = 1;
    CDialog::OnOK();
}
