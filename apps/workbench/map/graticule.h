#pragma once

#include <string>
#include <vector>

#include "workbench/map/map_view.h"

namespace workbench {

/// The lines of latitude and longitude that divide a view, in degrees.
struct Graticule {
    std::vector<double> longitudes;
    std::vector<double> latitudes;
};
/// At round degrees or minutes, some hundred pixels apart or more.
Graticule GraticuleOf(const MapView& view);

/// The largest of 1, 2 and 5 with zeros behind that is not above `limit`.
double RoundBelow(double limit);

/// A bar of a round length.
struct ScaleBar {
    double pixels = 0;
    std::string label;  ///< such as "20 km"
};
/// True at the place `at` of the view; at most `longest` pixels.
ScaleBar ScaleBarOf(const MapView& view, const ScreenPoint& at, double longest);

}  // namespace workbench
