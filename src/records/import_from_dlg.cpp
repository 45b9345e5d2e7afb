#include "records/import_from_dlg.h"

#include "frame/kvcom/ut_registry.h"
#include "records/import_from_dlg_ids.h"

using namespace kv::import_from;

bool CKvImportFromDlg::m_bstatUserFolder = true;

CKvImportFromDlg::CKvImportFromDlg(CWnd* parent) : CDialog(kTemplate, parent) {}

BOOL CKvImportFromDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckRadioButton(kUserFolder, kSystemFolder, m_bstatUserFolder ? kUserFolder : kSystemFolder);
    return TRUE;
}

void CKvImportFromDlg::OnOK() {
    m_bstatUserFolder = IsDlgButtonChecked(kUserFolder) != 0;
    CDialog::OnOK();
}

bool CKvImportFromDlg::IsUserFolderSameAsSysFolder() const {
    const CKvUtRegistry registry;
    using Registry = CKvUtRegistry;
    return registry.GetRegistry(Registry::S_GetWorkPath(), Registry::S_GetWorkKey(), true) ==
           registry.GetRegistry(Registry::S_GetHomePath(), Registry::S_GetHomeKey(), true);
}
