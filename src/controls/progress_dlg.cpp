#include "controls/progress_dlg.h"

#include "base/text.h"
#include "controls/progress_dlg_ids.h"
#include "window/desktop.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

using kv::WindowSystem;
using namespace kv::progress_dlg;

int CKvGuiProgressDlg::m_bCancel = 0;

CKvGuiProgressDlg::CKvGuiProgressDlg(UINT nCaptionID) : CDialog(kTemplate) {
    if (nCaptionID != 0) m_nCaptionID = nCaptionID;
    m_bCancel = 0;
}

CKvGuiProgressDlg::~CKvGuiProgressDlg() {
    if (m_hWnd) CKvGuiProgressDlg::DestroyWindow();
}

BOOL CKvGuiProgressDlg::Create(CWnd* pParent) {
    CWnd* window = pParent ? pParent : AfxGetMainWnd();
    m_pParent = window ? window->GetTopLevelParent() : nullptr;
    if (m_pParent && m_pParent->IsWindowEnabled()) {
        m_parentWindow = m_pParent->m_hWnd->weak_from_this();
        m_pParent->EnableWindow(FALSE);
        m_bParentDisabled = 1;
    }
    if (CDialog::Create(kTemplate, m_pParent)) return TRUE;
    ReenableParent();
    return FALSE;
}

void CKvGuiProgressDlg::ReenableParent() {
    const auto parent = m_parentWindow.lock();
    if (m_bParentDisabled && parent) FromHandle(parent.get())->EnableWindow(TRUE);
    m_bParentDisabled = 0;
}

BOOL CKvGuiProgressDlg::DestroyWindow() {
    // First, so that the focus finds its way back there.
    ReenableParent();
    return CDialog::DestroyWindow();
}

void CKvGuiProgressDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kBar, m_Progress);
}

BOOL CKvGuiProgressDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_Progress.SetRange(m_nLower, m_nUpper);
    m_Progress.SetStep(m_nStep);
    m_Progress.SetPos(m_nLower);
    return TRUE;
}

void CKvGuiProgressDlg::OnOK() {
    // Enter must not end the dialog.
}

void CKvGuiProgressDlg::OnCancel() {
    m_bCancel = 1;
    CDialog::OnCancel();
}

void CKvGuiProgressDlg::PumpMessages() {
    auto& system = WindowSystem::Get();
    system.GetDesktop().Pump();
    MSG message;
    while (system.Take(message)) {
        if (!IsDialogMessage(&message)) system.Deliver(message);
    }
    system.SettleFocus();
}

int CKvGuiProgressDlg::CheckCancelButton() {
    PumpMessages();
    return m_bCancel;
}

void CKvGuiProgressDlg::SetStatus(const char* pszMessage) {
    SetDlgItemText(kStatus, pszMessage);
}

void CKvGuiProgressDlg::SetRange(int nLower, int nUpper) {
    m_nLower = nLower;
    m_nUpper = nUpper;
    m_Progress.SetRange(nLower, nUpper);
}

int CKvGuiProgressDlg::SetStep(int nStep) {
    const int former = m_nStep;
    m_nStep = nStep;
    m_Progress.SetStep(nStep);
    return former;
}

int CKvGuiProgressDlg::SetPos(int nPos) {
    PumpMessages();
    const int former = m_Progress.SetPos(nPos);
    UpdatePercent(nPos);
    return former;
}

int CKvGuiProgressDlg::OffsetPos(int nPos) {
    PumpMessages();
    const int former = m_Progress.OffsetPos(nPos);
    UpdatePercent(static_cast<long long>(former) + nPos);
    return former;
}

int CKvGuiProgressDlg::StepIt() {
    PumpMessages();
    const int former = m_Progress.StepIt();
    UpdatePercent(static_cast<long long>(former) + m_nStep);
    return former;
}

void CKvGuiProgressDlg::UpdatePercent(long long nPos) {
    const long long whole = static_cast<long long>(m_nUpper) - m_nLower;
    if (whole == 0) return;
    long long percent = (nPos - m_nLower) * 100 / whole;
    if (percent != 100) percent %= 100;
    const std::string text = kv::FormatText("%d%c", static_cast<int>(percent), '%');
    if (text != DlgItemText(kPercent)) SetDlgItemText(kPercent, text.c_str());
}

const kv::MessageMap& CKvGuiProgressDlg::Messages() {
    static const kv::MessageMap kMap{&CDialog::Messages(), {}};
    return kMap;
}
