#include "support/template_check.h"

#include <gmock/gmock.h>

using enum kv::ControlKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr auto kStatic = IDC_STATIC;

std::vector<std::string> Check(std::vector<kv::ControlRow> rows, const char* caption = "Test") {
    return test::CheckTemplate({7, caption, 200, 100, rows});
}

TEST(TemplateCheck, FindsNothingInASoundDialog) {
    EXPECT_THAT(Check({{kStatic, kLabel, "&Area:", {7, 9, 40, 8}},
                       {11, kEdit, "", {51, 7, 80, 12}},
                       {kStatic, kGroupBox, "Type", {7, 25, 124, 40}},
                       {31, kRadio, "&First", {13, 36, 60, 10}, kv::kFirstOfGroup},
                       {32, kRadio, "&Second", {13, 50, 60, 10}},
                       {IDOK, kDefaultButton, "OK", {143, 7, 50, 14}, kv::kFirstOfGroup},
                       {IDCANCEL, kPushButton, "Cancel", {143, 25, 50, 14}}}),
                IsEmpty());
}

// Sizes and places.

TEST(TemplateCheck, FindsADialogThatIsLargerThanASmallScreen) {
    EXPECT_THAT(test::CheckTemplate({7, "", 640, 332, {}}), IsEmpty());
    EXPECT_THAT(test::CheckTemplate({7, "", 641, 332, {}}),
                ElementsAre("dialog 7: it takes 962 by 540 pixels"));
    EXPECT_THAT(test::CheckTemplate({7, "", 640, 333, {}}),
                ElementsAre("dialog 7: it takes 960 by 541 pixels"));
}

TEST(TemplateCheck, FindsAVisibleControlOutsideItsDialog) {
    EXPECT_THAT(Check({{11, kEdit, "", {160, 7, 50, 12}},
                       {12, kEdit, "", {7, 95, 50, 12}},
                       {13, kEdit, "", {-1, 110, 5, 4}}}),
                ElementsAre("dialog 7: 11 lies outside", "dialog 7: 12 lies outside",
                            "dialog 7: 13 lies outside"));
    EXPECT_THAT(Check({{11, kEdit, "", {160, 7, 50, 12}, kv::kHidden}}), IsEmpty());
    EXPECT_THAT(Check({{11, kEdit, "", {160, 7, 50, 12}, kv::kHidden | kv::Alternate(1)}}),
                ElementsAre("dialog 7: 11 lies outside"));
}

TEST(TemplateCheck, FindsTwoVisibleControlsThatOverlap) {
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}}, {12, kEdit, "", {56, 18, 50, 12}}}),
                ElementsAre("dialog 7: 11 and 12 overlap"));
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}}, {12, kEdit, "", {57, 7, 50, 12}}}),
                IsEmpty());
    EXPECT_THAT(
        Check({{11, kEdit, "", {7, 7, 50, 12}}, {12, kEdit, "", {7, 7, 50, 12}, kv::kHidden}}),
        IsEmpty());
}

TEST(TemplateCheck, LetsRowsTakeTurnsInOnePlace) {
    const auto hidden = kv::kHidden | kv::Alternate(1);
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}, kv::Alternate(1)},
                       {12, kEdit, "", {7, 7, 50, 12}, hidden}}),
                IsEmpty());
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}, kv::Alternate(1)},
                       {12, kEdit, "", {7, 7, 50, 12}, kv::Alternate(2)}}),
                ElementsAre("dialog 7: 11 and 12 overlap"));
}

TEST(TemplateCheck, WantsAGroupBoxAroundItsMembersAndItsCaptionFree) {
    EXPECT_THAT(
        Check({{kStatic, kGroupBox, "Box", {7, 7, 80, 40}}, {11, kEdit, "", {13, 19, 50, 12}}}),
        IsEmpty());
    EXPECT_THAT(
        Check({{kStatic, kGroupBox, "Box", {7, 7, 80, 40}}, {11, kEdit, "", {13, 18, 50, 12}}}),
        ElementsAre("dialog 7: 11 touches the frame of \"Box\""));
    EXPECT_THAT(
        Check({{kStatic, kGroupBox, "Box", {7, 7, 80, 40}}, {11, kEdit, "", {60, 18, 50, 12}}}),
        ElementsAre("dialog 7: \"Box\" and 11 overlap"));
    EXPECT_THAT(
        Check({{kStatic, kGroupBox, "Box", {7, 7, 80, 40}}, {11, kEdit, "", {13, 12, 50, 12}}}),
        ElementsAre("dialog 7: 11 covers the caption of \"Box\""));
    EXPECT_THAT(
        Check({{kStatic, kGroupBox, "", {7, 7, 80, 40}}, {11, kEdit, "", {13, 12, 50, 12}}}),
        IsEmpty());
}

// Texts.

TEST(TemplateCheck, FindsALabelThatIsTooNarrowUnlessItIsTallEnoughToWrap) {
    EXPECT_THAT(Check({{kStatic, kLabel, "Minimum percent:", {7, 7, 30, 8}}}),
                ElementsAre("dialog 7: the text of \"Minimum percent:\" does not fit"));
    EXPECT_THAT(Check({{kStatic, kLabel, "Minimum percent:", {7, 7, 45, 16}}}), IsEmpty());
    EXPECT_THAT(Check({{kStatic, kLabel, "Unbreakable", {7, 7, 12, 40}}}),
                ElementsAre("dialog 7: the text of \"Unbreakable\" does not fit"));
    EXPECT_THAT(Check({{kStatic, kLabel, "Low", {7, 7, 40, 6}}}),
                ElementsAre("dialog 7: the text of \"Low\" does not fit"));
}

TEST(TemplateCheck, DoesNotCountTheMarkOfAMnemonic) {
    // Four pixels are to spare without the mark, and none with it.
    std::vector<kv::ControlRow> rows{{kStatic, kLabel, "Area", {7, 7, 0, 8}}};
    while (!Check(rows).empty())
        ++rows[0].place.width;
    rows[0].text = "Are&a";
    EXPECT_THAT(Check(rows), IsEmpty());
    rows[0].style.add = SS_NOPREFIX;
    EXPECT_THAT(Check(rows), ElementsAre("dialog 7: the text of \"Are&a\" does not fit"));
}

TEST(TemplateCheck, CountsTheMarkOfACheckBoxThePaddingOfAButtonAndTheFrameOfABox) {
    /// Least width in which the text fits a control of that kind, in dialog units.
    const auto least = [](kv::ControlKind kind) {
        std::vector<kv::ControlRow> rows{{11, kind, "Something", {7, 7, 0, 14}}};
        while (!Check(rows).empty())
            ++rows[0].place.width;
        return rows[0].place.width;
    };
    const int bare = least(kLabel);
    EXPECT_NEAR(least(kCheckBox) - bare, 17 * 4 / 6, 1);
    EXPECT_NEAR(least(kRadio) - bare, 17 * 4 / 6, 1);
    EXPECT_NEAR(least(kPushButton) - bare, 12 * 4 / 6, 1);
    EXPECT_NEAR(least(kGroupBox) - bare, 16 * 4 / 6, 1);
}

TEST(TemplateCheck, LetsEditsAndSwatchesHoldMoreThanTheyShow) {
    EXPECT_THAT(Check({{11, kEdit, "a long text that scrolls", {7, 7, 20, 12}},
                       {12, kOwnerDrawButton, "a swatch draws no text", {31, 7, 20, 12}}}),
                IsEmpty());
}

TEST(TemplateCheck, FindsACaptionThatIsWiderThanItsDialog) {
    EXPECT_THAT(
        Check({}, "A caption that goes on and on and on beyond what such a dialog can show"),
        ElementsAre("dialog 7: the caption does not fit"));
}

// Mnemonics.

TEST(TemplateCheck, FindsADoubledMnemonicWhateverItsCase) {
    EXPECT_THAT(Check({{kStatic, kLabel, "&Area", {7, 7, 40, 8}},
                       {20, kPushButton, "&apply", {7, 20, 50, 14}}}),
                ElementsAre("dialog 7: \"&Area\" and 20 \"&apply\" share the mnemonic A"));
    EXPECT_THAT(Check({{20, kPushButton, "R && D", {7, 7, 50, 14}},
                       {21, kPushButton, "A && B", {61, 7, 50, 14}}}),
                IsEmpty());
    EXPECT_THAT(Check({{kStatic, kLabel, "&Area", {7, 7, 40, 8}},
                       {20, kPushButton, "&Apply", {7, 20, 50, 14}, kv::kHidden}}),
                IsEmpty());
    EXPECT_THAT(Check({{20, kPushButton, "&Add", {7, 20, 50, 14}, kv::Alternate(1)},
                       {21, kPushButton, "&Apply", {7, 20, 50, 14}, kv::Alternate(1)}}),
                IsEmpty());
}

TEST(TemplateCheck, LetsTheOnePairOfGivenTextsShareAMnemonic) {
    const auto beside = [](const char* text) {
        return Check({{IDCANCEL, kPushButton, "&Cancel", {7, 7, 60, 14}},
                      {20, kPushButton, text, {71, 7, 60, 14}}});
    };
    EXPECT_THAT(beside("&Customize..."), IsEmpty());
    EXPECT_THAT(beside("&Clear"),
                ElementsAre("dialog 7: 2 \"&Cancel\" and 20 \"&Clear\" share the mnemonic C"));
}

// Tab order.

TEST(TemplateCheck, LetsTheTabOrderGoByRowsAndByColumns) {
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}},
                       {12, kEdit, "", {61, 7, 50, 12}},
                       {13, kEdit, "", {7, 23, 50, 12}},
                       {14, kEdit, "", {61, 23, 50, 12}}}),
                IsEmpty());
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}},
                       {13, kEdit, "", {7, 23, 50, 12}},
                       {12, kEdit, "", {61, 7, 50, 12}},
                       {14, kEdit, "", {61, 23, 50, 12}}}),
                IsEmpty());
}

TEST(TemplateCheck, FindsATabOrderThatGoesLeftInARow) {
    EXPECT_THAT(Check({{12, kEdit, "", {61, 7, 50, 12}}, {11, kEdit, "", {7, 8, 50, 12}}}),
                ElementsAre("dialog 7: the tab order jumps back from 12 to 11"));
}

TEST(TemplateCheck, FindsATabOrderThatGoesUp) {
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}},
                       {13, kEdit, "", {7, 40, 50, 12}},
                       {12, kEdit, "", {7, 23, 50, 12}}}),
                ElementsAre("dialog 7: the tab order jumps back from 13 to 12"));
    // Beside the first row, and above a second one that reaches below it.
    EXPECT_THAT(Check({{11, kEdit, "", {7, 7, 50, 12}},
                       {13, kListBox, "", {7, 23, 120, 30}},
                       {12, kEdit, "", {61, 7, 50, 12}}}),
                ElementsAre("dialog 7: the tab order jumps back from 13 to 12"));
}

TEST(TemplateCheck, LetsOkAndCancelComeLastWhereverTheyStand) {
    EXPECT_THAT(Check({{13, kListBox, "", {7, 40, 180, 50}},
                       {IDOK, kDefaultButton, "OK", {83, 7, 50, 14}},
                       {IDCANCEL, kPushButton, "Cancel", {137, 7, 50, 14}}}),
                IsEmpty());
    EXPECT_THAT(Check({{13, kListBox, "", {7, 40, 180, 50}},
                       {IDOK, kDefaultButton, "OK", {83, 7, 50, 14}},
                       {20, kPushButton, "More", {137, 7, 50, 14}}}),
                ElementsAre("dialog 7: the tab order jumps back from 13 to 1 \"OK\"",
                            "dialog 7: the tab order jumps back from 13 to 20 \"More\""));
}

TEST(TemplateCheck, ReadsAGroupBoxAsOne) {
    const kv::ControlRow left{kStatic, kGroupBox, "Left", {7, 7, 80, 50}};
    const kv::ControlRow right{kStatic, kGroupBox, "Right", {91, 7, 80, 50}};
    const kv::ControlRow a{11, kEdit, "", {13, 19, 60, 12}};
    const kv::ControlRow b{12, kEdit, "", {13, 34, 60, 12}};
    const kv::ControlRow c{13, kEdit, "", {97, 19, 60, 12}};
    const kv::ControlRow d{14, kEdit, "", {97, 34, 60, 12}};
    EXPECT_THAT(Check({left, a, b, right, c, d}), IsEmpty());
    EXPECT_THAT(Check({left, right, a, c, b, d}),
                ElementsAre("dialog 7: the tab order leaves \"Left\" and comes back to it at 12",

                            "dialog 7: the tab order leaves \"Right\" and comes back to it at 14",
                            "dialog 7: the tab order jumps back from \"Right\" to \"Left\""));
    EXPECT_THAT(Check({right, c, d, left, a, b}),
                ElementsAre("dialog 7: the tab order jumps back from \"Right\" to \"Left\""));
    EXPECT_THAT(Check({left, b, a}),
                ElementsAre("dialog 7: the tab order jumps back from 12 to 11"));
}

TEST(TemplateCheck, LooksIntoAGroupBoxWithinAGroupBox) {
    EXPECT_THAT(Check({{kStatic, kGroupBox, "Outer", {7, 7, 150, 80}},
                       {kStatic, kGroupBox, "Inner", {13, 18, 130, 50}},
                       {12, kEdit, "", {20, 45, 60, 12}},
                       {11, kEdit, "", {20, 30, 60, 12}}}),
                ElementsAre("dialog 7: the tab order jumps back from 12 to 11"));
}

TEST(TemplateCheck, PassesWhatIsNoTabStop) {
    EXPECT_THAT(Check({{12, kEdit, "", {61, 7, 50, 12}},
                       {11, kEdit, "", {7, 7, 50, 12}, kv::kNoTabStop},
                       {13, kEdit, "", {7, 7, 40, 12}, kv::kHidden}}),
                IsEmpty());
}

}  // namespace
