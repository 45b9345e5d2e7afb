#pragma once

#include <QPainter>
#include <QPalette>
#include <optional>
#include <string>

#include "workbench/map/map_projection.h"
#include "workbench/map/map_view.h"

namespace workbench {

/// A line that is being drawn, or was.
struct RubberLine {
    Place from;
    std::optional<Place> to;
    std::string length;  ///< in words; empty for none
};

/// Draws it over the map, with its length beside its end.
void DrawRubberLine(QPainter& painter, const MapView& view, const MapProjection& projection,
                    const RubberLine& line, const QPalette& palette);

}  // namespace workbench
