#include "controls/static.h"

#include <cstring>

#include "window/drawing/device_context.h"
#include "window/paint_context.h"

namespace {

constexpr int kHeight = 12;
constexpr char kFace[] = "Times New Roman";

}  // namespace

CKvStatic::CKvStatic() {
    LOGFONT description;
    CFont system;
    if (system.CreateStockObject(DEFAULT_GUI_FONT)) system.GetLogFont(&description);
    description.lfHeight = kHeight;
    std::memcpy(description.lfFaceName, kFace, sizeof kFace);
    m_font.CreateFontIndirect(&description);
}

void CKvStatic::SetColor(COLORREF crColor) {
    m_crColor = crColor;
    Invalidate();
}

void CKvStatic::DrawLabel(const std::string& sText) {
    CPaintDC dc(this);
    dc.SelectObject(&m_font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_crColor);
    dc.SetTextAlign(TA_CENTER);
    dc.TextOut(dc.m_ps.rcPaint.left, dc.m_ps.rcPaint.top, sText);
}

LRESULT CKvStatic::OnCreate(WPARAM, LPARAM) {
    ModifyStyle(0, SS_OWNERDRAW);
    return Default();
}

void CKvStatic::OnPaint() {
    DrawLabel(WindowText());
}

void CKvStatic::OnShowWindow(BOOL, UINT) {
    // The label comes and goes with the cell that it names; there is nothing to do for it.
}

const kv::MessageMap& CKvStatic::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CKvStatic::OnCreate>(WM_CREATE),
        kv::OnMessage<&CKvStatic::OnPaint>(WM_PAINT),
        kv::OnMessage<&CKvStatic::OnShowWindow>(WM_SHOWWINDOW),
    };
    static const kv::MessageMap kMap{&CStatic::Messages(), kEntries};
    return kMap;
}
