#include "frame/kvcom/util_lldrv.h"

#include <gtest/gtest.h>
#include <proj.h>

#include <cmath>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "frame/kvcom/projection_code.h"
#include "services/kvcom/projection_zones.h"
#include "services/kvcom/projections.h"

namespace test {
namespace {

constexpr int kFeet = 0;
constexpr int kMeters = 1;
constexpr double kRadians = std::numbers::pi / 180.0;
constexpr double kFeetPerMeter = 3937.0 / 1200.0;

struct Planar {
    double x = 0.0;
    double y = 0.0;
};
struct Angles {
    double lat = 0.0;
    double lon = 0.0;
};

Planar ToXY(const Angles& place, int code, int units) {
    Planar planar;
    CKvUtilLLdrv::LLdrv(place.lat, place.lon, &planar.x, &planar.y, code, units, 1, 100.0, 0.0,
                        0.0);
    return planar;
}

Angles ToAngles(const Planar& place, int code, int units) {
    Angles angles;
    CKvUtilLLdrv::XYdrv(place.x, place.y, &angles.lat, &angles.lon, code, units, 1, 100.0, 0.0,
                        0.0);
    return angles;
}

double Degrees(double degrees, double minutes, double seconds) {
    const double size = std::abs(degrees) + minutes / 60.0 + seconds / 3600.0;
    return std::signbit(degrees) ? -size : size;
}

/// A position whose X and Y somebody published.
struct KnownPoint {
    const char* name;
    int code;
    int units;
    Angles angles;
    Planar planar;
    double tolerance;
};

void PrintTo(const KnownPoint& point, std::ostream* out) {
    *out << point.name;
}

// IOGP: Geomatics Guidance Note 7, part 2, "Coordinate Conversions and Transformations including
// Formulas", the example of each method. Snyder: J. P. Snyder, "Map Projections: A Working Manual",
// USGS Professional Paper 1395, appendix A.
const KnownPoint kKnownPoints[] = {
    // IOGP, Lambert Conic Conformal (2SP): NAD27 / Texas South Central.
    {"TexasSouthCentral", 1, kFeet, {28.5, -96.0}, {2963503.91, 254759.80}, 0.01},
    {"TexasSouthCentralByItsNumber", -4204, kFeet, {28.5, -96.0}, {2963503.91, 254759.80}, 0.01},
    // IOGP, Lambert Conic Conformal (2SP Michigan): NAD27 / Michigan Central.
    {"MichiganCentral", -2112, kFeet, {43.75, Degrees(-83, 10, 0)}, {2308335.75, 160210.48}, 0.01},
    // Snyder, Universal Transverse Mercator, page 269.
    {"Utm18OnClarke1866", 118, kMeters, {40.5, -73.5}, {627106.5, 4484124.4}, 0.06},
    // IOGP, Transverse Mercator: OSGB 1936 / British National Grid.
    {"BritishNationalGrid", 5205, kMeters, {50.5, 0.5}, {577274.99, 69740.50}, 0.01},
    // IOGP, Lambert Conic Conformal (1SP): JAD69 / Jamaica National Grid.
    {"Jamaica",
     5108,
     kMeters,
     {Degrees(17, 55, 55.80), Degrees(-76, 56, 37.26)},
     {255966.58, 142493.51},
     0.01},
    // IOGP, Cassini-Soldner: Trinidad 1903 / Trinidad Grid, there in Clarke's links.
    {"Trinidad",
     5401,
     kMeters,
     {10.0, -62.0},
     {66644.94 * 0.201166195164, 82536.22 * 0.201166195164},
     0.01},
    // IOGP, Oblique Stereographic: Amersfoort / RD New.
    {"Netherlands", 5501, kMeters, {53.0, 6.0}, {196105.283, 557057.739}, 0.001},
    // IOGP, Hotine Oblique Mercator (variant B): Timbalai 1948 / RSO Borneo.
    {"Borneo",
     5503,
     kMeters,
     {Degrees(5, 23, 14.1129), Degrees(115, 48, 19.8196)},
     {679245.73, 596562.78},
     0.01},
};

class KnownPoints : public testing::TestWithParam<KnownPoint> {};

TEST_P(KnownPoints, AreMetInBothDirections) {
    const KnownPoint& known = GetParam();
    const Planar planar = ToXY(known.angles, known.code, known.units);
    EXPECT_NEAR(planar.x, known.planar.x, known.tolerance);
    EXPECT_NEAR(planar.y, known.planar.y, known.tolerance);
    const Angles angles = ToAngles(known.planar, known.code, known.units);
    // A metre is less than a hundred-thousandth of a degree of latitude.
    EXPECT_NEAR(angles.lat, known.angles.lat, known.tolerance * 1e-5);
    EXPECT_NEAR(angles.lon, known.angles.lon, known.tolerance * 1.5e-5);
}

INSTANTIATE_TEST_SUITE_P(CoordinateDriver, KnownPoints, testing::ValuesIn(kKnownPoints),
                         [](const auto& each) { return std::string(each.param.name); });

/// IOGP, Mercator (variant B): Pulkovo 1942 / Caspian Sea Mercator.
TEST(CoordinateDriver, StraightMercatorStandsOnTheRectifyingPoint) {
    constexpr int kKrassovsky = 2200;
    CKvUtilLLdrv::SetRectLat(42.0);
    CKvUtilLLdrv::SetRectLon(51.0);
    const Planar planar = ToXY({53.0, 53.0}, kKrassovsky + 99, kMeters);
    EXPECT_NEAR(planar.x, 165704.29, 0.01);
    EXPECT_NEAR(planar.y, 5171848.07, 0.01);

    CKvUtilLLdrv::SetRectLon(53.0);
    EXPECT_NEAR(ToXY({53.0, 53.0}, kKrassovsky + 99, kMeters).x, 0.0, 1e-6);
    CKvUtilLLdrv::SetRectLat(0.0);
    EXPECT_GT(ToXY({53.0, 53.0}, kKrassovsky + 99, kMeters).y, 6'900'000.0);
}

TEST(CoordinateDriver, StraightMercatorHasNoAnswerAtAnImpossibleRectifyingPoint) {
    CKvUtilLLdrv::SetRectLat(1000.0);
    CKvUtilLLdrv::SetRectLon(1000.0);
    EXPECT_EQ(ToXY({28.0, -90.0}, 199, kFeet).x, CKvUtilLLdrv::kNoXY);
    CKvUtilLLdrv::SetRectLat(28.0);
    CKvUtilLLdrv::SetRectLon(-90.0);
    EXPECT_NEAR(ToXY({28.0, -90.0}, 199, kFeet).x, 0.0, 1e-6);
}

TEST(CoordinateDriver, GivesFeetOfTheSurvey) {
    const Planar feet = ToXY({28.0, -91.0}, 115, kFeet);
    const Planar meters = ToXY({28.0, -91.0}, 115, kMeters);
    EXPECT_DOUBLE_EQ(feet.x, meters.x * kFeetPerMeter);
    EXPECT_DOUBLE_EQ(feet.y, meters.y * kFeetPerMeter);
    const Angles angles = ToAngles(feet, 115, kFeet);
    EXPECT_NEAR(angles.lat, 28.0, 1e-11);
    EXPECT_NEAR(angles.lon, -91.0, 1e-11);
}

TEST(CoordinateDriver, PutsTheOriginOfAZoneWhereItBelongs) {
    const Planar planar = ToXY({Degrees(28, 40, 0), Degrees(-91, 20, 0)}, 3, kFeet);
    EXPECT_NEAR(planar.x, 2'000'000.0, 1e-4);
    EXPECT_NEAR(planar.y, 0.0, 1e-4);
}

TEST(CoordinateDriver, HasNoAnswerForCodesThatNobodyKnows) {
    for (const int code : {-1, 0, 99, 100, 161, 170, 198, 4998, 4999, 5999, -9999, 99999}) {
        const Planar planar = ToXY({28.0, -90.0}, code, kFeet);
        EXPECT_EQ(planar.x, 100000000.0) << code;
        EXPECT_EQ(planar.y, 100000000.0) << code;
        const Angles angles = ToAngles({1000.0, 1000.0}, code, kFeet);
        EXPECT_EQ(angles.lat, HUGE_VAL) << code;
        EXPECT_EQ(angles.lon, HUGE_VAL) << code;
    }
}

TEST(CoordinateDriver, HasNoAnswerForImpossiblePlaces) {
    const double nan = std::nan("");
    for (const Angles& place : {Angles{91.0, -90.0}, Angles{1000.0, 1000.0}, Angles{nan, -90.0},
                                Angles{28.0, nan}, Angles{28.0, HUGE_VAL}}) {
        EXPECT_EQ(ToXY(place, 115, kFeet).x, CKvUtilLLdrv::kNoXY) << place.lat << " " << place.lon;
    }
    for (const Planar& place : {Planar{nan, 0.0}, Planar{0.0, HUGE_VAL}, Planar{1e15, 1e15}}) {
        EXPECT_EQ(ToAngles(place, 115, kFeet).lat, HUGE_VAL) << place.x << " " << place.y;
    }
}

TEST(CoordinateDriver, HasNoAnswerForXAndYThatNoPlaceHas) {
    struct Nowhere {
        int code;
        Planar feet;
    };
    constexpr Nowhere kNowhere[] = {
        // A digit too many in Y, and a turn round the earth.
        {115, {1'900'000.0, 101'234'567.0}},
        {115, {1'900'000.0, 10'123'456.0 + 131'234'000.0}},
        {115, {1'900'000.0, -101'234'567.0}},
        {5202, {1'900'000.0, 101'234'567.0}},
        // Beyond the pole of a cone, and beyond the sheet that it is unrolled to.
        {3, {2'000'000.0, 60'000'000.0}},
        {3, {150'000'000.0, 40'000'000.0}},
        {-101, {500'000.0, 99'000'000.0}},
        {199, {70'000'000.0, 0.0}},
        {5505, {0.0, 20'000'000.0}},
        {5507, {50'000'000.0, 50'000'000.0}},
    };
    CKvUtilLLdrv::SetRectLat(28.0);
    CKvUtilLLdrv::SetRectLon(-90.0);
    for (const auto& [code, feet] : kNowhere) {
        const Angles angles = ToAngles(feet, code, kFeet);
        EXPECT_EQ(angles.lat, HUGE_VAL) << code << " " << feet.x << " " << feet.y;
        EXPECT_EQ(angles.lon, HUGE_VAL) << code << " " << feet.x << " " << feet.y;
    }
}

TEST(CoordinateDriver, AnswersFarFromAProjectionsRegionWhereAPlaceIs) {
    CKvUtilLLdrv::SetRectLat(28.0);
    CKvUtilLLdrv::SetRectLon(-90.0);
    for (const int code : {3, 115, -101, 199, 5509}) {
        for (const Angles& place :
             {Angles{28.0, -30.0}, Angles{75.0, -120.0}, Angles{-40.0, -60.0}}) {
            const Angles back = ToAngles(ToXY(place, code, kFeet), code, kFeet);
            EXPECT_NEAR(back.lat, place.lat, 1e-8) << code;
            EXPECT_NEAR(back.lon, place.lon, 1e-8) << code;
        }
    }
}

TEST(CoordinateDriver, AFailureLeavesTheNextAnswerAsItWas) {
    const Planar before = ToXY({28.0, -90.0}, 3, kFeet);
    ToXY({1000.0, 1000.0}, 3, kFeet);
    ToAngles({HUGE_VAL, 0.0}, 3, kFeet);
    EXPECT_EQ(ToXY({28.0, -90.0}, 3, kFeet).x, before.x);
}

TEST(RegisterProjection, GivesACodeOfTheHostAMeaning) {
    constexpr int kOwn = 6001;
    EXPECT_EQ(ToXY({28.0, -90.0}, kOwn, kMeters).x, CKvUtilLLdrv::kNoXY);
    ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(
        kOwn, "+proj=utm +zone=15 +ellps=clrk66 +units=us-ft +no_defs +type=crs"));
    for (const int units : {kFeet, kMeters}) {
        EXPECT_EQ(ToXY({28.0, -90.0}, kOwn, units).x, ToXY({28.0, -90.0}, 115, units).x);
    }
    ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(kOwn, "+proj=utm +zone=16 +ellps=clrk66"));
    EXPECT_EQ(ToXY({28.0, -90.0}, kOwn, kFeet).x, ToXY({28.0, -90.0}, 116, kFeet).x);
}

/// The tip of its cone is 1,780 km to the north of its origin.
TEST(RegisterProjection, HasNoAnswerBeyondTheTipOfACone) {
    constexpr int kCone = 6005;
    ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(
        kCone, "+proj=lcc +lat_1=70 +lat_2=78 +lat_0=74 +lon_0=-90 +ellps=clrk66"));
    EXPECT_NEAR(ToAngles({0.0, 1.7e6}, kCone, kMeters).lon, -90.0, 1e-9);
    for (const double x : {-5e3, 0.0, 5e3}) {
        EXPECT_EQ(ToAngles({x, 1.95e6}, kCone, kMeters).lat, HUGE_VAL) << x;
        EXPECT_EQ(ToAngles({x, 1.95e6}, kCone, kMeters).lon, HUGE_VAL) << x;
    }
}

TEST(RegisterProjection, TakesTheNameOfAReferenceSystem) {
    ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(6002, "EPSG:26715"));
    EXPECT_NEAR(ToXY({28.0, -90.0}, 6002, kMeters).x, ToXY({28.0, -90.0}, 115, kMeters).x, 1e-6);
    // Its own unit is the foot.
    ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(6003, "EPSG:32041"));
    EXPECT_NEAR(ToXY({28.0, -97.0}, 6003, kFeet).x, ToXY({28.0, -97.0}, 2, kFeet).x, 1e-4);
}

TEST(RegisterProjection, RefusesWhatIsNoProjection) {
    for (const char* text : {"", "nonsense", "+proj=nonsense", "+proj=longlat +ellps=clrk66",
                             "EPSG:4267", "+proj=geocent +ellps=clrk66", "+proj=utm +zone=99"}) {
        EXPECT_FALSE(CKvUtilLLdrv::RegisterProjection(6004, text)) << text;
    }
    EXPECT_EQ(ToXY({28.0, -90.0}, 6004, kFeet).x, CKvUtilLLdrv::kNoXY);
}

TEST(RegisterProjection, OverridesACodeOfTheLibrary) {
    constexpr const char* kText = "+proj=utm +zone=16 +ellps=clrk66";
    constexpr int kCodes[] = {1, 115, 399, -401, 5501};
    for (const int code : kCodes) {
        ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(code, kText)) << code;
        EXPECT_EQ(ToXY({28.0, -90.0}, code, kFeet).x, ToXY({28.0, -90.0}, 116, kFeet).x) << code;
        EXPECT_NEAR(ToAngles(ToXY({28.0, -90.0}, code, kFeet), code, kFeet).lat, 28.0, 1e-9);
    }
    // Not the rectifying point's any more.
    CKvUtilLLdrv::SetRectLat(10.0);
    EXPECT_EQ(ToXY({28.0, -90.0}, 399, kFeet).x, ToXY({28.0, -90.0}, 116, kFeet).x);
    // Its number is another code.
    EXPECT_NEAR(ToXY({28.5, -96.0}, -4204, kFeet).x, 2963503.91, 0.01);

    // Back again, for other tests.
    for (const int code : kCodes) {
        ASSERT_TRUE(
            CKvUtilLLdrv::RegisterProjection(code, kv::coord::DefinitionOf(code, 28.0, -90.0)));
    }
    EXPECT_NEAR(ToXY({28.5, -96.0}, 1, kFeet).x, 2963503.91, 0.01);
}

TEST(RegisterProjection, RefusesTheCodesThatMeanNone) {
    for (const int code : {0, -1}) {
        EXPECT_FALSE(CKvUtilLLdrv::RegisterProjection(code, "+proj=utm +zone=16 +ellps=clrk66"));
        EXPECT_EQ(ToXY({28.0, -90.0}, code, kFeet).x, CKvUtilLLdrv::kNoXY);
    }
}

TEST(RegisterProjection, KeepsWhatACodeMeantWhereItRefuses) {
    EXPECT_FALSE(CKvUtilLLdrv::RegisterProjection(3, "+proj=nonsense"));
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(3), "Louisiana South");
    EXPECT_NEAR(ToXY({Degrees(28, 40, 0), Degrees(-91, 20, 0)}, 3, kFeet).x, 2'000'000.0, 1e-4);
}

/// The figures of the spheroid, and not PROJ's, which are 2 mm off.
TEST(RegisterProjection, TakesTheSpheroidOfIrelandByItsFigures) {
    for (const char* spheroid : {"+ellps=mod_airy", "+datum=ire65"}) {
        ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(
            6010, std::string("+proj=tmerc +lat_0=53.5 +lon_0=-8 +k_0=1.000035 +x_0=200000 "
                              "+y_0=250000 ") +
                      spheroid));
        EXPECT_NEAR(ToXY({51.5, -6.0}, 6010, kMeters).y, ToXY({51.5, -6.0}, 5206, kMeters).y, 1e-6)
            << spheroid;
    }
}

TEST(BuiltInName, IsThatOfAZoneASpheroidAndAStatePlaneNumber) {
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(3), "Louisiana South");
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(-1702), "Louisiana South");
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(5505), "Krovak");
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(2200), "Krassovsky 1940");
    for (const int code : {-1, 0, 99, 115, 199, 4900, 6000, -9999})
        EXPECT_EQ(CKvUtilLLdrv::BuiltInName(code), "") << code;
}

TEST(BuiltInName, EndsWhereTheHostGivesACodeItsOwnMeaning) {
    ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(4, kv::coord::DefinitionOf(4)));
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(4), "");
    EXPECT_EQ(CKvUtilLLdrv::BuiltInName(5), "Arkansas South");
}

/// Every code that there is; of Straight Mercator one rectifying point will do.
std::vector<int> EveryCode() {
    std::vector<int> codes;
    for (const kv::coord::Zone& zone : kv::coord::Zones()) {
        if (zone.code < 100 || zone.code >= 5000) {
            codes.push_back(zone.code);
            if (zone.statePlaneCode) codes.push_back(-zone.statePlaneCode);
            continue;
        }
        for (int utm = 1; utm <= 60; ++utm)
            codes.push_back(zone.code + utm);
        codes.push_back(zone.code + kv::projection::kStraightMercator);
    }
    return codes;
}

/// Number behind a parameter of PROJ's text, or the other one.
double Parameter(const std::string& definition, const std::string& name, double otherwise) {
    const std::size_t at = definition.find("+" + name + "=");
    return at == std::string::npos ? otherwise : std::stod(definition.substr(at + name.size() + 2));
}

/// The middle of the land that a projection is for: not more than its definition tells.
Angles MiddleOf(const std::string& definition) {
    double lon = Parameter(definition, "lon_0", Parameter(definition, "lonc", 0.0));
    if (definition.find("+proj=utm") == 0) lon = Parameter(definition, "zone", 1) * 6.0 - 183.0;
    if (definition.find("+pm=paris") != std::string::npos) lon += 2.33722917;
    if (definition.find("+pm=lisbon") != std::string::npos) lon -= 9.131906111;
    if (definition.find("+proj=krovak") == 0) lon = 15.0;
    const double first = Parameter(definition, "lat_1", Parameter(definition, "lat_0", 30.0));
    const double second = Parameter(definition, "lat_2", first);
    return {(first + second) / 2.0, lon};
}

class EveryCodeTest : public testing::Test {
protected:
    void SetUp() override {
        CKvUtilLLdrv::SetRectLat(28.0);
        CKvUtilLLdrv::SetRectLon(-90.0);
        context_ = proj_context_create();
    }
    void TearDown() override { proj_context_destroy(context_); }

    /// A place within some two degrees of the middle.
    Angles Near(const Angles& middle) {
        std::uniform_real_distribution<double> off(-2.0, 2.0);
        return {std::clamp(middle.lat + off(random_), -80.0, 80.0),
                std::remainder(middle.lon + off(random_), 360.0)};
    }

    PJ_CONTEXT* context_ = nullptr;
    std::mt19937 random_{19270101};
};

TEST_F(EveryCodeTest, AgreesWithBareProj) {
    for (const int code : EveryCode()) {
        const std::string definition = kv::coord::DefinitionOf(code, 28.0, -90.0);
        PJ* bare = proj_create(context_, definition.c_str());
        ASSERT_TRUE(bare) << code << ": " << definition;
        const Angles middle = MiddleOf(definition);
        double farthest = 0.0;
        for (int i = 0; i < 10'000; ++i) {
            const Angles place = Near(middle);
            const PJ_COORD expected = proj_trans(
                bare, PJ_FWD, proj_coord(place.lon * kRadians, place.lat * kRadians, 0, 0));
            const Planar planar = ToXY(place, code, kMeters);
            farthest = std::max(
                {farthest, std::abs(planar.x - expected.xy.x), std::abs(planar.y - expected.xy.y)});
        }
        EXPECT_LE(farthest, 1e-6) << code << ": " << definition;
        proj_destroy(bare);
    }
}

TEST_F(EveryCodeTest, ComesBackToWhereItWentOut) {
    for (const int code : EveryCode()) {
        const std::string definition = kv::coord::DefinitionOf(code, 28.0, -90.0);
        const Angles middle = MiddleOf(definition);
        double farthest = 0.0;
        for (int i = 0; i < 200; ++i) {
            const Angles place = Near(middle);
            const Angles back = ToAngles(ToXY(place, code, kFeet), code, kFeet);
            farthest = std::max({farthest, std::abs(back.lat - place.lat),
                                 std::abs(std::remainder(back.lon - place.lon, 360.0))});
        }
        EXPECT_LE(farthest, 1e-9) << code << ": " << definition;
    }
}

/// On a plain of 80,000 km across.
TEST_F(EveryCodeTest, GivesNoPlaceThatHasOtherXAndY) {
    std::uniform_real_distribution<double> anywhere(-4e7, 4e7);
    int answers = 0;
    int none = 0;
    for (const int code : EveryCode()) {
        for (int i = 0; i < 200; ++i) {
            const Planar planar{anywhere(random_), anywhere(random_)};
            const Angles angles = ToAngles(planar, code, kMeters);
            if (!std::isfinite(angles.lat)) {
                ++none;
                continue;
            }
            ++answers;
            const Planar back = ToXY(angles, code, kMeters);
            EXPECT_NEAR(back.x, planar.x, 0.02) << code;
            EXPECT_NEAR(back.y, planar.y, 0.02) << code;
        }
    }
    EXPECT_GT(answers, 10'000);
    EXPECT_GT(none, 10'000);
}

/// Where it is not looked whether a place comes back, it does.
TEST_F(EveryCodeTest, ComesBackEverywhereInItsDomain) {
    for (const int code : EveryCode()) {
        const kv::coord::Projection* projection = kv::coord::Projections::Get().Find(code);
        ASSERT_TRUE(projection) << code;
        const kv::coord::Domain& domain = projection->domain;
        EXPECT_GE(domain.east - domain.west, 2e6) << code;
        EXPECT_GE(domain.north - domain.south, 1.9e6) << code;
        std::uniform_real_distribution<double> x(domain.west, domain.east);
        std::uniform_real_distribution<double> y(domain.south, domain.north);
        for (int i = 0; i < 200; ++i) {
            const Planar planar{x(random_), y(random_)};
            const Planar back = ToXY(ToAngles(planar, code, kMeters), code, kMeters);
            EXPECT_NEAR(back.x, planar.x, 0.02) << code;
            EXPECT_NEAR(back.y, planar.y, 0.02) << code;
        }
    }
}

/// A domain holds what maps are drawn of.
TEST_F(EveryCodeTest, HasItsLandInItsDomain) {
    for (const int code : EveryCode()) {
        const kv::coord::Projection* projection = kv::coord::Projections::Get().Find(code);
        const Planar middle =
            ToXY(MiddleOf(kv::coord::DefinitionOf(code, 28.0, -90.0)), code, kMeters);
        EXPECT_TRUE(projection->domain.Holds(middle.x, middle.y))
            << code << " " << middle.x << " " << middle.y;
    }
}

}  // namespace
}  // namespace test
