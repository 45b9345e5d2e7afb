#include "controls/super_combo_box.h"

HBRUSH CSuperComboBox::OnCtlColor(CDC*, CWnd* pWnd, UINT nCtlColor) {
    const HWND part = pWnd ? pWnd->m_hWnd : nullptr;
    // The combo is asked for its own colours, too.
    if (part && part->Parent() == m_hWnd) {
        if (nCtlColor == CTLCOLOR_EDIT && !m_edit.m_hWnd) m_edit.SubclassWindow(part);
        if (nCtlColor == CTLCOLOR_LISTBOX && !m_listbox.m_hWnd) m_listbox.SubclassWindow(part);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

void CSuperComboBox::OnDestroy() {
    Default();
    for (CWnd* part : {static_cast<CWnd*>(&m_edit), static_cast<CWnd*>(&m_listbox)}) {
        if (part->m_hWnd) part->UnsubclassWindow();
    }
}

LRESULT CSuperComboBox::OnVScroll(WPARAM, LPARAM) {
    const HWND window = m_hWnd;
    const auto keep = window->shared_from_this();
    if (window->Parent()) kv::Send(*window->Parent(), WM_USER);
    return window->Handle() == this ? Default() : 0;
}

LRESULT CSuperComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto keep = m_hWnd ? m_hWnd->shared_from_this() : nullptr;
    const LRESULT result = CComboBox::WindowProc(message, wParam, lParam);
    // Whoever heard of it may have ended the window.
    if (message == WM_COMMAND && keep && !keep->Destroyed() && keep->Parent()) {
        kv::Send(*keep->Parent(), WM_USER + 1);
    }
    return result;
}

const kv::MessageMap& CSuperComboBox::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CSuperComboBox::OnCtlColor>(WM_CTLCOLOR),
        kv::OnMessage<&CSuperComboBox::OnDestroy>(WM_DESTROY),
        kv::OnMessage<&CSuperComboBox::OnVScroll>(WM_VSCROLL),
    };
    static const kv::MessageMap kMap{&CComboBox::Messages(), kEntries};
    return kMap;
}
