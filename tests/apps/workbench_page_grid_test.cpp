#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <random>

#include "workbench/map/cut.h"
#include "workbench/map/feature_layer.h"
#include "workbench/printing/page_grid.h"
#include "workbench/printing/page_ticks.h"

namespace workbench {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::SizeIs;

/// Letter paper with an inch of margin in all.
constexpr Sheet kLetter{8.5, 11, 7.5, 10};

Box Sized(double width, double height) {
    return {500'000, 200'000, 500'000 + width, 200'000 + height};
}

TEST(PageGrid, AMapThatFitsIsOnePageAndLiesInItsMiddle) {
    const PageGrid grid(Sized(10'000, 12'000), 2000, kLetter);
    ASSERT_EQ(grid.Count(), 1);
    const Box page = grid.BoxOf(0);
    EXPECT_DOUBLE_EQ(page.Width(), 15'000);
    EXPECT_DOUBLE_EQ(page.Height(), 20'000);
    EXPECT_DOUBLE_EQ(page.Middle().x, 505'000);
    EXPECT_DOUBLE_EQ(page.Middle().y, 206'000);
}

TEST(PageGrid, AMapThatJustFillsThePageIsOnePage) {
    EXPECT_EQ(PageGrid(Sized(15'000, 20'000), 2000, kLetter).Count(), 1);
    EXPECT_EQ(PageGrid(Sized(15'000 * (1 + 1e-9), 20'000), 2000, kLetter).Count(), 1);
    EXPECT_EQ(PageGrid(Sized(15'001, 20'000), 2000, kLetter).Columns(), 2);
    EXPECT_EQ(PageGrid(Sized(15'000, 20'001), 2000, kLetter).Rows(), 2);
}

TEST(PageGrid, PagesJoinWithoutAGapAndHoldAllOfTheMap) {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> extent(100, 400'000);
    std::uniform_real_distribution<double> room(1, 30);
    std::uniform_int_distribution<int> scale(500, 64'000);
    for (int turn = 0; turn < 20'000; ++turn) {
        const Box map = Sized(extent(random), extent(random));
        const Sheet sheet{0, 0, room(random), room(random)};
        const double feet = scale(random);
        const PageGrid grid(map, feet, sheet);
        ASSERT_LT((static_cast<double>(grid.Columns()) - 1) * sheet.roomWidth * feet, map.Width());
        ASSERT_LT((static_cast<double>(grid.Rows()) - 1) * sheet.roomHeight * feet, map.Height());
        const Box covered = grid.Covered().Grown(1);
        ASSERT_TRUE(covered.Contains({map.minX, map.minY}));
        ASSERT_TRUE(covered.Contains({map.maxX, map.maxY}));
        std::uniform_int_distribution<std::int64_t> any(0, grid.Count() - 1);
        const std::int64_t page = any(random);
        if (const auto right = grid.Beside(page, 1, 0)) {
            ASSERT_THAT(grid.BoxOf(*right).minX, DoubleNear(grid.BoxOf(page).maxX, 1e-6));
            ASSERT_THAT(grid.BoxOf(*right).minY, DoubleNear(grid.BoxOf(page).minY, 1e-6));
        }
        if (const auto below = grid.Beside(page, 0, 1)) {
            ASSERT_THAT(grid.BoxOf(*below).maxY, DoubleNear(grid.BoxOf(page).minY, 1e-6));
            ASSERT_THAT(grid.BoxOf(*below).minX, DoubleNear(grid.BoxOf(page).minX, 1e-6));
        }
    }
}

TEST(PageGrid, PagesRunFromTheNorthwestByRows) {
    const PageGrid grid(Sized(40'000, 30'000), 2000, kLetter);
    ASSERT_EQ(grid.Columns(), 3);
    ASSERT_EQ(grid.Rows(), 2);
    EXPECT_GT(grid.BoxOf(0).minY, grid.BoxOf(3).minY);
    EXPECT_LT(grid.BoxOf(0).minX, grid.BoxOf(1).minX);
    EXPECT_EQ(grid.Beside(0, 1, 0), 1);
    EXPECT_EQ(grid.Beside(0, 0, 1), 3);
    EXPECT_EQ(grid.Beside(0, -1, 0), std::nullopt);
    EXPECT_EQ(grid.Beside(2, 1, 0), std::nullopt);
    EXPECT_EQ(grid.Beside(3, 0, 1), std::nullopt);
    EXPECT_EQ(grid.Beside(3, 0, -1), 0);
}

TEST(PageGrid, CountsPagesWithoutNumber) {
    const Box gulf = Sized(3'000'000, 2'000'000);
    EXPECT_EQ(PageGrid(gulf, 1, kLetter).Count(), 400'000LL * 200'000LL);
}

// Ticks.

std::vector<double> PlacesOf(const std::vector<Tick>& ticks) {
    std::vector<double> places;
    for (const Tick& tick : ticks)
        places.push_back(tick.at);
    return places;
}

TEST(PageTicks, StandWhereTheAngleIsRound) {
    const auto ticks = TicksOn([](double part) { return 28 + (5 + 20 * part) / 60; }, 600);
    EXPECT_THAT(PlacesOf(ticks), ElementsAre(DoubleNear(0.25, 1e-9), DoubleNear(0.75, 1e-9)));
    EXPECT_EQ(ticks[0].seconds, (28 * 60 + 10) * 60);
    EXPECT_EQ(ticks[1].seconds, (28 * 60 + 20) * 60);
}

TEST(PageTicks, StandOnFallingAnglesToo) {
    const auto ticks = TicksOn([](double part) { return -89.0 - 0.2 * part; }, 360);
    EXPECT_THAT(PlacesOf(ticks),
                ElementsAre(DoubleNear(0, 1e-9), DoubleNear(0.5, 1e-9), DoubleNear(1, 1e-9)));
    EXPECT_EQ(ticks[2].seconds, -89.2 * 3600);
}

TEST(PageTicks, StandOnCurvesWhereverTheAngleComesBy) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> base(-100, 60);
    std::uniform_real_distribution<double> span(0.01, 3);
    std::uniform_real_distribution<double> bend(-0.4, 0.4);
    for (int turn = 0; turn < 500; ++turn) {
        const double from = base(random), long_ = span(random), curved = bend(random);
        const auto angleAt = [&](double part) {
            return from + long_ * (part + curved * part * (1 - part));
        };
        const double step = 60;
        const auto ticks = TicksOn(angleAt, step);
        const double first = std::ceil(from * 3600 / step);
        const double last = std::floor((from + long_) * 3600 / step);
        ASSERT_THAT(ticks, SizeIs(static_cast<std::size_t>(last - first + 1)));
        for (std::size_t i = 0; i < ticks.size(); ++i) {
            ASSERT_EQ(ticks[i].seconds, (first + static_cast<double>(i)) * step);
            ASSERT_THAT(angleAt(ticks[i].at) * 3600, DoubleNear(ticks[i].seconds, 1e-4));
        }
    }
}

TEST(PageTicks, AreNoneWhereTheEdgeHasNoPlace) {
    const auto gone = [](double part) {
        return part > 0.5 ? std::numeric_limits<double>::infinity() : 28 + part;
    };
    EXPECT_THAT(TicksOn(gone, 60), testing::IsEmpty());
}

TEST(PageTicks, LieApartByTheLeastRoundStep) {
    EXPECT_EQ(TickStep(20, 1.2), 30);
    EXPECT_EQ(TickStep(25, 1.2), 30);
    EXPECT_EQ(TickStep(26, 1.2), 60);
    EXPECT_EQ(TickStep(0.1, 1.2), 1);
    EXPECT_EQ(TickStep(1e9, 1.2), 36'000);
}

TEST(PageTicks, SayNoMoreMinutesAndSecondsThanThereAre) {
    EXPECT_EQ(TickLabel(28 * 3600, 'N', 'S'), "28\u00b0N");
    EXPECT_EQ(TickLabel(28 * 3600 + 1800, 'N', 'S'), "28\u00b030'N");
    EXPECT_EQ(TickLabel(-(89 * 3600 + 7 * 60 + 30), 'E', 'W'), "89\u00b007'30\"W");
    EXPECT_EQ(TickLabel(-3605, 'E', 'W'), "1\u00b000'05\"W");
    EXPECT_EQ(TickLabel(0, 'E', 'W'), "0\u00b0E");
}

// Cutting.

constexpr Box kBox{0, 0, 10, 10};

MATCHER_P2(Is, x, y, "") {
    return std::abs(arg.x - x) < 1e-9 && std::abs(arg.y - y) < 1e-9;
}

TEST(Cut, ALineKeepsWhatLiesInTheBox) {
    const auto through = CutLine({{-5, 5}, {15, 5}}, kBox);
    ASSERT_TRUE(through);
    EXPECT_THAT(through->from, Is(0, 5));
    EXPECT_THAT(through->to, Is(10, 5));
    const auto slanted = CutLine({{5, 5}, {15, 25}}, kBox);
    ASSERT_TRUE(slanted);
    EXPECT_THAT(slanted->from, Is(5, 5));
    EXPECT_THAT(slanted->to, Is(7.5, 10));
    EXPECT_FALSE(CutLine({{-5, 5}, {-1, 8}}, kBox));
    EXPECT_FALSE(CutLine({{-4, 8}, {4, 16}}, kBox)) << "it passes by the corner";
}

TEST(Cut, ARandomLineIsItsPartInTheBox) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-20, 30);
    for (int turn = 0; turn < 20'000; ++turn) {
        const Point a{place(random), place(random)};
        const Point b{place(random), place(random)};
        const auto cut = CutLine({a, b}, kBox);
        double inside = 0;
        constexpr int kSamples = 400;
        for (int i = 0; i < kSamples; ++i) {
            const double part = (i + 0.5) / kSamples;
            inside += kBox.Contains({a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part});
        }
        const double length =
            cut ? std::hypot(cut->to.x - cut->from.x, cut->to.y - cut->from.y) : 0;
        const double whole = std::hypot(b.x - a.x, b.y - a.y);
        ASSERT_NEAR(length / whole, inside / kSamples, 2.0 / kSamples);
    }
}

TEST(Cut, APathIsWholeForAsLongAsItStaysInside) {
    const std::vector<Point> path{{2, 2}, {4, 2}, {4, 15}, {6, 15}, {6, 5}, {8, 5}};
    const auto parts = CutPath(path, kBox);
    ASSERT_THAT(parts, SizeIs(2));
    EXPECT_THAT(parts[0], ElementsAre(Is(2, 2), Is(4, 2), Is(4, 10)));
    EXPECT_THAT(parts[1], ElementsAre(Is(6, 10), Is(6, 5), Is(8, 5)));
}

double AreaOf(const std::vector<Point>& corners) {
    return corners.empty() ? 0 : std::abs(SignedArea(corners));
}

TEST(Cut, AnOutlineCoversWhatItCoveredInTheBox) {
    EXPECT_DOUBLE_EQ(
        AreaOf(CutOutline(std::vector<Point>{{-5, -5}, {5, -5}, {5, 5}, {-5, 5}}, kBox)), 25);
    EXPECT_DOUBLE_EQ(
        AreaOf(CutOutline(std::vector<Point>{{-5, -5}, {25, -5}, {25, 25}, {-5, 25}}, kBox)), 100);
    EXPECT_THAT(CutOutline(std::vector<Point>{{-5, -5}, {-1, -5}, {-1, 25}}, kBox),
                testing::IsEmpty());
    // A horseshoe whose two ends alone lie inside.
    const std::vector<Point> horseshoe{{1, 8}, {1, 20}, {9, 20}, {9, 8},
                                       {7, 8}, {7, 15}, {3, 15}, {3, 8}};
    EXPECT_DOUBLE_EQ(AreaOf(CutOutline(horseshoe, kBox)), 8);
    for (const Point& corner : CutOutline(horseshoe, kBox))
        EXPECT_TRUE(kBox.Contains(corner));
}

}  // namespace
}  // namespace workbench
