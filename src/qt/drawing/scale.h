#pragma once

#include <QFont>
#include <QRect>
#include <QSize>

#include "base/types.h"
#include "window/desktop.h"

namespace kv::qt {

/// The layer's logical pixels and those of the screen: a dialog is as large as its font asks for.
struct Scale {
    double x = 1;
    double y = 1;

    QRect ToScreen(const CRect& rect) const;
    QPoint ToScreen(CPoint at) const;
    QSize ToScreen(CSize size) const;
    CRect ToLogical(const QRect& rect) const;
    CPoint ToLogical(const QPoint& at) const;
    CSize ToLogical(const QSize& size) const;
    bool operator==(const Scale&) const = default;
};

/// By the application's font.
Scale CurrentScale();
/// The application's font has changed.
void ForgetScale();

/// The font that stands for one of the layer.
QFont ToQFont(const Font& font);

}  // namespace kv::qt
