#pragma once

#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include "workbench/drawings/drawings.h"

namespace workbench {

/// A text whose capital letters are one unit high, about its place, not turned yet; Y grows down.
struct TextShape {
    double fontSize = 0;  ///< of the font, in units
    QPointF begin;        ///< of the base line
    double length = 0;    ///< of the base line
    QRectF box;           ///< around all letters
};
TextShape ShapeOf(const DrawnText& text);

/// How thick the strokes are drawn beyond those of the font, in heights of the text.
double StrokeOf(int weight);

/// The family that drawn texts are written in.
QString DrawnFont();

/// The letters of a text as an outline, in units, not turned.
QPainterPath LettersOf(const DrawnText& text);

/// From units about the place to where the text stands at its angle: `at` is the place, and `unit`
/// the height of the capital letters there.
QTransform PlacedAt(const DrawnText& text, const QPointF& at, double unit);

}  // namespace workbench
