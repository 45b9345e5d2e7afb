#pragma once

#include <string>
#include <vector>

#include "workbench/map/geometry.h"

/// The boundary of picks as others read it: in degrees on the tables' own datum.
namespace workbench {

/// A line for each corner, latitude and longitude with a blank between, the first corner again at
/// the end.
std::string BoundaryAsText(const std::vector<Place>& corners);
/// A feature with a polygon, whose corners go against the clock.
std::string BoundaryAsGeoJson(const std::string& name, const std::vector<Place>& corners);

}  // namespace workbench
