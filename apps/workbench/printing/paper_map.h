#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "workbench/map/map_model.h"
#include "workbench/map/map_projection.h"

/// The map in a projection of its own, in which X and Y are feet.
namespace workbench {

/// A projection by its code, and what it is called. Straight Mercator is about the point.
struct PaperProjection {
    int code = -1;
    std::string name;
    Place rectifyingPoint = {};

    /// None where the projection cannot show the place.
    std::optional<Point> FromMap(const Point& onMap) const;
    /// Angles that are not finite where no place has that X and Y.
    Place PlaceOf(const Point& xy) const;
    /// The projection, in feet.
    DriverPlane Plane() const { return {code, true, rectifyingPoint}; }
};

/// The usual projection of an area; none where the database has none for it. Its failure throws
/// CKvException.
std::optional<PaperProjection> ProjectionOf(const AreaMap& area);

/// The areas that lie in the middle of a part of the map, or else in any of it.
std::vector<const AreaMap*> AreasIn(const MapModel& model, const Box& part);

/// Bounds in X and Y: of all corners of what is picked, and of a part of the map. Empty where
/// nothing of it has X and Y.
Box BoundsOf(const Pick& pick, const PaperProjection& projection);
Box BoundsOf(const Box& part, const PaperProjection& projection);

/// What of the map lies within bounds in X and Y. Points are in X and Y, too.
struct PaperMap {
    PaperProjection projection;
    std::vector<AreaMap> areas;
    /// Things that the projection cannot show all of, and which are not there.
    std::int64_t leftOut = 0;
};
PaperMap MapOnPaper(const MapModel& model, const PaperProjection& projection, const Box& bounds);

}  // namespace workbench
