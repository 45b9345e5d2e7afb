#pragma once

#include <vector>

#include "workbench/map/feature_layer.h"
#include "workbench/map/geometry.h"

namespace workbench {

/// What the blocks of an area look like together.
struct Outline {
    /// Closed rings around the blocks and around holes between them; the first corner is not
    /// repeated.
    std::vector<std::vector<Point>> rings;
    /// The lines between blocks, each once.
    std::vector<Segment> inner;
};

/// Puts blocks together. Corners that differ by rounding count as one, and a long side takes in the
/// corners of shorter ones beside it. The blocks must all turn the same way.
Outline Unite(const FeatureLayer& blocks);

}  // namespace workbench
