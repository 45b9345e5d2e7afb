#include "window/controls/combo_box_ex.h"

#include <gtest/gtest.h>

#include "support/dialog_fixture.h"
#include "window/controls/combo_box_node.h"

namespace test {
namespace {

class ComboBoxEx : public testing::Test {
protected:
    ComboBoxEx() {
        dialog_.Create(kTestTemplate);
        combo_.SubclassDlgItem(11, &dialog_);
    }

    int Insert(const char* text, int row = -1, int image = -1, LPARAM data = 0) {
        COMBOBOXEXITEM item;
        item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_LPARAM;
        item.iItem = row;
        item.pszText = const_cast<char*>(text);
        item.iImage = image;
        item.lParam = data;
        return combo_.InsertItem(&item);
    }
    int ImageOf(int row) {
        COMBOBOXEXITEM item;
        item.mask = CBEIF_IMAGE;
        item.iItem = row;
        EXPECT_TRUE(combo_.GetItem(&item));
        return item.iImage;
    }

    TestTemplate template_{{Row(11, kv::ControlKind::kDropList)}};
    RecordingDialog dialog_;
    CComboBoxEx combo_;
};

TEST_F(ComboBoxEx, RowsHaveTextImageAndData) {
    EXPECT_EQ(Insert("(C:)", -1, 2, 'C'), 0);
    EXPECT_EQ(Insert("(A:)", 0, 1, 'A'), 0);
    EXPECT_EQ(Insert("(D:)"), 2);
    EXPECT_EQ(combo_.GetCount(), 3);
    CString text;
    combo_.GetLBText(0, text);
    EXPECT_EQ(text, "(A:)");
    EXPECT_EQ(ImageOf(0), 1);
    EXPECT_EQ(ImageOf(1), 2);
    EXPECT_EQ(ImageOf(2), -1);
    EXPECT_EQ(combo_.GetItemData(1), 'C');
    EXPECT_EQ(combo_.DeleteItem(0), 2);
    EXPECT_EQ(ImageOf(0), 2);
}

TEST_F(ComboBoxEx, AnInsertionThatFailsSaysSoAndLeavesTheRows) {
    EXPECT_EQ(Insert("one"), 0);
    EXPECT_EQ(Insert("behind the end", 2), -1);
    EXPECT_EQ(Insert(nullptr), -1);
    EXPECT_EQ(combo_.InsertItem(nullptr), -1);
    COMBOBOXEXITEM without;
    without.mask = CBEIF_IMAGE;
    EXPECT_EQ(combo_.InsertItem(&without), -1);
    EXPECT_EQ(combo_.GetCount(), 1);
    CComboBoxEx none;
    EXPECT_EQ(none.InsertItem(&without), -1);
    EXPECT_EQ(none.GetImageList(), nullptr);
}

TEST_F(ComboBoxEx, ARowIsChangedInWhatTheMaskNames) {
    Insert("one", -1, 1, 5);
    COMBOBOXEXITEM item;
    item.mask = CBEIF_IMAGE;
    item.iItem = 0;
    item.iImage = 3;
    item.lParam = 9;
    EXPECT_TRUE(combo_.SetItem(&item));
    EXPECT_EQ(ImageOf(0), 3);
    EXPECT_EQ(combo_.GetItemData(0), 5);
    item.iItem = 1;
    EXPECT_FALSE(combo_.SetItem(&item));
    EXPECT_FALSE(combo_.GetItem(&item));
}

TEST_F(ComboBoxEx, ShowsTheImagesOfItsListAsLongAsItHasOne) {
    Insert("one", -1, 0);
    const auto& node = static_cast<const kv::ComboBoxNode&>(*combo_.m_hWnd);
    EXPECT_EQ(node.RowImage(0), nullptr);
    CImageList images;
    images.Create(16, 16);
    CImageList others;
    others.Create(32, 32);
    EXPECT_EQ(combo_.SetImageList(&images), nullptr);
    EXPECT_EQ(combo_.GetImageList(), &images);
    EXPECT_EQ(node.RowImage(0), nullptr);
    EXPECT_EQ(combo_.SetImageList(&others), &images);
    EXPECT_EQ(combo_.SetImageList(nullptr), &others);
    EXPECT_EQ(combo_.GetImageList(), nullptr);
}

}  // namespace
}  // namespace test
