#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"
#include "qt/map/geometry.h"
#include "qt/map/grid_index.h"

namespace kv::map {

/// Things of one sort on the map: outlines, lines, or single points. Each has a label and a kind.
/// All points stand in one row of memory, and so do all labels.
class KVGUICTL_API FeatureLayer {
public:
    /// Begins a thing; its points follow.
    void Begin(std::string_view label, std::uint8_t kind = 0);
    void Add(const Point& point);
    /// All things are there: from now on they can be looked for.
    void Finish();

    std::size_t Size() const { return kinds_.size(); }
    std::span<const Point> Points(std::size_t number) const;
    std::span<const Point> AllPoints() const { return points_; }
    std::string_view Label(std::size_t number) const;
    std::uint8_t Kind(std::size_t number) const { return kinds_[number]; }
    const Box& BoxOf(std::size_t number) const { return boxes_[number]; }
    const Box& Bounds() const { return bounds_; }

    /// Number of the first thing with that label, -1 where there is none.
    int Find(std::string_view label) const;

    /// Calls `visit(number)` once for each thing whose box meets `query`.
    template <typename Visit>
    void ForEachIn(const Box& query, Visit&& visit) const {
        index_.ForEach(boxes_, query, visit);
    }

private:
    std::vector<Point> points_;
    std::vector<std::uint32_t> pointStarts_;
    std::string labels_;
    std::vector<std::uint32_t> labelStarts_;
    std::vector<std::uint8_t> kinds_;
    std::vector<Box> boxes_;
    Box bounds_;
    GridIndex index_;
};

/// Whether the point lies inside the closed outline.
KVGUICTL_API bool Inside(std::span<const Point> outline, const Point& point);

/// The area that the closed outline encloses, in square map units; negative for a clockwise one.
KVGUICTL_API double SignedArea(std::span<const Point> outline);

}  // namespace kv::map
