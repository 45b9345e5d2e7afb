#include "kvload/to_dataset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <proj.h>

#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "kvload/refused.h"
#include "support/temp_folder.h"

namespace kvload {
namespace {

using testing::HasSubstr;

constexpr double kClose = 1e-9;

/// Why a reference system is refused; "" where it is not.
std::string Complaint(const std::string& system) {
    try {
        const ToDataset way(system);
        return {};
    } catch (const BadSource& bad) {
        return bad.what();
    }
}

std::string Complaint(const ToDataset& way, const Spot& spot) {
    try {
        way.Place(spot);
        return {};
    } catch (const Refused& reason) {
        return reason.what();
    }
}

class DatumGrid : public testing::Test {
protected:
    void SetUp() override {
        if (!*proj_grid_info("us_noaa_conus.tif").filename)
            GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
    }

    /// What PROJ's documentation, "Frequently asked questions", has for 30 N 117 W on NAD27.
    static constexpr double kSecond = 1.0 / 3600.0;
    static constexpr Spot kOnNad27{-117.0, 30.0};
    static constexpr Spot kOnNad83{-117.0 - 2.901 * kSecond, 30.0 + 0.407 * kSecond};
    static constexpr double kPublished = 0.0006 * kSecond;
};

TEST(PlacesOnNad27, StayWhereTheyAre) {
    const ToDataset way("EPSG:4267");
    const Spot place = way.Place({-90.123456789, 28.987654321});
    EXPECT_NEAR(place.x, -90.123456789, kClose);
    EXPECT_NEAR(place.y, 28.987654321, kClose);
}

TEST(PlacesOnNad27, AreTheSameByTheWordsOfAPrjFile) {
    const ToDataset way(R"(GEOGCS["GCS_North_American_1927",DATUM["D_North_American_1927",)"
                        R"(SPHEROID["Clarke_1866",6378206.4,294.9786982]],PRIMEM["Greenwich",0.0],)"
                        R"(UNIT["Degree",0.0174532925199433]])");
    EXPECT_NEAR(way.Place({-90.5, 28.5}).x, -90.5, kClose);
}

TEST(PlacesOnNad27, InAProjectionGoBackToDegrees) {
    // The false easting of UTM lies on its zone's meridian; feet are US survey feet.
    const Spot meters = ToDataset("EPSG:26715").Place({500'000.0, 3'100'000.0});
    EXPECT_NEAR(meters.x, -93.0, kClose);
    const double feet = 3937.0 / 1200.0;
    const Spot inFeet = ToDataset("EPSG:32065").Place({500'000.0 * feet, 3'100'000.0 * feet});
    // The false easting in feet is rounded to two decimals.
    EXPECT_NEAR(inFeet.x, -93.0, 1e-7);
    EXPECT_NEAR(inFeet.y, meters.y, 1e-7);
}

TEST(PlacesOnNad27, CountedOnlyToTheEastAreTheSame) {
    const ToDataset way("EPSG:4267");
    EXPECT_NEAR(way.Place({269.5, 28.5}).x, -90.5, kClose);
    EXPECT_NEAR(way.Place({180.0, 52.0}).x, 180.0, kClose);
    EXPECT_NEAR(way.Place({-180.5, 52.0}).x, 179.5, kClose);
}

TEST(PlacesElsewhere, InTheEastAreToldWhatTheWestNeeds) {
    const auto hint = HasSubstr("(a longitude to the west needs a minus or a W)");
    EXPECT_THAT(Complaint(ToDataset("EPSG:4267"), {90.5, 28.5}), hint);
    EXPECT_THAT(Complaint(ToDataset("EPSG:4267"), {-30.5, 28.5}), Not(hint));
    EXPECT_THAT(Complaint(ToDataset("EPSG:32065"), {50'000'000.0, 10'000'000.0}), Not(hint));
}

TEST(PlacesElsewhere, AreRefused) {
    const ToDataset degrees("EPSG:4267");
    EXPECT_THAT(Complaint(degrees, {500'000.0, 3'100'000.0}), HasSubstr("no place in NAD27"));
    EXPECT_THAT(Complaint(degrees, {90.5, 28.5}), HasSubstr("far from where NAD27 is used"));
    EXPECT_THAT(Complaint(degrees, {NAN, 28.5}), HasSubstr("no number"));
    EXPECT_THAT(Complaint(degrees, {HUGE_VAL, 28.5}), HasSubstr("no number"));
    EXPECT_THAT(Complaint(ToDataset("EPSG:26715"), {500'000.0, 31'000.0}),
                HasSubstr("far from where NAD27 / UTM zone 15N is used"));
}

/// A Lambert projection of NAD27 that nobody has a code for, in US survey feet.
constexpr const char* kLambert =
    R"(PROJCS["Texas_Louisiana_Lambert",GEOGCS["GCS_North_American_1927",)"
    R"(DATUM["D_North_American_1927",SPHEROID["Clarke_1866",6378206.4,294.9786982]],)"
    R"(PRIMEM["Greenwich",0.0],UNIT["Degree",0.0174532925199433]],)"
    R"(PROJECTION["Lambert_Conformal_Conic"],PARAMETER["False_Easting",2000000.0],)"
    R"(PARAMETER["False_Northing",0.0],PARAMETER["Central_Meridian",-93.0],)"
    R"(PARAMETER["Standard_Parallel_1",28.0],PARAMETER["Standard_Parallel_2",30.0],)"
    R"(PARAMETER["Latitude_Of_Origin",25.0],UNIT["Foot_US",0.3048006096012192]])";

TEST(PlacesElsewhere, InDegreesAreNoneOfAProjection) {
    for (const char* flat : {"EPSG:26715", "EPSG:26782", "EPSG:32040", kLambert})
        EXPECT_THAT(Complaint(ToDataset(flat), {-90.5, 28.5}), HasSubstr("are degrees, it seems"))
            << flat;
}

TEST(PlacesElsewhere, InAProjectionWithoutACodeAreTheFarOnesOfItsDatum) {
    const ToDataset way(kLambert);
    EXPECT_NEAR(way.Place({2'000'000.0, 0.0}).x, -93.0, kClose);
    EXPECT_NEAR(way.Place({2'000'000.0, 0.0}).y, 25.0, kClose);
    EXPECT_THAT(Complaint(way, {30'000'000.0, 9'000'000.0}), HasSubstr("far from where"));
}

TEST(ReferenceSystems, WithoutANameAreCalledByTheirDatum) {
    EXPECT_EQ(ToDataset("+proj=longlat +datum=NAD27 +type=crs").Description(),
              "a system of NAD27, the dataset's own datum");
}

TEST(ReferenceSystems, AreToldApartByWhatTheyAre) {
    const ToDataset way("EPSG:4267");
    EXPECT_EQ(way.NameIfOther("EPSG:4269"), "NAD83");
    EXPECT_EQ(way.NameIfOther("EPSG:4267"), "");
    EXPECT_EQ(way.NameIfOther("+proj=longlat +datum=NAD27 +type=crs"), "");
    EXPECT_EQ(way.NameIfOther(""), "");
}

TEST(ReferenceSystems, WithoutAnExactWayAreRefused) {
    EXPECT_THAT(Complaint("nonsense"), HasSubstr("no reference system that PROJ knows"));
    EXPECT_THAT(Complaint("+proj=merc"), HasSubstr("no reference system that PROJ knows"));
    EXPECT_THAT(Complaint("EPSG:4230"), HasSubstr("no exact way leads to NAD27"));
    EXPECT_THAT(Complaint("+proj=longlat +ellps=clrk66 +type=crs"), HasSubstr("no exact way"));
    EXPECT_THAT(Complaint(R"(ENGCRS["plan",EDATUM["site"],CS[Cartesian,2],AXIS["x",east],)"
                          R"(AXIS["y",north],LENGTHUNIT["metre",1]])"),
                HasSubstr("none of places on earth"));
}

TEST(ReferenceSystems, OnNad83WithoutTheGridAreRefusedWithTheCommandThatFetchesIt) {
    test::TempFolder folder;
    PJ_CONTEXT* context = proj_context_create();
    const std::filesystem::path database = proj_context_get_database_path(context);
    proj_context_destroy(context);
    const std::filesystem::path alone = database.parent_path();
    if (std::filesystem::exists(alone / "us_noaa_conus.tif")) GTEST_SKIP() << "The grid lies there";
    folder.Set("PROJ_DATA", alone.string());
    EXPECT_THAT(Complaint("EPSG:4269"), HasSubstr("projsync --file us_noaa_conus.tif"));
    EXPECT_THAT(Complaint("EPSG:3857"), HasSubstr("projsync --file us_noaa_conus.tif"));
    EXPECT_EQ(Complaint("EPSG:4267"), "");
}

TEST_F(DatumGrid, TakesNad83ToThePublishedPoint) {
    const Spot place = ToDataset("EPSG:4269").Place(kOnNad83);
    EXPECT_NEAR(place.x, kOnNad27.x, kPublished);
    EXPECT_NEAR(place.y, kOnNad27.y, kPublished);
}

TEST_F(DatumGrid, TakesWgs84ForNad83AndSaysSo) {
    const ToDataset nad83("EPSG:4269"), wgs84("EPSG:4326");
    EXPECT_NEAR(wgs84.Place({-90.0, 28.0}).y, nad83.Place({-90.0, 28.0}).y, kClose);
    EXPECT_THAT(wgs84.Description(), HasSubstr("taken for NAD83"));
}

TEST_F(DatumGrid, TakesSystemsWithHeightsForWhatTheyAreWithoutThem) {
    const Spot flat = ToDataset("EPSG:4269").Place({-90.0, 28.0});
    for (const char* high : {"EPSG:4979", "EPSG:4269+5703"}) {
        const Spot place = ToDataset(high).Place({-90.0, 28.0});
        EXPECT_NEAR(place.x, flat.x, kClose) << high;
        EXPECT_NEAR(place.y, flat.y, kClose) << high;
    }
}

TEST_F(DatumGrid, TakesProjectionsOfNad83) {
    // The false easting of UTM lies on its zone's meridian.
    const Spot degrees = ToDataset("EPSG:4269").Place({-93.0, 28.0});
    const Spot meters = ToDataset("EPSG:26915").Place({500'000.0, 3'100'000.0});
    EXPECT_NEAR(meters.x, degrees.x, 1e-6);
    EXPECT_GT(std::abs(meters.x - -93.0), 1e-5);
}

TEST_F(DatumGrid, RefusesWhatLiesOutsideOfIt) {
    EXPECT_THAT(Complaint(ToDataset("EPSG:4269"), {-90.0, 17.0}),
                HasSubstr("outside of the datum grid"));
}

TEST_F(DatumGrid, IgnoresTheCoarseShiftThatAFileBringsAlong) {
    const ToDataset plain("EPSG:4269");
    const ToDataset bound("+proj=longlat +datum=NAD83 +towgs84=100,100,100 +type=crs");
    EXPECT_NEAR(bound.Place({-90.0, 28.0}).x, plain.Place({-90.0, 28.0}).x, kClose);
}

}  // namespace
}  // namespace kvload
