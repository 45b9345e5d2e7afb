#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "frame/kvcom/map_bounds.h"
#include "frame/kvcom/min_max_2dd.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "mapbuild/projection_fixture.h"
#include "support/sqlite_file.h"

namespace test {

inline constexpr int kFeetUnits = 0;
inline constexpr int kMeterUnits = 1;

/// Whole degrees of a place in the test's tables.
struct Box {
    double latMin, latMax, lonMin, lonMax;
};

/// The blocks and counties of the test's tables, by pick. All are boxes of latitude and longitude.
inline const std::map<std::string, Box> kPlaces{
    {"MP#123", {29.25, 29.30, -88.50, -88.45}},
    {"MP#124A", {29.25, 29.30, -88.45, -88.40}},
    {"GC#500", {27.35, 27.40, -90.65, -90.60}},
    {"GC#501", {27.35, 27.40, -90.60, -90.55}},
    {"EAST BAY#7", {29.1, 29.12, -89.2, -89.17}},
    // On both sides of the border of two UTM zones.
    {"BD#1", {28.0, 28.05, -90.05, -89.95}},
};
inline const Box kGalveston{29.05, 29.6, -95.23, -94.37};
inline const Box kBrazoria{28.83, 29.6, -95.88, -95.05};

/// The zone 7777 is one that the driver does not know.
inline constexpr const char* kMapStatements = R"(
create table gulf_mexico_connam2 (areaname text, stcode text, area_abbr text);
create table gulf_mexico_lbi (areacode text, lbnum text, lbext text, refnum integer);
create table gulf_mexico_lbv (refnum integer, ptnum integer, lat real, lon real);
create table gulf_mexico_area_projection (areacode text, projection integer);
create table nvd2000_county (county_id text, state text, county_name text, county_no integer,
    min_lat real, max_lat real, min_lon real, max_lon real, projection integer);
insert into gulf_mexico_connam2 values ('MAIN PASS', '43501', 'MP'), ('GREEN CANYON', '43601', 'GC'),
    ('EAST BAY', '42101', null), ('BORDER LAND', '43602', 'BD');
insert into gulf_mexico_area_projection values ('43501', 116), ('43601', 115), ('42101', 3),
    ('43602', 115);
insert into gulf_mexico_lbi values ('43501', '123', null, 1), ('43501', '124', 'A', 2),
    ('43601', '500', null, 3), ('43601', '501', null, 4), ('42101', '7', null, 5),
    ('43602', '1', null, 6);
insert into gulf_mexico_lbv values
    (1, 1, 29.25, -88.50), (1, 2, 29.25, -88.45), (1, 3, 29.30, -88.45), (1, 4, 29.30, -88.50),
    (2, 1, 29.25, -88.45), (2, 2, 29.25, -88.40), (2, 3, 29.30, -88.40), (2, 4, 29.30, -88.45),
    (3, 1, 27.35, -90.65), (3, 2, 27.35, -90.60), (3, 3, 27.40, -90.60), (3, 4, 27.40, -90.65),
    (4, 1, 27.35, -90.60), (4, 2, 27.35, -90.55), (4, 3, 27.40, -90.55), (4, 4, 27.40, -90.60),
    (5, 1, 29.1, -89.2), (5, 2, 29.1, -89.17), (5, 3, 29.12, -89.17), (5, 4, 29.12, -89.2),
    (6, 1, 28.0, -90.05), (6, 2, 28.0, -89.95), (6, 3, 28.05, -89.95), (6, 4, 28.05, -90.05);
insert into gulf_mexico_zone_code values (7777, 'Nowhere', 'misc_other', null);
insert into nvd2000_county values
    ('48167', 'TX', 'Galveston', 167, 29.05, 29.6, -95.23, -94.37, 1),
    ('48039', 'TX', 'Brazoria', 39, 28.83, 29.6, -95.88, -95.05, 1),
    ('22101', 'LA', 'St. Mary', 101, 29.33, 29.96, -91.82, -91.08, 3);
)";

/// X and Y of a position, by a bare call of the driver.
inline std::pair<double, double> Projected(double lat, double lon, int projection, int units) {
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, projection, units, 1, 100.0, 0.0, 0.0);
    return {x, y};
}

/// The rectifying point that the driver has, and has behind this call, too, is that one.
inline void ExpectRectifyingPoint(double lat, double lon) {
    constexpr int kStraightMercator = 199;
    const auto found = Projected(28, -90, kStraightMercator, kFeetUnits);
    CKvUtilLLdrv::SetRectLat(lat);
    CKvUtilLLdrv::SetRectLon(lon);
    const auto expected = Projected(28, -90, kStraightMercator, kFeetUnits);
    EXPECT_NEAR(found.first, expected.first, 1e-3);
    EXPECT_NEAR(found.second, expected.second, 1e-3);
}

/// Bounds in X/Y around the corners of a box.
inline CMinMax2Dd_t Around(const Box& box, int projection, int units) {
    CMinMax2Dd_t bounds{HUGE_VAL, -HUGE_VAL, HUGE_VAL, -HUGE_VAL};
    for (const double lat : {box.latMin, box.latMax}) {
        for (const double lon : {box.lonMin, box.lonMax}) {
            const auto [x, y] = Projected(lat, lon, projection, units);
            bounds = {std::min(bounds.minX, x), std::max(bounds.maxX, x), std::min(bounds.minY, y),
                      std::max(bounds.maxY, y)};
        }
    }
    return bounds;
}

inline Box Joined(const Box& a, const Box& b) {
    return {std::min(a.latMin, b.latMin), std::max(a.latMax, b.latMax),
            std::min(a.lonMin, b.lonMin), std::max(a.lonMax, b.lonMax)};
}

inline CMinMax2Dd_t XYOf(const CKvMapBounds& map) {
    return {map.GetXMin(), map.GetXMax(), map.GetYMin(), map.GetYMax()};
}
/// Latitude in the X places.
inline CMinMax2Dd_t AnglesOf(const CKvMapBounds& map) {
    return {map.GetLatMin(), map.GetLatMax(), map.GetLonMin(), map.GetLonMax()};
}

inline void ExpectNear(const CMinMax2Dd_t& came, const CMinMax2Dd_t& expected, double tolerance) {
    EXPECT_NEAR(came.minX, expected.minX, tolerance);
    EXPECT_NEAR(came.maxX, expected.maxX, tolerance);
    EXPECT_NEAR(came.minY, expected.minY, tolerance);
    EXPECT_NEAR(came.maxY, expected.maxY, tolerance);
}

/// Dialogs that build maps, on a handful of blocks and counties, with a clock that stands.
class MapTest : public ProjectionTest {
protected:
    MapTest() {
        RunOnSqliteFile(zones, kMapStatements);
        folder.Set("TZ", "UTC");
        tzset();
        // 14 January 2000, 09:30:15.
        desktop.SetNow(std::chrono::system_clock::from_time_t(947842215));
    }

    /// The numbers in the X/Y boxes of the quick builder.
    static CMinMax2Dd_t ShownXY(kv::User& user) {
        using namespace kv::quick_bld;
        const auto value = [&](int id) { return kv::Atof(user.Text(id)); };
        return {value(kXMin), value(kXMax), value(kYMin), value(kYMax)};
    }
    /// Its angles, latitude in the X places.
    static CMinMax2Dd_t ShownAngles(kv::User& user) {
        using namespace kv::quick_bld;
        const auto angle = [&](int deg, int min, int sec) {
            const double degrees = kv::Atof(user.Text(deg));
            const double rest = kv::Atof(user.Text(min)) / 60.0 + kv::Atof(user.Text(sec)) / 3600.0;
            return degrees < 0 ? degrees - rest : degrees + rest;
        };
        return {
            angle(kLatMinDeg, kLatMinMin, kLatMinSec), angle(kLatMaxDeg, kLatMaxMin, kLatMaxSec),
            angle(kLonMinDeg, kLonMinMin, kLonMinSec), angle(kLonMaxDeg, kLonMaxMin, kLonMaxSec)};
    }
    static constexpr double kShownXY = 0.0051;
    static constexpr double kShownAngle = 2e-8;
};

}  // namespace test
