#include "services/kvdbkvn/engines/wait_dlg.h"

#include <string>

#include "services/kvdbkvn/engines/wait_dlg_ids.h"
#include "window/window_system.h"

using namespace kv::wait_dlg;

CKvWaitDlg::~CKvWaitDlg() {
    // No other window is to be told that it has the focus now.
    if (m_hWnd) kv::WindowSystem::Get().SetFocusQuietly(nullptr);
}

BOOL CKvWaitDlg::Create(CWnd* owner) {
    return CDialog::Create(kTemplate, owner);
}

void CKvWaitDlg::ShowTime(std::chrono::seconds soFar) {
    if (m_bCancelled) return;
    const std::string text = "Running for " + std::to_string(soFar.count()) + " s";
    if (text != DlgItemText(kTime)) SetDlgItemText(kTime, text.c_str());
}

void CKvWaitDlg::OnCancel() {
    m_bCancelled = true;
    SetDlgItemText(kTime, "Stopping");
    GetDlgItem(IDCANCEL)->EnableWindow(FALSE);
}
