#include "mapbuild/proj_sel.h"

#include "mapbuild/projection_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using namespace kv::proj_sel;

namespace {

constexpr int kRadios[] = {kStateLambert, kStateTransverseMercator,
                           kMiscLambert,  kMiscTransverseMercator,
                           kUtmSpheroids, kMiscOther,
                           kStatePlane,   kStraightMercator};

class ProjSel : public test::ProjectionTest {
protected:
    /// Clicks a radio button; answers the rows.
    std::vector<std::string> RowsOf(int radio) {
        std::vector<std::string> rows;
        Run(dialog, [&](kv::User& user) {
            user.Click(radio);
            rows = user.Rows(kList);
        });
        return rows;
    }
    /// Opens the zone dialog of a spheroid, and looks at it.
    void LookAtZone(int radio, const std::string& spheroid,
                    const std::function<void(kv::User&)>& look) {
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [look](kv::User& zone) {
            look(zone);
            if (zone.Open()) zone.Click(IDOK);
        });
        Run(dialog, [&](kv::User& user) {
            user.Click(radio);
            user.Select(kList, spheroid);
            user.Click(IDOK);
        });
    }
    /// The code that a row gives.
    int Picked(int radio, const std::string& row) {
        EXPECT_EQ(Run(dialog,
                      [&](kv::User& user) {
                          user.Click(radio);
                          user.Select(kList, row);
                          user.Click(IDOK);
                      }),
                  IDOK);
        return dialog.m_nProjection;
    }

    CKvGuiProjSel dialog{115, nullptr};
};

TEST_F(ProjSel, OpensWithNoTypeChosenAndNoRows) {
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(test::FocusedId(), kStateLambert);
        for (const int radio : kRadios)
            EXPECT_FALSE(user.Checked(radio)) << radio;
        EXPECT_THAT(user.Rows(kList), IsEmpty());
    });
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_EQ(dialog.m_nProjection, 1);
    EXPECT_FALSE(dialog.GetStraightMercatorFlag());
}

TEST_F(ProjSel, TheFirstTypeCanBeChosenByTheSpaceBar) {
    Run(dialog, [&](kv::User& user) {
        user.Key(0, "Space");
        EXPECT_TRUE(user.Checked(kStateLambert));
        EXPECT_EQ(user.Rows(kList).size(), 4U);
    });
}

TEST_F(ProjSel, HidesCassiniAndBonne) {
    Run(dialog, [&](kv::User& user) {
        EXPECT_FALSE(user.Visible(kMiscCassini));
        EXPECT_FALSE(user.Visible(kMiscBonne));
    });
}

TEST_F(ProjSel, OkWithoutATypeIsTold) {
    Run(dialog, [&](kv::User& user) {
        desktop.ExpectMessage("You have not chosen a projection yet.");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
    });
    EXPECT_EQ(dialog.m_nProjection, 1);
}

TEST_F(ProjSel, OkOnATypeWithoutRowsIsTold) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kStateLambert);
        user.Click(kMiscTransverseMercator);
        EXPECT_THAT(user.Rows(kList), IsEmpty());
        desktop.ExpectMessage("You have not chosen a projection yet.");
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
    });
}

// Each type: its statement to the letter, and its rows.

TEST_F(ProjSel, StateLambert) {
    EXPECT_THAT(RowsOf(kStateLambert),
                ElementsAre("Zone: 1: Texas South Central", "Zone: 2: Texas South",
                            "Zone: 3: Louisiana South", "Zone: 4: North Coast"));
    EXPECT_THAT(statements,
                ElementsAre("select 'Zone: ' || to_char(zone_code) || ': ' || "
                            "description,zone_code from NORVADON.gulf_mexico_zone_code where "
                            "category in ('state_lambert') order by zone_code"));
}

TEST_F(ProjSel, StateTransverseMercator) {
    EXPECT_THAT(RowsOf(kStateTransverseMercator), ElementsAre("Zone: 40: West Hills"));
    EXPECT_THAT(statements,
                ElementsAre("select 'Zone: ' || to_char(zone_code) || ': ' || "
                            "description,zone_code from NORVADON.gulf_mexico_zone_code where "
                            "category in ('state_trans_mercator') order by zone_code"));
}

TEST_F(ProjSel, MiscellaneousLambert) {
    EXPECT_THAT(RowsOf(kMiscLambert), ElementsAre("Zone: 60: Two Parallels"));
    EXPECT_THAT(statements,
                ElementsAre("select 'Zone: ' || to_char(zone_code) || ': ' || "
                            "description,zone_code from NORVADON.gulf_mexico_zone_code where "
                            "category in ('misc_lambert') order by zone_code"));
}

TEST_F(ProjSel, MiscellaneousTransverseMercator) {
    EXPECT_THAT(RowsOf(kMiscTransverseMercator), IsEmpty());
    EXPECT_THAT(statements,
                ElementsAre("select 'Zone: ' || to_char(zone_code) || ': ' || "
                            "description,zone_code from NORVADON.gulf_mexico_zone_code where "
                            "category in ('misc_trans_mercator') order by zone_code"));
}

TEST_F(ProjSel, UtmOnVariousSpheroids) {
    EXPECT_THAT(RowsOf(kUtmSpheroids), ElementsAre("Clarke 1866", "International", "Bessel"));
    EXPECT_THAT(statements,
                ElementsAre("select description,zone_code from NORVADON.gulf_mexico_zone_code "
                            "where category='utm_spheroids' order by zone_code"));
}

TEST_F(ProjSel, MiscellaneousOtherAsksForThreeCategories) {
    EXPECT_THAT(RowsOf(kMiscOther),
                ElementsAre("Zone: 5000: Old Survey", "Zone: 5001: Heart", "Zone: 5002: Globe"));
    EXPECT_THAT(statements,
                ElementsAre("select 'Zone: ' || to_char(zone_code) || ': ' || "
                            "description,zone_code from NORVADON.gulf_mexico_zone_code where "
                            "category in ('misc_boone','misc_cassini', 'misc_other') order by "
                            "zone_code"));
}

TEST_F(ProjSel, StatePlane) {
    EXPECT_THAT(RowsOf(kStatePlane),
                ElementsAre("Zone: -1702: Louisiana South", "Zone: -4203: North Coast",
                            "Zone: -4205: Texas South", "Zone: -4204: Texas South Central",
                            "Zone: -102: West Hills"));
    EXPECT_THAT(statements,
                ElementsAre("select 'Zone: ' || to_char(-1*state_plane_code) || ': ' || "
                            "description,state_plane_code from NORVADON.gulf_mexico_zone_code "
                            "where state_plane_code is not null order by description"));
}

TEST_F(ProjSel, StraightMercator) {
    EXPECT_THAT(RowsOf(kStraightMercator), ElementsAre("Clarke 1866", "International", "Bessel"));
    EXPECT_THAT(statements,
                ElementsAre("select description,zone_code from NORVADON.gulf_mexico_zone_code "
                            "where category='utm_spheroids' order by zone_code"));
    EXPECT_TRUE(dialog.GetStraightMercatorFlag());
}

TEST_F(ProjSel, EachTypeTakesTheStraightMercatorFlagBackButStateLambert) {
    Run(dialog, [&](kv::User& user) {
        for (const int radio : kRadios) {
            user.Click(kStraightMercator);
            user.Click(radio);
            const bool stays = radio == kStateLambert || radio == kStraightMercator;
            EXPECT_EQ(dialog.GetStraightMercatorFlag(), stays) << radio;
        }
    });
}

TEST_F(ProjSel, SelectsTheFirstRow) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kStateLambert);
        EXPECT_THAT(user.Selected(kList), ElementsAre(0));
        user.Select(kList, 2);
        user.Click(kStatePlane);
        EXPECT_THAT(user.Selected(kList), ElementsAre(0));
    });
}

TEST_F(ProjSel, AFailureOfTheDatabaseIsToldAndLeavesTheListEmpty) {
    Run(dialog, [&](kv::User& user) {
        user.Click(kStateLambert);
        UseDatabase("sqlite:" + folder.Native("none.db"));
        desktop.ExpectMessage("");
        user.Click(kMiscLambert);
        EXPECT_THAT(user.Rows(kList), IsEmpty());
        EXPECT_THAT(desktop.Messages(), ElementsAre(HasSubstr("none.db")));
    });
}

// The outcome.

TEST_F(ProjSel, GivesTheCodeAndTheTextOfARow) {
    EXPECT_EQ(Picked(kStateLambert, "Zone: 4: North Coast"), 4);
    EXPECT_EQ(dialog.m_sDescription.str(), "Zone: 4: North Coast");
    EXPECT_EQ(Picked(kStatePlane, "Zone: -4203: North Coast"), -4203);
    EXPECT_EQ(dialog.m_sDescription.str(), "Zone: -4203: North Coast");
    EXPECT_EQ(Picked(kMiscOther, "Zone: 5001: Heart"), 5001);
    EXPECT_EQ(Picked(kMiscLambert, "Zone: 60: Two Parallels"), 60);
}

TEST_F(ProjSel, StraightMercatorOnASpheroidGivesTheSpheroidAnd99) {
    ExpectZone();
    EXPECT_EQ(Picked(kStraightMercator, "Bessel"), 399);
    EXPECT_EQ(dialog.m_sDescription.str(), "399 Straight Mercator");
    EXPECT_EQ(dialog.GetUTMZone(), 99);
}

TEST_F(ProjSel, AUtmZoneGivesTheSpheroidAndTheZone) {
    ExpectZone("15");
    EXPECT_EQ(Picked(kUtmSpheroids, "International"), 215);
    EXPECT_EQ(dialog.m_sDescription.str(), "215 UTM");
    EXPECT_EQ(dialog.GetUTMZone(), 15);
}

TEST_F(ProjSel, AZoneOf70IsToldAndTaken) {
    ExpectZone("70");
    desktop.ExpectMessage("Invalid Entry! Please enter a code zone from 0 - 60 or 99.");
    EXPECT_EQ(Picked(kUtmSpheroids, "Clarke 1866"), 170);
    EXPECT_EQ(dialog.m_sDescription.str(), "170 UTM");
}

TEST_F(ProjSel, TheZone99IsStraightMercatorWhereverItIsTyped) {
    ExpectZone("99");
    EXPECT_EQ(Picked(kUtmSpheroids, "Clarke 1866"), 199);
    EXPECT_EQ(dialog.m_sDescription.str(), "199 Straight Mercator");
}

TEST_F(ProjSel, OpensTheZoneDialogAtTheCallersZoneOnThatSpheroid) {
    LookAtZone(kUtmSpheroids, "Clarke 1866",
               [](kv::User& zone) { EXPECT_EQ(zone.Text(kv::utm_zone::kZone), "15"); });
    EXPECT_EQ(dialog.m_nProjection, 115);
}

TEST_F(ProjSel, ACodeOnNoSpheroidMakesAZoneThatTheEditRefusesAndTheBoxGets0) {
    CKvGuiProjSel other(1, nullptr);
    desktop.ExpectWindow("CKvGuiUTMZoneDlg", [](kv::User& zone) {
        EXPECT_EQ(zone.Text(kv::utm_zone::kZone), "0");
        EXPECT_TRUE(zone.Enabled(kv::utm_zone::kZone));
        zone.Click(IDOK);
    });
    Run(other, [&](kv::User& user) {
        user.Click(kUtmSpheroids);
        user.Click(IDOK);
    });
    EXPECT_EQ(other.m_nProjection, 100);
    EXPECT_EQ(other.m_sDescription.str(), "100 UTM");
}

TEST_F(ProjSel, ACancelledZoneDialogCancelsThisOne) {
    ExpectCancelOf("CKvGuiUTMZoneDlg");
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Click(kUtmSpheroids);
                      user.Click(IDOK);
                  }),
              IDCANCEL);
    EXPECT_EQ(dialog.m_nProjection, 100);
}

TEST_F(ProjSel, RectifyingDegreesComeBackWhole) {
    dialog.SetRectSpec(true);
    dialog.SetRectSpecLat(29.75);
    dialog.SetRectSpecLon(-90.75);
    LookAtZone(kStraightMercator, "Bessel", [](kv::User& zone) {
        EXPECT_EQ(zone.Text(kv::utm_zone::kLat), "29");
        EXPECT_EQ(zone.Text(kv::utm_zone::kLon), "-90");
        EXPECT_TRUE(zone.Checked(kv::utm_zone::kUserSpecified));
    });
    EXPECT_TRUE(dialog.GetRectSpec());
    EXPECT_EQ(dialog.GetRectSpecLat(), 29.0);
    EXPECT_EQ(dialog.GetRectSpecLon(), -90.0);
}

TEST_F(ProjSel, AUtmZoneLeavesTheRectifyingPointAsItWas) {
    dialog.SetRectSpec(true);
    dialog.SetRectSpecLat(29.75);
    ExpectZone("15");
    EXPECT_EQ(Picked(kUtmSpheroids, "International"), 215);
    EXPECT_TRUE(dialog.GetRectSpec());
    EXPECT_EQ(dialog.GetRectSpecLat(), 29.75);
}

}  // namespace
