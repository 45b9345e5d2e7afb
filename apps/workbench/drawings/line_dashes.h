#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <span>

namespace workbench {

/// How thick a line of that width is, in pixels of 1/96 inch.
constexpr double LineThickness(int width) {
    return width + 1;
}

/// Whether a line of that type is whole, and whether nothing of it is seen.
constexpr bool IsSolid(int type) {
    return type == 0;
}
constexpr bool IsBlank(int type) {
    return type == 5;
}

/// The dashes of a line of that type as parts of one path, as far as they may be seen in `seen`.
/// They are those of the line type's swatch, longer where the line is thick; all lengths are in the
/// unit of the points, of which `pixel` make a pixel.
QPainterPath DashesOf(std::span<const QPointF> points, int type, int width, double pixel,
                      const QRectF& seen);

}  // namespace workbench
