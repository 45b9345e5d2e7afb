#pragma once

#include <string>

#include "workbench/drawings/drawings.h"
#include "workbench/map/map_model.h"

namespace workbench {

/// How many texts and labels were changed.
struct ReplaceCount {
    int texts = 0;
    int labels = 0;
};

/// Replaces `search`, which is not empty, whatever the case of its letters, in drawn texts and in
/// the labels that a layer of the map has. A text of which nothing is left goes; a label of which
/// nothing is left is not written.
ReplaceCount ReplaceEverywhere(Drawings& drawings, const MapModel& model, LabelLayer layer,
                               const std::string& search, const std::string& replacement);

/// By the name that the dialog gives it.
LabelLayer LayerOf(const std::string& name);

}  // namespace workbench
