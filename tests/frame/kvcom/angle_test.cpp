#include "frame/kvcom/angle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/numbers.h"
#include "frame/kvcom/util_lldrv.h"

namespace test {
namespace {

struct Parts {
    int degrees;
    int minutes;
    double seconds;
};

Parts Split(double angle) {
    Parts parts{};
    CKvUtilLLdrv::GetDegMinSec(angle, parts.degrees, parts.minutes, parts.seconds);
    return parts;
}

double Join(const Parts& parts) {
    double angle = 0.0;
    CKvUtilLLdrv::GetDegDeg(angle, parts.degrees, parts.minutes, parts.seconds);
    return angle;
}

void ExpectParts(double angle, int degrees, int minutes, double seconds) {
    const Parts parts = Split(angle);
    EXPECT_EQ(parts.degrees, degrees) << angle;
    EXPECT_EQ(parts.minutes, minutes) << angle;
    EXPECT_NEAR(parts.seconds, seconds, 1e-8) << angle;
}

TEST(SplittingAnAngle, GivesItsParts) {
    ExpectParts(29.504236, 29, 30, 15.2496);
    ExpectParts(-29.504236, -29, 30, 15.2496);
    ExpectParts(0.0, 0, 0, 0.0);
    ExpectParts(90.0, 90, 0, 0.0);
    ExpectParts(-180.0, -180, 0, 0.0);
}

TEST(SplittingAnAngle, LeavesTheSignOnTheFirstPartThatIsNotZero) {
    ExpectParts(-0.5, 0, -30, 0.0);
    ExpectParts(-1.0 / 3600.0, 0, 0, -1.0);
    ExpectParts(-1.5, -1, 30, 0.0);
}

TEST(SplittingAnAngle, NeverGivesSixtySeconds) {
    ExpectParts(29.0 + 59.0 / 60.0 + 59.9999999 / 3600.0, 30, 0, 0.0);
    ExpectParts(28.7, 28, 42, 0.0);
    ExpectParts(-0.99999999999, -1, 0, 0.0);
    // Half a millionth below, to the last bit.
    ExpectParts(0.016666666527777776, 0, 1, 0.0);
    ExpectParts(0.01666666652777777, 0, 0, 59.9999995);
}

TEST(SplittingAnAngle, TakesAHundredThousandDegreesAtMost) {
    ExpectParts(100000.0, 100000, 0, 0.0);
    ExpectParts(-100000.0, -100000, 0, 0.0);
    ExpectParts(100000.5, 0, 0, 0.0);
}

TEST(SplittingAnAngle, IsZeroForWhatIsNoAngle) {
    for (const double angle : {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300})
        ExpectParts(angle, 0, 0, 0.0);
}

TEST(JoiningAnAngle, TakesAMinusOnAnyPart) {
    EXPECT_DOUBLE_EQ(Join({-29, 30, 36.0}), -29.51);
    EXPECT_DOUBLE_EQ(Join({0, -30, 0.0}), -0.5);
    EXPECT_DOUBLE_EQ(Join({0, 0, -36.0}), -0.01);
    double angle = 0.0;
    CKvUtilLLdrv::GetDegDeg(angle, -0.0, 30, 36.0);
    EXPECT_DOUBLE_EQ(angle, -0.51);
    CKvUtilLLdrv::GetDegDeg(angle, 29.5, 30, 0.0);
    EXPECT_DOUBLE_EQ(angle, 30.0);
}

TEST(SplittingAndJoining, LosesNothingOverMillionsOfAngles) {
    std::mt19937_64 random(20000114);
    std::uniform_real_distribution<double> anywhere(-360.0, 360.0);
    std::uniform_real_distribution<double> nearZero(-1.0, 1.0);
    double farthest = 0.0;
    for (int i = 0; i < 2'000'000; ++i) {
        const double angle = i % 2 ? anywhere(random) : nearZero(random);
        const Parts parts = Split(angle);
        ASSERT_LT(std::abs(parts.minutes), 60) << angle;
        ASSERT_LT(std::abs(parts.seconds), 59.9999996) << angle;
        farthest = std::max(farthest, std::abs(Join(parts) - angle));
    }
    // What is carried over is less than half a millionth of a second.
    EXPECT_LT(farthest, 1.5e-10);
}

TEST(SplittingAnAngleForShow, CarriesWhatRoundsToSixty) {
    const kv::AngleParts parts = kv::SplitAngle(-(29.0 + 59.0 / 60.0 + 59.996 / 3600.0), 2);
    EXPECT_TRUE(parts.negative);
    EXPECT_EQ(parts.degrees, 30);
    EXPECT_EQ(parts.minutes, 0);
    EXPECT_EQ(parts.seconds, 0.0);
    EXPECT_EQ(kv::SplitAngle(29.0 + 59.0 / 60.0 + 59.996 / 3600.0, 3).seconds, 59.996);
}

TEST(SplittingAnAngleForShow, KeepsTheSignOfWhatIsShownOnly) {
    EXPECT_TRUE(kv::SplitAngle(-0.5, 2).negative);
    EXPECT_FALSE(kv::SplitAngle(-1e-9, 2).negative);
    EXPECT_FALSE(kv::SplitAngle(std::nan(""), 2).negative);
}

TEST(SplittingAnAngleForShow, IsRightToHalfTheLastDecimal) {
    std::mt19937_64 random(20000115);
    std::uniform_real_distribution<double> anywhere(-180.0, 180.0);
    for (int i = 0; i < 1'000'000; ++i) {
        const double angle = anywhere(random);
        const kv::AngleParts parts = kv::SplitAngle(angle, 2);
        ASSERT_LT(parts.minutes, 60);
        ASSERT_LT(parts.seconds, 59.995);
        ASSERT_NEAR(kv::JoinAngle(parts), angle, 0.00501 / 3600.0) << angle;
    }
}

}  // namespace
}  // namespace test
