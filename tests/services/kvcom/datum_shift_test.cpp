#include <gtest/gtest.h>
#include <proj.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "frame/kvcom/util_lldrv.h"
#include "support/temp_folder.h"

namespace test {
namespace {

constexpr double kSecond = 1.0 / 3600.0;

class DatumShift : public testing::Test {
protected:
    void SetUp() override {
        const PJ_GRID_INFO grid = proj_grid_info("us_noaa_conus.tif");
        if (!*grid.filename) {
            GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
        }
    }

    double lon_ = 7.0;
    double lat_ = 7.0;
};

/// PROJ's documentation, "Frequently asked questions", has it as what the grid of the National
/// Geodetic Survey gives.
TEST_F(DatumShift, MeetsThePublishedPoint) {
    ASSERT_EQ(CKvUtilLLdrv::Nad2783(-117.0, 30.0, lon_, lat_), 0);
    EXPECT_NEAR(lat_, 30.0 + 0.407 * kSecond, 0.0006 * kSecond);
    EXPECT_NEAR(lon_, -117.0 - 2.901 * kSecond, 0.0006 * kSecond);
}

TEST_F(DatumShift, ComesBackToWhereItWentOut) {
    for (double lat = 24.0; lat < 49.0; lat += 0.83) {
        for (double lon = -124.0; lon < -67.0; lon += 0.97) {
            ASSERT_EQ(CKvUtilLLdrv::Nad2783(lon, lat, lon_, lat_), 0) << lat << " " << lon;
            // NAD83 lies within 200 metres of NAD27 in the conterminous United States.
            EXPECT_LT(std::abs(lat_ - lat), 2e-3);
            EXPECT_LT(std::abs(lon_ - lon), 3e-3);
            double lon27 = 0.0;
            double lat27 = 0.0;
            ASSERT_EQ(CKvUtilLLdrv::Nad8327(lon_, lat_, lon27, lat27), 0) << lat << " " << lon;
            EXPECT_NEAR(lat27, lat, 1e-9);
            EXPECT_NEAR(lon27, lon, 1e-9);
        }
    }
}

TEST_F(DatumShift, OutsideOfTheGridIsOneAndTheOutputsStay) {
    struct Place {
        double lon;
        double lat;
    };
    for (const Place& place : {Place{2.0, 48.0}, Place{-90.0, 10.0}, Place{-150.0, 61.0},
                               Place{-90.0, 89.0}, Place{1000.0, 1000.0}, Place{90.0, -30.0}}) {
        EXPECT_EQ(CKvUtilLLdrv::Nad2783(place.lon, place.lat, lon_, lat_), 1) << place.lat;
        EXPECT_EQ(CKvUtilLLdrv::Nad8327(place.lon, place.lat, lon_, lat_), 1) << place.lat;
    }
    EXPECT_EQ(lon_, 7.0);
    EXPECT_EQ(lat_, 7.0);
}

TEST_F(DatumShift, NoNumbersAreAnotherFailure) {
    EXPECT_EQ(CKvUtilLLdrv::Nad2783(std::nan(""), 30.0, lon_, lat_), 2);
    EXPECT_EQ(CKvUtilLLdrv::Nad8327(-90.0, HUGE_VAL, lon_, lat_), 2);
    EXPECT_EQ(lon_, 7.0);
}

TEST(DatumShiftWithoutItsGrid, IsTwoAndTheLogNamesTheFileAndTheCommand) {
    TempFolder folder;
    // Read when PROJ's state is first made.
    const char* const before = std::getenv("PROJ_DATA");
    const std::string restored = before ? before : "";
    setenv("PROJ_DATA", folder.Native("").c_str(), 1);
    double lon = 7.0;
    double lat = 7.0;
    EXPECT_EQ(CKvUtilLLdrv::Nad2783(-117.0, 30.0, lon, lat), 2);
    EXPECT_EQ(CKvUtilLLdrv::Nad8327(-117.0, 30.0, lon, lat), 2);
    EXPECT_EQ(lon, 7.0);
    before ? setenv("PROJ_DATA", restored.c_str(), 1) : unsetenv("PROJ_DATA");
    std::ifstream file(folder.Native("log.txt"));
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(text.find("us_noaa_conus.tif"), std::string::npos) << text;
    EXPECT_NE(text.find("projsync --file us_noaa_conus.tif"), std::string::npos) << text;
    // Once for both.
    EXPECT_EQ(text.find("projsync"), text.rfind("projsync")) << text;
}

}  // namespace
}  // namespace test
