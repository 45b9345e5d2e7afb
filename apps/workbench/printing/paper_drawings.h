#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "workbench/drawings/drawings.h"
#include "workbench/printing/paper_map.h"

namespace workbench {

/// Drawings, and how many feet an inch is at the scale of the map that they were drawn on.
struct MapDrawings {
    std::shared_ptr<const Drawings> drawings;  ///< null for none
    double feetPerInch = 1;
};

/// Drawings in a projection: points are in X and Y.
struct PaperDrawings {
    MapDrawings from;
    std::vector<std::vector<Point>> lines;  ///< empty for one that the projection cannot show
    std::vector<std::optional<Point>> texts;
    std::int64_t leftOut = 0;  ///< how many it cannot show
};
PaperDrawings DrawingsOnPaper(const MapDrawings& from, const PaperProjection& projection);

}  // namespace workbench
