#include <gtest/gtest.h>

#include <string>

#include "mapbuild/angle_dialog.h"

namespace {

using namespace test;

class DMSCtrlPaste : public AngleTest {
protected:
    void RunBound(const std::function<void(kv::User&)>& act) {
        RunDialog([&](kv::User& user) {
            Lat().SetPartner(&Lon());
            act(user);
        });
    }
};

TEST_F(DMSCtrlPaste, APositionFillsBothGroupsFromAnyBox) {
    constexpr const char* kTexts[] = {
        "28°30'15.25\"N 89°07'30\"W",
        "N28 30 15.25 W89 07.5",
        "28 30 15.25 N, 89 07 30 W",
        "28-30-15.25N;89-07-30W",
        "28:30:15.25\t-89:07:30",
        "89°07'30\"W 28°30'15.25\"N",
        "28\xB0"
        "30'15.25\"N 89\xB0"
        "07'30\"W",
        "28d30m15.25s, -89d07m30s",
    };
    RunBound([&](kv::User& user) {
        for (const char* text : kTexts) {
            for (const int group : {kLatGroup, kLonGroup}) {
                for (const int box : {kDegEdit, kMinEdit, kSecEdit}) {
                    Lat().SetDMS(1.5);
                    Lon().SetDMS(1000.0);
                    user.Paste(group + box, text);
                    EXPECT_EQ(LatBoxes(), "28|30|15.25") << text << " in " << group + box;
                    EXPECT_EQ(LonBoxes(), "-89|7|30.00") << text << " in " << group + box;
                }
            }
        }
    });
}

TEST_F(DMSCtrlPaste, DecimalDegreesFillTheFormThatIsShown) {
    RunBound([&](kv::User& user) {
        user.Paste(kLatGroup + kDegEdit, "28.504236, -89.125");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
        EXPECT_EQ(LonBoxes(), "-89|7|30.00");
        Lat().SetFormat(true);
        user.Paste(kLonGroup + kMinEdit, "29.25, -90.5");
        EXPECT_EQ(person->Text(kLatGroup + kDegEdit), "29.250000");
        EXPECT_EQ(LonBoxes(), "-90|30|0.00");
        Lon().SetFormat(true);
        user.Paste(kLonGroup + kDegEdit, "28°30'15.25\"N 89°07'30\"W");
        EXPECT_EQ(person->Text(kLatGroup + kDegEdit), "28.504236");
        EXPECT_EQ(person->Text(kLonGroup + kDegEdit), "-89.125000");
        EXPECT_EQ(Lon().GetDMS(), -89.125);
    });
}

TEST_F(DMSCtrlPaste, ASingleAngleFillsItsGroupOnly) {
    RunBound([&](kv::User& user) {
        user.Paste(kLatGroup + kMinEdit, "28 30 15.25 N");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
        EXPECT_EQ(LonBoxes(), "||");
        user.Paste(kLonGroup + kDegEdit, "-89.125");
        EXPECT_EQ(LonBoxes(), "-89|7|30.00");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
    });
}

TEST_F(DMSCtrlPaste, WithoutAPartnerAGroupTakesItsOwnAngle) {
    RunDialog([&](kv::User& user) {
        user.Paste(kLonGroup + kDegEdit, "28°30'15.25\"N 89°07'30\"W");
        EXPECT_EQ(LonBoxes(), "-89|7|30.00");
        EXPECT_EQ(LatBoxes(), "||");
    });
}

TEST_F(DMSCtrlPaste, ABareNumberIsTheBoxesOwn) {
    RunBound([&](kv::User& user) {
        Lat().SetDMS(1.5);
        user.Paste(kLatGroup + kDegEdit, "28");
        user.Paste(kLatGroup + kMinEdit, "45");
        user.Paste(kLatGroup + kSecEdit, "15.25");
        EXPECT_EQ(LatBoxes(), "28|45|15.25");
        user.Paste(kLatGroup + kDegEdit, "-29");
        EXPECT_EQ(LatBoxes(), "-29|45|15.25");
        user.Paste(kLatGroup + kMinEdit, "28.5");
        user.Paste(kLatGroup + kSecEdit, "15.2534");
        EXPECT_EQ(LatBoxes(), "-29|28.5|15.2534");
        user.Paste(kLatGroup + kSecEdit, " 28.504236 ");
        EXPECT_EQ(LatBoxes(), "-29|28.5| 28.504236 ");
    });
}

TEST_F(DMSCtrlPaste, ABareNumberOutOfItsBoxesRangeReplacesNoAngle) {
    RunBound([&](kv::User& user) {
        Lat().SetDMS(1.5);
        user.Paste(kLatGroup + kMinEdit, "75");
        EXPECT_EQ(LatBoxes(), "1|75|0.00");
        desktop.ExpectMessage("Value out of range");
        user.Focus(kLatGroup + kSecEdit);
        user.Paste(kLatGroup + kMinEdit, "30");
        user.Paste(kLatGroup + kSecEdit, "-12");
        EXPECT_EQ(LatBoxes(), "1|30|-12");
        Lat().SetDMS(1.5);
    });
}

TEST_F(DMSCtrlPaste, AMarkOfDegreesSpreadsAlsoFromMinutesAndSeconds) {
    RunBound([&](kv::User& user) {
        for (const char* text : {"28.504236°", "28.504236 N", "28 30.254167", "28.504236 deg"}) {
            for (const int box : {kMinEdit, kSecEdit}) {
                Lat().SetDMS(1.5);
                user.Paste(kLatGroup + box, text);
                EXPECT_EQ(LatBoxes(), "28|30|15.25") << text;
            }
        }
    });
}

TEST_F(DMSCtrlPaste, ASingleNumberWithAMarkOfMinutesOrSecondsIsTheBoxesOwn) {
    RunBound([&](kv::User& user) {
        for (const std::string text : {"15.25s", " 15.25 s ", "15.25\"", "15.25''", "15.25'",
                                       "15.25m", "15.25\u2032", "15.25 \u2033"}) {
            Lat().SetDMS(1.5);
            user.Paste(kLatGroup + kMinEdit, text);
            EXPECT_EQ(LatBoxes(), "1|15.25|0.00") << text;
            Lat().SetDMS(1.5);
            user.Paste(kLatGroup + kSecEdit, text);
            EXPECT_EQ(LatBoxes(), "1|30|15.25") << text;
            EXPECT_NEAR(Lat().GetDMS(), 1.5 + 15.25 / 3600, 1e-9) << text;
        }
        Lat().SetDMS(1.5);
        user.Paste(kLatGroup + kSecEdit, "28d30m15.25s");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
        user.Paste(kLatGroup + kDegEdit, "28.5s");
        EXPECT_EQ(LatBoxes(), "-28|30|0.00");
    });
}

TEST_F(DMSCtrlPaste, DecimalDegreesStandAsTheyAreWhereThatIsTheForm) {
    RunBound([&](kv::User& user) {
        Lat().SetFormat(true);
        user.Paste(kLatGroup + kDegEdit, "28.5042361111");
        EXPECT_EQ(person->Text(kLatGroup + kDegEdit), "28.5042361111");
        EXPECT_EQ(Lat().GetDMS(), 28.5042361111);
    });
}

TEST_F(DMSCtrlPaste, AnyOtherTextIsPastedAsItIs) {
    constexpr const char* kTexts[] = {
        "GREEN CANYON 12", "95 30 00 N",  "28.5 N, 28.5 N", "89°07'30\"W",
        "28 61 00",        "120.5 E, 95", "1.2.3",          "91.25",
    };
    RunBound([&](kv::User& user) {
        for (const char* text : kTexts) {
            Lat().SetDMS(1.5);
            Lon().SetDMS(2.5);
            user.Paste(kLatGroup + kDegEdit, text);
            EXPECT_EQ(LatBoxes(), std::string(text) + "|30|0.00") << text;
            EXPECT_EQ(LonBoxes(), "2|30|0.00") << text;
        }
        Lat().SetDMS(1.5);
    });
}

TEST_F(DMSCtrlPaste, APositionWithOneAngleOutOfRangeFillsNothing) {
    RunBound([&](kv::User& user) {
        user.Paste(kLonGroup + kDegEdit, "28.5 N 200 E");
        EXPECT_EQ(LonBoxes(), "28.5 N 200 E||");
        EXPECT_EQ(LatBoxes(), "||");
        user.Paste(kLatGroup + kDegEdit, "28.5 N 200 E");
        EXPECT_EQ(LatBoxes(), "28.5 N 200 E||");
        Lat().ClearDMS();
        Lon().ClearDMS();
    });
}

TEST_F(DMSCtrlPaste, ALongitudeWrapsAsWhereItIsSet) {
    RunBound([&](kv::User& user) {
        user.Paste(kLatGroup + kDegEdit, "28.5, -200.0");
        EXPECT_EQ(LatBoxes(), "28|30|0.00");
        EXPECT_EQ(LonBoxes(), "160|0|0.00");
    });
}

TEST_F(DMSCtrlPaste, SecondsKeepAThirdDecimal) {
    RunBound([&](kv::User& user) {
        user.Paste(kLatGroup + kDegEdit, "28°30'15.253\"N");
        EXPECT_EQ(LatBoxes(), "28|30|15.253");
        user.Paste(kLatGroup + kDegEdit, "28°59'59.9996\"N");
        EXPECT_EQ(LatBoxes(), "29|0|0.00");
    });
}

TEST_F(DMSCtrlPaste, TheSignOfASmallAngleStays) {
    RunBound([&](kv::User& user) {
        user.Paste(kLonGroup + kDegEdit, "0°30'00\"W");
        EXPECT_EQ(LonBoxes(), "-0|30|0.00");
        EXPECT_EQ(Lon().GetDMS(), -0.5);
    });
}

TEST_F(DMSCtrlPaste, TheClipboardsKeysDoTheSame) {
    RunBound([&](kv::User& user) {
        desktop.SetClipboardText("28.504236, -89.125");
        user.Focus(kLatGroup + kDegEdit);
        kv::input::TypeHere("\x16");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
        EXPECT_EQ(LonBoxes(), "-89|7|30.00");
        Lat().ClearDMS();
        user.Key(kLatGroup + kSecEdit, "Shift+Insert");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
    });
}

TEST_F(DMSCtrlPaste, EachBoxTakesItBack) {
    RunBound([&](kv::User& user) {
        Lat().SetDMS(1.5);
        user.Paste(kLatGroup + kDegEdit, "28 45 15.25 N");
        EXPECT_EQ(LatBoxes(), "28|45|15.25");
        dialog.SendDlgItemMessage(kLatGroup + kDegEdit, WM_UNDO);
        dialog.SendDlgItemMessage(kLatGroup + kMinEdit, WM_UNDO);
        dialog.SendDlgItemMessage(kLatGroup + kSecEdit, WM_UNDO);
        EXPECT_EQ(LatBoxes(), "1|30|0.00");
    });
}

TEST_F(DMSCtrlPaste, APartnerThatIsReadOnlyKeepsItsAngle) {
    RunBound([&](kv::User& user) {
        Lon().SetDMS(-90.5);
        Lon().SetDMSReadOnly(true);
        user.Paste(kLatGroup + kDegEdit, "28.504236, -89.125");
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
        EXPECT_EQ(LonBoxes(), "-90|30|0.00");
    });
}

TEST_F(DMSCtrlPaste, WhereTheDegreesAreDisabledABoxTakesTheTextAsItStands) {
    RunBound([&](kv::User& user) {
        Lat().SetDMS(1.5);
        dialog.GetDlgItem(kLatGroup + kDegEdit)->EnableWindow(FALSE);
        user.Paste(kLatGroup + kMinEdit, "15'");
        EXPECT_EQ(LatBoxes(), "1|15'|0.00");
        user.Paste(kLatGroup + kMinEdit, "28 30 15.25 N");
        EXPECT_EQ(LatBoxes(), "1|28 30 15.25 N|0.00");
        Lat().SetDMS(1.5);
    });
}

TEST_F(DMSCtrlPaste, ABondEndsWithEitherPartner) {
    RunBound([&](kv::User& user) {
        Lon().SetPartner(nullptr);
        user.Paste(kLatGroup + kDegEdit, "28.504236, -89.125");
        EXPECT_EQ(LonBoxes(), "||");
        Lon().SetPartner(&Lat());
        dialog.lon.reset();
        user.Paste(kLatGroup + kDegEdit, "29.5 N, 89.125 W");
        EXPECT_EQ(LatBoxes(), "29|30|0.00");
        EXPECT_EQ(LonBoxes(), "||");
    });
}

}  // namespace
