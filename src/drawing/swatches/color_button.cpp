#include "drawing/swatches/color_button.h"

#include "drawing/swatches/color_words.h"
#include "frame/kvcom/color.h"

namespace {

COLORREF ColorOf(int index) {
    int red = 0;
    int green = 0;
    int blue = 0;
    CKvColor::GetRGBColor(index, red, green, blue);
    return RGB(red, green, blue);
}

}  // namespace

unsigned long CColorButton::GetColorValue(int nIndex) {
    return ColorOf(nIndex);
}

std::string CColorButton::ValueInWords() const {
    return kv::swatches::ColorInWords(m_nValue);
}

void CColorButton::DrawValue(CDC& context, const CRect& rect) const {
    const CRect inside = kv::swatches::Inside(rect);
    context.FillSolidRect(&inside, ColorOf(m_nValue));
}

void CColorButton::OnLButtonDown(UINT nFlags, CPoint point) {
    Swatch::OnLButtonDown(nFlags, point);
    if (!OpensPalette() && m_hWnd) m_hWnd->Notify(BN_KILLFOCUS);
}
