#include "window/frames/frame_wnd.h"

#include "window/frames/control_bar.h"
#include "window/window_system.h"

namespace {

CWinApp* g_app = nullptr;

/// Cuts a strip for a bar of that size off the edge that its style names; off the top where it
/// names none.
CRect TakeEdge(CRect& free, DWORD style, CSize size) {
    CRect strip = free;
    if (style & CBRS_ALIGN_BOTTOM) {
        strip.top = free.bottom -= size.cy;
    } else if (style & CBRS_ALIGN_LEFT) {
        strip.right = free.left += size.cx;
    } else if (style & CBRS_ALIGN_RIGHT) {
        strip.left = free.right -= size.cx;
    } else {
        strip.bottom = free.top += size.cy;
    }
    return strip;
}

}  // namespace

CWinApp::CWinApp() : m_pBefore(g_app) {
    g_app = this;
}

CWinApp::~CWinApp() {
    if (g_app == this) g_app = m_pBefore;
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
        const CSize size{child->Rect().Width(), bar->GetHeightAt(free.Width())};
        child->SetRect(TakeEdge(free, bar->GetBarStyle(), size));
    }
    m_rcFree = free;
}

LRESULT CFrameWnd::OnSize(WPARAM, LPARAM) {
    RecalcLayout();
    return Default();
}

BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    CDocument* document = GetActiveDocument();
    if (document && document->OnCmdMsg(id, code, extra, info)) return TRUE;
    if (CWnd::OnCmdMsg(id, code, extra, info)) return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(id, code, extra, info);
}

const kv::MessageMap& CFrameWnd::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CFrameWnd::OnSize>(WM_SIZE),
    };
    static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
    return kMap;
}
