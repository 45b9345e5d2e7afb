#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/map/map_projection.h"
#include "workbench/map/map_view.h"

namespace workbench {

/// The least and the greatest angles in a view; none where nothing of it is a place.
struct PlaceRange {
    Place least;
    Place most;
};
std::optional<PlaceRange> SeenPlaces(const MapView& view, const MapProjection& projection = {});

/// The lines of latitude and longitude that divide a view, in degrees.
struct Graticule {
    std::vector<double> longitudes;
    std::vector<double> latitudes;
};
/// At round degrees or minutes, some hundred pixels apart or more.
Graticule GraticuleOf(const MapView& view, const MapProjection& projection = {});

/// A line of latitude or longitude through a view, in pixels, from one end to the other.
struct GraticuleCurve {
    double angle = 0;
    std::vector<ScreenPoint> points;

    /// Where it crosses a line across the view, or one down; none where it does not.
    std::optional<double> XAt(double y) const;
    std::optional<double> YAt(double x) const;
};
struct GraticuleCurves {
    std::vector<GraticuleCurve> meridians;
    std::vector<GraticuleCurve> parallels;
};
GraticuleCurves CurvesOf(const MapView& view, const MapProjection& projection = {});

/// The largest of 1, 2 and 5 with zeros behind that is not above `limit`.
double RoundBelow(double limit);

/// A bar of a round length.
struct ScaleBar {
    double pixels = 0;
    std::string label;  ///< such as "20 km"
};
/// True at the place `at` of the view; at most `longest` pixels. A driver's projection measures in
/// its own unit.
ScaleBar ScaleBarOf(const MapView& view, const ScreenPoint& at, double longest,
                    const MapProjection& projection = {});

}  // namespace workbench
