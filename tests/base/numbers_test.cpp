#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "support/comma_locale.h"

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();
constexpr int kSmallest = std::numeric_limits<int>::min();

TEST(Atof, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(kv::Atof("12.5"), 12.5);
    EXPECT_EQ(kv::Atof(" \t\n-12.5e1xyz"), -125.0);
    EXPECT_EQ(kv::Atof("+.5"), 0.5);
    EXPECT_EQ(kv::Atof("5."), 5.0);
    EXPECT_EQ(kv::Atof("1.2.3"), 1.2);
    EXPECT_EQ(kv::Atof("1,5"), 1.0);
    EXPECT_EQ(kv::Atof("1E+003"), 1000.0);
    EXPECT_EQ(kv::Atof("12e"), 12.0);
    EXPECT_EQ(kv::Atof("12e+"), 12.0);
}

TEST(Atof, IsZeroForATextThatBeginsWithNoNumber) {
    for (const char* text : {"", " ", "abc", ".", "-", "+-1", "e5", "-.e1"}) {
        EXPECT_EQ(kv::Atof(text), 0.0) << text;
    }
}

TEST(Atof, ReadsDecimalsOnly) {
    EXPECT_EQ(kv::Atof("0x1F"), 0.0);
    EXPECT_EQ(kv::Atof("inf"), 0.0);
    EXPECT_EQ(kv::Atof("-Infinity"), 0.0);
    EXPECT_EQ(kv::Atof("nan"), 0.0);
}

TEST(Atof, OverflowsToInfinityAndUnderflowsToZero) {
    EXPECT_EQ(kv::Atof("1e999"), HUGE_VAL);
    EXPECT_EQ(kv::Atof("-1e999"), -HUGE_VAL);
    EXPECT_EQ(kv::Atof("1e-999"), 0.0);
}

TEST(Atoi, ReadsTheIntegerThatATextBeginsWith) {
    EXPECT_EQ(kv::Atoi("  42 feet"), 42);
    EXPECT_EQ(kv::Atoi("-7.9"), -7);
    EXPECT_EQ(kv::Atoi("+045A"), 45);
    EXPECT_EQ(kv::Atoi("0x10"), 0);
    EXPECT_EQ(kv::Atoi("A12"), 0);
    EXPECT_EQ(kv::Atoi(""), 0);
    EXPECT_EQ(kv::Atoi("-"), 0);
}

TEST(Atoi, Saturates) {
    EXPECT_EQ(kv::Atoi("2147483647"), kLargest);
    EXPECT_EQ(kv::Atoi("2147483648"), kLargest);
    EXPECT_EQ(kv::Atoi("99999999999999999999999999"), kLargest);
    EXPECT_EQ(kv::Atoi("-2147483648"), kSmallest);
    EXPECT_EQ(kv::Atoi("-2147483649"), kSmallest);
    EXPECT_EQ(kv::Atoi("-99999999999999999999999999"), kSmallest);
}

TEST(ScanNumber, TellsWhereTheNumberEnds) {
    std::size_t end = 99;
    EXPECT_EQ(kv::ScanNumber(" 12a", &end), 12.0);
    EXPECT_EQ(end, 3u);
    EXPECT_EQ(kv::ScanNumber("1.2.3", &end), 1.2);
    EXPECT_EQ(end, 3u);
    EXPECT_EQ(kv::ScanNumber("7e", &end), 7.0);
    EXPECT_EQ(end, 1u);
    EXPECT_EQ(kv::ScanNumber("-3e-2 ", &end), -0.03);
    EXPECT_EQ(end, 5u);
}

TEST(ScanNumber, FindsNoNumberInOtherTexts) {
    for (const char* text : {"", "  ", "-", ".", "x1", "nan"}) {
        std::size_t end = 99;
        EXPECT_EQ(kv::ScanNumber(text, &end), std::nullopt) << text;
        EXPECT_EQ(end, 0u) << text;
    }
}

TEST(ScanLoneNumber, TakesATextThatHoldsNothingElse) {
    EXPECT_EQ(kv::ScanLoneNumber("12.5"), 12.5);
    EXPECT_EQ(kv::ScanLoneNumber(" -.5\t"), -0.5);
    EXPECT_EQ(kv::ScanLoneNumber("1e1 \n"), 10.0);
    for (const char* text : {"", " ", "-", "12a", "1.2.3", "1 2", "1e", "0x10", "inf", "a1"}) {
        EXPECT_EQ(kv::ScanLoneNumber(text), std::nullopt) << text;
    }
}

TEST(ScanInteger, TellsWhereTheNumberEnds) {
    std::size_t end = 99;
    EXPECT_EQ(kv::ScanInteger(" -29 30", &end), -29);
    EXPECT_EQ(end, 4u);
    EXPECT_EQ(kv::ScanInteger("30.5", &end), 30);
    EXPECT_EQ(end, 2u);
    EXPECT_EQ(kv::ScanInteger(".5", &end), std::nullopt);
    EXPECT_EQ(end, 0u);
}

TEST(FormatStream, WritesSixSignificantDigits) {
    EXPECT_EQ(kv::FormatStream(0.0), "0");
    EXPECT_EQ(kv::FormatStream(30.0), "30");
    EXPECT_EQ(kv::FormatStream(15.25), "15.25");
    EXPECT_EQ(kv::FormatStream(123456.4), "123456");
    EXPECT_EQ(kv::FormatStream(1234567.5), "1.23457e+006");
    EXPECT_EQ(kv::FormatStream(0.00001234), "1.234e-005");
    EXPECT_EQ(kv::FormatStream(-1e100), "-1e+100");
    EXPECT_EQ(kv::FormatStream(999999.5), "1e+006");
}

TEST(Formats, TellWhatHasNoEndAndWhatIsNoNumber) {
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    for (const auto format : {+[](double value) { return kv::FormatStream(value); },
                              +[](double value) { return kv::FormatFixed(value, 2); },
                              +[](double value) { return kv::FormatPrintf("%.3f", value); }}) {
        EXPECT_EQ(format(kEndless), "inf");
        EXPECT_EQ(format(-kEndless), "-inf");
        // 0 by 0 has a sign on this machine.
        EXPECT_EQ(format(std::nan("")), "nan");
        EXPECT_EQ(format(-std::nan("")), "nan");
    }
    EXPECT_EQ(kv::FormatG(-kEndless), "-INF");
    EXPECT_EQ(kv::FormatG(-std::nan("")), "NAN");
}

TEST(FormatG, WritesACapitalExponent) {
    EXPECT_EQ(kv::FormatG(12.5), "12.5");
    EXPECT_EQ(kv::FormatG(30.0), "30");
    EXPECT_EQ(kv::FormatG(1234567.0), "1.23457E+006");
}

TEST(FormatFixed, WritesThatManyDecimals) {
    EXPECT_EQ(kv::FormatFixed(12.5, 2), "12.50");
    EXPECT_EQ(kv::FormatFixed(-90.0, 6), "-90.000000");
    EXPECT_EQ(kv::FormatFixed(1e21, 0), "1000000000000000000000");
    EXPECT_EQ(kv::FormatFixed(2.5, 0), "2");
}

TEST(FormatPrintf, TakesOneConversionForADouble) {
    EXPECT_EQ(kv::FormatPrintf("%.3f", 12.5), "12.500");
    EXPECT_EQ(kv::FormatPrintf("%.0f", 30.0), "30");
    EXPECT_EQ(kv::FormatPrintf("%+8.2lf%%", 1.5), "   +1.50%");
    EXPECT_EQ(kv::FormatPrintf("Lat %f is out", 91.0), "Lat 91.000000 is out");
}

TEST(FormatPrintf, RefusesEveryOtherFormat) {
    for (const char* format : {"", "plain", "%d", "%s", "%f%f", "%", "%*f", "%n", "%.2", "%%f"}) {
        EXPECT_EQ(kv::FormatPrintf(format, 1.0), "") << format;
    }
}

TEST(Numbers, AreTheSameInEveryLocale) {
    const test::CommaLocale locale;
    if (!locale.Found()) GTEST_SKIP() << "no locale with a decimal comma";
    ASSERT_EQ(std::to_string(1.5), "1,500000");
    EXPECT_EQ(kv::Atof("1.5"), 1.5);
    EXPECT_EQ(kv::Atof("1,5"), 1.0);
    EXPECT_EQ(kv::FormatStream(1.5), "1.5");
    EXPECT_EQ(kv::FormatFixed(1234.5, 2), "1234.50");
}

TEST(ToInt, CutsAndSaturates) {
    EXPECT_EQ(kv::ToInt(2.9), 2);
    EXPECT_EQ(kv::ToInt(-2.9), -2);
    EXPECT_EQ(kv::ToInt(2147483647.0), kLargest);
    EXPECT_EQ(kv::ToInt(2147483646.9), kLargest - 1);
    EXPECT_EQ(kv::ToInt(2147483648.0), kLargest);
    EXPECT_EQ(kv::ToInt(-2147483648.9), kSmallest);
    EXPECT_EQ(kv::ToInt(HUGE_VAL), kLargest);
    EXPECT_EQ(kv::ToInt(-HUGE_VAL), kSmallest);
    EXPECT_EQ(kv::ToInt(std::nan("")), 0);
}

}  // namespace
