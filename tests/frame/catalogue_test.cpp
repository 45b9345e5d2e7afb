#include "frame/catalogue.h"

#include <gtest/gtest.h>

namespace {

namespace catalogue = kv::catalogue;

struct Pick {
    const char* item;
    const char* area;
    const char* block;
    const char* ext;
};

TEST(Catalogue, TheBlockLabelExpressionIsThisText) {
    EXPECT_EQ(catalogue::BlockLabelExpression(),
              "select decode(substr(areacode, 1, 3), '426', lbnum||lbext || '-S',"
              "'427', lbnum||lbext || '-L',"
              "'420', lbnum||lbext || '-BAY',"
              "'421', lbnum||lbext || '-BAY',"
              "'422', lbnum||lbext || '-BAY',"
              "'423', lbnum||lbext || '-BAY',"
              "'424', lbnum||lbext || '-BAY',"
              "'425', lbnum||lbext || '-BAY',"
              "'428', lbnum||lbext || '-BAY',"
              "'429', lbnum||lbext || '-BAY',");
}

TEST(Catalogue, TheBlockLabelExpressionMayBeDistinct) {
    const std::string plain = catalogue::BlockLabelExpression();
    EXPECT_EQ(catalogue::BlockLabelExpression("select distinct decode("),
              "select distinct decode(" + plain.substr(std::string("select decode(").size()));
}

TEST(Catalogue, TheBranchesOfTheWatersTakeAnyBlockColumn) {
    EXPECT_EQ(catalogue::WaterBranches("blk"),
              "'427', blk || '-L','420', blk || '-BAY','421', blk || '-BAY','422', blk || "
              "'-BAY','423', blk || '-BAY','424', blk || '-BAY','425', blk || '-BAY','428', blk || "
              "'-BAY','429', blk || '-BAY',");
}

TEST(Catalogue, ABlockIsCutFromItsLabelAtTheFirstDashBehindTheFirstCharacter) {
    EXPECT_EQ(catalogue::StripWaterSuffix("123A-S"), "123A");
    EXPECT_EQ(catalogue::StripWaterSuffix("45-BAY"), "45");
    EXPECT_EQ(catalogue::StripWaterSuffix("7-L-S"), "7");
    EXPECT_EQ(catalogue::StripWaterSuffix("123"), "123");
    EXPECT_EQ(catalogue::StripWaterSuffix("-9-S"), "-9");
    EXPECT_EQ(catalogue::StripWaterSuffix("-"), "-");
    EXPECT_EQ(catalogue::StripWaterSuffix(""), "");
}

TEST(Catalogue, APickIsTakenApart) {
    for (const Pick& pick : {Pick{"MP#123A", "MP", "123", "A"},
                             {"MP#123", "MP", "123", " "},
                             {"MP#ALL", "MP", "ALL", ""},
                             {"MP#all", "MP", "", "all"},
                             {"MP#A12", "MP", "12", "A"},
                             {"MP#1A2B", "MP", "12", "AB"},
                             {"MP#0123A-S", "MP", "0123", "A-S"},
                             {"MP#", "MP", "", " "},
                             {"#12", "", "12", " "},
                             {"A#1#2", "A", "12", "#"}}) {
        catalogue::AbeItem parts;
        EXPECT_TRUE(catalogue::ParseAbeItem(pick.item, parts)) << pick.item;
        EXPECT_EQ(parts.area, pick.area) << pick.item;
        EXPECT_EQ(parts.block, pick.block) << pick.item;
        EXPECT_EQ(parts.ext, pick.ext) << pick.item;
    }
}

TEST(Catalogue, ATextWithoutItsMarkIsNoPick) {
    catalogue::AbeItem parts = {"old", "old", "old"};
    EXPECT_FALSE(catalogue::ParseAbeItem("MP 123", parts));
    EXPECT_EQ(parts.area, "");
    EXPECT_EQ(parts.block, "");
    EXPECT_EQ(parts.ext, "");
}

TEST(Catalogue, EveryTitleHasItsLayer) {
    const std::pair<const char*, int> kLayers[] = {
        {"Wells", 25},     {"Leases", 13},       {"APDs", 67},
        {"Platforms", 66}, {"Plans", 68},        {"Prospects", 54},
        {"Fields", 28},    {"Pipelines", 15},    {"Well Completions", 62},
        {"Bids", 53},      {"2D Shotpoints", 16}};
    for (const auto& [title, number] : kLayers) {
        EXPECT_EQ(catalogue::LayerFromTitle(title), number) << title;
    }
    EXPECT_EQ(catalogue::LayerFromTitle("wells"), 0);
    EXPECT_EQ(catalogue::LayerFromTitle("Wells "), 0);
    EXPECT_EQ(catalogue::LayerFromTitle(""), 0);
}

TEST(Catalogue, EachLabelSortsAheadOfEveryArea) {
    for (const std::string label :
         {catalogue::kLabelMmsCode, catalogue::kLabelAreaName, catalogue::kLabelAreaCode}) {
        EXPECT_LT(label, "!") << label;
    }
}

}  // namespace
