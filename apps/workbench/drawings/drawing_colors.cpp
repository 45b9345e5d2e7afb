#include "workbench/drawings/drawing_colors.h"

#include "frame/kvcom/color.h"

namespace workbench {

namespace {

/// Of 255: what is darker is not told from the ground.
constexpr int kLeastLightness = 70;

}  // namespace

QColor DrawnColor(int index) {
    int red = 0;
    int green = 0;
    int blue = 0;
    CKvColor::GetRGBColor(index, red, green, blue);
    return {red, green, blue};
}

QColor OnDarkMap(const QColor& color) {
    if (color.lightness() >= kLeastLightness) return color;
    return QColor::fromHsl(color.hslHue(), color.hslSaturation(), 255 - color.lightness());
}

}  // namespace workbench
