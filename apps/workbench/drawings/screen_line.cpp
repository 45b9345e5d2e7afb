#include "workbench/drawings/screen_line.h"

#include <cmath>

namespace workbench {

namespace {

constexpr double kOff = 0.45;  ///< pixels

}  // namespace

/// Goes from a kept point in the direction of the next one for as long as the line keeps to it.
QPolygonF ScreenLine(const MapView& view, std::span<const kv::map::Point> points) {
    QPolygonF line;
    if (points.empty()) return line;
    line.reserve(static_cast<qsizetype>(points.size()));
    const auto onScreen = [&](const kv::map::Point& point) {
        const ScreenPoint at = view.ToScreen(point);
        return QPointF(at.x, at.y);
    };
    line.append(onScreen(points.front()));
    QPointF last = line.back();
    QPointF direction;
    for (const kv::map::Point& point : points.subspan(1)) {
        const QPointF at = onScreen(point);
        QPointF off = at - line.back();
        const bool aside = std::abs(direction.x() * off.y() - direction.y() * off.x()) > kOff ||
                           QPointF::dotProduct(direction, at - last) < 0;
        if (!direction.isNull() && aside) {
            line.append(last);
            direction = {};
            off = at - last;
        }
        const double length = std::hypot(off.x(), off.y());
        if (direction.isNull() && length > kOff) direction = off / length;
        last = at;
    }
    // What is but a point is seen as one.
    if (line.size() == 1 && last == line.front()) last += QPointF(kOff, 0);
    line.append(last);
    return line;
}

}  // namespace workbench
