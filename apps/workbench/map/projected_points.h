#pragma once

#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "workbench/map/outline.h"

namespace workbench {

/// The points as `project`, which gives an optional point, has them; none where it has no answer
/// for one of them.
template <typename Project>
std::vector<Point> AllProjected(std::span<const Point> points, Project&& project) {
    std::vector<Point> projected;
    projected.reserve(points.size());
    for (const Point& point : points) {
        const std::optional<Point> at = project(point);
        if (!at) return {};
        projected.push_back(*at);
    }
    return projected;
}

/// The same of an outline, without the rings and lines that have no answer.
template <typename Project>
Outline OutlineProjected(const Outline& outline, Project&& project) {
    Outline projected;
    for (const auto& ring : outline.rings) {
        std::vector<Point> points = AllProjected(ring, project);
        if (!points.empty()) projected.rings.push_back(std::move(points));
    }
    projected.inner.reserve(outline.inner.size());
    for (const Segment& line : outline.inner) {
        const std::optional<Point> from = project(line.from);
        const std::optional<Point> to = project(line.to);
        if (from && to) projected.inner.push_back({*from, *to});
    }
    return projected;
}

}  // namespace workbench
