#include "base/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Text, ChangesTheCaseOfAsciiLettersAlone) {
    EXPECT_EQ(kv::ToUpper("shell \xE4\xB0 az{`"), "SHELL \xE4\xB0 AZ{`");
    EXPECT_EQ(kv::ToLower("SHELL \xC4\xB0 AZ[@"), "shell \xC4\xB0 az[@");
}

TEST(Text, TrimTakesBlanksAwayAndNothingElse) {
    EXPECT_EQ(kv::Trim("  a b  "), "a b");
    EXPECT_EQ(kv::Trim(" \ta\n "), "\ta\n");
    EXPECT_EQ(kv::Trim("   "), "");
    EXPECT_EQ(kv::Trim(""), "");
}

TEST(Text, TrimSpaceTakesAllWhiteSpaceAway) {
    EXPECT_EQ(kv::TrimSpace(" \t\r\na b\v\f "), "a b");
    EXPECT_EQ(kv::TrimSpace("\n"), "");
}

TEST(Text, ComparesWithoutCase) {
    EXPECT_EQ(kv::CompareNoCase("Leases", "LEASES"), 0);
    EXPECT_LT(kv::CompareNoCase("a", "B"), 0);
    EXPECT_GT(kv::CompareNoCase("b", "A"), 0);
    EXPECT_LT(kv::CompareNoCase("ab", "ABC"), 0);
    EXPECT_GT(kv::CompareNoCase("\xE4", "z"), 0);
    EXPECT_LT(kv::CompareNoCase("_", "a"), 0);
    EXPECT_TRUE(kv::EqualsNoCase("\\Report", "\\REPORT"));
    EXPECT_FALSE(kv::EqualsNoCase("Report", "Reports"));
    EXPECT_TRUE(kv::StartsWithNoCase("Green Canyon", "green"));
    EXPECT_TRUE(kv::StartsWithNoCase("Green", ""));
    EXPECT_FALSE(kv::StartsWithNoCase("Green", "green canyon"));
}

TEST(Text, SplitGivesOnePartMoreThanSeparators) {
    EXPECT_THAT(kv::Split("a\tb\t", '\t'), ElementsAre("a", "b", ""));
    EXPECT_THAT(kv::Split("", '\t'), ElementsAre(""));
    EXPECT_THAT(kv::Split("abc", '\t'), ElementsAre("abc"));
}

TEST(Text, LinesGoThereAndBack) {
    EXPECT_EQ(kv::JoinLines({"a", "", "b"}), "a\n\nb\n");
    EXPECT_EQ(kv::JoinLines({}), "");
    EXPECT_THAT(kv::SplitLines("a\n\nb\n"), ElementsAre("a", "", "b"));
    EXPECT_THAT(kv::SplitLines("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(kv::SplitLines(""), IsEmpty());
}

TEST(Text, ReplacesEveryOccurrence) {
    EXPECT_EQ(kv::ReplaceAll("a b c", " ", "~"), "a~b~c");
    EXPECT_EQ(kv::ReplaceAll("aaa", "aa", "a"), "aa");
    EXPECT_EQ(kv::ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(kv::ReplaceAll("abc", "b", ""), "ac");
}

TEST(Text, FormatsAsPrintf) {
    EXPECT_EQ(kv::FormatText("%.6f , %.6f", 29.5, -90.25), "29.500000 , -90.250000");
    EXPECT_EQ(kv::FormatText("Can't open %s.\n", "a.txt"), "Can't open a.txt.\n");
    EXPECT_EQ(kv::FormatText("%3d|%-3d|%03d|%+d|% d|%.3d", 5, 5, 5, 5, 5, 5),
              "  5|5  |005|+5| 5|005");
    EXPECT_EQ(kv::FormatText("%#x|%#06x|%o|%X", 255u, 255u, 8u, 255u), "0xff|0x00ff|10|FF");
    EXPECT_EQ(kv::FormatText("%c%5c|%-3c|", 'a', 'b', 'c'), "a    b|c  |");
    EXPECT_EQ(kv::FormatText("%Lf", 1.5L), "1.500000");
    EXPECT_EQ(
        kv::FormatText("%lld|%zu|%ld", 9'000'000'000LL, std::size_t{7'000'000'000}, 8'000'000'000L),
        "9000000000|7000000000|8000000000");
    EXPECT_EQ(kv::FormatText("%*d|%*d|", 3, 5, -3, 5), "  5|5  |");
    EXPECT_EQ(kv::FormatText("% 05d|%+05d|% 07.2f", 5, 5, 1.5), " 0005|+0005| 001.50");
    EXPECT_EQ(kv::FormatText("%08.3f|%08.3f", 1.5, -1.5), "0001.500|-001.500");
    EXPECT_EQ(kv::FormatText("%hd %jd %td", static_cast<short>(3),
                             static_cast<std::intmax_t>(4'000'000'000),
                             static_cast<std::ptrdiff_t>(5'000'000'000)),
              "3 4000000000 5000000000");
    const auto* place = reinterpret_cast<const void*>(std::uintptr_t{0x123456789});
    EXPECT_EQ(kv::FormatText("%p|%s", place, static_cast<const char*>(nullptr)),
              "0x123456789|(null)");
}

TEST(Text, ZerosFillUpNeitherAPrecisionNorTextNorTheRight) {
    const std::string format = "%08.3d|%-08d|%05s|%06f";
    EXPECT_EQ(kv::FormatText(format.c_str(), 5, 5, "ab", HUGE_VAL),
              "     005|5       |   ab|   inf");
}

TEST(Text, FormatsAnEmptyFormatAsNothing) {
    EXPECT_EQ(kv::FormatText("%s", ""), "");
}

}  // namespace
