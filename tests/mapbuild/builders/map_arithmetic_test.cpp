#include "mapbuild/builders/map_arithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "frame/kvcom/min_max_2dd.h"
#include "frame/kvcom/util_lldrv.h"

using namespace kv::mapbuild;

namespace {

constexpr Plane kMeters15{115, 1};

CKvMapBounds MapOf(double xMin, double xMax, double yMin, double yMax) {
    CKvMapBounds map;
    map.SetXMin(xMin);
    map.SetXMax(xMax);
    map.SetYMin(yMin);
    map.SetYMax(yMax);
    return map;
}

CKvMapBounds MapOfAngles(double latMin, double latMax, double lonMin, double lonMax) {
    CKvMapBounds map;
    map.SetLatMin(latMin);
    map.SetLatMax(latMax);
    map.SetLonMin(lonMin);
    map.SetLonMax(lonMax);
    return map;
}

CMinMax2Dd_t XY(const CKvMapBounds& map) {
    return {map.GetXMin(), map.GetXMax(), map.GetYMin(), map.GetYMax()};
}

CMinMax2Dd_t Angles(const CKvMapBounds& map) {
    return {map.GetLatMin(), map.GetLatMax(), map.GetLonMin(), map.GetLonMax()};
}

using Bounds = CMinMax2Dd_t;

// Width and height.

TEST(WideningInXY, AddsHalfTheBlocksOnEachSide) {
    CKvMapBounds map = MapOf(100000, 116000, 200000, 216000);
    WidenX(map, 3);
    EXPECT_EQ(XY(map), (Bounds{84000, 132000, 200000, 216000}));
    WidenY(map, 2);
    EXPECT_EQ(XY(map), (Bounds{84000, 132000, 192000, 224000}));
}

TEST(WideningInXY, CountsWholeUnitsAndCutsTheHalf) {
    CKvMapBounds map = MapOf(0, 101.9, 0, 101.9);
    WidenX(map, 2);
    EXPECT_EQ(map.GetXMin(), -50.0);
    EXPECT_EQ(map.GetXMax(), 151.9);
    WidenY(map, 3);
    EXPECT_EQ(map.GetYMin(), -101.0);
}

TEST(WideningInXY, HoldsWhatNoIntOf32BitsHolds) {
    CKvMapBounds map = MapOf(0, 2e9, 0, 1e300);
    WidenX(map, 50);
    EXPECT_EQ(map.GetXMin(), -49e9);
    WidenY(map, std::numeric_limits<int>::max());
    EXPECT_LT(map.GetYMin(), -2e18);
}

TEST(WideningInXY, OfAReversedSideEnlargesItToo) {
    CKvMapBounds map = MapOf(1000, 0, 0, 10);
    WidenX(map, 3);
    EXPECT_EQ(map.GetXMin(), 2000.0);
    EXPECT_EQ(map.GetXMax(), -1000.0);
}

TEST(Widening, ToOneBlockOrFewerChangesNothing) {
    for (const int times : {1, 0, -5}) {
        CKvMapBounds map = MapOf(1.5, 7.25, 3.5, 9.75);
        map.SetLatMin(28.1);
        map.SetLatMax(28.2);
        map.SetLonMin(-90.2);
        map.SetLonMax(-90.1);
        const CKvMapBounds before = map;
        WidenX(map, times);
        WidenY(map, times);
        WidenLat(map, times);
        WidenLon(map, times);
        EXPECT_EQ(map, before) << times;
    }
}

TEST(WideningAngles, DoesNotCut) {
    CKvMapBounds map = MapOfAngles(28, 28.5, -90.25, -90);
    WidenLon(map, 3);
    WidenLat(map, 2);
    EXPECT_EQ(Angles(map), (Bounds{27.75, 28.75, -90.5, -89.75}));
}

// Percent.

TEST(AMargin, Of15PercentMakesTheMap130PercentWide) {
    CKvMapBounds map = MapOf(0, 1000, 0, 2000);
    AddMarginXY(map, 15);
    EXPECT_EQ(XY(map), (Bounds{-150, 1150, -300, 2300}));
}

TEST(AMargin, Of100PercentTriplesTheMap) {
    CKvMapBounds map = MapOf(0, 1000, 0, 2000);
    AddMarginXY(map, 100);
    EXPECT_EQ(XY(map), (Bounds{-1000, 2000, -2000, 4000}));
    CKvMapBounds angles = MapOfAngles(28, 28.5, -90.25, -90);
    AddMarginAngles(angles, 100);
    EXPECT_EQ(Angles(angles), (Bounds{27.5, 29, -90.5, -89.75}));
}

TEST(AMargin, IsOfTheTruncatedSpanInXYAlone) {
    CKvMapBounds map = MapOf(0, 100.9, 0, -100.9);
    AddMarginXY(map, 100);
    EXPECT_EQ(map.GetXMin(), -100.0);
    EXPECT_EQ(map.GetXMax(), 200.9);
    EXPECT_EQ(map.GetYMin(), 100.0);
    CKvMapBounds angles = MapOfAngles(0.5, 1.25, 0.5, 1.25);
    AddMarginAngles(angles, 100);
    EXPECT_EQ(angles.GetLatMin(), -0.25);
}

TEST(AMargin, OutsideOf0To1000IsNone) {
    for (const int percent : {-1, 1001, std::numeric_limits<int>::max()}) {
        EXPECT_FALSE(IsPercent(percent));
        CKvMapBounds map = MapOf(0, 1000, 0, 2000);
        AddMarginXY(map, percent);
        AddMarginAngles(map, percent);
        EXPECT_EQ(XY(map), (Bounds{0, 1000, 0, 2000}));
        CKvMapBounds original;
        TakeMarginXY(original, map, percent);
        EXPECT_EQ(XY(original), (Bounds{0, 1000, 0, 2000}));
    }
    EXPECT_TRUE(IsPercent(0));
    EXPECT_TRUE(IsPercent(1000));
}

class AnyMap : public testing::Test {
protected:
    double Number(double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random_);
    }
    int Whole(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random_);
    }
    CKvMapBounds Any() {
        const double x = Number(-5e6, 5e6);
        const double y = Number(-5e6, 5e6);
        return MapOf(x, x + Number(0, 1e6), y, y + Number(0, 1e6));
    }
    CKvMapBounds AnyAngles() {
        const double lat = Number(18, 30);
        const double lon = Number(-98, -80);
        return MapOfAngles(lat, lat + Number(0, 3), lon, lon + Number(0, 3));
    }
    static constexpr int kRounds = 20'000;

private:
    std::mt19937 random_{20000114};
};

TEST_F(AnyMap, IsNotChangedByZeroPercent) {
    for (int round = 0; round < kRounds; ++round) {
        const CKvMapBounds xy = Any();
        CKvMapBounds same = xy;
        AddMarginXY(same, 0);
        EXPECT_EQ(XY(same), XY(xy));
        const CKvMapBounds angles = AnyAngles();
        same = angles;
        AddMarginAngles(same, 0);
        EXPECT_EQ(Angles(same), Angles(angles));
    }
}

TEST_F(AnyMap, OfWholeSpansComesBackFromItsMargin) {
    // Against the span, since the margin may be ten of them.
    constexpr double kTolerance = 5e-10;
    for (int round = 0; round < kRounds; ++round) {
        const double x = Whole(-5'000'000, 5'000'000);
        const double y = Whole(-5'000'000, 5'000'000);
        const double width = Whole(1, 1'000'000);
        const double height = Whole(1, 1'000'000);
        const CKvMapBounds first = MapOf(x, x + width, y, y + height);
        const int percent = Whole(0, 1000);
        CKvMapBounds enlarged = first;
        AddMarginXY(enlarged, percent);
        CKvMapBounds back;
        TakeMarginXY(back, enlarged, percent);
        const double within = kTolerance * (5e6 + 21 * (width + height));
        EXPECT_NEAR(back.GetXMin(), first.GetXMin(), within) << percent;
        EXPECT_NEAR(back.GetXMax(), first.GetXMax(), within);
        EXPECT_NEAR(back.GetYMin(), first.GetYMin(), within);
        EXPECT_NEAR(back.GetYMax(), first.GetYMax(), within);
    }
}

TEST_F(AnyMap, OfAnglesComesBackFromItsMargin) {
    for (int round = 0; round < kRounds; ++round) {
        const CKvMapBounds first = AnyAngles();
        const int percent = Whole(0, 1000);
        CKvMapBounds enlarged = first;
        AddMarginAngles(enlarged, percent);
        CKvMapBounds back;
        TakeMarginAngles(back, enlarged, percent);
        EXPECT_NEAR(back.GetLatMin(), first.GetLatMin(), 5e-10);
        EXPECT_NEAR(back.GetLatMax(), first.GetLatMax(), 5e-10);
        EXPECT_NEAR(back.GetLonMin(), first.GetLonMin(), 5e-10);
        EXPECT_NEAR(back.GetLonMax(), first.GetLonMax(), 5e-10);
    }
}

TEST_F(AnyMap, OfAFractionComesBackToLessThanTheMarginOfOneUnit) {
    bool differs = false;
    for (int round = 0; round < kRounds; ++round) {
        const CKvMapBounds first = Any();
        CKvMapBounds enlarged = first;
        AddMarginXY(enlarged, 100);
        CKvMapBounds back;
        TakeMarginXY(back, enlarged, 100);
        EXPECT_NEAR(back.GetXMin(), first.GetXMin(), 1.0);
        differs = differs || std::abs(back.GetXMin() - first.GetXMin()) > 1e-3;
    }
    EXPECT_TRUE(differs);
}

TEST_F(AnyMap, OfPositiveCoordinatesIsHeldByItsSnappedBounds) {
    for (int round = 0; round < kRounds; ++round) {
        const double x = Number(0, 5e6);
        const double y = Number(0, 5e6);
        const CKvMapBounds map = MapOf(x, x + Number(0, 1e6), y, y + Number(0, 1e6));
        const int range = Whole(1, 20'000);
        CKvMapBounds snapped = map;
        SnapXY(snapped, range);
        // Cut ahead of the move, a maximum still lies below the next whole unit.
        EXPECT_LE(snapped.GetXMin(), map.GetXMin());
        EXPECT_LE(snapped.GetYMin(), map.GetYMin());
        EXPECT_GE(snapped.GetXMax(), map.GetXMax());
        EXPECT_GE(snapped.GetYMax(), map.GetYMax());
        EXPECT_EQ(std::fmod(snapped.GetXMin(), range), 0.0);
        EXPECT_EQ(std::fmod(snapped.GetYMax(), range), 0.0);
    }
}

// Snap.

TEST(Snapping, MovesToTheGridWithTheSignOfTheCoordinate) {
    CKvMapBounds map = MapOf(1234.5, 5678.9, -1234.5, -500.1);
    SnapXY(map, 1000);
    EXPECT_EQ(XY(map), (Bounds{1000, 6000, -1000, 1000}));
}

TEST(Snapping, MovesAMaximumOnTheGridUp) {
    CKvMapBounds map = MapOf(1000, 2000, 0, 0);
    SnapXY(map, 1000);
    EXPECT_EQ(XY(map), (Bounds{1000, 3000, 0, 1000}));
}

TEST(Snapping, ToNoGridChangesNothing) {
    for (const int range : {0, -100}) {
        CKvMapBounds map = MapOf(1234.5, 5678.9, 1, 2);
        SnapXY(map, range);
        EXPECT_EQ(XY(map), (Bounds{1234.5, 5678.9, 1, 2}));
    }
}

// The driver.

TEST(ProjectingCorners, GivesEachSideFromTheOther) {
    CKvMapBounds map = MapOfAngles(28, 28.5, -91, -90.5);
    ProjectToXY(map, kMeters15);
    EXPECT_TRUE(HasXY(map));
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(28, -91, &x, &y, 115, 1, 1, 100.0, 0.0, 0.0);
    EXPECT_EQ(map.GetXMin(), x);
    EXPECT_EQ(map.GetYMin(), y);
    CKvMapBounds back = MapOf(map.GetXMin(), map.GetXMax(), map.GetYMin(), map.GetYMax());
    ProjectToAngles(back, kMeters15);
    EXPECT_NEAR(back.GetLatMax(), 28.5, 1e-9);
    EXPECT_NEAR(back.GetLonMin(), -91, 1e-9);
    EXPECT_NEAR(back.GetLonMax(), -90.5, 1e-9);
}

TEST(ProjectingCorners, WithoutAnAnswerLeavesNoValueOnThatSide) {
    constexpr Plane kUnknown{-1, 1};
    CKvMapBounds map = MapOfAngles(28, 28.5, -91, -90.5);
    ProjectToXY(map, kUnknown);
    EXPECT_FALSE(HasXY(map));
    constexpr double kNone = CKvUtilLLdrv::kNoXY;
    EXPECT_EQ(XY(map), (Bounds{kNone, kNone, kNone, kNone}));
    EXPECT_EQ(Angles(map), (Bounds{28, 28.5, -91, -90.5}));

    CKvMapBounds xy = MapOf(500000, 600000, 3000000, 3100000);
    ProjectToAngles(xy, kUnknown);
    EXPECT_FALSE(HasAngles(xy));
    EXPECT_EQ(Angles(xy), (Bounds{1000, 1000, 1000, 1000}));
    EXPECT_EQ(XY(xy), (Bounds{500000, 600000, 3000000, 3100000}));
}

TEST(ProjectingCorners, OfASideWithoutValueLeavesTheOther) {
    CKvMapBounds map = MapOfAngles(28, 28.5, -91, -90.5);
    ProjectToXY(map, {-1, 1});
    WidenX(map, 3);
    WidenY(map, 3);
    AddMarginXY(map, 100);
    SnapXY(map, 1000);
    EXPECT_FALSE(HasXY(map));
    EXPECT_EQ(map.GetXMax(), CKvUtilLLdrv::kNoXY);
    ProjectToAngles(map, kMeters15);
    EXPECT_EQ(Angles(map), (Bounds{28, 28.5, -91, -90.5}));

    CKvMapBounds xy = MapOf(500000, 600000, 3000000, 3100000);
    ProjectToAngles(xy, {-1, 1});
    WidenLat(xy, 3);
    WidenLon(xy, 3);
    AddMarginAngles(xy, 100);
    EXPECT_FALSE(HasAngles(xy));
    EXPECT_EQ(xy.GetLonMax(), 1000.0);
    ProjectToXY(xy, kMeters15);
    EXPECT_EQ(XY(xy), (Bounds{500000, 600000, 3000000, 3100000}));
}

TEST(TheRectifyingPoint, IsTheMiddleUnlessTheUserNamedIt) {
    CKvMapBounds map = MapOfAngles(28, 29, -91, -90);
    UseRectifyingPoint(map);
    EXPECT_EQ(map.GetRectifyingLat(), 28.5);
    EXPECT_EQ(map.GetRectifyingLon(), -90.5);
    ProjectToXY(map, {199, 1});
    // Its meridian is the middle of X.
    EXPECT_NEAR(map.GetXMin() + map.GetXMax(), 0.0, 1e-6);

    map.SetRectSpec(true);
    map.SetRectifyingLat(28);
    map.SetRectifyingLon(-91);
    UseRectifyingPoint(map);
    EXPECT_EQ(map.GetRectifyingLon(), -91.0);
    ProjectToXY(map, {199, 1});
    EXPECT_NEAR(map.GetXMin(), 0.0, 1e-6);
}

TEST(TheRectifyingPoint, StaysWhereThereAreNoAngles) {
    CKvMapBounds map = MapOfAngles(1000, 1000, 1000, 1000);
    map.SetRectifyingLat(28);
    UseRectifyingPoint(map);
    EXPECT_EQ(map.GetRectifyingLat(), 28.0);
}

}  // namespace
