#pragma once

#include <QIcon>
#include <QWidget>

#include "window/node.h"

namespace kv::qt {

/// Lets a control that paints itself do so; false when it leaves its picture to the widget.
bool PaintByLayer(QWidget& widget, Node& node);

/// The image of that id in the resource chain; null where there is none.
QPixmap PixmapOf(int imageId);
QIcon IconOf(int imageId);

}  // namespace kv::qt
