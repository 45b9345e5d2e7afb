#pragma once

#include <QColor>
#include <QPalette>

#include "base/types.h"
#include "window/desktop.h"

namespace kv::qt {

inline QColor ToQColor(COLORREF color) {
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}
inline COLORREF ToColorRef(const QColor& color) {
    return RGB(color.red(), color.green(), color.blue());
}

/// Makes the ground of what is selected so dark, or so light, that its text can be read well.
void MakeSelectionReadable(QPalette& palette);

/// Of the application's palette.
COLORREF PaletteColor(SystemColor which);

}  // namespace kv::qt
