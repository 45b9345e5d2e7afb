#include "kvload/cell_value.h"

#include <gtest/gtest.h>

#include "kvload/refused.h"

namespace kvload {
namespace {

using kv::sample::CellKind;
using kv::sample::Column;

std::string As(CellKind kind, const std::string& text) {
    return CellValue(Column{"any", kind, 8}, text, "");
}

TEST(CellValues, OfTextAreTrimmedAndInUpperCase) {
    EXPECT_EQ(As(CellKind::kText, "  Shell "), "SHELL");
    EXPECT_EQ(As(CellKind::kText, "a\tb"), "A B");
    EXPECT_EQ(As(CellKind::kText, "   "), "");
}

TEST(CellValues, OfTextAreCountedInLetters) {
    EXPECT_EQ(As(CellKind::kText, "ÄÖÜßÄÖÜß"), "ÄÖÜßÄÖÜß");
    EXPECT_THROW(As(CellKind::kText, "123456789"), Refused);
    EXPECT_THROW(As(CellKind::kText, "a\x01"), Refused);
}

TEST(CellValues, OfNumbersAreRead) {
    EXPECT_EQ(As(CellKind::kWhole, "12"), "12");
    EXPECT_EQ(As(CellKind::kWhole, "12.0"), "12");
    EXPECT_EQ(As(CellKind::kWhole, "1,234,567"), "1234567");
    EXPECT_EQ(As(CellKind::kWhole, "-3"), "-3");
    EXPECT_EQ(As(CellKind::kNumber, "12.50"), "12.5");
    EXPECT_EQ(As(CellKind::kNumber, "1e3"), "1000");
    for (const char* bad : {"12.5", "x", "12 ft", "3000000000", "1,2", "nan", "inf", "0x10"})
        EXPECT_THROW(As(CellKind::kWhole, bad), Refused) << bad;
}

TEST(CellValues, OfAreaCodesLoseTheZeroFractionOfATableCalculation) {
    const Column code{"stcode", CellKind::kText, 5};
    EXPECT_EQ(CellValue(code, "43602.0", ""), "43602");
    EXPECT_EQ(CellValue(code, "gc", ""), "GC");
}

TEST(WholeAmounts, AreRoundedWhereTheyHaveAFraction) {
    EXPECT_EQ(WholeAmount("4,994.55"), "4995");
    EXPECT_EQ(WholeAmount("-0.6"), "-1");
    for (const char* kept : {"5760", "5760.00", "5,760", "", "soon", "12.5 ft"})
        EXPECT_EQ(WholeAmount(kept), kept);
}

TEST(CellValues, OfDatesAreReadWhereThereIsOneWay) {
    EXPECT_EQ(DayOf("1998-03-04", ""), "1998-03-04");
    EXPECT_EQ(DayOf("1998-03-04 00:00:00", ""), "1998-03-04");
    EXPECT_EQ(DayOf("1998-03-04T10:00:00Z", ""), "1998-03-04");
    EXPECT_EQ(DayOf("1998/3/4", ""), "1998-03-04");
    EXPECT_EQ(DayOf("19980304", ""), "1998-03-04");
    EXPECT_EQ(DayOf("04-MAR-1998", ""), "1998-03-04");
    EXPECT_EQ(DayOf("4 mar 1998", ""), "1998-03-04");
    for (const char* bad :
         {"03/04/1998", "1998-02-30", "1998-13-01", "1998", "04-MAX-1998", "soon"})
        EXPECT_THROW(DayOf(bad, ""), Refused) << bad;
    EXPECT_EQ(As(CellKind::kDate, "00000000"), "");
    EXPECT_EQ(As(CellKind::kDate, ""), "");
}

TEST(CellValues, OfDatesFollowTheirFormat) {
    EXPECT_EQ(DayOf("03/04/1998", "MM/DD/YYYY"), "1998-03-04");
    EXPECT_EQ(DayOf("3/4/1998 12:00:00 AM", "MM/DD/YYYY"), "1998-03-04");
    EXPECT_EQ(DayOf("03/04/1998", "DD/MM/YYYY"), "1998-04-03");
    EXPECT_EQ(DayOf("04-MAR-98", "DD-MON-YY"), "1998-03-04");
    EXPECT_EQ(DayOf("04-MAR-06", "DD-MON-YY"), "2006-03-04");
    EXPECT_THROW(DayOf("1998-03-04", "MM/DD/YYYY"), Refused);
    EXPECT_TRUE(IsDateFormat("mm/dd/yyyy"));
    EXPECT_FALSE(IsDateFormat("MM/YYYY"));
}

TEST(ApiNumbers, HaveTwelveDigitsInAnyForm) {
    EXPECT_EQ(ApiNumber("177114012300"), "177114012300");
    EXPECT_EQ(ApiNumber("1771140123"), "177114012300");
    EXPECT_EQ(ApiNumber("17711401230001"), "177114012300");
    EXPECT_EQ(ApiNumber("17-711-40123-00"), "177114012300");
    EXPECT_EQ(ApiNumber("177114012300.0"), "177114012300");
}

TEST(ApiNumbers, GetTheirLostZeroBack) {
    EXPECT_EQ(ApiNumber("42114012300"), "042114012300");
    EXPECT_EQ(ApiNumber("421140123"), "042114012300");
    EXPECT_EQ(ApiNumber("4211401230001"), "042114012300");
}

TEST(ApiNumbers, ThatAreNoneAreRefused) {
    for (const char* bad : {"1.77114E+11", "123", "1234567890123456", "17711X012300", "-"})
        EXPECT_THROW(ApiNumber(bad), Refused) << bad;
}

TEST(Degrees, KeepTenDecimals) {
    EXPECT_EQ(DegreesText(-90.5), "-90.5");
    EXPECT_EQ(DegreesText(28.0), "28");
    EXPECT_EQ(DegreesText(28.12345678901), "28.123456789");
    EXPECT_EQ(DegreesText(1e-11), "0");
}

}  // namespace
}  // namespace kvload
