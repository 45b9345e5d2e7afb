#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "workbench/document/map_document.h"
#include "workbench/map/map_frame.h"
#include "workbench/map/map_projection.h"

/// Where a map that was built lies.
namespace workbench {

/// The projection and unit of its X and Y, with its own rectifying point.
DriverPlane PlaneOf(const BuiltMap& map);
/// Whether it has width and height, in degrees or in X and Y.
bool HasExtent(const BuiltMap& map);
/// None where it has no latitude and longitude.
std::optional<Place> MiddleOf(const BuiltMap& map);

/// The edge as places: the four sides of latitude and longitude, followed in steps, where these
/// bound the map, the corners of X and Y where those do. Empty where the map has no such bounds.
std::vector<Place> EdgeOf(const BuiltMap& map);
/// X and Y around the whole edge, in the unit of `plane`, which may be another one than the map's.
/// Near the border of a zone the corners alone could have X the wrong way round.
Box XyBoundsOf(const BuiltMap& map, const DriverPlane& plane);

/// The edge as it is drawn; none where there is none in that projection.
std::optional<MapFrame> FrameOf(const BuiltMap& map, const MapProjection& projection);

/// What a projection is called: "115 UTM".
std::string ProjectionName(int code);
/// The scale in words: "1 inch = 2000 feet", "1 : 24000".
QString ScaleText(const BuiltMap& map);

}  // namespace workbench
