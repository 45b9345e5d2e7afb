#pragma once

#include <QIcon>
#include <QStyleOptionViewItem>
#include <QWidget>

#include "window/drawing/raster.h"
#include "window/node.h"

namespace kv::qt {

/// Lets a control that paints itself do so; false when it leaves its picture to the widget. The
/// widget reaches `beyond` the control by so many logical pixels on the left and on the right.
bool PaintByLayer(QWidget& widget, Node& node, int beyond = 0);

/// On a dark ground, outlines a check box or radio button that the style would leave hardly to be
/// seen.
void OutlineOnDark(QPainter& painter, const QRect& indicator, bool round, const QWidget& widget);

/// Outlines a list or a page of text that has the focus, as the style does with an edit.
void PaintFocus(QWidget& frame);

/// Draws a row's cell. What is selected can be read well, with the focus, too, which a style may
/// mark by a veil over the text.
void PaintCell(QPainter& painter, QStyleOptionViewItem cell, const QWidget& view);
/// Outlines a row that has the focus.
void OutlineRow(QPainter& painter, const QRect& row, const QColor& color);

/// Marks a push button that has the focus: a style may draw it as any other that Enter presses.
void MarkFocusedButton(QPainter& painter, const QWidget& button);

/// The image of that id in the resource chain; null where there is none.
QPixmap PixmapOf(int imageId);
QIcon IconOf(int imageId);
QIcon IconOf(const Raster& image);

}  // namespace kv::qt
