#include "pickers/order_dlg.h"

#include "pickers/custom_order_dlg.h"
#include "pickers/order_dlg_ids.h"

using namespace kv::order_dlg;

COrderDlg::COrderDlg(CWnd* parent) : CDialog(kTemplate, parent) {}

void COrderDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kCustomize, m_btnCustomize);
}

BOOL COrderDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckRadioButton(kCustom, kAreaName, m_bCustom ? kCustom : kAreaName);
    if (!m_bCustom) OnRadioAreaname();
    return TRUE;
}

void COrderDlg::OnRadioCustom() {
    m_btnCustomize.EnableWindow(TRUE);
}

void COrderDlg::OnRadioAreaname() {
    m_btnCustomize.EnableWindow(FALSE);
}

void COrderDlg::OnBtnCustomize() {
    CCustomOrderDlg(this).DoModal();
}

void COrderDlg::OnOK() {
    m_bCustom = IsDlgButtonChecked(kCustom) != 0;
    CDialog::OnOK();
}

const kv::MessageMap& COrderDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&COrderDlg::OnRadioCustom>(kCustom),
        kv::OnClicked<&COrderDlg::OnRadioAreaname>(kAreaName),
        kv::OnClicked<&COrderDlg::OnBtnCustomize>(kCustomize),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
