#include "frame/kvdbkvn/db_util.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "frame/kvcom/util_geo.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "sampledata/blocks.h"
#include "support/database_helpers.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using kv::sample::Block;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

void ConnectToFile(const std::string& path) {
    ConnectTo(CKvDbInfo("", "", ("sqlite:" + path).c_str()));
}

/// On the sample database.
class DbUtil : public testing::Test {
protected:
    DbUtil() {
        ConnectToFile(std::getenv("KVGUICTL_SAMPLE_DB"));
        CKvDbDatasetSet::S_SetGlobalOwner("NORVADON");
        CKvDbDatasetSet::S_SetGlobalDataset("GULF_MEXICO");
    }

    /// Whether the bounds are those of the block, to the seven decimals that the tables hold.
    static void ExpectBoundsOf(const std::vector<const Block*>& blocks, const CMinMax2Dd_t& found) {
        ASSERT_FALSE(blocks.empty());
        kv::sample::GeoPoint low = blocks.front()->outline.front();
        kv::sample::GeoPoint high = low;
        for (const Block* block : blocks) {
            for (const kv::sample::GeoPoint& corner : block->outline) {
                low = {std::min(low.lat, corner.lat), std::min(low.lon, corner.lon)};
                high = {std::max(high.lat, corner.lat), std::max(high.lon, corner.lon)};
            }
        }
        EXPECT_EQ(kv::sample::Units(found.minX), low.lat);
        EXPECT_EQ(kv::sample::Units(found.maxX), high.lat);
        EXPECT_EQ(kv::sample::Units(found.minY), low.lon);
        EXPECT_EQ(kv::sample::Units(found.maxY), high.lon);
    }

    /// The blocks of an area code with that number and extension; any number where it is 0.
    static std::vector<const Block*> BlocksOf(const std::string& areaCode, int number,
                                              const std::string& ext) {
        static const std::vector<Block> all = kv::sample::LayOutBlocks();
        std::vector<const Block*> found;
        for (const Block& block : all) {
            if (block.area->code != areaCode) continue;
            if (number == 0 || (block.number == number && block.ext == ext)) {
                found.push_back(&block);
            }
        }
        return found;
    }

    static std::string CodeOf(const std::string& areaName) {
        for (const kv::sample::Area& area : kv::sample::Areas()) {
            if (area.name == areaName) return area.code;
        }
        return "";
    }

    TempFolder folder_;
    CMinMax2Dd_t bounds_{1, 2, 3, 4};
};

TEST_F(DbUtil, FindsAnAreasCodeAndMmsCodeByItsName) {
    EXPECT_EQ(CKvDbUtil::S_GetArea("GREEN CANYON", false), CodeOf("GREEN CANYON"));
    EXPECT_EQ(CKvDbUtil::S_GetArea("GREEN CANYON", true), "GC");
    EXPECT_EQ(CKvDbUtil::S_GetArea("EAST BAY", true), "");
    EXPECT_EQ(CKvDbUtil::S_GetArea("EAST BAY", false), "42101");
    EXPECT_EQ(CKvDbUtil::S_GetArea("NO SUCH AREA", false), "");
    EXPECT_EQ(CKvDbUtil::S_GetArea("NO SUCH AREA", true), "");
}

TEST_F(DbUtil, FindsAnAreasNameAndMmsCodeByItsCode) {
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("43013", false), "HIGH ISLAND EAST ADDITION");
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("43013", true), "HI");
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("42101", false), "EAST BAY");
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("42101", true), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("99999", false), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("", true), "");
}

TEST_F(DbUtil, ListsTheAreaCodesUnderAnMmsCodeInOrder) {
    EXPECT_THAT(CKvDbUtil::S_GetAreacodesFromMMS("HI"),
                ElementsAre("42607", "42703", "43012", "43013", "43014", "43015"));
    EXPECT_THAT(CKvDbUtil::S_GetAreacodesFromMMS("GC"), ElementsAre(CodeOf("GREEN CANYON")));
    EXPECT_THAT(CKvDbUtil::S_GetAreacodesFromMMS("ZZ"), IsEmpty());
    EXPECT_THAT(CKvDbUtil::S_GetAreacodesFromMMS(""), IsEmpty());
}

TEST_F(DbUtil, TellsTheAreaCodesOfAnMmsCodeApartByTheBlocksLabel) {
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1"), "43012");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1A"), "43014");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1-S"), "42607");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1-L"), "42703");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("GA", "1-BAY"), "42001");
}

TEST_F(DbUtil, FindsNoAreaCodeForABlockThatTheMmsCodeLacks) {
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1-BAY"), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "99999"), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("ZZ", "1"), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("GC", "500-S"), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("", ""), "");
}

TEST_F(DbUtil, BoundsABlockByAreaCodeMmsCodeOrAreaName) {
    const std::string code = CodeOf("GREEN CANYON");
    for (const std::string& area : {code, std::string("GC"), std::string("GREEN CANYON")}) {
        CMinMax2Dd_t found;
        ASSERT_TRUE(CKvDbUtil::S_GetLLBounds(area, "500", " ", found, "")) << area;
        ExpectBoundsOf(BlocksOf(code, 500, ""), found);
    }
}

TEST_F(DbUtil, BoundsABlockOfTheNamedDataset) {
    CKvDbDatasetSet::S_SetGlobalDataset("SOME_OTHER");
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("GC", "500", " ", bounds_, ""));
    EXPECT_TRUE(CKvDbUtil::S_GetLLBounds("GC", "500", " ", bounds_, "NORVADON.GULF_MEXICO"));
    bounds_ = {};
    EXPECT_TRUE(CKvDbUtil::S_GetLLBounds("GC", "500", " ", bounds_, "GULF_MEXICO"));
    ExpectBoundsOf(BlocksOf(CodeOf("GREEN CANYON"), 500, ""), bounds_);
}

TEST_F(DbUtil, BoundsABlockWithItsExtension) {
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("HI", "12", "A", bounds_, ""));
    ExpectBoundsOf(BlocksOf("43014", 12, "A"), bounds_);
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("HI", "12", " ", bounds_, ""));
    ExpectBoundsOf(BlocksOf("43012", 12, ""), bounds_);
}

TEST_F(DbUtil, BoundsABlockThatIsPickedWithTheSuffixOfItsWater) {
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("HI", "12", "-S", bounds_, ""));
    ExpectBoundsOf(BlocksOf("42607", 12, ""), bounds_);
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("GALVESTON BAY", "12", "-BAY", bounds_, ""));
    ExpectBoundsOf(BlocksOf("42001", 12, ""), bounds_);
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("42001", "12", " ", bounds_, ""));
    ExpectBoundsOf(BlocksOf("42001", 12, ""), bounds_);
}

TEST_F(DbUtil, BoundsAWholeAreaForAll) {
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("GC", "ALL", "", bounds_, ""));
    ExpectBoundsOf(BlocksOf(CodeOf("GREEN CANYON"), 0, ""), bounds_);
    ASSERT_TRUE(CKvDbUtil::S_GetLLBounds("EC", "ALL", "", bounds_, ""));
    std::vector<const Block*> eastCameron;
    for (const char* code : {"43105", "43106", "43402"}) {
        const std::vector<const Block*> part = BlocksOf(code, 0, "");
        eastCameron.insert(eastCameron.end(), part.begin(), part.end());
    }
    ExpectBoundsOf(eastCameron, bounds_);
}

/// What the corners of the blocks project to.
CMinMax2Dd_t ProjectedBoundsOf(const std::vector<const Block*>& blocks, int projection, int units) {
    CMinMax2Dd_t bounds{1e300, -1e300, 1e300, -1e300};
    for (const Block* block : blocks) {
        for (const kv::sample::GeoPoint& corner : block->outline) {
            double x = 0.0;
            double y = 0.0;
            CKvUtilLLdrv::LLdrv(static_cast<double>(corner.lat) / kv::sample::kUnitsPerDegree,
                                static_cast<double>(corner.lon) / kv::sample::kUnitsPerDegree, &x,
                                &y, projection, units, 1, 100.0, 0.0, 0.0);
            bounds = {std::min(bounds.minX, x), std::max(bounds.maxX, x), std::min(bounds.minY, y),
                      std::max(bounds.maxY, y)};
        }
    }
    return bounds;
}

void ExpectNear(const CMinMax2Dd_t& found, const CMinMax2Dd_t& expected) {
    constexpr double kClose = 1e-3;
    EXPECT_NEAR(found.minX, expected.minX, kClose);
    EXPECT_NEAR(found.maxX, expected.maxX, kClose);
    EXPECT_NEAR(found.minY, expected.minY, kClose);
    EXPECT_NEAR(found.maxY, expected.maxY, kClose);
}

TEST_F(DbUtil, BoundsABlockInXy) {
    const std::vector<const Block*> blocks = BlocksOf(CodeOf("GREEN CANYON"), 500, "");
    for (const int units : {0, 1}) {
        ASSERT_TRUE(CKvDbUtil::S_GetXYBounds("GC", "500", " ", bounds_, 115, "", units));
        ExpectNear(bounds_, ProjectedBoundsOf(blocks, 115, units));
    }
    // Laid out as a square of 4,800 metres in its own projection.
    EXPECT_NEAR(bounds_.maxX - bounds_.minX, 4800.0, 0.05);
    EXPECT_NEAR(bounds_.maxY - bounds_.minY, 4800.0, 0.05);
    ASSERT_TRUE(CKvDbUtil::S_GetXYBounds("GC", "500", " ", bounds_, -1702, "", 0));
    ExpectNear(bounds_, ProjectedBoundsOf(blocks, 3, 0));
}

TEST_F(DbUtil, BoundsAWholeAreaInXy) {
    ASSERT_TRUE(CKvDbUtil::S_GetXYBounds("GC", "ALL", "", bounds_, 115, "", 0));
    ExpectNear(bounds_, ProjectedBoundsOf(BlocksOf(CodeOf("GREEN CANYON"), 0, ""), 115, 0));
}

TEST_F(DbUtil, BoundsACountyInXyAroundItsCurvedSides) {
    CMinMax2Dd_t angles;
    ASSERT_TRUE(CKvDbUtil::S_GetLLBoundsOnshore("48167", angles));
    ASSERT_TRUE(CKvDbUtil::S_GetXYBoundsOnshore("48167", bounds_, 1, true));
    for (const double lat : {angles.minX, angles.maxX}) {
        for (const double lon : {angles.minY, angles.maxY}) {
            double x = 0.0;
            double y = 0.0;
            CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, 1, 0, 1, 100.0, 0.0, 0.0);
            EXPECT_GE(x, bounds_.minX);
            EXPECT_LE(x, bounds_.maxX);
            EXPECT_GE(y, bounds_.minY);
            EXPECT_LE(y, bounds_.maxY);
        }
    }
    CMinMax2Dd_t meters;
    ASSERT_TRUE(CKvDbUtil::S_GetXYBoundsOnshore("48167", meters, 1, false));
    EXPECT_NEAR(meters.maxX, bounds_.maxX * 1200.0 / 3937.0, 1e-6);
}

TEST_F(DbUtil, LeavesTheXyBoundsAloneWhereThereIsNothing) {
    EXPECT_FALSE(CKvDbUtil::S_GetXYBounds("GC", "99999", " ", bounds_, 115, "", 0));
    EXPECT_FALSE(CKvDbUtil::S_GetXYBounds("ZZ", "ALL", "", bounds_, 115, "", 0));
    EXPECT_FALSE(CKvDbUtil::S_GetXYBounds("GC", "500", " ", bounds_, -1, "", 0));
    EXPECT_FALSE(CKvDbUtil::S_GetXYBoundsOnshore("99999", bounds_, 1, true));
    EXPECT_FALSE(CKvDbUtil::S_GetXYBoundsOnshore("48167", bounds_, 161, true));
    EXPECT_EQ(bounds_, (CMinMax2Dd_t{1, 2, 3, 4}));
}

TEST_F(DbUtil, LeavesTheBoundsAloneWhereThereIsNothing) {
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("GC", "99999", " ", bounds_, ""));
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("GC", "500", "B", bounds_, ""));
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("HI", "12", "-BAY", bounds_, ""));
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("ZZ", "ALL", "", bounds_, ""));
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("", "", "", bounds_, ""));
    EXPECT_FALSE(CKvDbUtil::S_GetLLBoundsOnshore("99999", bounds_));
    EXPECT_EQ(bounds_, (CMinMax2Dd_t{1, 2, 3, 4}));
}

TEST_F(DbUtil, KnowsTheUsualProjectionOfAnArea) {
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("GC", ""), 115);
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("MISSISSIPPI CANYON", ""), 116);
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("43012", ""), 1);
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("PS", "GULF_MEXICO"), 2);
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("EUGENE ISLAND", ""), 3);
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("NO SUCH AREA", ""), -1);
}

struct County {
    std::string state, name;
    double minLat = 9, maxLat = 9, minLon = 9, maxLon = 9;
    int projection = 9, number = 9;
    County(const char* identifier, bool upperCase) {
        CKvDbUtil::S_GetCountyInfo(identifier, state, name, minLat, maxLat, minLon, maxLon,
                                   projection, number, upperCase);
    }
};

TEST_F(DbUtil, ReadsACountysRecord) {
    const County galveston("48167", false);
    EXPECT_EQ(galveston.state, "TX");
    EXPECT_EQ(galveston.name, "Galveston");
    EXPECT_DOUBLE_EQ(galveston.minLat, 29.05);
    EXPECT_DOUBLE_EQ(galveston.maxLat, 29.6);
    EXPECT_DOUBLE_EQ(galveston.minLon, -95.23);
    EXPECT_DOUBLE_EQ(galveston.maxLon, -94.37);
    EXPECT_EQ(galveston.projection, 1);
    EXPECT_EQ(galveston.number, 167);
    EXPECT_EQ(County("22101", true).name, "ST. MARY");
}

TEST_F(DbUtil, GivesAnEmptyRecordForACountyThatItDoesNotKnow) {
    const County none("99999", true);
    EXPECT_EQ(none.state, "");
    EXPECT_EQ(none.name, "");
    EXPECT_EQ(none.minLat, 0);
    EXPECT_EQ(none.maxLon, 0);
    EXPECT_EQ(none.projection, -1);
    EXPECT_EQ(none.number, 0);
}

TEST_F(DbUtil, BoundsACounty) {
    ASSERT_TRUE(CKvDbUtil::S_GetLLBoundsOnshore("22109", bounds_));
    EXPECT_DOUBLE_EQ(bounds_.minX, 29.03);
    EXPECT_DOUBLE_EQ(bounds_.maxX, 29.78);
    EXPECT_DOUBLE_EQ(bounds_.minY, -91.35);
    EXPECT_DOUBLE_EQ(bounds_.maxY, -90.36);
}

TEST_F(DbUtil, TakesAQuoteInAnArgumentAsPartOfIt) {
    EXPECT_EQ(CKvDbUtil::S_GetArea("' or '1' = '1", false), "");
    EXPECT_THAT(CKvDbUtil::S_GetAreacodesFromMMS("' or '1' = '1"), IsEmpty());
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("GC", "1' or '1' = '1", "", bounds_, ""));
    EXPECT_EQ(County("' or '1' = '1", false).name, "");
    EXPECT_FALSE(folder_.Has("log.txt"));
}

TEST_F(DbUtil, LogsAFailureAndAnswersAsForAPlaceThatIsNotThere) {
    const std::string path = folder_.Native("empty.db");
    MakeSqliteFile(path);
    ConnectToFile(path);
    EXPECT_EQ(CKvDbUtil::S_GetArea("GREEN CANYON", false), "");
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("43012", true), "");
    EXPECT_THAT(CKvDbUtil::S_GetAreacodesFromMMS("HI"), IsEmpty());
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1"), "");
    EXPECT_FALSE(CKvDbUtil::S_GetLLBounds("GC", "500", " ", bounds_, ""));
    EXPECT_FALSE(CKvDbUtil::S_GetLLBoundsOnshore("22109", bounds_));
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("GC", ""), -1);
    EXPECT_EQ(County("48167", false).projection, -1);
    EXPECT_EQ(bounds_, (CMinMax2Dd_t{1, 2, 3, 4}));
    EXPECT_THAT(folder_.Read("log.txt"), HasSubstr("no such table"));
}

TEST_F(DbUtil, GivesTheOutlinesOfManyBlocksAsTheirBoundsOneByOne) {
    const std::vector<CKvDbUtil::Pick> picks{
        {"GC", "500", " "},   {"GREEN CANYON", "501", ""}, {"HI", "12", "A"},
        {"HI", "12", " "},    {"HI", "12", "-S"},          {"GC", "99999", " "},
        {"ZZ", "1", ""},      {"GC", "500", " "},          {"42001", "12", "-BAY"},
        {"42001", "12", " "}, {"EAST BAY", "ALL", ""},     {"", "", ""},
        {"HI", "12", "-BAY"},
    };
    const auto outlines = CKvDbUtil::S_GetOutlines(picks, "");
    ASSERT_EQ(outlines.size(), picks.size());
    for (std::size_t i = 0; i < picks.size(); ++i) {
        CMinMax2Dd_t expected;
        const bool found =
            CKvDbUtil::S_GetLLBounds(picks[i].area, picks[i].block, picks[i].ext, expected, "");
        EXPECT_EQ(!outlines[i].empty(), found) << i;
        EXPECT_EQ(CKvUtilGeo::PolyLineGetMinMax(outlines[i]), expected) << i;
    }
    EXPECT_EQ(outlines[0].size(),
              BlocksOf(CodeOf("GREEN CANYON"), 500, "").front()->outline.size());
}

TEST_F(DbUtil, GivesAThousandOutlinesInFewStatements) {
    std::vector<CKvDbUtil::Pick> picks;
    for (const Block* block : BlocksOf(CodeOf("GREEN CANYON"), 0, ""))
        picks.push_back({"GC", std::to_string(block->number), block->ext});
    ASSERT_GT(picks.size(), 900U);
    int statements = 0;
    kv::db::SetStatementTrace([&](const std::string&) { ++statements; });
    const auto outlines = CKvDbUtil::S_GetOutlines(picks, "GULF_MEXICO");
    kv::db::SetStatementTrace(nullptr);
    EXPECT_LE(statements, 8);
    for (const auto& outline : outlines)
        EXPECT_GE(outline.size(), 3U);
}

TEST_F(DbUtil, ThrowsAFailureForWhoeverHasToTellOfIt) {
    const std::string path = folder_.Native("empty.db");
    MakeSqliteFile(path);
    ConnectToFile(path);
    {
        const kv::db::LookUpsThrow failures;
        EXPECT_THROW(CKvDbUtil::S_GetArea("GREEN CANYON", false), CKvException);
        EXPECT_THROW(CKvDbUtil::S_GetOutlines({{"GC", "500", " "}}, ""), CKvException);
        EXPECT_THROW(CKvDbUtil::S_GetLLBoundsOnshore("22109", bounds_), CKvException);
        EXPECT_FALSE(folder_.Has("log.txt"));
    }
    EXPECT_THAT(CKvDbUtil::S_GetOutlines({{"GC", "500", " "}}, ""), ElementsAre(IsEmpty()));
    EXPECT_TRUE(folder_.Has("log.txt"));
}

TEST_F(DbUtil, LogsADatabaseThatCannotBeReached) {
    ConnectToFile(folder_.Native("none/none.db"));
    EXPECT_EQ(CKvDbUtil::S_GetArea("GREEN CANYON", false), "");
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("GC", ""), -1);
    EXPECT_TRUE(folder_.Has("log.txt"));
}

}  // namespace
}  // namespace test
