#include "window/templates/dialog_template.h"

#include "support/dialog_fixture.h"

using enum kv::ControlKind;
using test::Row;

namespace {

TEST(DialogUnits, AreSixAndThirteenPixelsForFourAndEight) {
    EXPECT_EQ(kv::ToPixels({4, 8, 4, 8}), (CRect{6, 13, 12, 26}));
    EXPECT_EQ(kv::ToPixels({0, 0, 428, 19}), (CRect{0, 0, 642, 31}));
}

TEST(DialogUnits, AreRoundedToTheNearestPixel) {
    EXPECT_EQ(kv::ToPixels({7, 7, 50, 14}), (CRect{11, 11, 86, 34}));
    EXPECT_EQ(kv::ToPixels({1, 1, 1, 1}), (CRect{2, 2, 3, 3}));
}

TEST(DialogUnits, LeaveNeighboursWithoutAGapAdjoining) {
    for (int x = 0; x < 40; ++x) {
        EXPECT_EQ(kv::ToPixels({0, 0, x, 8}).right, kv::ToPixels({x, 0, 9, 8}).left) << x;
    }
}

struct KindCase {
    kv::ControlKind kind;
    kv::NodeClass nodeClass;
    DWORD style;
};

class RowStyles : public testing::TestWithParam<KindCase> {};

TEST_P(RowStyles, AreThoseOfTheKind) {
    EXPECT_EQ(kv::ClassOf(GetParam().kind), GetParam().nodeClass);
    const DWORD style = kv::StyleOf(Row(1, GetParam().kind));
    EXPECT_EQ(style & ~(WS_CHILD | WS_VISIBLE | WS_VSCROLL), GetParam().style);
    EXPECT_TRUE(style & WS_VISIBLE);
}

INSTANTIATE_TEST_SUITE_P(
    , RowStyles,
    testing::Values(
        KindCase{kLabel, kv::NodeClass::kStatic, SS_LEFT},
        KindCase{kRightLabel, kv::NodeClass::kStatic, SS_RIGHT},
        KindCase{kCenterLabel, kv::NodeClass::kStatic, SS_CENTER},
        KindCase{kIcon, kv::NodeClass::kStatic, SS_ICON},
        KindCase{kGroupBox, kv::NodeClass::kButton, BS_GROUPBOX},
        KindCase{kEdit, kv::NodeClass::kEdit, WS_TABSTOP | ES_AUTOHSCROLL},
        KindCase{kPushButton, kv::NodeClass::kButton, WS_TABSTOP | BS_PUSHBUTTON},
        KindCase{kDefaultButton, kv::NodeClass::kButton, WS_TABSTOP | BS_DEFPUSHBUTTON},
        KindCase{kOwnerDrawButton, kv::NodeClass::kButton, WS_TABSTOP | BS_OWNERDRAW},
        KindCase{kCheckBox, kv::NodeClass::kButton, WS_TABSTOP | BS_AUTOCHECKBOX},
        KindCase{kRadio, kv::NodeClass::kButton, WS_TABSTOP | BS_AUTORADIOBUTTON},
        KindCase{kDropDown, kv::NodeClass::kComboBox, WS_TABSTOP | CBS_DROPDOWN | CBS_AUTOHSCROLL},
        KindCase{kDropList, kv::NodeClass::kComboBox, WS_TABSTOP | CBS_DROPDOWNLIST},
        KindCase{kListBox, kv::NodeClass::kListBox, WS_TABSTOP | LBS_NOTIFY},
        KindCase{kMultiList, kv::NodeClass::kListBox, WS_TABSTOP | LBS_NOTIFY | LBS_EXTENDEDSEL},
        KindCase{kSpin, kv::NodeClass::kSpin, 0},
        KindCase{kProgress, kv::NodeClass::kProgress, 0}));

TEST(RowStyle, AddsTakesAwayAndNamesAlternates) {
    const auto styled = [](kv::RowStyle style) {
        return kv::StyleOf(Row(1, kDropDown, "", style));
    };
    EXPECT_TRUE(styled(kv::kSortedCombo) & CBS_SORT);
    EXPECT_FALSE(styled(kv::kHidden) & WS_VISIBLE);
    EXPECT_FALSE(styled(kv::kNoTabStop) & WS_TABSTOP);
    const DWORD both = styled(kv::kDisabled | kv::kHidden | kv::kFirstOfGroup);
    EXPECT_TRUE(both & WS_DISABLED);
    EXPECT_TRUE(both & WS_GROUP);
    EXPECT_FALSE(both & WS_VISIBLE);
    EXPECT_EQ((kv::kHidden | kv::Alternate(3)).alternate, 3);
    EXPECT_EQ((kv::Alternate(3) | kv::kHidden).alternate, 3);
}

TEST(DialogTemplate, BecomesTheDialogsControlsInTabOrder) {
    const kv::ControlRow rows[] = {{65535, kLabel, "&Area", {7, 9, 30, 8}},
                                   {11, kEdit, "", {41, 7, 60, 12}, kv::kReadOnly},
                                   {IDOK, kDefaultButton, "OK", {7, 30, 50, 14}}};
    const kv::DialogTemplate dialogTemplate{100, "Caption", 120, 60, rows};
    const auto dialog = std::make_shared<kv::DialogNode>();
    dialog->SetRect({10, 20, 0, 0});
    kv::CreateControls(*dialog, dialogTemplate);

    EXPECT_EQ(dialog->Text(), "Caption");
    EXPECT_EQ(dialog->Rect(), (CRect{10, 20, 190, 118}));
    ASSERT_EQ(dialog->Children().size(), 3u);
    const kv::Node& label = *dialog->Children()[0];
    EXPECT_EQ(label.Id(), IDC_STATIC);
    EXPECT_EQ(label.Text(), "&Area");
    EXPECT_EQ(label.Parent(), dialog.get());
    const kv::Node& edit = *dialog->Children()[1];
    EXPECT_EQ(edit.Rect(), (CRect{62, 11, 152, 31}));
    EXPECT_TRUE(edit.HasStyle(ES_READONLY));
    EXPECT_EQ(dialog->FindChild(IDOK), dialog->Children()[2].get());
}

}  // namespace
