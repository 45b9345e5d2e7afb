#include "workbench/map_search.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace workbench {

namespace {

constexpr const char* kAllBlocks = "ALL";

std::optional<Place> PlaceIn(const std::string& text) {
    std::size_t end = 0;
    const auto lat = kv::ScanNumber(text, &end);
    if (!lat) return {};
    std::size_t length = 0;
    const std::string rest = text.substr(end);
    const auto lon = kv::ScanNumber(rest, &length);
    const bool all = lon && kv::TrimSpace(rest.substr(length)).empty();
    if (!all || std::abs(*lat) > 90 || std::abs(*lon) > 180) return {};
    return Place{*lat, *lon};
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

}  // namespace

std::optional<SearchHit> Search(const MapModel& model, std::string_view text) {
    const std::string wanted = kv::ToUpper(kv::TrimSpace(text));
    if (wanted.empty()) return {};
    if (auto codes = AreasCalled(model, wanted); !codes.empty()) {
        return SearchHit{{}, model.FindPick(codes, kAllBlocks)};
    }
    if (const auto place = PlaceIn(kv::ReplaceAll(wanted, ",", " "))) return SearchHit{place, {}};
    const std::size_t gap = wanted.find_last_of(" #");
    if (gap == std::string::npos) return {};
    const auto codes = AreasCalled(model, kv::TrimSpace(wanted.substr(0, gap)));
    Pick pick = model.FindPick(codes, wanted.substr(gap + 1));
    if (pick.Empty()) return {};
    return SearchHit{{}, std::move(pick)};
}

}  // namespace workbench
