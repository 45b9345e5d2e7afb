#pragma once

#include <QPolygonF>
#include <span>

#include "workbench/map/map_view.h"

namespace workbench {

/// A line on the screen, without the points that nobody sees: it is nowhere half a pixel off.
QPolygonF ScreenLine(const MapView& view, std::span<const kv::map::Point> points);

}  // namespace workbench
