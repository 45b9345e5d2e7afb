#include "workbench/map/outline.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <utility>

namespace workbench {

namespace {

using Corner = std::uint32_t;

/// Corners are held in cells of this size in map units; those nearer than a quarter of it are one.
constexpr double kCell = 1e-6;
constexpr double kNear = 0.25;
/// How far beside a side a corner may lie that divides it, in map units: some two metres.
constexpr double kBeside = 2e-5;

struct Side {
    Corner from;
    Corner to;
};

/// Gives each corner a number, the same to those that differ by rounding.
class Corners {
public:
    Corner NumberOf(const Point& point) {
        const double x = point.x / kCell;
        const double y = point.y / kCell;
        const auto column = static_cast<std::int64_t>(std::floor(x));
        const auto row = static_cast<std::int64_t>(std::floor(y));
        const int dx = Neighbor(x - std::floor(x));
        const int dy = Neighbor(y - std::floor(y));
        const std::array<std::pair<int, int>, 4> cells = {{{0, 0}, {dx, 0}, {0, dy}, {dx, dy}}};
        for (const auto& [right, up] : cells) {
            const auto found = byCell_.find(Key(column + right, row + up));
            if (found != byCell_.end()) return found->second;
        }
        const auto number = static_cast<Corner>(points_.size());
        byCell_.emplace(Key(column, row), number);
        points_.push_back(point);
        return number;
    }
    const Point& operator[](Corner corner) const { return points_[corner]; }

private:
    static int Neighbor(double part) { return part < kNear ? -1 : part > 1 - kNear ? 1 : 0; }
    static std::uint64_t Key(std::int64_t column, std::int64_t row) {
        return (static_cast<std::uint64_t>(column) << 32) ^
               (static_cast<std::uint64_t>(row) & 0xFFFFFFFF);
    }

    std::unordered_map<std::uint64_t, Corner> byCell_;
    std::vector<Point> points_;
};

std::uint64_t KeyOf(const Side& side) {
    return (static_cast<std::uint64_t>(side.from) << 32) | side.to;
}

/// Moves the sides that lie twice, once in each direction, to `inner`; gives back the others.
std::vector<Side> TakePairs(const std::vector<Side>& sides, const Corners& corners,
                            std::vector<Segment>& inner) {
    std::unordered_map<std::uint64_t, int> left;
    left.reserve(sides.size());
    for (const Side& side : sides) {
        const auto opposite = left.find(KeyOf({side.to, side.from}));
        if (opposite != left.end() && opposite->second > 0) {
            --opposite->second;
            inner.push_back({corners[side.from], corners[side.to]});
        } else {
            ++left[KeyOf(side)];
        }
    }
    std::vector<Side> single;
    for (const Side& side : sides) {
        const auto found = left.find(KeyOf(side));
        if (found == left.end() || found->second == 0) continue;
        --found->second;
        single.push_back(side);
    }
    return single;
}

/// Divides each side at the corners that lie on it.
std::vector<Side> Divide(const std::vector<Side>& sides, const Corners& corners) {
    std::vector<Side> divided;
    std::vector<std::pair<double, Corner>> on;
    for (const Side& side : sides) {
        const Segment line{corners[side.from], corners[side.to]};
        Box around;
        around.Include(line.from), around.Include(line.to);
        around = around.Grown(kBeside);
        on.clear();
        for (const Side& other : sides) {
            const Corner corner = other.from;
            const Point& point = corners[corner];
            if (corner == side.from || corner == side.to || !around.Contains(point)) continue;
            if (SquaredDistance(point, line) > kBeside * kBeside) continue;
            on.emplace_back(std::hypot(point.x - line.from.x, point.y - line.from.y), corner);
        }
        std::sort(on.begin(), on.end());
        Corner from = side.from;
        for (const auto& [distance, corner] : on) {
            if (corner != from) divided.push_back({from, corner});
            from = corner;
        }
        divided.push_back({from, side.to});
    }
    return divided;
}

/// Leaves out the corners on a straight line.
std::vector<Point> Straightened(const std::vector<Point>& ring) {
    std::vector<Point> kept;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point& before = kept.empty() ? ring.back() : kept.back();
        const Point& after = ring[(i + 1) % ring.size()];
        if (SquaredDistance(ring[i], {before, after}) > kBeside * kBeside) kept.push_back(ring[i]);
    }
    return kept;
}

std::vector<std::vector<Point>> Chain(const std::vector<Side>& sides, const Corners& corners) {
    std::unordered_multimap<Corner, Corner> next;
    for (const Side& side : sides)
        next.emplace(side.from, side.to);
    std::vector<std::vector<Point>> rings;
    while (!next.empty()) {
        const Corner first = next.begin()->first;
        std::vector<Point> ring;
        Corner at = first;
        for (auto found = next.find(at); found != next.end(); found = next.find(at)) {
            ring.push_back(corners[at]);
            at = found->second;
            next.erase(found);
            if (at == first) break;
        }
        ring = Straightened(ring);
        if (ring.size() >= 3) rings.push_back(std::move(ring));
    }
    return rings;
}

}  // namespace

Outline Unite(const FeatureLayer& blocks) {
    Corners corners;
    std::vector<Side> sides;
    sides.reserve(blocks.AllPoints().size());
    for (std::size_t number = 0; number < blocks.Size(); ++number) {
        const auto points = blocks.Points(number);
        if (points.empty()) continue;
        Corner from = corners.NumberOf(points.back());
        for (const Point& point : points) {
            const Corner to = corners.NumberOf(point);
            if (to != from) sides.push_back({from, to});
            from = to;
        }
    }
    Outline outline;
    sides = TakePairs(sides, corners, outline.inner);
    sides = TakePairs(Divide(sides, corners), corners, outline.inner);
    outline.rings = Chain(sides, corners);
    return outline;
}

}  // namespace workbench
