#pragma once

#include <deque>
#include <span>
#include <string>
#include <vector>

#include "sampledata/areas.h"

namespace kv::sample {

/// How many times the size of the Gulf's a dataset can have: so often it has room on the northern
/// half of the earth.
inline constexpr int kMostScale = 43;

/// The areas of a dataset of so many times the size: those of the Gulf, in their order, and behind
/// them the same again in other regions of the earth, under names and codes of their own, laid out
/// on the UTM zone that they lie in. Their codes begin as no water does.
class ScaledAreas {
public:
    /// `scale` from 1 to `kMostScale`.
    explicit ScaledAreas(int scale);
    ScaledAreas(const ScaledAreas&) = delete;
    ScaledAreas& operator=(const ScaledAreas&) = delete;

    std::span<const Area> All() const { return areas_; }

private:
    void AddRegion(int region);
    const char* Keep(std::string text);

    std::deque<std::string> texts_;
    std::vector<Area> areas_;
    /// How many MMS codes have been looked at for the areas elsewhere.
    int triedMmsCodes_ = 0;
};

}  // namespace kv::sample
