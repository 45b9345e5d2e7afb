#include "workbench/map/graticule.h"

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

}  // namespace

double RoundBelow(double limit) {
    const double power = std::pow(10.0, std::floor(std::log10(limit)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * power <= limit) return factor * power;
    }
    return power;
}

Graticule GraticuleOf(const MapView& view) {
    const double step = StepFor(view.Scale());
    const Box seen = view.Visible();
    const Place lowest = ToPlace({seen.minX, seen.minY});
    const Place highest = ToPlace({seen.maxX, seen.maxY});
    return {Multiples(step, lowest.lon, highest.lon), Multiples(step, lowest.lat, highest.lat)};
}

ScaleBar ScaleBarOf(const MapView& view, const ScreenPoint& at, double longest) {
    const Place left = ToPlace(view.ToMap({at.x - longest / 2, at.y}));
    const Place right = ToPlace(view.ToMap({at.x + longest / 2, at.y}));
    const double metres = NauticalMiles(left, right) * kMetresPerNauticalMile;
    if (!(metres > 0)) return {};
    const double length = RoundBelow(metres);
    return {longest * length / metres, length >= 1000 ? kv::FormatText("%g km", length / 1000)
                                                      : kv::FormatText("%g m", length)};
}

}  // namespace workbench
