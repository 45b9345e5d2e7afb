#include "mapbuild/dms_ctrl.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "mapbuild/angle_dialog.h"

namespace {

using namespace test;

constexpr double kSample = 28 + 30 / 60.0 + 15.25 / 3600.0;

class DMSCtrl : public AngleTest {};

// At the start.

TEST_F(DMSCtrl, ShowsSecondsWithThreeDecimalsWhileTheDialogOpens) {
    dialog.firstLat = kSample;
    dialog.firstLon = -89.5;
    RunDialog([&](kv::User&) {
        EXPECT_EQ(LatBoxes(), "28|30|15.250");
        EXPECT_EQ(LonBoxes(), "-89|30|0");
        EXPECT_NEAR(Lat().GetDMS(), kSample, 1e-12);
        EXPECT_EQ(Lon().GetDMS(), -89.5);
    });
}

TEST_F(DMSCtrl, ShowsSecondsWithTwoDecimalsLater) {
    dialog.firstLat = kSample;
    RunDialog([&](kv::User&) {
        EXPECT_TRUE(Lat().SetDMS(kSample));
        EXPECT_EQ(LatBoxes(), "28|30|15.25");
        EXPECT_TRUE(Lat().SetDMS(-29.5));
        EXPECT_EQ(LatBoxes(), "-29|30|0.00");
    });
}

TEST_F(DMSCtrl, StartsEmptyWithoutAValueAndOutOfRange) {
    dialog.firstLat = 90.0001;
    RunDialog([&](kv::User&) {
        EXPECT_EQ(LatBoxes(), "||");
        EXPECT_EQ(LonBoxes(), "||");
        EXPECT_EQ(Lat().GetDMS(), 1000.0);
        EXPECT_EQ(Lon().GetDMS(), 1000.0);
    });
}

TEST_F(DMSCtrl, StartsWithBothEndsOfItsRange) {
    dialog.firstLat = -90.0;
    dialog.firstLon = 180.0;
    RunDialog([&](kv::User&) {
        EXPECT_EQ(LatBoxes(), "-90|0|0");
        EXPECT_EQ(LonBoxes(), "180|0|0");
    });
}

TEST_F(DMSCtrl, DoesNotWrapAtTheStart) {
    dialog.firstLon = -200.0;
    RunDialog([&](kv::User&) { EXPECT_EQ(LonBoxes(), "||"); });
}

// Setting.

struct Set {
    double value;
    bool shown;
    const char* boxes;
};

TEST_F(DMSCtrl, TakesALatitudeUpToNinety) {
    constexpr Set kSets[] = {
        {90.0, true, "90|0|0.00"},   {90.0001, false, "||"},
        {-90.0, true, "-90|0|0.00"}, {-90.0001, false, "||"},
        {-200.0, false, "||"},       {0.0, true, "0|0|0.00"},
        {1000.0, true, "||"},        {HUGE_VAL, false, "||"},
        {-HUGE_VAL, false, "||"},    {std::numeric_limits<double>::quiet_NaN(), false, "||"},
    };
    RunDialog([&](kv::User&) {
        for (const Set& each : kSets) {
            Write(kLatGroup, "1", "2", "3");
            EXPECT_EQ(Lat().SetDMS(each.value), each.shown) << each.value;
            EXPECT_EQ(LatBoxes(), each.boxes) << each.value;
        }
    });
}

TEST_F(DMSCtrl, WrapsALongitudeBelowOnly) {
    constexpr Set kSets[] = {
        {180.0, true, "180|0|0.00"},    {180.0001, false, "||"},       {190.0, false, "||"},
        {200.0, false, "||"},           {-180.0, true, "-180|0|0.00"}, {-200.0, true, "160|0|0.00"},
        {-200.25, true, "159|45|0.00"}, {-360.0, true, "0|0|0.00"},    {-360.0001, false, "||"},
        {-361.0, false, "||"},          {1000.0, true, "||"},
    };
    RunDialog([&](kv::User&) {
        for (const Set& each : kSets) {
            Write(kLonGroup, "1", "2", "3");
            EXPECT_EQ(Lon().SetDMS(each.value), each.shown) << each.value;
            EXPECT_EQ(LonBoxes(), each.boxes) << each.value;
        }
        Lon().SetDMS(-200.0);
        EXPECT_EQ(Lon().GetDMS(), 160.0);
    });
}

TEST_F(DMSCtrl, TheMarkOfNoValueGoesBothWays) {
    dialog.firstLat = 28.5;
    RunDialog([&](kv::User&) {
        EXPECT_TRUE(Lat().SetDMS(1000.0));
        EXPECT_EQ(LatBoxes(), "||");
        EXPECT_EQ(Lat().GetDMS(), 1000.0);
        Lat().SetFormat(true);
        EXPECT_TRUE(Lat().SetDMS(1000.0));
        EXPECT_EQ(Lat().GetDMS(), 1000.0);
    });
}

TEST_F(DMSCtrl, NeverShowsSixtySeconds) {
    dialog.firstLat = 29 + 59 / 60.0 + 59.9999999 / 3600.0;
    RunDialog([&](kv::User&) {
        EXPECT_EQ(LatBoxes(), "30|0|0");
        for (const double seconds : {59.9999999, 59.9951, 59.996}) {
            EXPECT_TRUE(Lat().SetDMS(29 + 59 / 60.0 + seconds / 3600.0));
            EXPECT_EQ(LatBoxes(), "30|0|0.00") << seconds;
        }
        EXPECT_TRUE(Lat().SetDMS(29 + 59 / 60.0 + 59.9949 / 3600.0));
        EXPECT_EQ(LatBoxes(), "29|59|59.99");
        EXPECT_TRUE(Lat().SetDMS(89 + 59 / 60.0 + 59.9999 / 3600.0));
        EXPECT_EQ(LatBoxes(), "90|0|0.00");
        EXPECT_EQ(Lat().GetDMS(), 90.0);
    });
}

TEST_F(DMSCtrl, KeepsTheSignBetweenMinusOneAndZero) {
    dialog.firstLat = -0.5;
    dialog.firstLon = -15.25 / 3600.0;
    RunDialog([&](kv::User&) {
        EXPECT_EQ(LatBoxes(), "-0|30|0");
        EXPECT_EQ(Lat().GetDMS(), -0.5);
        EXPECT_EQ(LonBoxes(), "-0|0|15.250");
        EXPECT_NEAR(Lon().GetDMS(), -15.25 / 3600.0, 1e-15);
        Lat().SetDMS(-0.25);
        EXPECT_EQ(LatBoxes(), "-0|15|0.00");
        EXPECT_EQ(Lat().GetDMS(), -0.25);
        Lat().SetDMS(0.25);
        EXPECT_EQ(LatBoxes(), "0|15|0.00");
        // What rounds to nothing has no sign.
        Lat().SetDMS(-1e-9);
        EXPECT_EQ(LatBoxes(), "0|0|0.00");
    });
}

TEST_F(DMSCtrl, APersonTypesAnAngleBetweenMinusOneAndZero) {
    RunDialog([&](kv::User& user) {
        user.Type(kLatGroup + kDegEdit, "-0");
        user.Type(kLatGroup + kMinEdit, "30");
        EXPECT_EQ(Lat().GetDMS(), -0.5);
        user.Type(kLatGroup + kSecEdit, "-0");
        user.Type(kLatGroup + kDegEdit, "0");
        EXPECT_EQ(Lat().GetDMS(), 0.5);
        user.Type(kLatGroup + kDegEdit, "-0.9");
        EXPECT_EQ(Lat().GetDMS(), -0.5);
    });
}

TEST_F(DMSCtrl, ShowsThreePartsAsTheyAre) {
    RunDialog([&](kv::User&) {
        Lat().SetDMS(28, 30, 15.25);
        EXPECT_EQ(LatBoxes(), "28|30|15.250");
        Lat().SetDMS(-29, 15, 0.0);
        EXPECT_EQ(LatBoxes(), "-29|15|0");
        Lat().SetDMS(0, 30, 15.0);
        EXPECT_EQ(LatBoxes(), "0|30|15");
        Lat().SetDMS(0, -30, 0.0);
        EXPECT_EQ(LatBoxes(), "-0|30|0");
        EXPECT_EQ(Lat().GetDMS(), -0.5);
        Lat().SetDMS(0, 0, -15.5);
        EXPECT_EQ(LatBoxes(), "-0|0|15.500");
        Lat().SetDMS(28, 59, 59.9999);
        EXPECT_EQ(LatBoxes(), "29|0|0");
        Lat().SetDMS(28, 0, 59.9999);
        EXPECT_EQ(LatBoxes(), "28|1|0");
        Lat().SetDMS(28, 60, 60.0);
        EXPECT_EQ(LatBoxes(), "28|60|60");
    });
}

TEST_F(DMSCtrl, APartOutOfRangeLeavesItsBox) {
    RunDialog([&](kv::User&) {
        Write(kLatGroup, "1", "2", "3");
        Lat().SetDMS(91, 61, 5.0);
        EXPECT_EQ(LatBoxes(), "1|2|5");
    });
}

TEST_F(DMSCtrl, SecondsCarryNothingWhereAnotherPartIsOutOfRange) {
    RunDialog([&](kv::User&) {
        for (const auto& [degrees, minutes] : {std::pair{28, 75}, {28, -5}, {95, 10}, {89, 59}}) {
            Write(kLatGroup, "1", "2", "3");
            Lat().SetDMS(degrees, minutes, 59.9999);
            const std::string expected = degrees == 95   ? "1|10|60.000"
                                         : degrees == 89 ? "90|0|0"
                                                         : "28|2|60.000";
            EXPECT_EQ(LatBoxes(), expected) << degrees << " " << minutes;
        }
        Write(kLatGroup, "1", "2", "3");
        Lat().SetDMS(-90, 59, 59.9999);
        EXPECT_EQ(LatBoxes(), "-90|59|60.000");
        Lat().SetDMS(28, 60, 59.9999);
        EXPECT_EQ(LatBoxes(), "29|1|0");
    });
}

TEST_F(DMSCtrl, MayBeInitializedAgain) {
    dialog.firstLat = 28.5;
    RunDialog([&](kv::User& user) {
        const auto again = [&](double value) {
            Lat().Initialize(&dialog, kLatGroup + kDegEdit, kLatGroup + kDegSpin,
                             kLatGroup + kMinEdit, kLatGroup + kMinSpin, kLatGroup + kSecEdit,
                             kLatGroup + kSecSpin, value, true);
        };
        again(29.25);
        EXPECT_EQ(LatBoxes(), "29|15|0");
        user.Type(kLatGroup + kDegEdit, "30");
        EXPECT_EQ(Lat().GetDMS(), 30.25);
        user.Type(kLatGroup + kDegEdit, "95");
        desktop.ExpectMessage("Value out of range");
        user.Focus(kLatGroup + kMinEdit);
        again(1000.0);
        kv::input::StepSpin(*dialog.GetDlgItem(kLatGroup + kMinSpin)->m_hWnd, true);
        EXPECT_EQ(person->Text(kLatGroup + kMinEdit), "16");
    });
}

TEST_F(DMSCtrl, WritesItsTextsPastTheRangeOfTheBox) {
    RunDialog([&](kv::User&) {
        auto& degrees = static_cast<CNumEdit&>(*dialog.GetDlgItem(kLatGroup + kDegEdit));
        degrees.SetRange(0.0, 10.0);
        EXPECT_TRUE(Lat().SetDMS(28.5));
        EXPECT_EQ(LatBoxes(), "28|30|0.00");
        // Read through the box, whose range it leaves.
        EXPECT_EQ(Lat().GetDMS(), 0.5);
    });
}

TEST_F(DMSCtrl, ClearsItsBoxesAndKeepsTheAngle) {
    dialog.firstLat = 28.5;
    RunDialog([&](kv::User&) {
        Lat().ClearDMS();
        EXPECT_EQ(LatBoxes(), "||");
    });
}

// Reading.

TEST_F(DMSCtrl, OneBoxThatHoldsSomethingIsAValue) {
    RunDialog([&](kv::User&) {
        Write(kLatGroup, "", "30", "");
        EXPECT_EQ(Lat().GetDMS(), 0.5);
        Write(kLatGroup, "", "", "36");
        EXPECT_EQ(Lat().GetDMS(), 0.01);
        Write(kLatGroup, "-28", "", "");
        EXPECT_EQ(Lat().GetDMS(), -28.0);
    });
}

TEST_F(DMSCtrl, CutsDegreesAndMinutesAndNoSeconds) {
    RunDialog([&](kv::User&) {
        Write(kLatGroup, "28.9", "30.9", "15.25");
        EXPECT_NEAR(Lat().GetDMS(), kSample, 1e-12);
        Write(kLatGroup, "-28.9", "30.9", "15.25");
        EXPECT_NEAR(Lat().GetDMS(), -kSample, 1e-12);
        int degrees = 0;
        int minutes = 0;
        double seconds = 0.0;
        Lat().GetDMS(degrees, minutes, seconds);
        EXPECT_EQ(degrees, -28);
        EXPECT_EQ(minutes, 30);
        EXPECT_EQ(seconds, 15.25);
    });
}

TEST_F(DMSCtrl, ReadsAWrongBoxAsTheLowerEndOfItsRange) {
    RunDialog([&](kv::User&) {
        Write(kLatGroup, "1.2.3", "30", "0");
        EXPECT_EQ(Lat().GetDMS(), -90.5);
        Write(kLonGroup, "5", "abc", "77");
        EXPECT_EQ(Lon().GetDMS(), 5.0);
    });
}

TEST_F(DMSCtrl, ReadsPartsWhateverTheBoxesHold) {
    RunDialog([&](kv::User&) {
        int degrees = 0;
        int minutes = 1;
        double seconds = 1.0;
        Lat().GetDMS(degrees, minutes, seconds);
        EXPECT_EQ(degrees, -90);
        EXPECT_EQ(minutes, 0);
        EXPECT_EQ(seconds, 0.0);
        Lon().SetDMS(-0.5);
        Lon().GetDMS(degrees, minutes, seconds);
        EXPECT_EQ(degrees, 0);
        EXPECT_EQ(minutes, -30);
        EXPECT_EQ(seconds, 0.0);
        Lon().SetDMS(-15.5 / 3600.0);
        Lon().GetDMS(degrees, minutes, seconds);
        EXPECT_EQ(degrees, 0);
        EXPECT_EQ(minutes, 0);
        EXPECT_EQ(seconds, -15.5);
        // Handed on, they are the same angle.
        Lat().SetDMS(degrees, minutes, seconds);
        EXPECT_NEAR(Lat().GetDMS(), -15.5 / 3600.0, 1e-15);
    });
}

// The decimal form.

TEST_F(DMSCtrl, ShowsDecimalDegreesWithSixDecimals) {
    RunDialog([&](kv::User&) {
        Lat().SetFormat(true);
        Lon().SetFormat(true);
        EXPECT_TRUE(Lat().SetDMS(29.5));
        EXPECT_EQ(person->Text(kLatGroup + kDegEdit), "29.500000");
        EXPECT_TRUE(Lon().SetDMS(-90.0));
        EXPECT_EQ(person->Text(kLonGroup + kDegEdit), "-90.000000");
        EXPECT_EQ(Lon().GetDMS(), -90.0);
        EXPECT_FALSE(Lat().SetDMS(91.0));
        EXPECT_EQ(LatBoxes(), "||");
    });
}

TEST_F(DMSCtrl, AStepKeepsTheDecimals) {
    RunDialog([&](kv::User& user) {
        Lat().SetFormat(true);
        user.Type(kLatGroup + kDegEdit, "28.123456");
        kv::input::StepSpin(*dialog.GetDlgItem(kLatGroup + kDegSpin)->m_hWnd, true);
        EXPECT_EQ(user.Text(kLatGroup + kDegEdit), "29.123456");
    });
}

TEST_F(DMSCtrl, DecimalDegreesLeaveTheOtherBoxesAlone) {
    RunDialog([&](kv::User&) {
        Write(kLatGroup, "28", "30", "15");
        Lat().SetFormat(true);
        EXPECT_EQ(LatBoxes(), "28|30|15");
        EXPECT_EQ(Lat().GetDMS(), 28.0);
        Lat().SetDMS(29.25);
        EXPECT_EQ(LatBoxes(), "29.250000|30|15");
        EXPECT_EQ(Lat().GetDMS(), 29.25);
        Write(kLatGroup, "", "30", "15");
        EXPECT_EQ(Lat().GetDMS(), 1000.0);
    });
}

TEST_F(DMSCtrl, TheDecimalFormWidensTheDegreesIntoThePlaceOfTheRest) {
    RunDialog([&](kv::User& user) {
        const CRect edit = RectOf(kLatGroup + kDegEdit);
        const CRect spin = RectOf(kLatGroup + kDegSpin);
        const CRect label = RectOf(kLatGroup + kDegLabel);
        const int w = edit.Width();

        Lat().SetFormat(true);
        EXPECT_EQ(user.Text(kLatGroup + kDegLabel), "Degree.Degree");
        EXPECT_EQ(RectOf(kLatGroup + kDegEdit),
                  (CRect{edit.left, edit.top, edit.left + 2 * w, edit.bottom}));
        EXPECT_EQ(RectOf(kLatGroup + kDegSpin),
                  (CRect{spin.left + w, spin.top, spin.right + w, spin.bottom}));
        EXPECT_EQ(
            RectOf(kLatGroup + kDegLabel),
            (CRect{label.left + w, label.top, label.left + w + 8 * label.Width(), label.bottom}));
        for (const int id : {kMinEdit, kMinSpin, kMinLabel, kSecEdit, kSecSpin, kSecLabel}) {
            EXPECT_FALSE(user.Visible(kLatGroup + id)) << id;
            EXPECT_TRUE(user.Visible(kLonGroup + id)) << id;
        }

        Lat().SetFormat(false);
        EXPECT_EQ(user.Text(kLatGroup + kDegLabel), "D");
        EXPECT_EQ(RectOf(kLatGroup + kDegEdit), edit);
        EXPECT_EQ(RectOf(kLatGroup + kDegSpin), spin);
        EXPECT_EQ(RectOf(kLatGroup + kDegLabel), label);
        for (const int id : {kMinEdit, kMinSpin, kMinLabel, kSecEdit, kSecSpin, kSecLabel}) {
            EXPECT_TRUE(user.Visible(kLatGroup + id)) << id;
        }
    });
}

TEST_F(DMSCtrl, TheFormatSetTwiceMovesNothingFurther) {
    RunDialog([&](kv::User&) {
        Lat().SetFormat(true);
        const CRect edit = RectOf(kLatGroup + kDegEdit);
        Lat().SetFormat(true);
        EXPECT_EQ(RectOf(kLatGroup + kDegEdit), edit);
    });
}

// By hand.

TEST_F(DMSCtrl, SpinsStepEachPart) {
    dialog.firstLat = kSample;
    RunDialog([&](kv::User& user) {
        const auto step = [&](int id, bool up) {
            kv::input::StepSpin(*dialog.GetDlgItem(kLatGroup + id)->m_hWnd, up);
        };
        step(kDegSpin, true);
        step(kMinSpin, false);
        step(kSecSpin, true);
        EXPECT_EQ(LatBoxes(), "29|29|15.300");
        user.Key(kLatGroup + kSecEdit, "Down");
        EXPECT_EQ(LatBoxes(), "29|29|15.250");
        for (int i = 0; i < 100; ++i)
            step(kMinSpin, true);
        EXPECT_EQ(LatBoxes(), "29|60|15.250");
    });
}

TEST_F(DMSCtrl, ABoxJudgesWhatIsTypedWhenItIsLeft) {
    RunDialog([&](kv::User& user) {
        user.Type(kLatGroup + kDegEdit, "91");
        desktop.ExpectMessage("Value out of range");
        user.Key(kLatGroup + kDegEdit, "Tab");
        EXPECT_EQ(LatBoxes(), "||");
        user.Type(kLatGroup + kDegEdit, "-90");
        user.Type(kLatGroup + kMinEdit, "61");
        desktop.ExpectMessage("Value out of range");
        user.Key(kLatGroup + kMinEdit, "Tab");
        EXPECT_EQ(LatBoxes(), "-90||");
        user.Type(kLonGroup + kDegEdit, "180");
        user.Key(kLonGroup + kDegEdit, "Tab");
        EXPECT_EQ(LonBoxes(), "180||");
    });
}

TEST_F(DMSCtrl, ReadOnlyIsReadAndNotWritten) {
    dialog.firstLat = kSample;
    RunDialog([&](kv::User& user) {
        Lat().SetDMSReadOnly(true);
        for (const int id : {kDegEdit, kMinEdit, kSecEdit}) {
            EXPECT_TRUE(dialog.GetDlgItem(kLatGroup + id)->m_hWnd->HasStyle(ES_READONLY));
            EXPECT_TRUE(user.Enabled(kLatGroup + id));
        }
        for (const int id : {kDegSpin, kMinSpin, kSecSpin}) {
            EXPECT_FALSE(user.Enabled(kLatGroup + id));
        }
        user.Type(kLatGroup + kDegEdit, "5");
        user.Key(kLatGroup + kDegEdit, "Up");
        user.Paste(kLatGroup + kDegEdit, "12 30 00 N");
        EXPECT_EQ(LatBoxes(), "28|30|15.250");
        EXPECT_TRUE(Lat().SetDMS(29.5));
        EXPECT_EQ(LatBoxes(), "29|30|0.00");
        Lat().SetDMSReadOnly(false);
        user.Type(kLatGroup + kDegEdit, "5");
        EXPECT_EQ(LatBoxes(), "5|30|0.00");
        EXPECT_TRUE(user.Enabled(kLatGroup + kSecSpin));
    });
}

// Through the boxes and back.

TEST_F(DMSCtrl, BoxesGiveBackWhatTheyWereSetTo) {
    RunDialog([&](kv::User&) {
        std::mt19937_64 random(53);
        std::uniform_real_distribution<double> angles(-180.0, 180.0);
        for (int i = 0; i < 500'000; ++i) {
            const double angle = i % 3 == 0 ? angles(random) / 180.0 : angles(random);
            Lon().SetFormat(false);
            ASSERT_TRUE(Lon().SetDMS(angle));
            ASSERT_NEAR(Lon().GetDMS(), angle, 0.00501 / 3600.0) << angle;
            ASSERT_EQ(std::signbit(Lon().GetDMS()), std::signbit(angle)) << angle;
            Lon().SetFormat(true);
            ASSERT_TRUE(Lon().SetDMS(angle));
            ASSERT_NEAR(Lon().GetDMS(), angle, 0.501e-6) << angle;
        }
    });
}

}  // namespace
