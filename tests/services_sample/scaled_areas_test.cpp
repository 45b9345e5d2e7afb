#include "sampledata/scaled_areas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "collected_rows.h"
#include "frame/catalogue.h"
#include "sampledata/blocks.h"
#include "sampledata/digest.h"
#include "sampledata/leases.h"
#include "sampledata/pipelines.h"
#include "sampledata/tables.h"
#include "sampledata/wells.h"

namespace test {
namespace {

using kv::sample::Area;
using kv::sample::kMostScale;
using kv::sample::ScaledAreas;

const ScaledAreas& Widest() {
    static const ScaledAreas areas(kMostScale);
    return areas;
}

TEST(ScaledAreas, OfOneAreThoseOfTheGulf) {
    const ScaledAreas areas(1);
    ASSERT_EQ(areas.All().size(), kv::sample::Areas().size());
    for (std::size_t i = 0; i < areas.All().size(); ++i)
        EXPECT_STREQ(areas.All()[i].code, kv::sample::Areas()[i].code);
}

TEST(ScaledAreas, BeginWithThoseOfEverySmallerScale) {
    const ScaledAreas three(3);
    ASSERT_EQ(three.All().size(), 3 * kv::sample::Areas().size());
    for (std::size_t i = 0; i < three.All().size(); ++i) {
        EXPECT_STREQ(three.All()[i].name, Widest().All()[i].name);
        EXPECT_STREQ(three.All()[i].code, Widest().All()[i].code);
        EXPECT_STREQ(three.All()[i].mmsCode, Widest().All()[i].mmsCode);
    }
}

TEST(ScaledAreas, HaveNamesAndCodesOfTheirOwnThatTellNoWater) {
    std::set<std::string> names;
    std::set<std::string> codes;
    const std::string plain = kv::catalogue::BlockLabelExpression();
    for (const Area& area : Widest().All()) {
        EXPECT_TRUE(names.insert(area.name).second) << area.name;
        EXPECT_TRUE(codes.insert(area.code).second) << area.code;
        EXPECT_EQ(std::string(area.code).size(), 5U);
        if (area.region == 0) continue;
        EXPECT_EQ(kv::sample::WaterSuffix(area.code), "") << area.code;
        EXPECT_EQ(plain.find("'" + std::string(area.code).substr(0, 3) + "'"), std::string::npos);
    }
}

TEST(ScaledAreas, ShareAnMmsCodeWithinTheirRegionAsInTheGulfAndNeverWithAnother) {
    std::map<std::string, int> regions;
    std::map<std::pair<int, std::string>, std::string> codes;
    const auto all = Widest().All();
    const std::size_t count = kv::sample::Areas().size();
    constexpr int kLastWithCodes = 17;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::string code = all[i].mmsCode;
        const std::string gulf = kv::sample::Areas()[i % count].mmsCode;
        ASSERT_LE(code.size(), 2U);
        if (all[i].region < kLastWithCodes) {
            EXPECT_EQ(code.empty(), gulf.empty()) << all[i].name;
        }
        if (code.empty()) continue;
        EXPECT_EQ(regions.emplace(code, all[i].region).first->second, all[i].region) << code;
        EXPECT_EQ(codes.emplace(std::pair(all[i].region, gulf), code).first->second, code);
    }
}

TEST(ScaledAreas, LieOnTheEarthInTheZoneOfTheirProjectionAndApartFromEachOther) {
    std::map<int, std::pair<kv::sample::Corner, kv::sample::Corner>> bounds;
    for (const Area& area : Widest().All()) {
        double west = 180;
        double east = -180;
        auto& [least, most] =
            bounds.emplace(area.region, std::pair(area.corners[0], area.corners[0])).first->second;
        for (const auto& corner : area.corners) {
            EXPECT_GT(corner.lat, 0) << area.name;
            EXPECT_LT(corner.lat, 60) << area.name;
            EXPECT_GT(corner.lon, -180) << area.name;
            EXPECT_LT(corner.lon, 180) << area.name;
            west = std::min(west, corner.lon);
            east = std::max(east, corner.lon);
            least = {std::min(least.lat, corner.lat), std::min(least.lon, corner.lon)};
            most = {std::max(most.lat, corner.lat), std::max(most.lon, corner.lon)};
        }
        if (area.region == 0) continue;
        const double meridian = -183 + 6 * (area.projection - 100);
        EXPECT_LE(std::abs((west + east) / 2 - meridian), 3) << area.name;
    }
    for (const auto& [one, here] : bounds) {
        for (const auto& [other, there] : bounds) {
            if (one == other) continue;
            const bool apart =
                here.second.lat < there.first.lat || there.second.lat < here.first.lat ||
                here.second.lon < there.first.lon || there.second.lon < here.first.lon;
            EXPECT_TRUE(apart) << one << " and " << other;
        }
    }
}

/// A few areas of each region of a dataset of three times the size, of every layout among them.
const std::vector<Area>& SomeAreas() {
    static const ScaledAreas whole(3);
    static const std::vector<Area> some = [] {
        constexpr std::size_t kOneIn = 13;
        std::vector<Area> areas;
        const std::size_t count = kv::sample::Areas().size();
        for (std::size_t i = 0; i < whole.All().size(); ++i)
            if (i % count % kOneIn == 0) areas.push_back(whole.All()[i]);
        return areas;
    }();
    return some;
}

/// Writes all that depends on the areas, those few alone.
void WriteSome(kv::sample::Sink& sink) {
    const auto blocks = kv::sample::LayOutBlocks(SomeAreas());
    const auto leases = kv::sample::MakeLeases(blocks);
    kv::sample::WriteLeases(leases, sink);
    kv::sample::WriteWells(kv::sample::DrillWells(leases), sink);
    kv::sample::WritePipelines(blocks, kv::sample::WriteSites(leases, 3, sink), sink);
}

/// Looks at every text and every unique key.
class Reviewer : public kv::sample::Sink {
public:
    void Begin(const kv::sample::Table& table) override {
        table_ = &table;
        keys_.clear();
    }
    void Add(const kv::sample::Row& row) override {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const kv::sample::Column& column = table_->columns[i];
            const bool isText = column.kind == kv::sample::CellKind::kText;
            if (isText && row[i].size() > static_cast<std::size_t>(column.length))
                tooLong.insert(std::string(table_->name) + "." + column.name);
        }
        for (const std::string index : table_->indexes) {
            if (!index.starts_with("unique ")) continue;
            const std::string key = index + Key(row, index.substr(7));
            if (!keys_.insert(key).second) twice.insert(std::string(table_->name) + ": " + key);
        }
    }
    void End() override {}

    std::set<std::string> tooLong;
    std::set<std::string> twice;

private:
    std::string Key(const kv::sample::Row& row, const std::string& columns) const {
        std::string key;
        for (std::size_t i = 0; i < row.size(); ++i)
            if ((", " + columns + ",").find(", " + std::string(table_->columns[i].name) + ",") !=
                std::string::npos)
                key += "|" + row[i];
        return key;
    }

    const kv::sample::Table* table_ = nullptr;
    std::set<std::string> keys_;
};

TEST(ScaledDataset, KeepsItsUniqueKeysAndHoldsNoTextThatIsLongerThanItsColumn) {
    Reviewer review;
    WriteSome(review);
    EXPECT_THAT(review.tooLong, testing::IsEmpty());
    EXPECT_THAT(review.twice, testing::IsEmpty());
}

TEST(ScaledDataset, HasAboutAsManyBlocksInEveryRegionEachWithALabelOfItsOwn) {
    std::map<int, int> blocks;
    std::set<std::string> labels;
    std::set<int> keys;
    for (const auto& block : kv::sample::LayOutBlocks(SomeAreas())) {
        ++blocks[block.area->region];
        EXPECT_TRUE(keys.insert(block.refnum).second);
        EXPECT_TRUE(labels
                        .insert(std::string(block.area->code) + " " + std::to_string(block.number) +
                                block.ext)
                        .second)
            << block.area->name << " " << block.number << block.ext;
    }
    ASSERT_EQ(blocks.size(), 3U);
    EXPECT_NEAR(blocks[1], blocks[0], 0.1 * blocks[0]);
    EXPECT_NEAR(blocks[2], blocks[0], 0.1 * blocks[0]);
}

TEST(ScaledDataset, HasPipelinesInEveryRegionAndNoneFromOneToAnother) {
    std::map<std::string, int> regions;
    for (const Area& area : SomeAreas())
        regions[area.code] = area.region;
    CollectedRows rows;
    WriteSome(rows);
    const auto from = rows.Column("gulf_mexico_pipeline", "areacode");
    const auto to = rows.Column("gulf_mexico_pipeline", "to_areacode");
    std::map<int, std::size_t> count;
    for (std::size_t i = 0; i < from.size(); ++i) {
        ++count[regions.at(from[i])];
        ASSERT_EQ(regions.at(from[i]), regions.at(to[i]));
    }
    EXPECT_THAT(count, testing::ElementsAre(testing::Pair(0, from.size() / 3),
                                            testing::Pair(1, from.size() / 3),
                                            testing::Pair(2, from.size() / 3)));
}

TEST(ScaledDataset, IsTheSameEveryTime) {
    const auto digestOfSome = [] {
        kv::sample::Digest digest;
        WriteSome(digest);
        return digest.Text();
    };
    EXPECT_EQ(digestOfSome(), digestOfSome());
}

}  // namespace
}  // namespace test
