#include "window/controls/button.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_window.h"
#include "window/controls/button_node.h"
#include "window/controls/static_text.h"
#include "window/window_system.h"

using kv::ButtonNode;
using kv::test::Notice;
using kv::test::Notices;
using kv::test::RecordingWindow;

namespace {

struct Button : testing::Test {
    void Add(CButton& button, int id, DWORD style) {
        ASSERT_TRUE(button.Create("text", kv::test::kControlStyle | style, kv::test::kControlRect,
                                  &window, static_cast<UINT>(id)));
    }
    static void Click(CButton& button) {
        button.SendMessage(WM_LBUTTONDOWN, 1);
        button.SendMessage(WM_LBUTTONUP);
    }
    static void Press(CButton& button) { static_cast<ButtonNode*>(button.m_hWnd)->Press(); }

    RecordingWindow window;
};

struct Radios : Button {
    Radios() {
        Add(first, 1, BS_AUTORADIOBUTTON | WS_GROUP);
        Add(second, 2, BS_AUTORADIOBUTTON);
        Add(third, 3, BS_AUTORADIOBUTTON);
        Add(other, 4, BS_AUTORADIOBUTTON | WS_GROUP);
    }
    std::vector<int> Checks() const {
        return {first.GetCheck(), second.GetCheck(), third.GetCheck(), other.GetCheck()};
    }
    CButton first;
    CButton second;
    CButton third;
    CButton other;
};

}  // namespace

TEST_F(Button, APushButtonTellsItsClick) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    Click(button);
    EXPECT_EQ(window.Take(), (Notices{{5, BN_CLICKED}}));
    EXPECT_EQ(button.GetCheck(), 0);
}

TEST_F(Button, IsHeldDownBetweenPressAndRelease) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    button.SendMessage(WM_LBUTTONDOWN, 1);
    EXPECT_TRUE(button.GetState() & 0x4);
    EXPECT_TRUE(window.Take().empty());
    button.SendMessage(WM_LBUTTONUP);
    EXPECT_FALSE(button.GetState() & 0x4);
    EXPECT_EQ(window.Take().size(), 1u);
}

TEST_F(Button, AReleaseWithoutAPressIsNoClick) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    button.SendMessage(WM_LBUTTONUP);
    button.SendMessage(WM_KEYUP, VK_SPACE);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Button, TheSpaceBarPressesIt) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    button.SendMessage(WM_KEYDOWN, VK_SPACE);
    button.SendMessage(WM_KEYUP, VK_SPACE);
    EXPECT_EQ(window.Take(), (Notices{{5, BN_CLICKED}}));
    button.SendMessage(WM_KEYDOWN, 'A');
    button.SendMessage(WM_KEYUP, 'A');
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Button, LosingTheFocusLetsGoOfIt) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    button.SendMessage(WM_KEYDOWN, VK_SPACE);
    button.SendMessage(WM_KILLFOCUS);
    button.SendMessage(WM_KEYUP, VK_SPACE);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Button, ACheckBoxTogglesBeforeItsHandlerRuns) {
    CButton box;
    Add(box, 6, BS_AUTOCHECKBOX);
    std::vector<int> seen;
    window.onNotice = [&](const Notice&) { seen.push_back(box.GetCheck()); };
    Click(box);
    Click(box);
    EXPECT_EQ(seen, (std::vector<int>{1, 0}));
}

TEST_F(Button, SetCheckNotifiesNobody) {
    CButton box;
    Add(box, 6, BS_AUTOCHECKBOX);
    box.SetCheck(1);
    EXPECT_EQ(box.GetCheck(), 1);
    box.SetCheck(0);
    EXPECT_EQ(box.GetCheck(), 0);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Radios, AClickChecksItAndUnchecksTheOthersOfItsGroupBeforeItsHandlerRuns) {
    first.SetCheck(1);
    other.SetCheck(1);
    std::vector<std::vector<int>> seen;
    window.onNotice = [&](const Notice&) { seen.push_back(Checks()); };
    Click(third);
    EXPECT_EQ(seen, (std::vector<std::vector<int>>{{0, 0, 1, 1}}));
    EXPECT_EQ(window.Take(), (Notices{{3, BN_CLICKED}}));
}

TEST_F(Radios, AClickOnTheCheckedOneTellsAgain) {
    first.SetCheck(1);
    Click(first);
    EXPECT_EQ(Checks(), (std::vector<int>{1, 0, 0, 0}));
    EXPECT_EQ(window.Take(), (Notices{{1, BN_CLICKED}}));
}

TEST_F(Radios, SetCheckLeavesTheSiblingsAlone) {
    first.SetCheck(1);
    second.SetCheck(1);
    EXPECT_EQ(Checks(), (std::vector<int>{1, 1, 0, 0}));
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Radios, OtherKindsInTheGroupAreLeftAlone) {
    CButton box;
    Add(box, 9, BS_AUTOCHECKBOX);
    box.SetCheck(1);
    Click(other);
    EXPECT_EQ(box.GetCheck(), 1);
}

TEST_F(Button, AGroupBoxDoesNothing) {
    CButton box;
    Add(box, 7, BS_GROUPBOX);
    Click(box);
    Press(box);
    box.SetCheck(1);
    EXPECT_TRUE(window.Take().empty());
    EXPECT_EQ(box.GetCheck(), 0);
}

TEST_F(Button, AnOwnerDrawnButtonTellsClickAndDoubleClick) {
    CButton button;
    Add(button, 8, BS_OWNERDRAW);
    Click(button);
    button.SendMessage(WM_LBUTTONDBLCLK, 1);
    button.SendMessage(WM_LBUTTONUP);
    EXPECT_EQ(window.Take(), (Notices{{8, BN_CLICKED}, {8, BN_DOUBLECLICKED}}));
}

TEST_F(Button, ADoubleClickOnAPushButtonIsTwoClicks) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    Click(button);
    button.SendMessage(WM_LBUTTONDBLCLK, 1);
    button.SendMessage(WM_LBUTTONUP);
    EXPECT_EQ(window.Take(), (Notices{{5, BN_CLICKED}, {5, BN_CLICKED}}));
}

TEST_F(Button, ClickMessagePressesAnEnabledButton) {
    CButton box;
    Add(box, 6, BS_AUTOCHECKBOX);
    box.SendMessage(BM_CLICK);
    EXPECT_EQ(box.GetCheck(), 1);
    box.EnableWindow(FALSE);
    box.SendMessage(BM_CLICK);
    EXPECT_EQ(box.GetCheck(), 1);
    EXPECT_EQ(window.Take(), (Notices{{6, BN_CLICKED}}));
}

TEST_F(Button, TellsItsFocusOnlyWhereItIsAskedTo) {
    CButton quiet;
    CButton telling;
    Add(quiet, 5, BS_PUSHBUTTON);
    Add(telling, 6, BS_PUSHBUTTON | BS_NOTIFY);
    quiet.SetFocus();
    telling.SetFocus();
    quiet.SetFocus();
    EXPECT_EQ(window.Take(), (Notices{{6, BN_SETFOCUS}, {6, BN_KILLFOCUS}}));
}

TEST_F(Button, ChangesItsKind) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    button.SetButtonStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(button.GetButtonStyle(), BS_DEFPUSHBUTTON);
    EXPECT_TRUE(button.IsWindowVisible());
    EXPECT_TRUE(button.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
}

TEST_F(Button, KeepsTheIdOfItsImage) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON | BS_ICON);
    EXPECT_EQ(button.SetIcon(201), 0u);
    EXPECT_EQ(button.SetIcon(202), 201u);
    EXPECT_EQ(button.GetIcon(), 202u);
    EXPECT_EQ(static_cast<ButtonNode*>(button.m_hWnd)->Image(), 202);
}

TEST_F(Button, AHandlerMayDestroyIt) {
    CButton button;
    Add(button, 5, BS_PUSHBUTTON);
    window.onNotice = [&](const Notice&) { button.DestroyWindow(); };
    Click(button);
    EXPECT_EQ(button.m_hWnd, nullptr);
    EXPECT_EQ(window.Take().size(), 1u);
}

TEST(Static, KeepsItsTextAndImage) {
    RecordingWindow window;
    CStatic label;
    ASSERT_TRUE(label.Create("Find:", WS_CHILD | WS_VISIBLE | SS_ICON, {}, &window, 12));
    EXPECT_EQ(label.WindowText(), "Find:");
    label.SetWindowText("Insert");
    EXPECT_EQ(label.WindowText(), "Insert");
    EXPECT_EQ(label.SetIcon(7), 0u);
    EXPECT_EQ(label.GetIcon(), 7u);
    EXPECT_EQ(label.SetBitmap(8), 7u);
    EXPECT_EQ(label.GetBitmap(), 8u);
    EXPECT_TRUE(window.Take().empty());
}

TEST(AbsentButton, AnswersAsAnUncheckedOne) {
    CButton button;
    button.SetCheck(1);
    EXPECT_EQ(button.GetCheck(), 0);
    EXPECT_EQ(button.SetIcon(1), 0u);
    EXPECT_EQ(button.GetIcon(), 0u);
    EXPECT_EQ(button.GetState(), 0u);
}
