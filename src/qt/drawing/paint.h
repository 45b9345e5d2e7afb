#pragma once

#include <QIcon>
#include <QWidget>

#include "window/drawing/raster.h"
#include "window/node.h"

namespace kv::qt {

/// Lets a control that paints itself do so; false when it leaves its picture to the widget.
bool PaintByLayer(QWidget& widget, Node& node);

/// On a dark ground, outlines a check box or radio button that the style would leave hardly to be
/// seen.
void OutlineOnDark(QPainter& painter, const QRect& indicator, bool round, const QWidget& widget);

/// The image of that id in the resource chain; null where there is none.
QPixmap PixmapOf(int imageId);
QIcon IconOf(int imageId);
QIcon IconOf(const Raster& image);

}  // namespace kv::qt
