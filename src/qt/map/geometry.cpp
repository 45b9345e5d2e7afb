#include "qt/map/geometry.h"

#include <cmath>
#include <numbers>

namespace kv::map {

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kLastLatitude = 85;
constexpr double kLastLongitude = 360;
constexpr double kEarthRadiusKm = 6371;
constexpr double kKmPerNauticalMile = 1.852;

}  // namespace

Point ToMap(const Place& place) {
    const double lat = std::clamp(place.lat, -kLastLatitude, kLastLatitude);
    const double lon = std::clamp(place.lon, -kLastLongitude, kLastLongitude);
    return {lon, std::asinh(std::tan(lat * kDegree)) / kDegree};
}

Place ToPlace(const Point& point) {
    return {std::atan(std::sinh(point.y * kDegree)) / kDegree, point.x};
}

double SquaredDistance(const Point& point, const Segment& segment) {
    const double dx = segment.to.x - segment.from.x;
    const double dy = segment.to.y - segment.from.y;
    const double length = dx * dx + dy * dy;
    double along = 0;
    if (length > 0) {
        along = ((point.x - segment.from.x) * dx + (point.y - segment.from.y) * dy) / length;
        along = std::clamp(along, 0.0, 1.0);
    }
    const double offX = point.x - (segment.from.x + along * dx);
    const double offY = point.y - (segment.from.y + along * dy);
    return offX * offX + offY * offY;
}

double NauticalMiles(const Place& a, const Place& b) {
    const double sinLat = std::sin((b.lat - a.lat) * kDegree / 2);
    const double sinLon = std::sin((b.lon - a.lon) * kDegree / 2);
    const double h =
        sinLat * sinLat + std::cos(a.lat * kDegree) * std::cos(b.lat * kDegree) * sinLon * sinLon;
    return 2 * kEarthRadiusKm * std::asin(std::sqrt(std::min(1.0, h))) / kKmPerNauticalMile;
}

}  // namespace kv::map
