#pragma once

#include <vector>

#include "qt/map/block_map_window.h"

/// Picking blocks on a map of the current dataset, for hosts with windows.
namespace map_picks {

/// Every block of the current dataset that lies in an area with a name. Its extension has the
/// suffix of its water behind it, as block lists show it. Throws CKvException.
std::vector<kv::qt::MapBlock> ReadBlocks();

/// From now on "Select from Map" opens the map.
void Install();

}  // namespace map_picks
