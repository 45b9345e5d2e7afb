#include "window/paint_context.h"

#include "window/owner_draw.h"
#include "window/wnd.h"

CPaintDC::CPaintDC(CWnd* window) {
    if (!window || !window->m_hWnd) return;
    window->GetClientRect(&m_ps.rcPaint);
    if (const CDC* painting = kv::PaintingContext(window->m_hWnd)) Share(*painting);
}

CClientDC::CClientDC(CWnd* window) {
    const HWND handle = window ? window->m_hWnd : nullptr;
    if (const CDC* painting = handle ? kv::PaintingContext(handle) : nullptr) Share(*painting);
}
