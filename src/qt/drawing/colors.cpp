#include "qt/drawing/colors.h"

#include <QApplication>
#include <QPalette>

namespace kv::qt {

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
