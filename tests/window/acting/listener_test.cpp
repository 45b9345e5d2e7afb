#include "window/acting/listener.h"

#include <gtest/gtest.h>

#include "support/dialog_fixture.h"

using enum kv::ControlKind;
using kv::input::Act;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace input = kv::input;

class Listener : public test::DialogTest {
protected:
    Listener() {
        EXPECT_TRUE(dialog.Create(test::kTestTemplate));
        dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam("row"));
        dialog.SendDlgItemMessage(16, CB_ADDSTRING, 0, kv::AsParam("row"));
        input::SetListener([this](const input::Deed& deed) { acts.push_back(deed.act); });
    }
    ~Listener() override { input::SetListener(nullptr); }

    kv::Node& NodeOf(int id) { return *dialog.m_hWnd->FindChild(id); }
    std::vector<Act> Told() { return std::exchange(acts, {}); }

    TestTemplate template_{{Row(11, kEdit, "some text"), Row(20, kPushButton, "Go"),
                            Row(31, kListBox), Row(16, kDropList)}};
    RecordingDialog dialog;
    std::vector<Act> acts;
};

TEST_F(Listener, HearsOfEachDeedOnceWhateverItIsMadeOf) {
    input::Click(NodeOf(20));
    EXPECT_THAT(Told(), ElementsAre(Act::kClick));
    input::TypeText(NodeOf(11), "abc");
    EXPECT_THAT(Told(), ElementsAre(Act::kTypeText));
    input::TypeText(NodeOf(11), "");
    EXPECT_THAT(Told(), ElementsAre(Act::kTypeText));
    input::SelectRows(NodeOf(31), {0});
    EXPECT_THAT(Told(), ElementsAre(Act::kSelectRows));
    input::Paste(NodeOf(11), "abc");
    EXPECT_THAT(Told(), ElementsAre(Act::kPaste));
}

TEST_F(Listener, HearsOfItAheadOfWhatItDoes) {
    dialog.when["20 clicked"] = [&] { EXPECT_THAT(acts, ElementsAre(Act::kClick)); };
    dialog.told.clear();
    input::Click(NodeOf(20));
    EXPECT_TRUE(dialog.WasTold("20 clicked"));
}

TEST_F(Listener, HearsNothingOfWhatAControlDoesNotReactTo) {
    for (const int id : {11, 20, 31, 16})
        dialog.GetDlgItem(id)->EnableWindow(FALSE);
    input::Click(NodeOf(20));
    input::Press(NodeOf(20), {1, 1});
    input::TypeText(NodeOf(11), "abc");
    input::Paste(NodeOf(11), "abc");
    input::SelectText(NodeOf(11), 0, 1);
    input::ClickRow(NodeOf(31), 0);
    input::SelectRows(NodeOf(31), {0});
    input::DoubleClick(NodeOf(31), 0);
    input::DropDown(NodeOf(16));
    input::MoveFocus(NodeOf(11));
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(Listener, HearsThatAMnemonicWasNobodys) {
    input::PressKey('Q', {.alt = true});
    EXPECT_THAT(Told(), ElementsAre(Act::kPressKey, Act::kInVain));
}

TEST_F(Listener, HearsOfEachByteThatIsTyped) {
    std::string typed;
    input::MoveFocus(NodeOf(11));
    input::SetListener([&](const input::Deed& deed) { typed += deed.text; });
    input::TypeHere("a\u00e9");
    EXPECT_EQ(typed, "a\u00e9");
}

TEST_F(Listener, IsGivenBackByItsSuccessor) {
    int heard = 0;
    const input::Listener former = input::SetListener([&](const input::Deed&) { ++heard; });
    input::Click(NodeOf(20));
    EXPECT_EQ(heard, 1);
    EXPECT_THAT(Told(), IsEmpty());
    input::SetListener(former);
    input::Click(NodeOf(20));
    EXPECT_EQ(heard, 1);
    EXPECT_THAT(Told(), ElementsAre(Act::kClick));
}

TEST(KeyNames, AreOfFunctionKeysToo) {
    EXPECT_EQ(input::KeyByName("F1"), 0x70);
    EXPECT_EQ(input::KeyByName("f4"), VK_F4);
    EXPECT_EQ(input::KeyByName("F24"), 0x70 + 23);
    EXPECT_EQ(input::KeyByName("F"), 'F');
    for (const char* name : {"F0", "F25", "F123", "F1x", "Fx", "F-1"})
        EXPECT_EQ(input::KeyByName(name), 0) << name;
}

}  // namespace
