#include "controls/num_spin_ctrl.h"

#include <gtest/gtest.h>

#include <string>

#include "support/dialog_fixture.h"

namespace {

constexpr int kBox = 10;
constexpr int kSpin = 11;

class NumberDialog : public CDialog {
public:
    NumberDialog() : CDialog(test::kTestTemplate) {}

    CNumEdit number;
    CNumSpinCtrl spin;

    BOOL OnInitDialog() override {
        number.SubclassDlgItem(kBox, this);
        spin.SubclassDlgItem(kSpin, this);
        spin.SetBuddy(&number);
        return CDialog::OnInitDialog();
    }
};

class NumSpinCtrl : public test::DialogTest {
protected:
    void RunDialog(const std::function<void(kv::User&)>& act) {
        const test::TestTemplate dialogTemplate(
            {test::Row(kBox, kv::ControlKind::kEdit), test::Row(kSpin, kv::ControlKind::kSpin)});
        Run(dialog, act);
    }
    void Step(bool up, int times = 1) {
        for (int i = 0; i < times; ++i)
            kv::input::StepSpin(*spin.m_hWnd, up);
    }
    std::string Text() { return number.WindowText(); }
    int OwnPosition() { return static_cast<CSpinButtonCtrl&>(spin).GetPos(); }

    NumberDialog dialog;
    CNumEdit& number = dialog.number;
    CNumSpinCtrl& spin = dialog.spin;
};

TEST_F(NumSpinCtrl, KeepsRangeStepAndValueInItsBuddy) {
    RunDialog([&](kv::User&) {
        EXPECT_EQ(spin.GetBuddy(), &number);
        spin.SetRange(-90.0, 90.0);
        spin.SetDelta(0.05);
        spin.SetPos(12.5);
        EXPECT_EQ(Text(), "12.500");
        EXPECT_EQ(spin.GetPos(), 12.5);
        EXPECT_EQ(number.GetDelta(), 0.05);
        EXPECT_EQ(spin.GetDelta(), 0.05);
        double least = 0.0;
        double most = 0.0;
        number.GetRange(least, most);
        EXPECT_EQ(least, -90.0);
        EXPECT_EQ(most, 90.0);
        least = most = 0.0;
        spin.GetRange(least, most);
        EXPECT_EQ(least, -90.0);
        EXPECT_EQ(most, 90.0);
    });
}

TEST_F(NumSpinCtrl, ItsOwnRangeAndPositionHaveNoMeaning) {
    RunDialog([&](kv::User&) {
        spin.SetRange(0.0, 60.0);
        spin.SetPos(30.0);
        int lower = -1;
        int upper = -1;
        static_cast<CSpinButtonCtrl&>(spin).GetRange(lower, upper);
        EXPECT_EQ(lower, 0);
        EXPECT_EQ(upper, 1000);
        EXPECT_EQ(OwnPosition(), 500);
        Step(true);
        EXPECT_EQ(OwnPosition(), 501);
    });
}

TEST_F(NumSpinCtrl, AThousandPressesNeverReachItsOwnEnd) {
    RunDialog([&](kv::User&) {
        spin.SetRange(-2000.0, 2000.0);
        spin.SetDelta(1.0);
        spin.SetPos(0.0);
        for (int press = 1; press <= 1000; ++press) {
            Step(true);
            ASSERT_EQ(Text(), std::to_string(press));
            ASSERT_LT(OwnPosition(), 1000);
        }
        for (int press = 1; press <= 2000; ++press) {
            Step(false);
            ASSERT_EQ(Text(), std::to_string(1000 - press));
            ASSERT_GT(OwnPosition(), 0);
        }
    });
}

TEST_F(NumSpinCtrl, AThousandPressesStopAtTheBuddysEnd) {
    RunDialog([&](kv::User&) {
        spin.SetRange(0.0, 60.0);
        spin.SetDelta(1.0);
        spin.SetPos(0.0);
        Step(true, 1000);
        EXPECT_EQ(Text(), "60");
        Step(false, 1000);
        EXPECT_EQ(Text(), "0");
    });
}

TEST_F(NumSpinCtrl, AThousandSmallStepsAddUpExactly) {
    RunDialog([&](kv::User&) {
        spin.SetRange(0.0, 60.0);
        spin.SetDelta(0.05);
        spin.SetPos(0.0);
        Step(true, 1000);
        EXPECT_EQ(Text(), "50");
        Step(true, 5);
        EXPECT_EQ(Text(), "50.250");
    });
}

TEST_F(NumSpinCtrl, StepsWhatWasTyped) {
    RunDialog([&](kv::User& user) {
        spin.SetRange(0.0, 60.0);
        spin.SetDelta(1.0);
        user.Type(kBox, "12.5");
        Step(true);
        EXPECT_EQ(Text(), "13.500");
        EXPECT_EQ(test::FocusedId(), kBox);
    });
}

TEST_F(NumSpinCtrl, AnEmptyBoxStepsFromTheLowerEnd) {
    RunDialog([&](kv::User&) {
        spin.SetRange(-90.0, 90.0);
        spin.SetDelta(1.0);
        Step(true);
        EXPECT_EQ(Text(), "-89");
    });
}

TEST_F(NumSpinCtrl, UpAndDownKeysAndTheWheelStepTheBox) {
    RunDialog([&](kv::User& user) {
        spin.SetRange(0.0, 60.0);
        spin.SetDelta(1.0);
        user.Type(kBox, "30");
        user.Key(kBox, "Up");
        EXPECT_EQ(Text(), "31");
        user.Key(kBox, "Down");
        user.Key(kBox, "Down");
        EXPECT_EQ(Text(), "29");
        EXPECT_TRUE(kv::input::TurnWheel(*spin.m_hWnd, 2));
        EXPECT_EQ(Text(), "31");
        EXPECT_TRUE(kv::input::TurnWheel(*number.m_hWnd, -1));
        EXPECT_EQ(Text(), "30");
    });
}

TEST_F(NumSpinCtrl, ADisabledSpinDoesNotStep) {
    RunDialog([&](kv::User& user) {
        spin.SetRange(0.0, 60.0);
        spin.SetDelta(1.0);
        user.Type(kBox, "30");
        spin.EnableWindow(FALSE);
        EXPECT_FALSE(kv::input::StepSpin(*spin.m_hWnd, true));
        user.Key(kBox, "Up");
        EXPECT_EQ(Text(), "30");
    });
}

TEST_F(NumSpinCtrl, WithoutANumberBesideItThereIsNothing) {
    RunDialog([&](kv::User&) {
        spin.SetBuddy(nullptr);
        EXPECT_EQ(spin.GetBuddy(), nullptr);
        EXPECT_EQ(spin.GetPos(), 0.0);
        EXPECT_EQ(spin.GetDelta(), 0.0);
        spin.SetRange(1.0, 2.0);
        spin.SetDelta(0.5);
        spin.SetPos(1.5);
        EXPECT_TRUE(kv::input::TurnWheel(*spin.m_hWnd, 1));
        EXPECT_EQ(Text(), "");
        double least = -1.0;
        double most = -1.0;
        spin.GetRange(least, most);
        EXPECT_EQ(least, 0.0);
        EXPECT_EQ(most, 0.0);
        EXPECT_EQ(number.SetValue(1.5), 0);
    });
}

TEST_F(NumSpinCtrl, KnowsItsClassWhileTheProgramRuns) {
    EXPECT_STREQ(spin.GetRuntimeClass()->m_lpszClassName, "CNumSpinCtrl");
    const auto made = spin.GetRuntimeClass()->CreateObject();
    EXPECT_NE(dynamic_cast<CNumSpinCtrl*>(made.get()), nullptr);
}

}  // namespace
