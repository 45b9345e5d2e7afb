#include "mapbuild/builders/quick_off_bld_dlg.h"

#include "frame/kvdbkvn/database_fault.h"
#include "mapbuild/builders/map_fixture.h"
#include "print/sizing_ids.h"
#include "support/exchanging_dialog.h"
#include "window/controls/edit.h"

using namespace kv::quick_bld;
using test::Around;
using test::Box;
using test::ExpectNear;
using test::Joined;
using test::kFeetUnits;
using test::kMeterUnits;
using test::kPlaces;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// What the dialog keeps to itself.
class QuickDlg : public CKvGuiQuickOffBldDlg {
public:
    using CKvGuiQuickOffBldDlg::CKvGuiQuickOffBldDlg;
    using CKvGuiQuickOffBldDlg::EditBoxSetReadOnly;
    using CKvGuiQuickOffBldDlg::GetComboSelValue;
    using CKvGuiQuickOffBldDlg::m_bScaleSet;
    using CKvGuiQuickOffBldDlg::m_nFeetScale;
    using CKvGuiQuickOffBldDlg::m_nMeterScale;
    using CKvGuiQuickOffBldDlg::m_nSnapRange;
    using CKvGuiQuickOffBldDlg::m_pProjCtrl;
    using CKvGuiQuickOffBldDlg::m_strMapPercent;
    using CKvGuiQuickOffBldDlg::m_tBounds;
    using CKvGuiQuickOffBldDlg::m_tOrigBounds;
    using CKvGuiQuickOffBldDlg::m_vAreas;
    using CKvGuiQuickOffBldDlg::m_vBlocks;
    using CKvGuiQuickOffBldDlg::m_vExts;
    using CKvGuiQuickOffBldDlg::OnRadioFeet;
    using CKvGuiQuickOffBldDlg::OnRadioMeters;
};

enum Mode { kOne, kSeveral, kWindow };

class QuickOffBldDlg : public test::MapTest {
protected:
    QuickOffBldDlg() { Set(dialog, {"GC#500"}, kOne, true); }

    static void Set(CKvGuiQuickOffBldDlg& it, std::vector<std::string> picks, Mode mode,
                    bool xyBounded) {
        it.ResetABEVec();
        it.SetIDs(picks);
        it.SetMode(mode == kOne, mode == kSeveral, mode == kWindow);
        it.SetXYBounded(xyBounded);
    }
    static void SetCounties(CKvGuiQuickOffBldDlg& it, const std::vector<std::string>& counties,
                            Mode mode) {
        it.ResetABEVec();
        for (const std::string& county : counties)
            it.SetBlock(county);
        it.SetTemplateType(KV_TEMPLATE_ONSHORE);
        it.SetMode(mode == kOne, mode == kSeveral, mode == kWindow);
    }
    static CMinMax2Dd_t Enlarged(CMinMax2Dd_t bounds, double x, double y) {
        return {bounds.minX - x, bounds.maxX + x, bounds.minY - y, bounds.maxY + y};
    }
    /// Around blocks of that many times the width and height of bounds, in whole units.
    static CMinMax2Dd_t Widened(const CMinMax2Dd_t& bounds, int times) {
        const auto more = [times](double span) {
            return static_cast<double>((times - 1) * static_cast<long>(span) / 2);
        };
        return Enlarged(bounds, more(bounds.maxX - bounds.minX), more(bounds.maxY - bounds.minY));
    }
    /// In the sizing options, which OK closes.
    void ChooseScale(kv::User& user, const std::string& scale) {
        desktop.ExpectWindow("CKvGuiSizingDlg", [scale](kv::User& sizing) {
            sizing.Type(kv::sizing::kScale, scale);
            sizing.Click(IDOK);
        });
        user.Click(kSizingOptions);
    }
    /// Runs the dialog, presses OK.
    int Accept(CKvGuiQuickOffBldDlg& it, const std::function<void(kv::User&)>& act = {}) {
        return Run(it, [&](kv::User& user) {
            if (act) act(user);
            user.Click(IDOK);
        });
    }
    static std::string CaptionOf(kv::User& user) { return user.Window().WindowText(); }

    QuickDlg dialog{nullptr};
    const Box& gc500 = kPlaces.at("GC#500");
    const CMinMax2Dd_t gc500Feet = Around(gc500, 115, kFeetUnits);
};

// Picks.

TEST_F(QuickOffBldDlg, TakesPickIdentifiersApart) {
    struct {
        const char* id;
        bool parsed;
        const char* area;
        const char* block;
        const char* ext;
    } const cases[] = {
        {"MP#0123A", true, "MP", "0123", "A"},
        {"MP#A12", true, "MP", "12", "A"},
        {"MP#123", true, "MP", "123", " "},
        {"MP#ALL", true, "MP", "ALL", ""},
        {"MP", false, "", "", ""},
        {"A#B#1", true, "A", "1", "B#"},
    };
    for (const auto& each : cases) {
        std::string area = "x";
        std::string block = "x";
        std::string ext = "x";
        std::string id = each.id;
        EXPECT_EQ(dialog.ParseAreaBlockExt(area, block, ext, id), each.parsed) << id;
        EXPECT_EQ(area, each.area) << id;
        EXPECT_EQ(block, each.block) << id;
        EXPECT_EQ(ext, each.ext) << id;
    }
}

TEST_F(QuickOffBldDlg, AppendsAPickAlsoForWhatIsNone) {
    std::vector<std::string> ids{"none", "MP#124A"};
    dialog.SetIDs(ids);
    EXPECT_THAT(dialog.m_vAreas, ElementsAre("GC", "", "MP"));
    EXPECT_THAT(dialog.m_vBlocks, ElementsAre("500", "", "124"));
    EXPECT_THAT(dialog.m_vExts, ElementsAre(" ", "", "A"));
    dialog.ResetABEVec();
    EXPECT_THAT(dialog.m_vAreas, IsEmpty());
    EXPECT_THAT(dialog.m_vBlocks, IsEmpty());
    EXPECT_THAT(dialog.m_vExts, IsEmpty());
}

// The start.

TEST_F(QuickOffBldDlg, OpensOnThreeTimesThePickedBlockInItsOwnProjection) {
    Accept(dialog, [&](kv::User& user) {
        EXPECT_EQ(CaptionOf(user), "Quick Offshore Map Builder");
        EXPECT_EQ(user.Text(kMapName), "GC500");
        EXPECT_EQ(user.Text(kWidth), "3");
        EXPECT_EQ(user.Text(kHeight), "3");
        EXPECT_EQ(user.Text(kPercent), "");
        EXPECT_EQ(user.Text(kProjection), "115 UTM");
        EXPECT_TRUE(user.Checked(kFeet));
        EXPECT_TRUE(user.Checked(kXYBounded));
        EXPECT_FALSE(user.Checked(kLatLonBounded));
        for (const int id : {kWidth, kHeight, kPercent, kSnapBounds})
            EXPECT_TRUE(user.Enabled(id)) << id;
        EXPECT_THAT(user.Rows(kWidth), ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9",
                                                   "10", "20", "30", "40", "50"));
        EXPECT_EQ(user.Rows(kHeight), user.Rows(kWidth));
        EXPECT_THAT(user.Rows(kPercent), ElementsAre("0", "10", "15", "30", "50", "75", "100"));
        ExpectNear(ShownXY(user), Widened(gc500Feet, 3), kShownXY);
    });
    const CKvMapBounds& map = dialog.GetBounds();
    ExpectNear(test::XYOf(map), Widened(gc500Feet, 3), 1e-6);
    EXPECT_LT(map.GetLatMin(), gc500.latMin);
    EXPECT_GT(map.GetLonMax(), gc500.lonMax);
    EXPECT_EQ(dialog.GetProjection(), 115);
}

TEST_F(QuickOffBldDlg, BoundedByAnglesItWidensTheAngles) {
    Set(dialog, {"GC#500"}, kOne, false);
    const CMinMax2Dd_t expected{27.30, 27.45, -90.70, -90.55};
    Accept(dialog, [&](kv::User& user) {
        EXPECT_TRUE(user.Checked(kLatLonBounded));
        EXPECT_FALSE(user.Enabled(kSnapBounds));
        ExpectNear(ShownAngles(user), expected, kShownAngle);
    });
    ExpectNear(test::AnglesOf(dialog.GetBounds()), expected, 1e-9);
    const auto [x, y] = test::Projected(dialog.GetBounds().GetLatMin(),
                                        dialog.GetBounds().GetLonMin(), 115, kFeetUnits);
    EXPECT_EQ(dialog.GetBounds().GetXMin(), x);
    EXPECT_EQ(dialog.GetBounds().GetYMin(), y);
}

TEST_F(QuickOffBldDlg, JoinsSeveralBlocksAndDoesNotWidenThem) {
    Set(dialog, {"GC#500", "GC#501"}, kSeveral, true);
    const Box both = Joined(gc500, kPlaces.at("GC#501"));
    Accept(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Enabled(kWidth));
        EXPECT_FALSE(user.Enabled(kHeight));
        EXPECT_TRUE(user.Enabled(kPercent));
        EXPECT_EQ(user.Text(kWidth), "");
        EXPECT_EQ(user.Text(kMapName), "GC500__ET_AL");
    });
    ExpectNear(test::XYOf(dialog.GetBounds()), Around(both, 115, kFeetUnits), 1e-6);
}

TEST_F(QuickOffBldDlg, AnAllPickForcesItsModeWhateverWasSet) {
    Set(dialog, {"GC#ALL"}, kOne, true);
    dialog.SetProj(3);
    Accept(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Enabled(kWidth));
        EXPECT_TRUE(user.Enabled(kPercent));
        EXPECT_EQ(user.Text(kMapName), "GC");
        EXPECT_EQ(user.Text(kProjection), "115 UTM");
    });
    const Box both = Joined(gc500, kPlaces.at("GC#501"));
    ExpectNear(test::XYOf(dialog.GetBounds()), Around(both, 115, kFeetUnits), 1e-6);
    EXPECT_TRUE(dialog.GetBounds().GetPickWinFlag());
    EXPECT_FALSE(dialog.GetBounds().GetPickOneFlag());
}

/// The bounds of a window that holds no picks.
CKvMapBounds OneDegree() {
    CKvMapBounds map;
    map.SetLatMin(27);
    map.SetLatMax(28);
    map.SetLonMin(-91);
    map.SetLonMax(-90);
    return map;
}

TEST_F(QuickOffBldDlg, AWindowWithoutPicksKeepsTheBoundsThatItWasGiven) {
    CKvMapBounds map = OneDegree();
    dialog.ResetABEVec();
    dialog.SetMode(0, 0, 1);
    dialog.SetProj(115);
    dialog.SetBounds(map);
    dialog.SetXYBounded(false);
    Accept(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kMapName), "2000JAN14_09H30M15S");
        user.Select(kProjection, "116 UTM");
        EXPECT_THAT(statements, SizeIs(2));  // The catalogue's.
    });
    const auto [x, y] = test::Projected(27, -91, 116, kFeetUnits);
    EXPECT_NEAR(dialog.GetBounds().GetXMin(), x, 1e-6);
    EXPECT_NEAR(dialog.GetBounds().GetYMin(), y, 1e-6);
    EXPECT_EQ(dialog.GetBounds().GetLatMax(), 28.0);
    EXPECT_EQ(dialog.GetProjection(), 116);
}

TEST_F(QuickOffBldDlg, AWindowOfXYWithoutPicksOpensOnTheXYThatItWasGiven) {
    CKvMapBounds map;
    map.SetXMin(2'000'000);
    map.SetXMax(2'100'000);
    map.SetYMin(9'900'000);
    map.SetYMax(10'000'000);
    map.SetLatMin(20);
    map.SetLatMax(21);
    map.SetLonMin(-91);
    map.SetLonMax(-90);
    dialog.ResetABEVec();
    dialog.SetMode(0, 0, 1);
    dialog.SetProj(115);
    dialog.SetBounds(map);
    Run(dialog, [&](kv::User& user) {
        ExpectNear(ShownXY(user), {2'000'000, 2'100'000, 9'900'000, 10'000'000}, kShownXY);
        double lat = 0.0;
        double lon = 0.0;
        CKvUtilLLdrv::XYdrv(2'000'000, 9'900'000, &lat, &lon, 115, kFeetUnits, 1, 100.0, 0.0, 0.0);
        EXPECT_NEAR(ShownAngles(user).minX, lat, kShownAngle);
        EXPECT_NEAR(ShownAngles(user).minY, lon, kShownAngle);
    });
}

TEST_F(QuickOffBldDlg, OpensInTheUnitOfItsRecord) {
    Set(dialog, {"GC#500", "GC#501"}, kSeveral, true);
    CKvMapBounds map;
    map.SetFeet(false);
    dialog.SetBounds(map);
    Accept(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Checked(kFeet));
        EXPECT_TRUE(user.Checked(kMeters));
        const Box both = Joined(gc500, kPlaces.at("GC#501"));
        ExpectNear(ShownXY(user), Around(both, 115, kMeterUnits), kShownXY);
    });
    EXPECT_FALSE(dialog.GetBounds().GetFeet());
}

TEST_F(QuickOffBldDlg, AFailureAtTheStartIsToldForEachQuestionOnce) {
    Set(dialog, {"GC#500"}, kOne, true);
    // The catalogue of projections has been read.
    Run(dialog, [](kv::User&) {});
    QuickDlg next(nullptr);
    Set(next, {"GC#501"}, kSeveral, true);
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    // Of the projection of the area, the bounds and the name.
    for (int question = 0; question < 3; ++question)
        desktop.ExpectMessage("");
    Run(next, [](kv::User& user) { EXPECT_TRUE(user.Open()); });
    kv::db::SetDatabaseFault(nullptr);
}

TEST_F(QuickOffBldDlg, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvGuiQuickOffBldDlg> own(nullptr);
    Set(own, {"GC#500"}, kOne, true);
    Accept(own, [&](kv::User&) { EXPECT_EQ(own.shown, 1); });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(QuickOffBldDlg, EachDialogBeginsWithThreeBlocksAgain) {
    Accept(dialog, [](kv::User& user) { user.Type(kWidth, "5"); });
    EXPECT_EQ(CKvGuiQuickOffBldDlg::m_nDefWidth, 5);
    EXPECT_EQ(CKvGuiQuickOffBldDlg::m_nDefHeight, 3);
    QuickDlg next(nullptr);
    Set(next, {"GC#500"}, kOne, true);
    Accept(next, [](kv::User& user) { EXPECT_EQ(user.Text(kWidth), "3"); });
}

// Names.

TEST_F(QuickOffBldDlg, NamesAMapByItsPicks) {
    const struct {
        std::vector<std::string> picks;
        Mode mode;
        const char* name;
    } cases[] = {
        {{"43601#500"}, kOne, "GC500"},
        {{"43501#124A"}, kOne, "MP124A"},
        {{"42101#7"}, kOne, "EAST_BAY7"},
        {{"MAIN PASS#123"}, kOne, "MAIN_PASS123"},
        {{"MP#123"}, kSeveral, "MP123__ET_AL"},
        {{"MP#124A"}, kSeveral, "MP124A_ET_AL"},
        {{"43501#ALL"}, kOne, "MAIN_PASS"},
        {{"43501#ALL", "43601#ALL"}, kOne, "MAIN_PASS_ET_AL"},
        {{"ZZ#1"}, kOne, "ZZ1"},
    };
    for (const auto& each : cases) {
        QuickDlg it(nullptr);
        Set(it, each.picks, each.mode, true);
        it.SetMode(each.mode == kOne, each.mode == kSeveral,
                   each.picks[0].find("ALL") != std::string::npos);
        it.PopulateMapName();
        EXPECT_EQ(it.GetMapName(), each.name);
    }
}

TEST_F(QuickOffBldDlg, NamesAMapByTheClockWhereThereIsNoPick) {
    dialog.ResetABEVec();
    dialog.PopulateMapName();
    EXPECT_EQ(dialog.GetMapName(), "2000JAN14_09H30M15S");
    Set(dialog, {"GC#500"}, kWindow, true);
    dialog.PopulateMapName();
    EXPECT_EQ(dialog.GetMapName(), "2000JAN14_09H30M15S");
}

TEST_F(QuickOffBldDlg, TheClocksNameIsLocalAndInEnglish) {
    folder.Set("TZ", "CST6");
    tzset();
    dialog.ResetABEVec();
    dialog.PopulateMapName();
    EXPECT_EQ(dialog.GetMapName(), "2000JAN14_03H30M15S");
}

TEST_F(QuickOffBldDlg, ANameThatWasSetStaysAndWhatIsTypedIsTaken) {
    dialog.SetMapName("MINE");
    Accept(dialog, [](kv::User& user) {
        EXPECT_EQ(user.Text(kMapName), "MINE");
        user.Type(kMapName, "OURS 2");
    });
    EXPECT_EQ(dialog.GetMapName(), "OURS 2");
}

// Onshore.

TEST_F(QuickOffBldDlg, OnshoreItIsAMapOfACounty) {
    SetCounties(dialog, {"48167"}, kOne);
    Accept(dialog, [&](kv::User& user) {
        EXPECT_EQ(CaptionOf(user), "Quick Onshore Map Builder");
        EXPECT_EQ(user.Text(kMapName), "Galveston");
        EXPECT_EQ(user.Text(kWidth), "1");
        EXPECT_EQ(user.Text(kProjection), "1   Texas South Central");
    });
    const CKvMapBounds& map = dialog.GetBounds();
    EXPECT_EQ(map.GetTemplateType(), KV_TEMPLATE_ONSHORE);
    const CMinMax2Dd_t corners = Around(test::kGalveston, 1, kFeetUnits);
    // The sides of the county are curves there.
    EXPECT_LE(map.GetYMin(), corners.minY);
    ExpectNear(test::XYOf(map), corners, 2000);
    EXPECT_THAT(map.GetPickBlock(), ElementsAre("48167"));
    EXPECT_THAT(map.GetPickArea(), IsEmpty());
}

TEST_F(QuickOffBldDlg, OnshoreCountiesAreJoined) {
    SetCounties(dialog, {"48167", "48039"}, kSeveral);
    dialog.SetXYBounded(false);
    Accept(dialog, [](kv::User& user) { EXPECT_EQ(user.Text(kMapName), "Galveston_ET_AL"); });
    ExpectNear(test::AnglesOf(dialog.GetBounds()), {28.83, 29.6, -95.88, -94.37}, 1e-9);
}

TEST_F(QuickOffBldDlg, ACountyOfTwoWordsIsNamedWithoutBlanks) {
    SetCounties(dialog, {"22101"}, kOne);
    dialog.PopulateMapName();
    EXPECT_EQ(dialog.GetMapName(), "St._Mary");
    SetCounties(dialog, {"99999"}, kOne);
    dialog.PopulateMapName();
    EXPECT_EQ(dialog.GetMapName(), "99999");
}

// Without a window.

TEST_F(QuickOffBldDlg, WithoutAWindowBlocksAreInMetersAndCountiesInFeet) {
    CKvMapBounds map;
    dialog.SetProj(115);
    EXPECT_TRUE(dialog.ComputeBounds(map));
    ExpectNear(test::XYOf(map), Around(gc500, 115, kMeterUnits), 1e-6);
    ExpectNear(test::AnglesOf(map), {27.35, 27.40, -90.65, -90.60}, 1e-9);
    EXPECT_EQ(map.GetTemplateType(), KV_TEMPLATE_OFFSHORE);

    SetCounties(dialog, {"48167"}, kOne);
    dialog.SetProj(1);
    EXPECT_TRUE(dialog.ComputeBounds(map));
    ExpectNear(test::XYOf(map), Around(test::kGalveston, 1, kFeetUnits), 2000);
}

TEST_F(QuickOffBldDlg, WithoutAWindowTheWholePipelineRuns) {
    Set(dialog, {"GC#500", "GC#501"}, kSeveral, false);
    dialog.SetProj(115);
    dialog.ComputeALL();
    ExpectNear(test::AnglesOf(dialog.GetBounds()), {27.35, 27.40, -90.65, -90.55}, 1e-9);
    EXPECT_EQ(dialog.GetLLMapBounds().minX, dialog.GetBounds().GetLonMin());
    EXPECT_EQ(dialog.GetLLMapBounds().maxY, dialog.GetBounds().GetLatMax());
    EXPECT_EQ(dialog.GetXYMapBounds().minX, dialog.GetBounds().GetXMin());
    EXPECT_EQ(dialog.GetXYMapBounds().maxY, dialog.GetBounds().GetYMax());
}

TEST_F(QuickOffBldDlg, WithoutAModeThereAreNoBounds) {
    dialog.SetMode(0, 0, 0);
    CKvMapBounds map;
    map.SetXMin(5);
    EXPECT_FALSE(dialog.ComputeBounds(map));
    EXPECT_EQ(map.GetXMin(), 5.0);
    // A window alone picks no counties.
    SetCounties(dialog, {"48167"}, kWindow);
    EXPECT_FALSE(dialog.ComputeBounds(map));
    EXPECT_EQ(map.GetXMin(), 5.0);
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(QuickOffBldDlg, BoundsOfPicksHaveNoHeightAndNoDepth) {
    CKvMapBounds map;
    map.SetZMin(1);
    map.SetZMax(2);
    map.SetDepthMin(3);
    map.SetDepthMax(4);
    dialog.SetProj(115);
    EXPECT_TRUE(dialog.ComputeBounds(map));
    EXPECT_EQ(map.GetZMin(), 0.0);
    EXPECT_EQ(map.GetZMax(), 0.0);
    EXPECT_EQ(map.GetDepthMin(), 0.0);
    EXPECT_EQ(map.GetDepthMax(), 0.0);
}

// Each operation by itself, as a host calls it.

class QuickOffBldDlgWindow : public QuickOffBldDlg {
protected:
    QuickOffBldDlgWindow() {
        CKvMapBounds map = OneDegree();
        dialog.ResetABEVec();
        dialog.SetMode(0, 0, 1);
        dialog.SetProj(199);
        dialog.SetBounds(map);
        dialog.SetXYBounded(false);
    }
    /// Another dialog of the program has used the driver since.
    static void MoveThePointOfTheDriver() {
        CKvUtilLLdrv::SetRectLat(10);
        CKvUtilLLdrv::SetRectLon(10);
    }
    void ExpectTheDriverAtTheMiddle(double lat, double lon) {
        test::ExpectRectifyingPoint(lat, lon);
        EXPECT_NEAR(dialog.GetBounds().GetRectifyingLat(), lat, 1e-9);
        EXPECT_NEAR(dialog.GetBounds().GetRectifyingLon(), lon, 1e-9);
    }
};

TEST_F(QuickOffBldDlgWindow, TheProjectionAloneBeginsAgainAtTheAnglesOfTheStart) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kPercent, "50");
        ExpectNear(test::AnglesOf(dialog.GetBounds()), {26.5, 28.5, -91.5, -89.5}, 1e-9);
        CKvMapBounds& map = dialog.GetBounds();
        map.SetZMin(1);
        map.SetZMax(2);
        map.SetDepthMin(3);
        map.SetDepthMax(4);
        dialog.ComputeProjection();
        ExpectNear(test::AnglesOf(map), {27, 28, -91, -90}, 1e-9);
        const auto [x, y] = test::Projected(27, -91, 199, kFeetUnits);
        EXPECT_NEAR(map.GetXMin(), x, 1e-6);
        EXPECT_NEAR(map.GetYMin(), y, 1e-6);
        EXPECT_EQ(map.GetZMin(), 0.0);
        EXPECT_EQ(map.GetZMax(), 0.0);
        EXPECT_EQ(map.GetDepthMin(), 0.0);
        EXPECT_EQ(map.GetDepthMax(), 0.0);
    });
}

TEST_F(QuickOffBldDlgWindow, EachGivesTheRectifyingPointToTheDriver) {
    Run(dialog, [&](kv::User&) {
        for (const auto operation : {+[](QuickDlg& it) { it.ComputeProjection(); },
                                     +[](QuickDlg& it) { it.ComputePercentage(); },
                                     +[](QuickDlg& it) { it.ComputeWidthHeight(); },
                                     +[](QuickDlg& it) { it.UpdateCoordinates(); }}) {
            dialog.GetBounds().SetLatMax(28);
            MoveThePointOfTheDriver();
            operation(dialog);
            ExpectTheDriverAtTheMiddle(27.5, -90.5);
        }
        // The X/Y that they compute is that of the point.
        for (const auto operation : {+[](QuickDlg& it) { it.ComputeProjection(); },
                                     +[](QuickDlg& it) { it.ComputePercentage(); },
                                     +[](QuickDlg& it) { it.ComputeWidthHeight(); }}) {
            MoveThePointOfTheDriver();
            operation(dialog);
            EXPECT_NEAR(dialog.GetBounds().GetXMin() + dialog.GetBounds().GetXMax(), 0.0, 1e-3);
        }
    });
}

TEST_F(QuickOffBldDlgWindow, TheDialogItselfBeginsWithItsPoint) {
    MoveThePointOfTheDriver();
    Run(dialog, [&](kv::User& user) {
        ExpectTheDriverAtTheMiddle(27.5, -90.5);
        const auto [x, y] = test::Projected(27, -91, 199, kFeetUnits);
        EXPECT_NEAR(ShownXY(user).minX, x, kShownXY);
        EXPECT_NEAR(ShownXY(user).minY, y, kShownXY);
    });
}

TEST_F(QuickOffBldDlgWindow, AGridOf0ChangesNothing) {
    CKvMapBounds& map = dialog.GetBounds();
    map.SetXMin(1234.5);
    map.SetXMax(5678.9);
    const CKvMapBounds before = map;
    for (const int range : {0, -100}) {
        dialog.m_nSnapRange = range;
        dialog.CoumputeSnapRange();
        EXPECT_EQ(map, before) << range;
    }
    dialog.m_nSnapRange = 1000;
    dialog.CoumputeSnapRange();
    EXPECT_EQ(map.GetXMin(), 1000.0);
    EXPECT_EQ(map.GetXMax(), 6000.0);
    EXPECT_NE(test::AnglesOf(map), test::AnglesOf(before));
}

TEST_F(QuickOffBldDlgWindow, WhatTheBoundsWereAheadOfThePercentageHasBothKinds) {
    dialog.SetProj(115);
    Run(dialog, [&](kv::User& user) {
        dialog.m_strMapPercent = "50";
        CKvMapBounds& map = dialog.GetBounds();
        dialog.GetOriginalLLBounds();
        ExpectNear(test::AnglesOf(dialog.m_tOrigBounds), {27.25, 27.75, -90.75, -90.25}, 1e-9);
        const auto [x, y] = test::Projected(27.25, -90.75, 115, kFeetUnits);
        EXPECT_NEAR(dialog.m_tOrigBounds.GetXMin(), x, 1e-6);
        EXPECT_NEAR(dialog.m_tOrigBounds.GetYMin(), y, 1e-6);

        map.SetXMin(1'900'000);
        map.SetXMax(2'100'000);
        map.SetYMin(9'900'000);
        map.SetYMax(10'100'000);
        dialog.GetOriginalXYBounds();
        ExpectNear(test::XYOf(dialog.m_tOrigBounds), {1'950'000, 2'050'000, 9'950'000, 10'050'000},
                   1e-6);
        double lat = 0.0;
        double lon = 0.0;
        CKvUtilLLdrv::XYdrv(1'950'000, 9'950'000, &lat, &lon, 115, kFeetUnits, 1, 100.0, 0.0, 0.0);
        EXPECT_NEAR(dialog.m_tOrigBounds.GetLatMin(), lat, 1e-9);
        EXPECT_NEAR(dialog.m_tOrigBounds.GetLonMin(), lon, 1e-9);
        // The boxes show the bounds that there are.
        EXPECT_EQ(user.Text(kXMin), "1900000.00");
        map.SetXMin(1'800'000);
        dialog.GetOriginalLLBounds();
        EXPECT_EQ(user.Text(kXMin), "1800000.00");
    });
}

// What changes the bounds.

TEST_F(QuickOffBldDlg, WidthsBelowTwoLeaveTheBlock) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kHeight, "1");
        for (const char* width : {"1", "0"}) {
            user.Type(kWidth, width);
            ExpectNear(ShownXY(user), gc500Feet, kShownXY);
        }
        user.Key(kWidth, "Delete");
        user.Key(kWidth, "Backspace");
        EXPECT_EQ(user.Text(kWidth), "");
        ExpectNear(ShownXY(user), gc500Feet, kShownXY);
        desktop.ExpectMessage("The width is out of range (1 - 50).");
        user.Focus(kMapName);
    });
}

TEST_F(QuickOffBldDlg, APickedWidthIsTakenAtOnce) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kHeight, "1");
        user.Select(kWidth, "2");
        const double more =
            static_cast<double>(static_cast<long>(gc500Feet.maxX - gc500Feet.minX) / 2);
        ExpectNear(ShownXY(user), Enlarged(gc500Feet, more, 0), kShownXY);
    });
}

TEST_F(QuickOffBldDlg, RepeatedChangesDoNotPileUp) {
    Run(dialog, [&](kv::User& user) {
        for (int round = 0; round < 3; ++round) {
            user.Select(kWidth, "50");
            user.Select(kPercent, "75");
            user.Select(kProjection, "3   Louisiana South");
            user.Select(kProjection, "115 UTM");
            user.Select(kPercent, "0");
            user.Select(kWidth, "3");
        }
        ExpectNear(ShownXY(user), Widened(gc500Feet, 3), kShownXY);
    });
}

TEST_F(QuickOffBldDlg, APercentageIsAMarginOnEachSide) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kWidth, "1");
        user.Select(kHeight, "1");
        const double width = static_cast<long>(gc500Feet.maxX - gc500Feet.minX);
        const double height = static_cast<long>(gc500Feet.maxY - gc500Feet.minY);
        user.Type(kPercent, "15");
        ExpectNear(ShownXY(user), Enlarged(gc500Feet, width * 0.15, height * 0.15), kShownXY);
        user.Select(kPercent, "100");
        ExpectNear(ShownXY(user), Enlarged(gc500Feet, width, height), kShownXY);
        user.Select(kPercent, "0");
        ExpectNear(ShownXY(user), gc500Feet, kShownXY);
        user.Click(kLatLonBounded);
        user.Select(kPercent, "100");
        ExpectNear(ShownAngles(user), {27.30, 27.45, -90.70, -90.55}, kShownAngle);
    });
}

TEST_F(QuickOffBldDlg, AnotherUnitOrProjectionGivesItsOwnNumbers) {
    Set(dialog, {"GC#500", "GC#501"}, kSeveral, true);
    const Box both = Joined(gc500, kPlaces.at("GC#501"));
    Accept(dialog, [&](kv::User& user) {
        user.Click(kMeters);
        ExpectNear(ShownXY(user), Around(both, 115, kMeterUnits), kShownXY);
        user.Select(kProjection, "116 UTM");
        ExpectNear(ShownXY(user), Around(both, 116, kMeterUnits), kShownXY);
        user.Click(kFeet);
        ExpectNear(ShownXY(user), Around(both, 116, kFeetUnits), kShownXY);
        user.Click(kMeters);
    });
    EXPECT_FALSE(dialog.GetBounds().GetFeet());
    EXPECT_EQ(dialog.GetBounds().GetPrimeProj(), 116);
    ExpectNear(test::XYOf(dialog.GetBounds()), Around(both, 116, kMeterUnits), 1e-6);
}

TEST_F(QuickOffBldDlg, AHostThatTakesTheMarkOffAUnitGetsTheOther) {
    Run(dialog, [&](kv::User& user) {
        dialog.CheckDlgButton(kFeet, BST_UNCHECKED);
        dialog.OnRadioFeet();
        EXPECT_TRUE(user.Checked(kMeters));
        dialog.CheckDlgButton(kMeters, BST_UNCHECKED);
        dialog.OnRadioMeters();
        EXPECT_TRUE(user.Checked(kFeet));
    });
}

TEST_F(QuickOffBldDlg, BoundsAreSnappedToAGridWhereXYBoundsTheMap) {
    Accept(dialog, [&](kv::User& user) {
        const CMinMax2Dd_t before = ShownXY(user);
        desktop.ExpectWindow("CKvGuiSnapRangeDlg", [](kv::User& range) {
            range.Select(kv::snap_range::kRange, "1000");
            range.Click(IDOK);
        });
        user.Click(kSnapBounds);
        const auto down = [](double value) { return std::floor(value / 1000) * 1000; };
        const CMinMax2Dd_t snapped{down(before.minX), down(before.maxX) + 1000, down(before.minY),
                                   down(before.maxY) + 1000};
        ExpectNear(ShownXY(user), snapped, kShownXY);
        user.Click(kLatLonBounded);
        EXPECT_FALSE(user.Enabled(kSnapBounds));
        // Whatever the grid.
        ExpectNear(ShownAngles(user), {27.30, 27.45, -90.70, -90.55}, kShownAngle);
        user.Click(kXYBounded);
        EXPECT_TRUE(user.Enabled(kSnapBounds));
        ExpectNear(ShownXY(user), snapped, kShownXY);
        user.Click(kLatLonBounded);
    });
    EXPECT_EQ(dialog.GetBounds().GetSnapBoundsRange(), 1000);
    EXPECT_FALSE(dialog.GetBounds().GetXYBounded());
}

TEST_F(QuickOffBldDlg, ACancelledGridStays) {
    dialog.m_nSnapRange = 500;
    Accept(dialog, [&](kv::User& user) {
        desktop.ExpectWindow("CKvGuiSnapRangeDlg", [](kv::User& range) {
            EXPECT_EQ(range.Text(kv::snap_range::kRange), "500");
            range.Type(kv::snap_range::kRange, "7");
            range.Click(IDCANCEL);
        });
        user.Click(kSnapBounds);
    });
    EXPECT_EQ(dialog.GetBounds().GetSnapBoundsRange(), 500);
}

// Messages.

TEST_F(QuickOffBldDlg, ASizeOutOfRangeIsToldWhenItsBoxIsLeft) {
    Run(dialog, [&](kv::User& user) {
        for (const auto& [box, words] :
             {std::pair{kWidth, "The width is out of range (1 - 50)."},
              std::pair{kHeight, "The height is out of range (1 - 50)."}}) {
            for (const char* size : {"0", "51", "-1", "abc"}) {
                user.Type(box, size);
                desktop.ExpectMessage(words);
                user.Focus(kMapName);
                EXPECT_EQ(test::FocusedId(), box);
                EXPECT_EQ(user.Text(box), size);
            }
            for (const char* size : {"1", "50"}) {
                user.Type(box, size);
                user.Focus(kMapName);
                EXPECT_EQ(test::FocusedId(), kMapName);
            }
        }
    });
}

TEST_F(QuickOffBldDlg, APercentageAboveAHundredCountsAndIsToldWhenItsBoxIsLeft) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kWidth, "1");
        user.Select(kHeight, "1");
        user.Type(kPercent, "150");
        const double width = static_cast<long>(gc500Feet.maxX - gc500Feet.minX);
        EXPECT_NEAR(ShownXY(user).minX, gc500Feet.minX - width * 1.5, kShownXY);
        desktop.ExpectMessage("The percent is out of range (0-100).");
        user.Focus(kMapName);
        EXPECT_EQ(test::FocusedId(), kPercent);
        EXPECT_EQ(user.Text(kPercent), "150");
        user.Type(kPercent, "100");
        user.Focus(kMapName);
        EXPECT_EQ(test::FocusedId(), kMapName);
    });
}

TEST_F(QuickOffBldDlg, APercentageAboveAThousandIsToldOnceAndClearsItsBox) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kPercent, "150");
        const CMinMax2Dd_t before = ShownXY(user);
        desktop.ExpectMessage("Please enter a percentage between 0 and 1000");
        user.Type(kPercent, "1500");
        EXPECT_EQ(user.Text(kPercent), "");
        EXPECT_EQ(user.Selected(kPercent), std::vector<int>{});
        EXPECT_NE(ShownXY(user).minX, before.minX);
        ExpectNear(ShownXY(user), Widened(gc500Feet, 3), kShownXY);
        user.Focus(kMapName);
        EXPECT_EQ(test::FocusedId(), kMapName);
    });
    EXPECT_THAT(desktop.Messages(), SizeIs(1));
}

TEST_F(QuickOffBldDlg, APercentageWithALetterIsNotValid) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kPercent, "12a");
        desktop.ExpectMessage("The percent is not valid.  Please re-enter a valid number!");
        user.Focus(kMapName);
        EXPECT_EQ(test::FocusedId(), kPercent);
        EXPECT_EQ(user.Text(kPercent), "12a");
        user.Type(kPercent, "12");
    });
}

TEST_F(QuickOffBldDlg, OKTakesWhatWasRefused) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kPercent, "150");
        desktop.ExpectMessage("The percent is out of range (0-100).");
        user.Focus(kMapName);
        user.Key(kPercent, "Enter");
    });
    EXPECT_TRUE(dialog.GetTermination());
    EXPECT_EQ(dialog.GetBounds().GetPickMapPercent(), "150");
}

// The projection.

TEST_F(QuickOffBldDlg, ACancelledMoreWithoutAProjectionIsNotOpenedAgainByTyping) {
    Set(dialog, {"ZZ#1"}, kOne, true);
    Run(dialog, [&](kv::User& user) {
        EXPECT_THAT(user.Selected(kProjection), IsEmpty());
        ExpectCancelOf("CKvGuiProjSel");
        user.Select(kProjection, "More...");
        EXPECT_THAT(user.Selected(kProjection), IsEmpty());
        user.Type(kWidth, "5");
        EXPECT_EQ(user.Text(kWidth), "5");
    });
    EXPECT_EQ(dialog.GetProjection(), -1);
}

TEST_F(QuickOffBldDlg, TheControlLearnsTheKindOfMapOnlyBehindThePick) {
    // Bounded by angles until now, Straight Mercator is taken, and the point is the user's.
    Set(dialog, {"GC#500"}, kOne, false);
    Accept(dialog, [&](kv::User& user) {
        ExpectPick(kv::proj_sel::kStraightMercator, "Clarke 1866");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            zone.Click(kv::utm_zone::kUserSpecified);
            zone.Type(kv::utm_zone::kLat, "27");
            zone.Type(kv::utm_zone::kLon, "-91");
            zone.Click(IDOK);
        });
        user.Select(kProjection, "More...");
        EXPECT_EQ(user.Text(kProjection), "199 Straight Mercator");
    });
    EXPECT_EQ(dialog.GetProjection(), 199);
    EXPECT_EQ(dialog.GetBounds().GetProjZoneCode(), 99);
    EXPECT_TRUE(dialog.GetBounds().GetRectSpec());
    EXPECT_EQ(dialog.GetBounds().GetRectifyingLon(), -91.0);
    EXPECT_GT(dialog.GetBounds().GetXMin(), 0.0);
    const double width = dialog.GetBounds().GetXMax() - dialog.GetBounds().GetXMin();
    EXPECT_NEAR(width, 0.15 * 111'320 * std::cos(27 * 3.14159265 / 180) / 0.3048, 500);
}

TEST_F(QuickOffBldDlg, AMapOfXYRefusesStraightMercatorFromTheStart) {
    Accept(dialog, [&](kv::User& user) {
        ExpectPick(kv::proj_sel::kStraightMercator, "Clarke 1866");
        ExpectZone();
        desktop.ExpectMessage(
            "Invalid Entry!\n Straight Mercator is not valid for an XY-bounded map!\n");
        user.Select(kProjection, "More...");
        EXPECT_EQ(user.Text(kProjection), "115 UTM");
    });
    EXPECT_EQ(dialog.GetProjection(), 115);
}

TEST_F(QuickOffBldDlg, AProjectionWithoutAnAnswerLeavesTheBoxesOfXYEmpty) {
    Accept(dialog, [&](kv::User& user) {
        ExpectPick(kv::proj_sel::kMiscOther, "Zone: 7777: Nowhere");
        user.Select(kProjection, "More...");
        for (const int id : kXYBoxes)
            EXPECT_EQ(user.Text(id), "") << id;
        ExpectNear(ShownAngles(user), {27.35, 27.40, -90.65, -90.60}, kShownAngle);
        user.Type(kWidth, "7");
        EXPECT_EQ(user.Text(kXMin), "");
        // Back, and nothing is lost.
        user.Select(kProjection, "115 UTM");
        user.Type(kWidth, "3");
        ExpectNear(ShownXY(user), Widened(gc500Feet, 3), kShownXY);
        user.Click(kLatLonBounded);
        user.Select(kProjection, "Zone : 7777: Nowhere");
        EXPECT_EQ(user.Text(kXMax), "");
        ExpectNear(ShownAngles(user), {27.30, 27.45, -90.70, -90.55}, kShownAngle);
    });
    EXPECT_EQ(dialog.GetBounds().GetXMin(), CKvUtilLLdrv::kNoXY);
    EXPECT_NEAR(dialog.GetBounds().GetLatMin(), 27.30, 1e-9);
}

TEST_F(QuickOffBldDlg, AMapAcrossTheBorderOfTwoZonesIsTheSamePlaceInBoth) {
    Set(dialog, {"BD#1"}, kOne, false);
    Accept(dialog, [&](kv::User& user) {
        const CMinMax2Dd_t angles = ShownAngles(user);
        for (const char* zone : {"116 UTM", "114 UTM", "117 UTM", "115 UTM"}) {
            user.Select(kProjection, zone);
            ExpectNear(ShownAngles(user), angles, kShownAngle);
            const auto [x, y] =
                test::Projected(dialog.GetBounds().GetLatMin(), dialog.GetBounds().GetLonMin(),
                                dialog.GetProjection(), kFeetUnits);
            EXPECT_NEAR(ShownXY(user).minX, x, kShownXY) << zone;
            EXPECT_NEAR(ShownXY(user).minY, y, kShownXY) << zone;
        }
        user.Click(kXYBounded);
        for (const auto& [zone, code] : {std::pair{"116 UTM", 116}, std::pair{"115 UTM", 115}}) {
            user.Select(kProjection, zone);
            ExpectNear(ShownXY(user), Widened(Around(kPlaces.at("BD#1"), code, kFeetUnits), 3),
                       kShownXY);
        }
    });
}

// What the database does not know, and what it fails at.

TEST_F(QuickOffBldDlg, APickThatIsNotKnownIsLeftOutAndLogged) {
    Set(dialog, {"GC#500", "GC#77", "ZZ#1"}, kSeveral, true);
    Accept(dialog);
    ExpectNear(test::XYOf(dialog.GetBounds()), gc500Feet, 1e-6);
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("does not know the block GC 77"));
    EXPECT_THAT(folder.Read("log.txt"), HasSubstr("does not know the block ZZ 1"));
}

TEST_F(QuickOffBldDlg, WithNoPickThatIsKnownTheBoundsStay) {
    CKvMapBounds map;
    map.SetXMin(1);
    map.SetXMax(2);
    map.SetLatMin(3);
    map.SetLatMax(4);
    const CKvMapBounds before = map;
    Set(dialog, {"GC#77", "ZZ#1"}, kSeveral, true);
    EXPECT_FALSE(dialog.ComputeBounds(map));
    EXPECT_EQ(test::XYOf(map), test::XYOf(before));
    EXPECT_EQ(test::AnglesOf(map), test::AnglesOf(before));
    SetCounties(dialog, {"99999"}, kOne);
    EXPECT_FALSE(dialog.ComputeBounds(map));
    EXPECT_EQ(test::AnglesOf(map), test::AnglesOf(before));
}

TEST_F(QuickOffBldDlg, WithoutPicksAtAllNoModeFails) {
    for (const ETemplateType type : {KV_TEMPLATE_ONSHORE, KV_TEMPLATE_OFFSHORE}) {
        for (const Mode mode : {kOne, kSeveral, kWindow}) {
            QuickDlg it(nullptr);
            it.SetTemplateType(type);
            it.SetMode(mode == kOne, mode == kSeveral, mode == kWindow);
            it.SetProj(115);
            EXPECT_EQ(Accept(it), IDOK);
            EXPECT_EQ(it.GetMapName(), "2000JAN14_09H30M15S");
            EXPECT_THAT(it.GetBounds().GetPickBlock(), IsEmpty());
        }
    }
}

TEST_F(QuickOffBldDlg, AFailureOfTheDatabaseIsToldAndTheNextChangeAsksAgain) {
    bool fails = false;
    Run(dialog, [&](kv::User& user) {
        Set(dialog, {"MP#123"}, kOne, true);
        fails = true;
        kv::db::SetDatabaseFault([&](std::string_view call) { return fails && call == "step"; });
        desktop.ExpectMessage("");
        user.Type(kWidth, "7");
        EXPECT_THAT(desktop.Messages().back(), HasSubstr("Database error"));
        fails = false;
        user.Type(kWidth, "1");
        user.Type(kHeight, "1");
        ExpectNear(ShownXY(user), Around(kPlaces.at("MP#123"), 115, kFeetUnits), kShownXY);
    });
    kv::db::SetDatabaseFault(nullptr);
}

// What is asked of the database.

TEST_F(QuickOffBldDlg, AsksTheDatabaseOfItsPicksOnce) {
    Set(dialog, {"GC#500", "GC#501", "MP#123"}, kSeveral, true);
    Run(dialog, [&](kv::User& user) {
        statements.clear();
        user.Type(kPercent, "15");
        user.Select(kPercent, "100");
        user.Click(kMeters);
        user.Click(kLatLonBounded);
        user.Click(kXYBounded);
        user.Select(kProjection, "116 UTM");
        user.Select(kProjection, "3   Louisiana South");
        user.Select(kProjection, "115 UTM");
        EXPECT_THAT(statements, IsEmpty());
        user.Click(IDOK);
        EXPECT_THAT(statements, IsEmpty());
    });
}

TEST_F(QuickOffBldDlg, AsksOfCountiesOnceToo) {
    SetCounties(dialog, {"48167", "48039"}, kSeveral);
    Run(dialog, [&](kv::User& user) {
        statements.clear();
        user.Type(kPercent, "15");
        user.Click(kMeters);
        user.Select(kProjection, "2   Texas South");
        EXPECT_THAT(statements, IsEmpty());
    });
}

TEST_F(QuickOffBldDlg, ManyPicksTakeHardlyMoreStatementsThanOne) {
    const auto statementsFor = [this](const std::vector<std::string>& picks) {
        QuickDlg it(nullptr);
        Set(it, picks, kSeveral, true);
        it.SetProj(115);
        statements.clear();
        it.ComputeALL();
        return statements.size();
    };
    const std::size_t one = statementsFor({"GC#500"});
    EXPECT_LE(one, 4U);
    EXPECT_EQ(statementsFor(std::vector<std::string>(500, "GC#500")), one);
    EXPECT_EQ(statementsFor({"GC#500", "GC#501", "GC#77"}), one);
}

TEST_F(QuickOffBldDlg, APercentageWithFiveHundredPicksAsksNothingAgain) {
    std::string rows;
    std::vector<std::string> picks;
    for (int number = 1000; number < 1500; ++number) {
        const std::string refnum = std::to_string(number);
        const double lat = 27.0 + (number % 25) * 0.05;
        const double lon = -92.0 + (number - 1000) / 25 * 0.05;
        picks.push_back("GC#" + refnum);
        rows +=
            "insert into gulf_mexico_lbi values ('43601', '" + refnum + "', null, " + refnum + ");";
        for (int corner = 1; corner <= 4; ++corner) {
            rows += "insert into gulf_mexico_lbv values (" + refnum + "," + std::to_string(corner) +
                    "," + std::to_string(lat + (corner > 2) * 0.05) + "," +
                    std::to_string(lon + (corner == 2 || corner == 3) * 0.05) + ");";
        }
    }
    test::RunOnSqliteFile(zones, "begin;" + rows + "commit;");
    Set(dialog, picks, kSeveral, true);
    Run(dialog, [&](kv::User& user) {
        statements.clear();
        for (const char* percent : {"15", "75", "100"})
            user.Select(kPercent, percent);
        EXPECT_THAT(statements, IsEmpty());
    });
    EXPECT_THAT(dialog.GetBounds().GetLatMin(), testing::Lt(27.0));
}

// Sizes and the end.

TEST_F(QuickOffBldDlg, OKWithoutAScaleComputesOne) {
    EXPECT_EQ(Accept(dialog), IDOK);
    EXPECT_GT(dialog.GetScale(), 0);
    EXPECT_EQ(dialog.GetBounds().GetScale(), 0);
    EXPECT_TRUE(dialog.GetTermination());
}

TEST_F(QuickOffBldDlg, TheScaleThatOKComputesIsOneOfTheUnit) {
    Accept(dialog, [](kv::User& user) { user.Click(kFeet); });
    EXPECT_EQ(dialog.GetScale(), 2000);
    Accept(dialog, [](kv::User& user) { user.Click(kMeters); });
    EXPECT_EQ(dialog.GetScale(), 25000);
}

TEST_F(QuickOffBldDlg, ThePersonsScaleIsKept) {
    Accept(dialog, [&](kv::User& user) { ChooseScale(user, "3000"); });
    EXPECT_EQ(dialog.GetScale(), 3000);
    EXPECT_EQ(dialog.GetBounds().GetScale(), 3000);
}

TEST_F(QuickOffBldDlg, TheSizingOptionsOpenWithTheScaleOfTheLastTime) {
    Accept(dialog, [&](kv::User& user) {
        ChooseScale(user, "3000");
        desktop.ExpectWindow("CKvGuiSizingDlg", [](kv::User& sizing) {
            EXPECT_EQ(sizing.Text(kv::sizing::kScale), "3000");
            sizing.Click(IDOK);
        });
        user.Click(kSizingOptions);
    });
    EXPECT_EQ(dialog.GetScale(), 3000);
}

TEST_F(QuickOffBldDlg, TheScaleThatWasChosenLastIsKeptByItsUnit) {
    Run(dialog, [&](kv::User& user) {
        for (const auto& [unit, scale] : {std::pair{kFeet, "3000"}, std::pair{kMeters, "25000"}}) {
            user.Click(unit);
            ChooseScale(user, scale);
        }
    });
    EXPECT_EQ(dialog.m_nFeetScale, 3000);
    EXPECT_EQ(dialog.m_nMeterScale, 25000);
}

TEST_F(QuickOffBldDlg, AScaleIsForgottenByTheNextChange) {
    Accept(dialog, [&](kv::User& user) {
        ChooseScale(user, "3000");
        EXPECT_TRUE(dialog.m_bScaleSet);
        user.Select(kWidth, "10");
        EXPECT_FALSE(dialog.m_bScaleSet);
    });
    EXPECT_NE(dialog.GetScale(), 3000);
}

TEST_F(QuickOffBldDlg, AScaleIsForgottenByAPercentageHoweverTheMapIsBounded) {
    for (const bool xyBounded : {true, false}) {
        QuickDlg several(nullptr);
        Set(several, {"GC#500", "GC#501"}, kSeveral, xyBounded);
        Accept(several, [&](kv::User& user) {
            ChooseScale(user, "3000");
            EXPECT_TRUE(several.m_bScaleSet);
            user.Select(kPercent, "50");
            EXPECT_FALSE(several.m_bScaleSet) << xyBounded;
        });
        EXPECT_NE(several.GetScale(), 3000) << xyBounded;
    }
}

TEST_F(QuickOffBldDlg, TheScaleOfACancelledSizingIsTakenToo) {
    Accept(dialog, [&](kv::User& user) {
        user.Click(kMeters);
        desktop.ExpectWindow("CKvGuiSizingDlg", [](kv::User& sizing) {
            EXPECT_EQ(sizing.Text(kv::sizing::kScaleUnit), "Meters");
            sizing.Type(kv::sizing::kScale, "3000");
            sizing.Click(IDCANCEL);
        });
        user.Click(kSizingOptions);
    });
    // As the dialog opened: one of feet, though the map is in meters.
    EXPECT_EQ(dialog.GetScale(), 1000);
}

TEST_F(QuickOffBldDlg, OKFillsTheRecordOfOnePick) {
    Accept(dialog, [](kv::User& user) {
        user.Select(kWidth, "5");
        user.Type(kHeight, "12");
        user.Select(kPercent, "10");
    });
    const CKvMapBounds& map = dialog.GetBounds();
    EXPECT_TRUE(map.GetPickOneFlag());
    EXPECT_FALSE(map.GetPickMultFlag());
    EXPECT_FALSE(map.GetPickWinFlag());
    EXPECT_FALSE(map.GetCustomMapFlag());
    EXPECT_TRUE(map.GetXYBounded());
    EXPECT_TRUE(map.GetFeet());
    EXPECT_EQ(map.GetSnapBoundsRange(), 0);
    EXPECT_THAT(map.GetPickArea(), ElementsAre("GC"));
    EXPECT_THAT(map.GetPickBlock(), ElementsAre("500"));
    EXPECT_THAT(map.GetPickExt(), ElementsAre(" "));
    EXPECT_EQ(map.GetPickMapWidth(), "5");
    EXPECT_EQ(map.GetPickMapHeight(), "12");
    EXPECT_EQ(map.GetPickMapPercent(), "10");
    EXPECT_EQ(map.GetPrimeProj(), 115);
    EXPECT_EQ(map.GetTemplateType(), KV_TEMPLATE_OFFSHORE);
}

TEST_F(QuickOffBldDlg, OKFillsTheRecordOfSeveralPicks) {
    Set(dialog, {"GC#500", "MP#124A"}, kSeveral, false);
    Accept(dialog, [](kv::User& user) { user.Select(kPercent, "10"); });
    const CKvMapBounds& map = dialog.GetBounds();
    EXPECT_FALSE(map.GetPickOneFlag());
    EXPECT_TRUE(map.GetPickMultFlag());
    EXPECT_FALSE(map.GetXYBounded());
    EXPECT_THAT(map.GetPickArea(), ElementsAre("GC", "MP"));
    EXPECT_THAT(map.GetPickBlock(), ElementsAre("500", "124"));
    EXPECT_THAT(map.GetPickExt(), ElementsAre(" ", "A"));
    EXPECT_EQ(map.GetPickMapWidth(), "");
    EXPECT_EQ(map.GetPickMapPercent(), "10");
}

TEST_F(QuickOffBldDlg, OKStoresNoPicksOfAWindow) {
    Set(dialog, {"GC#ALL"}, kSeveral, false);
    dialog.m_strMapPercent = "30";
    Accept(dialog);
    const CKvMapBounds& map = dialog.GetBounds();
    EXPECT_TRUE(map.GetPickWinFlag());
    EXPECT_FALSE(map.GetPickMultFlag());
    EXPECT_THAT(map.GetPickArea(), IsEmpty());
    EXPECT_THAT(map.GetPickBlock(), IsEmpty());
    EXPECT_EQ(map.GetPickMapPercent(), "30");
}

TEST_F(QuickOffBldDlg, OKTellsHowThisMapWasPickedWhateverTheRecordSaid) {
    CKvMapBounds map;
    map.SetPickOneFlag(true);
    map.SetPickMultFlag(true);
    map.SetPickWinFlag(true);
    map.SetCustomMapFlag(true);
    map.SetSnapBoundsRange(7);
    for (const Mode mode : {kOne, kSeveral, kWindow}) {
        dialog.SetBounds(map);
        Set(dialog, {"GC#500"}, mode, true);
        Accept(dialog);
        EXPECT_EQ(dialog.GetBounds().GetPickOneFlag(), mode == kOne);
        EXPECT_EQ(dialog.GetBounds().GetPickMultFlag(), mode == kSeveral);
        EXPECT_EQ(dialog.GetBounds().GetPickWinFlag(), mode == kWindow);
        EXPECT_FALSE(dialog.GetBounds().GetCustomMapFlag());
        EXPECT_EQ(dialog.GetBounds().GetSnapBoundsRange(), 0);
    }
}

TEST_F(QuickOffBldDlg, OKStoresNoBlockThatMeansTheWholeArea) {
    Accept(dialog, [&](kv::User&) { dialog.m_vBlocks = {"ALL"}; });
    EXPECT_THAT(dialog.GetBounds().GetPickArea(), ElementsAre("GC"));
    EXPECT_THAT(dialog.GetBounds().GetPickBlock(), IsEmpty());
}

TEST_F(QuickOffBldDlg, OKLeavesNoPicksOfAnEarlierMap) {
    CKvMapBounds map;
    map.SetPickArea("OLD");
    map.SetPickBlock("1");
    dialog.SetBounds(map);
    Accept(dialog);
    EXPECT_THAT(dialog.GetBounds().GetPickArea(), ElementsAre("GC"));
    dialog.SetMode(0, 0, 0);
    Accept(dialog);
    EXPECT_THAT(dialog.GetBounds().GetPickArea(), IsEmpty());
}

TEST_F(QuickOffBldDlg, CancelTerminatesNothing) {
    EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); }), IDCANCEL);
    EXPECT_FALSE(dialog.GetTermination());
}

TEST_F(QuickOffBldDlg, TerminationCanBeAskedAgainAndTheDialogRunAgain) {
    Accept(dialog);
    EXPECT_NE(dialog.m_pProjCtrl, nullptr);
    EXPECT_TRUE(dialog.GetTermination());
    EXPECT_EQ(dialog.m_pProjCtrl, nullptr);
    EXPECT_TRUE(dialog.GetTermination());
    Run(dialog, [](kv::User& user) {
        user.Select(kProjection, "116 UTM");
        user.Click(IDCANCEL);
    });
    EXPECT_FALSE(dialog.GetTermination());
    EXPECT_FALSE(dialog.GetTermination());
    dialog.ComputeALL();
}

TEST_F(QuickOffBldDlg, ReadOnlyBoxesThatArePassedThroughChangeNothing) {
    Run(dialog, [&](kv::User& user) {
        const CKvMapBounds before = dialog.m_tBounds;
        for (const int id : kXYBoxes)
            user.Focus(id);
        for (const int id : kAngleBoxes)
            user.Focus(id);
        user.Focus(kMapName);
        EXPECT_EQ(dialog.m_tBounds, before);
        user.Type(kXMin, "7");
        EXPECT_EQ(dialog.m_tBounds, before);
    });
}

TEST_F(QuickOffBldDlg, GivesTheTextOfALineOrOfTheBox) {
    EXPECT_EQ(dialog.GetComboSelValue(kWidth), "");
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(dialog.GetComboSelValue(kWidth), "3");
        user.Select(kWidth, "10");
        EXPECT_EQ(dialog.GetComboSelValue(kWidth), "10");
        user.Type(kWidth, "12");
        EXPECT_EQ(dialog.GetComboSelValue(kWidth), "12");
        EXPECT_EQ(dialog.GetComboSelValue(4711), "");
    });
}

}  // namespace
