#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <proj.h>

#include <map>
#include <set>
#include <string>

#include "services/kvcom/projection_zones.h"

namespace test {
namespace {

using kv::coord::Zone;
using kv::coord::Zones;

TEST(ProjectionZones, OpenWithTheThreeFavourites) {
    EXPECT_STREQ(Zones()[0].description, "Texas South Central");
    EXPECT_STREQ(Zones()[1].description, "Texas South");
    EXPECT_STREQ(Zones()[2].description, "Louisiana South");
    EXPECT_EQ(Zones()[0].statePlaneCode, 4204);
    EXPECT_EQ(Zones()[1].statePlaneCode, 4205);
    EXPECT_EQ(Zones()[2].statePlaneCode, 1702);
}

TEST(ProjectionZones, HaveRowsOfEveryCategory) {
    std::map<std::string, int> rows;
    for (const Zone& zone : Zones())
        ++rows[zone.category];
    EXPECT_EQ(rows.size(), 8U);
    EXPECT_EQ(rows["state_lambert"], 75);
    EXPECT_EQ(rows["state_trans_mercator"], 57);
    EXPECT_GE(rows["utm_spheroids"], 20);
    EXPECT_GE(rows["misc_lambert"], 5);
    EXPECT_GE(rows["misc_trans_mercator"], 5);
    EXPECT_GE(rows["misc_boone"], 1);
    EXPECT_GE(rows["misc_cassini"], 2);
    EXPECT_GE(rows["misc_other"], 5);
}

TEST(ProjectionZones, StandInTheRangesOfTheirCodes) {
    int before = 0;
    for (const Zone& zone : Zones()) {
        EXPECT_GT(zone.code, before);
        before = zone.code;
        const bool spheroid = std::string(zone.category) == "utm_spheroids";
        const bool amongSpheroids = zone.code >= 100 && zone.code < 5000;
        EXPECT_EQ(spheroid, amongSpheroids) << zone.code;
        if (spheroid) {
            EXPECT_EQ(zone.code % 100, 0) << zone.code;
        }
    }
}

TEST(ProjectionZones, AreFoundByTheirCode) {
    ASSERT_TRUE(kv::coord::FindZone(100));
    EXPECT_STREQ(kv::coord::FindZone(100)->description, "Clarke 1866");
    EXPECT_EQ(kv::coord::FindZone(115), nullptr);
    EXPECT_EQ(kv::coord::FindZone(99999), nullptr);
}

TEST(ProjectionZones, HaveEachStatePlaneCodeOnce) {
    std::set<int> codes;
    for (const Zone& zone : Zones()) {
        if (zone.statePlaneCode) {
            EXPECT_TRUE(codes.insert(zone.statePlaneCode).second);
        }
    }
    EXPECT_EQ(codes.size(), 134U);
    EXPECT_TRUE(codes.contains(4203));
}

TEST(ProjectionZones, AreDefinedAsProjReadsThem) {
    for (const Zone& zone : Zones()) {
        const std::string definition = zone.code >= 100 && zone.code < 5000
                                           ? std::string("+proj=utm +zone=15 ") + zone.definition
                                           : zone.definition;
        PJ* projection = proj_create(PJ_DEFAULT_CTX, definition.c_str());
        EXPECT_NE(projection, nullptr) << zone.description;
        proj_destroy(projection);
    }
}

/// X of the central meridian at the latitude of origin: the false easting.
TEST(ProjectionZones, PutTheirOriginWhereItBelongs) {
    PJ* projection = proj_create(PJ_DEFAULT_CTX, kv::coord::FindZone(3)->definition);
    constexpr double kRadians = 0.017453292519943295;
    const PJ_COORD place =
        proj_trans(projection, PJ_FWD,
                   proj_coord((-91 - 20 / 60.0) * kRadians, (28 + 40 / 60.0) * kRadians, 0, 0));
    EXPECT_NEAR(place.xy.x * 3937.0 / 1200.0, 2'000'000.0, 0.01);
    EXPECT_NEAR(place.xy.y, 0.0, 0.01);
    proj_destroy(projection);
}

}  // namespace
}  // namespace test
