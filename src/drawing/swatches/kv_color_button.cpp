#include "drawing/swatches/kv_color_button.h"

#include "drawing/swatches/color_words.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/swatch.h"
#include "frame/kvcom/color.h"
#include "window/drawing/look.h"

using kv::SystemColor;

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kAlmostBlack = 0x010101;

COLORREF System(SystemColor which) {
    return kv::CurrentLook().Color(which);
}

}  // namespace

int CKvColorButton::Index() const {
    return GetDlgCtrlID() - kv::palettes::kGridCell;
}

void CKvColorButton::SetColor(COLORREF text, COLORREF back) {
    SetColor(text, back, m_crDisabled);
}

void CKvColorButton::SetColor(COLORREF text, COLORREF back, COLORREF disabled) {
    SetColor(text, back, disabled, m_crLight, m_crHighlight, m_crShadow, m_crDarkShadow);
}

void CKvColorButton::SetColor(COLORREF text, COLORREF back, COLORREF disabled, COLORREF light,
                              COLORREF highlight, COLORREF shadow, COLORREF darkShadow) {
    m_crText = text;
    m_crBack = back;
    m_crDisabled = disabled;
    m_crLight = light;
    m_crHighlight = highlight;
    m_crShadow = shadow;
    m_crDarkShadow = darkShadow;
    Invalidate();
}

void CKvColorButton::SetColorToWindowsDefault() {
    SetColor(System(SystemColor::kButtonText), System(SystemColor::kButtonFace),
             System(SystemColor::kButtonFace), System(SystemColor::kLight),
             System(SystemColor::kButtonHighlight), System(SystemColor::kButtonShadow),
             System(SystemColor::kDarkShadow));
}

void CKvColorButton::DrawItem(DRAWITEMSTRUCT* item) {
    CDC& context = *item->hDC;
    const bool pressed = (item->itemState & ODS_SELECTED) != 0;
    const int saved = context.SaveDC();
    CRect rect = item->rcItem;
    context.FillSolidRect(&rect, m_crBack);
    context.Draw3dRect(&rect, pressed ? m_crDarkShadow : m_crHighlight,
                       pressed ? m_crHighlight : m_crDarkShadow);
    rect.DeflateRect(1, 1);
    context.Draw3dRect(&rect, pressed ? m_crShadow : m_crLight, pressed ? m_crLight : m_crShadow);
    if (item->itemState & ODS_FOCUS) kv::swatches::DrawFocusRing(context, item->rcItem);
    rect = kv::swatches::Inside(item->rcItem);
    if (pressed) rect.OffsetRect(1, 1);
    context.SetBkMode(TRANSPARENT);
    context.SetTextColor(item->itemState & ODS_DISABLED ? m_crDisabled : m_crText);
    context.DrawText(WindowText(), &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    context.RestoreDC(saved);
}

std::string CKvColorButton::SpokenName() const {
    return kv::swatches::ColorInWords(Index());
}

LRESULT CKvColorButton::OnCreate(WPARAM, LPARAM) {
    SetButtonStyle(BS_OWNERDRAW);
    m_hWnd->SetToolTip(SpokenName());
    return Default();
}

void CKvColorButton::OnShowWindow(BOOL, UINT) {
    int red = 0;
    int green = 0;
    int blue = 0;
    CKvColor::GetRGBColor(Index(), red, green, blue);
    SetColor(kWhite, RGB(red, green, blue), kAlmostBlack);
    SetButtonStyle(BS_OWNERDRAW);
}

bool CKvColorButton::OnClicked() {
    const auto window = m_hWnd->shared_from_this();
    if (CWnd* parent = GetParent()) parent->SendMessage(0, static_cast<WPARAM>(Index()));
    return window->Destroyed();
}

const kv::MessageMap& CKvColorButton::Messages() {
    using Self = CKvColorButton;
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&Self::OnCreate>(WM_CREATE),
        kv::OnMessage<&Self::OnShowWindow>(WM_SHOWWINDOW),
        kv::OnReflected<&Self::OnClicked>(BN_CLICKED),
    };
    static const kv::MessageMap kMap{&CButton::Messages(), kEntries};
    return kMap;
}
