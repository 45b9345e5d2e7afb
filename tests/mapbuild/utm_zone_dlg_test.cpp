#include "mapbuild/utm_zone_dlg.h"

#include "mapbuild/projection_fixture.h"

using testing::IsEmpty;
using testing::SizeIs;
using namespace kv::utm_zone;

namespace {

constexpr const char* kInvalid = "Invalid Entry! Please enter a code zone from 0 - 60 or 99.";

class UtmZoneDlg : public test::ProjectionTest {
protected:
    static void ExpectRectifying(kv::User& user, bool choice, bool coordinates) {
        for (const int id :
             {kStraightMercatorGroup, kRectifyingLabel, kCenterOfMap, kUserSpecified}) {
            EXPECT_EQ(user.Enabled(id), choice) << id;
        }
        for (const int id : {kLat, kLon})
            EXPECT_EQ(user.Enabled(id), coordinates) << id;
    }
    static bool ReadOnly(kv::User& user) {
        return (user.Window().GetDlgItem(kZone)->GetStyle() & ES_READONLY) != 0;
    }

    CKvGuiUTMZoneDlg dialog{nullptr};
};

TEST_F(UtmZoneDlg, OpensOnItsZoneWithTheTextSelected) {
    dialog.SetZone(15);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kZone), "15");
        EXPECT_EQ(test::FocusedId(), kZone);
        EXPECT_EQ(user.Text(kLat), "0");
        EXPECT_EQ(user.Text(kLon), "0");
        EXPECT_TRUE(user.Checked(kCenterOfMap));
        EXPECT_FALSE(user.Checked(kUserSpecified));
        EXPECT_FALSE(ReadOnly(user));
        ExpectRectifying(user, false, false);
        kv::input::TypeHere("7");
        EXPECT_EQ(user.Text(kZone), "7");
    });
}

TEST_F(UtmZoneDlg, StraightMercatorOpensWithAFixedZoneAndTheCenterOfTheMap) {
    dialog.SetZone(99);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kZone), "99");
        EXPECT_TRUE(ReadOnly(user));
        ExpectRectifying(user, true, false);
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetZone(), 99);
    EXPECT_FALSE(dialog.GetRectSpec());
}

TEST_F(UtmZoneDlg, StraightMercatorOpensWithTheUsersPoint) {
    dialog.SetZone(99);
    dialog.SetRectSpec(true);
    dialog.SetRectLatLon(29, -90);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kLat), "29");
        EXPECT_EQ(user.Text(kLon), "-90");
        EXPECT_TRUE(user.Checked(kUserSpecified));
        ExpectRectifying(user, true, true);
    });
}

TEST_F(UtmZoneDlg, AZoneThatTheEditRefusesIs0) {
    for (const int zone : {-99, 100, -1}) {
        dialog.SetZone(zone);
        Run(dialog, [&](kv::User& user) {
            EXPECT_EQ(user.Text(kZone), "0");
            user.Click(IDOK);
        });
        EXPECT_EQ(dialog.GetZone(), 0);
    }
}

TEST_F(UtmZoneDlg, AnInvalidZoneIsToldAtTheOpening) {
    dialog.SetZone(70);
    desktop.ExpectMessage(kInvalid);
    Run(dialog, [&](kv::User& user) { EXPECT_EQ(user.Text(kZone), "70"); });
}

TEST_F(UtmZoneDlg, APointThatIsNoneLeavesItsBoxEmpty) {
    dialog.SetZone(99);
    dialog.SetRectSpec(true);
    dialog.SetRectLatLon(91, -181);
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kLat), "");
        EXPECT_EQ(user.Text(kLon), "");
    });
}

TEST_F(UtmZoneDlg, TypingTellsZonesFrom61To98) {
    Run(dialog, [&](kv::User& user) {
        for (const char* valid : {"0", "1", "60", "99"})
            user.Type(kZone, valid);
        EXPECT_THAT(desktop.Messages(), IsEmpty());
        for (const char* invalid : {"61", "70", "98"}) {
            desktop.ExpectMessage(kInvalid);
            user.Type(kZone, invalid);
            EXPECT_EQ(user.Text(kZone), invalid);
        }
        EXPECT_THAT(desktop.Messages(), SizeIs(3));
    });
}

TEST_F(UtmZoneDlg, TheZone99OpensTheRectifyingGroupAndAnyOtherClosesIt) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kZone, "99");
        ExpectRectifying(user, true, false);
        user.Click(kUserSpecified);
        ExpectRectifying(user, true, true);
        user.Type(kZone, "15");
        ExpectRectifying(user, false, false);
        user.Type(kZone, "99");
        ExpectRectifying(user, true, true);
        user.Click(kCenterOfMap);
        ExpectRectifying(user, true, false);
    });
}

TEST_F(UtmZoneDlg, AZoneOf70IsToldAndTaken) {
    desktop.ExpectMessage(kInvalid);
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Type(kZone, "70");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.GetZone(), 70);
}

TEST_F(UtmZoneDlg, AFractionOfAZoneIsCutOff) {
    Run(dialog, [&](kv::User& user) {
        user.Type(kZone, "15.9");
        user.Click(IDOK);
    });
    EXPECT_EQ(dialog.GetZone(), 15);
}

TEST_F(UtmZoneDlg, ALetterInTheZoneIsTakenBack) {
    dialog.SetZone(12);
    Run(dialog, [&](kv::User& user) {
        user.Type(kZone, "15");
        kv::input::TypeHere("x");
        EXPECT_EQ(user.Text(kZone), "15");
    });
}

TEST_F(UtmZoneDlg, TheRectifyingPointComesBackInWholeDegrees) {
    dialog.SetZone(99);
    Run(dialog, [&](kv::User& user) {
        user.Click(kUserSpecified);
        user.Type(kLat, "29.75");
        user.Type(kLon, "-90.75");
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetRectSpec());
    EXPECT_EQ(dialog.GetRectLat(), 29);
    EXPECT_EQ(dialog.GetRectLon(), -90);
}

TEST_F(UtmZoneDlg, TheCenterOfTheMapLeavesThePoint) {
    dialog.SetZone(99);
    dialog.SetRectSpec(true);
    dialog.SetRectLatLon(29, -90);
    Run(dialog, [&](kv::User& user) {
        user.Type(kLat, "35");
        user.Click(kCenterOfMap);
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetRectSpec());
    EXPECT_EQ(dialog.GetRectLat(), 29);
}

TEST_F(UtmZoneDlg, CancelLeavesTheZone) {
    dialog.SetZone(15);
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      user.Type(kZone, "16");
                      user.Click(IDCANCEL);
                  }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetZone(), 15);
}

}  // namespace
