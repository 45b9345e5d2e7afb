#include "workbench/selected_blocks.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

#include "blocks/neighbor_blocks.h"
#include "frame/catalogue.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "window/dialogs/dialog.h"

namespace workbench {

namespace {

constexpr std::string_view kDialogs[] = {"CKvGuiBlkExtDlg", "CKvGuiDynBlkExtDlg", "CKvGuiAreaDlg"};

const std::string& NameIn(const AreaMap& area, const std::string& field) {
    if (field == kv::catalogue::kColumnAreaName) return area.name;
    return field == kv::catalogue::kColumnAreaCode ? area.code : area.mmsCode;
}

int AreaTypeOf(const std::string& field) {
    if (field == kv::catalogue::kColumnAreaName) return 0;
    return field == kv::catalogue::kColumnAreaCode ? 1 : 2;
}

}  // namespace

std::optional<SelectedBlocks> SelectedBlocksOf(const adaptors::Adaptor& adaptor,
                                               const adaptors::Run& run) {
    if (std::ranges::find(kDialogs, adaptor.className) == std::end(kDialogs)) return {};
    if (run.result != IDOK) return {};
    SelectedBlocks selected;
    selected.field = run.outcome.at("field");
    for (const auto& place : run.outcome.at("selection")) {
        selected.places.first.push_back(place.at(0));
        selected.places.second.push_back(place.at(1));
    }
    if (selected.places.first.empty()) return {};
    return selected;
}

std::vector<BlockRef> OnTheMap(const MapModel& model, const SelectedBlocks& selected) {
    std::set<kv::blocks::Place> places;
    for (std::size_t i = 0; i < selected.places.first.size(); ++i)
        places.emplace(selected.places.first[i], selected.places.second[i]);
    std::vector<BlockRef> blocks;
    for (const auto& area : model.Areas()) {
        const std::string& name = NameIn(*area, selected.field);
        // Most areas have none.
        const auto first = places.lower_bound({name, ""});
        if (first == places.end() || first->first != name) continue;
        for (std::size_t block = 0; block < area->blocks.Size(); ++block) {
            const std::string label(area->blocks.Label(block));
            if (places.contains({name, ""}) || places.contains({name, label}) ||
                places.contains({name, label + std::string(WaterSuffix(area->code))})) {
                blocks.push_back({area.get(), block});
            }
        }
    }
    return blocks;
}

SelectedBlocks NeighborsOf(const SelectedBlocks& selected) {
    kv::blocks::Selection all;
    // Blocks are looked for without the suffix of their water, and whole areas not at all.
    for (std::size_t i = 0; i < selected.places.first.size(); ++i) {
        const std::string& block = selected.places.second[i];
        if (block.empty()) continue;
        all.first.push_back(selected.places.first[i]);
        all.second.push_back(kv::catalogue::StripWaterSuffix(block));
    }
    const auto count = static_cast<std::ptrdiff_t>(all.first.size());
    kv::blocks::NeighborRelation relation;
    CNeighborBlocks(all, relation, AreaTypeOf(selected.field), CKvDbDatasetSet::S_GetGlobalOwner())
        .PopulateNeighbor();
    all.first.erase(all.first.begin(), all.first.begin() + count);
    all.second.erase(all.second.begin(), all.second.begin() + count);
    return {std::move(all), selected.field};
}

}  // namespace workbench
