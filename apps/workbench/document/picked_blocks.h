#pragma once

#include <string>
#include <vector>

#include "frame/kvdbkvn/db_util.h"
#include "workbench/map/map_model.h"
#include "workbench/selected_blocks.h"

namespace workbench {

/// Blocks as the map builders take them; all blocks of an area are its block "ALL".
using Picks = std::vector<CKvDbUtil::Pick>;

Picks PicksOf(const Pick& pick);
Picks PicksOf(const SelectedBlocks& selected);

/// Takes those out of the picks that the database does not know. Throws CKvException.
Picks TakeUnknown(Picks& picks, const std::string& dataset);
/// Their names in one line, as "017 10, 018 45".
std::string NamesOf(const Picks& picks);

}  // namespace workbench
