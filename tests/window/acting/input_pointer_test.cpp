#include <gtest/gtest.h>

#include "support/dialog_fixture.h"
#include "window/acting/row_texts.h"
#include "window/controls/button_node.h"
#include "window/controls/combo_box_node.h"
#include "window/controls/edit_node.h"
#include "window/controls/list_box_node.h"
#include "window/controls/spin_node.h"
#include "window/frames/tool_bar_node.h"
#include "window/list_view/list_ctrl.h"
#include "window/list_view/list_view_node.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace input = kv::input;

/// What a mouse does in parts: presses, releases, rows, arrows, wheels.
class Pointer : public test::DialogTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(dialog.Create(test::kTestTemplate));
        dialog.told.clear();
    }
    kv::Node& NodeOf(int id) { return *dialog.m_hWnd->FindChild(id); }
    std::vector<std::string> Told() { return std::exchange(dialog.told, {}); }

    TestTemplate template_{{Row(11, kEdit, "some text"), Row(20, kPushButton, "Go"),
                            Row(31, kListBox), Row(32, kMultiList), Row(33, kListView),
                            Row(16, kDropList), Row(12, kEdit, "5"),
                            Row(42, kSpin, "", {UDS_AUTOBUDDY | UDS_SETBUDDYINT, 0})}};
    RecordingDialog dialog;
};

TEST_F(Pointer, PressesAndReleasesAButtonInTwoHalves) {
    EXPECT_TRUE(input::Press(NodeOf(20), {5, 5}));
    EXPECT_EQ(FocusedId(), 20);
    EXPECT_TRUE(static_cast<kv::ButtonNode&>(NodeOf(20)).Pushed());
    EXPECT_THAT(Told(), ElementsAre("11 lost"));
    EXPECT_TRUE(input::Release(NodeOf(20), {5, 5}));
    EXPECT_THAT(Told(), ElementsAre("20 clicked"));
}

TEST_F(Pointer, AReleaseOutsideTheButtonDoesNothing) {
    input::Press(NodeOf(20), {5, 5});
    Told();
    EXPECT_TRUE(input::HoldOver(NodeOf(20), false));
    input::Release(NodeOf(20), {-5, -5});
    EXPECT_THAT(Told(), IsEmpty());
    EXPECT_FALSE(input::HoldOver(NodeOf(11), false)) << "an edit is not held down";
}

TEST_F(Pointer, AButtonIsDownAgainWhereTheMouseThatHoldsItComesBack) {
    const auto& button = static_cast<kv::ButtonNode&>(NodeOf(20));
    for (const bool again : {false, true}) {
        again ? input::PressAgain(NodeOf(20), {5, 5}) : input::Press(NodeOf(20), {5, 5});
        EXPECT_TRUE(input::HoldOver(NodeOf(20), false));
        EXPECT_FALSE(button.Pushed());
        EXPECT_TRUE(input::HoldOver(NodeOf(20), true));
        EXPECT_TRUE(button.Pushed());
        Told();
        input::Release(NodeOf(20), {5, 5});
        EXPECT_THAT(Told(), ElementsAre("20 clicked"));
    }
}

TEST_F(Pointer, AButtonThatTheMouseDoesNotHoldTakesNoNoticeOfIt) {
    const auto& button = static_cast<kv::ButtonNode&>(NodeOf(20));
    const auto takesNone = [&](const char* when) {
        EXPECT_FALSE(input::HoldOver(NodeOf(20), true)) << when;
        EXPECT_FALSE(button.Pushed()) << when;
    };
    takesNone("ahead of all");
    input::Press(NodeOf(20), {5, 5});
    input::Release(NodeOf(20), {5, 5});
    takesNone("let go");
    input::Press(NodeOf(20), {5, 5});
    kv::Send(NodeOf(20), WM_KEYUP, static_cast<WPARAM>(VK_SPACE));
    takesNone("pressed by the space bar meanwhile");
    input::Press(NodeOf(20), {5, 5});
    input::MoveFocus(NodeOf(11));
    takesNone("without the focus");
}

TEST_F(Pointer, DisabledControlsDoNotReact) {
    for (const int id : {11, 20, 31, 33, 16, 42}) {
        dialog.GetDlgItem(id)->EnableWindow(FALSE);
        EXPECT_FALSE(input::Press(NodeOf(id), {1, 1})) << id;
        EXPECT_FALSE(input::ClickRow(NodeOf(id), 0)) << id;
    }
    EXPECT_FALSE(input::SelectText(NodeOf(11), 0, 1));
    EXPECT_FALSE(input::EditCommand(NodeOf(11), WM_COPY));
    EXPECT_FALSE(input::StepSpin(NodeOf(42), true));
    EXPECT_FALSE(input::TurnWheel(NodeOf(42), 1));
    EXPECT_FALSE(input::ClickColumn(NodeOf(33), 0));
    EXPECT_FALSE(input::ToggleCheck(NodeOf(33), 0));
    EXPECT_FALSE(input::ResizeColumn(NodeOf(33), 0, 10));
}

TEST_F(Pointer, ClicksRowsWithKeysHeld) {
    for (const char* text : {"a", "b", "c"}) {
        dialog.SendDlgItemMessage(32, LB_ADDSTRING, 0, kv::AsParam(text));
    }
    auto& list = static_cast<kv::ListBoxNode&>(NodeOf(32));
    EXPECT_TRUE(input::ClickRow(list, 0));
    EXPECT_TRUE(input::ClickRow(list, 2, {true, false, false}));
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0, 1, 2));
    EXPECT_TRUE(input::ClickRow(list, 1, {false, true, false}));
    EXPECT_THAT(list.SelectedRows(), ElementsAre(0, 2));
    EXPECT_EQ(FocusedId(), 32);
}

TEST_F(Pointer, PicksARowInAnOpenListOnly) {
    dialog.SendDlgItemMessage(16, CB_ADDSTRING, 0, kv::AsParam("a"));
    auto& combo = static_cast<kv::ComboBoxNode&>(NodeOf(16));
    EXPECT_FALSE(input::ClickRow(combo, 0));
    EXPECT_TRUE(input::DropDown(combo));
    EXPECT_FALSE(input::ClickRow(combo, 1)) << "there is no such row";
    EXPECT_TRUE(combo.Dropped());
    EXPECT_TRUE(input::ClickRow(combo, 0));
    EXPECT_EQ(combo.CurrentRow(), 0);
    EXPECT_FALSE(combo.Dropped());
}

TEST_F(Pointer, AClickElsewhereClosesAnOpenList) {
    auto& combo = static_cast<kv::ComboBoxNode&>(NodeOf(16));
    EXPECT_FALSE(input::CloseList(combo)) << "it is closed";
    input::DropDown(combo);
    EXPECT_TRUE(input::CloseList(combo));
    EXPECT_FALSE(combo.Dropped());
}

TEST_F(Pointer, WorksOnAListView) {
    auto& list = dialog.Control<CListCtrl>(33);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    list.InsertColumn(0, "Lease", LVCFMT_LEFT, 60);
    for (int row = 0; row < 3; ++row)
        list.InsertItem(row, "x");
    auto& node = static_cast<kv::ListViewNode&>(NodeOf(33));
    EXPECT_TRUE(input::ClickRow(node, 1));
    EXPECT_EQ(node.FocusedRow(), 1);
    EXPECT_TRUE(input::SelectRows(node, {0, 2}));
    EXPECT_EQ(node.SelectedCount(), 2);
    EXPECT_FALSE(input::SelectRows(node, {3}));
    EXPECT_TRUE(input::ToggleCheck(node, 2));
    EXPECT_EQ(list.GetCheck(2), 1);
    EXPECT_TRUE(input::ResizeColumn(node, 0, 90));
    EXPECT_EQ(list.GetColumnWidth(0), 90);
    EXPECT_TRUE(input::DoubleClick(node, 1));
    EXPECT_EQ(node.FocusedRow(), 1);
    EXPECT_FALSE(input::DoubleClick(node, 3));
}

TEST_F(Pointer, TheArrowsOfASpinButtonStepAndFocusItsBuddy) {
    dialog.SendDlgItemMessage(42, UDM_SETRANGE32, 0, 10);
    dialog.SendDlgItemMessage(42, UDM_SETPOS32, 0, 5);
    EXPECT_TRUE(input::StepSpin(NodeOf(42), true));
    EXPECT_EQ(NodeOf(12).Text(), "6");
    EXPECT_EQ(FocusedId(), 12);
    EXPECT_TRUE(input::TurnWheel(NodeOf(42), -2));
    EXPECT_EQ(NodeOf(12).Text(), "4");
}

TEST_F(Pointer, TheWheelTurnsTheRowOfAComboBoxWithTheFocusOnly) {
    for (const char* text : {"a", "b"}) {
        dialog.SendDlgItemMessage(16, CB_ADDSTRING, 0, kv::AsParam(text));
    }
    dialog.SendDlgItemMessage(16, CB_SETCURSEL, 0);
    EXPECT_FALSE(input::TurnWheel(NodeOf(16), -1));
    EXPECT_EQ(dialog.SendDlgItemMessage(16, CB_GETCURSEL), 0);
    input::MoveFocus(NodeOf(16));
    EXPECT_TRUE(input::TurnWheel(NodeOf(16), -1));
    EXPECT_EQ(dialog.SendDlgItemMessage(16, CB_GETCURSEL), 1);
    EXPECT_FALSE(input::TurnWheel(NodeOf(11), -1)) << "an edit does not turn";
}

TEST_F(Pointer, SelectsTextAndActsOnIt) {
    auto& edit = static_cast<kv::EditNode&>(NodeOf(11));
    EXPECT_TRUE(input::SelectText(edit, 4, 0));
    EXPECT_EQ(edit.SelectionStart(), 0);
    EXPECT_EQ(edit.SelectionEnd(), 4);
    EXPECT_TRUE(input::EditCommand(edit, WM_CUT));
    EXPECT_EQ(edit.Text(), " text");
    EXPECT_EQ(desktop.ClipboardText(), "some");
    EXPECT_TRUE(input::EditCommand(edit, WM_UNDO));
    EXPECT_EQ(edit.Text(), "some text");
    EXPECT_FALSE(input::SelectText(NodeOf(20), 0, 1)) << "a button has no text to select";
}

TEST_F(Pointer, CopiesTheSelectedRows) {
    for (const char* text : {"a", "b", "c"}) {
        dialog.SendDlgItemMessage(32, LB_ADDSTRING, 0, kv::AsParam(text));
    }
    EXPECT_FALSE(input::CopyRows(NodeOf(32))) << "none is selected";
    input::SelectRows(NodeOf(32), {0, 2});
    EXPECT_TRUE(input::CopyRows(NodeOf(32)));
    EXPECT_EQ(desktop.ClipboardText(), "a\nc");
    EXPECT_FALSE(input::CopyRows(NodeOf(20)));
}

TEST_F(Pointer, PressesAToolBarsButtonWhereItIsEnabled) {
    auto bar = std::make_shared<kv::ToolBarNode>(60, WS_CHILD | WS_VISIBLE);
    bar->SetButtons({{301, 0, "", true, false}, {302, 1, "", false, false}});
    dialog.m_hWnd->AddChild(bar);
    EXPECT_TRUE(input::PressTool(*bar, 301));
    EXPECT_THAT(Told(), ElementsAre("301 clicked"));
    EXPECT_FALSE(input::PressTool(*bar, 302));
    EXPECT_FALSE(input::PressTool(NodeOf(20), 301));
}

TEST_F(Pointer, BringsAWindowToTheFront) {
    const TestTemplate otherTemplate({Row(41, kEdit)}, 101);
    RecordingDialog other(101);
    ASSERT_TRUE(other.Create(101));
    EXPECT_EQ(FocusedId(), 41);
    EXPECT_TRUE(input::Activate(*dialog.m_hWnd));
    EXPECT_EQ(FocusedId(), 11);
    dialog.EnableWindow(FALSE);
    EXPECT_FALSE(input::Activate(*dialog.m_hWnd));
}

TEST_F(Pointer, TypingInADropListFindsByTheWholeOfWhatIsTyped) {
    for (const char* text : {"EAST CAMERON", "WEST CAMERON", "WEST DELTA"}) {
        dialog.SendDlgItemMessage(16, CB_ADDSTRING, 0, kv::AsParam(text));
    }
    input::MoveFocus(NodeOf(16));
    EXPECT_TRUE(input::TypeHere("west d"));
    EXPECT_EQ(NodeOf(16).Text(), "WEST DELTA");
}

}  // namespace
