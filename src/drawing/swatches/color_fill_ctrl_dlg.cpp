#include "drawing/swatches/color_fill_ctrl_dlg.h"

#include "drawing/swatches/color_fill_ctrl_ids.h"

using namespace kv::color_fill_ctrl;

CKvColorFillCtrlDlg::CKvColorFillCtrlDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

BOOL CKvColorFillCtrlDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_pColorBtn = std::make_unique<CKvGuiBasicColorButton>();
    m_pColorBtn->AutoLoad(kColor, this);
    m_pColorBtn->SetChange(m_nFillColor);
    return TRUE;
}

void CKvColorFillCtrlDlg::OnOK() {
    m_nFillColor = static_cast<KVColor>(m_pColorBtn->GetCWTValue());
    CDialog::OnOK();
}

LRESULT CKvColorFillCtrlDlg::OnDestroy(WPARAM, LPARAM) {
    m_pColorBtn.reset();
    return Default();
}

const kv::MessageMap& CKvColorFillCtrlDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CKvColorFillCtrlDlg::OnDestroy>(WM_DESTROY),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
