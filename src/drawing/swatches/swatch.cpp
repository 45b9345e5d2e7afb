#include "drawing/swatches/swatch.h"

#include "drawing/swatches/palette_opener.h"
#include "window/drawing/look.h"

namespace kv::swatches {

namespace {

constexpr COLORREF kPaper = RGB(240, 240, 240);

bool IsDark(COLORREF color) {
    constexpr int kMiddle = 3 * 128;
    return GetRValue(color) + GetGValue(color) + GetBValue(color) < kMiddle;
}

}  // namespace

CRect Inside(const CRect& rect) {
    CRect inside = rect;
    inside.DeflateRect(kInset, kInset);
    return inside;
}

void DrawPaper(CDC& context, const CRect& rect) {
    if (!IsDark(CurrentLook().Color(SystemColor::kButtonFace))) return;
    const CRect inside = Inside(rect);
    context.FillSolidRect(&inside, kPaper);
}

/// Where buttons are dark, the ring is as light as the paper that it would touch: there its inner
/// line is dark.
void DrawFocusRing(CDC& context, const CRect& rect) {
    const COLORREF face = CurrentLook().Color(SystemColor::kButtonFace);
    const COLORREF text = CurrentLook().Color(SystemColor::kButtonText);
    for (int inset = 1; inset < kInset; ++inset) {
        CRect ring = rect;
        ring.DeflateRect(inset, inset);
        const COLORREF color = inset == kInset - 1 && IsDark(face) ? face : text;
        context.Draw3dRect(&ring, color, color);
    }
}

void Swatch::SetChange(int nValue) {
    Hold(nValue);
    if (!m_hWnd) return;
    ShowWords();
    if (IsWindowEnabled()) {
        EnableWindow(FALSE);
        EnableWindow(TRUE);
    }
    CWnd* parent = GetParent();
    if (CWnd* shown = parent ? parent->GetDlgItem(GetDlgCtrlID()) : nullptr) shown->Invalidate();
}

void Swatch::DrawItem(DRAWITEMSTRUCT* item) {
    DRAWITEMSTRUCT plain = *item;
    // A plain button marks the focus where the value covers the mark.
    if (!m_bitmap.GetSafeHandle()) plain.itemState &= ~ODS_FOCUS;
    CBitmapButton::DrawItem(&plain);
    if (item->itemState & ODS_FOCUS) DrawFocusRing(*item->hDC, item->rcItem);
    if (item->itemState & ODS_DISABLED) return;
    const int saved = item->hDC->SaveDC();
    DrawValue(*item->hDC, item->rcItem);
    item->hDC->RestoreDC(saved);
}

/// One with a label goes by that, and tells its value beside it.
std::string Swatch::SpokenName() const {
    return OpensPalette() ? std::string() : ValueInWords();
}

void Swatch::ShowWords() {
    m_hWnd->SetToolTip(ValueInWords());
}

void Swatch::PreSubclassWindow() {
    ShowWords();
}

void Swatch::OnMouseMove(UINT, CPoint) {
    Default();
}

void Swatch::OnSetFocus(CWnd*) {
    Default();
    Invalidate();
}

void Swatch::OnLButtonDown(UINT, CPoint) {
    if (OpensPalette()) {
        Open();
    } else {
        Default();
    }
}

/// By a key: a click of the mouse never comes as far.
bool Swatch::OnClicked() {
    if (!OpensPalette()) return false;
    Open();
    return true;
}

void Swatch::Open() {
    const auto window = m_hWnd->shared_from_this();
    CRect place;
    GetWindowRect(&place);
    int value = Value();
    const int result = RunPalette(PaletteNumber(), place, GetParent(), value);
    if (result <= 0 || result == IDCANCEL || window->Destroyed()) return;
    SetChange(value);
    // No control behind it: with one, it would come back here.
    if (CWnd* parent = GetParent()) {
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(window->Id(), BN_CLICKED), 0);
    }
}

const MessageMap& Swatch::Messages() {
    static const MessageEntry kEntries[] = {
        OnMessage<&Swatch::OnMouseMove>(WM_MOUSEMOVE),
        OnMessage<&Swatch::OnLButtonDown>(WM_LBUTTONDOWN),
        OnMessage<&Swatch::OnSetFocus>(WM_SETFOCUS),
        OnReflected<&Swatch::OnClicked>(BN_CLICKED),
    };
    static const MessageMap kMap{&CBitmapButton::Messages(), kEntries};
    return kMap;
}

}  // namespace kv::swatches
