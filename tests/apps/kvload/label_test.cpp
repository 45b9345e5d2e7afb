#include "kvload/label.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "kvload/refused.h"

namespace kvload {
namespace {

std::string Split(const std::string& label, const std::string& area = "43602",
                  const LabelRule& rule = {}) {
    const BlockLabel split = rule.Split(label, area);
    return split.number + "|" + split.ext;
}

TEST(BlockLabels, SplitIntoNumberAndExtension) {
    EXPECT_EQ(Split("123"), "123|");
    EXPECT_EQ(Split("123A"), "123|A");
    EXPECT_EQ(Split("123 a"), "123|A");
    EXPECT_EQ(Split("A-12"), "12|A");
    EXPECT_EQ(Split("A12"), "12|A");
    EXPECT_EQ(Split("12/B"), "12|B");
    EXPECT_EQ(Split(" 7 "), "7|");
    EXPECT_EQ(Split("12AB"), "12|AB");
}

TEST(BlockLabels, LoseTheZerosAheadOfTheirNumber) {
    EXPECT_EQ(Split("0123"), "123|");
    EXPECT_EQ(Split("000"), "0|");
    EXPECT_EQ(Split("A-0012"), "12|A");
}

TEST(BlockLabels, LoseTheZeroFractionOfATableCalculation) {
    EXPECT_EQ(Split("123.0"), "123|");
    EXPECT_EQ(Split("123.000"), "123|");
    EXPECT_THROW(Split("123.5"), Refused);
}

TEST(BlockLabels, LoseTheSuffixOfTheirAreasWater) {
    EXPECT_EQ(Split("12-S", "42601"), "12|");
    EXPECT_EQ(Split("12A-BAY", "42801"), "12|A");
    EXPECT_EQ(Split("12-L", "42701"), "12|");
    EXPECT_EQ(Split("12-S", "43602"), "12|S");
}

TEST(BlockLabels, ThatDoNotSplitAreRefused) {
    for (const char* label : {"", "  ", "A", "A12B", "12-34", "12ABC", "123456", "12#", "N1/2 12",
                              "GC 12", "GC12", "BLK 12"})
        EXPECT_THROW(Split(label), Refused) << label;
    EXPECT_THROW(Split(std::string(100'000, '9')), Refused);
}

TEST(BlockLabels, SplitByAPatternOfOnesOwn) {
    EXPECT_EQ(Split("GC 123A", "43602", LabelRule("gc #@")), "123|A");
    EXPECT_EQ(Split("GC 123", "43602", LabelRule("GC #@")), "123|");
    EXPECT_EQ(Split("A:12", "43602", LabelRule("@:#")), "12|A");
    EXPECT_EQ(Split("NG15-03 Block 12 (part)", "43602", LabelRule("* Block #*")), "12|");
    EXPECT_THROW(Split("12", "43602", LabelRule("GC#")), Refused);
    EXPECT_THROW(Split("GC12X", "43602", LabelRule("GC#")), Refused);
}

TEST(BlockLabels, APatternHasOneNumber) {
    for (const char* pattern : {"", "GC", "##", "#@@", "***#"})
        EXPECT_THROW(LabelRule{pattern}, std::invalid_argument) << pattern;
}

}  // namespace
}  // namespace kvload
