#include <gtest/gtest.h>
#include <proj.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <numbers>
#include <string>

#include "base/text.h"
#include "frame/kvcom/util_lldrv.h"
#include "services/kvcom/projection_zones.h"

namespace test {
namespace {

constexpr int kMeters = 1;
constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;

struct Destroy {
    void operator()(PJ* object) const { proj_destroy(object); }
};
using Object = std::unique_ptr<PJ, Destroy>;

/// A code of ours, and the reference system that EPSG has for the same projection.
struct Twin {
    int code;
    int epsg;
    double meters = 0.0005;
};

void PrintTo(const Twin& twin, std::ostream* out) {
    *out << twin.code << " and EPSG:" << twin.epsg;
}

/// The zones that PROJ's database of EPSG's definitions has, by their negated state plane numbers
/// and their own. Rhode Island's scale of 1 - 1/160000 has seven digits there; Alaska's axis is
/// given otherwise, and Guam's polyconic projection is another one that agrees on the island.
const Twin kTwins[] = {
    // clang-format off
    {-101, 26729}, {-102, 26730}, {-201, 26748}, {-202, 26749}, {-203, 26750},
    {-301, 26751}, {-302, 26752}, {-401, 26741}, {-402, 26742}, {-403, 26743},
    {-404, 26744}, {-405, 26745}, {-406, 26746}, {-407, 26799}, {-501, 26753},
    {-502, 26754}, {-503, 26755}, {-600, 26756}, {-700, 26757}, {-901, 26758},
    {-902, 26759}, {-903, 26760}, {-1001, 26766}, {-1002, 26767}, {-1101, 26768},
    {-1102, 26769}, {-1103, 26770}, {-1201, 26771}, {-1202, 26772}, {-1301, 26773},
    {-1302, 26774}, {-1401, 26775}, {-1402, 26776}, {-1501, 26777}, {-1502, 26778},
    {-1601, 26779}, {-1602, 26780}, {-1701, 26781}, {-1702, 26782}, {-1703, 32099},
    {-1801, 26783}, {-1802, 26784}, {-1900, 26785}, {-2001, 26786}, {-2002, 26787},
    {-2101, 5623}, {-2102, 5624}, {-2103, 5625}, {-2111, 6966}, {-2112, 6201},
    {-2113, 6202}, {-2201, 26791}, {-2202, 26792}, {-2203, 26793}, {-2301, 26794},
    {-2302, 26795}, {-2401, 26796}, {-2402, 26797}, {-2403, 26798}, {-2501, 32001},
    {-2502, 32002}, {-2503, 32003}, {-2601, 32005}, {-2602, 32006}, {-2701, 32007},
    {-2702, 32008}, {-2703, 32009}, {-2800, 32010}, {-2900, 32011}, {-3001, 32012},
    {-3002, 32013}, {-3003, 32014}, {-3101, 32015}, {-3102, 32016}, {-3103, 32017},
    {-3104, 4456}, {-3200, 32019}, {-3301, 32020}, {-3302, 32021}, {-3401, 32022},
    {-3402, 32023}, {-3501, 32024}, {-3502, 32025}, {-3601, 32026}, {-3602, 32027},
    {-3701, 32028}, {-3702, 4455}, {-3800, 32030, 0.006}, {-3901, 32031}, {-3902, 32033},
    {-4001, 32034}, {-4002, 32035}, {-4100, 2204}, {-4201, 32037}, {-4202, 32038},
    {-4203, 32039}, {-4204, 32040}, {-4205, 32041}, {-4301, 32042}, {-4302, 32043},
    {-4303, 32044}, {-4400, 32045}, {-4501, 32046}, {-4502, 32047}, {-4601, 32048},
    {-4602, 32049}, {-4701, 32050}, {-4702, 32051}, {-4801, 32052}, {-4802, 32053},
    {-4803, 32054}, {-4901, 32055}, {-4902, 32056}, {-4903, 32057}, {-4904, 32058},
    {-5001, 26731, 0.002}, {-5002, 26732}, {-5003, 26733}, {-5004, 26734}, {-5005, 26735},
    {-5006, 26736}, {-5007, 26737}, {-5008, 26738}, {-5009, 26739}, {-5010, 26740},
    {-5101, 3561}, {-5102, 3562}, {-5103, 3563}, {-5104, 3564}, {-5105, 3565},
    {-5201, 3991}, {-5202, 3992}, {-5300, 3102}, {-5400, 3993, 0.006},

    {5101, 27571}, {5102, 27572}, {5103, 27573}, {5104, 30791}, {5105, 30792},
    {5106, 26191}, {5107, 26192}, {5108, 24200}, {5109, 3795}, {5110, 3796},
    {5111, 32098}, {5201, 32064}, {5202, 32065}, {5203, 32066}, {5204, 32067},
    {5205, 27700}, {5206, 29903}, {5207, 3003}, {5208, 3004}, {5209, 22991},
    {5210, 22992}, {5211, 22993}, {5212, 26391}, {5213, 26392}, {5214, 26393},
    {5215, 3021}, {5216, 28404}, {5217, 2326}, {5401, 30200}, {5402, 28191},
    {5403, 3068}, {5404, 24500}, {5501, 28992}, {5502, 21781}, {5503, 29873},
    {5504, 23700}, {5505, 5514}, {5506, 29101}, {5507, 27200}, {5508, 29702},
    {5509, 5070}, {5510, 3338}, {115, 26715}, {331, 23031}, 
    {932, 22332}, {1147, 24547}, {1915, 26915}, {2715, 32215}, {2815, 32615},
    {3031, 26331},
    // clang-format on
};

class Twins : public testing::TestWithParam<Twin> {
protected:
    /// Ours in metres, from a place in degrees east and north of Greenwich.
    static PJ_COORD Ours(double lat, double lon) {
        PJ_COORD planar{};
        CKvUtilLLdrv::LLdrv(lat, lon, &planar.xy.x, &planar.xy.y, GetParam().code, kMeters, 1,
                            100.0, 0.0, 0.0);
        return planar;
    }
};

/// A reference system of EPSG's, read for conversions without a change of datum.
class Reference {
public:
    explicit Reference(int epsg)
        : system_(proj_create(nullptr, ("EPSG:" + std::to_string(epsg)).c_str())),
          angles_(proj_crs_get_geodetic_crs(nullptr, system_.get())) {
        const Object both(proj_create_crs_to_crs_from_pj(nullptr, angles_.get(), system_.get(),
                                                         nullptr, nullptr));
        conversion_.reset(proj_normalize_for_visualization(nullptr, both.get()));
        meters_ = UnitOf(system_.get());
        degrees_ = UnitOf(angles_.get()) * kDegreesPerRadian;
        const Object meridian(proj_get_prime_meridian(nullptr, angles_.get()));
        double unit = 0.0;
        proj_prime_meridian_get_parameters(nullptr, meridian.get(), &meridian_, &unit, nullptr);
        meridian_ *= unit * kDegreesPerRadian;
        proj_get_area_of_use(nullptr, system_.get(), &west, &south, &east, &north, nullptr);
        if (east < west) east += 360.0;
    }

    /// In metres.
    PJ_COORD Planar(double lat, double lon) const {
        PJ_COORD planar = proj_trans(conversion_.get(), PJ_FWD,
                                     {{(lon - meridian_) / degrees_, lat / degrees_, 0.0, 0.0}});
        planar.xy.x *= meters_;
        planar.xy.y *= meters_;
        return planar;
    }

    // Where it is used.
    double west = 0.0;
    double south = 0.0;
    double east = 0.0;
    double north = 0.0;

private:
    static double UnitOf(PJ* system) {
        const Object axes(proj_crs_get_coordinate_system(nullptr, system));
        double unit = 1.0;
        proj_cs_get_axis_info(nullptr, axes.get(), 0, nullptr, nullptr, nullptr, &unit, nullptr,
                              nullptr, nullptr);
        return unit;
    }

    Object system_;
    Object angles_;
    Object conversion_;
    double meters_ = 1.0;
    double degrees_ = 1.0;
    double meridian_ = 0.0;
};

TEST_P(Twins, AgreeWhereTheyAreUsed) {
    const Reference reference(GetParam().epsg);
    ASSERT_LT(reference.south, reference.north);
    for (const double right : {0.0, 0.5, 1.0}) {
        for (const double up : {0.0, 0.5, 1.0}) {
            const double lat = std::lerp(reference.south, reference.north, up);
            const double lon = std::lerp(reference.west, reference.east, right);
            const PJ_COORD expected = reference.Planar(lat, lon);
            const PJ_COORD given = Ours(lat, lon);
            EXPECT_NEAR(given.xy.x, expected.xy.x, GetParam().meters) << lat << " " << lon;
            EXPECT_NEAR(given.xy.y, expected.xy.y, GetParam().meters) << lat << " " << lon;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ProjectionZones, Twins, testing::ValuesIn(kTwins), [](const auto& each) {
    const int code = each.param.code;
    return (code < 0 ? "StatePlane" : "Code") + std::to_string(std::abs(code));
});

/// As EPSG calls a state plane zone, without its datum and the word "zone".
std::string EpsgName(int epsg) {
    const Object system(proj_create(nullptr, ("EPSG:" + std::to_string(epsg)).c_str()));
    const std::string name = proj_get_name(system.get());
    return kv::ReplaceAll(name.substr(name.find(" / ") + 3), "zone ", "");
}

TEST(ProjectionZones, OfTheStatePlanesHaveTheirNamesOfEpsg) {
    // Michigan's old zones, and islands that have one zone.
    const std::map<int, std::string> others{{2101, "Michigan East (old)"},
                                            {2102, "Michigan Central (old)"},
                                            {2103, "Michigan West (old)"},
                                            {5201, "Puerto Rico and Virgin Islands"},
                                            {5202, "Virgin Islands St. Croix"},
                                            {5300, "American Samoa"},
                                            {5400, "Guam Island"}};
    for (const Twin& twin : kTwins) {
        const kv::coord::Zone* zone = kv::coord::FindZoneOf(twin.code);
        if (!zone || !zone->statePlaneCode) continue;
        const auto other = others.find(zone->statePlaneCode);
        EXPECT_EQ(zone->description, other == others.end() ? EpsgName(twin.epsg) : other->second);
    }
}

TEST(ProjectionZones, ThatAreNoStatePlanesHaveTheseNames) {
    std::string names;
    for (const kv::coord::Zone& zone : kv::coord::Zones())
        if (!zone.statePlaneCode)
            names +=
                std::to_string(zone.code) + " " + zone.description + "|" + zone.category + "\n";
    EXPECT_EQ(names, R"(100 Clarke 1866|utm_spheroids
200 Clarke 1880|utm_spheroids
300 International 1924|utm_spheroids
400 Bessel 1841|utm_spheroids
500 Bessel 1841 (Namibia)|utm_spheroids
600 Airy 1830|utm_spheroids
700 Modified Airy|utm_spheroids
800 Australian National|utm_spheroids
900 Clarke 1880 (IGN)|utm_spheroids
1000 Everest 1830|utm_spheroids
1100 Everest 1948|utm_spheroids
1200 Everest 1956|utm_spheroids
1300 Everest 1969|utm_spheroids
1400 Everest (Sabah and Sarawak)|utm_spheroids
1500 Fischer 1960 (Mercury)|utm_spheroids
1600 Modified Fischer 1960|utm_spheroids
1700 Fischer 1968|utm_spheroids
1800 GRS 1967|utm_spheroids
1900 GRS 1980|utm_spheroids
2000 Helmert 1906|utm_spheroids
2100 Hough 1960|utm_spheroids
2200 Krassovsky 1940|utm_spheroids
2300 Plessis 1817|utm_spheroids
2400 South East Asia 1956|utm_spheroids
2500 WGS 1960|utm_spheroids
2600 WGS 1966|utm_spheroids
2700 WGS 1972|utm_spheroids
2800 WGS 1984|utm_spheroids
2900 Walbeck|utm_spheroids
3000 Clarke 1880 (RGS)|utm_spheroids
5101 France Zone I|misc_lambert
5102 France Zone II|misc_lambert
5103 France Zone III|misc_lambert
5104 Algeria North|misc_lambert
5105 Algeria South|misc_lambert
5106 Morocco North|misc_lambert
5107 Morocco South|misc_lambert
5108 Jamaica|misc_lambert
5109 Cuba North|misc_lambert
5110 Cuba South|misc_lambert
5111 Quebec|misc_lambert
5201 BLM Zone 14|misc_trans_mercator
5202 BLM Zone 15|misc_trans_mercator
5203 BLM Zone 16|misc_trans_mercator
5204 BLM Zone 17|misc_trans_mercator
5205 British National Grid|misc_trans_mercator
5206 Irish National Grid|misc_trans_mercator
5207 Italy Zone 1|misc_trans_mercator
5208 Italy Zone 2|misc_trans_mercator
5209 Egypt Blue Belt|misc_trans_mercator
5210 Egypt Red Belt|misc_trans_mercator
5211 Egypt Purple Belt|misc_trans_mercator
5212 Nigeria West Belt|misc_trans_mercator
5213 Nigeria Mid Belt|misc_trans_mercator
5214 Nigeria East Belt|misc_trans_mercator
5215 Sweden 2.5 Gon West|misc_trans_mercator
5216 Gauss-Kruger Zone 4|misc_trans_mercator
5217 Hong Kong 1980|misc_trans_mercator
5301 France Bonne|misc_boone
5302 Portugal Bonne|misc_boone
5401 Trinidad|misc_cassini
5402 Palestine|misc_cassini
5403 Berlin Soldner|misc_cassini
5404 Singapore|misc_cassini
5501 Netherlands Stereographic|misc_other
5502 Swiss Oblique Mercator|misc_other
5503 Borneo Rectified Skew Orthomorphic|misc_other
5504 Hungary Oblique Mercator|misc_other
5505 Krovak|misc_other
5506 Brazil Polyconic|misc_other
5507 New Zealand Map Grid|misc_other
5508 Madagascar Oblique Mercator|misc_other
5509 United States Albers|misc_other
5510 Alaska Albers|misc_other
)");
}

TEST(ProjectionZones, HaveATwinForEachStatePlaneZone) {
    for (const kv::coord::Zone& zone : kv::coord::Zones()) {
        if (!zone.statePlaneCode) continue;
        EXPECT_NE(std::ranges::find(kTwins, -zone.statePlaneCode, &Twin::code), std::end(kTwins))
            << zone.description;
    }
}

struct Spheroid {
    int code;
    int epsg;
    /// What the half axes may differ by, in metres.
    double meters = 1e-6;
};
/// Those that EPSG has. Of Bessel's in Namibia the half axis is told there in another metre.
constexpr Spheroid kSpheroids[] = {
    {100, 7008},  {300, 7022},  {400, 7004},  {500, 7046, 3e-4}, {600, 7001},  {700, 7002},
    {800, 7003},  {900, 7011},  {1000, 7015}, {1100, 7018},      {1200, 7044}, {1300, 7056},
    {1400, 7016}, {1800, 7036}, {1900, 7019}, {2000, 7020},      {2100, 7053}, {2200, 7024},
    {2300, 7027}, {2700, 7043}, {2800, 7030}, {3000, 7012},
};

struct HalfAxes {
    double equator = 0.0;
    double pole = 0.0;
};

HalfAxes AxesOf(const Object& spheroid) {
    HalfAxes axes;
    proj_ellipsoid_get_parameters(nullptr, spheroid.get(), &axes.equator, &axes.pole, nullptr,
                                  nullptr);
    return axes;
}

TEST(ProjectionZones, HaveTheSpheroidsOfTheirNames) {
    for (const Spheroid& spheroid : kSpheroids) {
        const std::string definition = kv::coord::FindZone(spheroid.code)->definition;
        const Object angles(
            proj_create(nullptr, ("+proj=longlat +type=crs " + definition).c_str()));
        const HalfAxes own = AxesOf(Object(proj_get_ellipsoid(nullptr, angles.get())));
        const HalfAxes expected = AxesOf(
            Object(proj_create_from_database(nullptr, "EPSG", std::to_string(spheroid.epsg).c_str(),
                                             PJ_CATEGORY_ELLIPSOID, 0, nullptr)));
        ASSERT_GT(expected.equator, 6e6) << spheroid.epsg;
        EXPECT_NEAR(own.equator, expected.equator, spheroid.meters) << spheroid.code;
        EXPECT_NEAR(own.pole, expected.pole, spheroid.meters) << spheroid.code;
    }
}

/// PROJ has no other name for what is 0.6 mm from Clarke 1880 (Arc).
TEST(ProjectionZones, TellTwoSpheroidsOfClarkeFrom1880Apart) {
    EXPECT_STREQ(kv::coord::FindZone(200)->description, "Clarke 1880");
    EXPECT_STREQ(kv::coord::FindZone(200)->definition, "+ellps=clrk80");
    EXPECT_STREQ(kv::coord::FindZone(3000)->description, "Clarke 1880 (RGS)");
}

}  // namespace
}  // namespace test
