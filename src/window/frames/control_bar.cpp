#include "window/frames/control_bar.h"

#include "window/desktop.h"
#include "window/templates/resources.h"
#include "window/window_system.h"

using kv::WindowSystem;

BOOL CControlBar::CreateBarWindow(CWnd* parent, kv::NodeClass nodeClass, DWORD style, UINT id) {
    m_dwStyle = style & 0xFFFF;
    const DWORD windowStyle = (style & 0xFFFF0000u) | WS_CHILD | WS_VISIBLE;
    if (!CreateNode(nodeClass, "", windowStyle, {}, parent, static_cast<int>(id))) return FALSE;
    WindowSystem::Get().AddIdleUpdate(*m_hWnd, [window = m_hWnd] {
        auto* bar = dynamic_cast<CControlBar*>(window->Handle());
        if (bar && window->Visible()) bar->OnUpdateCmdUI(bar->GetParent(), TRUE);
    });
    return TRUE;
}

int CControlBar::GetHeightAt(int) const {
    return m_hWnd ? m_hWnd->Rect().Height() : 0;
}

void CControlBar::OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler) {
    UpdateDialogControls(target, disableIfNoHandler);
}

BOOL CControlBar::OnCommand(WPARAM wParam, LPARAM lParam) {
    const HWND window = m_hWnd;
    const auto keep = window->shared_from_this();
    if (CWnd::OnCommand(wParam, lParam)) return TRUE;
    kv::Node* frame = window->Destroyed() ? nullptr : window->Parent();
    return frame && kv::Send(*frame, WM_COMMAND, wParam, lParam) != 0;
}

const kv::MessageMap& CControlBar::Messages() {
    static const kv::MessageMap kMap{&CWnd::Messages(), {}};
    return kMap;
}

BOOL CDialogBar::Create(CWnd* parent, UINT templateId, UINT style, UINT id) {
    const kv::DialogTemplate* found = kv::FindTemplate(static_cast<int>(templateId));
    if (!found || !CreateBarWindow(parent, kv::NodeClass::kBar, style, id)) return FALSE;
    kv::CreateControls(*m_hWnd, *found);
    return TRUE;
}

const kv::MessageMap& CDialogBar::Messages() {
    static const kv::MessageMap kMap{&CControlBar::Messages(), {}};
    return kMap;
}
