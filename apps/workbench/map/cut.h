#pragma once

#include <optional>
#include <span>
#include <vector>

#include "workbench/map/geometry.h"

/// Lines and outlines, cut at a box. Its edges count as inside.
namespace workbench {

/// The part of a line within the box.
std::optional<Segment> CutLine(const Segment& line, const Box& box);

/// The parts of a line through several points within the box, each as long as it stays inside.
std::vector<std::vector<Point>> CutPath(std::span<const Point> points, const Box& box);

/// What a closed outline covers within the box, as one closed outline that may run along the edges
/// of the box; empty where it covers none of it. The first corner is not repeated.
std::vector<Point> CutOutline(std::span<const Point> corners, const Box& box);

}  // namespace workbench
