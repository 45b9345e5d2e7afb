#include "pickers/combo_box_exx.h"

#include "window/desktop.h"
#include "window/drawing/device_context.h"
#include "window/window_system.h"

using kv::SystemColor;

namespace {

COLORREF Color(SystemColor which) {
    return kv::WindowSystem::Get().GetDesktop().Color(which);
}

/// Shared by all boxes: made anew each time that a box is asked for its colours.
CBrush& BackgroundBrush() {
    static auto* brush = new CBrush;
    return *brush;
}

}  // namespace

CComboBoxExx::CComboBoxExx()
    : m_crBkColor(Color(SystemColor::kWindow)),
      m_crTextColor(Color(SystemColor::kWindowText)),
      m_crFirstBkColor(m_crBkColor),
      m_crFirstTextColor(m_crTextColor) {}

void CComboBoxExx::SetColor(COLORREF& field, COLORREF color, BOOL redraw) {
    if (field == color) return;
    field = color;
    if (redraw) Invalidate();
}

void CComboBoxExx::SetBkColor(COLORREF color, BOOL redraw) {
    SetColor(m_crBkColor, color, redraw);
}

void CComboBoxExx::SetTextColor(COLORREF color, BOOL redraw) {
    SetColor(m_crTextColor, color, redraw);
}

BOOL CComboBoxExx::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN) {
        const auto key = static_cast<int>(message->wParam);
        m_bAutoComplete = key != VK_DELETE && key != VK_BACK;
    }
    return CComboBox::PreTranslateMessage(message);
}

void CComboBoxExx::OnEditUpdate() {
    if (!m_bAutoComplete) return;
    const std::string text = WindowText();
    const auto length = static_cast<int>(text.size());
    const DWORD selection = GetEditSel();
    const int start = LOWORD(selection);
    const int end = HIWORD(selection);

    if (SelectString(-1, text.c_str()) == CB_ERR) {
        SetWindowText(text.c_str());
        SetEditSel(start, end);
    } else if (end >= length) {
        SetEditSel(length, -1);
    } else {
        SetEditSel(start, end);
    }
}

HBRUSH CComboBoxExx::OnCtlColor(CDC* context, CWnd*, UINT) {
    const bool enabled = IsWindowEnabled();
    const auto shown = [](COLORREF color, COLORREF first, SystemColor systems) {
        return color == first ? Color(systems) : color;
    };
    const COLORREF background = enabled ? shown(m_crBkColor, m_crFirstBkColor, SystemColor::kWindow)
                                        : Color(SystemColor::kButtonFace);
    context->SetBkColor(background);
    context->SetTextColor(enabled
                              ? shown(m_crTextColor, m_crFirstTextColor, SystemColor::kWindowText)
                              : Color(SystemColor::kGrayText));
    CBrush& brush = BackgroundBrush();
    brush.DeleteObject();
    brush.CreateSolidBrush(background);
    return brush.GetSafeHandle();
}

const kv::MessageMap& CComboBoxExx::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnReflected<&CComboBoxExx::OnEditUpdate>(CBN_EDITUPDATE),
        kv::OnMessage<&CComboBoxExx::OnCtlColor>(WM_CTLCOLOR),
    };
    static const kv::MessageMap kMap{&CComboBox::Messages(), kEntries};
    return kMap;
}
