#include "window/controls/spin_button_ctrl.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/dialog_fixture.h"

namespace {

constexpr int kOther = 9;
constexpr int kEdit = 10;
constexpr int kSpin = 11;

/// A dialog that keeps what its spin button told it.
class SpinDialog : public CDialog {
public:
    SpinDialog() : CDialog(test::kTestTemplate) {}

    CSpinButtonCtrl spin;
    std::vector<std::string> told;
    std::function<LRESULT(NMUPDOWN&)> answer;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        spin.SubclassDlgItem(kSpin, this);
        return TRUE;
    }

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        auto& notice = *reinterpret_cast<NMUPDOWN*>(lParam);
        if (notice.hdr.code != UDN_DELTAPOS) return FALSE;
        told.push_back(std::to_string(notice.iPos) + (notice.iDelta < 0 ? "" : "+") +
                       std::to_string(notice.iDelta));
        *result = answer ? answer(notice) : 0;
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_VSCROLL || message == WM_HSCROLL) {
            told.push_back((message == WM_VSCROLL ? "v" : "h") + std::to_string(LOWORD(wParam)) +
                           " at " + std::to_string(HIWORD(wParam)));
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }
};

class Spin : public test::DialogTest {
protected:
    void RunWith(DWORD style, const std::function<void(kv::User&)>& act) {
        const test::TestTemplate dialogTemplate(
            {test::Row(kOther, kv::ControlKind::kEdit), test::Row(kEdit, kv::ControlKind::kEdit),
             test::Row(kSpin, kv::ControlKind::kSpin, "", {style, 0})});
        Run(dialog, act);
    }
    bool Step(bool up) { return kv::input::StepSpin(*dialog.spin.m_hWnd, up); }

    SpinDialog dialog;
};

using Words = std::vector<std::string>;

TEST_F(Spin, OffersTheStepTakesItAndTellsOfIt) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetRange(0, 1000);
        EXPECT_EQ(dialog.spin.SetPos(500), 0);
        EXPECT_TRUE(Step(true));
        EXPECT_EQ(dialog.told, (Words{"500+1", "v4 at 501", "v8 at 501"}));
        EXPECT_EQ(dialog.spin.GetPos(), 501);
        Step(false);
        EXPECT_EQ(dialog.spin.GetPos(), 500);
    });
}

TEST_F(Spin, AnAnswerOtherThanZeroRefusesTheStep) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetRange(0, 10);
        dialog.answer = [](NMUPDOWN&) { return 1; };
        Step(true);
        EXPECT_EQ(dialog.told, (Words{"0+1"}));
        EXPECT_EQ(dialog.spin.GetPos(), 0);
    });
}

TEST_F(Spin, AHandlerMayChangeTheStep) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetRange(0, 10);
        dialog.answer = [](NMUPDOWN& notice) {
            notice.iDelta *= 4;
            return 0;
        };
        Step(true);
        EXPECT_EQ(dialog.spin.GetPos(), 4);
    });
}

TEST_F(Spin, StopsAtItsEnds) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetRange(0, 2);
        for (int press = 0; press < 5; ++press)
            Step(true);
        EXPECT_EQ(dialog.spin.GetPos(), 2);
        for (int press = 0; press < 5; ++press)
            Step(false);
        EXPECT_EQ(dialog.spin.GetPos(), 0);
    });
}

TEST_F(Spin, WrapsWhenItIsToWrap) {
    RunWith(UDS_WRAP, [&](kv::User&) {
        dialog.spin.SetRange(1, 3);
        EXPECT_EQ(dialog.spin.SetPos(3), 0);
        Step(true);
        EXPECT_EQ(dialog.spin.GetPos(), 1);
        Step(false);
        EXPECT_EQ(dialog.spin.GetPos(), 3);
    });
}

TEST_F(Spin, BeginsWithAHundredBelowAndCountsDownByItsUpArrow) {
    RunWith(0, [&](kv::User&) {
        int lower = 0;
        int upper = 0;
        dialog.spin.GetRange(lower, upper);
        EXPECT_EQ(lower, 100);
        EXPECT_EQ(upper, 0);
        dialog.spin.SetPos(50);
        Step(true);
        EXPECT_EQ(dialog.spin.GetPos(), 49);
    });
}

TEST_F(Spin, BringsAPositionIntoTheRange) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetRange(5, 9);
        dialog.spin.SetPos(99);
        EXPECT_EQ(dialog.spin.GetPos(), 9);
        dialog.spin.SetPos(-99);
        EXPECT_EQ(dialog.spin.GetPos(), 5);
    });
}

TEST_F(Spin, MessagesOfSixteenBitsSetAndTellTheRange) {
    RunWith(0, [&](kv::User&) {
        EXPECT_EQ(dialog.spin.SendMessage(UDM_GETRANGE), MAKELPARAM(0, 100));
        EXPECT_EQ(dialog.spin.SendMessage(UDM_SETRANGE, 0, MAKELPARAM(200, -300)), 0);
        int lower = 0;
        int upper = 0;
        dialog.spin.GetRange(lower, upper);
        EXPECT_EQ(lower, -300);
        EXPECT_EQ(upper, 200);
        EXPECT_EQ(dialog.spin.SendMessage(UDM_GETRANGE), MAKELPARAM(200, -300));
    });
}

TEST_F(Spin, MessagesOfSixteenBitsSetAndTellThePosition) {
    RunWith(UDS_AUTOBUDDY | UDS_SETBUDDYINT, [&](kv::User& user) {
        dialog.spin.SetRange(-300, 200);
        EXPECT_EQ(dialog.spin.SendMessage(UDM_SETPOS, 0, MAKELPARAM(-7, 0)), 0);
        EXPECT_EQ(user.Text(kEdit), "-7");
        EXPECT_EQ(dialog.spin.SendMessage(UDM_SETPOS, 0, MAKELPARAM(12, 0)), -7);
        EXPECT_EQ(dialog.spin.SendMessage(UDM_GETPOS), MAKELPARAM(12, 0));
        user.Type(kEdit, "15");
        EXPECT_EQ(dialog.spin.SendMessage(UDM_GETPOS), MAKELPARAM(15, 0));
        user.Type(kEdit, "999");
        EXPECT_EQ(dialog.spin.SendMessage(UDM_GETPOS), MAKELPARAM(15, 1));
    });
}

TEST_F(Spin, WithoutABuddyTheQuestionForThePositionIsAnError) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetPos(5);
        BOOL error = FALSE;
        EXPECT_EQ(dialog.spin.GetPos(&error), 5);
        EXPECT_TRUE(error);
        EXPECT_EQ(dialog.spin.SendMessage(UDM_GETPOS), MAKELPARAM(5, 1));
        // A buddy that does not show the position is none to read it from.
        dialog.spin.SetBuddy(dialog.GetDlgItem(kEdit));
        EXPECT_EQ(dialog.spin.GetPos(&error), 5);
        EXPECT_FALSE(error);
    });
}

TEST_F(Spin, ItsOwnBuddyIsTheControlAheadOfIt) {
    RunWith(UDS_AUTOBUDDY, [&](kv::User&) {
        EXPECT_EQ(dialog.spin.GetBuddy(), dialog.GetDlgItem(kEdit));
        EXPECT_EQ(dialog.spin.SetBuddy(dialog.GetDlgItem(kOther)), dialog.GetDlgItem(kEdit));
        EXPECT_EQ(dialog.spin.GetBuddy(), dialog.GetDlgItem(kOther));
        dialog.spin.SetBuddy(nullptr);
        EXPECT_EQ(dialog.spin.GetBuddy(), nullptr);
    });
}

TEST_F(Spin, ABuddyThatIsGoneIsNone) {
    RunWith(0, [&](kv::User&) {
        EXPECT_EQ(dialog.spin.GetBuddy(), nullptr);
        dialog.spin.SetBuddy(dialog.GetDlgItem(kEdit));
        dialog.GetDlgItem(kEdit)->DestroyWindow();
        EXPECT_EQ(dialog.spin.GetBuddy(), nullptr);
        EXPECT_TRUE(Step(true));
    });
}

TEST_F(Spin, ABuddyShowsThePositionWithCommas) {
    RunWith(UDS_AUTOBUDDY | UDS_SETBUDDYINT, [&](kv::User& user) {
        dialog.spin.SetRange(-2000000, 2000000);
        dialog.spin.SetPos(1234567);
        EXPECT_EQ(user.Text(kEdit), "1,234,567");
        dialog.spin.SetPos(-123);
        EXPECT_EQ(user.Text(kEdit), "-123");
        dialog.spin.SetPos(-1234);
        EXPECT_EQ(user.Text(kEdit), "-1,234");
        dialog.spin.ModifyStyle(0, UDS_NOTHOUSANDS);
        dialog.spin.SetPos(1234567);
        EXPECT_EQ(user.Text(kEdit), "1234567");
    });
}

TEST_F(Spin, StepsFromWhatWasTypedIntoItsBuddy) {
    RunWith(UDS_AUTOBUDDY | UDS_SETBUDDYINT, [&](kv::User& user) {
        dialog.spin.SetRange(0, 5000);
        user.Type(kEdit, "4,000");
        Step(true);
        EXPECT_EQ(user.Text(kEdit), "4,001");
        user.Type(kEdit, "99999");
        BOOL error = FALSE;
        EXPECT_EQ(dialog.spin.GetPos(&error), 4001);
        EXPECT_TRUE(error);
        user.Type(kEdit, "x");
        dialog.spin.GetPos(&error);
        EXPECT_TRUE(error);
        user.Type(kEdit, "12");
        EXPECT_EQ(dialog.spin.GetPos(&error), 12);
        EXPECT_FALSE(error);
    });
}

TEST_F(Spin, PressingAnArrowGivesTheBuddyTheFocus) {
    RunWith(UDS_AUTOBUDDY, [&](kv::User& user) {
        user.Focus(kOther);
        Step(true);
        EXPECT_EQ(test::FocusedId(), kEdit);
    });
}

TEST_F(Spin, LyingDownItScrollsSideways) {
    RunWith(UDS_HORZ, [&](kv::User&) {
        dialog.spin.SetRange(0, 10);
        Step(true);
        EXPECT_EQ(dialog.told, (Words{"0+1", "h4 at 1", "h8 at 1"}));
    });
}

TEST_F(Spin, ADisabledOneDoesNotStep) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.EnableWindow(FALSE);
        EXPECT_FALSE(Step(true));
        EXPECT_EQ(dialog.told, Words{});
    });
}

TEST_F(Spin, AHandlerMayEndTheDialog) {
    RunWith(0, [&](kv::User&) {
        dialog.answer = [&](NMUPDOWN&) {
            dialog.EndDialog(IDOK);
            return 0;
        };
        EXPECT_TRUE(Step(true));
    });
}

TEST_F(Spin, NearTheGreatestIntItDoesNotOverflow) {
    RunWith(0, [&](kv::User&) {
        dialog.spin.SetRange(0, 2147483647);
        dialog.spin.SetPos(2147483647);
        Step(true);
        EXPECT_EQ(dialog.spin.GetPos(), 2147483647);
    });
}

TEST_F(Spin, UpAndDownInItsBuddyStepWhereItsStyleSaysSo) {
    RunWith(UDS_ARROWKEYS | UDS_AUTOBUDDY | UDS_SETBUDDYINT, [&](kv::User& user) {
        dialog.spin.SetRange(0, 10);
        dialog.spin.SetPos(5);
        user.Key(kEdit, "Up");
        EXPECT_EQ(user.Text(kEdit), "6");
        user.Key(kEdit, "Down");
        user.Key(kEdit, "Down");
        EXPECT_EQ(user.Text(kEdit), "4");
        user.Key(kOther, "Up");
        EXPECT_EQ(user.Text(kEdit), "4");
        dialog.spin.EnableWindow(FALSE);
        user.Key(kEdit, "Up");
        EXPECT_EQ(user.Text(kEdit), "4");
    });
}

TEST_F(Spin, UpAndDownInItsBuddyMoveTheCaretWithoutThatStyle) {
    RunWith(UDS_AUTOBUDDY | UDS_SETBUDDYINT, [&](kv::User& user) {
        dialog.spin.SetRange(0, 10);
        dialog.spin.SetPos(5);
        user.Key(kEdit, "Up");
        EXPECT_EQ(user.Text(kEdit), "5");
        EXPECT_EQ(dialog.told, Words{});
    });
}

TEST_F(Spin, TheWheelOverABuddyStepsOnceThatHasTheFocus) {
    RunWith(UDS_ARROWKEYS | UDS_AUTOBUDDY | UDS_SETBUDDYINT, [&](kv::User& user) {
        dialog.spin.SetRange(0, 10);
        dialog.spin.SetPos(5);
        kv::Node& edit = *dialog.GetDlgItem(kEdit)->m_hWnd;
        EXPECT_FALSE(kv::input::TurnWheel(edit, 1));
        user.Focus(kEdit);
        EXPECT_TRUE(kv::input::TurnWheel(edit, 3));
        EXPECT_EQ(user.Text(kEdit), "8");
        EXPECT_TRUE(kv::input::TurnWheel(edit, -1));
        EXPECT_EQ(user.Text(kEdit), "7");
        EXPECT_FALSE(kv::input::TurnWheel(*dialog.GetDlgItem(kOther)->m_hWnd, 1));
    });
}

}  // namespace
