#include "frame/coordinate_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/kvcom/angle.h"
#include "support/comma_locale.h"

namespace {

using kv::Coordinate;
using kv::ParseCoordinate;

constexpr double kLat = 28 + 30 / 60.0 + 15.25 / 3600.0;
constexpr double kLon = -(89 + 7 / 60.0 + 30 / 3600.0);

void ExpectAngle(const std::optional<double>& came, const std::optional<double>& expected,
                 const char* which) {
    ASSERT_EQ(came.has_value(), expected.has_value()) << which;
    if (came) {
        EXPECT_NEAR(*came, *expected, 1e-12) << which;
    }
}

void ExpectCoordinate(const std::string& text, const Coordinate& expected) {
    SCOPED_TRACE('"' + text + '"');
    const auto came = ParseCoordinate(text);
    ASSERT_TRUE(came);
    ExpectAngle(came->latitude, expected.latitude, "latitude");
    ExpectAngle(came->longitude, expected.longitude, "longitude");
    ExpectAngle(came->angle, expected.angle, "angle");
}
void ExpectPair(const std::string& text, double lat = kLat, double lon = kLon) {
    ExpectCoordinate(text, {.latitude = lat, .longitude = lon});
}

TEST(CoordinateText, UnderstandsTheUsualNotationsOfAPosition) {
    ExpectPair("28°30'15.25\"N 89°07'30\"W");
    ExpectPair("28.504236, -89.125", 28.504236, -89.125);
    ExpectPair("N28 30.254 W89 07.5", 28 + 30.254 / 60, -89.125);
    ExpectPair("28 30 15.25 N 89 07 30 W");
    ExpectPair("28-30-15.25N 89-07-30W");
    ExpectPair("28:30:15.25N 89:07:30W");
    ExpectPair("28°30′15.25″N 89°07′30″W");
    ExpectPair("28º30’15.25”N, 89º07’30”W");
    ExpectPair(
        "28\xB0"
        "30'15.25\"N 89\xB0"
        "07'30\"W");
    ExpectPair(
        "28\xBA"
        "30\xB4"
        "15.25\x94N 89\xBA"
        "07\x92"
        "30\x94W");
    ExpectPair("28d30m15.25s N 89d07m30s W");
    ExpectPair("28d30m15.25sN 89d07m30sW");
    ExpectPair("28 deg 30 min 15.25 sec N; 89 deg 7 min 30 sec W");
    ExpectPair("28 deg. 30 min. 15.25 sec. N, 89 deg. 7 min. 30 sec. W");
    ExpectPair("28 degrees 30 minutes 15.25 seconds North, 89 Degrees 7 Minutes 30 Seconds West");
    ExpectPair("28° 30' 15.25'' N\t89° 7' 30'' W");
    ExpectPair("28° 30′ 15.25′′ N  89° 7′ 30′′ W");
    ExpectPair("28°30'15.25\" -89°07'30\"");
    ExpectPair("+28°30'15.25\", -89°07'30\"");
    ExpectPair("N 28° 30' 15.25\" W 89° 07' 30\"");
    ExpectPair("N28°30'15.25\",W89°07'30\"");
    ExpectPair("n28 30 15.25 w89 07 30");
    ExpectPair("28 30 15.25;-89 07 30");
    ExpectPair("28:30:15.25 -89:07:30");
    ExpectPair("28:30:15.25, -89:07:30");
    ExpectPair("28-30-15.25, -89-07-30");
    ExpectPair("28-30-15.25 -89-07-30");
    ExpectPair("28.504236N 89.125W", 28.504236, -89.125);
    ExpectPair("28.504236N89.125W", 28.504236, -89.125);
    ExpectPair("28.504236° N, 89.125° W", 28.504236, -89.125);
    ExpectPair("28.504236\t-89.125", 28.504236, -89.125);
    ExpectPair("28.504236 -89.125", 28.504236, -89.125);
    ExpectPair("28.504236;-89.125", 28.504236, -89.125);
    ExpectPair("28.504236,-89.125", 28.504236, -89.125);
    ExpectPair("28.N 89.W", 28.0, -89.0);
    ExpectPair("28.504236\xC2\xA0-89.125", 28.504236, -89.125);
    ExpectPair(
        "28.504236, \xE2\x88\x92"
        "89.125",
        28.504236, -89.125);
    ExpectPair("+28.504236-089.125", 28.504236, -89.125);
    ExpectPair("(28.504236, -89.125)", 28.504236, -89.125);
    ExpectPair(" [28.504236, -89.125] \r\n", 28.504236, -89.125);
    ExpectPair("Lat: 28.504236 Lon: -89.125", 28.504236, -89.125);
    ExpectPair("latitude=28.504236, longitude=-89.125", 28.504236, -89.125);
    ExpectPair("Lat 28°30'15.25\"N Long 89°07'30\"W");
    ExpectPair("Lat: N28 30.254\nLng: W89 07.5", 28 + 30.254 / 60, -89.125);
}

/// As it stands, in capitals, and with its first letter alone in capitals.
std::vector<std::string> Cases(const std::string& word) {
    std::string capitals;
    for (const char ch : word)
        capitals += kv::ToUpper(ch);
    return {word, capitals, capitals.substr(0, 1) + word.substr(1)};
}

TEST(CoordinateText, KnowsEverySpellingOfAMark) {
    for (const char* sign : {"\xC2\xB0", "\xC2\xBA", "\xCB\x9A", "\xB0", "\xBA"})
        ExpectCoordinate(std::string("28.5") + sign, {.angle = 28.5});
    for (const char* sign :
         {"\xE2\x80\xB2", "\xE2\x80\x99", "\xC2\xB4", "'", "`", "\xB4", "\x92"}) {
        const std::string minutes = std::string("28°30") + sign;
        ExpectCoordinate(minutes, {.angle = 28.5});
        ExpectCoordinate(minutes + "15.25" + sign + sign, {.angle = kLat});
    }
    for (const char* sign : {"\xE2\x80\xB3", "\xE2\x80\x9D", "\"", "\x94"})
        ExpectCoordinate(std::string("28°30'15.25") + sign, {.angle = kLat});
    for (const char* word : {"d", "deg", "degree", "degrees"})
        for (const std::string& each : Cases(word))
            ExpectCoordinate("28.5 " + each, {.angle = 28.5});
    for (const char* word : {"m", "min", "minute", "minutes"}) {
        for (const std::string& each : Cases(word)) {
            ExpectCoordinate("28d30" + each, {.angle = 28.5});
            ExpectCoordinate("28d30" + each + " 15.25s", {.angle = kLat});
        }
    }
    for (const char* word : {"sec", "second", "seconds"})
        for (const std::string& each : Cases(word))
            ExpectCoordinate("28d30m15.25 " + each, {.angle = kLat});
}

TEST(CoordinateText, KnowsEverySpellingOfADirection) {
    for (const char* word : {"n", "north", "lat", "latitude"})
        for (const std::string& each : Cases(word))
            ExpectCoordinate(each + " 28.5", {.latitude = 28.5});
    for (const char* word : {"e", "east", "lon", "lng", "long", "longitude"})
        for (const std::string& each : Cases(word))
            ExpectCoordinate(each + " 28.5", {.longitude = 28.5});
    for (const char* word : {"s", "south"})
        for (const std::string& each : Cases(word))
            ExpectCoordinate(each + " 28.5", {.latitude = -28.5});
    for (const char* word : {"w", "west"})
        for (const std::string& each : Cases(word))
            ExpectCoordinate(each + " 28.5", {.longitude = -28.5});
}

TEST(CoordinateText, KnowsEverySpellingOfABlankAndOfAMinus) {
    for (const char* blank :
         {" ", "\t", "\r", "\n", "\xA0", "\xC2\xA0", "\xE2\x80\x89", "\xE2\x80\xAF"})
        ExpectCoordinate(std::string("28") + blank + "30", {.angle = 28.5});
    for (const char* minus : {"-", "\xE2\x88\x92", "\xE2\x80\x93"})
        ExpectCoordinate(std::string(minus) + "28.5", {.angle = -28.5});
}

TEST(CoordinateText, KnowsNoOtherCharacterBehindANumber) {
    const std::string known = "0123456789dDnNsSeEwW";
    for (char ch = '!'; ch <= '~'; ++ch) {
        if (known.find(ch) != std::string::npos) continue;
        // A point may end a whole number.
        EXPECT_EQ(ParseCoordinate(std::string("28") + ch).has_value(), ch == '.') << ch;
        EXPECT_FALSE(ParseCoordinate(std::string("28.5") + ch)) << ch;
    }
}

TEST(CoordinateText, ReadsNothingBehindTheEndOfItsText) {
    EXPECT_FALSE(ParseCoordinate(std::string_view("28 .5").substr(0, 4)));
    // In memory that ends there.
    const std::vector<char> digits{'2', '8'};
    const auto whole = ParseCoordinate({digits.data(), digits.size()});
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->angle, 28.0);
}

TEST(CoordinateText, TakesASmallSForSecondsBehindMinutesInLettersOnly) {
    ExpectCoordinate("28d30m15.25s", {.angle = kLat});
    ExpectCoordinate("28d30'15.25s", {.latitude = -kLat});
    ExpectCoordinate("28 30 15.25s", {.latitude = -kLat});
    ExpectCoordinate("28d30m s", {.latitude = -28.5});
    ExpectCoordinate("28d30.5s", {.latitude = -(28 + 30.5 / 60)});
    ExpectCoordinate("28.5s", {.latitude = -28.5});
}

TEST(CoordinateText, TakesTheOrderFromWhatTheAnglesTell) {
    ExpectPair("89°07'30\"W 28°30'15.25\"N");
    ExpectPair("W89 07 30 N28 30 15.25");
    ExpectPair("W 89.125, N 28.504236", 28.504236, -89.125);
    ExpectPair("lon -89.125 lat 28.504236", 28.504236, -89.125);
    // What cannot be a latitude is none.
    ExpectPair("-95.125, 28.504236", 28.504236, -95.125);
    ExpectPair("-89.125, 28.504236", -89.125, 28.504236);
    ExpectPair("-90, 45", -90.0, 45.0);
    ExpectPair("-95.125, 90", 90.0, -95.125);
}

TEST(CoordinateText, DividesBareNumbersInARow) {
    ExpectPair("28 30 15.25 89 07 30", kLat, -kLon);
    ExpectPair("28 30.254 89 07.5", 28 + 30.254 / 60, 89.125);
    ExpectPair("28.504236 89.125", 28.504236, 89.125);
    ExpectPair("28 89", 28.0, 89.0);
    ExpectPair("28 30' 89 07.5'", 28.5, 89.125);
    ExpectPair("28.5° 89.125°", 28.5, 89.125);
    ExpectPair("-28 30 15.25 89 07 30", -kLat, -kLon);
    ExpectCoordinate("28 30", {.angle = 28.5});
    ExpectCoordinate("28 30 15.25", {.angle = kLat});
}

TEST(CoordinateText, UnderstandsASingleAngle) {
    ExpectCoordinate("28.504236", {.angle = 28.504236});
    ExpectCoordinate(" -89.125 ", {.angle = -89.125});
    ExpectCoordinate("28", {.angle = 28.0});
    ExpectCoordinate(".5", {.angle = 0.5});
    ExpectCoordinate("28.5°", {.angle = 28.5});
    ExpectCoordinate("28°30'", {.angle = 28.5});
    ExpectCoordinate("28°30'15.25\"", {.angle = kLat});
    ExpectCoordinate("-0°30'", {.angle = -0.5});
    ExpectCoordinate("-0 30 0", {.angle = -0.5});
    ExpectCoordinate("28:30:15.25", {.angle = kLat});
    ExpectCoordinate("28-30-15.25N", {.latitude = kLat});
    ExpectCoordinate("28 30 15.25 N", {.latitude = kLat});
    ExpectCoordinate("28 30 15.25 S", {.latitude = -kLat});
    ExpectCoordinate("28d30m15.25S", {.latitude = -kLat});
    ExpectCoordinate("28d30m15.25s", {.angle = kLat});
    ExpectCoordinate("S 0 30", {.latitude = -0.5});
    ExpectCoordinate("89°07'30\"W", {.longitude = kLon});
    ExpectCoordinate("200W", {.longitude = -200.0});
    ExpectCoordinate("90N", {.latitude = 90.0});
    ExpectCoordinate("Longitude: 89.125 W", {.longitude = -89.125});
    ExpectCoordinate("lat -28.5", {.latitude = -28.5});
}

TEST(CoordinateText, IsNoneForAnyOtherText) {
    constexpr const char* kTexts[] = {
        "",
        " ",
        "-",
        "N",
        "NW",
        "°",
        ",",
        "GREEN CANYON",
        "A 12",
        "12a",
        "28.5 x",
        // Out of range.
        "95N",
        "90.0001 N",
        "361",
        "-400",
        "28 60 00",
        "28°61'",
        "28 30 60.5",
        "100, 100",
        "28.5, 400",
        "91 0 0 N 89 0 0 W",
        // Fractions ahead of further parts.
        "28.5 30 15",
        "28°30.5'15\"",
        "28.5°30'",
        // Marks out of their order.
        "30'15\"",
        "28°15\"",
        "28'30°",
        "28°30°15°",
        "28°30'15'",
        "28°°",
        "N°",
        // What contradicts itself.
        "-28.5 N",
        "N -28.5",
        "28 N 30 S",
        "28 N 89",
        "lat 28 W",
        "N28 89W",
        "N N 28",
        "lat lon 28 89",
        "lat lon 28",
        "lat 28 89",
        "N 28 89",
        "28 W, 89 E",
        // What is not complete, or too much.
        "28.504236,",
        ",28.5",
        "28,,30",
        "28:",
        "28:30:",
        ":28",
        "28-",
        "28 - 30",
        "28:-30",
        "28::30",
        "28:89",
        "28:89°",
        "28° 89",
        "28 30 15 20 07",
        "28 30 15 89 07",
        "1 2 3 4 5 6 7",
        "1, 2, 3",
        "28.5 89.5 95.5",
        "1.2.3",
        "28..5",
        "28.504236, -89.125, 0",
        "lat",
        "lat:",
        "lat: lon:",
        "=28",
        "28=",
        // Numbers of other kinds.
        "1e5",
        "1E-5",
        "2.85E+01",
        "0x1C",
        "inf",
        "nan",
        "2026-11-21",
        "$28",
        "28%",
        "28/89",
        "((28, 89))",
        "(28, 89",
        "28\xC3\xA9",
    };
    for (const char* text : kTexts)
        EXPECT_FALSE(ParseCoordinate(text)) << '"' << text << '"';
}

TEST(CoordinateText, DoesNotDependOnTheLocale) {
    const test::CommaLocale locale;
    if (!locale.Found()) GTEST_SKIP() << "no locale with a decimal comma";
    ExpectPair("28.504236, -89.125", 28.504236, -89.125);
    ExpectPair("28°30'15.25\"N 89°07'30\"W");
}

TEST(CoordinateText, TakesALongTextInItsStride) {
    EXPECT_FALSE(ParseCoordinate(std::string(1'000'000, '1')));
    EXPECT_FALSE(ParseCoordinate(std::string(1'000'000, ' ') + "x"));
    std::string many;
    for (int i = 0; i < 100'000; ++i)
        many += "28 ";
    EXPECT_FALSE(ParseCoordinate(many));
}

// What is written from an angle is read as that angle.

std::string InParts(double angle, const std::string& format) {
    const kv::AngleParts parts = kv::SplitAngle(angle, 6);
    std::string text;
    for (const char ch : format) {
        switch (ch) {
            case 'D':
                text += std::to_string(parts.degrees);
                break;
            case 'M':
                text += std::to_string(parts.minutes);
                break;
            case 'S':
                text += kv::FormatFixed(parts.seconds, 6);
                break;
            case '-':
                text += parts.negative ? "-" : "";
                break;
            default:
                text += ch;
        }
    }
    return text;
}

TEST(CoordinateText, ReadsBackAMillionAnglesAsTheyWereWritten) {
    constexpr const char* kFormats[] = {"-D°M'S\"", "-D M S", "-D:M:S", "-D M' S\"", "-DdMmSs"};
    std::mt19937_64 random(20260514);
    std::uniform_real_distribution<double> angles(-180.0, 180.0);
    // Half of a millionth of a second.
    constexpr double kRounding = 0.51e-6 / 3600.0;
    for (int i = 0; i < 1'000'000; ++i) {
        double angle = angles(random);
        if (i % 4 == 0) angle /= 180.0;
        if (i % 7 == 0) angle = std::round(angle * 3600.0) / 3600.0;
        const std::string text = InParts(angle, kFormats[i % 5]);
        const auto came = ParseCoordinate(text);
        ASSERT_TRUE(came && came->angle) << text;
        ASSERT_NEAR(*came->angle, angle, kRounding) << text;
    }
}

TEST(CoordinateText, ReadsBackAMillionPositions) {
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> angles(-1.0, 1.0);
    for (int i = 0; i < 1'000'000; ++i) {
        const double lat = 90.0 * angles(random);
        const double lon = 180.0 * angles(random);
        const std::string text = kv::FormatFixed(lat, 9) + ", " + kv::FormatFixed(lon, 9);
        const auto came = ParseCoordinate(text);
        ASSERT_TRUE(came && came->latitude && came->longitude) << text;
        ASSERT_NEAR(*came->latitude, lat, 0.51e-9) << text;
        ASSERT_NEAR(*came->longitude, lon, 0.51e-9) << text;
    }
}

}  // namespace
