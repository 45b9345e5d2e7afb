#pragma once

#include <string>
#include <vector>

#include "workbench/map/geometry.h"

/// The boundary of picks as others read it, in degrees.
namespace workbench {

/// A line for each corner, latitude and longitude with a blank between, the first corner again at
/// the end.
std::string BoundaryAsText(const std::vector<Place>& corners);
/// Corners on the datum of the tables, NAD27, as they lie on the one of GeoJSON, WGS 84, for which
/// NAD83 is taken: the two agree to two meters. Throws `MapFileError` where the grid between the
/// datums is not installed, or a corner lies outside of it.
std::vector<Place> OnWgs84(const std::vector<Place>& corners);
/// A feature with a polygon, whose corners go against the clock. The corners are on WGS 84.
std::string BoundaryAsGeoJson(const std::string& name, const std::vector<Place>& corners);

}  // namespace workbench
