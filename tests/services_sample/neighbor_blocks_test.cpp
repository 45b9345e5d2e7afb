#include "blocks/neighbor_blocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <string>
#include <vector>

#include "frame/module.h"
#include "sampledata/blocks.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"

namespace test {
namespace {

using kv::blocks::NeighborRelation;
using kv::blocks::Place;
using kv::blocks::Selection;
using kv::sample::Block;
using kv::sample::GeoPoint;
using kv::sample::Outline;

const std::vector<Block>& Blocks() {
    static const std::vector<Block> blocks = kv::sample::LayOutBlocks();
    return blocks;
}

struct Box {
    std::int64_t south, north, west, east;
};

Box BoxOf(const Outline& outline) {
    const auto [south, north] = std::ranges::minmax(outline, {}, &GeoPoint::lat);
    const auto [west, east] = std::ranges::minmax(outline, {}, &GeoPoint::lon);
    return {south.lat, north.lat, west.lon, east.lon};
}

/// Whether a corner of the outline lies in the other's box, made wider by a fifth of it each way.
bool HasACornerNear(const Outline& outline, const Box& box) {
    const double wideLat = static_cast<double>(box.north - box.south) / 5;
    const double wideLon = static_cast<double>(box.east - box.west) / 5;
    return std::ranges::any_of(outline, [&](const GeoPoint& corner) {
        const auto lat = static_cast<double>(corner.lat), lon = static_cast<double>(corner.lon);
        return lat < static_cast<double>(box.north) + wideLat &&
               lat > static_cast<double>(box.south) - wideLat &&
               lon < static_cast<double>(box.east) + wideLon &&
               lon > static_cast<double>(box.west) - wideLon;
    });
}

/// Meters from a corner to the line between two others.
double Distance(const GeoPoint& corner, const GeoPoint& from, const GeoPoint& to) {
    const double metersPerUnit =
        6371008.8 * std::numbers::pi / 180 / static_cast<double>(kv::sample::kUnitsPerDegree);
    const double cosine =
        std::cos(static_cast<double>(corner.lat) /
                 static_cast<double>(kv::sample::kUnitsPerDegree) * std::numbers::pi / 180);
    const auto x = [&](const GeoPoint& place) {
        return static_cast<double>(place.lon - corner.lon) * metersPerUnit * cosine;
    };
    const auto y = [&](const GeoPoint& place) {
        return static_cast<double>(place.lat - corner.lat) * metersPerUnit;
    };
    const double wayX = x(to) - x(from), wayY = y(to) - y(from);
    const double along =
        std::clamp(-(x(from) * wayX + y(from) * wayY) / (wayX * wayX + wayY * wayY), 0.0, 1.0);
    return std::hypot(x(from) + along * wayX, y(from) + along * wayY);
}

/// How far the corners of one are from the other: blocks do not overlap, so one of them is nearest.
double Gap(const Outline& a, const Outline& b) {
    double gap = HUGE_VAL;
    for (const GeoPoint& corner : a) {
        for (std::size_t i = 0; i < b.size(); ++i)
            gap = std::min(gap, Distance(corner, b[i], b[(i + 1) % b.size()]));
    }
    return gap;
}

bool Touch(const Block& a, const Block& b) {
    const double gap = std::min(Gap(a.outline, b.outline), Gap(b.outline, a.outline));
    // Nothing in the dataset is so near the limit that the two ways to measure may differ.
    EXPECT_TRUE(gap < 5 || gap > 20) << a.refnum << " and " << b.refnum << ": " << gap;
    return gap < 10;
}

using NameOf = std::string (*)(const Block&);

Place PlaceOf(const Block& block, NameOf name) {
    return {name(block), std::to_string(block.number) + block.ext};
}

class NeighborsOnTheSample : public DialogTest {
protected:
    NeighborsOnTheSample() {
        InitControlDll();
        ConnectTo(CKvDbInfo("", "",
                            ("sqlite:" + std::string(std::getenv("KVGUICTL_SAMPLE_DB"))).c_str()));
    }

    /// What a search from every block of the area must find: each pair is looked at.
    NeighborRelation Expected(const std::vector<const Block*>& selected, NameOf name) {
        NeighborRelation relation;
        for (const Block* block : selected) {
            const Box box = BoxOf(block->outline);
            std::vector<Place> near;
            for (const Block& other : Blocks()) {
                if (&other == block || !HasACornerNear(other.outline, box)) continue;
                ++candidates_;
                if (Touch(*block, other)) near.push_back(PlaceOf(other, name));
            }
            std::ranges::sort(near);
            if (!near.empty()) relation[PlaceOf(*block, name)] = near;
        }
        return relation;
    }

    void ExpectAllOf(const std::string& areaName, int type, NameOf name) {
        SCOPED_TRACE(areaName);
        std::vector<const Block*> inArea;
        Selection selection;
        for (const Block& block : Blocks()) {
            if (block.area->name != areaName) continue;
            inArea.push_back(&block);
            selection.first.push_back(name(block));
            selection.second.push_back(PlaceOf(block, name).second);
        }
        ASSERT_GT(inArea.size(), 300U);
        const NeighborRelation expected = Expected(inArea, name);
        ASSERT_GT(candidates_, 5 * inArea.size());

        NeighborRelation found;
        ASSERT_TRUE(CNeighborBlocks(selection, found, type, "NORVADON").PopulateNeighbor());
        EXPECT_EQ(found.size(), expected.size());
        for (const auto& [place, near] : expected)
            EXPECT_EQ(found[place], near) << place.first << " " << place.second;
        EXPECT_THAT(desktop.Messages(), testing::IsEmpty());
    }

    std::size_t candidates_ = 0;
};

TEST_F(NeighborsOnTheSample, AreThoseOfAllPairsInAnAreaByName) {
    ExpectAllOf("GREEN CANYON", 0,
                [](const Block& block) { return std::string(block.area->name); });
}

TEST_F(NeighborsOnTheSample, AreThoseOfAllPairsInAnAreaByCode) {
    ExpectAllOf("WEST CAMERON", 1,
                [](const Block& block) { return std::string(block.area->code); });
}

}  // namespace
}  // namespace test
