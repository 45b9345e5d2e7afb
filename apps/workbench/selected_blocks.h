#pragma once

#include <optional>
#include <string>
#include <vector>

#include "adaptors/adaptor.h"
#include "blocks/selection.h"
#include "workbench/map/map_model.h"

namespace workbench {

/// What a block dialog ended with.
struct SelectedBlocks {
    kv::blocks::Selection places;
    /// The column that its areas are of.
    std::string field;
};

/// Nothing for a dialog that selects no blocks, for one that was cancelled, and for an empty
/// selection.
std::optional<SelectedBlocks> SelectedBlocksOf(const adaptors::Adaptor& adaptor,
                                               const adaptors::Run& run);

/// Those of the blocks that the map has, in its order; each once.
std::vector<BlockRef> OnTheMap(const MapModel& model, const SelectedBlocks& selected);

/// The blocks that touch them, without those that are selected. The search shows how far it has
/// come, and its failures.
SelectedBlocks NeighborsOf(const SelectedBlocks& selected);

}  // namespace workbench
