#include <stdexcept>

#include "support/dialog_fixture.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Focus : public test::DialogTest {
protected:
    TestTemplate dialogTemplate_{{Row(11, kEdit), Row(12, kEdit), Row(13, kEdit),
                                  Row(20, kPushButton, "Twenty"), Row(21, kPushButton, "More"),
                                  Row(30, kDropDown), Row(40, kLabel, "Label")}};
    RecordingDialog dialog_;
};

TEST_F(Focus, MovingItTellsTheOldHolderAndThenTheNewOne) {
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost", "12 gained"));
}

TEST_F(Focus, InsideFocusLostTheNewHolderAlreadyHasIt) {
    int holder = 0;
    dialog_.when["11 lost"] = [&] { holder = FocusedId(); };
    Run(dialog_, [&](kv::User& user) { user.Focus(12); });
    EXPECT_EQ(holder, 12);
}

TEST_F(Focus, SettingItInsideFocusLostActsAtOnce) {
    int atOnce = 0;
    dialog_.when["11 lost"] = [&] {
        dialog_.GetDlgItem(13)->SetFocus();
        atOnce = FocusedId();
    };
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        EXPECT_EQ(FocusedId(), 13);
    });
    EXPECT_EQ(atOnce, 13);
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost", "12 lost", "13 gained"));
}

TEST_F(Focus, ABoxThatWantsItBackKeepsIt) {
    dialog_.when["11 lost"] = [&] { dialog_.GetDlgItem(11)->SetFocus(); };
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost", "12 lost", "11 gained"));
}

TEST_F(Focus, TwoBoxesThatBothWantItBackDoNotLoop) {
    dialog_.when["11 lost"] = [&] { dialog_.GetDlgItem(11)->SetFocus(); };
    dialog_.when["12 lost"] = [&] { dialog_.GetDlgItem(12)->SetFocus(); };
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost", "12 lost", "12 gained"));
}

TEST_F(Focus, AHolderLosesItAnewOnceItsHandlerHasReturned) {
    int losses = 0;
    dialog_.when["11 lost"] = [&] { ++losses; };
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        user.Focus(11);
        user.Focus(12);
    });
    EXPECT_EQ(losses, 2);
}

TEST_F(Focus, AClickFocusesAButtonBeforeItsHandler) {
    int holder = 0;
    dialog_.when["20 clicked"] = [&] { holder = FocusedId(); };
    Run(dialog_, [&](kv::User& user) { user.Click(20); });
    EXPECT_EQ(holder, 20);
    const auto& told = dialog_.told;
    EXPECT_LT(std::find(told.begin(), told.end(), "11 lost"),
              std::find(told.begin(), told.end(), "20 clicked"));
}

TEST_F(Focus, AClickOnALabelLeavesItWhereItIs) {
    Run(dialog_, [&](kv::User& user) {
        user.Click(40);
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), IsEmpty());
}

TEST_F(Focus, ALabelCannotBeEnteredByAPerson) {
    Run(dialog_, [&](kv::User&) {
        kv::Node& label = *dialog_.m_hWnd->FindChild(40);
        EXPECT_FALSE(kv::input::MoveFocus(label));
        EXPECT_FALSE(kv::input::TypeText(label, "x"));
        EXPECT_FALSE(kv::input::Paste(label, "x"));
        EXPECT_EQ(FocusedId(), 11);
    });
}

TEST_F(Focus, OfAComboBoxGoesToItsEdit) {
    Run(dialog_, [&](kv::User&) {
        CWnd* combo = dialog_.GetDlgItem(30);
        combo->SetFocus();
        kv::Node* holder = kv::WindowSystem::Get().Focus();
        ASSERT_NE(holder, nullptr);
        EXPECT_EQ(holder->Class(), kv::NodeClass::kEdit);
        EXPECT_EQ(holder->Parent(), combo->m_hWnd);
    });
}

TEST_F(Focus, IsRefusedByADisabledControl) {
    Run(dialog_, [&](kv::User&) {
        dialog_.GetDlgItem(12)->EnableWindow(FALSE);
        dialog_.GetDlgItem(12)->SetFocus();
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), IsEmpty());
}

TEST_F(Focus, ByTabIsRefusedByADisabledOrHiddenControl) {
    Run(dialog_, [&](kv::User&) {
        dialog_.GetDlgItem(12)->EnableWindow(FALSE);
        dialog_.GotoDlgCtrl(dialog_.GetDlgItem(12));
        EXPECT_EQ(FocusedId(), 11);
        dialog_.GetDlgItem(13)->ShowWindow(SW_HIDE);
        dialog_.GotoDlgCtrl(dialog_.GetDlgItem(13));
        EXPECT_EQ(FocusedId(), 11);
        dialog_.GotoDlgCtrl(dialog_.GetDlgItem(20));
        EXPECT_EQ(FocusedId(), 20);
    });
}

TEST_F(Focus, GoesToTheNextAndThePreviousControl) {
    Run(dialog_, [&](kv::User&) {
        dialog_.NextDlgCtrl();
        EXPECT_EQ(FocusedId(), 12);
        dialog_.PrevDlgCtrl();
        EXPECT_EQ(FocusedId(), 11);
    });
}

// Modal windows.

TEST_F(Focus, AModalWindowTakesItAndGivesItBack) {
    RecordingDialog inner;
    dialog_.when["20 clicked"] = [&] {
        desktop.ExpectWindow("", [&](kv::User& user) {
            EXPECT_EQ(kv::WindowSystem::Get().Focus()->Root(), inner.m_hWnd);
            user.Key(0, "Escape");
        });
        EXPECT_EQ(inner.DoModal(), IDCANCEL);
        EXPECT_EQ(FocusedId(), 20);
    };
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        dialog_.told.clear();
        user.Focus(11);
        user.Click(20);
        EXPECT_EQ(FocusedId(), 20);
        EXPECT_EQ(kv::WindowSystem::Get().Focus()->Root(), dialog_.m_hWnd);
    });
}

TEST_F(Focus, AMessageBoxTellsTheHolderThatItLostItAndGotItBack) {
    desktop.ExpectMessage("Look");
    Run(dialog_, [&](kv::User&) { AfxMessageBox("Look"); });
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost", "11 gained"));
}

TEST_F(Focus, AHandlerOfItThatFailsIsToldOnceAndKeepsIt) {
    dialog_.when["12 gained"] = [] { throw std::runtime_error("It failed."); };
    desktop.ExpectMessage("It failed.");
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost", "12 gained"));
}

TEST_F(Focus, AMessageBoxDoesNotMissItsHolderThatMovedItWhenLosingIt) {
    dialog_.when["11 lost"] = [&] { dialog_.GetDlgItem(13)->SetFocus(); };
    desktop.ExpectMessage("Look");
    Run(dialog_, [&](kv::User&) {
        AfxMessageBox("Look");
        EXPECT_EQ(FocusedId(), 13);
    });
}

TEST_F(Focus, AHolderDisabledUnderAModalWindowPassesItOn) {
    RecordingDialog inner;
    desktop.ExpectWindow("", [&](kv::User& user) {
        dialog_.GetDlgItem(11)->EnableWindow(FALSE);
        user.Key(0, "Escape");
    });
    Run(dialog_, [&](kv::User&) {
        inner.DoModal();
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost"));
}

TEST_F(Focus, AFocusLostHandlerThatOpensAMessageBoxSwallowsTheClick) {
    desktop.ExpectMessage("Value out of range");
    dialog_.when["11 lost"] = [&] { AfxMessageBox("Value out of range"); };
    Run(dialog_, [&](kv::User& user) { user.Click(20); });
    EXPECT_FALSE(dialog_.WasTold("20 clicked"));
}

TEST_F(Focus, AFocusLostHandlerThatDisablesTheButtonSwallowsTheClick) {
    dialog_.when["11 lost"] = [&] { dialog_.GetDlgItem(20)->EnableWindow(FALSE); };
    Run(dialog_, [&](kv::User& user) {
        user.Click(20);
        EXPECT_EQ(FocusedId(), 21);
    });
    EXPECT_FALSE(dialog_.WasTold("20 clicked"));
}

TEST_F(Focus, AFocusLostHandlerThatOpensNothingLetsTheClickThrough) {
    dialog_.when["11 lost"] = [&] { dialog_.SetDlgItemText(12, "seen"); };
    Run(dialog_, [&](kv::User& user) { user.Click(20); });
    EXPECT_TRUE(dialog_.WasTold("20 clicked"));
}

// Before and as the window is shown.

TEST_F(Focus, NoNotificationGoesOutBeforeTheWindowWasShown) {
    dialog_.onInit = [&] {
        dialog_.GetDlgItem(12)->SetFocus();
        dialog_.GetDlgItem(30)->SetFocus();
        dialog_.GetDlgItem(13)->SetFocus();
        return FALSE;
    };
    Run(dialog_, [&](kv::User&) { EXPECT_EQ(FocusedId(), 13); });
    EXPECT_THAT(dialog_.ToldOfFocus(), IsEmpty());
}

TEST_F(Focus, GoesToTheFirstTabStopWhenOnInitDialogAnswersTrue) {
    dialog_.onInit = [&] {
        dialog_.GetDlgItem(11)->EnableWindow(FALSE);
        dialog_.GetDlgItem(12)->ShowWindow(SW_HIDE);
        dialog_.SetDlgItemText(13, "all of it");
        dialog_.GetDlgItem(20)->SetFocus();
        return TRUE;
    };
    Run(dialog_, [&](kv::User& user) {
        EXPECT_EQ(FocusedId(), 13);
        user.Key(0, "x");
        EXPECT_EQ(user.Text(13), "x");
    });
}

TEST_F(Focus, StaysWhereItWasPutWhenOnInitDialogAnswersFalse) {
    dialog_.onInit = [&] {
        dialog_.GetDlgItem(21)->SetFocus();
        return FALSE;
    };
    Run(dialog_, [&](kv::User&) { EXPECT_EQ(FocusedId(), 21); });
}

// Holders that cannot hold it any more.

TEST_F(Focus, ADisabledHolderLosesItToTheNextTabStopOnceTheHandlerHasReturned) {
    int inside = 0;
    dialog_.when["20 clicked"] = [&] {
        dialog_.GetDlgItem(20)->EnableWindow(FALSE);
        inside = FocusedId();
    };
    Run(dialog_, [&](kv::User& user) {
        user.Click(20);
        EXPECT_EQ(FocusedId(), 21);
    });
    EXPECT_EQ(inside, 20);
    EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("11 lost"));
}

TEST_F(Focus, AHiddenHolderLosesItQuietly) {
    dialog_.when["11 changed"] = [&] { dialog_.GetDlgItem(11)->ShowWindow(SW_HIDE); };
    Run(dialog_, [&](kv::User& user) {
        user.Key(11, "x");
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), IsEmpty());
}

TEST_F(Focus, ADisabledComboBoxLosesItFromItsEdit) {
    Run(dialog_, [&](kv::User& user) {
        user.Focus(30);
        dialog_.GetDlgItem(30)->EnableWindow(FALSE);
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(FocusedId(), 11);
    });
}

TEST_F(Focus, AHolderThatIsEnabledAgainInTheSameHandlerKeepsIt) {
    dialog_.when["20 clicked"] = [&] {
        dialog_.GetDlgItem(20)->EnableWindow(FALSE);
        dialog_.GetDlgItem(20)->EnableWindow(TRUE);
    };
    Run(dialog_, [&](kv::User& user) {
        user.Click(20);
        EXPECT_EQ(FocusedId(), 20);
    });
}

TEST_F(Focus, WithNoTabStopLeftNobodyHasIt) {
    Run(dialog_, [&](kv::User&) {
        for (const int id : {11, 12, 13, 20, 21, 30})
            dialog_.GetDlgItem(id)->EnableWindow(FALSE);
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(kv::WindowSystem::Get().Focus(), nullptr);
        dialog_.GetDlgItem(12)->EnableWindow(TRUE);
        EXPECT_TRUE(kv::input::PressKey(VK_TAB));
        EXPECT_EQ(FocusedId(), 12);
    });
}

TEST_F(Focus, ADestroyedHolderLosesItToTheNextTabStop) {
    Run(dialog_, [&](kv::User&) {
        dialog_.GetDlgItem(11)->DestroyWindow();
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(dialog_.ToldOfFocus(), IsEmpty());
}

// Several windows.

TEST_F(Focus, AModelessWindowTakesItWithItsNotificationAndGivesItBackWhenDestroyed) {
    RecordingDialog tool;
    Run(dialog_, [&](kv::User& user) {
        user.Focus(12);
        dialog_.told.clear();
        ASSERT_TRUE(tool.Create(test::kTestTemplate, &dialog_));
        EXPECT_EQ(kv::WindowSystem::Get().Focus()->Root(), tool.m_hWnd);
        EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("12 lost"));
        tool.DestroyWindow();
        EXPECT_EQ(kv::WindowSystem::Get().Focus(), dialog_.m_hWnd->FindChild(12));
        EXPECT_THAT(dialog_.ToldOfFocus(), ElementsAre("12 lost", "12 gained"));
    });
    EXPECT_THAT(tool.ToldOfFocus(), IsEmpty());
}

TEST_F(Focus, AHiddenWindowRemembersItForWhenItComesBack) {
    RecordingDialog tool;
    Run(dialog_, [&](kv::User&) {
        ASSERT_TRUE(tool.Create(test::kTestTemplate, &dialog_));
        tool.GetDlgItem(13)->SetFocus();
        tool.ShowWindow(SW_HIDE);
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(kv::WindowSystem::Get().Focus(), dialog_.m_hWnd->FindChild(11));
        tool.ShowWindow(SW_SHOW);
        EXPECT_EQ(kv::WindowSystem::Get().Focus(), tool.m_hWnd->FindChild(13));
    });
    EXPECT_FALSE(tool.WasTold("13 lost"));
}

}  // namespace
