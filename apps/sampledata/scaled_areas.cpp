#include "sampledata/scaled_areas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

namespace kv::sample {
namespace {

/// Where the regions lie, in degrees from the Gulf: side by side in whole UTM zones, in seas where
/// there are any, and in rows above and below each other. The Gulf's own place is none of them.
constexpr std::array kEast = {18, 36, 54, -42, -60, -78};
constexpr std::array kNorth = {0, -5, 5, -10, 10, -15, -20};
static_assert(kMostScale == 1 + kEast.size() * kNorth.size());

constexpr int kDegreesPerZone = 6;
constexpr int kFirstCode = 50'000;
constexpr std::string_view kSigns = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

struct Shift {
    int east;
    int north;
};

Shift ShiftOf(int region) {
    const auto place = static_cast<std::size_t>(region) - 1;
    return {kEast[place % kEast.size()], kNorth[place / kEast.size()]};
}

/// Code of the UTM zone around the middle of an outline.
int ZoneAround(const Area& area) {
    const auto [west, east] = std::ranges::minmax(area.corners, {}, &Corner::lon);
    const double middle = (west.lon + east.lon) / 2;
    constexpr int kFirstZone = 101;
    return kFirstZone + static_cast<int>(std::floor((middle + 180) / kDegreesPerZone));
}

bool IsOfTheGulf(std::string_view mmsCode) {
    return std::ranges::any_of(Areas(), [&](const Area& area) { return area.mmsCode == mmsCode; });
}

/// All pairs of signs, beginning with those of a letter and a digit; "" behind the last.
std::string PairOf(int place) {
    const int signs = static_cast<int>(kSigns.size());
    const int pair = place / signs * signs + (place + place / signs) % signs;
    if (pair >= signs * signs) return "";
    return {kSigns[static_cast<std::size_t>(signs - 1 - pair / signs)],
            kSigns[static_cast<std::size_t>(pair % signs)]};
}

}  // namespace

ScaledAreas::ScaledAreas(int scale) : areas_(Areas().begin(), Areas().end()) {
    areas_.reserve(Areas().size() * static_cast<std::size_t>(scale));
    for (int region = 1; region < scale; ++region)
        AddRegion(region);
}

const char* ScaledAreas::Keep(std::string text) {
    return texts_.emplace_back(std::move(text)).c_str();
}

void ScaledAreas::AddRegion(int region) {
    const Shift shift = ShiftOf(region);
    std::map<std::string_view, const char*> mmsCodes{{"", ""}};
    for (const Area& gulf : Areas()) {
        Area area = gulf;
        area.region = region;
        area.name = Keep(std::string(gulf.name) + " SECTOR " + std::to_string(region + 1));
        area.code = Keep(std::to_string(kFirstCode + static_cast<int>(areas_.size())));
        if (!mmsCodes.contains(gulf.mmsCode)) {
            std::string code = PairOf(triedMmsCodes_++);
            while (!code.empty() && IsOfTheGulf(code))
                code = PairOf(triedMmsCodes_++);
            mmsCodes[gulf.mmsCode] = Keep(code);
        }
        area.mmsCode = mmsCodes[gulf.mmsCode];
        for (Corner& corner : area.corners) {
            corner.lat += shift.north;
            corner.lon += shift.east;
        }
        area.projection = ZoneAround(area);
        areas_.push_back(area);
    }
}

}  // namespace kv::sample
