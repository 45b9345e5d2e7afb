#include "window/frame_wnd.h"

#include "window/control_bar.h"
#include "window/window_system.h"

namespace {

CWinApp* g_app = nullptr;

}  // namespace

CWinApp::CWinApp() {
    g_app = this;
}

CWinApp::~CWinApp() {
    if (g_app == this) g_app = nullptr;
}

CWinApp* AfxGetApp() {
    return g_app;
}

CWnd* AfxGetMainWnd() {
    return g_app ? g_app->m_pMainWnd : nullptr;
}

BOOL CFrameWnd::Create(const char* title, const CRect& rect) {
    m_rcFree = {0, 0, rect.Width(), rect.Height()};
    return CreateNode(kv::NodeClass::kFrame, title, 0, rect, nullptr, 0);
}

void CFrameWnd::DockControlBar(CControlBar* bar) {
    if (bar && (bar->GetDockStyle() & m_dwDockSides)) RecalcLayout();
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL) {
    if (!bar) return;
    bar->ShowWindow(show ? SW_SHOW : SW_HIDE);
    RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (!m_hWnd) return;
    CRect free{0, 0, m_hWnd->Rect().Width(), m_hWnd->Rect().Height()};
    const auto children = m_hWnd->Children();
    for (const auto& child : children) {
        const auto* bar = dynamic_cast<CControlBar*>(child->Handle());
        if (!bar || !child->Visible()) continue;
        const int height = bar->GetHeightAt(free.Width());
        if (bar->GetBarStyle() & CBRS_ALIGN_BOTTOM) {
            child->SetRect({free.left, free.bottom - height, free.right, free.bottom});
            free.bottom -= height;
        } else {
            child->SetRect({free.left, free.top, free.right, free.top + height});
            free.top += height;
        }
    }
    m_rcFree = free;
}

BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    CDocument* document = GetActiveDocument();
    if (document && document->OnCmdMsg(id, code, extra, info)) return TRUE;
    if (CWnd::OnCmdMsg(id, code, extra, info)) return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(id, code, extra, info);
}

const kv::MessageMap& CFrameWnd::Messages() {
    static const kv::MessageMap kMap{&CWnd::Messages(), {}};
    return kMap;
}
