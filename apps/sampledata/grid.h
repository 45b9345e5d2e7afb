#pragma once

#include <vector>

#include "sampledata/areas.h"
#include "sampledata/geo_point.h"

namespace kv::sample {

/// What of one square lies within the area.
struct Cell {
    int row = 0;     ///< from the north, from 0
    int column = 0;  ///< from the west, from 0
    Outline outline;
    double share = 0;  ///< of the whole square, up to 1
    bool whole = false;
};

/// Squares of the area's projection over the area, cut off where it ends, row by row from the
/// north, each from the west. What is hardly anything of a square is left out. `side` is in metres.
std::vector<Cell> CutIntoSquares(const Area& area, double side);

}  // namespace kv::sample
