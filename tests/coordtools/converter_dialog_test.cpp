#include "coordtools/converter_dialog.h"

#include "base/numbers.h"
#include "coordtools/converter_ids.h"
#include "coordtools/tool_fixture.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/proj_sel_ids.h"
#include "support/sqlite_file.h"
#include "window/controls/button.h"
#include "window/controls/combo_box.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace kv::converter;

namespace {

constexpr const char* kOneMissing = "Both Latitude and Longitude have to have values.";
constexpr const char* kOutOfRange = "The value of lat, lon converted from x, y are out of range.";
constexpr const char* kNoPair = "Both X and Y have to have values.";

/// X and Y as the driver gives them, as they are shown in feet.
std::vector<std::string> Feet(double lat, double lon, int projection) {
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, projection, 0, 1, 100.0F, 0.0F, 0.0F);
    return {kv::FormatFixed(x, 2), kv::FormatFixed(y, 2)};
}

/// Expected meters and kilometers are those of the converter, 0.3048 m to the foot, though feet are
/// US survey feet: 2 millionths short of what the driver gives in meters.
class Converter : public test::ToolTest<CKvConverterDialog> {
protected:
    std::vector<std::string> XY() { return {user->Text(kX), user->Text(kY)}; }
    std::vector<std::string> ToXYBoxes() { return {user->Text(kToX), user->Text(kToY)}; }
    void TypeXY(const char* x, const char* y) {
        user->Type(kX, x);
        user->Type(kY, y);
    }
    void TypeFrom(const char* x, const char* y) {
        user->Type(kFromX, x);
        user->Type(kFromY, y);
    }
    /// 28 degrees 30 minutes north, 91 degrees 15 minutes west.
    void TypePosition() {
        Type(kLatitude, "28", "30", "0");
        Type(kLongitude, "-91", "15", "0");
    }
    /// A person picks "More..." and Straight Mercator on the spheroid 300 there.
    void PickStraightMercator(int combo, const std::function<void(kv::User&)>& act = {}) {
        desktop.ExpectWindow("CKvGuiProjSel", [](kv::User& selection) {
            selection.Click(kv::proj_sel::kStraightMercator);
            selection.Select(kv::proj_sel::kList, "Bessel");
            selection.Click(IDOK);
        });
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [act](kv::User& zone) {
            if (act) act(zone);
            zone.Click(IDOK);
        });
        user->Select(combo, "More...");
    }
    static void GivePoint(kv::User& zone) {
        zone.Click(kv::utm_zone::kUserSpecified);
        zone.Type(kv::utm_zone::kLat, "28");
        zone.Type(kv::utm_zone::kLon, "-91");
    }
};

// The start.

TEST_F(Converter, OpensInDegreesToXY) {
    EXPECT_TRUE(user->Checked(kToXY));
    EXPECT_FALSE(user->Checked(kToLatLon));
    EXPECT_EQ(user->Text(kConvert), "<-- Convert");
    EXPECT_EQ(user->Text(kConvertXY), "Convert -->");
    EXPECT_TRUE(ReadOnly(kX));
    EXPECT_TRUE(ReadOnly(kY));
    EXPECT_FALSE(ReadOnly(kLatitude));
    EXPECT_FALSE(ReadOnly(kLongitude));
    EXPECT_FALSE(ReadOnly(kFromX));
    EXPECT_FALSE(ReadOnly(kFromY));
    EXPECT_TRUE(ReadOnly(kToX));
    EXPECT_TRUE(ReadOnly(kToY));
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("", "", ""));
    EXPECT_FALSE(user->Visible(kNad27));
    EXPECT_FALSE(user->Visible(kNad83));
}

TEST_F(Converter, TheListsOfUnitsSayWhichFootItIs) {
    for (const int id : {kUnit, kFromUnit, kToUnit}) {
        EXPECT_EQ(tool.GetDlgItem(id)->m_hWnd->ToolTip(),
                  "Feet are US survey feet (1200/3937 m), as the coordinates are computed in. For "
                  "meters and kilometers they are multiplied by 0.3048 m, which is 2 millionths "
                  "less: 6.5 m of northing in the Gulf.");
    }
}

TEST_F(Converter, MetersAreShortOfTheDrivers) {
    TypePosition();
    user->Select(kUnit, "meter");
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(28.5, -91.25, &x, &y, 115, 1, 1, 100.0F, 0.0F, 0.0F);
    EXPECT_NEAR(y - kv::Atof(user->Text(kY)), 6.31, 0.01);
    EXPECT_NEAR(x - kv::Atof(user->Text(kX)), 1.34, 0.01);
}

TEST_F(Converter, SortsItsLists) {
    for (const int id : {kUnit, kFromUnit, kToUnit}) {
        EXPECT_THAT(user->Rows(id), ElementsAre("feet", "km", "meter", "mile"));
        EXPECT_EQ(user->Text(id), "feet");
    }
    EXPECT_THAT(user->Rows(kFormat), ElementsAre("d/m/s", "degree"));
    EXPECT_EQ(user->Text(kFormat), "d/m/s");
}

TEST_F(Converter, BeginsWithTheProjection115Everywhere) {
    for (const int id : {kProjection, kFromProjection, kToProjection}) {
        EXPECT_EQ(user->Text(id), "115 UTM");
        EXPECT_THAT(user->Rows(id), SizeIs(8));
    }
}

// Latitude and longitude to X/Y.

TEST_F(Converter, ConvertsNothingToNothing) {
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(Converter, ConvertsAPositionToFeet) {
    // On the central meridian of zone 15 lies the false easting of 500,000 m.
    Type(kLatitude, "0", "0", "0");
    Type(kLongitude, "-93", "0", "0");
    user->Click(kConvert);
    EXPECT_EQ(user->Text(kX), "1640416.67");
    EXPECT_EQ(kv::Atof(user->Text(kY)), 0.0);

    TypePosition();
    user->Click(kConvert);
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28.5, -91.25, 115)));
    // Shown once more, with two decimals of seconds.
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "0.00"));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-91", "15", "0.00"));
}

TEST_F(Converter, OneAngleAloneIsTold) {
    Type(kLatitude, "28", "30", "0");
    desktop.ExpectMessage(kOneMissing);
    user->Click(kConvert);
    Type(kLatitude, "", "", "");
    Type(kLongitude, "-91", "15", "0");
    desktop.ExpectMessage(kOneMissing);
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("", ""));
}

TEST_F(Converter, EmptyAnglesEmptyXY) {
    TypePosition();
    user->Click(kConvert);
    Type(kLatitude, "", "", "");
    Type(kLongitude, "", "", "");
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("", ""));
}

TEST_F(Converter, ShowsNoXYForAPositionThatTheProjectionCannotShow) {
    test::RunOnSqliteFile(zones,
                          "insert into gulf_mexico_zone_code values (9999, 'Unheard of', "
                          "'misc_other', null)");
    TypePosition();
    user->Click(kConvert);
    desktop.ExpectWindow("CKvGuiProjSel", [](kv::User& selection) {
        selection.Click(kv::proj_sel::kMiscOther);
        selection.Select(kv::proj_sel::kList, "Zone: 9999: Unheard of");
        selection.Click(IDOK);
    });
    user->Select(kProjection, "More...");
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "0.00"));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

// X/Y to latitude and longitude.

TEST_F(Converter, ADirectionTurnsTheBoxesAround) {
    TypePosition();
    user->Click(kToLatLon);
    EXPECT_EQ(user->Text(kConvert), "Convert -->");
    EXPECT_FALSE(ReadOnly(kX));
    EXPECT_FALSE(ReadOnly(kY));
    EXPECT_TRUE(ReadOnly(kLatitude));
    EXPECT_TRUE(ReadOnly(kLongitude));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "0"));
    EXPECT_THAT(XY(), ElementsAre("", ""));
    user->Click(kToXY);
    EXPECT_EQ(user->Text(kConvert), "<-- Convert");
    EXPECT_TRUE(ReadOnly(kX));
    EXPECT_FALSE(ReadOnly(kLatitude));
}

TEST_F(Converter, ConvertsFeetToAPosition) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    const auto point = Feet(28.504236, -91.25, 115);
    TypeXY(point[0].c_str(), point[1].c_str());
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-91", "15", "0.00"));
    EXPECT_THAT(XY(), testing::ElementsAreArray(point));
}

TEST_F(Converter, XAloneIsToldInTheWordsForAngles) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    user->Type(kX, "1000");
    desktop.ExpectMessage(kOneMissing);
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("1000", ""));
}

TEST_F(Converter, XAloneKeepsWhatWasReadOfIt) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    user->Type(kX, "1000");
    desktop.ExpectMessage(kOneMissing);
    user->Select(kUnit, "meter");
    EXPECT_THAT(XY(), ElementsAre("304.80", "0.00"));
}

TEST_F(Converter, LeavingXAndYConvertsNothing) {
    user->Click(kToLatLon);
    TypeXY("1000", "2000");
    user->Focus(kFromX);
    EXPECT_THAT(XY(), ElementsAre("1000", "2000"));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(Converter, EmptyXYEmptyTheAngles) {
    TypePosition();
    user->Click(kConvert);
    user->Click(kToLatLon);
    TypeXY("", "");
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude), ElementsAre("", "", ""));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("", "", ""));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(Converter, ReadsNoXYUntilItHasAUnit) {
    user->Click(kToLatLon);
    TypeXY("1000", "2000");
    desktop.ExpectMessage(kOutOfRange);
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("", ""));
    TypeXY("1000", "2000");
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("1000.00", "2000.00"));
}

TEST_F(Converter, XOf0IsAValueAnd100000000IsNone) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("0", "0");
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("0.00", "0.00"));
    TypeXY("100000000", "0");
    desktop.ExpectMessage(kOutOfRange);
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("", "0.00"));
}

TEST_F(Converter, WhatIsNoNumberReadsAs0) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("abc", "12.5e1x");
    user->Click(kConvert);
    EXPECT_THAT(XY(), ElementsAre("0.00", "125.00"));
}

TEST_F(Converter, APositionOutOfRangeIsToldAndLeavesTheFocusOnX) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("1e12", "1e12");
    desktop.ExpectMessage(kOutOfRange);
    user->Click(kConvert);
    EXPECT_EQ(test::FocusedId(), kX);
    EXPECT_THAT(Texts(kLatitude), ElementsAre("", "", ""));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("", "", ""));
    EXPECT_THAT(XY(), ElementsAre("1000000000000.00", "1000000000000.00"));
}

// The unit.

TEST_F(Converter, AnotherUnitShowsTheSamePosition) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("1000", "2000");
    user->Select(kUnit, "meter");
    EXPECT_THAT(XY(), ElementsAre("304.80", "609.60"));
    user->Select(kUnit, "km");
    EXPECT_THAT(XY(), ElementsAre("0.30", "0.61"));
}

TEST_F(Converter, ReadsTheBoxesInTheUnitThatTheyWereShownIn) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    user->Select(kUnit, "meter");
    TypeXY("304.8", "609.6");
    user->Select(kUnit, "feet");
    EXPECT_THAT(XY(), ElementsAre("1000.00", "2000.00"));
    user->Select(kUnit, "mile");
    EXPECT_THAT(XY(), ElementsAre("0.19", "0.38"));
}

TEST_F(Converter, ShowsAPositionInKilometres) {
    TypePosition();
    user->Click(kConvert);
    const double feet = kv::Atof(user->Text(kX));
    user->Select(kUnit, "km");
    EXPECT_EQ(user->Text(kX), kv::FormatFixed(feet * 0.0003048, 2));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "0.00"));
}

TEST_F(Converter, AnotherUnitTellsAFaultTwice) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("1e12", "1e12");
    desktop.ExpectMessage(kOutOfRange);
    desktop.ExpectMessage(kOutOfRange);
    user->Select(kUnit, "meter");
    EXPECT_EQ(desktop.ScenesLeft(), 0);
}

// The format.

TEST_F(Converter, AnotherFormatShowsTheSameAngles) {
    Type(kLatitude, "28", "30", "15.25");
    Type(kLongitude, "-91", "15", "0");
    user->Select(kFormat, "degree");
    EXPECT_EQ(user->Text(kLatitude.degrees.edit), "28.504236");
    EXPECT_EQ(user->Text(kLongitude.degrees.edit), "-91.250000");
    EXPECT_FALSE(user->Visible(kLatitude.minutes.edit));
    EXPECT_FALSE(user->Visible(kLongitude.seconds.spin));
    EXPECT_EQ(user->Text(kLatitude.degrees.label), "Degree.Degree");
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28 + 30 / 60.0 + 15.25 / 3600, -91.25, 115)));

    user->Select(kFormat, "d/m/s");
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "15.25"));
    EXPECT_TRUE(user->Visible(kLatitude.minutes.edit));
    EXPECT_EQ(user->Text(kLatitude.degrees.label), "D");
}

TEST_F(Converter, AnotherFormatIsTakenAlsoWhereNothingCanBeConverted) {
    Type(kLatitude, "28", "30", "0");
    desktop.ExpectMessage(kOneMissing);
    user->Select(kFormat, "degree");
    EXPECT_FALSE(user->Visible(kLatitude.minutes.edit));
    EXPECT_EQ(user->Text(kLatitude.degrees.label), "Degree.Degree");
}

TEST_F(Converter, APastedPositionFillsBothAnglesInEitherFormat) {
    user->Paste(kLatitude.minutes.edit, "28°30'15.25\"N 91°15'00\"W");
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "15.25"));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-91", "15", "0.00"));
    user->Select(kFormat, "degree");
    user->Paste(kLongitude.degrees.edit, "29.5, -90.125");
    EXPECT_EQ(user->Text(kLatitude.degrees.edit), "29.500000");
    EXPECT_EQ(user->Text(kLongitude.degrees.edit), "-90.125000");
}

// The projection.

TEST_F(Converter, AnotherProjectionConvertsAtOnce) {
    TypePosition();
    user->Select(kProjection, "116 UTM");
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28.5, -91.25, 116)));
    user->Select(kProjection, "3   Louisiana South");
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28.5, -91.25, 3)));
}

TEST_F(Converter, AnotherProjectionTakesXYAsTheyStand) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("1640416.67", "10000000");
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-93", "0", "0.00"));
    user->Select(kProjection, "116 UTM");
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-87", "0", "0.00"));
    EXPECT_THAT(XY(), ElementsAre("1640416.67", "10000000.00"));
}

TEST_F(Converter, StraightMercatorTakesThePositionItselfAsItsPoint) {
    TypePosition();
    PickStraightMercator(kProjection);
    EXPECT_EQ(user->Text(kProjection), "399 Straight Mercator");
    // The central meridian runs through it.
    EXPECT_EQ(kv::Atof(user->Text(kX)), 0.0);
}

TEST_F(Converter, StraightMercatorTakesTheUsersPoint) {
    Type(kLatitude, "28", "0", "0");
    Type(kLongitude, "-91", "0", "0");
    PickStraightMercator(kProjection, GivePoint);
    EXPECT_EQ(kv::Atof(user->Text(kX)), 0.0);
    TypePosition();
    user->Click(kConvert);
    CKvUtilLLdrv::SetRectLat(28.0);
    CKvUtilLLdrv::SetRectLon(-91.0);
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28.5, -91.25, 399)));
    EXPECT_LT(kv::Atof(user->Text(kX)), -10000.0);
}

TEST_F(Converter, StraightMercatorHasNoPointBeforeTheFirstResult) {
    tool.ResetToDefault();
    user->Click(kToLatLon);
    PickStraightMercator(kProjection);
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    TypeXY("1000", "2000");
    desktop.ExpectMessage(kOutOfRange);
    user->Click(kConvert);
}

TEST_F(Converter, StraightMercatorTakesThePreviousResultAsItsPoint) {
    TypePosition();
    user->Click(kConvert);
    user->Click(kToLatLon);
    TypeXY("0", "0");
    // Its point is the result of before, on whose meridian X is 0.
    PickStraightMercator(kProjection);
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-91", "15", "0.00"));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("0", "0", "0.00"));
}

// X/Y to X/Y.

TEST_F(Converter, BringsXYFromOneProjectionToAnother) {
    const auto from = Feet(28.5, -90.25, 115);
    TypeFrom(from[0].c_str(), from[1].c_str());
    user->Select(kToProjection, "116 UTM");
    const auto to = Feet(28.5, -90.25, 116);
    EXPECT_NEAR(kv::Atof(user->Text(kToX)), kv::Atof(to[0]), 0.02);
    EXPECT_NEAR(kv::Atof(user->Text(kToY)), kv::Atof(to[1]), 0.02);
    user->Select(kFromProjection, "116 UTM");
    EXPECT_THAT(ToXYBoxes(), testing::ElementsAreArray(from));
    EXPECT_THAT(XY(), ElementsAre("", ""));
}

TEST_F(Converter, BringsXYFromOneUnitToAnother) {
    TypeFrom("1000", "2000");
    user->Click(kConvertXY);
    EXPECT_THAT(ToXYBoxes(), ElementsAre("1000.00", "2000.00"));
    user->Select(kToUnit, "meter");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("304.80", "609.60"));
    user->Select(kFromUnit, "km");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("1000000.00", "2000000.00"));
    user->Select(kToUnit, "km");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("1000.00", "2000.00"));
}

TEST_F(Converter, WithoutBothXAndYEachChangeOfTheLowerGroupIsTold) {
    const auto told = [this] {
        desktop.ExpectMessage(kNoPair);
        return kNoPair;
    };
    told();
    user->Click(kConvertXY);
    told();
    user->Select(kFromUnit, "km");
    told();
    user->Select(kToUnit, "km");
    told();
    user->Select(kFromProjection, "116 UTM");
    told();
    user->Select(kToProjection, "116 UTM");
    user->Type(kFromX, "1000");
    told();
    user->Click(kConvertXY);
    EXPECT_THAT(ToXYBoxes(), ElementsAre("", ""));
}

TEST_F(Converter, APairThatIsNowhereOnEarthLeavesTheOutput) {
    TypeFrom("1000", "2000");
    user->Click(kConvertXY);
    TypeFrom("1e12", "1e12");
    desktop.ExpectMessage("The input X/Y pair is not valid");
    user->Click(kConvertXY);
    EXPECT_THAT(ToXYBoxes(), ElementsAre("1000.00", "2000.00"));
}

TEST_F(Converter, APairThatTheOtherProjectionCannotShowHasNoOutput) {
    test::RunOnSqliteFile(zones,
                          "insert into gulf_mexico_zone_code values (9999, 'Unheard of', "
                          "'misc_other', null)");
    TypeFrom("1000", "2000");
    user->Click(kConvertXY);
    desktop.ExpectWindow("CKvGuiProjSel", [](kv::User& selection) {
        selection.Click(kv::proj_sel::kMiscOther);
        selection.Select(kv::proj_sel::kList, "Zone: 9999: Unheard of");
        selection.Click(IDOK);
    });
    user->Select(kToProjection, "More...");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("", ""));
}

TEST_F(Converter, TheLowerGroupNeverSetsTheReferencePoint) {
    CKvUtilLLdrv::SetRectLat(28.0);
    CKvUtilLLdrv::SetRectLon(-91.0);
    const auto from = Feet(28.5, -91.25, 115);
    const auto to = Feet(28.5, -91.25, 399);
    TypeFrom(from[0].c_str(), from[1].c_str());
    // The user's point in its own selection changes nothing.
    PickStraightMercator(kToProjection, [](kv::User& zone) {
        zone.Click(kv::utm_zone::kUserSpecified);
        zone.Type(kv::utm_zone::kLat, "20");
        zone.Type(kv::utm_zone::kLon, "-80");
    });
    EXPECT_NEAR(kv::Atof(user->Text(kToX)), kv::Atof(to[0]), 0.02);
    EXPECT_NEAR(kv::Atof(user->Text(kToY)), kv::Atof(to[1]), 0.02);

    // The upper group leaves one.
    Type(kLatitude, "10", "0", "0");
    Type(kLongitude, "-91", "15", "0");
    user->Click(kConvert);
    user->Click(kConvertXY);
    EXPECT_NEAR(kv::Atof(user->Text(kToX)), 0.0, 0.02);
}

// Its life.

TEST_F(Converter, ResetEmptiesTheUpperGroupAndLeavesTheRest) {
    TypePosition();
    user->Click(kToLatLon);
    user->Click(kToXY);
    user->Select(kProjection, "116 UTM");
    user->Select(kUnit, "km");
    user->Select(kFormat, "degree");
    TypeFrom("1000", "2000");
    user->Select(kToUnit, "meter");
    user->Click(kToLatLon);
    tool.ResetToDefault();
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_EQ(user->Text(kLatitude.degrees.edit), "");
    EXPECT_EQ(user->Text(kLongitude.degrees.edit), "");
    EXPECT_EQ(user->Text(kUnit), "feet");
    EXPECT_EQ(user->Text(kProjection), "115 UTM");
    EXPECT_EQ(user->Text(kFormat), "degree");
    EXPECT_TRUE(user->Checked(kToLatLon));
    EXPECT_EQ(user->Text(kFromX), "1000");
    EXPECT_EQ(user->Text(kToUnit), "meter");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("304.80", "609.60"));
}

TEST_F(Converter, ResetGoesBackToTheProjection115InTheArithmetic) {
    user->Select(kProjection, "116 UTM");
    tool.ResetToDefault();
    TypePosition();
    user->Click(kConvert);
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28.5, -91.25, 115)));
}

// Enter.

TEST_F(Converter, EnterInTheUpperBoxesConverts) {
    TypePosition();
    user->Key(0, "Enter");
    const auto point = Feet(28.5, -91.25, 115);
    EXPECT_THAT(XY(), testing::ElementsAreArray(point));
    EXPECT_EQ(test::FocusedId(), kLongitude.seconds.edit);
    user->Click(kToLatLon);
    user->Type(kY, "0");
    user->Key(kX, "Enter");
    EXPECT_NE(Texts(kLatitude)[0], "28");
    for (const int id : {kUnit, kFormat, kToLatLon}) {
        user->Type(kY, point[1]);
        user->Key(id, "Enter");
        EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "0.00")) << id;
        user->Type(kY, "0");
        user->Key(0, "Enter");
    }
    EXPECT_TRUE(tool.IsWindowVisible());
}

TEST_F(Converter, EnterInTheLowerBoxesConvertsThere) {
    TypeFrom("1000", "2000");
    user->Key(0, "Enter");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("1000.00", "2000.00"));
    for (const int id : {kFromProjection, kFromUnit, kFromX, kToX, kToUnit}) {
        user->Type(kFromY, "3000");
        user->Key(id, "Enter");
        EXPECT_THAT(ToXYBoxes(), ElementsAre("1000.00", "3000.00")) << id;
        user->Type(kFromY, "2000");
        user->Key(0, "Enter");
    }
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_TRUE(tool.IsWindowVisible());
}

TEST_F(Converter, TheButtonThatEnterPressesFollowsTheFocus) {
    const auto isDefault = [this](int id) {
        return tool.Control<CButton>(id).GetButtonStyle() == BS_DEFPUSHBUTTON;
    };
    EXPECT_TRUE(isDefault(kConvert));
    user->Click(kFromX);
    EXPECT_TRUE(isDefault(kConvertXY));
    EXPECT_FALSE(isDefault(kConvert));
    user->Click(kUnit);
    EXPECT_TRUE(isDefault(kConvert));
    EXPECT_FALSE(isDefault(kConvertXY));
}

TEST_F(Converter, EnterInAnOpenListIsTheLists) {
    TypeFrom("1000", "2000");
    user->Drop(kFromUnit);
    user->Key(0, "Enter");
    EXPECT_THAT(ToXYBoxes(), ElementsAre("", ""));
    EXPECT_FALSE(tool.Control<CComboBox>(kFromUnit).GetDroppedState());
}

TEST_F(Converter, EnterOnOkHidesIt) {
    user->Focus(IDOK);
    user->Key(0, "Enter");
    EXPECT_FALSE(tool.IsWindowVisible());
}

TEST_F(Converter, OkHidesItAndItsValuesLiveOn) {
    TypePosition();
    user->Click(kConvert);
    const auto shown = XY();
    user->Click(IDOK);
    EXPECT_FALSE(tool.IsWindowVisible());
    tool.ShowWindow(SW_SHOW);
    EXPECT_TRUE(user->Open());
    EXPECT_EQ(XY(), shown);
    user->Key(0, "Escape");
    EXPECT_FALSE(tool.IsWindowVisible());
    EXPECT_NE(tool.m_hWnd, nullptr);
}

TEST_F(Converter, ClosedItLetsItsBoxesGo) {
    EXPECT_TRUE(Held(kLatitude));
    EXPECT_TRUE(Held(kLongitude));
    tool.CloseDlg();
    EXPECT_FALSE(Held(kLatitude));
    EXPECT_FALSE(Held(kLongitude));
}

TEST_F(Converter, APositionWithOneAngleOutOfRangeIsTold) {
    for (const auto& [lat, lon] : {std::pair{28.5, 190.0}, {95.0, -91.25}}) {
        desktop.ExpectMessage(kOutOfRange);
        tool.SetPosition(lat, lon);
        EXPECT_EQ(desktop.ScenesLeft(), 0) << lat << " " << lon;
        EXPECT_EQ(test::FocusedId(), kX);
    }
}

TEST_F(Converter, XAndYNowhereOnEarthAreNotValid) {
    TypeFrom("1900000", "101234567");
    desktop.ExpectMessage("The input X/Y pair is not valid");
    user->Click(kConvertXY);
    EXPECT_THAT(ToXYBoxes(), ElementsAre("", ""));

    tool.ResetToDefault();
    user->Click(kToLatLon);
    TypeXY("1900000", "101234567");
    desktop.ExpectMessage(kOutOfRange);
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude), ElementsAre("", "", ""));
}

TEST_F(Converter, IsClosedAndCreatedAnew) {
    TypePosition();
    user->Click(kConvert);
    user.reset();
    tool.CloseDlg();
    EXPECT_TRUE(tool.DestroyWindow());
    ASSERT_TRUE(tool.Create(kTemplate));
    EXPECT_EQ(tool.DlgItemText(kX), "");
    EXPECT_EQ(tool.DlgItemText(kProjection), "115 UTM");
}

TEST_F(Converter, TakesAPositionFromTheHostInBothForms) {
    tool.SetPosition(28.5, -91.25);
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "30", "0.00"));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-91", "15", "0.00"));
    EXPECT_THAT(XY(), testing::ElementsAreArray(Feet(28.5, -91.25, 115)));

    user->Click(kToLatLon);
    user->Select(kUnit, "meter");
    tool.SetPosition(27.0, -93.0);
    EXPECT_EQ(user->Text(kX), kv::FormatFixed(1640416.666666 * 0.3048, 2));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-93", "0", "0.00"));
    user->Click(kConvert);
    EXPECT_THAT(Texts(kLatitude), ElementsAre("27", "0", "0.00"));
}

}  // namespace
