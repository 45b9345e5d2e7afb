#pragma once

#include <optional>

#include "workbench/map/geometry.h"

namespace workbench {

/// A projection of the coordinate driver, and the unit of X and Y in it. The point that Straight
/// Mercator is about is the process's: each conversion sets it first.
struct DriverPlane {
    int code = -1;
    bool feet = true;
    Place rectifyingPoint;

    /// None where the projection cannot show the place.
    std::optional<Point> ToXY(const Place& place) const;
    /// None where no place has that X and Y.
    std::optional<Place> ToPlace(const Point& xy) const;
    /// Makes the point the process's, where it counts.
    void UseRectifyingPoint() const;
    /// Of codes that have no use for it the point is not looked at.
    bool operator==(const DriverPlane& other) const;
};

/// How places become points of the map that is drawn, and back: Mercator's projection of the
/// sphere, or one of the coordinate driver, in which a map unit is as long as it is in Mercator's
/// around the middle of the map.
class MapProjection {
public:
    /// Mercator's.
    MapProjection() = default;
    /// None where the driver has no answer at `middle`.
    static std::optional<MapProjection> Of(const DriverPlane& plane, const Place& middle);

    bool IsMercator() const { return !driver_; }
    /// What a map unit of a driver's projection is in the unit of its X and Y.
    double UnitsOfMap() const { return driver_ ? driver_->units : 1; }
    bool InFeet() const { return driver_ && driver_->plane.feet; }

    std::optional<Point> ToMap(const Place& place) const;
    std::optional<Place> ToPlace(const Point& point) const;
    /// X and Y of the driver as points of the map, and back. Only of a driver's.
    Point FromXY(const Point& xy) const;
    Point ToXY(const Point& point) const;

private:
    struct Driver {
        DriverPlane plane;
        Point middleXY;
        Point middle;
        double units = 1;  ///< of X and Y, for a map unit
    };
    std::optional<Driver> driver_;
};

}  // namespace workbench
