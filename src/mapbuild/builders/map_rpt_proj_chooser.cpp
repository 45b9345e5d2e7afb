#include "mapbuild/builders/map_rpt_proj_chooser.h"

#include "mapbuild/builders/map_rpt_proj_chooser_ids.h"

using namespace kv::rpt_proj;

CKvGuiMapRptProjChooser::CKvGuiMapRptProjChooser(CWnd* pParent) : CDialog(kTemplate, pParent) {}

BOOL CKvGuiMapRptProjChooser::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckDlgButton(m_bRptUseMapProj ? kMapProjection : kBaseProjection, BST_CHECKED);
    return TRUE;
}

void CKvGuiMapRptProjChooser::OnOK() {
    m_bRptUseMapProj = IsDlgButtonChecked(kMapProjection) == BST_CHECKED;
    CDialog::OnOK();
}
