#include "mapbuild/builders/map_building_prop.h"

#include "mapbuild/builders/map_fixture.h"
#include "window/controls/edit.h"

using namespace kv::quick_bld;
using test::Around;
using test::Box;
using test::ExpectNear;
using test::kFeetUnits;
using test::kPlaces;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PropDlg : public CKvGuiMapBuildingProp {
public:
    using CKvGuiMapBuildingProp::CKvGuiMapBuildingProp;
    using CKvGuiMapBuildingProp::m_tBounds;
    using CKvGuiMapBuildingProp::m_tOrigBounds;
};

class MapBuildingProp : public test::MapTest {
protected:
    enum Kind { kBlock, kBlocks, kAll, kCustom };

    /// A stored map: three times the block GC 500, enlarged by 10 percent, in whole feet.
    static CKvMapBounds Stored(Kind kind, bool xyBounded) {
        CKvMapBounds map;
        map.SetXMin(2'000'000);
        map.SetXMax(2'120'000);
        map.SetYMin(9'940'000);
        map.SetYMax(10'060'000);
        map.SetLatMin(27.0);
        map.SetLatMax(28.2);
        map.SetLonMin(-91.2);
        map.SetLonMax(-90.0);
        map.SetPrimeProj(115);
        map.SetXYBounded(xyBounded);
        map.SetPickOneFlag(kind == kBlock);
        map.SetPickMultFlag(kind == kBlocks);
        map.SetPickWinFlag(kind == kAll);
        map.SetCustomMapFlag(kind == kCustom);
        return map;
    }
    void Set(Kind kind, bool xyBounded, std::vector<std::string> picks = {"GC#500"}) {
        CKvMapBounds map = Stored(kind, xyBounded);
        dialog.SetBounds(map);
        dialog.SetXYBounded(xyBounded);
        dialog.SetProj(115);
        dialog.SetMapName("STORED");
        dialog.ResetABEVec();
        dialog.SetIDs(picks);
        dialog.SetMapWidth("5");
        dialog.SetMapHeight("7");
        dialog.SetMapPercent("10");
    }
    static bool ReadOnly(kv::User& user, int id) {
        return (user.Window().Control<CEdit>(id).GetStyle() & ES_READONLY) != 0;
    }

    PropDlg dialog{nullptr};
};

TEST_F(MapBuildingProp, ShowsTheStoredMapUntilSomethingIsChanged) {
    Set(kBlock, true);
    CKvGuiQuickOffBldDlg::m_nDefWidth = 4;
    CKvGuiQuickOffBldDlg::m_nDefHeight = 2;
    const CKvMapBounds stored = dialog.m_tBounds;
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Map Properties");
        EXPECT_EQ(user.Text(kMapName), "STORED");
        EXPECT_EQ(user.Text(kWidth), "5");
        EXPECT_EQ(user.Text(kHeight), "7");
        EXPECT_EQ(user.Text(kPercent), "10");
        EXPECT_EQ(user.Text(kProjection), "115 UTM");
        ExpectNear(ShownXY(user), test::XYOf(stored), kShownXY);
        ExpectNear(ShownAngles(user), test::AnglesOf(stored), kShownAngle);
        user.Click(IDOK);
    });
    EXPECT_EQ(CKvGuiQuickOffBldDlg::m_nDefWidth, 4);
    EXPECT_EQ(CKvGuiQuickOffBldDlg::m_nDefHeight, 2);
    EXPECT_EQ(test::XYOf(dialog.GetBounds()), test::XYOf(stored));
    EXPECT_EQ(test::AnglesOf(dialog.GetBounds()), test::AnglesOf(stored));
    EXPECT_THAT(dialog.GetBounds().GetPickBlock(), ElementsAre("500"));
    EXPECT_EQ(dialog.GetBounds().GetPickMapWidth(), "5");
    EXPECT_TRUE(dialog.GetTermination());
}

TEST_F(MapBuildingProp, AMapOfOneBlockAndOfSeveralCountsAsOneOfSeveral) {
    Set(kBlocks, true);
    dialog.m_tBounds.SetPickOneFlag(true);
    CKvGuiQuickOffBldDlg::m_nDefWidth = 4;
    CKvGuiQuickOffBldDlg::m_nDefHeight = 2;
    Run(dialog, [](kv::User& user) {
        // Its width and height are none that were stored.
        EXPECT_EQ(user.Text(kWidth), "4");
        EXPECT_EQ(user.Text(kHeight), "2");
        EXPECT_FALSE(user.Enabled(kWidth));
        EXPECT_FALSE(user.Enabled(kHeight));
        EXPECT_TRUE(user.Enabled(kPercent));
    });
}

TEST_F(MapBuildingProp, AMapThatNobodyPickedCanBeWidenedByAPercentage) {
    Set(kCustom, true);
    dialog.m_tBounds.SetCustomMapFlag(false);
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Enabled(kWidth));
        EXPECT_FALSE(user.Enabled(kHeight));
        EXPECT_TRUE(user.Enabled(kPercent));
    });
}

TEST_F(MapBuildingProp, OKKeepsHowTheMapWasPicked) {
    for (const Kind kind : {kBlock, kBlocks, kAll, kCustom}) {
        Set(kind, true);
        Run(dialog, [](kv::User& user) { user.Click(IDOK); });
        EXPECT_EQ(dialog.GetBounds().GetPickOneFlag(), kind == kBlock);
        EXPECT_EQ(dialog.GetBounds().GetPickMultFlag(), kind == kBlocks);
        EXPECT_EQ(dialog.GetBounds().GetPickWinFlag(), kind == kAll);
        EXPECT_EQ(dialog.GetBounds().GetCustomMapFlag(), kind == kCustom);
    }
}

TEST_F(MapBuildingProp, UnitsAndKindOfBoundsDoNotChangeHere) {
    for (const Kind kind : {kBlock, kBlocks, kAll, kCustom}) {
        Set(kind, true);
        Run(dialog, [&](kv::User& user) {
            for (const int id : {kFeet, kMeters, kXYBounded, kLatLonBounded})
                EXPECT_FALSE(user.Enabled(id)) << id;
        });
    }
}

TEST_F(MapBuildingProp, EnablesTheSizesByTheKindOfTheMap) {
    const struct {
        Kind kind;
        bool size;
        bool percent;
    } cases[] = {
        {kBlock, true, true}, {kBlocks, false, true}, {kAll, false, true}, {kCustom, false, false}};
    for (const auto& each : cases) {
        Set(each.kind, true);
        Run(dialog, [&](kv::User& user) {
            EXPECT_EQ(user.Enabled(kWidth), each.size) << each.kind;
            EXPECT_EQ(user.Enabled(kHeight), each.size) << each.kind;
            EXPECT_EQ(user.Enabled(kPercent), each.percent) << each.kind;
        });
    }
}

TEST_F(MapBuildingProp, AChangeBeginsAtTheBoundsOfThePicks) {
    Set(kBlock, true);
    const CMinMax2Dd_t block = Around(kPlaces.at("GC#500"), 115, kFeetUnits);
    Run(dialog, [&](kv::User& user) {
        user.Select(kPercent, "0");
        user.Select(kWidth, "1");
        user.Select(kHeight, "1");
        ExpectNear(ShownXY(user), block, kShownXY);
    });
    // The width of a map that there is, is its own.
    EXPECT_NE(CKvGuiQuickOffBldDlg::m_nDefWidth, 1);
}

TEST_F(MapBuildingProp, AMapWithoutPicksGoesBackToWhatItWasAheadOfThePercentage) {
    Set(kAll, true, {});
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kPercent), "10");
        ExpectNear(test::XYOf(dialog.m_tOrigBounds), {2'010'000, 2'110'000, 9'950'000, 10'050'000},
                   1e-6);
        ExpectNear(ShownXY(user), test::XYOf(Stored(kAll, true)), kShownXY);
    });
    Set(kAll, false, {});
    Run(dialog, [&](kv::User& user) {
        ExpectNear(test::AnglesOf(dialog.m_tOrigBounds), {27.1, 28.1, -91.1, -90.1}, 1e-9);
        user.Select(kPercent, "0");
        ExpectNear(ShownAngles(user), {27.1, 28.1, -91.1, -90.1}, kShownAngle);
        user.Select(kPercent, "10");
        ExpectNear(ShownAngles(user), {27.0, 28.2, -91.2, -90.0}, kShownAngle);
    });
    EXPECT_EQ(dialog.GetMapPercent(), "10");
}

TEST_F(MapBuildingProp, KeepsTheRecordOfTheMapThroughAChange) {
    Set(kBlock, true);
    dialog.m_tBounds.SetScale(4000);
    Run(dialog, [](kv::User& user) {
        user.Select(kWidth, "10");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetBounds().GetScale(), 4000);
    EXPECT_EQ(dialog.GetBounds().GetPickMapWidth(), "10");
}

TEST_F(MapBuildingProp, KeepsItsBoundsWhereTheDatabaseKnowsNoneOfThePicks) {
    Set(kBlock, false, {"ZZ#1"});
    Run(dialog, [&](kv::User& user) {
        user.Select(kWidth, "1");
        user.Select(kHeight, "1");
        user.Select(kPercent, "0");
        ExpectNear(ShownAngles(user), {27.0, 28.2, -91.2, -90.0}, kShownAngle);
    });
}

TEST_F(MapBuildingProp, BoundsOfItsOwnKindCanBeTyped) {
    for (const bool xyBounded : {true, false}) {
        Set(kBlock, xyBounded);
        Run(dialog, [&](kv::User& user) {
            for (const int id : kXYBoxes)
                EXPECT_EQ(ReadOnly(user, id), !xyBounded) << id;
            for (const int id : kAngleBoxes)
                EXPECT_EQ(ReadOnly(user, id), xyBounded) << id;
        });
    }
}

TEST_F(MapBuildingProp, TypedXYGiveTheAngles) {
    Set(kCustom, true);
    Run(dialog, [&](kv::User& user) {
        const CMinMax2Dd_t before = ShownAngles(user);
        user.Type(kXMin, "1900000");
        EXPECT_EQ(dialog.m_tBounds.GetXMin(), 2'000'000.0);
        user.Focus(kYMin);
        EXPECT_EQ(dialog.m_tBounds.GetXMin(), 1'900'000.0);
        EXPECT_EQ(user.Text(kXMin), "1900000.00");
        double lat = 0.0;
        double lon = 0.0;
        CKvUtilLLdrv::XYdrv(1'900'000, 9'940'000, &lat, &lon, 115, kFeetUnits, 1, 100.0, 0.0, 0.0);
        EXPECT_NEAR(ShownAngles(user).minX, lat, kShownAngle);
        EXPECT_NEAR(ShownAngles(user).minY, lon, kShownAngle);
        EXPECT_NE(ShownAngles(user).maxY, before.maxY);
        const CKvMapBounds& map = dialog.m_tBounds;
        EXPECT_NEAR(map.GetRectifyingLat(), (map.GetLatMin() + map.GetLatMax()) / 2, 1e-12);
        EXPECT_NEAR(map.GetRectifyingLon(), (map.GetLonMin() + map.GetLonMax()) / 2, 1e-12);
        for (const int id : {kYMin, kXMax, kYMax})
            user.Type(id, id == kXMax ? "2300000" : "9990000");
        user.Focus(kMapName);
        ExpectNear(test::XYOf(dialog.m_tBounds), {1'900'000, 2'300'000, 9'990'000, 9'990'000}, 0);
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetBounds().GetXMax(), 2'300'000.0);
}

TEST_F(MapBuildingProp, TypedAnglesGiveXY) {
    Set(kCustom, false);
    Run(dialog, [&](kv::User& user) {
        user.Type(kLatMinMin, "30");
        user.Focus(kLatMinSec);
        EXPECT_NEAR(dialog.m_tBounds.GetLatMin(), 27.5, 1e-12);
        const auto [x, y] = test::Projected(27.5, -91.2, 115, kFeetUnits);
        EXPECT_NEAR(ShownXY(user).minX, x, kShownXY);
        EXPECT_NEAR(ShownXY(user).minY, y, kShownXY);
        user.Type(kLonMinDeg, "-92");
        user.Focus(kLonMinMin);
        EXPECT_NEAR(dialog.m_tBounds.GetLonMin(), -92.2, 1e-9);
        user.Type(kLatMaxDeg, "29");
        user.Focus(kLatMaxMin);
        EXPECT_NEAR(dialog.m_tBounds.GetLatMax(), 29.2, 1e-9);
        user.Type(kLonMaxDeg, "-89");
        user.Focus(kLonMaxMin);
        EXPECT_NEAR(dialog.m_tBounds.GetLonMax(), -89.0, 1e-9);
    });
}

TEST_F(MapBuildingProp, OfTheUpperRightCornerTheDegreesAloneReact) {
    Set(kCustom, false);
    Run(dialog, [&](kv::User& user) {
        for (const int id : {kLatMaxMin, kLatMaxSec, kLonMaxMin, kLonMaxSec}) {
            user.Type(id, "5");
            user.Focus(kMapName);
        }
        EXPECT_EQ(test::AnglesOf(dialog.m_tBounds), test::AnglesOf(Stored(kCustom, false)));
        // The next of them reads them all.
        user.Type(kLatMaxDeg, "29");
        user.Focus(kMapName);
        EXPECT_NEAR(dialog.m_tBounds.GetLatMax(), 29 + 5 / 60.0 + 5 / 3600.0, 1e-12);
        EXPECT_NEAR(dialog.m_tBounds.GetLonMax(), -90 - 5 / 60.0 - 5 / 3600.0, 1e-12);
    });
}

TEST_F(MapBuildingProp, LeavingTheDegreesOfTheUpperRightCornerReadsWhatWasTypedBesideThem) {
    for (const int degrees : {kLatMaxDeg, kLonMaxDeg}) {
        for (const int id : {kLatMaxMin, kLatMaxSec, kLonMaxMin, kLonMaxSec}) {
            Set(kCustom, false);
            Run(dialog, [&](kv::User& user) {
                user.Type(id, "7");
                user.Focus(degrees);
                EXPECT_EQ(test::AnglesOf(dialog.m_tBounds), test::AnglesOf(Stored(kCustom, false)));
                user.Focus(kMapName);
                EXPECT_NE(test::AnglesOf(dialog.m_tBounds), test::AnglesOf(Stored(kCustom, false)));
                EXPECT_EQ(user.Text(id), "7");
            });
        }
    }
}

TEST_F(MapBuildingProp, DegreesOfMinusZeroAreWest) {
    Set(kCustom, false);
    Run(dialog, [&](kv::User& user) {
        user.Type(kLonMinMin, "30");
        user.Type(kLonMinDeg, "-0");
        user.Focus(kMapName);
        EXPECT_NEAR(dialog.m_tBounds.GetLonMin(), -0.5, 1e-9);
        EXPECT_EQ(user.Text(kLonMinDeg), "-0");
        EXPECT_EQ(user.Text(kLonMinMin), "30");
    });
}

TEST_F(MapBuildingProp, ABoxThatIsOnlyPassedThroughChangesNothing) {
    for (const bool xyBounded : {true, false}) {
        Set(kCustom, xyBounded);
        // Not what a box can show.
        dialog.m_tBounds.SetXMin(2'000'000.123456);
        dialog.m_tBounds.SetLatMin(27.0123456789);
        Run(dialog, [&](kv::User& user) {
            const CKvMapBounds before = dialog.m_tBounds;
            for (const int id : kXYBoxes)
                user.Focus(id);
            for (const int id : kAngleBoxes)
                user.Focus(id);
            user.Focus(kMapName);
            EXPECT_EQ(dialog.m_tBounds, before);
        });
    }
}

TEST_F(MapBuildingProp, TypedXYThatNoPlaceHasLeaveTheAnglesEmpty) {
    Set(kCustom, true);
    Run(dialog, [&](kv::User& user) {
        user.Type(kXMin, "9e15");
        user.Focus(kMapName);
        for (const int id : kAngleBoxes)
            EXPECT_EQ(user.Text(id), "") << id;
        user.Type(kXMin, "2000000");
        user.Focus(kMapName);
        EXPECT_NE(user.Text(kLatMinDeg), "");
    });
}

TEST_F(MapBuildingProp, OnshoreItKeepsItsCaption) {
    Set(kBlock, true, {});
    dialog.SetBlock("48167");
    dialog.SetTemplateType(KV_TEMPLATE_ONSHORE);
    Run(dialog, [](kv::User& user) { EXPECT_EQ(user.Window().WindowText(), "Map Properties"); });
}

TEST_F(MapBuildingProp, AnUnnamedMapOfSeveralBlocksIsNamedByTheClock) {
    Set(kBlocks, true);
    dialog.SetMapName("");
    Run(dialog, [](kv::User& user) { EXPECT_EQ(user.Text(kMapName), "2000JAN14_09H30M15S"); });
}

TEST_F(MapBuildingProp, KeepsWhatItIsGiven) {
    dialog.SetMapWidth("1");
    dialog.SetMapHeight("2");
    dialog.SetMapPercent("3");
    dialog.SetMapSnapRange(4);
    EXPECT_EQ(dialog.GetMapWidth(), "1");
    EXPECT_EQ(dialog.GetMapHeight(), "2");
    EXPECT_EQ(dialog.GetMapPercent(), "3");
    EXPECT_EQ(dialog.GetMapSnapRange(), 4);
}

}  // namespace
