#include "workbench/main_frame.h"

#include "pickers/abe_bar_ids.h"

namespace workbench {

namespace {

constexpr CRect kFirstPlace{40, 40, 940, 690};

}  // namespace

bool MainFrame::CreateWithBar() {
    constexpr int kTemplate = kv::abe_bar::kTemplate;
    Create("Workbench", kFirstPlace);
    EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
    m_bar.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
    if (!m_bar.Create(this, kTemplate, CBRS_TOP, kTemplate)) return false;
    m_bar.SetWindowText("Area and block");
    DockControlBar(&m_bar);
    return true;
}

LRESULT MainFrame::OnRun(WPARAM, LPARAM) {
    if (m_onRun) m_onRun();
    return 0;
}

void MainFrame::OnClose() {
    if (m_onClosing) m_onClosing();
    Default();
}

void MainFrame::PostNcDestroy() {
    if (m_onClosed) m_onClosed();
}

const kv::MessageMap& MainFrame::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&MainFrame::OnRun>(CKvABEBar::kRunMessage),
        kv::OnMessage<&MainFrame::OnClose>(WM_CLOSE),
    };
    static const kv::MessageMap kMap{&CFrameWnd::Messages(), kEntries};
    return kMap;
}

}  // namespace workbench
