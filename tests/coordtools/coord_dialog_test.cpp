#include "coordtools/coord_dialog.h"

#include "base/numbers.h"
#include "coordtools/coord_ids.h"
#include "coordtools/tool_fixture.h"
#include "frame/kvcom/driver_calls.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/proj_sel_ids.h"
#include "window/controls/combo_box.h"
#include "window/stacking.h"

using testing::Each;
using testing::ElementsAre;
using namespace kv::coord_dialog;

namespace {

/// What the readout is to leave with its host.
constexpr int kClosedMode = 3;
constexpr KVEventMode kHostsMode{7};

/// The readout of a host, which may look into it.
class Readout : public CKvCoordDialog {
public:
    explicit Readout(CWnd* parent) : CKvCoordDialog(&open, parent) { SetModePtr(&mode); }

    int open = 1;
    KVEventMode mode = kHostsMode;

    using CKvCoordDialog::m_dLat;
    using CKvCoordDialog::m_dLon;
    using CKvCoordDialog::m_dMapX;
    using CKvCoordDialog::m_dMapY;
    using CKvCoordDialog::m_dUserX;
    using CKvCoordDialog::m_dUserY;
    using CKvCoordDialog::m_nMapProj;
    using CKvCoordDialog::m_nUserProj;
    using CKvCoordDialog::m_strMapUnit;
    using CKvCoordDialog::m_strUnit;
};

class CoordReadout : public test::ToolTest<Readout> {
protected:
    /// X, Y and the angles' boxes as they are shown.
    std::vector<std::string> XY() { return {user->Text(kX), user->Text(kY)}; }
    std::vector<std::string> AllBoxes() {
        std::vector<std::string> all = XY();
        for (const auto& ids : {kLatitude, kLongitude}) {
            for (const std::string& text : Texts(ids))
                all.push_back(text);
        }
        return all;
    }
    /// A position in the middle of the Gulf, on a map of UTM zone 15 in feet.
    void Feed() { tool.DialogUpdateText(2'212'345.678, 10'346'789.012, 115, "feet"); }
    /// The driver's calls that an action makes: to X and Y, to angles.
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
        EXPECT_EQ(static_cast<int>(tool.mode), kClosedMode);
    }
};

TEST_F(CoordReadout, OpensEmptyInFeetAndInDegreesMinutesAndSeconds) {
    EXPECT_THAT(AllBoxes(), Each(""));
    EXPECT_EQ(user->Text(kMapProjection), "");
    EXPECT_EQ(user->Text(kUserProjection), "");
    EXPECT_THAT(user->Rows(kUnit), ElementsAre("feet", "meter"));
    EXPECT_EQ(user->Text(kUnit), "feet");
    EXPECT_THAT(user->Rows(kFormat), ElementsAre("d/m/s", "degree.degree"));
    EXPECT_EQ(user->Text(kFormat), "d/m/s");
    EXPECT_TRUE(user->Visible(kLatitude.minutes.edit));
    for (const int id : {kX, kY, kMapProjection})
        EXPECT_TRUE(ReadOnly(id)) << id;
    EXPECT_TRUE(ReadOnly(kLatitude));
    EXPECT_TRUE(ReadOnly(kLongitude));
    for (const int id : {int{IDCANCEL}, kUnused[0], kUnused[1]})
        EXPECT_FALSE(user->Visible(id)) << id;
    EXPECT_EQ(tool.m_nUserProj, -1);
    EXPECT_EQ(tool.m_dLat, 1000.0);
    EXPECT_EQ(tool.m_strMapUnit, "feet");
}

TEST_F(CoordReadout, TheFirstPositionGivesItsProjectionToTheUsers) {
    EXPECT_EQ(CallsOf([&] { Feed(); }), std::pair(0L, 1L));
    EXPECT_EQ(user->Text(kUserProjection), "115 UTM");
    EXPECT_EQ(user->Text(kMapProjection), "115");
    EXPECT_THAT(XY(), ElementsAre("2212345.68", "10346789.01"));
    // The next map has another projection; what is shown stays in the user's.
    EXPECT_EQ(CallsOf([&] { tool.DialogUpdateText(2'963'503.91, 254'759.80, 1, "feet"); }),
              std::pair(1L, 1L));
    EXPECT_EQ(user->Text(kUserProjection), "115 UTM");
    EXPECT_EQ(user->Text(kMapProjection), "1");
    EXPECT_EQ(tool.m_nUserProj, 115);
    EXPECT_EQ(tool.m_dMapX, 2'963'503.91);
    EXPECT_NE(tool.m_dUserX, tool.m_dMapX);
}

/// Positions that books tell in both forms.
struct KnownPosition {
    const char* name;
    int projection;
    const char* unit;
    double x;
    double y;
    std::vector<std::string> latitude;
    std::vector<std::string> longitude;
};

void PrintTo(const KnownPosition& known, std::ostream* out) {
    *out << known.name;
}

class APositionOfBooks : public CoordReadout, public testing::WithParamInterface<KnownPosition> {};

TEST_P(APositionOfBooks, IsShownInItsAngles) {
    const KnownPosition& known = GetParam();
    // Of Straight Mercator alone.
    CKvUtilLLdrv::SetRectLat(0.0);
    CKvUtilLLdrv::SetRectLon(180.0);
    tool.DialogUpdateText(known.x, known.y, known.projection, known.unit);
    EXPECT_EQ(Texts(kLatitude), known.latitude);
    EXPECT_EQ(Texts(kLongitude), known.longitude);
    EXPECT_EQ(user->Text(kMapProjection), std::to_string(known.projection));
}

INSTANTIATE_TEST_SUITE_P(
    , APositionOfBooks,
    testing::Values(
        // The example of the two-parallel conic in the EPSG's guidance note 7-2.
        KnownPosition{"TexasSouthCentral",
                      1,
                      "feet",
                      2'963'503.91,
                      254'759.80,
                      {"28", "30", "0.00"},
                      {"-96", "0", "0.00"}},
        // Where their zones begin, by the Coast and Geodetic Survey's constants.
        KnownPosition{
            "TexasSouth", 2, "feet", 2'000'000.0, 0.0, {"25", "40", "0.00"}, {"-98", "30", "0.00"}},
        KnownPosition{"LouisianaSouth",
                      3,
                      "feet",
                      2'000'000.0,
                      0.0,
                      {"28", "40", "0.00"},
                      {"-91", "20", "0.00"}},
        KnownPosition{
            "TheEquator", 115, "meter", 500'000.0, 0.0, {"0", "0", "0.00"}, {"-93", "0", "0.00"}},
        // J. P. Snyder, "Map Projections: A Working Manual", pages 269 and 267.
        KnownPosition{"Zone18OfClarkesSpheroid",
                      118,
                      "meter",
                      627'106.5,
                      4'484'124.4,
                      {"40", "30", "0.00"},
                      {"-73", "30", "0.00"}},
        KnownPosition{"StraightMercator",
                      199,
                      "meter",
                      11'688'673.7,
                      4'139'145.6,
                      {"35", "0", "0.00"},
                      {"-75", "0", "0.00"}}),
    [](const auto& each) { return each.param.name; });

TEST_F(CoordReadout, ACoordinateOfExactlyZeroIsNotShown) {
    tool.DialogUpdateText(0.0, 10'000'000.0, 115, "feet");
    EXPECT_THAT(XY(), ElementsAre("", "10000000.00"));
    tool.DialogUpdateText(2'000'000.0, 0.0, 115, "feet");
    EXPECT_THAT(XY(), ElementsAre("2000000.00", ""));
    tool.DialogUpdateText(0.001, -0.0, 115, "feet");
    EXPECT_THAT(XY(), ElementsAre("0.00", ""));
}

TEST_F(CoordReadout, AMapInMetersIsShownInEitherUnit) {
    tool.DialogUpdateText(3048.0, 304'800.0, 115, "meter");
    EXPECT_THAT(XY(), ElementsAre("10000.00", "1000000.00"));
    user->Select(kUnit, "meter");
    EXPECT_THAT(XY(), ElementsAre("3048.00", "304800.00"));
    EXPECT_EQ(tool.m_strUnit, "meter");
}

TEST_F(CoordReadout, AMapInFeetIsShownInEitherUnit) {
    tool.DialogUpdateText(10'000.0, 1'000'000.0, 115, "feet");
    user->Select(kUnit, "meter");
    EXPECT_THAT(XY(), ElementsAre("3048.00", "304800.00"));
    tool.DialogUpdateText(20'000.0, 1'000'000.0, 115, "feet");
    EXPECT_THAT(XY(), ElementsAre("6096.00", "304800.00")) << "the unit stays";
}

TEST_F(CoordReadout, AnotherChangeOfUnitBeginsWithTheMapsOwnValue) {
    tool.DialogUpdateText(10'000.0, 1'000'000.0, 115, "feet");
    for (const char* unit : {"meter", "feet", "meter", "meter"})
        user->Select(kUnit, unit);
    EXPECT_THAT(XY(), ElementsAre("3048.00", "304800.00"));
    EXPECT_EQ(tool.m_dUserX, 10'000.0);
}

TEST_F(CoordReadout, UnitsThatAHostAddsHaveTheirFactors) {
    for (const char* unit : {"mile", "km", "yard"})
        tool.Control<CComboBox>(kUnit).AddString(unit);
    tool.DialogUpdateText(528'000'000.0, 10'000.0, 115, "feet");
    user->Select(kUnit, "mile");
    EXPECT_THAT(XY(), ElementsAre("100000.03", "1.89"));
    user->Select(kUnit, "km");
    EXPECT_THAT(XY(), ElementsAre("160934.40", "3.05"));
    user->Select(kUnit, "yard");
    EXPECT_THAT(XY(), ElementsAre("528000000.00", "10000.00"));
    tool.DialogUpdateText(304'800.0, 3048.0, 115, "meter");
    user->Select(kUnit, "km");
    EXPECT_THAT(XY(), ElementsAre("304.80", "3.05"));
}

TEST_F(CoordReadout, AnyOtherUnitOfTheMapIsMetersToTheDriverAndFeetToTheList) {
    tool.DialogUpdateText(500'000.0, 3'000'000.0, 115, "yards");
    const std::vector<std::string> angles = AllBoxes();
    EXPECT_THAT(XY(), ElementsAre("500000.00", "3000000.00"));
    tool.DialogUpdateText(500'000.0, 3'000'000.0, 115, "meter");
    EXPECT_TRUE(std::equal(angles.begin() + 2, angles.end(), AllBoxes().begin() + 2));
    EXPECT_THAT(XY(), ElementsAre("1640419.95", "9842519.69"));
}

TEST_F(CoordReadout, AnglesAreShownInEitherFormat) {
    tool.DialogUpdateText(2'963'503.91, 254'759.80, 1, "feet");
    user->Select(kFormat, "degree.degree");
    EXPECT_EQ(user->Text(kLatitude.degrees.edit), "28.500000");
    EXPECT_EQ(user->Text(kLongitude.degrees.edit), "-96.000000");
    EXPECT_EQ(user->Text(kLatitude.degrees.label), "Degree.Degree");
    EXPECT_FALSE(user->Visible(kLatitude.minutes.edit));
    EXPECT_FALSE(user->Visible(kLongitude.seconds.spin));
    tool.DialogUpdateText(2'000'000.0, 0.0, 3, "feet");
    EXPECT_EQ(user->Text(kLatitude.degrees.edit), "28.666667") << "the format stays";
    user->Select(kFormat, "d/m/s");
    EXPECT_TRUE(user->Visible(kLatitude.minutes.edit));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("28", "40", "0.00"));
    EXPECT_THAT(Texts(kLongitude), ElementsAre("-91", "20", "0.00"));
}

TEST_F(CoordReadout, AnotherProjectionShowsTheSamePositionInIt) {
    tool.DialogUpdateText(2'963'503.91, 254'759.80, 1, "feet");
    const auto angles = Texts(kLatitude);
    EXPECT_EQ(CallsOf([&] { user->Select(kUserProjection, "115 UTM"); }), std::pair(1L, 0L));
    double x = 0.0;
    double y = 0.0;
    CKvUtilLLdrv::LLdrv(28.5, -96.0, &x, &y, 115, 0, 1, 100.0F, 0.0F, 0.0F);
    EXPECT_NEAR(tool.m_dUserX, x, 0.01);
    EXPECT_NEAR(tool.m_dUserY, y, 0.01);
    EXPECT_EQ(XY()[0], kv::FormatFixed(tool.m_dUserX, 2));
    EXPECT_EQ(Texts(kLatitude), angles);
    EXPECT_EQ(tool.m_dMapX, 2'963'503.91);
}

TEST_F(CoordReadout, TheMapsOwnProjectionGivesItsExactValuesBack) {
    Feed();
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_NE(tool.m_dUserX, 2'212'345.678);
    EXPECT_EQ(CallsOf([&] { user->Select(kUserProjection, "115 UTM"); }), std::pair(0L, 0L));
    EXPECT_EQ(tool.m_dUserX, 2'212'345.678);
    EXPECT_EQ(tool.m_dUserY, 10'346'789.012);
    EXPECT_THAT(XY(), ElementsAre("2212345.68", "10346789.01"));
}

TEST_F(CoordReadout, AChoiceAheadOfTheFirstPositionShowsNothing) {
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_THAT(AllBoxes(), Each(""));
    user->Select(kUnit, "meter");
    user->Select(kFormat, "degree.degree");
    EXPECT_THAT(AllBoxes(), Each(""));
    // It is in force when the first one comes.
    tool.DialogUpdateText(500'000.0, 0.0, 115, "meter");
    EXPECT_EQ(user->Text(kUserProjection), "3   Louisiana South");
    EXPECT_EQ(user->Text(kLongitude.degrees.edit), "-93.000000");
    EXPECT_NE(XY()[1], "") << "the equator is no zero of that zone";
}

TEST_F(CoordReadout, AChoiceBehindResetToDefaultShowsNothing) {
    tool.ResetToDefault(115, "feet");
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_THAT(AllBoxes(), Each(""));
    user->Select(kUserProjection, "115 UTM");
    EXPECT_THAT(AllBoxes(), Each(""));
}

TEST_F(CoordReadout, WithoutAProjectionThereAreNoAngles) {
    tool.DialogUpdateText(1000.0, 2000.0, -1, "feet");
    EXPECT_THAT(AllBoxes(), ElementsAre("1000.00", "2000.00", "", "", "", "", "", ""));
    EXPECT_EQ(user->Text(kMapProjection), "-1");
    user->Select(kUserProjection, "115 UTM");
    EXPECT_THAT(AllBoxes(), Each(""));
    user->Select(kUnit, "meter");
    EXPECT_THAT(AllBoxes(), Each(""));
}

TEST_F(CoordReadout, AUsersProjectionThatIsNoneShowsNothing) {
    tool.ResetToDefault(0, "feet");
    Feed();
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_NE(Texts(kLatitude)[0], "");
    EXPECT_EQ(tool.m_nUserProj, 0);
}

TEST_F(CoordReadout, APositionOffTheEarthHasNoAngles) {
    tool.DialogUpdateText(101'234'567.0, 10'346'789.0, 115, "feet");
    EXPECT_THAT(AllBoxes(), ElementsAre("101234567.00", "10346789.00", "", "", "", "", "", ""));
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_THAT(XY(), ElementsAre("", ""));
}

TEST_F(CoordReadout, AnglesOfZeroAndZeroAreNotProjected) {
    CKvUtilLLdrv::SetRectLat(0.0);
    CKvUtilLLdrv::SetRectLon(0.0);
    tool.DialogUpdateText(0.0, 0.0, 199, "feet");
    ASSERT_EQ(tool.m_dLat, 0.0);
    ASSERT_EQ(tool.m_dLon, 0.0);
    EXPECT_EQ(CallsOf([&] { user->Select(kUserProjection, "115 UTM"); }), std::pair(0L, 0L));
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_THAT(Texts(kLatitude), ElementsAre("0", "0", "0.00"));
}

TEST_F(CoordReadout, ThePickBehindMoreIsTaken) {
    Feed();
    desktop.ExpectWindow("CKvGuiProjSel", [](kv::User& at) {
        at.Click(kv::proj_sel::kStateLambert);
        at.Select(kv::proj_sel::kList, "Zone: 3: Louisiana South");
        at.Click(IDOK);
    });
    user->Select(kUserProjection, "More...");
    EXPECT_EQ(tool.m_nUserProj, 3);
    EXPECT_EQ(user->Text(kUserProjection), "3   Louisiana South");
}

TEST_F(CoordReadout, MakesNoMoreCallsOfTheDriverThanItNeeds) {
    tool.ResetToDefault(115, "feet");
    EXPECT_EQ(CallsOf([&] { Feed(); }), std::pair(0L, 1L));
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_EQ(CallsOf([&] { Feed(); }), std::pair(1L, 1L));
    EXPECT_EQ(CallsOf([&] { user->Select(kUnit, "meter"); }), std::pair(0L, 0L));
    EXPECT_EQ(CallsOf([&] { user->Select(kFormat, "degree.degree"); }), std::pair(0L, 0L));
}

TEST_F(CoordReadout, ResetToDefaultBeginsWithAnotherMap) {
    tool.DialogUpdateText(3048.0, 304'800.0, 115, "meter");
    user->Select(kFormat, "degree.degree");
    tool.ResetToDefault(3, "meter");
    EXPECT_THAT(XY(), ElementsAre("", ""));
    EXPECT_EQ(user->Text(kLatitude.degrees.edit), "");
    EXPECT_EQ(user->Text(kLongitude.degrees.edit), "");
    EXPECT_EQ(user->Text(kMapProjection), "3");
    EXPECT_EQ(user->Text(kUserProjection), "3   Louisiana South");
    EXPECT_EQ(user->Text(kUnit), "meter");
    EXPECT_EQ(user->Text(kFormat), "d/m/s");
    EXPECT_EQ(tool.m_nUserProj, 3);
    EXPECT_EQ(tool.m_nMapProj, 3);
    for (const double each : {tool.m_dUserX, tool.m_dUserY, tool.m_dMapX, tool.m_dMapY})
        EXPECT_EQ(each, 0.0);
    for (const double each : {tool.m_dLat, tool.m_dLon})
        EXPECT_EQ(each, 1000.0);
    EXPECT_EQ(tool.m_strUnit, "meter");
}

TEST_F(CoordReadout, ResetToDefaultLeavesTheMapsUnit) {
    tool.DialogUpdateText(3048.0, 304'800.0, 115, "meter");
    tool.ResetToDefault(3, "feet");
    EXPECT_EQ(tool.m_strMapUnit, "meter");
}

TEST_F(CoordReadout, TheAnglesHearOfTheFormatThatResetToDefaultPicksWithTheNextPosition) {
    user->Select(kFormat, "degree.degree");
    tool.ResetToDefault(115, "feet");
    EXPECT_EQ(user->Text(kFormat), "d/m/s");
    EXPECT_FALSE(user->Visible(kLatitude.minutes.edit));
    Feed();
    EXPECT_TRUE(user->Visible(kLatitude.minutes.edit));
    EXPECT_EQ(user->Text(kLatitude.degrees.label), "D");
}

TEST_F(CoordReadout, ResetToDefaultPicksTheUnitThatBeginsWithTheText) {
    tool.ResetToDefault(115, "met");
    EXPECT_EQ(user->Text(kUnit), "meter");
    EXPECT_EQ(tool.m_strUnit, "met");
    tool.ResetToDefault(115, "mile");
    EXPECT_EQ(user->Text(kUnit), "meter") << "there is none of that name";
    Feed();
    EXPECT_EQ(tool.m_strUnit, "meter");
}

TEST_F(CoordReadout, OkHidesItAndTellsTheHost) {
    Feed();
    user->Click(IDOK);
    ExpectTold();
    EXPECT_EQ(tool.DlgItemText(kX), "2212345.68") << "its values live on";
}

TEST_F(CoordReadout, EscapeDoesWhatOkDoes) {
    user->Key(0, "Escape");
    ExpectTold();
}

TEST_F(CoordReadout, TheWindowsButtonDoesWhatOkDoes) {
    kv::input::CloseWindow(*tool.m_hWnd);
    ASSERT_TRUE(tool.m_hWnd);
    ExpectTold();
}

TEST_F(CoordReadout, WithoutTheHostsPointersItIsHiddenAlone) {
    CKvCoordDialog bare(nullptr);
    ASSERT_TRUE(bare.Create(kTemplate));
    bare.DialogUpdateText(1000.0, 2000.0, 115, "feet");
    bare.OnOK();
    EXPECT_FALSE(bare.IsWindowVisible());
    EXPECT_TRUE(bare.m_hWnd);
    tool.SetModePtr(nullptr);
    tool.OnOK();
    EXPECT_EQ(tool.open, 0);
    EXPECT_EQ(tool.mode, kHostsMode);
    bare.CloseDlg();
    bare.DestroyWindow();
}

TEST_F(CoordReadout, AFeedBehindOkIsTakenAndShowsNoWindow) {
    tool.OnOK();
    Feed();
    EXPECT_FALSE(tool.IsWindowVisible());
    EXPECT_EQ(tool.open, 0);
    tool.ShowWindow(SW_SHOW);
    EXPECT_THAT(XY(), ElementsAre("2212345.68", "10346789.01"));
}

TEST_F(CoordReadout, AFeedBringsItToTheTopAndLeavesTheKeyboard) {
    CKvCoordDialog other(nullptr);
    ASSERT_TRUE(other.Create(kTemplate));
    const kv::Node* focus = kv::WindowSystem::Get().Focus();
    ASSERT_TRUE(focus->IsSelfOrDescendantOf(*other.m_hWnd));
    EXPECT_FALSE(kv::IsOnTop(*tool.m_hWnd));
    Feed();
    EXPECT_TRUE(kv::IsOnTop(*tool.m_hWnd));
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), focus);
    kv::input::Activate(*other.m_hWnd);
    EXPECT_FALSE(kv::IsOnTop(*tool.m_hWnd));
    user->Select(kFormat, "degree.degree");
    EXPECT_TRUE(kv::IsOnTop(*tool.m_hWnd));
    other.CloseDlg();
    other.DestroyWindow();
}

TEST_F(CoordReadout, ClosedItLetsItsControlsGo) {
    EXPECT_TRUE(Held(kLatitude));
    EXPECT_TRUE(Held(kLongitude));
    tool.CloseDlg();
    EXPECT_FALSE(Held(kLatitude));
    EXPECT_FALSE(Held(kLongitude));
}

TEST_F(CoordReadout, WhatComesBehindItsClosingChangesNothing) {
    Feed();
    const auto shown = AllBoxes();
    tool.CloseDlg();
    EXPECT_EQ(CallsOf([&] { tool.DialogUpdateText(1.0, 2.0, 3, "meter"); }), std::pair(0L, 0L));
    user->Select(kFormat, "degree.degree");
    user->Select(kUserProjection, "3   Louisiana South");
    EXPECT_EQ(AllBoxes(), shown);
    tool.ResetToDefault(3, "feet");
    EXPECT_EQ(AllBoxes(), shown);
}

TEST_F(CoordReadout, WithoutAWindowFeedsDoNothing) {
    user.reset();
    tool.DestroyWindow();
    Feed();
    tool.ResetToDefault(3, "feet");
    EXPECT_EQ(tool.m_hWnd, nullptr);
    CKvCoordDialog neverCreated(nullptr);
    neverCreated.DialogUpdateText(1.0, 2.0, 115, "feet");
    neverCreated.CloseDlg();
    EXPECT_EQ(neverCreated.m_hWnd, nullptr);
}

TEST_F(CoordReadout, IsClosedAndCreatedAnew) {
    Feed();
    user->Select(kFormat, "degree.degree");
    user.reset();
    tool.CloseDlg();
    tool.DestroyWindow();
    ASSERT_TRUE(tool.Create(kTemplate));
    user = std::make_unique<kv::User>(*tool.m_hWnd,
                                      [this](const std::string& words) { desktop.Fail(words); });
    EXPECT_THAT(AllBoxes(), Each(""));
    EXPECT_TRUE(user->Visible(kLatitude.minutes.edit));
    user->Select(kFormat, "degree.degree");
    EXPECT_FALSE(user->Visible(kLatitude.minutes.edit)) << "the new boxes are in d/m/s";
    user->Select(kFormat, "d/m/s");
    Feed();
    EXPECT_THAT(XY(), ElementsAre("2212345.68", "10346789.01"));
    EXPECT_EQ(Texts(kLatitude).size(), 3u);
}

TEST_F(CoordReadout, ShownPartsCanBeCopiedAndNotChanged) {
    Feed();
    user->Type(kX, "1");
    user->Paste(kLatitude.degrees.edit, "28.504236, -91.25");
    EXPECT_THAT(XY(), ElementsAre("2212345.68", "10346789.01"));
    EXPECT_NE(Texts(kLatitude)[0], "");
    auto& edit = tool.Control<CEdit>(kX);
    edit.SetSel(0, -1);
    edit.SendMessage(WM_COPY);
    EXPECT_EQ(desktop.ClipboardText(), "2212345.68");
}

}  // namespace
