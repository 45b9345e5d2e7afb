#include "mapbuild/projection_dialog.h"

#include "mapbuild/proj_sel_ids.h"

using namespace kv::projection_dialog;

CKvGuiProjectionDialog::CKvGuiProjectionDialog(CWnd* pParent) : CDialog(kTemplate, pParent) {}

CKvGuiProjectionDialog::~CKvGuiProjectionDialog() = default;

BOOL CKvGuiProjectionDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    m_pProjCtrl = std::make_unique<CKvGuiProjCtrl>();
    m_pProjCtrl->Initialize(this, kProjection, m_nProjection, 0, false, 0.0, 0.0);
    return TRUE;
}

void CKvGuiProjectionDialog::OnSelchangeComboProjection() {
    m_nProjection = m_pProjCtrl->GetProjection();
}

void CKvGuiProjectionDialog::OnOK() {
    m_pProjCtrl.reset();
    CDialog::OnOK();
}

const kv::MessageMap& CKvGuiProjectionDialog::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&CKvGuiProjectionDialog::OnSelchangeComboProjection>(CBN_SELCHANGE,
                                                                           kProjection),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
