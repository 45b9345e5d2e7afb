#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "workbench/map/map_model.h"

namespace workbench {

/// What a person typed to be shown on the map: a place or a pick.
struct SearchHit {
    std::optional<Place> place;
    Pick pick;
};

/// Understands an area by its name, MMS code or area code, with a block behind it or none
/// ("GREEN CANYON 200", "GC 200A", "43608", "GREEN CANYON, block 200"), the block with its water or
/// without, and a place in any notation of `kv::ParseCoordinate`. Nothing where the map has no such
/// thing.
std::optional<SearchHit> Search(const MapModel& model, std::string_view text);

}  // namespace workbench
