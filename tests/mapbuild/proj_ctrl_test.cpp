#include "mapbuild/proj_ctrl.h"

#include <fstream>

#include "base/numbers.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/projection_fixture.h"
#include "window/acting/wait_scene.h"

using kv::ControlKind;
using test::ProjCtrl;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using namespace kv::proj_sel;

namespace {

constexpr int kCombo = 11;
constexpr int kOtherCombo = 12;

/// A host with two combo boxes, and a control on each.
class Host : public test::ProjectionTest {
protected:
    static void Begin(ProjCtrl& control, CDialog& dialog, int combo, int code) {
        control.Initialize(&dialog, combo, code, 0, false, 0.0, 0.0);
    }
    /// Shows the host with these codes, while a person does `act`.
    void Show(int code, int otherCode, const std::function<void(kv::User&)>& act) {
        dialog.onInit = [&, code, otherCode] {
            Begin(control, dialog, kCombo, code);
            Begin(other, dialog, kOtherCombo, otherCode);
            return TRUE;
        };
        dialog.when["11 sent 1"] = [&] { given = control.GetProjection(); };
        dialog.when["12 sent 1"] = [&] { otherGiven = other.GetProjection(); };
        Run(dialog, act);
    }
    void Show(const std::function<void(kv::User&)>& act) { Show(115, 116, act); }

    test::TestTemplate dialogTemplate{
        {{kCombo, ControlKind::kDropDown, "", {7, 7, 120, 12}},
         {kOtherCombo, ControlKind::kDropDown, "", {7, 23, 120, 12}}}};
    test::RecordingDialog dialog;
    ProjCtrl control;
    ProjCtrl other;
    /// What the controls answered last.
    int given = 0;
    int otherGiven = 0;
};

using ProjCtrlTest = Host;
using ProjectionCatalogue = Host;

// The catalogue.

TEST_F(ProjectionCatalogue, IsAskedForOnceByWhoeverComesFirst) {
    EXPECT_FALSE(ProjCtrl::m_bMapDescHasData);
    Show([](kv::User&) {});
    EXPECT_TRUE(ProjCtrl::m_bMapDescHasData);
    EXPECT_THAT(statements,
                ElementsAre(test::kZoneCatalogueStatement, test::kStatePlaneCatalogueStatement));
    CKvGuiProjCtrl::S_GetProjDesc(4);
    EXPECT_THAT(statements, SizeIs(2));
}

TEST_F(ProjectionCatalogue, IsAskedForByADescriptionToo) {
    CKvGuiProjCtrl::S_GetProjDesc(4);
    EXPECT_THAT(statements,
                ElementsAre(test::kZoneCatalogueStatement, test::kStatePlaneCatalogueStatement));
    Show([](kv::User&) {});
    EXPECT_THAT(statements, SizeIs(2));
}

TEST_F(ProjectionCatalogue, DescribesZonesSpheroidsAndStatePlanes) {
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "Zone : 4: North Coast");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(6000), "Zone : 6000: Of no kind");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(-4203), "Zone: -4203: North Coast");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(-102), "Zone: -102: West Hills");
    EXPECT_EQ(ProjCtrl::m_tMapDesc.at(100), "Clarke 1866");
    EXPECT_THAT(ProjCtrl::m_tMapDesc, SizeIs(13 + 5));
}

TEST_F(ProjectionCatalogue, DescribesAZoneByItsSpheroid) {
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(215), "Zone: 15: International");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(200), "Zone: 0: International");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(100), "Zone: 0: Clarke 1866");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4999), "");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(415), "Zone: 15: ");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(5000), "Zone : 5000: Old Survey");
}

TEST_F(ProjectionCatalogue, KnowsStraightMercatorOnlyFromARowOfItsOwn) {
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(199), "");
    EXPECT_EQ(ProjCtrl::m_tMapDesc.count(199), 1U);
}

TEST_F(ProjectionCatalogue, TakesStraightMercatorFromARowOfItsOwn) {
    test::RunOnSqliteFile(zones,
                          "insert into gulf_mexico_zone_code values (199, 'Sea', 'misc_other', "
                          "null)");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(199), "Zone : 199: Sea");
}

TEST_F(ProjectionCatalogue, GrowsByACodeThatItDoesNotKnow) {
    CKvGuiProjCtrl::S_GetProjDesc(4);
    const auto before = ProjCtrl::m_tMapDesc.size();
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(77), "");
    EXPECT_EQ(ProjCtrl::m_tMapDesc.size(), before + 1);
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(77), "");
    EXPECT_EQ(ProjCtrl::m_tMapDesc.size(), before + 1);
    CKvGuiProjCtrl::S_GetProjDesc(417);
    EXPECT_EQ(ProjCtrl::m_tMapDesc.size(), before + 3);
    EXPECT_EQ(ProjCtrl::m_tMapDesc.at(400), "");
}

TEST_F(ProjectionCatalogue, KeepsTheFirstOfTwoRowsWithOneCode) {
    test::RunOnSqliteFile(zones,
                          "insert into gulf_mexico_zone_code values (7001, 'A second one', "
                          "'misc_other', 4203), (7001, 'B', 'misc_other', null)");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(-4203), "Zone: -4203: A second one");
    EXPECT_THAT(CKvGuiProjCtrl::S_GetProjDesc(7001), HasSubstr("Zone : 7001: "));
}

TEST_F(ProjectionCatalogue, ThatCannotBeReadIsToldOnceAndNotAskedForAgain) {
    UseDatabase("sqlite:" + folder.Native("none.db"));
    desktop.ExpectMessage("");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "");
    EXPECT_THAT(desktop.Messages(), ElementsAre(HasSubstr("none.db")));
    UseDatabase("sqlite:" + zones);
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "");
}

TEST_F(ProjectionCatalogue, KeepsWhatItReadBeforeAFailure) {
    test::RunOnSqliteFile(zones,
                          "create table other as select zone_code, description, category from "
                          "gulf_mexico_zone_code; drop table gulf_mexico_zone_code; alter table "
                          "other rename to gulf_mexico_zone_code");
    desktop.ExpectMessage("");
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "Zone : 4: North Coast");
    EXPECT_THAT(desktop.Messages(), ElementsAre(HasSubstr("state_plane_code")));
    EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(-4203), "");
}

class ProjectionContradictions : public Host {
protected:
    /// The lines of the log that tell of a code.
    std::vector<std::string> Told() const {
        std::vector<std::string> told;
        std::ifstream log(folder.Native("log.txt"));
        for (std::string line; std::getline(log, line);) {
            const std::size_t at = line.find("Projection code ");
            if (at != std::string::npos) told.push_back(line.substr(at));
        }
        return told;
    }
    static std::string Line(const std::string& code, const std::string& table,
                            const std::string& builtIn) {
        return "Projection code " + code + " is \"" + table +
               "\" in the table of zones, but coordinates are converted as \"" + builtIn +
               "\" until RegisterProjection gives the code another meaning.";
    }
};

TEST_F(ProjectionContradictions, AreLoggedOnceByCodeAndBothNames) {
    const std::vector<std::string> lines{
        Line("4", "North Coast", "Arkansas North"),
        Line("40", "West Hills", "New York Long Island"),
        Line("60", "Two Parallels", "Utah North"),
        Line("200", "International", "Clarke 1880"),
        Line("300", "Bessel", "International 1924"),
        Line("5001", "Heart", "Alabama East"),
        Line("5002", "Globe", "Alabama West"),
        Line("-4203", "North Coast", "Texas Central"),
        Line("-102", "West Hills", "Alabama West"),
    };
    CKvGuiProjCtrl::S_GetProjDesc(4);
    EXPECT_THAT(Told(), testing::ElementsAreArray(lines));
    Show([](kv::User&) {});
    CKvGuiProjCtrl::S_GetProjDesc(-102);
    EXPECT_THAT(Told(), SizeIs(lines.size()));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(ProjectionContradictions, AreLoggedOfACodeThatWasAskedForBeforeACancelledReadingToo) {
    kv::QueryScenes queries(desktop);
    queries.Expect("", [](kv::User& wait) { wait.Click(IDCANCEL); });
    Run(dialog, [](kv::User&) {
        EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "");
        EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "Zone : 4: North Coast");
    });
    EXPECT_EQ(queries.Left(), 0);
    EXPECT_THAT(Told(), testing::Contains(Line("4", "North Coast", "Arkansas North")));
}

TEST_F(ProjectionContradictions, WhatWasReadAheadOfACancelIsKnown) {
    kv::QueryScenes queries(desktop);
    queries.Expect(
        "", [](kv::User& wait) { wait.Click(IDCANCEL); }, 1);
    Run(dialog,
        [](kv::User&) { EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(4), "Zone : 4: North Coast"); });
    EXPECT_EQ(queries.Left(), 0);
}

TEST_F(ProjectionContradictions, AreNoneInCaseBlanksAndSigns) {
    test::RunOnSqliteFile(
        zones,
        "delete from gulf_mexico_zone_code; insert into gulf_mexico_zone_code values "
        "(1, 'TEXAS, SOUTH-CENTRAL', 'state_lambert', 4204), (100, 'clarke  1866', "
        "'utm_spheroids', null), (74, 'Virgin Islands (St Croix)', 'state_lambert', 5202)");
    CKvGuiProjCtrl::S_GetProjDesc(1);
    EXPECT_THAT(Told(), IsEmpty());
    EXPECT_EQ(ProjCtrl::m_tMapDesc.at(-4204), "Zone: -4204: TEXAS, SOUTH-CENTRAL");
}

TEST_F(ProjectionContradictions, ADigitIsOne) {
    test::RunOnSqliteFile(zones,
                          "delete from gulf_mexico_zone_code; insert into gulf_mexico_zone_code "
                          "values (100, 'Clarke 1868', 'utm_spheroids', null)");
    CKvGuiProjCtrl::S_GetProjDesc(1);
    EXPECT_THAT(Told(), ElementsAre(Line("100", "Clarke 1868", "Clarke 1866")));
}

TEST_F(ProjectionContradictions, AreNoneWhereTheHostToldTheMeaning) {
    for (const int code : {4, -4203, 5001})
        ASSERT_TRUE(CKvUtilLLdrv::RegisterProjection(code, "+proj=utm +zone=15 +ellps=clrk66"));
    CKvGuiProjCtrl::S_GetProjDesc(4);
    EXPECT_THAT(Told(), Not(testing::Contains(HasSubstr("North Coast"))));
    EXPECT_THAT(Told(), SizeIs(6));
}

// The lines.

TEST_F(ProjCtrlTest, OffersSevenFavouritesAndMore) {
    Show([&](kv::User& user) {
        EXPECT_THAT(user.Rows(kCombo),
                    ElementsAre("1   Texas South Central", "2   Texas South", "3   Louisiana South",
                                "114 UTM", "115 UTM", "116 UTM", "117 UTM", "More..."));
        EXPECT_THAT(user.Selected(kCombo), ElementsAre(4));
        EXPECT_EQ(user.Text(kCombo), "115 UTM");
    });
}

TEST_F(ProjCtrlTest, GivesTheCodeOfEachFavourite) {
    Show(-1, 1, [&](kv::User& user) {
        EXPECT_THAT(user.Selected(kCombo), IsEmpty());
        const int codes[] = {1, 2, 3, 114, 115, 116, 117};
        for (int line = 0; line < 7; ++line) {
            user.Select(kCombo, line);
            EXPECT_EQ(given, codes[line]);
        }
    });
}

TEST_F(ProjCtrlTest, InitializeTakesTheZoneAndTheRectifyingPoint) {
    dialog.onInit = [&] {
        control.IsXYBounded(true);
        control.Initialize(&dialog, kCombo, 399, 99, true, 28.5, -91.25);
        EXPECT_EQ(control.m_nUTMZone, 99);
        EXPECT_TRUE(control.m_bRectSpec);
        EXPECT_EQ(control.m_dRectLat, 28.5);
        EXPECT_EQ(control.m_dRectLon, -91.25);
        EXPECT_EQ(control.m_nProjection, 399);
        // The host's, which it told ahead.
        EXPECT_TRUE(control.m_bXYBounded);
        other.Initialize(&dialog, kOtherCombo, -1, 15, false, 1.0, 2.0);
        EXPECT_EQ(other.m_nUTMZone, 15);
        EXPECT_FALSE(other.m_bRectSpec);
        EXPECT_EQ(other.m_nProjection, -1);
        EXPECT_FALSE(other.m_bXYBounded);
        return TRUE;
    };
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kCombo), "399 Straight Mercator");
        EXPECT_EQ(user.Text(kOtherCombo), "");
        EXPECT_THAT(user.Rows(kOtherCombo), SizeIs(8));
    });
}

TEST_F(ProjCtrlTest, TheRectifyingPointOfInitializeGoesIntoTheSelection) {
    dialog.onInit = [&] {
        control.Initialize(&dialog, kCombo, 115, 15, true, 28.5, -91.25);
        return TRUE;
    };
    Run(dialog, [&](kv::User& user) {
        ExpectPick(kStraightMercator, "Bessel");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            EXPECT_TRUE(zone.Checked(kv::utm_zone::kUserSpecified));
            EXPECT_EQ(zone.Text(kv::utm_zone::kLat), "28");
            EXPECT_EQ(zone.Text(kv::utm_zone::kLon), "-91");
            zone.Click(IDCANCEL);
        });
        user.Select(kCombo, "More...");
        control.GetProjection();
        EXPECT_EQ(control.m_dRectLat, 28.5);
    });
}

TEST_F(ProjCtrlTest, ASpheroidOfFourDigitsKeepsItsZone) {
    test::RunOnSqliteFile(zones,
                          "insert into gulf_mexico_zone_code values (2800, 'WGS 1984', "
                          "'utm_spheroids', null)");
    Show(2815, 116, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kCombo), "2815 UTM");
        EXPECT_EQ(CKvGuiProjCtrl::S_GetProjDesc(2815), "Zone: 15: WGS 1984");
        ExpectPick(kUtmSpheroids, "WGS 1984");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            EXPECT_EQ(zone.Text(kv::utm_zone::kZone), "15");
            zone.Type(kv::utm_zone::kZone, "17");
            zone.Click(IDOK);
        });
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 2817);
        EXPECT_EQ(control.m_nUTMZone, 17);
        EXPECT_EQ(user.Text(kCombo), "2817 UTM");
        ExpectPick(kStraightMercator, "WGS 1984");
        ExpectZone();
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 2899);
        EXPECT_EQ(user.Text(kCombo), "2899 Straight Mercator");
    });
}

TEST_F(ProjCtrlTest, AFavouriteThatIsSetAddsNoLine) {
    Show([&](kv::User& user) {
        for (const int code : {1, 2, 3, 114, 115, 116, 117}) {
            control.SetProjection(code);
            EXPECT_THAT(user.Rows(kCombo), SizeIs(8));
            EXPECT_EQ(kv::Atoi(user.Text(kCombo)), code);
        }
        EXPECT_EQ(control.m_nMoreCode, -1);
        EXPECT_EQ(control.m_nProjection, 115);
    });
}

TEST_F(ProjCtrlTest, AnotherCodeBecomesTheNinthLine) {
    Show([&](kv::User& user) {
        const std::pair<int, const char*> lines[] = {{4, "Zone : 4: North Coast"},
                                                     {-4203, "Zone: -4203: North Coast"},
                                                     {215, "215 UTM"},
                                                     {199, "199 Straight Mercator"},
                                                     {300, "300 UTM"},
                                                     {170, "170 UTM"},
                                                     {5000, "Zone : 5000: Old Survey"}};
        for (const auto& [code, text] : lines) {
            control.SetProjection(code);
            EXPECT_THAT(user.Rows(kCombo), SizeIs(9));
            EXPECT_EQ(user.Rows(kCombo).back(), text);
            EXPECT_THAT(user.Selected(kCombo), ElementsAre(8));
            EXPECT_EQ(control.m_nMoreCode, code);
        }
    });
}

TEST_F(ProjCtrlTest, TheNinthLineGivesItsCode) {
    Show(-4203, 116, [&](kv::User& user) {
        EXPECT_THAT(user.Selected(kCombo), ElementsAre(8));
        user.Select(kCombo, 0);
        EXPECT_EQ(given, 1);
        user.Select(kCombo, 8);
        EXPECT_EQ(given, -4203);
        EXPECT_EQ(user.Text(kCombo), "Zone: -4203: North Coast");
        EXPECT_THAT(user.Rows(kCombo), SizeIs(9));
    });
}

TEST_F(ProjCtrlTest, AnUnknownCodeHasALineWithoutATextAndTheMapGrowsByIt) {
    Show([&](kv::User& user) {
        const auto before = ProjCtrl::m_tMapDesc.size();
        control.SetProjection(77);
        EXPECT_EQ(ProjCtrl::m_tMapDesc.size(), before + 1);
        EXPECT_EQ(user.Rows(kCombo).back(), "");
        EXPECT_EQ(control.GetProjection(), 77);
        EXPECT_THAT(user.Rows(kCombo), SizeIs(9));
    });
}

TEST_F(ProjCtrlTest, WithoutACurrentLineGivesTheCodeOfTheNinth) {
    Show([&](kv::User& user) {
        user.Type(kCombo, "hello");
        EXPECT_THAT(user.Selected(kCombo), IsEmpty());
        EXPECT_EQ(control.GetProjection(), -1);
        control.SetProjection(4);
        user.Type(kCombo, "hello");
        EXPECT_EQ(control.GetProjection(), 4);
        EXPECT_EQ(user.Text(kCombo), "Zone : 4: North Coast");
    });
}

// More.

TEST_F(ProjCtrlTest, MoreTakesAPickFromTheSelectionDialog) {
    Show([&](kv::User& user) {
        ExpectPick(kStateLambert, "Zone: 4: North Coast");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 4);
        EXPECT_EQ(user.Text(kCombo), "Zone : 4: North Coast");
        EXPECT_THAT(user.Selected(kCombo), ElementsAre(8));

        ExpectPick(kStatePlane, "Zone: -102: West Hills");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, -102);
        EXPECT_THAT(user.Rows(kCombo), SizeIs(9));
        EXPECT_EQ(user.Text(kCombo), "Zone: -102: West Hills");
    });
}

TEST_F(ProjCtrlTest, AFavouritePickedUnderMoreSelectsItsOwnLine) {
    Show([&](kv::User& user) {
        ExpectPick(kUtmSpheroids, "Clarke 1866");
        ExpectZone("16");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 116);
        EXPECT_THAT(user.Selected(kCombo), ElementsAre(5));
        EXPECT_EQ(user.Text(kCombo), "116 UTM");
        EXPECT_EQ(control.m_nUTMZone, 16);
    });
}

TEST_F(ProjCtrlTest, MoreOpensTheZoneDialogAtTheZoneThatTheBoxShows) {
    Show([&](kv::User& user) {
        ExpectPick(kUtmSpheroids, "Clarke 1866");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            EXPECT_EQ(zone.Text(kv::utm_zone::kZone), "15");
            zone.Click(IDOK);
        });
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 115);
    });
}

TEST_F(ProjCtrlTest, ADescriptionInTheBoxTellsTheZoneDialogNothing) {
    Show(-4203, 116, [&](kv::User& user) {
        ExpectPick(kUtmSpheroids, "Clarke 1866");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            EXPECT_EQ(zone.Text(kv::utm_zone::kZone), "0");
            zone.Click(IDOK);
        });
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 100);
        EXPECT_EQ(user.Text(kCombo), "100 UTM");
    });
}

TEST_F(ProjCtrlTest, TakesTheRectifyingPointOfStraightMercator) {
    Show([&](kv::User& user) {
        ExpectPick(kStraightMercator, "Bessel");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            zone.Click(kv::utm_zone::kUserSpecified);
            zone.Type(kv::utm_zone::kLat, "28");
            zone.Type(kv::utm_zone::kLon, "-91");
            zone.Click(IDOK);
        });
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 399);
        EXPECT_EQ(user.Text(kCombo), "399 Straight Mercator");
        EXPECT_EQ(control.m_nUTMZone, 99);
        EXPECT_TRUE(control.m_bRectSpec);
        EXPECT_EQ(control.m_dRectLat, 28.0);
        EXPECT_EQ(control.m_dRectLon, -91.0);
    });
}

TEST_F(ProjCtrlTest, HandsItsRectifyingPointToTheNextSelection) {
    Show([&](kv::User& user) {
        control.m_bRectSpec = true;
        control.m_dRectLat = 29.75;
        control.m_dRectLon = -90.25;
        ExpectPick(kStraightMercator, "Bessel");
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
            EXPECT_TRUE(zone.Checked(kv::utm_zone::kUserSpecified));
            EXPECT_EQ(zone.Text(kv::utm_zone::kLat), "29");
            EXPECT_EQ(zone.Text(kv::utm_zone::kLon), "-90");
            zone.Click(IDOK);
        });
        user.Select(kCombo, "More...");
        EXPECT_EQ(control.m_dRectLat, 29.0);
        EXPECT_EQ(control.m_dRectLon, -90.0);
    });
}

TEST_F(ProjCtrlTest, AUtmZoneLeavesTheRectifyingPoint) {
    Show([&](kv::User& user) {
        control.m_bRectSpec = true;
        control.m_dRectLat = 29.75;
        ExpectPick(kUtmSpheroids, "International");
        ExpectZone("15");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 215);
        EXPECT_TRUE(control.m_bRectSpec);
        EXPECT_EQ(control.m_dRectLat, 29.75);
    });
}

TEST_F(ProjCtrlTest, ACancelledMoreGivesTheCodeOfTheLastInitializeOfTheProcess) {
    Show([&](kv::User& user) {
        user.Select(kCombo, 0);
        EXPECT_EQ(given, 1);
        ExpectCancelOf("CKvGuiProjSel");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 116);
        EXPECT_EQ(user.Text(kCombo), "116 UTM");
        EXPECT_EQ(user.Text(kOtherCombo), "116 UTM");
        EXPECT_EQ(control.m_nMoreCode, 116);

        ExpectCancelOf("CKvGuiProjSel");
        user.Select(kOtherCombo, "More...");
        EXPECT_EQ(otherGiven, 116);
    });
}

TEST_F(ProjCtrlTest, ACancelledZoneIsACancelledMore) {
    Show([&](kv::User& user) {
        ExpectPick(kUtmSpheroids, "International");
        ExpectCancelOf("CKvGuiUTMZoneDlg");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 116);
    });
}

TEST_F(ProjCtrlTest, ACancelledMoreWithNoCodeBeforeLeavesNoLine) {
    Show(115, -1, [&](kv::User& user) {
        ExpectCancelOf("CKvGuiProjSel");
        user.Select(kOtherCombo, "More...");
        EXPECT_EQ(otherGiven, -1);
        EXPECT_EQ(user.Text(kOtherCombo), "");
        // Whoever asks again opens nothing.
        EXPECT_EQ(other.GetProjection(), -1);
    });
}

TEST_F(ProjCtrlTest, ACodeThatIsNoFavouriteComesBackAsANinthLineOfTheOtherBox) {
    Show(115, -4203, [&](kv::User& user) {
        ExpectCancelOf("CKvGuiProjSel");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, -4203);
        EXPECT_EQ(user.Text(kCombo), "Zone: -4203: North Coast");
    });
}

TEST_F(ProjCtrlTest, RefusesStraightMercatorOnAMapBoundedByXY) {
    Show([&](kv::User& user) {
        control.IsXYBounded(true);
        ExpectPick(kStraightMercator, "Bessel");
        ExpectZone();
        desktop.ExpectMessage(
            "Invalid Entry!\n Straight Mercator is not valid for an XY-bounded map!\n");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 116);
        EXPECT_EQ(user.Text(kCombo), "116 UTM");
        EXPECT_EQ(control.m_nUTMZone, 99);
        EXPECT_FALSE(control.m_bRectSpec);
    });
}

TEST_F(ProjCtrlTest, TakesAUtmZoneOnAMapBoundedByXY) {
    Show([&](kv::User& user) {
        control.IsXYBounded(true);
        ExpectPick(kUtmSpheroids, "Bessel");
        ExpectZone("98");
        desktop.ExpectMessage("Invalid Entry! Please enter a code zone from 0 - 60 or 99.");
        user.Select(kCombo, "More...");
        EXPECT_EQ(given, 398);
        EXPECT_EQ(user.Text(kCombo), "398 UTM");
    });
}

TEST_F(ProjCtrlTest, ACopyDrivesTheSameBox) {
    Show([&](kv::User& user) {
        control.m_bRectSpec = true;
        control.m_dRectLat = 28.5;
        control.SetProjection(4);
        const ProjCtrl copy = control;
        EXPECT_TRUE(copy.m_bRectSpec);
        EXPECT_EQ(copy.m_dRectLat, 28.5);
        EXPECT_EQ(copy.m_nMoreCode, 4);
        ProjCtrl assigned;
        assigned = copy;
        EXPECT_EQ(assigned.GetProjection(), 4);
        assigned.SetProjection(2);
        EXPECT_EQ(user.Text(kCombo), "2   Texas South");
    });
}

}  // namespace
