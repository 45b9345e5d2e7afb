#include "workbench/map/cut.h"

#include <algorithm>
#include <array>

namespace workbench {

namespace {

/// An edge of a box: the coordinate that it limits, where, and which side of it is inside.
struct Edge {
    double Point::*limited;
    double at;
    double inward;  ///< 1 where larger coordinates are inside, else -1

    /// Above 0 inside, 0 on the edge.
    double Depth(const Point& point) const { return (point.*limited - at) * inward; }
    Point Meets(const Point& from, const Point& to) const {
        const double part = Depth(from) / (Depth(from) - Depth(to));
        Point point{from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
        point.*limited = at;
        return point;
    }
};

std::array<Edge, 4> EdgesOf(const Box& box) {
    return {{{&Point::x, box.minX, 1},
             {&Point::x, box.maxX, -1},
             {&Point::y, box.minY, 1},
             {&Point::y, box.maxY, -1}}};
}

std::vector<Point> CutAt(const Edge& edge, const std::vector<Point>& corners) {
    std::vector<Point> kept;
    kept.reserve(corners.size() + 4);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point& from = corners[i];
        const Point& to = corners[(i + 1) % corners.size()];
        const double before = edge.Depth(from);
        const double behind = edge.Depth(to);
        if (before >= 0) kept.push_back(from);
        if ((before > 0 && behind < 0) || (before < 0 && behind > 0))
            kept.push_back(edge.Meets(from, to));
    }
    return kept;
}

}  // namespace

std::optional<Segment> CutLine(const Segment& line, const Box& box) {
    Segment kept = line;
    for (const Edge& edge : EdgesOf(box)) {
        const double from = edge.Depth(kept.from);
        const double to = edge.Depth(kept.to);
        if (from < 0 && to < 0) return {};
        if (from < 0) kept.from = edge.Meets(kept.from, kept.to);
        if (to < 0) kept.to = edge.Meets(kept.from, kept.to);
    }
    return kept;
}

std::vector<std::vector<Point>> CutPath(std::span<const Point> points, const Box& box) {
    std::vector<std::vector<Point>> parts;
    bool goesOn = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const auto line = CutLine({points[i - 1], points[i]}, box);
        if (!line) {
            goesOn = false;
            continue;
        }
        if (!goesOn) parts.push_back({line->from});
        parts.back().push_back(line->to);
        goesOn = line->to == points[i];
    }
    return parts;
}

std::vector<Point> CutOutline(std::span<const Point> corners, const Box& box) {
    std::vector<Point> kept(corners.begin(), corners.end());
    for (const Edge& edge : EdgesOf(box))
        kept = CutAt(edge, kept);
    return kept.size() < 3 ? std::vector<Point>() : kept;
}

}  // namespace workbench
