#include "workbench/map_search.h"

#include "base/text.h"
#include "frame/catalogue.h"
#include "frame/coordinate_text.h"

namespace workbench {

namespace {

std::optional<Place> PlaceIn(std::string_view text) {
    const auto found = kv::ParseCoordinate(text);
    if (!found || !found->latitude || !found->longitude) return {};
    return Place{*found->latitude, *found->longitude};
}

/// The status line has more words than a person types: "GREEN CANYON, block 200".
std::string WithoutWords(std::string text) {
    text = kv::ReplaceAll(text, ", ALL BLOCKS", "");
    return kv::ReplaceAll(text, ", BLOCK ", " ");
}

std::vector<std::string> AreasCalled(const MapModel& model, const std::string& name) {
    std::vector<std::string> codes;
    for (const auto& area : model.Areas()) {
        if (area->name == name || area->mmsCode == name || area->code == name) {
            codes.push_back(area->code);
        }
    }
    return codes;
}

/// A block by its number as the map has it, or with its water behind that.
Pick BlockCalled(const MapModel& model, const std::vector<std::string>& codes,
                 const std::string& label) {
    Pick pick = model.FindPick(codes, label);
    for (const std::string& code : codes) {
        if (!pick.Empty()) break;
        const std::string_view water = WaterSuffix(code);
        if (!water.empty() && label.ends_with(water))
            pick = model.FindPick({code}, label.substr(0, label.size() - water.size()));
    }
    return pick;
}

}  // namespace

std::optional<SearchHit> Search(const MapModel& model, std::string_view text) {
    const std::string wanted = WithoutWords(kv::ToUpper(kv::TrimSpace(text)));
    if (wanted.empty()) return {};
    if (auto codes = AreasCalled(model, wanted); !codes.empty()) {
        return SearchHit{{}, model.FindPick(codes, kv::catalogue::kAllBlocks)};
    }
    if (const std::size_t gap = wanted.find_last_of(" #"); gap != std::string::npos) {
        const auto codes = AreasCalled(model, kv::TrimSpace(wanted.substr(0, gap)));
        Pick pick = BlockCalled(model, codes, wanted.substr(gap + 1));
        if (!pick.Empty()) return SearchHit{{}, std::move(pick)};
    }
    if (const auto place = PlaceIn(text)) return SearchHit{place, {}};
    return {};
}

}  // namespace workbench
