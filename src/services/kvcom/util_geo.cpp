#include "frame/kvcom/util_geo.h"

#include <geos_c.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

namespace {

/// The Earth's mean radius (IUGG), in meters: an outline is small enough for a sphere.
constexpr double kEarthRadius = 6371008.8;
constexpr double kMetersPerDegree = kEarthRadius * std::numbers::pi / 180.0;
/// Sine of the angle at which two edges part too soon to share a piece.
constexpr double kLargestTurn = CKvUtilGeo::kTolerance / CKvUtilGeo::kSharedLength;

/// A place in meters east and north of the plane's origin, or the way from one to another.
struct Spot {
    double x = 0.0;
    double y = 0.0;
    friend Spot operator-(const Spot& a, const Spot& b) { return {a.x - b.x, a.y - b.y}; }
    bool operator==(const Spot&) const = default;
};

double Dot(const Spot& a, const Spot& b) {
    return a.x * b.x + a.y * b.y;
}
double Cross(const Spot& a, const Spot& b) {
    return a.x * b.y - a.y * b.x;
}
double Length(const Spot& way) {
    return std::hypot(way.x, way.y);
}

struct Edge {
    Spot from;
    Spot to;
    Spot Way() const { return to - from; }
    Spot Middle() const { return {(from.x + to.x) / 2, (from.y + to.y) / 2}; }
};

double Distance(const Spot& spot, const Edge& edge) {
    const Spot way = edge.Way();
    const double along = std::clamp(Dot(spot - edge.from, way) / Dot(way, way), 0.0, 1.0);
    return Length(spot - Spot{edge.from.x + along * way.x, edge.from.y + along * way.y});
}

struct Box {
    double west = HUGE_VAL, south = HUGE_VAL, east = -HUGE_VAL, north = -HUGE_VAL;

    void Take(const Spot& spot) {
        west = std::min(west, spot.x);
        south = std::min(south, spot.y);
        east = std::max(east, spot.x);
        north = std::max(north, spot.y);
    }
    bool IsNear(const Box& other) const {
        constexpr double t = CKvUtilGeo::kTolerance;
        return west <= other.east + t && other.west <= east + t && south <= other.north + t &&
               other.south <= north + t;
    }
    bool IsLike(const Box& other) const {
        const auto near = [](double a, double b) {
            return std::abs(a - b) <= CKvUtilGeo::kTolerance;
        };
        return near(west, other.west) && near(east, other.east) && near(south, other.south) &&
               near(north, other.north);
    }
};

Box BoxOf(const Edge& edge) {
    Box box;
    box.Take(edge.from);
    box.Take(edge.to);
    return box;
}

/// An outline in the plane.
struct Ring {
    std::vector<Edge> edges;
    Box box;

    bool HasThreeCorners() const {
        return std::ranges::any_of(edges, [&](const Edge& edge) {
            return edge.from != edges.front().from && edge.from != edges.front().to;
        });
    }
};

using Outline = std::vector<CKvDispPoint>;

bool IsPlace(const CKvDispPoint& point) {
    return std::abs(point.GetX()) <= 90.0 && std::isfinite(point.GetY());
}

/// A plane on which both outlines are true to scale where they meet, if they do.
class Plane {
public:
    Plane(const CKvDispPoint& first, const CKvDispPoint& second)
        : latitude_((first.GetX() + second.GetX()) / 2),
          longitude_(first.GetY()),
          metersPerDegreeEast_(kMetersPerDegree * std::cos(latitude_ * std::numbers::pi / 180.0)) {}

    /// Outlines on both sides of the meridian of 180 degrees meet, too.
    Spot Place(const CKvDispPoint& point) const {
        return {std::remainder(point.GetY() - longitude_, 360.0) * metersPerDegreeEast_,
                (point.GetX() - latitude_) * kMetersPerDegree};
    }

    Ring Draw(const Outline& outline) const {
        Ring ring;
        ring.edges.reserve(outline.size());
        Spot from = Place(outline.back());
        for (const CKvDispPoint& point : outline) {
            const Spot to = Place(point);
            if (to == from) continue;
            ring.box.Take(to);
            ring.edges.push_back({from, to});
            from = to;
        }
        return ring;
    }

private:
    double latitude_;
    double longitude_;
    double metersPerDegreeEast_;
};

bool IsDrawable(const Outline& outline) {
    return outline.size() >= 3 && std::ranges::all_of(outline, IsPlace);
}

bool RunsAlong(const Ring& ring, const Ring& other) {
    const auto lies = [&](const Spot& spot) {
        return std::ranges::any_of(other.edges, [&](const Edge& edge) {
            return Distance(spot, edge) <= CKvUtilGeo::kTolerance;
        });
    };
    return std::ranges::all_of(
        ring.edges, [&](const Edge& edge) { return lies(edge.from) && lies(edge.Middle()); });
}

bool IsOneAndTheSame(const Ring& first, const Ring& second) {
    return first.box.IsLike(second.box) && RunsAlong(first, second) && RunsAlong(second, first);
}

/// Two outlines that might touch; nothing for such that cannot.
struct Pair {
    Ring first;
    Ring second;
    bool mayTouch = false;

    Pair(const Outline& firstOutline, const Outline& secondOutline) {
        if (!IsDrawable(firstOutline) || !IsDrawable(secondOutline)) return;
        const Plane plane(firstOutline.front(), secondOutline.front());
        first = plane.Draw(firstOutline);
        second = plane.Draw(secondOutline);
        mayTouch = first.HasThreeCorners() && second.HasThreeCorners() &&
                   first.box.IsNear(second.box) && !IsOneAndTheSame(first, second);
    }
};

/// A piece of an edge, in parts of its length.
struct Piece {
    double from = 0.0;
    double to = 1.0;

    /// Cuts it to where `start + slope * part` lies between the bounds.
    void Cut(double start, double slope, double least, double most) {
        if (slope == 0.0) {
            if (start < least || start > most) to = from;
            return;
        }
        double enters = (least - start) / slope;
        double leaves = (most - start) / slope;
        if (enters > leaves) std::swap(enters, leaves);
        from = std::max(from, enters);
        to = std::min(to, leaves);
    }
};

/// What of `edge` runs beside `other`; empty where they do not run the same way or back.
Piece PieceBeside(const Edge& edge, const Edge& other) {
    Piece piece;
    const Spot way = edge.Way();
    const Spot otherWay = other.Way();
    const double length = Length(way);
    const double otherLength = Length(otherWay);
    const double turn = Cross(otherWay, way) / otherLength;
    if (std::abs(turn) > kLargestTurn * length) return {0.0, 0.0};
    const Spot start = edge.from - other.from;
    piece.Cut(Cross(otherWay, start) / otherLength, turn, -CKvUtilGeo::kTolerance,
              CKvUtilGeo::kTolerance);
    piece.Cut(Dot(otherWay, start) / otherLength, Dot(otherWay, way) / otherLength, 0.0,
              otherLength);
    return piece;
}

/// How much of the edge lies in any of the pieces, which it sorts.
double CoveredPart(std::vector<Piece>& pieces) {
    std::ranges::sort(pieces, {}, &Piece::from);
    double covered = 0.0;
    double end = 0.0;
    for (const Piece& piece : pieces) {
        covered += std::max(0.0, piece.to - std::max(end, piece.from));
        end = std::max(end, piece.to);
    }
    return covered;
}

bool SharesBoundary(const Ring& first, const Ring& second) {
    double shared = 0.0;
    std::vector<Piece> pieces;
    for (const Edge& edge : first.edges) {
        const Box box = BoxOf(edge);
        if (!box.IsNear(second.box)) continue;
        pieces.clear();
        for (const Edge& other : second.edges) {
            if (!box.IsNear(BoxOf(other))) continue;
            const Piece piece = PieceBeside(edge, other);
            if (piece.from < piece.to) pieces.push_back(piece);
        }
        shared += CoveredPart(pieces) * Length(edge.Way());
        if (shared >= CKvUtilGeo::kSharedLength) return true;
    }
    return false;
}

/// One for the whole process: it stands on one thread.
GEOSContextHandle_t Geos() {
    struct Finish {
        void operator()(GEOSContextHandle_t handle) const { GEOS_finish_r(handle); }
    };
    static const std::unique_ptr<GEOSContextHandle_HS, Finish> handle(GEOS_init_r());
    return handle.get();
}

struct DestroyGeometry {
    void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(Geos(), geometry); }
};
using Geometry = std::unique_ptr<GEOSGeometry, DestroyGeometry>;

/// Null where GEOS refuses it.
Geometry AreaOf(const Ring& ring) {
    std::vector<double> places;
    places.reserve(2 * ring.edges.size() + 2);
    for (const Edge& edge : ring.edges)
        places.insert(places.end(), {edge.from.x, edge.from.y});
    places.insert(places.end(), {ring.edges.front().from.x, ring.edges.front().from.y});
    GEOSCoordSequence* sequence = GEOSCoordSeq_copyFromBuffer_r(
        Geos(), places.data(), static_cast<unsigned>(places.size() / 2), 0, 0);
    GEOSGeometry* line = sequence ? GEOSGeom_createLinearRing_r(Geos(), sequence) : nullptr;
    return Geometry(line ? GEOSGeom_createPolygon_r(Geos(), line, nullptr, 0) : nullptr);
}

}  // namespace

bool CKvUtilGeo::AreTheyAdjacent(const std::vector<CKvDispPoint>& first,
                                 const std::vector<CKvDispPoint>& second) const {
    const Pair pair(first, second);
    return pair.mayTouch && SharesBoundary(pair.first, pair.second);
}

bool CKvUtilGeo::AreTheyAdjoining(const std::vector<CKvDispPoint>& first,
                                  const std::vector<CKvDispPoint>& second) const {
    const Pair pair(first, second);
    if (!pair.mayTouch) return false;
    const Geometry firstArea = AreaOf(pair.first);
    const Geometry secondArea = AreaOf(pair.second);
    return firstArea && secondArea &&
           GEOSDistanceWithin_r(Geos(), firstArea.get(), secondArea.get(), kTolerance) == 1;
}

CMinMax2Dd_t CKvUtilGeo::PolyLineGetMinMax(const std::vector<CKvDispPoint>& points) {
    if (points.empty()) return {};
    const auto [west, east] = std::ranges::minmax(points, {}, &CKvDispPoint::GetX);
    const auto [south, north] = std::ranges::minmax(points, {}, &CKvDispPoint::GetY);
    return {west.GetX(), east.GetX(), south.GetY(), north.GetY()};
}
