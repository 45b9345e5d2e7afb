#pragma once

#include <algorithm>
#include <limits>

#include "base/export.h"

/// Places on the earth and on the map. The map is drawn on Mercator's projection of the sphere: a
/// map unit is a degree of longitude, X grows to the east and Y to the north.
namespace kv::map {

/// Degrees, on the tables' own datum; longitude is negative west of Greenwich.
struct Place {
    double lat = 0;
    double lon = 0;
    bool operator==(const Place&) const = default;
};

/// Map units.
struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// Latitudes beyond 85 degrees count as 85, longitudes beyond 360 as 360.
KVGUICTL_API Point ToMap(const Place& place);
KVGUICTL_API Place ToPlace(const Point& point);

/// A box in map units; empty, and without any point, until something is included.
struct Box {
    double minX = std::numeric_limits<double>::max();
    double minY = std::numeric_limits<double>::max();
    double maxX = std::numeric_limits<double>::lowest();
    double maxY = std::numeric_limits<double>::lowest();

    bool Empty() const { return minX > maxX; }
    double Width() const { return Empty() ? 0 : maxX - minX; }
    double Height() const { return Empty() ? 0 : maxY - minY; }
    Point Middle() const { return {(minX + maxX) / 2, (minY + maxY) / 2}; }

    /// Edges count as inside.
    bool Contains(const Point& point) const {
        return point.x >= minX && point.x <= maxX && point.y >= minY && point.y <= maxY;
    }
    bool Meets(const Box& other) const {
        return minX <= other.maxX && maxX >= other.minX && minY <= other.maxY && maxY >= other.minY;
    }
    void Include(const Point& point) {
        minX = std::min(minX, point.x), maxX = std::max(maxX, point.x);
        minY = std::min(minY, point.y), maxY = std::max(maxY, point.y);
    }
    void Include(const Box& other) {
        minX = std::min(minX, other.minX), maxX = std::max(maxX, other.maxX);
        minY = std::min(minY, other.minY), maxY = std::max(maxY, other.maxY);
    }
    Box Grown(double by) const { return {minX - by, minY - by, maxX + by, maxY + by}; }
};

struct Segment {
    Point from;
    Point to;
};

/// Square of the distance between a point and a segment.
KVGUICTL_API double SquaredDistance(const Point& point, const Segment& segment);

/// Miles of 1,852 m between two places, along a great circle of the sphere of 6,371 km.
KVGUICTL_API double NauticalMiles(const Place& a, const Place& b);

}  // namespace kv::map
