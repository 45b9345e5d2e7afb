#include "workbench/document/picked_blocks.h"

#include "base/text.h"
#include "frame/catalogue.h"

namespace workbench {

namespace {

using kv::catalogue::kAllBlocks;

CKvDbUtil::Pick PickOf(const std::string& area, const std::string& block) {
    kv::catalogue::AbeItem item;
    kv::catalogue::ParseAbeItem(area + "#" + (block.empty() ? kAllBlocks : block), item);
    return {item.area, item.block, item.ext};
}

}  // namespace

Picks PicksOf(const Pick& pick) {
    if (pick.block) return {PickOf(pick.block->area->code, std::string(pick.block->Label()))};
    Picks picks;
    for (const AreaMap* area : pick.areas)
        picks.push_back(PickOf(area->code, kAllBlocks));
    return picks;
}

Picks PicksOf(const SelectedBlocks& selected) {
    Picks picks;
    for (std::size_t i = 0; i < selected.places.first.size(); ++i)
        picks.push_back(PickOf(selected.places.first[i], selected.places.second[i]));
    return picks;
}

Picks TakeUnknown(Picks& picks, const std::string& dataset) {
    const kv::db::LookUpsThrow failures;
    const auto outlines = CKvDbUtil::S_GetOutlines(picks, dataset);
    Picks known;
    Picks unknown;
    for (std::size_t i = 0; i < picks.size(); ++i)
        (outlines[i].empty() ? unknown : known).push_back(std::move(picks[i]));
    picks = std::move(known);
    return unknown;
}

std::string NamesOf(const Picks& picks) {
    std::string names;
    for (const CKvDbUtil::Pick& pick : picks) {
        names += names.empty() ? "" : ", ";
        names += kv::TrimSpace(pick.area + " " + pick.block + kv::TrimSpace(pick.ext));
    }
    return names;
}

}  // namespace workbench
