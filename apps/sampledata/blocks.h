#pragma once

#include <span>
#include <string>
#include <vector>

#include "sampledata/areas.h"
#include "sampledata/geo_point.h"
#include "sampledata/random.h"

namespace kv::sample {

/// One block or remnant of a block.
struct Block {
    int refnum = 0;
    const Area* area = nullptr;
    int number = 0;
    /// "" for none.
    std::string ext;
    /// Clockwise; at least three corners. Convex, but that a long block's sides follow the lines of
    /// the projection, which bend by a metre at most.
    Outline outline;
};

/// Lays these areas out in blocks: squares of the area's projection, cut off where the area ends.
///
/// A block's corners are rounded, each by itself, so that what neighbours share agrees to the last
/// decimal but one. The areas must outlive them. Throws std::runtime_error where PROJ fails.
std::vector<Block> LayOutBlocks(std::span<const Area> areas = Areas());

/// Some place inside the block.
GeoPoint PlaceInside(const Block& block, Random& random);

}  // namespace kv::sample
