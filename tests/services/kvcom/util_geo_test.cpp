#include "frame/kvcom/util_geo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

namespace {

using Outline = std::vector<CKvDispPoint>;

/// In the middle of the Gulf.
constexpr double kLat = 27.5;
constexpr double kLon = -91.0;
constexpr double kMetersPerDegree = 6371008.8 * std::numbers::pi / 180.0;

struct Spot {
    double east;
    double north;
};

/// Corners in meters from that place, as the tables hold them.
Outline Draw(const std::vector<Spot>& spots) {
    const double degreeEast = kMetersPerDegree * std::cos(kLat * std::numbers::pi / 180.0);
    Outline outline;
    for (const Spot& spot : spots) {
        outline.emplace_back(kLat + spot.north / kMetersPerDegree, kLon + spot.east / degreeEast);
    }
    return outline;
}

/// A block of the usual size with its south-west corner there.
Outline Block(double east, double north, double side = 4800.0) {
    return Draw(
        {{east, north + side}, {east + side, north + side}, {east + side, north}, {east, north}});
}

enum class Meeting { kNone, kPoint, kBoundary };

void PrintTo(Meeting meeting, std::ostream* out) {
    constexpr const char* kWords[] = {"none", "in a point or overlapping", "along a boundary"};
    *out << kWords[static_cast<int>(meeting)];
}

/// What the two tests say, either way round.
Meeting Meet(const Outline& a, const Outline& b) {
    const CKvUtilGeo geo;
    const bool adjacent = geo.AreTheyAdjacent(a, b);
    const bool adjoining = geo.AreTheyAdjoining(a, b);
    EXPECT_EQ(geo.AreTheyAdjacent(b, a), adjacent);
    EXPECT_EQ(geo.AreTheyAdjoining(b, a), adjoining);
    EXPECT_TRUE(adjoining || !adjacent) << "what shares a boundary touches";
    return adjacent ? Meeting::kBoundary : adjoining ? Meeting::kPoint : Meeting::kNone;
}

const Outline kBlock = Block(0, 0);

TEST(UtilGeo, BlocksSideBySideShareABoundary) {
    EXPECT_EQ(Meet(kBlock, Block(4800, 0)), Meeting::kBoundary);
    EXPECT_EQ(Meet(kBlock, Block(0, -4800)), Meeting::kBoundary);
    EXPECT_EQ(Meet(kBlock, Block(4800, 2400)), Meeting::kBoundary);
    EXPECT_EQ(Meet(kBlock, Block(4800, 1000, 300)), Meeting::kBoundary);
}

TEST(UtilGeo, BlocksThatMeetInACornerTouch) {
    EXPECT_EQ(Meet(kBlock, Block(4800, 4800)), Meeting::kPoint);
    EXPECT_EQ(Meet(kBlock, Block(4800, -4800)), Meeting::kPoint);
    // A corner in the middle of a side.
    EXPECT_EQ(Meet(kBlock, Draw({{4800, 2000}, {6000, 3000}, {6000, 1000}})), Meeting::kPoint);
}

TEST(UtilGeo, BlocksThatOverlapTouch) {
    EXPECT_EQ(Meet(kBlock, Block(2400, 2400)), Meeting::kPoint);
    EXPECT_EQ(Meet(kBlock, Block(1000, 1000, 500)), Meeting::kPoint);
    EXPECT_EQ(Meet(kBlock, Draw({{-900, 2000}, {5700, 2300}, {5700, 2000}})), Meeting::kPoint);
}

TEST(UtilGeo, BlocksFurtherAwayDoNot) {
    EXPECT_EQ(Meet(kBlock, Block(9600, 0)), Meeting::kNone);
    EXPECT_EQ(Meet(kBlock, Block(9600, 4800)), Meeting::kNone);
    EXPECT_EQ(Meet(kBlock, Block(200'000, 0)), Meeting::kNone);
}

TEST(UtilGeo, AGapOfAMetreIsATouchAndOneOfFiftyIsNone) {
    for (const double gap : {-1.0, 0.01, 1.0, 9.9}) {
        SCOPED_TRACE(gap);
        EXPECT_EQ(Meet(kBlock, Block(4800 + gap, 0)), Meeting::kBoundary);
        EXPECT_EQ(Meet(kBlock, Block(0, 4800 + gap)), Meeting::kBoundary);
        EXPECT_EQ(Meet(kBlock, Block(4800 + gap / 2, 4800 + gap / 2)), Meeting::kPoint);
    }
    for (const double gap : {10.1, 50.0, 1000.0}) {
        SCOPED_TRACE(gap);
        EXPECT_EQ(Meet(kBlock, Block(4800 + gap, 0)), Meeting::kNone);
        EXPECT_EQ(Meet(kBlock, Block(0, 4800 + gap)), Meeting::kNone);
        EXPECT_EQ(Meet(kBlock, Block(4800 + gap, 4800 + gap)), Meeting::kNone);
    }
}

TEST(UtilGeo, AGapIsMeasuredOnTheGroundAtAnyLatitude) {
    for (const double latitude : {0.0, 45.0, 72.0, -60.0}) {
        SCOPED_TRACE(latitude);
        const double side = 0.05;
        const double metre = 1.0 / (kMetersPerDegree * std::cos(latitude * std::numbers::pi / 180));
        const auto block = [&](double west) {
            return Outline{{latitude, west},
                           {latitude, west + side},
                           {latitude + side, west + side},
                           {latitude + side, west}};
        };
        EXPECT_EQ(Meet(block(10.0), block(10.0 + side + 8 * metre)), Meeting::kBoundary);
        EXPECT_EQ(Meet(block(10.0), block(10.0 + side + 12 * metre)), Meeting::kNone);
    }
}

TEST(UtilGeo, CornersThatWereRoundedToFourDecimalsStillMeet) {
    const auto round = [](Outline outline) {
        for (CKvDispPoint& point : outline) {
            point = {std::round(point.GetX() * 1e4) / 1e4, std::round(point.GetY() * 1e4) / 1e4};
        }
        return outline;
    };
    EXPECT_EQ(Meet(round(kBlock), Block(4800, 0)), Meeting::kBoundary);
    EXPECT_EQ(Meet(round(kBlock), Block(4800, 4800)), Meeting::kPoint);
}

TEST(UtilGeo, ASharedPieceHasToBeOfSomeLength) {
    EXPECT_EQ(Meet(kBlock, Block(4800, 4800 - 60)), Meeting::kBoundary);
    EXPECT_EQ(Meet(kBlock, Block(4800, 4800 - 40)), Meeting::kPoint);
}

TEST(UtilGeo, ASharedPieceMayBeMadeOfManyShortOnes) {
    // A shore of two metres a side, and the same with every second corner left out.
    std::vector<Spot> shore, plainer;
    for (int i = 0; i <= 60; ++i) {
        const Spot spot{4800 + (i % 2) * 0.1, 2.0 * i};
        shore.push_back(spot);
        if (i % 2 == 0) plainer.push_back(spot);
    }
    shore.insert(shore.end(), {{0, 120}, {0, 0}});
    plainer.insert(plainer.end(), {{9600, 120}, {9600, 0}});
    EXPECT_EQ(Meet(Draw(shore), Draw(plainer)), Meeting::kBoundary);
}

TEST(UtilGeo, ABlockIsAdjacentToTheOneInWhoseHoleItStands) {
    const Outline hook =
        Draw({{0, 0}, {9000, 0}, {9000, 9000}, {6000, 9000}, {6000, 3000}, {0, 3000}});
    EXPECT_EQ(Meet(hook, Block(1000, 3000, 5000)), Meeting::kBoundary);
    EXPECT_EQ(Meet(hook, Block(500, 3600, 5000)), Meeting::kNone);
}

TEST(UtilGeo, AnOutlineIsNotItsOwnNeighbor) {
    EXPECT_EQ(Meet(kBlock, kBlock), Meeting::kNone);
    const Outline backward(kBlock.rbegin(), kBlock.rend());
    EXPECT_EQ(Meet(kBlock, backward), Meeting::kNone);
    Outline closed = kBlock;
    closed.push_back(kBlock.front());
    EXPECT_EQ(Meet(kBlock, closed), Meeting::kNone);
    EXPECT_EQ(Meet(kBlock, Draw({{4800, 0}, {2400, 0}, {0, 0}, {0, 4800}, {4800, 4800}})),
              Meeting::kNone);
    EXPECT_EQ(Meet(kBlock, Block(1, 1)), Meeting::kNone);
}

TEST(UtilGeo, ItsOwnCornersInAnotherOrderAreAnother) {
    const Outline crossed = Draw({{0, 0}, {4800, 4800}, {4800, 0}, {0, 4800}});
    EXPECT_NE(Meet(kBlock, crossed), Meeting::kNone);
}

TEST(UtilGeo, BlocksMeetAcrossTheMeridianOfHalfTheWorld) {
    const Outline west{{10, 179.9}, {10, 180.0}, {10.1, 180.0}, {10.1, 179.9}};
    const Outline east{{10, -180.0}, {10, -179.9}, {10.1, -179.9}, {10.1, -180.0}};
    EXPECT_EQ(Meet(west, east), Meeting::kBoundary);
}

TEST(UtilGeo, AnOutlineOfFewerThanThreeCornersTouchesNothing) {
    EXPECT_EQ(Meet({}, kBlock), Meeting::kNone);
    EXPECT_EQ(Meet({}, {}), Meeting::kNone);
    EXPECT_EQ(Meet(Draw({{100, 100}}), kBlock), Meeting::kNone);
    EXPECT_EQ(Meet(Draw({{100, 100}, {200, 200}}), kBlock), Meeting::kNone);
    EXPECT_EQ(Meet(Draw({{100, 100}, {200, 200}, {100, 100}, {200, 200}}), kBlock), Meeting::kNone);
    EXPECT_EQ(Meet(Draw({{100, 100}, {100, 100}, {100, 100}, {100, 100}}), kBlock), Meeting::kNone);
}

TEST(UtilGeo, AnOutlineThatIsNoPlaceOnEarthTouchesNothing) {
    const double infinite = std::numeric_limits<double>::infinity();
    for (const CKvDispPoint& odd : {CKvDispPoint(std::nan(""), kLon),
                                    CKvDispPoint(kLat, std::nan("")), CKvDispPoint(infinite, kLon),
                                    CKvDispPoint(kLat, -infinite), CKvDispPoint(1000.0, kLon)}) {
        Outline broken = kBlock;
        broken[2] = odd;
        EXPECT_EQ(Meet(broken, Block(4800, 0)), Meeting::kNone);
        EXPECT_EQ(Meet(broken, broken), Meeting::kNone);
    }
    Outline far = kBlock;
    far[2] = CKvDispPoint(kLat, 1e300);
    EXPECT_EQ(Meet(far, far), Meeting::kNone);
}

TEST(UtilGeo, AnOutlineThatCrossesItselfIsTheAreaItEncloses) {
    const Outline bowTie = Draw({{0, 0}, {4800, 4800}, {4800, 0}, {0, 4800}});
    EXPECT_EQ(Meet(bowTie, Block(4800, 0)), Meeting::kBoundary);
    EXPECT_EQ(Meet(bowTie, Block(4800, 4800)), Meeting::kPoint);
    // In its northern notch, and in its eastern wing.
    EXPECT_EQ(Meet(bowTie, Block(2300, 4000, 200)), Meeting::kNone);
    EXPECT_EQ(Meet(bowTie, Block(4300, 2300, 200)), Meeting::kPoint);
    EXPECT_EQ(Meet(bowTie, bowTie), Meeting::kNone);
}

TEST(UtilGeo, ACornerThatIsRepeatedChangesNothing) {
    Outline doubled;
    for (const CKvDispPoint& point : kBlock)
        doubled.insert(doubled.end(), 3, point);
    EXPECT_EQ(Meet(doubled, Block(4800, 0)), Meeting::kBoundary);
    EXPECT_EQ(Meet(doubled, kBlock), Meeting::kNone);
}

TEST(UtilGeo, BoundsOfPointsHoldThemAll) {
    const CMinMax2Dd_t bounds =
        CKvUtilGeo::PolyLineGetMinMax({{28.0, -90.5}, {27.5, -89.0}, {29.25, -91.0}});
    EXPECT_EQ(bounds, (CMinMax2Dd_t{27.5, 29.25, -91.0, -89.0}));
    EXPECT_EQ(CKvUtilGeo::PolyLineGetMinMax({{28.0, -90.0}}), (CMinMax2Dd_t{28, 28, -90, -90}));
    EXPECT_EQ(CKvUtilGeo::PolyLineGetMinMax({}), CMinMax2Dd_t{});
}

}  // namespace
