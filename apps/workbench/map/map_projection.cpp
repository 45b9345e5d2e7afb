#include "workbench/map/map_projection.h"

#include <cmath>

#include "frame/kvcom/projection_code.h"
#include "frame/kvcom/util_lldrv.h"

namespace workbench {

namespace {

int DriverUnits(bool feet) {
    return feet ? 0 : 1;
}

bool IsStraightMercator(int code) {
    return kv::projection::IsOnSpheroid(code) &&
           kv::projection::ZoneOf(code) == kv::projection::kStraightMercator;
}

}  // namespace

bool DriverPlane::operator==(const DriverPlane& other) const {
    if (code != other.code || feet != other.feet) return false;
    return !IsStraightMercator(code) || (rectifyingPoint.lat == other.rectifyingPoint.lat &&
                                         rectifyingPoint.lon == other.rectifyingPoint.lon);
}

void DriverPlane::UseRectifyingPoint() const {
    if (!IsStraightMercator(code)) return;
    CKvUtilLLdrv::SetRectLat(rectifyingPoint.lat);
    CKvUtilLLdrv::SetRectLon(rectifyingPoint.lon);
}

std::optional<Point> DriverPlane::ToXY(const Place& place) const {
    UseRectifyingPoint();
    Point xy;
    CKvUtilLLdrv::LLdrv(place.lat, place.lon, &xy.x, &xy.y, code, DriverUnits(feet), 1, 100.0F,
                        0.0F, 0.0F);
    if (xy.x == CKvUtilLLdrv::kNoXY || xy.y == CKvUtilLLdrv::kNoXY) return {};
    return xy;
}

std::optional<Place> DriverPlane::ToPlace(const Point& xy) const {
    UseRectifyingPoint();
    Place place;
    CKvUtilLLdrv::XYdrv(xy.x, xy.y, &place.lat, &place.lon, code, DriverUnits(feet), 1, 100.0F,
                        0.0F, 0.0F);
    if (!std::isfinite(place.lat) || !std::isfinite(place.lon)) return {};
    return place;
}

std::optional<MapProjection> MapProjection::Of(const DriverPlane& plane, const Place& middle) {
    constexpr double kAside = 0.01;
    const auto here = plane.ToXY(middle);
    const auto aside = plane.ToXY({middle.lat, middle.lon + kAside});
    if (!here || !aside) return {};
    const double units = std::hypot(aside->x - here->x, aside->y - here->y) / kAside;
    if (!(units > 0)) return {};
    MapProjection projection;
    projection.driver_ = Driver{plane, *here, workbench::ToMap(middle), units};
    return projection;
}

std::optional<Point> MapProjection::ToMap(const Place& place) const {
    if (!driver_) return workbench::ToMap(place);
    const auto xy = driver_->plane.ToXY(place);
    if (!xy) return {};
    return FromXY(*xy);
}

std::optional<Place> MapProjection::ToPlace(const Point& point) const {
    if (!driver_) return workbench::ToPlace(point);
    return driver_->plane.ToPlace(ToXY(point));
}

Point MapProjection::FromXY(const Point& xy) const {
    return {driver_->middle.x + (xy.x - driver_->middleXY.x) / driver_->units,
            driver_->middle.y + (xy.y - driver_->middleXY.y) / driver_->units};
}

Point MapProjection::ToXY(const Point& point) const {
    return {driver_->middleXY.x + (point.x - driver_->middle.x) * driver_->units,
            driver_->middleXY.y + (point.y - driver_->middle.y) * driver_->units};
}

}  // namespace workbench
