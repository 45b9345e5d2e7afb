#include "window/mnemonics.h"

#include "support/dialog_fixture.h"
#include "window/frames/control_bar.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::Row;
using testing::ElementsAre;
using testing::Pair;

namespace {

/// The letters that the controls of such a dialog have, by their ids.
std::vector<std::pair<int, char>> LettersOf(const std::vector<kv::ControlRow>& rows) {
    const auto dialog = std::make_shared<kv::Node>(kv::NodeClass::kDialog, 0, DWORD{0});
    kv::CreateControls(*dialog, {1, "Test", 300, 200, rows});
    std::vector<std::pair<int, char>> letters;
    for (const auto& child : dialog->Children()) {
        if (const char letter = kv::MnemonicOf(*child)) letters.emplace_back(child->Id(), letter);
    }
    return letters;
}

class Mnemonics : public test::DialogTest {
protected:
    void Open(std::vector<kv::ControlRow> rows, const std::function<void(kv::User&)>& act) {
        const test::TestTemplate made(std::move(rows));
        Run(dialog_, act);
    }
    kv::Node& NodeOf(int id) { return *dialog_.m_hWnd->FindChild(id); }

    test::RecordingDialog dialog_;
};

TEST_F(Mnemonics, ALabelGetsALetterForAButtonThatIsDrawnAndHasNoText) {
    EXPECT_THAT(LettersOf({Row(10, kLabel, "Color:"), Row(11, kOwnerDrawButton)}),
                ElementsAre(Pair(10, 'C')));
    Open({Row(12, kEdit), Row(10, kLabel, "Color:"), Row(11, kOwnerDrawButton)},
         [&](kv::User& user) {
             user.Key(0, "Alt+C");
             EXPECT_TRUE(dialog_.WasTold("11 clicked"));
         });
}

TEST_F(Mnemonics, APushButtonWithoutOneGetsALetterAndKeepsItsText) {
    Open({Row(11, kEdit), Row(20, kPushButton, "Search...")}, [&](kv::User& user) {
        EXPECT_EQ(user.Text(20), "Search...");
        user.Key(0, "Alt+S");
        EXPECT_EQ(FocusedId(), 11);
    });
    EXPECT_TRUE(dialog_.WasTold("20 clicked"));
}

TEST_F(Mnemonics, TheLabelOfAFieldGetsALetterThatReachesTheField) {
    Open({Row(20, kPushButton, "Go"), Row(40, kLabel, "Find:"), Row(11, kEdit)},
         [&](kv::User& user) {
             user.Key(20, "Alt+F");
             EXPECT_EQ(FocusedId(), 11);
         });
}

TEST_F(Mnemonics, WorkWithAltOnly) {
    Open({Row(20, kPushButton, "Go"), Row(21, kPushButton, "Stop"), Row(22, kPushButton, "&Run")},
         [&](kv::User& user) {
             user.Key(20, "s");
             EXPECT_FALSE(dialog_.WasTold("21 clicked"));
             user.Key(20, "r");
             EXPECT_TRUE(dialog_.WasTold("22 clicked")) << "the text marks it";
             user.Key(20, "Alt+S");
         });
    EXPECT_TRUE(dialog_.WasTold("21 clicked"));
}

TEST_F(Mnemonics, AreGivenToWhatIsPressedOrLabelledAndToNothingElse) {
    EXPECT_THAT(
        LettersOf({Row(10, kGroupBox, "Group"), Row(31, kRadio, "Radio"),
                   Row(32, kCheckBox, "Check"), Row(40, kLabel, "Choose one"),
                   Row(33, kRadio, "One"), Row(41, kLabel, "Loose"), Row(42, kLabel, "Area"),
                   Row(11, kDropDown), Row(43, kLabel, "Rows"), Row(12, kListView),
                   Row(44, kLabel, "Plain", {SS_NOPREFIX, 0}), Row(13, kEdit),
                   Row(20, kOwnerDrawButton, "Color"), Row(21, kOwnerDrawButton)}),
        ElementsAre(Pair(42, 'A'), Pair(43, 'R'), Pair(20, 'C')));
}

TEST_F(Mnemonics, AUnitIsNoLabelOfTheFieldBehindIt) {
    const std::vector<kv::ControlRow> rows{
        {40, kLabel, "Latitude", {0, 0, 40, 8}}, {11, kEdit, "", {44, 0, 20, 12}},
        {12, kSpin, "", {64, 0, 10, 12}},        {41, kLabel, "D", {76, 0, 8, 8}},
        {13, kEdit, "", {90, 0, 20, 12}},        {14, kSpin, "", {110, 0, 10, 12}},
        {42, kLabel, "Below", {0, 20, 40, 8}},   {15, kEdit, "", {44, 20, 20, 12}}};
    EXPECT_THAT(LettersOf(rows), ElementsAre(Pair(40, 'L'), Pair(42, 'B')));
    Open(rows, [&](kv::User&) {
        EXPECT_EQ(kv::FieldOf(NodeOf(40)), &NodeOf(11));
        EXPECT_EQ(kv::FieldOf(NodeOf(41)), &NodeOf(11));
        EXPECT_EQ(kv::FieldOf(NodeOf(42)), &NodeOf(15));
        EXPECT_EQ(kv::FieldOf(NodeOf(11)), nullptr);
    });
}

TEST_F(Mnemonics, ALetterCloseBehindANumberIsItsUnit) {
    const std::vector<kv::ControlRow> rows{
        {40, kLabel, "Latitude", {0, 0, 40, 8}}, {11, kEdit, "", {44, 0, 20, 12}},
        {41, kLabel, "D", {66, 0, 8, 8}},        {12, kEdit, "", {76, 0, 20, 12}},
        {42, kLabel, "M", {98, 0, 8, 8}},        {43, kLabel, "X", {0, 20, 8, 8}},
        {13, kEdit, "", {10, 20, 20, 12}},       {44, kLabel, "Y", {40, 20, 8, 8}},
        {14, kEdit, "", {50, 20, 20, 12}}};
    EXPECT_THAT(LettersOf(rows), ElementsAre(Pair(40, 'L'), Pair(43, 'X'), Pair(44, 'Y')));
    Open(rows, [&](kv::User&) {
        EXPECT_EQ(kv::FieldOf(NodeOf(40)), &NodeOf(11));
        EXPECT_EQ(kv::FieldOf(NodeOf(41)), &NodeOf(11));
        EXPECT_EQ(kv::FieldOf(NodeOf(42)), &NodeOf(12));
        EXPECT_EQ(kv::FieldOf(NodeOf(44)), &NodeOf(14));
    });
}

TEST_F(Mnemonics, LettersThatBeginWordsComeFirst) {
    EXPECT_THAT(LettersOf({Row(20, kPushButton, "Add ->"), Row(21, kPushButton, "Apply Now"),
                           Row(22, kPushButton, "<- about")}),
                ElementsAre(Pair(20, 'A'), Pair(21, 'N'), Pair(22, 'B')));
}

TEST_F(Mnemonics, NoneIsGivenThatATextMarks) {
    EXPECT_THAT(LettersOf({Row(20, kPushButton, "Save"), Row(32, kCheckBox, "&Show"),
                           Row(31, kRadio, "M&aps")}),
                ElementsAre(Pair(20, 'V'), Pair(32, 'S'), Pair(31, 'A')));
}

TEST_F(Mnemonics, AsManyGetOneAsThereAreLetters) {
    // Each takes the letter that the one behind it needs, until all the letters are in use.
    EXPECT_THAT(LettersOf({Row(20, kPushButton, "xyz"), Row(21, kPushButton, "xy"),
                           Row(22, kPushButton, "X"), Row(23, kPushButton, "yx")}),
                ElementsAre(Pair(20, 'Z'), Pair(21, 'Y'), Pair(22, 'X')));
}

TEST_F(Mnemonics, WhatStartsHiddenComesLast) {
    EXPECT_THAT(LettersOf({Row(20, kPushButton, "Go", kv::kHidden), Row(21, kPushButton, "Get")}),
                ElementsAre(Pair(20, 'O'), Pair(21, 'G')));
    EXPECT_THAT(LettersOf({Row(20, kPushButton, "G", kv::kHidden), Row(21, kPushButton, "Get")}),
                ElementsAre(Pair(20, 'G'), Pair(21, 'E')));
}

TEST_F(Mnemonics, StayWhenTheTextChanges) {
    Open({Row(11, kEdit), Row(20, kPushButton, "Search...")}, [&](kv::User& user) {
        dialog_.SetDlgItemText(20, "Look");
        EXPECT_EQ(kv::MarkedText(NodeOf(20)), "Look");
        user.Key(0, "Alt+S");
        EXPECT_TRUE(dialog_.WasTold("20 clicked"));
        dialog_.SetDlgItemText(20, "&Look");
        EXPECT_EQ(kv::MnemonicOf(NodeOf(20)), 'L');
        EXPECT_FALSE(kv::input::PressKey('S', {.alt = true}));
    });
}

TEST_F(Mnemonics, AreMarkedWhereTheyBeginAWordOrElseFirstStand) {
    Open({Row(20, kPushButton, "Export"), Row(21, kPushButton, "Select Area"),
          Row(22, kPushButton, "Ease"), Row(23, kPushButton, "&Open")},
         [&](kv::User&) {
             EXPECT_EQ(kv::MarkedText(NodeOf(20)), "&Export");
             EXPECT_EQ(kv::MarkedText(NodeOf(23)), "&Open");
             NodeOf(21).SetGivenMnemonic('A');
             EXPECT_EQ(kv::MarkedText(NodeOf(21)), "Select &Area");
             NodeOf(22).SetGivenMnemonic('S');
             EXPECT_EQ(kv::MarkedText(NodeOf(22)), "Ea&se");
         });
}

TEST_F(Mnemonics, AreTheKeyOfTheFieldThatTheirLabelNames) {
    Open({Row(40, kLabel, "Find:"), Row(11, kEdit), Row(20, kPushButton, "Go"),
          Row(32, kCheckBox, "&Show"), Row(12, kEdit)},
         [&](kv::User&) {
             EXPECT_EQ(kv::KeyOf(NodeOf(40)), '\0');
             EXPECT_EQ(kv::KeyOf(NodeOf(11)), 'F');
             EXPECT_EQ(kv::KeyOf(NodeOf(20)), 'G');
             EXPECT_EQ(kv::KeyOf(NodeOf(32)), 'S');
             EXPECT_EQ(kv::KeyOf(NodeOf(12)), '\0');
         });
}

TEST_F(Mnemonics, BarsGetNone) {
    const test::TestTemplate made(
        {Row(40, kLabel, "Area"), Row(11, kEdit), Row(20, kPushButton, "Run")});
    CFrameWnd frame;
    ASSERT_TRUE(frame.Create("Main"));
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, test::kTestTemplate, CBRS_TOP, 1));
    for (const auto& child : bar.m_hWnd->Children())
        EXPECT_EQ(kv::MnemonicOf(*child), '\0') << child->Id();
    frame.DestroyWindow();
}

}  // namespace
