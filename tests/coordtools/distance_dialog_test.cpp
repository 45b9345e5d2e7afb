#include "coordtools/distance_dialog.h"

#include <geodesic.h>

#include <cmath>

#include "base/numbers.h"
#include "coordtools/distance_ids.h"
#include "coordtools/tool_fixture.h"
#include "frame/kvcom/driver_calls.h"
#include "frame/kvcom/util_lldrv.h"
#include "window/controls/combo_box.h"
#include "window/stacking.h"

using testing::Each;
using testing::ElementsAre;
using namespace kv::distance_dialog;

namespace {

constexpr int kClosedMode = 3;
constexpr KVEventMode kHostsMode{7};
constexpr double kMetersPerFoot = 1200.0 / 3937.0;

/// The tool of a host, which may look into it.
class Measuring : public CKvDistanceDialog {
public:
    explicit Measuring(CWnd* parent) : CKvDistanceDialog(&mode2, &open, parent) {
        SetModePtr(&mode);
    }

    int open = 1;
    int mode2 = kHostsMode;
    KVEventMode mode = kHostsMode;

    using CKvDistanceDialog::m_dEndLat;
    using CKvDistanceDialog::m_dMapDist;
    using CKvDistanceDialog::m_dMapEndX;
    using CKvDistanceDialog::m_dMapOffX;
    using CKvDistanceDialog::m_dMapStartX;
    using CKvDistanceDialog::m_dStartLat;
    using CKvDistanceDialog::m_dUserDist;
    using CKvDistanceDialog::m_dUserEndX;
    using CKvDistanceDialog::m_dUserOffX;
    using CKvDistanceDialog::m_nMapProj;
    using CKvDistanceDialog::m_nUserProj;
    using CKvDistanceDialog::m_strMapUnit;
    using CKvDistanceDialog::m_strUnit;
};

class Distance : public test::ToolTest<Measuring> {
protected:
    /// Distance and offsets.
    std::vector<std::string> Lengths() {
        return {user->Text(kDistance), user->Text(kOffsetX), user->Text(kOffsetY)};
    }
    std::vector<std::string> Start() { return {user->Text(kStartX), user->Text(kStartY)}; }
    std::vector<std::string> End() { return {user->Text(kEndX), user->Text(kEndY)}; }
    std::vector<std::string> AllBoxes() {
        std::vector<std::string> all = Lengths();
        for (const auto& more : {Start(), End(), Texts(kStartLatitude), Texts(kStartLongitude),
                                 Texts(kEndLatitude), Texts(kEndLongitude)})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }
    std::vector<std::string> PlaneBoxes() {
        std::vector<std::string> all = AllBoxes();
        all.resize(7);
        return all;
    }
    /// A line of 3000 by 4000 on a map of UTM zone 15.
    void Feed(const char* unit = "feet") {
        tool.DialogUpdateText(1'000'000.0, 9'000'000.0, 1'003'000.0, 9'004'000.0, 115, unit);
    }
    template <typename Act>
    static std::pair<long, long> CallsOf(const Act& act) {
        const kv::coord::DriverCalls before = kv::coord::CountedDriverCalls();
        act();
        const kv::coord::DriverCalls& now = kv::coord::CountedDriverCalls();
        return {now.toXY - before.toXY, now.toAngles - before.toAngles};
    }
    void ExpectTold() {
        EXPECT_FALSE(tool.IsWindowVisible());
        EXPECT_EQ(tool.open, 0);
        EXPECT_EQ(tool.mode2, kClosedMode);
        EXPECT_EQ(static_cast<int>(tool.mode), kClosedMode);
    }
};

TEST_F(Distance, OpensEmptyInFeetAndInDegreesMinutesAndSeconds) {
    EXPECT_THAT(AllBoxes(), Each(""));
    EXPECT_EQ(user->Text(kMapProjection), "");
    EXPECT_THAT(user->Rows(kUnit), ElementsAre("feet", "km", "meter", "mile"));
    EXPECT_EQ(user->Text(kUnit), "feet");
    EXPECT_THAT(user->Rows(kFormat), ElementsAre("d/m/s", "degree"));
    EXPECT_EQ(user->Text(kFormat), "d/m/s");
    for (const int id :
         {kDistance, kOffsetX, kOffsetY, kStartX, kStartY, kEndX, kEndY, kMapProjection})
        EXPECT_TRUE(ReadOnly(id)) << id;
    for (const auto& ids : {kStartLatitude, kStartLongitude, kEndLatitude, kEndLongitude}) {
        EXPECT_TRUE(ReadOnly(ids));
        EXPECT_TRUE(user->Visible(ids.seconds.spin));
    }
    for (const int id : {int{IDCANCEL}, kUnused[0], kUnused[1], kUnused[2], kUnused[3]})
        EXPECT_FALSE(user->Visible(id)) << id;
    EXPECT_EQ(tool.m_strUnit, "feet");
}

TEST_F(Distance, ATriangleOfThreeFourFiveInEveryUnit) {
    Feed();
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "3000.00", "4000.00"));
    EXPECT_THAT(Start(), ElementsAre("1000000.00", "9000000.00"));
    EXPECT_THAT(End(), ElementsAre("1003000.00", "9004000.00"));
    user->Select(kUnit, "meter");
    EXPECT_THAT(Lengths(), ElementsAre("1524.00", "914.40", "1219.20"));
    EXPECT_THAT(Start(), ElementsAre("304800.00", "2743200.00"));
    user->Select(kUnit, "mile");
    EXPECT_THAT(Lengths(), ElementsAre("0.95", "0.57", "0.76"));
    EXPECT_THAT(End(), ElementsAre("189.96", "1705.30"));
    user->Select(kUnit, "km");
    EXPECT_THAT(Lengths(), ElementsAre("1.52", "0.91", "1.22"));
    user->Select(kUnit, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "3000.00", "4000.00"));
}

TEST_F(Distance, AMapInMetersIsShownInEveryUnit) {
    tool.DialogUpdateText(304'800.0, 2'743'200.0, 305'714.4, 2'744'419.2, 115, "meter");
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "3000.00", "4000.00"));
    EXPECT_THAT(Start(), ElementsAre("1000000.00", "9000000.00"));
    user->Select(kUnit, "meter");
    EXPECT_THAT(Lengths(), ElementsAre("1524.00", "914.40", "1219.20"));
    EXPECT_THAT(End(), ElementsAre("305714.40", "2744419.20"));
    user->Select(kUnit, "mile");
    EXPECT_THAT(Lengths(), ElementsAre("0.95", "0.57", "0.76"));
    user->Select(kUnit, "km");
    EXPECT_THAT(Lengths(), ElementsAre("1.52", "0.91", "1.22"));
}

TEST_F(Distance, AnotherUnitChangesWhatIsShownAndNothingElse) {
    Feed();
    for (const char* unit : {"meter", "mile", "km", "meter"})
        user->Select(kUnit, unit);
    EXPECT_EQ(tool.m_dUserDist, 5000.0);
    EXPECT_EQ(user->Text(kDistance), "1524.00");
    EXPECT_EQ(tool.m_strUnit, "meter");
}

TEST_F(Distance, OffsetsHaveTheirSigns) {
    tool.DialogUpdateText(1'003'000.0, 9'004'000.0, 1'000'000.0, 9'000'000.0, 115, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "-3000.00", "-4000.00"));
}

TEST_F(Distance, WithoutASecondPointTheStartAloneIsShown) {
    tool.DialogUpdateText(1'000'000.0, 9'000'000.0, 0.0, 0.0, 115, "feet");
    EXPECT_THAT(Lengths(), Each(""));
    EXPECT_THAT(Start(), ElementsAre("1000000.00", "9000000.00"));
    EXPECT_THAT(End(), Each(""));
    EXPECT_NE(Texts(kStartLatitude)[0], "");
    EXPECT_THAT(Texts(kEndLatitude), ElementsAre("0", "0", "0.00"));
    EXPECT_THAT(Texts(kEndLongitude), ElementsAre("0", "0", "0.00"));
}

TEST_F(Distance, AnEndWhoseXIsZeroHasItsOffsets) {
    tool.DialogUpdateText(1'000.0, 9'000'000.0, 0.0, 9'004'000.0, 115, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("4123.11", "-1000.00", "4000.00"));
    EXPECT_THAT(End(), ElementsAre("", "9004000.00"));
    tool.DialogUpdateText(0.0, 9'000'000.0, 0.0, 9'004'000.0, 115, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("4000.00", "", "4000.00"));
    EXPECT_THAT(Start(), ElementsAre("", "9000000.00"));
    tool.DialogUpdateText(0.0, 9'004'000.0, 0.0, 9'004'000.0, 115, "feet");
    EXPECT_THAT(Lengths(), Each("")) << "a line of no length, with no X at its end";
}

TEST_F(Distance, AnEndWhoseYIsZeroHasNoAngles) {
    tool.DialogUpdateText(1'000'000.0, 3'000.0, 1'004'000.0, 0.0, 115, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "4000.00", "-3000.00"));
    EXPECT_THAT(End(), ElementsAre("1004000.00", ""));
    EXPECT_THAT(Texts(kEndLatitude), ElementsAre("0", "0", "0.00"));
    EXPECT_THAT(Texts(kEndLongitude), ElementsAre("0", "0", "0.00"));
    // Nor is it projected.
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_THAT(End(), ElementsAre("1004000.00", ""));
    EXPECT_EQ(user->Text(kDistance), "5000.00");
}

TEST_F(Distance, ALineOfNoLengthIsShownAsOne) {
    tool.DialogUpdateText(1'000'000.0, 9'000'000.0, 1'000'000.0, 9'000'000.0, 115, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("0.00", "0.00", "0.00"));
}

TEST_F(Distance, TheFirstLineGivesItsProjectionToTheUsers) {
    EXPECT_EQ(CallsOf([&] { Feed(); }), std::pair(0L, 2L));
    EXPECT_EQ(user->Text(kUserProjection), "115 UTM");
    EXPECT_EQ(user->Text(kMapProjection), "115");
    tool.DialogUpdateText(1'000'000.0, 10'000.0, 1'003'000.0, 14'000.0, 1, "feet");
    EXPECT_EQ(user->Text(kUserProjection), "115 UTM");
    EXPECT_EQ(user->Text(kMapProjection), "1");
    EXPECT_NE(user->Text(kDistance), "5000.00");
}

TEST_F(Distance, AUsersProjectionOfZeroBecomesTheMapsAndIsShown) {
    tool.ResetToDefault(0, "feet");
    EXPECT_EQ(user->Text(kMapProjection), "0");
    Feed();
    EXPECT_EQ(tool.m_nUserProj, 115);
    EXPECT_EQ(user->Text(kUserProjection), "115 UTM");
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "3000.00", "4000.00"));
}

TEST_F(Distance, AnotherProjectionMeasuresOnItsOwnPlane) {
    Feed();
    EXPECT_EQ(CallsOf([&] { user->Select(kUserProjection, "116 UTM"); }), std::pair(2L, 0L));
    // Far from its meridian the scale of a zone grows.
    EXPECT_GT(tool.m_dUserDist, 5000.0);
    EXPECT_LT(tool.m_dUserDist, 5100.0);
    EXPECT_EQ(user->Text(kDistance), kv::FormatFixed(tool.m_dUserDist, 2));
    EXPECT_NEAR(tool.m_dUserDist, std::hypot(tool.m_dUserOffX, kv::Atof(user->Text(kOffsetY))),
                0.01);
    EXPECT_EQ(tool.m_dMapDist, 5000.0);
    EXPECT_EQ(CallsOf([&] { user->Select(kUserProjection, "115 UTM"); }), std::pair(0L, 0L));
    EXPECT_EQ(tool.m_dUserDist, 5000.0);
    EXPECT_EQ(tool.m_dUserEndX, 1'003'000.0);
    EXPECT_THAT(Start(), ElementsAre("1000000.00", "9000000.00"));
}

TEST_F(Distance, AnotherProjectionWithoutASecondPointShowsTheStartInIt) {
    tool.DialogUpdateText(1'000'000.0, 9'000'000.0, 0.0, 0.0, 115, "feet");
    EXPECT_EQ(CallsOf([&] { user->Select(kUserProjection, "116 UTM"); }), std::pair(1L, 0L));
    EXPECT_NE(Start()[0], "1000000.00");
    EXPECT_THAT(Lengths(), Each(""));
    EXPECT_THAT(End(), Each(""));
    EXPECT_EQ(
        CallsOf([&] { tool.DialogUpdateText(1'000'000.0, 9'000'000.0, 0.0, 0.0, 115, "feet"); }),
        std::pair(1L, 1L));
    EXPECT_THAT(Lengths(), Each(""));
}

TEST_F(Distance, AChoiceAheadOfTheFirstLineShowsNothing) {
    user->Select(kUserProjection, "3   Louisiana South");
    user->Select(kUnit, "meter");
    user->Select(kFormat, "degree");
    EXPECT_THAT(AllBoxes(), Each(""));
    tool.ResetToDefault(115, "feet");
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_THAT(AllBoxes(), Each(""));
    user->Select(kUserProjection, "115 UTM");
    EXPECT_THAT(AllBoxes(), Each(""));
}

TEST_F(Distance, WithoutAProjectionTheMapsOwnLineIsShown) {
    tool.DialogUpdateText(1'000.0, 2'000.0, 4'000.0, 6'000.0, -1, "feet");
    EXPECT_THAT(Lengths(), ElementsAre("5000.00", "3000.00", "4000.00"));
    EXPECT_THAT(Texts(kStartLatitude), Each(""));
    EXPECT_THAT(Texts(kEndLongitude), Each(""));
    user->Select(kUserProjection, "115 UTM");
    EXPECT_THAT(PlaneBoxes(), Each(""));
}

TEST_F(Distance, AnEndOffTheEarthHasNoAnglesAndNoOtherPlane) {
    tool.DialogUpdateText(1'000'000.0, 9'000'000.0, 101'234'567.0, 9'000'000.0, 115, "feet");
    EXPECT_EQ(user->Text(kDistance), "100234567.00");
    EXPECT_THAT(Texts(kEndLatitude), Each(""));
    user->Select(kUserProjection, "116 UTM");
    EXPECT_THAT(Lengths(), Each(""));
    EXPECT_THAT(End(), Each(""));
    EXPECT_NE(Start()[0], "");
}

TEST_F(Distance, WhereTheHostHasNoAnswerOfTheDriverNothingIsShown) {
    constexpr double kNoXY = CKvUtilLLdrv::kNoXY;
    tool.DialogUpdateText(1'000'000.0, 9'000'000.0, kNoXY, kNoXY, 115, "feet");
    EXPECT_THAT(Lengths(), Each(""));
    EXPECT_THAT(End(), Each(""));
    EXPECT_THAT(Start(), ElementsAre("1000000.00", "9000000.00"));
}

TEST_F(Distance, AnglesAreShownInEitherFormat) {
    tool.DialogUpdateText(2'000'000.0, 0.0, 2'963'503.91, 254'759.80, 1, "feet");
    EXPECT_THAT(Texts(kStartLatitude), ElementsAre("27", "50", "0.00"));
    EXPECT_THAT(Texts(kStartLongitude), ElementsAre("-99", "0", "0.00"));
    EXPECT_THAT(Texts(kEndLatitude), ElementsAre("28", "30", "0.00"));
    EXPECT_THAT(Texts(kEndLongitude), ElementsAre("-96", "0", "0.00"));
    user->Select(kFormat, "degree");
    EXPECT_EQ(user->Text(kStartLatitude.degrees.edit), "27.833333");
    EXPECT_EQ(user->Text(kStartLongitude.degrees.edit), "-99.000000");
    EXPECT_EQ(user->Text(kEndLatitude.degrees.edit), "28.500000");
    EXPECT_EQ(user->Text(kEndLongitude.degrees.edit), "-96.000000");
    for (const auto& ids : {kStartLatitude, kStartLongitude, kEndLatitude, kEndLongitude})
        EXPECT_FALSE(user->Visible(ids.minutes.edit));
    user->Select(kFormat, "d/m/s");
    EXPECT_THAT(Texts(kEndLatitude), ElementsAre("28", "30", "0.00"));
    EXPECT_TRUE(user->Visible(kEndLongitude.seconds.label));
}

TEST_F(Distance, MakesNoMoreCallsOfTheDriverThanItNeeds) {
    EXPECT_EQ(CallsOf([&] { Feed(); }), std::pair(0L, 2L));
    user->Select(kUserProjection, "116 UTM");
    EXPECT_EQ(CallsOf([&] { Feed(); }), std::pair(2L, 2L));
    EXPECT_EQ(CallsOf([&] { user->Select(kUnit, "km"); }), std::pair(0L, 0L));
    EXPECT_EQ(CallsOf([&] { user->Select(kFormat, "degree"); }), std::pair(0L, 0L));
}

/// A line about the middle of a zone, and how far the scale of the zone may be from 1 there.
struct ZoneMiddle {
    int projection;
    double lat;
    double lon;
    double scale;
    double tolerance;
};

TEST_F(Distance, InTheMiddleOfAZoneItIsTheGeodesicsTimesTheZonesScale) {
    // The spheroid of Clarke 1866.
    constexpr double kA = 6378206.4;
    constexpr double kB = 6356583.8;
    geod_geodesic earth;
    geod_init(&earth, kA, (kA - kB) / kA);
    constexpr ZoneMiddle kMiddles[] = {
        {115, 28.0, -93.0, 0.9996, 1e-6},  {116, 27.0, -87.0, 0.9996, 1e-6},
        {3, 30.0, -91.333, 0.99993, 5e-5}, {1, 29.0, -99.0, 0.99992, 8e-5},
        {2, 27.0, -98.5, 0.99992, 8e-5},
    };
    for (const auto& [projection, lat, lon, scale, tolerance] : kMiddles) {
        double geodesic = 0.0;
        geod_inverse(&earth, lat, lon, lat + 0.03, lon + 0.04, &geodesic, nullptr, nullptr);
        double ends[4];
        for (int end = 0; end < 2; ++end) {
            CKvUtilLLdrv::LLdrv(lat + end * 0.03, lon + end * 0.04, &ends[end * 2],
                                &ends[end * 2 + 1], projection, 0, 1, 100.0F, 0.0F, 0.0F);
        }
        tool.ResetToDefault(projection, "feet");
        tool.DialogUpdateText(ends[0], ends[1], ends[2], ends[3], projection, "feet");
        const double plane = kv::Atof(user->Text(kDistance)) * kMetersPerFoot;
        EXPECT_NEAR(plane / geodesic, scale, tolerance) << projection;
    }
}

TEST_F(Distance, ResetToDefaultBeginsWithAnotherMap) {
    Feed("meter");
    user->Select(kFormat, "degree");
    tool.ResetToDefault(3, "mile");
    EXPECT_THAT(PlaneBoxes(), Each(""));
    for (const auto& ids : {kStartLatitude, kStartLongitude, kEndLatitude, kEndLongitude})
        EXPECT_EQ(user->Text(ids.degrees.edit), "");
    EXPECT_EQ(user->Text(kMapProjection), "3");
    EXPECT_EQ(user->Text(kUserProjection), "3   Louisiana South");
    EXPECT_EQ(user->Text(kUnit), "mile");
    EXPECT_EQ(user->Text(kFormat), "d/m/s");
    EXPECT_FALSE(user->Visible(kEndLatitude.minutes.edit)) << "they hear of it with the next line";
    EXPECT_EQ(tool.m_nUserProj, 3);
    EXPECT_EQ(tool.m_nMapProj, 3);
    for (const double each : {tool.m_dMapDist, tool.m_dUserDist, tool.m_dMapOffX, tool.m_dUserOffX,
                              tool.m_dMapStartX, tool.m_dMapEndX, tool.m_dUserEndX})
        EXPECT_EQ(each, 0.0);
    EXPECT_EQ(tool.m_dStartLat, 1000.0);
    EXPECT_EQ(tool.m_dEndLat, 1000.0);
    EXPECT_EQ(tool.m_strMapUnit, "meter");
    Feed();
    EXPECT_TRUE(user->Visible(kEndLatitude.minutes.edit));
}

TEST_F(Distance, ResetToDefaultPicksTheUnitThatBeginsWithTheText) {
    tool.ResetToDefault(115, "mi");
    EXPECT_EQ(user->Text(kUnit), "mile");
    EXPECT_EQ(tool.m_strUnit, "mi");
    tool.ResetToDefault(115, "yard");
    EXPECT_EQ(user->Text(kUnit), "mile");
}

TEST_F(Distance, WritesAnglesAsTold) {
    const std::string degree = "\xB0";
    const std::pair<double, std::string> kAngles[] = {
        {29.5125, "29" + degree + "30'45.00\""},  {-8.05, "-08" + degree + "03'00.00\""},
        {0.0, "00" + degree + "00'00.00\""},      {-0.5, "-00" + degree + "30'00.00\""},
        {123.25, "123" + degree + "15'00.00\""},  {9.0, "09" + degree + "00'00.00\""},
        {10.0, "10" + degree + "00'00.00\""},     {1000.0, "1000" + degree + "00'00.00\""},
        {28.16875, "28" + degree + "10'07.50\""},
    };
    for (const auto& [angle, text] : kAngles)
        EXPECT_EQ(tool.FormatToDMS(angle), text) << angle;
}

TEST_F(Distance, SecondsThatRoundUpAreWrittenAsSixty) {
    EXPECT_EQ(tool.FormatToDMS(28.0 + 59.999 / 3600.0),
              "28\xB0"
              "00'60.00\"");
    EXPECT_EQ(tool.FormatToDMS(28.0 + 9.999 / 3600.0),
              "28\xB0"
              "00'010.00\"");
}

TEST_F(Distance, OkHidesItAndTellsTheHost) {
    Feed();
    user->Click(IDOK);
    ExpectTold();
    EXPECT_EQ(tool.DlgItemText(kDistance), "5000.00");
}

TEST_F(Distance, EscapeDoesWhatOkDoes) {
    user->Key(0, "Escape");
    ExpectTold();
}

TEST_F(Distance, TheWindowsButtonDoesWhatOkDoes) {
    kv::input::CloseWindow(*tool.m_hWnd);
    ASSERT_TRUE(tool.m_hWnd);
    ExpectTold();
}

TEST_F(Distance, TheFlagAndTheSecondModeAreToldTogetherOrNeither) {
    int open = 1;
    int mode = 7;
    CKvDistanceDialog noFlag(&mode, nullptr);
    CKvDistanceDialog noMode(nullptr, &open);
    CKvDistanceDialog neither(nullptr, nullptr);
    for (CKvDistanceDialog* each : {&noFlag, &noMode, &neither}) {
        ASSERT_TRUE(each->Create(kTemplate));
        each->OnOK();
        EXPECT_FALSE(each->IsWindowVisible());
        each->CloseDlg();
        each->DestroyWindow();
    }
    EXPECT_EQ(open, 1);
    EXPECT_EQ(mode, 7);
}

TEST_F(Distance, AFeedBringsItToTheTopAndLeavesTheKeyboard) {
    CKvDistanceDialog other(nullptr, nullptr);
    ASSERT_TRUE(other.Create(kTemplate));
    const kv::Node* focus = kv::WindowSystem::Get().Focus();
    EXPECT_FALSE(kv::IsOnTop(*tool.m_hWnd));
    Feed();
    EXPECT_TRUE(kv::IsOnTop(*tool.m_hWnd));
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), focus);
    tool.OnOK();
    Feed();
    EXPECT_FALSE(tool.IsWindowVisible());
    other.CloseDlg();
    other.DestroyWindow();
}

TEST_F(Distance, WhatComesBehindItsClosingChangesNothing) {
    Feed();
    for (const auto& ids : {kStartLatitude, kStartLongitude, kEndLatitude, kEndLongitude})
        EXPECT_TRUE(Held(ids));
    const auto shown = AllBoxes();
    tool.CloseDlg();
    for (const auto& ids : {kStartLatitude, kStartLongitude, kEndLatitude, kEndLongitude})
        EXPECT_FALSE(Held(ids));
    EXPECT_EQ(CallsOf([&] { Feed("meter"); }), std::pair(0L, 0L));
    user->Select(kFormat, "degree");
    user->Select(kUserProjection, "3   Louisiana South");
    tool.ResetToDefault(3, "km");
    EXPECT_EQ(AllBoxes(), shown);
    user.reset();
    tool.DestroyWindow();
    Feed();
    EXPECT_EQ(tool.m_hWnd, nullptr);
}

}  // namespace
