#include "kvload/outline.h"

#include <gtest/gtest.h>

namespace kvload {
namespace {

TEST(Outlines, RunWithTheClockFromTheSameCorner) {
    const Spots clockwise = {{0, 0}, {0, 1}, {1, 1}, {1, 0}};
    EXPECT_EQ(Tidied({{0, 0}, {0, 1}, {1, 1}, {1, 0}, {0, 0}}), clockwise);
    EXPECT_EQ(Tidied({{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}}), clockwise);
}

TEST(Outlines, LoseCornersThatRepeat) {
    EXPECT_EQ(Tidied({{0, 0}, {0, 1}, {0, 1}, {1, 1}, {0, 0}, {0, 0}}),
              (Spots{{0, 0}, {0, 1}, {1, 1}}));
}

TEST(Outlines, WithoutAnAreaAreNone) {
    EXPECT_EQ(Tidied({}), Spots{});
    EXPECT_EQ(Tidied({{0, 0}}), Spots{});
    EXPECT_EQ(Tidied({{0, 0}, {1, 1}, {0, 0}}), Spots{});
    EXPECT_EQ(Tidied({{0, 0}, {1, 1}, {2, 2}, {0, 0}}), Spots{});
}

TEST(Outlines, OverTheMeridianOf180DegreesAreTorn) {
    EXPECT_TRUE(IsTorn({{179.9, 52}, {179.9, 53}, {-179.9, 53}, {-179.9, 52}}));
    EXPECT_FALSE(IsTorn({{179.8, 52}, {179.8, 53}, {179.9, 53}, {179.9, 52}}));
    EXPECT_FALSE(IsTorn({}));
}

TEST(Outlines, ThatCrossThemselvesTellWhere) {
    const auto crossing = Crossing({{0, 0}, {2, 2}, {2, 0}, {0, 2}});
    ASSERT_TRUE(crossing);
    EXPECT_DOUBLE_EQ(crossing->x, 1.0);
    EXPECT_DOUBLE_EQ(crossing->y, 1.0);
}

TEST(Outlines, ThatTouchThemselvesDoNotCross) {
    EXPECT_FALSE(Crossing({{0, 0}, {0, 2}, {2, 2}, {2, 0}}));
    EXPECT_FALSE(Crossing({{0, 0}, {1, 1}, {0, 2}, {2, 2}, {1, 1}, {2, 0}}));
    EXPECT_FALSE(Crossing({}));
}

TEST(Lines, OfPartsThatMeetAreOne) {
    const auto lines = Joined({{{2, 0}, {1, 0}}, {{2, 0}, {3, 0}}, {{0, 0}, {1, 0}}});
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], (Spots{{3, 0}, {2, 0}, {1, 0}, {0, 0}}));
}

TEST(Lines, OfPartsThatDoNotMeetHaveTheLongestFirst) {
    const auto lines = Joined({{{0, 0}, {1, 0}}, {{5, 0}, {9, 0}}, {{7, 7}}});
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], (Spots{{5, 0}, {9, 0}}));
}

}  // namespace
}  // namespace kvload
