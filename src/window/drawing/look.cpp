#include "window/drawing/look.h"

#include "window/drawing/text_metrics.h"

namespace kv {

namespace {

Look* g_look = nullptr;

}  // namespace

PlainLook::PlainLook()
    : colors_{
          {SystemColor::kWindow, RGB(255, 255, 255)},
          {SystemColor::kWindowText, RGB(0, 0, 0)},
          {SystemColor::kHighlight, RGB(0, 95, 184)},
          {SystemColor::kHighlightText, RGB(255, 255, 255)},
          {SystemColor::kButtonFace, RGB(240, 240, 240)},
          {SystemColor::kButtonShadow, RGB(160, 160, 160)},
          {SystemColor::kGrayText, RGB(109, 109, 109)},
          {SystemColor::kButtonText, RGB(0, 0, 0)},
          {SystemColor::kButtonHighlight, RGB(255, 255, 255)},
          {SystemColor::kDarkShadow, RGB(105, 105, 105)},
          {SystemColor::kLight, RGB(227, 227, 227)},
      } {}

CSize PlainLook::TextExtent(const std::string& text, const Font& font) {
    return MeasureText(text, font);
}

Look& CurrentLook() {
    static PlainLook plain;
    return g_look ? *g_look : plain;
}

void SetLook(Look* look) {
    g_look = look;
}

}  // namespace kv
