#include "coordtools/length_unit.h"

#include <gmock/gmock.h>

namespace kv::length {
namespace {

/// Feet come from the driver as US survey feet; the factor of meters and kilometers is another
/// foot's, 2 millionths less.
TEST(LengthUnit, AreFourAndHaveTheirFactors) {
    EXPECT_EQ(FromFeet(1000.0, "feet"), 1000.0);
    EXPECT_DOUBLE_EQ(FromFeet(1000.0, "meter"), 304.8);
    EXPECT_DOUBLE_EQ(FromFeet(1000.0, "km"), 0.3048);
    EXPECT_DOUBLE_EQ(FromFeet(1000.0, "mile"), 0.189394);
    EXPECT_EQ(ToFeet(1000.0, "feet"), 1000.0);
    EXPECT_DOUBLE_EQ(ToFeet(304.8, "meter"), 1000.0);
    EXPECT_DOUBLE_EQ(ToFeet(0.3048, "km"), 1000.0);
    EXPECT_DOUBLE_EQ(ToFeet(0.189394, "mile"), 1000.0);
}

TEST(LengthUnit, AMileIsARoundedOne) {
    EXPECT_EQ(ShownIn("mile", 528000000.0), "100000.03");
    EXPECT_DOUBLE_EQ(ToFeet(1.0, "mile"), 1.0 / 0.000189394);
}

TEST(LengthUnit, AnyOtherTextChangesNothing) {
    for (const char* unit : {"", "Feet", "feet ", "yard"}) {
        EXPECT_FALSE(IsUnit(unit));
        EXPECT_EQ(FromFeet(12.5, unit), 12.5);
        EXPECT_EQ(ToFeet(12.5, unit), 12.5);
    }
    for (const char* unit : kUnits)
        EXPECT_TRUE(IsUnit(unit));
}

TEST(LengthUnit, ShowsTwoDecimals) {
    EXPECT_EQ(ShownIn("km", 1000.0), "0.30");
    EXPECT_EQ(ShownIn("feet", 0.0), "0.00");
    EXPECT_EQ(ShownIn("feet", -1234567.891), "-1234567.89");
    EXPECT_EQ(ShownIn("meter", 1000.0), "304.80");
}

TEST(LengthUnit, ShowsNothingForNoValueInFeet) {
    EXPECT_EQ(ShownIn("feet", 100000000.0), "");
    EXPECT_EQ(ShownIn("km", 100000000.0), "");
    EXPECT_EQ(ShownIn("feet", 99999999.0), "99999999.00");
    // In the unit it is a number as any other.
    EXPECT_EQ(ShownIn("meter", 100000000.0 / 0.3048), "100000000.00");
}

}  // namespace
}  // namespace kv::length
