#include "workbench/map/graticule.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace workbench {

namespace {

constexpr double kLeastDistance = 110;  ///< pixels
constexpr double kStepsInMinutes[] = {1, 2, 5, 10, 15, 30, 60, 120, 300, 600};

double StepFor(double scale) {
    for (const double minutes : kStepsInMinutes) {
        if (minutes / 60 * scale >= kLeastDistance) return minutes / 60;
    }
    return std::end(kStepsInMinutes)[-1] / 60;
}

std::vector<double> Multiples(double step, double from, double to) {
    std::vector<double> values;
    const auto last = static_cast<long long>(std::floor(to / step));
    for (auto i = static_cast<long long>(std::ceil(from / step)); i <= last; ++i) {
        values.push_back(static_cast<double>(i) * step);
    }
    return values;
}

constexpr double kMetresPerNauticalMile = 1852;

/// A curve is followed in so many steps; the view is looked at in as many squares each way.
constexpr int kCurveSteps = 24;
constexpr int kViewSteps = 8;

/// The line on which one angle stays and the other goes from `from` to `to`.
template <typename PlaceAt>
GraticuleCurve CurveOf(double angle, double from, double to, const MapView& view,
                       const MapProjection& projection, PlaceAt&& placeAt) {
    // A little beyond the view, so that it reaches the edges.
    const double room = (to - from) / kCurveSteps;
    const int steps = projection.IsMercator() ? 1 : kCurveSteps;
    GraticuleCurve curve{angle, {}};
    for (int i = 0; i <= steps; ++i) {
        const double along = from - room + (to - from + 2 * room) * i / steps;
        if (const auto point = projection.ToMap(placeAt(along)))
            curve.points.push_back(view.ToScreen(*point));
    }
    return curve;
}

std::optional<double> Crossing(const std::vector<ScreenPoint>& points, double at,
                               double ScreenPoint::*across, double ScreenPoint::*along) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        const ScreenPoint& a = points[i - 1];
        const ScreenPoint& b = points[i];
        if ((a.*across < at) == (b.*across < at)) continue;
        return a.*along + (b.*along - a.*along) * (at - a.*across) / (b.*across - a.*across);
    }
    return {};
}

std::string MetresText(double metres) {
    return metres >= 1000 ? kv::FormatText("%g km", metres / 1000) : kv::FormatText("%g m", metres);
}

}  // namespace

std::optional<double> GraticuleCurve::XAt(double y) const {
    return Crossing(points, y, &ScreenPoint::y, &ScreenPoint::x);
}

std::optional<double> GraticuleCurve::YAt(double x) const {
    return Crossing(points, x, &ScreenPoint::x, &ScreenPoint::y);
}

double RoundBelow(double limit) {
    const double power = std::pow(10.0, std::floor(std::log10(limit)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * power <= limit) return factor * power;
    }
    return power;
}

std::optional<PlaceRange> SeenPlaces(const MapView& view, const MapProjection& projection) {
    const int steps = projection.IsMercator() ? 1 : kViewSteps;
    std::optional<PlaceRange> range;
    for (int row = 0; row <= steps; ++row) {
        for (int column = 0; column <= steps; ++column) {
            const auto place = projection.ToPlace(view.ToMap(
                {1.0 * view.Width() * column / steps, 1.0 * view.Height() * row / steps}));
            if (!place) continue;
            if (!range) range = PlaceRange{*place, *place};
            range->least.lat = std::min(range->least.lat, place->lat);
            range->least.lon = std::min(range->least.lon, place->lon);
            range->most.lat = std::max(range->most.lat, place->lat);
            range->most.lon = std::max(range->most.lon, place->lon);
        }
    }
    return range;
}

Graticule GraticuleOf(const MapView& view, const MapProjection& projection) {
    const double step = StepFor(view.Scale());
    const auto seen = SeenPlaces(view, projection);
    if (!seen) return {};
    return {Multiples(step, seen->least.lon, seen->most.lon),
            Multiples(step, seen->least.lat, seen->most.lat)};
}

GraticuleCurves CurvesOf(const MapView& view, const MapProjection& projection) {
    const auto seen = SeenPlaces(view, projection);
    if (!seen) return {};
    const Graticule lines = GraticuleOf(view, projection);
    GraticuleCurves curves;
    for (const double lon : lines.longitudes) {
        curves.meridians.push_back(
            CurveOf(lon, seen->least.lat, seen->most.lat, view, projection, [lon](double lat) {
                return Place{lat, lon};
            }));
    }
    for (const double lat : lines.latitudes) {
        curves.parallels.push_back(
            CurveOf(lat, seen->least.lon, seen->most.lon, view, projection, [lat](double lon) {
                return Place{lat, lon};
            }));
    }
    return curves;
}

ScaleBar ScaleBarOf(const MapView& view, const ScreenPoint& at, double longest,
                    const MapProjection& projection) {
    if (!projection.IsMercator()) {
        const double units = longest / view.Scale() * projection.UnitsOfMap();
        const double length = RoundBelow(units);
        return {longest * length / units,
                projection.InFeet() ? kv::FormatText("%.0f ft", length) : MetresText(length)};
    }
    const Place left = ToPlace(view.ToMap({at.x - longest / 2, at.y}));
    const Place right = ToPlace(view.ToMap({at.x + longest / 2, at.y}));
    const double metres = NauticalMiles(left, right) * kMetresPerNauticalMile;
    if (!(metres > 0)) return {};
    const double length = RoundBelow(metres);
    return {longest * length / metres, MetresText(length)};
}

}  // namespace workbench
