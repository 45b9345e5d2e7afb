#include "support/dialog_fixture.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;

namespace {

/// A handle that answers WM_GETDLGCODE as the test says, and counts the key-downs that reach it.
class GreedyHandle : public CWnd {
public:
    int code = DLGC_WANTALLKEYS;
    std::vector<int> keys;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETDLGCODE) return code;
        if (message == WM_KEYDOWN) keys.push_back(static_cast<int>(wParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class Keys : public test::DialogTest {
protected:
    /// Runs a dialog of these rows while a person does `act` in it.
    int Open(std::vector<kv::ControlRow> rows, const std::function<void(kv::User&)>& act) {
        template_.emplace(std::move(rows));
        return Run(dialog_, act);
    }
    /// Ids of the controls that the focus visits as `key` is pressed so many times.
    static std::vector<int> Visit(kv::User& user, const char* key, int times) {
        std::vector<int> visited;
        for (int i = 0; i < times; ++i) {
            user.Key(0, key);
            visited.push_back(FocusedId());
        }
        return visited;
    }

    std::optional<TestTemplate> template_;
    RecordingDialog dialog_;
};

// Tab.

TEST_F(Keys, TabGoesRoundTheVisibleEnabledTabStops) {
    Open({Row(40, kLabel, "Label"), Row(11, kEdit), Row(12, kEdit, "", kv::kHidden),
          Row(13, kEdit, "", kv::kDisabled), Row(14, kEdit, "", kv::kNoTabStop), Row(15, kDropDown),
          Row(20, kPushButton)},
         [](kv::User& user) {
             EXPECT_EQ(FocusedId(), 11);
             EXPECT_THAT(Visit(user, "Tab", 4), ElementsAre(15, 20, 11, 15));
             EXPECT_THAT(Visit(user, "Shift+Tab", 3), ElementsAre(11, 20, 15));
         });
}

TEST_F(Keys, WhatLiesOutsideTheDialogIsReachedByNoKeyAndNoClick) {
    Open({Row(11, kEdit),
          {12, kEdit, "", {0, 198, 50, 12}},
          {13, kLabel, "&Below", {0, 200, 50, 12}},
          {14, kEdit, "", {0, 200, 50, 12}},
          {15, kPushButton, "&Right", {300, 0, 50, 12}},
          {16, kCheckBox, "&Above", {0, -12, 50, 12}},
          {17, kCheckBox, "&Left", {-50, 0, 50, 12}}},
         [&](kv::User& user) {
             EXPECT_THAT(Visit(user, "Tab", 3), ElementsAre(12, 11, 12));
             for (const char letter : {'B', 'R', 'A', 'L'})
                 EXPECT_FALSE(kv::HandleMnemonic(*dialog_.m_hWnd, letter)) << letter;
             EXPECT_FALSE(user.Checked(16));
             EXPECT_FALSE(kv::input::Click(*dialog_.m_hWnd->FindChild(15)));
             EXPECT_FALSE(dialog_.WasTold("15 clicked"));
             // A label inside does not reach outside either.
             dialog_.GetDlgItem(13)->MoveWindow(CRect{0, 20, 50, 30});
             EXPECT_FALSE(kv::HandleMnemonic(*dialog_.m_hWnd, 'B'));
             EXPECT_EQ(FocusedId(), 12);
             EXPECT_TRUE(dialog_.GetDlgItem(14)->IsWindowVisible());
         });
}

TEST_F(Keys, TabStaysWhereThereIsNoOtherTabStop) {
    Open({Row(11, kEdit), Row(40, kLabel)},
         [](kv::User& user) { EXPECT_THAT(Visit(user, "Tab", 2), ElementsAre(11, 11)); });
}

TEST_F(Keys, TabSelectsTheWholeTextOfAnEdit) {
    Open({Row(11, kEdit), Row(12, kEdit)}, [&](kv::User& user) {
        dialog_.SetDlgItemText(12, "old");
        user.Key(0, "Tab");
        user.Key(0, "n");
        EXPECT_EQ(user.Text(12), "n");
    });
}

TEST_F(Keys, TabWithCtrlIsNoDialogKeyAndTypesNothing) {
    Open({Row(11, kEdit), Row(12, kEdit)}, [](kv::User& user) {
        user.Key(0, "Ctrl+Tab");
        EXPECT_EQ(FocusedId(), 11);
        EXPECT_EQ(user.Text(11), "");
    });
}

TEST_F(Keys, TypingATabMovesOnLikeTheKey) {
    Open({Row(11, kEdit), Row(12, kEdit)}, [](kv::User& user) {
        user.Type(11, "ab\tcd");
        EXPECT_EQ(user.Text(11), "ab");
        EXPECT_EQ(user.Text(12), "cd");
    });
}

// Radio groups.

std::vector<kv::ControlRow> TwoRadioGroups() {
    return {Row(11, kEdit),
            Row(31, kRadio, "One", kv::kFirstOfGroup),
            Row(32, kRadio, "Two"),
            Row(33, kRadio, "Three"),
            Row(41, kRadio, "Left", kv::kFirstOfGroup),
            Row(42, kRadio, "Right"),
            Row(20, kPushButton, "Go", kv::kFirstOfGroup)};
}

TEST_F(Keys, TabEntersARadioGroupAtItsCheckedButtonAndLeavesItBehindIt) {
    dialog_.onInit = [&] {
        dialog_.CheckDlgButton(32, BST_CHECKED);
        dialog_.CheckDlgButton(42, BST_CHECKED);
        return TRUE;
    };
    Open(TwoRadioGroups(), [](kv::User& user) {
        EXPECT_THAT(Visit(user, "Tab", 4), ElementsAre(32, 42, 20, 11));
        EXPECT_THAT(Visit(user, "Shift+Tab", 4), ElementsAre(20, 42, 32, 11));
    });
}

TEST_F(Keys, TabEntersAGroupWithNothingCheckedAtItsNearestButton) {
    Open(TwoRadioGroups(),
         [](kv::User& user) { EXPECT_THAT(Visit(user, "Tab", 3), ElementsAre(31, 41, 20)); });
}

TEST_F(Keys, ArrowsGoRoundARadioGroupAndCheck) {
    dialog_.onInit = [&] {
        dialog_.CheckDlgButton(31, BST_CHECKED);
        dialog_.CheckDlgButton(42, BST_CHECKED);
        return TRUE;
    };
    bool checkedInHandler = false;
    bool formerInHandler = true;
    dialog_.when["32 clicked"] = [&] {
        checkedInHandler = dialog_.IsDlgButtonChecked(32);
        formerInHandler = dialog_.IsDlgButtonChecked(31);
    };
    Open(TwoRadioGroups(), [](kv::User& user) {
        user.Focus(31);
        EXPECT_THAT(Visit(user, "Down", 3), ElementsAre(32, 33, 31));
        EXPECT_THAT(Visit(user, "Left", 2), ElementsAre(33, 32));
        EXPECT_TRUE(user.Checked(32));
        EXPECT_FALSE(user.Checked(31));
        EXPECT_FALSE(user.Checked(33));
        EXPECT_TRUE(user.Checked(42));
    });
    EXPECT_TRUE(checkedInHandler);
    EXPECT_FALSE(formerInHandler);
}

TEST_F(Keys, ArrowsPassDisabledAndHiddenRadioButtons) {
    Open(TwoRadioGroups(), [&](kv::User& user) {
        user.Focus(31);
        dialog_.GetDlgItem(32)->EnableWindow(FALSE);
        EXPECT_THAT(Visit(user, "Right", 2), ElementsAre(33, 31));
        dialog_.GetDlgItem(33)->ShowWindow(SW_HIDE);
        EXPECT_THAT(Visit(user, "Right", 1), ElementsAre(31));
    });
}

TEST_F(Keys, ArrowsPassGroupBoxes) {
    Open({Row(5, kGroupBox, "Both"), Row(21, kCheckBox, "One"), Row(22, kCheckBox, "Two")},
         [](kv::User& user) {
             user.Focus(21);
             EXPECT_THAT(Visit(user, "Down", 2), ElementsAre(22, 21));
             EXPECT_THAT(Visit(user, "Up", 1), ElementsAre(22));
         });
}

TEST_F(Keys, AnArrowDoesNotCheckAButtonThatDidNotKeepTheFocus) {
    class Shy : public CWnd {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_SETFOCUS) GetParent()->GetDlgItem(11)->SetFocus();
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Shy shy;
    Open({Row(31, kRadio, "One", kv::kFirstOfGroup), Row(32, kRadio, "Two"),
          Row(11, kEdit, "", kv::kFirstOfGroup)},
         [&](kv::User& user) {
             shy.SubclassDlgItem(32, &dialog_);
             user.Key(31, "Down");
             EXPECT_EQ(FocusedId(), 11);
             EXPECT_FALSE(user.Checked(32));
         });
    EXPECT_FALSE(dialog_.WasTold("32 clicked"));
}

// Enter.

TEST_F(Keys, EnterPressesTheFocusedPushButton) {
    Open({Row(20, kPushButton, "Go"), Row(IDOK, kDefaultButton, "OK")}, [&](kv::User& user) {
        user.Key(20, "Enter");
        EXPECT_TRUE(user.Open());
    });
    EXPECT_TRUE(dialog_.WasTold("20 clicked"));
    EXPECT_FALSE(dialog_.WasTold("1 clicked"));
}

TEST_F(Keys, EnterPressesTheDefaultButtonFromElsewhereAndLeavesTheFocus) {
    int holder = 0;
    dialog_.when["20 clicked"] = [&] { holder = FocusedId(); };
    Open({Row(11, kEdit), Row(12, kCheckBox, "Check"), Row(20, kDefaultButton, "Go"),
          Row(IDOK, kPushButton, "OK")},
         [&](kv::User& user) {
             user.Key(11, "Enter");
             EXPECT_EQ(holder, 11);
             user.Key(12, "Enter");
             EXPECT_EQ(holder, 12);
             EXPECT_FALSE(user.Checked(12));
         });
}

TEST_F(Keys, EnterFollowsSetDefID) {
    Open({Row(11, kEdit), Row(20, kDefaultButton, "Go"), Row(21, kPushButton, "Other")},
         [&](kv::User& user) {
             dialog_.SetDefID(21);
             user.Key(11, "Enter");
         });
    EXPECT_TRUE(dialog_.WasTold("21 clicked"));
    EXPECT_FALSE(dialog_.WasTold("20 clicked"));
}

TEST_F(Keys, EnterSendsIdokWhereThereIsNoButton) {
    const int result = Open({Row(11, kEdit)}, [](kv::User& user) { user.Key(11, "Enter"); });
    EXPECT_EQ(result, IDOK);
}

TEST_F(Keys, EnterPressesAHiddenDefaultButton) {
    const int result = Open({Row(11, kEdit), Row(IDOK, kDefaultButton, "OK", kv::kHidden)},
                            [](kv::User& user) { user.Key(11, "Enter"); });
    EXPECT_EQ(result, IDOK);
}

TEST_F(Keys, ADisabledDefaultButtonBlocksEnter) {
    Open({Row(11, kEdit), Row(IDOK, kDefaultButton, "OK", kv::kDisabled)}, [](kv::User& user) {
        user.Key(11, "Enter");
        EXPECT_TRUE(user.Open());
    });
    EXPECT_FALSE(dialog_.WasTold("1 clicked"));
}

TEST_F(Keys, EnterInAMultiLineEditThatWantsItIsALine) {
    Open({Row(11, kEdit, "", kv::kMultiLine | kv::RowStyle{ES_WANTRETURN, 0}),
          Row(IDOK, kDefaultButton, "OK")},
         [](kv::User& user) {
             user.Type(11, "a");
             user.Key(0, "Enter");
             user.Key(0, "b");
             ASSERT_TRUE(user.Open());
             EXPECT_EQ(user.Text(11), "a\r\nb");
         });
}

TEST_F(Keys, EnterInAMultiLineEditThatDoesNotWantItPressesTheDefaultButton) {
    const int result = Open({Row(11, kEdit, "", kv::kMultiLine), Row(IDOK, kDefaultButton, "OK")},
                            [](kv::User& user) { user.Key(11, "Enter"); });
    EXPECT_EQ(result, IDOK);
}

TEST_F(Keys, TabAndEscapeLeaveAMultiLineEdit) {
    const auto lines = kv::kMultiLine | kv::RowStyle{ES_WANTRETURN, 0};
    const int result = Open({Row(11, kEdit, "", lines), Row(12, kEdit)}, [](kv::User& user) {
        user.Key(11, "Tab");
        EXPECT_EQ(FocusedId(), 12);
        EXPECT_EQ(user.Text(11), "");
        user.Key(11, "Escape");
    });
    EXPECT_EQ(result, IDCANCEL);
}

// Escape.

TEST_F(Keys, EscapeSendsIdcancelWithAButtonAHiddenOneOrNone) {
    const auto escape = [](kv::User& user) { user.Key(0, "Escape"); };
    EXPECT_EQ(Open({Row(11, kEdit), Row(IDCANCEL, kPushButton, "Cancel")}, escape), IDCANCEL);
    EXPECT_EQ(Open({Row(11, kEdit), Row(IDCANCEL, kPushButton, "Cancel", kv::kHidden)}, escape),
              IDCANCEL);
    EXPECT_EQ(Open({Row(11, kEdit)}, escape), IDCANCEL);
}

TEST_F(Keys, ADisabledCancelButtonBlocksEscapeAndTheWindowButton) {
    Open({Row(11, kEdit), Row(IDCANCEL, kPushButton, "Cancel", kv::kDisabled)}, [](kv::User& user) {
        user.Key(0, "Escape");
        EXPECT_TRUE(user.Open());
        user.Close();
        EXPECT_TRUE(user.Open());
    });
}

TEST_F(Keys, TheWindowButtonCancels) {
    EXPECT_EQ(Open({Row(11, kEdit)}, [](kv::User& user) { user.Close(); }), IDCANCEL);
}

TEST_F(Keys, ReachADialogInWhichNothingHasTheFocus) {
    dialog_.onInit = [] { return FALSE; };
    const std::vector<kv::ControlRow> rows{Row(11, kEdit), Row(IDOK, kDefaultButton, "OK")};
    const auto press = [](const char* key) {
        return [key](kv::User& user) {
            EXPECT_EQ(kv::WindowSystem::Get().Focus(), nullptr);
            user.Key(0, key);
        };
    };
    EXPECT_EQ(Open(rows, press("Enter")), IDOK);
    EXPECT_EQ(Open(rows, press("Escape")), IDCANCEL);
    EXPECT_EQ(Open(rows, press("Space")), kLeftOpen);
    EXPECT_EQ(Open(rows,
                   [](kv::User& user) {
                       user.Key(0, "Tab");
                       EXPECT_EQ(FocusedId(), 11);
                   }),
              kLeftOpen);
}

// Mnemonics.

TEST_F(Keys, TheMnemonicOfALabelReachesTheControlBehindIt) {
    Open({Row(11, kEdit), Row(40, kLabel, "&Area"), Row(41, kLabel, "(code)"),
          Row(12, kEdit, "", kv::kHidden), Row(30, kDropDown)},
         [](kv::User& user) {
             user.Key(0, "Alt+A");
             EXPECT_EQ(FocusedId(), 30);
         });
}

TEST_F(Keys, TheMnemonicOfALabelWhoseControlIsDisabledReachesNothing) {
    Open({Row(11, kEdit), Row(40, kLabel, "&Area"), Row(12, kEdit, "", kv::kDisabled),
          Row(13, kEdit)},
         [](kv::User&) {
             EXPECT_FALSE(kv::input::PressKey('A', {.alt = true}));
             EXPECT_EQ(FocusedId(), 11);
         });
}

TEST_F(Keys, TheMnemonicOfAPushButtonPressesItAndLeavesTheFocus) {
    int holder = 0;
    dialog_.when["20 clicked"] = [&] { holder = FocusedId(); };
    Open({Row(11, kEdit), Row(20, kPushButton, "&Go")},
         [](kv::User& user) { user.Key(0, "Alt+g"); });
    EXPECT_EQ(holder, 11);
}

TEST_F(Keys, TheMnemonicOfACheckBoxFocusesAndTogglesIt) {
    Open({Row(11, kEdit), Row(12, kCheckBox, "Sho&w"), Row(31, kRadio, "&One", kv::kFirstOfGroup),
          Row(32, kRadio, "&Two")},
         [](kv::User& user) {
             user.Key(0, "Alt+W");
             EXPECT_EQ(FocusedId(), 12);
             EXPECT_TRUE(user.Checked(12));
             user.Key(0, "Alt+T");
             EXPECT_EQ(FocusedId(), 32);
             EXPECT_TRUE(user.Checked(32));
         });
}

TEST_F(Keys, AMnemonicThatSeveralShareMovesTheFocusRoundThemAndPressesNone) {
    Open({Row(11, kEdit), Row(12, kCheckBox, "&Same"), Row(20, kPushButton, "&Send"),
          Row(40, kLabel, "&Sum"), Row(13, kEdit)},
         [](kv::User& user) {
             EXPECT_THAT(Visit(user, "Alt+S", 4), ElementsAre(12, 20, 13, 12));
             EXPECT_FALSE(user.Checked(12));
         });
    EXPECT_FALSE(dialog_.WasTold("20 clicked"));
}

TEST_F(Keys, AMnemonicPassesDisabledAndHiddenButtons) {
    Open({Row(11, kEdit), Row(20, kPushButton, "&Go", kv::kDisabled),
          Row(21, kPushButton, "&Get", kv::kHidden)},
         [](kv::User&) { EXPECT_FALSE(kv::input::PressKey('G', {.alt = true})); });
    EXPECT_FALSE(dialog_.WasTold("20 clicked"));
    EXPECT_FALSE(dialog_.WasTold("21 clicked"));
}

TEST_F(Keys, TwoAmpersandsAreNoMnemonic) {
    Open({Row(11, kEdit), Row(20, kPushButton, "X &&Y &Z")}, [](kv::User& user) {
        EXPECT_FALSE(kv::input::PressKey('Y', {.alt = true}));
        user.Key(0, "Alt+Z");
    });
    EXPECT_TRUE(dialog_.WasTold("20 clicked"));
}

TEST_F(Keys, ALetterAloneOnAButtonIsAMnemonicAndInAnEditIsText) {
    Open({Row(20, kPushButton, "&Go"), Row(11, kEdit)}, [&](kv::User& user) {
        user.Key(11, "g");
        EXPECT_EQ(user.Text(11), "g");
        EXPECT_FALSE(dialog_.WasTold("20 clicked"));
        user.Key(20, "g");
    });
    EXPECT_TRUE(dialog_.WasTold("20 clicked"));
}

// What controls and filters make of keys.

TEST_F(Keys, AControlThatWantsAllKeysGetsThem) {
    GreedyHandle greedy;
    Open({Row(11, kEdit), Row(12, kEdit), Row(IDOK, kDefaultButton, "OK")}, [&](kv::User& user) {
        greedy.SubclassDlgItem(11, &dialog_);
        for (const char* key : {"Tab", "Enter", "Escape", "Down"})
            user.Key(11, key);
        EXPECT_TRUE(user.Open());
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_THAT(greedy.keys, ElementsAre(VK_TAB, VK_RETURN, VK_ESCAPE, VK_DOWN));
}

TEST_F(Keys, AControlThatWantsArrowsOrTabGetsThose) {
    GreedyHandle greedy;
    greedy.code = DLGC_WANTTAB;
    Open({Row(11, kEdit), Row(12, kEdit)}, [&](kv::User& user) {
        greedy.SubclassDlgItem(11, &dialog_);
        user.Key(11, "Tab");
        EXPECT_EQ(FocusedId(), 11);
        greedy.code = 0;
        user.Key(11, "Tab");
        EXPECT_EQ(FocusedId(), 12);
    });
    EXPECT_THAT(greedy.keys, ElementsAre(VK_TAB));
}

TEST_F(Keys, PreTranslateMessageOfControlAndDialogComeAheadOfDialogKeys) {
    std::vector<UINT> seen;
    dialog_.onPreTranslate = [&](MSG* message) {
        if (message->message == WM_KEYDOWN) seen.push_back(static_cast<UINT>(message->wParam));
        return message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE;
    };
    Open({Row(11, kEdit)}, [&](kv::User& user) {
        user.Key(0, "Escape");
        EXPECT_TRUE(user.Open());
        user.Type(11, "a");
    });
    EXPECT_THAT(seen, ElementsAre(VK_ESCAPE, 'A'));
}

TEST_F(Keys, AKeyDownThatAFilterSwallowsTypesNothing) {
    dialog_.onPreTranslate = [](MSG* message) {
        return message->message == WM_KEYDOWN && message->wParam == 'B';
    };
    Open({Row(11, kEdit)}, [](kv::User& user) {
        user.Type(11, "abc");
        EXPECT_EQ(user.Text(11), "ac");
        user.Key(11, "b");
        EXPECT_EQ(user.Text(11), "ac");
    });
}

TEST_F(Keys, AFilterSeesTheMnemonicToo) {
    dialog_.onPreTranslate = [](MSG* message) { return message->message == WM_SYSCHAR; };
    Open({Row(11, kEdit), Row(20, kPushButton, "&Go")},
         [](kv::User& user) { user.Key(0, "Alt+G"); });
    EXPECT_FALSE(dialog_.WasTold("20 clicked"));
}

TEST_F(Keys, PostedKeysTakeTheSameCourseAsPressedOnes) {
    Open({Row(11, kEdit), Row(12, kEdit)}, [&](kv::User& user) {
        CWnd* edit = dialog_.GetDlgItem(11);
        edit->PostMessage(WM_KEYDOWN, 'Q', 1);
        edit->PostMessage(WM_CHAR, 'r', 1);
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(user.Text(11).size(), 2u);
        EXPECT_NE(user.Text(11).find('q'), std::string::npos);
        edit->PostMessage(WM_KEYDOWN, VK_TAB, 1);
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(FocusedId(), 12);
    });
}

TEST_F(Keys, AHandlerCanTakeTypedAheadCharactersOutOfTheQueue) {
    dialog_.when["11 changed"] = [&] {
        MSG message;
        const HWND edit = dialog_.GetDlgItem(11)->m_hWnd;
        while (kv::WindowSystem::Get().Take(message, edit, WM_CHAR, WM_CHAR)) {
        }
    };
    Open({Row(11, kEdit), Row(12, kEdit)}, [&](kv::User& user) {
        for (const char ch : std::string("xyz")) {
            dialog_.GetDlgItem(11)->PostMessage(WM_CHAR, static_cast<WPARAM>(ch), 1);
        }
        dialog_.GetDlgItem(12)->PostMessage(WM_CHAR, 'k', 1);
        kv::WindowSystem::Get().Settle();
        EXPECT_EQ(user.Text(11), "x");
        EXPECT_EQ(user.Text(12), "k");
    });
}

TEST_F(Keys, OnlyMessagesBetweenTheTwoAreTaken) {
    Open({Row(11, kEdit)}, [&](kv::User&) {
        MSG message;
        auto& system = kv::WindowSystem::Get();
        const HWND edit = dialog_.GetDlgItem(11)->m_hWnd;
        dialog_.GetDlgItem(11)->PostMessage(WM_CHAR, 'x', 1);
        EXPECT_FALSE(system.Take(message, edit, 0, WM_CHAR - 1));
        EXPECT_FALSE(system.Take(message, edit, WM_CHAR + 1, WM_CHAR + 9));
        EXPECT_TRUE(system.Take(message, edit, 0, WM_CHAR));
        dialog_.GetDlgItem(11)->PostMessage(WM_CHAR, 'x', 1);
        EXPECT_TRUE(system.Take(message, edit));
        EXPECT_FALSE(system.Take(message, edit));
    });
}

TEST_F(Keys, AKeyDownHandlerCanTakeTheCharacterOfItsOwnKey) {
    class Filter : public GreedyHandle {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            MSG taken;
            if (message == WM_KEYDOWN && wParam == 'B') {
                kv::WindowSystem::Get().Take(taken, m_hWnd, WM_CHAR, WM_CHAR);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Filter filter;
    Open({Row(11, kEdit)}, [&](kv::User& user) {
        filter.SubclassDlgItem(11, &dialog_);
        user.Type(11, "abc");
        EXPECT_EQ(user.Text(11), "ac");
    });
}

TEST_F(Keys, ShiftTypesCapitals) {
    Open({Row(11, kEdit)}, [](kv::User& user) {
        user.Key(11, "a");
        user.Key(11, "Shift+b");
        user.Key(11, "7");
        EXPECT_EQ(user.Text(11), "aB7");
    });
}

TEST_F(Keys, SpacePressesTheFocusedButtonOnce) {
    Open({Row(20, kPushButton, "Go"), Row(12, kCheckBox, "Check")}, [&](kv::User& user) {
        user.Key(20, "Space");
        user.Key(12, "Space");
        EXPECT_TRUE(user.Checked(12));
        user.Key(12, "Space");
        EXPECT_FALSE(user.Checked(12));
    });
    EXPECT_EQ(std::count(dialog_.told.begin(), dialog_.told.end(), "20 clicked"), 1);
}

TEST_F(Keys, AreKnownByTheirNames) {
    EXPECT_EQ(kv::input::KeyByName("enter"), VK_RETURN);
    EXPECT_EQ(kv::input::KeyByName("PageDown"), VK_NEXT);
    EXPECT_EQ(kv::input::KeyByName("q"), 'Q');
    EXPECT_EQ(kv::input::KeyByName("7"), '7');
    EXPECT_EQ(kv::input::KeyByName("Hyper"), 0);
}

}  // namespace
