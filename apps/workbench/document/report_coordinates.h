#pragma once

#include "workbench/document/map_document.h"
#include "workbench/readouts/map_positions.h"
#include "workbench/results/result_table.h"

namespace workbench {

/// Puts columns with X and Y behind a report whose rows have places: in the projection of the map
/// and its unit, or, where the map says so, in that which is usual in each area. `usual` knows
/// those.
void AddCoordinates(ResultTable& table, const BuiltMap& map, MapPositions& usual);

}  // namespace workbench
