// The map as it is drawn in a projection of the coordinate driver.

#include <gmock/gmock.h>

#include <set>

#include "frame/kvcom/driver_calls.h"
#include "frame/kvcom/util_lldrv.h"
#include "workbench/document/map_shape.h"
#include "workbench/map/graticule.h"
#include "workbench/map/projected_map.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

constexpr DriverPlane kZone15{115, true, {}};
constexpr Place kMiddle{28, -91};

Point Feet(const Place& place, int projection) {
    Point xy;
    CKvUtilLLdrv::LLdrv(place.lat, place.lon, &xy.x, &xy.y, projection, 0, 1, 100.0F, 0.0F, 0.0F);
    return xy;
}

MapProjection InZone15() {
    return *MapProjection::Of(kZone15, kMiddle);
}

/// Blocks one beside the other, from a place on to the east.
std::unique_ptr<AreaMap> Row(const char* code, const Place& from, int blocks) {
    constexpr double kSide = 0.05;
    auto area = std::make_unique<AreaMap>();
    area->code = area->name = code;
    for (int i = 0; i < blocks; ++i) {
        const double west = from.lon + i * kSide;
        area->blocks.Begin(std::to_string(i + 1));
        for (const Place& corner :
             {Place{from.lat, west}, Place{from.lat, west + kSide},
              Place{from.lat + kSide, west + kSide}, Place{from.lat + kSide, west}})
            area->blocks.Add(ToMap(corner));
        area->wells.Begin("well");
        area->wells.Add(ToMap({from.lat + 0.01, west + 0.01}));
    }
    area->Finish();
    return area;
}

TEST(MapProjection, IsTheDriversWithAMapUnitAsLongAsInMercatorAroundTheMiddle) {
    const MapProjection projection = InZone15();
    EXPECT_EQ(*projection.ToMap(kMiddle), ToMap(kMiddle));
    const double side = ToMap({kMiddle.lat, kMiddle.lon + 0.1}).x - ToMap(kMiddle).x;
    const Point aside = *projection.ToMap({kMiddle.lat, kMiddle.lon + 0.1});
    EXPECT_NEAR(std::hypot(aside.x - ToMap(kMiddle).x, aside.y - ToMap(kMiddle).y), side,
                side * 1e-3);
    for (const Place& place : {Place{27.3, -92.2}, Place{29.9, -88.1}}) {
        const Point xy = Feet(place, 115);
        const Point there = projection.ToXY(*projection.ToMap(place));
        EXPECT_NEAR(there.x, xy.x, 1e-6);
        EXPECT_NEAR(there.y, xy.y, 1e-6);
        const auto back = projection.ToPlace(*projection.ToMap(place));
        ASSERT_TRUE(back);
        EXPECT_NEAR(back->lat, place.lat, 1e-9);
        EXPECT_NEAR(back->lon, place.lon, 1e-9);
    }
}

TEST(MapProjection, OfACodeWithoutAnAnswerIsNone) {
    EXPECT_FALSE(MapProjection::Of({0, true, {}}, kMiddle));
    EXPECT_FALSE(MapProjection::Of({115, true, {}}, {HUGE_VAL, 0}));
}

TEST(MapProjection, SetsItsOwnRectifyingPointAheadOfEachUse) {
    const Place point{28.5, -91.5};
    const auto elsewhere = [] {
        CKvUtilLLdrv::SetRectLat(10);
        CKvUtilLLdrv::SetRectLon(10);
    };
    const auto projection = MapProjection::Of({199, true, point}, kMiddle);
    ASSERT_TRUE(projection);
    CKvUtilLLdrv::SetRectLat(point.lat);
    CKvUtilLLdrv::SetRectLon(point.lon);
    const Point xy = Feet({28.2, -90.9}, 199);
    elsewhere();
    EXPECT_NEAR(projection->ToXY(*projection->ToMap({28.2, -90.9})).x, xy.x, 1e-6);
    elsewhere();
    EXPECT_NEAR(projection->ToPlace(projection->FromXY(xy))->lon, -90.9, 1e-9);
    EXPECT_NE((DriverPlane{199, true, point}), (DriverPlane{199, true, kMiddle}));
    EXPECT_EQ((DriverPlane{115, true, point}), (DriverPlane{115, true, kMiddle}))
        << "it has no use for the point";
}

class ProjectedSample : public test::SampleTest {};

TEST_F(ProjectedSample, EachVertexGoesThroughTheDriverOnce) {
    MapModel model;
    MapLoader loader(
        model, [] {}, test::LacksNothing);
    loader.Need({"43113", "43602"});
    std::size_t vertices = 0;
    for (const auto& area : model.Areas()) {
        std::set<std::pair<double, double>> corners;
        for (const Point& corner : area->blocks.AllPoints())
            corners.emplace(corner.x, corner.y);
        vertices += corners.size() + area->wells.AllPoints().size() +
                    area->platforms.AllPoints().size() + area->pipelines.AllPoints().size();
    }
    ASSERT_GT(vertices, 1000U);
    ProjectedMap projected(model);
    const MapProjection projection = InZone15();
    const long before = kv::coord::CountedDriverCalls().toXY;
    projected.SetProjection(projection);
    const long calls = kv::coord::CountedDriverCalls().toXY - before;
    // A box around all of the map is followed in some steps.
    const long box = 4 * 17;
    EXPECT_EQ(calls, static_cast<long>(vertices) + box);
    projected.Update();
    EXPECT_EQ(kv::coord::CountedDriverCalls().toXY - before, calls + box)
        << "what is there already is not projected again";
}

TEST_F(ProjectedSample, BlocksLieWhereTheDriverPutsThem) {
    MapModel model;
    MapLoader loader(
        model, [] {}, test::LacksNothing);
    loader.Need({"43113"});
    ProjectedMap projected(model);
    const MapProjection projection = InZone15();
    projected.SetProjection(projection);
    const AreaMap& source = *model.FindArea("43113");
    const AreaMap& drawn = *projected.ToDrawn(&source);
    ASSERT_EQ(drawn.blocks.Size(), source.blocks.Size());
    EXPECT_EQ(drawn.outline.inner.size(), source.outline.inner.size());
    EXPECT_EQ(drawn.outline.rings.size(), source.outline.rings.size());
    for (std::size_t block = 0; block < source.blocks.Size(); ++block) {
        ASSERT_EQ(drawn.blocks.Label(block), source.blocks.Label(block));
        for (std::size_t i = 0; i < source.blocks.Points(block).size(); ++i) {
            const Point xy = Feet(ToPlace(source.blocks.Points(block)[i]), 115);
            const Point there = projection.ToXY(drawn.blocks.Points(block)[i]);
            ASSERT_NEAR(there.x, xy.x, 1e-3);
            ASSERT_NEAR(there.y, xy.y, 1e-3);
        }
    }
    const BlockRef block{&source, 3};
    EXPECT_EQ(projected.ToSource(projected.ToDrawn(std::optional(block))), block);
}

TEST(ProjectedMap, AreasThatComeLaterAreProjectedAsTheyCome) {
    MapModel model;
    ProjectedMap projected(model);
    projected.SetProjection(InZone15());
    EXPECT_TRUE(projected.Drawn().Areas().empty());
    model.Add(Row("1", kMiddle, 3));
    EXPECT_EQ(projected.ToDrawn(model.Areas()[0].get()), nullptr);
    projected.Update();
    model.Add(Row("2", {28.5, -91}, 2));
    projected.Update();
    EXPECT_EQ(projected.Drawn().Areas().size(), 2U);
    EXPECT_EQ(projected.Drawn().BlockCount(), 5U);
    projected.Clear();
    EXPECT_TRUE(projected.Drawn().Areas().empty());
    projected.SetProjection({});
    EXPECT_EQ(&projected.Drawn(), &model);
}

TEST(ProjectedMap, WhatTheProjectionCannotShowIsLeftOutAndTheRestKeepsItsNumbers) {
    MapModel model;
    // A quarter of the earth beside the zone's meridian, where no X is.
    model.Add(Row("far", {0, -3.05}, 2));
    auto mixed = std::make_unique<AreaMap>();
    mixed->code = "mixed";
    const auto near = Row("near", kMiddle, 1);
    mixed->blocks.Begin("far");
    for (const Point& corner : {Point{-3, 0}, {-3, 0.1}, {-2.9, 0.1}})
        mixed->blocks.Add(corner);
    mixed->blocks.Begin("near");
    for (const Point& corner : near->blocks.Points(0))
        mixed->blocks.Add(corner);
    mixed->Finish();
    model.Add(std::move(mixed));
    ASSERT_EQ(Feet({0, -3}, 115).x, CKvUtilLLdrv::kNoXY);
    ProjectedMap projected(model);
    projected.SetProjection(InZone15());
    EXPECT_GE(projected.LeftOut(), 2);
    const AreaMap& drawn = *projected.ToDrawn(model.Areas()[1].get());
    EXPECT_TRUE(drawn.blocks.Points(0).empty());
    EXPECT_EQ(drawn.blocks.Points(1).size(), 4U);
    ASSERT_EQ(drawn.outline.rings.size(), 1U);
    const auto hit = projected.Drawn().BlockAt(drawn.blocks.BoxOf(1).Middle());
    EXPECT_EQ(projected.ToSource(hit), (BlockRef{model.Areas()[1].get(), 1}));
}

MapView ViewOf(const MapProjection& projection, const Place& place, double scale) {
    MapView view;
    view.Resize(800, 600);
    view.SetMiddle(*projection.ToMap(place), scale);
    return view;
}

TEST(Graticule, OfAProjectionGoesThroughTheViewFromEdgeToEdge) {
    const MapProjection projection = InZone15();
    // Far from the meridian of the zone north is not up.
    const Place there{28.03, -83.97};
    const MapView view = ViewOf(projection, there, 400);
    const GraticuleCurves curves = CurvesOf(view, projection);
    ASSERT_FALSE(curves.meridians.empty());
    ASSERT_FALSE(curves.parallels.empty());
    int met = 0;
    for (const GraticuleCurve& curve : curves.meridians) {
        const auto bottom = curve.XAt(600);
        if (!bottom || *bottom < 0 || *bottom > 800) continue;
        ++met;
        EXPECT_NEAR(projection.ToPlace(view.ToMap({*bottom, 600}))->lon, curve.angle, 1e-3);
        const auto top = curve.XAt(0);
        ASSERT_TRUE(top);
        EXPECT_GT(std::abs(*top - *bottom), 10) << "it is no vertical line here";
    }
    EXPECT_GT(met, 2);
    for (const GraticuleCurve& curve : curves.parallels) {
        if (const auto left = curve.YAt(0); left && *left > 0 && *left < 600) {
            EXPECT_NEAR(projection.ToPlace(view.ToMap({0, *left}))->lat, curve.angle, 1e-3);
        }
    }
}

TEST(ScaleBar, OfAProjectionIsInItsOwnUnit) {
    for (const bool feet : {true, false}) {
        const auto projection = MapProjection::Of({115, feet, {}}, kMiddle);
        const MapView view = ViewOf(*projection, kMiddle, 1000);
        const ScaleBar bar = ScaleBarOf(view, {400, 550}, 140, *projection);
        EXPECT_EQ(bar.label, feet ? "20000 ft" : "10 km");
        const double units = bar.pixels / 1000 * projection->UnitsOfMap();
        EXPECT_NEAR(units, feet ? 20000 : 10000, 1e-6);
    }
}

class MapShape : public test::SampleTest {};

BuiltMap MapOf(double south, double north, double west, double east, bool byXY) {
    BuiltMap map;
    CKvMapBounds& bounds = map.bounds;
    bounds.SetPrimeProj(115);
    bounds.SetXYBounded(byXY);
    bounds.SetLatMin(south), bounds.SetLatMax(north);
    bounds.SetLonMin(west), bounds.SetLonMax(east);
    bounds.PopulateXY();
    return map;
}

TEST_F(MapShape, ABoxHoldsAllOfANarrowMapNearTheBorderOfAZone) {
    const BuiltMap map = MapOf(20, 35, -87.5, -87.4, false);
    ASSERT_GT(map.bounds.GetXMin(), map.bounds.GetXMax()) << "X is the wrong way round here";
    const Box box = XyBoundsOf(map, kZone15);
    EXPECT_GT(box.Width(), 0);
    for (const double lat : {20.0, 27.5, 35.0}) {
        for (const double lon : {-87.5, -87.4})
            EXPECT_TRUE(box.Grown(0.01).Contains(Feet({lat, lon}, 115))) << lat << " " << lon;
    }
    const auto frame = FrameOf(map, *MapProjection::Of(kZone15, *MiddleOf(map)));
    ASSERT_TRUE(frame);
    EXPECT_GT(frame->outline.size(), 4U) << "the sides are curves";
}

TEST_F(MapShape, ByXYTheEdgeIsARectangleInItsOwnProjection) {
    const BuiltMap map = MapOf(27.5, 28, -91.5, -91, true);
    const MapProjection projection = *MapProjection::Of(kZone15, *MiddleOf(map));
    const auto frame = FrameOf(map, projection);
    ASSERT_TRUE(frame);
    ASSERT_EQ(frame->outline.size(), 4U);
    const Point low = projection.ToXY(frame->outline[0]);
    const Point high = projection.ToXY(frame->outline[2]);
    EXPECT_NEAR(low.x, map.bounds.GetXMin(), 1e-3);
    EXPECT_NEAR(low.y, map.bounds.GetYMin(), 1e-3);
    EXPECT_NEAR(high.x, map.bounds.GetXMax(), 1e-3);
    EXPECT_NEAR(high.y, map.bounds.GetYMax(), 1e-3);
}

TEST_F(MapShape, OfBoundsWithoutValueIsNone) {
    BuiltMap map = MapOf(27.5, 28, -91.5, -91, true);
    map.bounds.SetXMin(CKvUtilLLdrv::kNoXY);
    EXPECT_FALSE(FrameOf(map, InZone15()));
    EXPECT_TRUE(XyBoundsOf(map, kZone15).Empty());
    map.bounds.SetXYBounded(false);
    EXPECT_TRUE(FrameOf(map, InZone15()));
    map.bounds.SetLatMin(1000);
    EXPECT_FALSE(FrameOf(map, InZone15()));
    EXPECT_FALSE(MiddleOf(map));
}

}  // namespace
}  // namespace workbench
