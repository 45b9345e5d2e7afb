#include "sampledata/grid.h"

#include <proj.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <stdexcept>
#include <string>

#include "services/kvcom/projection_zones.h"

namespace kv::sample {
namespace {

constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
/// Below this share of a square a piece is no block.
constexpr double kLeastShare = 0.004;
/// Into how many parts an area's side is taken when its extent in X and Y is measured: in the
/// projection it is a curve.
constexpr int kPartsOfSide = 32;

struct Planar {
    double x;
    double y;
};

class Projection {
public:
    explicit Projection(int code)
        : context_(proj_context_create()), projection_(Create(context_.get(), code)) {}

    Planar Forward(const Corner& place) const {
        const PJ_COORD planar = proj_trans(
            projection_.get(), PJ_FWD,
            proj_coord(place.lon / kDegreesPerRadian, place.lat / kDegreesPerRadian, 0, 0));
        return {planar.xy.x, planar.xy.y};
    }

    GeoPoint Inverse(const Planar& place) const {
        const PJ_COORD angles =
            proj_trans(projection_.get(), PJ_INV, proj_coord(place.x, place.y, 0, 0));
        return {Units(angles.lp.phi * kDegreesPerRadian), Units(angles.lp.lam * kDegreesPerRadian)};
    }

private:
    struct Release {
        void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
        void operator()(PJ* projection) const { proj_destroy(projection); }
    };

    static PJ* Create(PJ_CONTEXT* context, int code) {
        PJ* created = proj_create(context, coord::DefinitionOf(code).c_str());
        if (!created) throw std::runtime_error("PROJ refuses projection " + std::to_string(code));
        return created;
    }

    std::unique_ptr<PJ_CONTEXT, Release> context_;
    std::unique_ptr<PJ, Release> projection_;
};

/// Twice the area; positive when the corners run clockwise, seen with north up.
std::int64_t SignedArea(const Outline& outline) {
    std::int64_t sum = 0;
    for (size_t i = 1; i + 1 < outline.size(); ++i) {
        const GeoPoint& origin = outline[0];
        sum += (outline[i].lat - origin.lat) * (outline[i + 1].lon - origin.lon) -
               (outline[i + 1].lat - origin.lat) * (outline[i].lon - origin.lon);
    }
    return sum;
}

/// Clockwise, without repeated corners.
Outline OutlineOf(const Area& area) {
    Outline outline;
    for (const Corner& corner : area.corners) {
        const GeoPoint place{Units(corner.lat), Units(corner.lon)};
        if (outline.empty() || outline.back() != place) outline.push_back(place);
    }
    if (SignedArea(outline) < 0) std::ranges::reverse(outline);
    return outline;
}

/// Twice the area of the triangle from the border's side to the place; not negative on the inner
/// side of a clockwise border.
std::int64_t SideOf(const GeoPoint& from, const GeoPoint& to, const GeoPoint& place) {
    return (to.lat - from.lat) * (place.lon - from.lon) -
           (place.lat - from.lat) * (to.lon - from.lon);
}

/// Whole numbers suffice: a border is at most some 2e7 units long and a square's side 5e5, so the
/// product stays below 9e18.
std::int64_t Between(std::int64_t from, std::int64_t to, std::int64_t numerator,
                     std::int64_t denominator) {
    const std::int64_t product = (to - from) * numerator;
    const std::int64_t half =
        (product < 0) == (denominator < 0) ? denominator / 2 : -denominator / 2;
    return from + (product + half) / denominator;
}

/// What of the outline lies on the inner side of the line (after Sutherland and Hodgman).
Outline CutOff(const Outline& outline, const GeoPoint& from, const GeoPoint& to) {
    Outline kept;
    for (size_t i = 0; i < outline.size(); ++i) {
        const GeoPoint& here = outline[i];
        const GeoPoint& next = outline[(i + 1) % outline.size()];
        const std::int64_t sideHere = SideOf(from, to, here);
        const std::int64_t sideNext = SideOf(from, to, next);
        if (sideHere >= 0) kept.push_back(here);
        if ((sideHere < 0) != (sideNext < 0)) {
            const std::int64_t whole = sideHere - sideNext;
            kept.push_back({Between(here.lat, next.lat, sideHere, whole),
                            Between(here.lon, next.lon, sideHere, whole)});
        }
    }
    return kept;
}

/// Without corners that are nearly the same as the one before.
Outline Simplified(const Outline& outline) {
    constexpr std::int64_t kNear = 10;
    Outline kept;
    auto near = [](const GeoPoint& a, const GeoPoint& b) {
        return std::abs(a.lat - b.lat) < kNear && std::abs(a.lon - b.lon) < kNear;
    };
    for (const GeoPoint& place : outline) {
        if (kept.empty() || !near(kept.back(), place)) kept.push_back(place);
    }
    while (kept.size() > 1 && near(kept.front(), kept.back()))
        kept.pop_back();
    return kept;
}

Outline Within(Outline outline, const Outline& border) {
    for (size_t i = 0; i < border.size() && !outline.empty(); ++i) {
        outline = CutOff(outline, border[i], border[(i + 1) % border.size()]);
    }
    return Simplified(outline);
}

/// The rows and columns of squares that cover an area.
struct Extent {
    std::int64_t west, east, south, north;
};

Extent ExtentOf(const Area& area, const Projection& projection, double side) {
    double minX = HUGE_VAL, maxX = -HUGE_VAL, minY = HUGE_VAL, maxY = -HUGE_VAL;
    for (size_t i = 0; i < std::size(area.corners); ++i) {
        const Corner& from = area.corners[i];
        const Corner& to = area.corners[(i + 1) % std::size(area.corners)];
        for (int part = 0; part < kPartsOfSide; ++part) {
            const double ratio = static_cast<double>(part) / kPartsOfSide;
            const Planar place = projection.Forward(
                {from.lat + (to.lat - from.lat) * ratio, from.lon + (to.lon - from.lon) * ratio});
            minX = std::min(minX, place.x);
            maxX = std::max(maxX, place.x);
            minY = std::min(minY, place.y);
            maxY = std::max(maxY, place.y);
        }
    }
    auto line = [side](double at) { return static_cast<std::int64_t>(std::floor(at / side)); };
    return {line(minX), line(maxX) + 1, line(minY), line(maxY) + 1};
}

/// The corners where the lines of squares cross, row by row from the north.
class Crossings {
public:
    Crossings(const Extent& extent, const Projection& projection, double side)
        : width_(static_cast<int>(extent.east - extent.west) + 1) {
        for (std::int64_t y = extent.north; y >= extent.south; --y) {
            for (std::int64_t x = extent.west; x <= extent.east; ++x) {
                places_.push_back(projection.Inverse(
                    {static_cast<double>(x) * side, static_cast<double>(y) * side}));
            }
        }
    }
    int Rows() const { return static_cast<int>(places_.size()) / width_ - 1; }
    int Columns() const { return width_ - 1; }
    Outline Square(int row, int column) const {
        return {At(row, column), At(row, column + 1), At(row + 1, column + 1), At(row + 1, column)};
    }

private:
    const GeoPoint& At(int row, int column) const { return places_[row * width_ + column]; }
    int width_;
    std::vector<GeoPoint> places_;
};

/// Counts rows and columns from the first that holds anything.
void CountFromFirst(std::vector<Cell>& cells) {
    if (cells.empty()) return;
    const int row = std::ranges::min(cells, {}, &Cell::row).row;
    const int column = std::ranges::min(cells, {}, &Cell::column).column;
    for (Cell& cell : cells) {
        cell.row -= row;
        cell.column -= column;
    }
}

}  // namespace

std::vector<Cell> CutIntoSquares(const Area& area, double side) {
    const Projection projection(area.projection);
    const Outline border = OutlineOf(area);
    const Crossings crossings(ExtentOf(area, projection, side), projection, side);
    std::vector<Cell> cells;
    for (int row = 0; row < crossings.Rows(); ++row) {
        for (int column = 0; column < crossings.Columns(); ++column) {
            const Outline square = crossings.Square(row, column);
            Cell cell{row, column, Within(square, border), 0, false};
            if (cell.outline.size() < 3) continue;
            cell.share = static_cast<double>(SignedArea(cell.outline)) /
                         static_cast<double>(SignedArea(square));
            cell.whole = cell.outline == square;
            if (cell.share >= kLeastShare) cells.push_back(std::move(cell));
        }
    }
    CountFromFirst(cells);
    return cells;
}

}  // namespace kv::sample
