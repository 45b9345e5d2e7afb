#include "controls/mask_format.h"

#include <gtest/gtest.h>

#include "support/comma_locale.h"

namespace {

struct Row {
    const char* format;
    const char* text;
    const char* shown;
};

void Check(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(kv::FormatMasked(row.format, row.text), row.shown)
            << row.format << " of " << row.text;
    }
}

TEST(MaskFormat, AnEmptyFormatLeavesTheText) {
    Check({{"", "abc", "abc"}, {"", "12", "12"}});
}

TEST(MaskFormat, NumbersHaveTheDigitsThatTheFormatAsksFor) {
    Check({{"0", "12.6", "13"},
           {"0", "", ""},
           {"0.00", "12.6", "12.60"},
           {"#.##", "12.6", "12.6"},
           {"#.##", "0", "."},
           {"0.0#", "12", "12.0"},
           {"0000", "12", "0012"},
           {"#,##0", "1234567", "1,234,567"},
           {"#,##0", "12", "12"},
           {"#,##0.00", "1,234.5", "1,234.50"}});
}

TEST(MaskFormat, SectionsAreForPositiveNegativeAndZero) {
    Check({{"$#,##0.00;($#,##0.00)", "1234.5", "$1,234.50"},
           {"$#,##0.00;($#,##0.00)", "-1234.5", "($1,234.50)"},
           {"0.0", "-3", "-3.0"},
           {"0;-0;\"none\"", "0", "none"},
           {"0;;\"none\"", "-4", "-4"},
           {"0;-0;", "0", "0"}});
}

TEST(MaskFormat, PercentAndExponentScaleTheNumber) {
    Check({{"0%", "0.125", "13%"},
           {"0.0%", "0.125", "12.5%"},
           {"0.00E+00", "12345", "1.23E+04"},
           {"0.00E+00", "0.00012345", "1.23E-04"},
           {"0.00E-00", "12345", "1.23E04"},
           {"0.00E+00", "0", "0.00E+00"},
           {"0.0E+0", "9.99", "1.0E+1"},
           {"0.0E+0", "1e-310", "1.0E-310"},
           {"0.0", "0.25", "0.3"},
           {"0", "2.5", "3"},
           {"0;(0)", "-2.5", "(3)"}});
}

/// Of the digits that were written, and not of the number that the machine has for them.
TEST(MaskFormat, AHalfIsRoundedUp) {
    Check({{"0.00", "77.365", "77.37"},
           {"0.00", "1.005", "1.01"},
           {"0.00", "77.3649", "77.36"},
           {"0.00", "9.995", "10.00"},
           {"0.0", "99.95", "100.0"},
           {"#,##0.00", "999,999.995", "1,000,000.00"},
           {"0.00;(0.00)", "-77.365", "(77.37)"},
           {"0.0%", "0.77365", "77.4%"},
           {"0.00%", "0.0077365", "0.77%"},
           {"0%", "0.005", "1%"},
           {"0%", "0.0049", "0%"},
           {"0.00E+00", "77365", "7.74E+04"},
           {"0.00E+00", "1.125", "1.13E+00"},
           {"0.00E+00", "0.0099951", "1.00E-02"},
           {"0.00E+00", "99950", "1.00E+05"},
           {"0", "0.5", "1"},
           {"0", "0.49", "0"},
           {"0", "0.05", "0"},
           {"0.0", "0.04", "0.0"},
           {"0.000", "0.0005", "0.001"},
           {"0", "99.5", "100"},
           {"0.0", "1200", "1200.0"}});
}

TEST(MaskFormat, QuotedTextStandsForItself) {
    Check({{"0 \"ft\"", "12", "12 ft"}, {"\\#0", "7", "#7"}, {"\"0;0\"0", "7", "0;07"}});
}

TEST(MaskFormat, ATextThatIsNoNumberStaysAsItIs) {
    Check({{"0.00", "abc", "abc"},
           {"0.00", "12a", "12a"},
           {"0.00", "1e999", "1e999"},
           {"0%", "1e308", "1e308"}});
}

TEST(MaskFormat, AnotherLocaleChangesNothing) {
    const test::CommaLocale locale;
    Check({{"#,##0.00", "1234.5", "1,234.50"}});
}

TEST(MaskFormat, DatesAreShownByTheirParts) {
    Check({{"dd-mmm-yy", "7/4/2024", "04-Jul-24"},
           {"d/m/yyyy", "07/04/2024", "4/7/2024"},
           {"dddd, mmmm dd, yyyy", "2/29/2024", "Thursday, February 29, 2024"},
           {"ddd", "1/1/2000", "Sat"},
           {"dddd ddd", "9/1/2024", "Sunday Sun"},
           {"dddd ddd", "9/2/2024", "Monday Mon"},
           {"dddd ddd", "9/3/2024", "Tuesday Tue"},
           {"dddd ddd", "9/4/2024", "Wednesday Wed"},
           {"dddd ddd", "9/5/2024", "Thursday Thu"},
           {"dddd ddd", "9/6/2024", "Friday Fri"},
           {"dddd ddd", "9/7/2024", "Saturday Sat"},
           {"yyyy", "1/1/29", "2029"},
           {"yyyy", "1/1/30", "1930"},
           {"mm.dd", "12-31-1999", "12.31"}});
}

TEST(MaskFormat, EachMonthHasItsName) {
    Check({{"mmmm mmm", "1/1/2024", "January Jan"},
           {"mmmm mmm", "2/1/2024", "February Feb"},
           {"mmmm mmm", "3/1/2024", "March Mar"},
           {"mmmm mmm", "4/1/2024", "April Apr"},
           {"mmmm mmm", "5/1/2024", "May May"},
           {"mmmm mmm", "6/1/2024", "June Jun"},
           {"mmmm mmm", "7/1/2024", "July Jul"},
           {"mmmm mmm", "8/1/2024", "August Aug"},
           {"mmmm mmm", "9/1/2024", "September Sep"},
           {"mmmm mmm", "10/1/2024", "October Oct"},
           {"mmmm mmm", "11/1/2024", "November Nov"},
           {"mmmm mmm", "12/1/2024", "December Dec"}});
}

TEST(MaskFormat, TimesAreShownByTheirParts) {
    Check({{"hh:mm", "7:05:09", "07:05"},
           {"h:nn:ss", "7:05:09", "7:05:09"},
           {"hh:mm AM/PM", "19:05", "07:05 PM"},
           {"h AM/PM", "0:30", "12 AM"},
           {"h", "7:30 PM", "19"},
           {"h", "12:30 AM", "0"},
           {"mm/dd hh:mm", "7/4/2024 9:08", "07/04 09:08"}});
}

TEST(MaskFormat, NamedFormatsShowDatesAndTimes) {
    Check({{"c", "07/04/2024 19:05", "7/4/2024 7:05:00 PM"},
           {"c", "07/04/2024", "7/4/2024"},
           {"c", "19:05:06", "7:05:06 PM"},
           {"ddddd", "07/04/2024", "7/4/2024"},
           {"dddddd", "07/04/2024", "Thursday, July 04, 2024"},
           {"ttttt", "19:05", "7:05:00 PM"}});
}

TEST(MaskFormat, ATextThatIsNoDateStaysAsItIs) {
    Check({{"dd-mmm-yy", "2/30/2024", "2/30/2024"},
           {"dd-mmm-yy", "13/1/2024", "13/1/2024"},
           {"dd-mmm-yy", "19:05", "19:05"},
           {"dd-mmm-yy", "abc", "abc"},
           {"hh:mm", "25:00", "25:00"},
           {"hh:mm", "7:05 XM", "7:05 XM"},
           {"hh:mm", "13:05 PM", "13:05 PM"},
           {"hh:mm", "99999:1", "99999:1"},
           {"c", " ", " "}});
}

}  // namespace
