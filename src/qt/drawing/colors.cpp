#include "qt/drawing/colors.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

namespace kv::qt {

namespace {

/// As people see it, by the guidelines for contents that everybody can read.
double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace

void MakeSelectionReadable(QPalette& palette) {
    constexpr double kLeastContrast = 5;
    constexpr int kStep = 105;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        QColor ground = palette.color(group, QPalette::Highlight);
        const QColor text = palette.color(group, QPalette::HighlightedText);
        const bool darken = Luminance(text) > Luminance(ground);
        while (Contrast(ground, text) < kLeastContrast) {
            const QColor next = darken ? ground.darker(kStep) : ground.lighter(kStep);
            if (next == ground) break;
            ground = next;
        }
        palette.setColor(group, QPalette::Highlight, ground);
    }
}

COLORREF PaletteColor(SystemColor which) {
    const QPalette palette = QApplication::palette();
    const auto color = [&](QPalette::ColorRole role, QPalette::ColorGroup group) {
        return ToColorRef(palette.color(group, role));
    };
    switch (which) {
        case SystemColor::kWindow:
            return color(QPalette::Base, QPalette::Active);
        case SystemColor::kWindowText:
            return color(QPalette::Text, QPalette::Active);
        case SystemColor::kHighlight:
            return color(QPalette::Highlight, QPalette::Active);
        case SystemColor::kHighlightText:
            return color(QPalette::HighlightedText, QPalette::Active);
        case SystemColor::kButtonFace:
            return color(QPalette::Window, QPalette::Active);
        case SystemColor::kButtonShadow:
            return color(QPalette::Mid, QPalette::Active);
        case SystemColor::kGrayText:
            return color(QPalette::WindowText, QPalette::Disabled);
        case SystemColor::kButtonText:
            return color(QPalette::WindowText, QPalette::Active);
        case SystemColor::kButtonHighlight:
            return color(QPalette::Light, QPalette::Active);
        case SystemColor::kDarkShadow:
            return color(QPalette::Dark, QPalette::Active);
        case SystemColor::kLight:
            return color(QPalette::Midlight, QPalette::Active);
    }
    return 0;
}

}  // namespace kv::qt
