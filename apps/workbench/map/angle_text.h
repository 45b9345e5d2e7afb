#pragma once

#include <string>

#include "workbench/map/geometry.h"

namespace workbench {

/// Degrees, minutes and seconds with two decimals: 28°30'15.25"N 89°07'30.00"W.
std::string DegreesMinutesSeconds(const Place& place);
/// Decimal degrees with six decimals: 28.504236 -89.125000.
std::string DecimalDegrees(const Place& place);
/// One angle for the edge of the map, with no more minutes than it has: 28°30'N, 89°W.
std::string ShortAngle(double degrees, char positive, char negative);

}  // namespace workbench
