#include "frame/kvcom/projected_bounds.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "frame/kvcom/util_lldrv.h"

namespace {

using kv::ProjectedBounds;

/// UTM, about 93 degrees west.
constexpr int kZone = 115;
constexpr int kMeters = 1;

struct Place {
    double lat;
    double lon;
};

std::optional<CMinMax2Dd_t> Taken(const ProjectedBounds& bounds) {
    CMinMax2Dd_t out{1.0, 2.0, 3.0, 4.0};
    const CMinMax2Dd_t before = out;
    if (bounds.Take(out)) return out;
    EXPECT_EQ(out, before);
    return std::nullopt;
}

std::optional<CMinMax2Dd_t> Around(const std::vector<Place>& places) {
    ProjectedBounds bounds(kZone, kMeters);
    for (const auto& [lat, lon] : places)
        bounds.Add(lat, lon);
    return Taken(bounds);
}

TEST(ProjectedBounds, OfOnePositionAreItsXAndY) {
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(28.0, -91.0, &x, &y, kZone, kMeters, 1, 100.0F, 0.0F, 0.0F);
    EXPECT_EQ(Around({{28.0, -91.0}}), (CMinMax2Dd_t{x, x, y, y}));
}

TEST(ProjectedBounds, OfNoPositionAreNone) {
    EXPECT_FALSE(Around({}));
}

TEST(ProjectedBounds, AreNoneIfAnyPositionHasNoXY) {
    EXPECT_TRUE(Around({{28.0, -91.0}, {29.0, -92.0}}));
    EXPECT_FALSE(Around({{28.0, -91.0}, {91.0, -92.0}}));
    EXPECT_FALSE(Around({{91.0, -92.0}, {28.0, -91.0}}));
}

/// A side is farthest out at a corner, or in its middle where it crosses the equator or the zone's
/// own meridian.
TEST(ProjectedBounds, OfABoxHoldItsSidesAsTheyCurve) {
    for (const CMinMax2Dd_t& box :
         {CMinMax2Dd_t{28.0, 29.0, -92.0, -91.0}, CMinMax2Dd_t{28.0, 29.0, -95.0, -94.0},
          CMinMax2Dd_t{10.0, 20.0, -96.0, -90.0}, CMinMax2Dd_t{-20.0, -10.0, -96.0, -90.0},
          CMinMax2Dd_t{-10.0, 10.0, -96.0, -90.0}}) {
        const auto& [south, north, west, east] = box;
        const double middleLat = (south + north) / 2;
        const double middleLon = (west + east) / 2;
        ProjectedBounds bounds(kZone, kMeters);
        bounds.AddBox(box);
        EXPECT_EQ(Taken(bounds), Around({{south, west},
                                         {south, middleLon},
                                         {south, east},
                                         {middleLat, west},
                                         {middleLat, east},
                                         {north, west},
                                         {north, middleLon},
                                         {north, east}}))
            << south << " " << west;
    }
}

}  // namespace
