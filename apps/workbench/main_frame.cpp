#include "workbench/main_frame.h"

#include <algorithm>

#include "pickers/abe_bar_ids.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace workbench {

namespace {

constexpr CRect kFirstPlace{40, 40, 940, 690};
/// What a window manager puts around a window, and above it.
constexpr int kBorder = 8;
constexpr int kTitle = 32;

CRect FirstPlace() {
    const CSize screen = kv::WindowSystem::Get().GetDesktop().ScreenSize();
    const CPoint at{std::min(kFirstPlace.left, kBorder), std::min(kFirstPlace.top, kTitle)};
    const bool roomy =
        kFirstPlace.right + kBorder <= screen.cx && kFirstPlace.bottom + kBorder <= screen.cy;
    if (roomy || screen.cx <= 0) return kFirstPlace;
    return {at.x, at.y, std::min(at.x + kFirstPlace.Width(), screen.cx - kBorder),
            std::min(at.y + kFirstPlace.Height(), screen.cy - kBorder)};
}

}  // namespace

void WorkbenchBar::OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler) {
    CVZABEBar::OnUpdateCmdUI(target, disableIfNoHandler);
    if (m_onIdle) m_onIdle();
}

bool MainFrame::CreateWithBar() {
    constexpr int kTemplate = kv::abe_bar::kTemplate;
    Create("Workbench", FirstPlace());
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
    if (m_onClosing && !m_onClosing()) return;
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
