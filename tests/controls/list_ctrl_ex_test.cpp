#include "controls/list_ctrl_ex.h"

#include <gtest/gtest.h>

#include <string>

#include "support/dialog_fixture.h"
#include "window/list_view/list_view_node.h"

namespace {

constexpr int kList = 10;

class RecordingList : public CListCtrlEx {
public:
    std::vector<std::pair<UINT, WPARAM>> messages;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        messages.emplace_back(message, wParam);
        return CListCtrlEx::WindowProc(message, wParam, lParam);
    }
};

class ListCtrlEx : public test::DialogTest {
protected:
    ListCtrlEx() : template_({{kList, kv::ControlKind::kListView, "", {0, 0, 200, 60}}}) {}

    void RunList(const std::function<void(kv::User&)>& act) {
        dialog.onInit = [this] {
            list.SubclassDlgItem(kList, &dialog);
            return TRUE;
        };
        Run(dialog, act);
    }

    test::TestTemplate template_;
    test::RecordingDialog dialog;
    RecordingList list;
};

TEST_F(ListCtrlEx, KnowsItsClass) {
    EXPECT_STREQ(list.GetRuntimeClass()->m_lpszClassName, "CListCtrlEx");
    EXPECT_EQ(list.GetRuntimeClass()->CreateObject(), nullptr);
}

TEST_F(ListCtrlEx, AColumnIsAsWideAsItsHeadingAndFifteen) {
    RunList([&](kv::User&) {
        EXPECT_EQ(list.InsertColumn(0, "Area", LVCFMT_LEFT, -1, -1, -1, -1), 0);
        EXPECT_EQ(list.GetColumnWidth(0), list.GetStringWidth("Area") + 15);
        EXPECT_EQ(list.InsertColumn(1, "Block", LVCFMT_RIGHT, 320, 1, 0, 3), 1);
        LVCOLUMN column;
        column.mask = LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM | LVCF_IMAGE | LVCF_ORDER;
        EXPECT_TRUE(list.GetColumn(1, &column));
        EXPECT_EQ(column.cx, 320);
        EXPECT_EQ(column.fmt, LVCFMT_RIGHT);
        EXPECT_EQ(column.iSubItem, 1);
        // Carried along in the record, and not marked as valid.
        EXPECT_EQ(column.iImage, -1);
        EXPECT_EQ(column.iOrder, 1);
        EXPECT_EQ(list.InsertColumn(2, "Hidden", LVCFMT_LEFT, 0), 2);
        EXPECT_EQ(list.GetColumnWidth(2), 0);
    });
}

TEST_F(ListCtrlEx, AddItemInsertsTheRowAndFillsItsFurtherCells) {
    RunList([&](kv::User& user) {
        list.InsertColumn(0, "Area");
        list.InsertColumn(1, "Block");
        EXPECT_EQ(list.AddItem(0, 0, "VR"), 0);
        EXPECT_TRUE(list.AddItem(0, 1, "12", 5));
        EXPECT_EQ(list.AddItem(0, 0, "EI", 2), 0);
        EXPECT_EQ(user.Rows(kList), (std::vector<std::string>{"EI\t", "VR\t12"}));
        const auto& node = static_cast<kv::ListViewNode&>(*list.m_hWnd);
        EXPECT_EQ(node.CellImage(0, 0), 2);
        EXPECT_EQ(node.CellImage(1, 0), -1);
        EXPECT_EQ(node.CellImage(1, 1), 5);
        EXPECT_FALSE(list.AddItem(7, 1, "no such row"));
    });
}

TEST_F(ListCtrlEx, AddItemSetsTheRowsDataAndNotItsIndent) {
    RunList([&](kv::User&) {
        EXPECT_EQ(list.AddItem(0, 0, "a", -1, 42L, 3), 0);
        EXPECT_EQ(list.GetItemData(0), 42);
        EXPECT_TRUE(list.AddItem(0, 1, "b", -1, 43L, 3));
        EXPECT_EQ(list.GetItemData(0), 43);
        LVITEM item;
        item.mask = LVIF_INDENT;
        EXPECT_TRUE(list.GetItem(&item));
        EXPECT_EQ(item.iIndent, 0);
    });
}

TEST_F(ListCtrlEx, LongTextsAreReadWithAGrowingBuffer) {
    RunList([&](kv::User&) {
        for (const std::size_t length : {0u, 1u, 254u, 255u, 256u, 511u, 512u, 5000u}) {
            const std::string text(length, 'x');
            list.DeleteAllItems();
            list.AddItem(0, 0, text.c_str());
            list.messages.clear();
            EXPECT_EQ(list.GetItemText(0, 0), text);
            const auto asked =
                std::count_if(list.messages.begin(), list.messages.end(),
                              [](const auto& message) { return message.first == LVM_GETITEMTEXT; });
            const int expected = length < 255 ? 1 : length < 511 ? 2 : length < 1023 ? 3 : 6;
            EXPECT_EQ(asked, expected) << length;
        }
    });
}

TEST_F(ListCtrlEx, ABufferOfTheCallersTakesWhatItHasRoomFor) {
    RunList([&](kv::User&) {
        list.AddItem(0, 0, "Vermilion");
        char buffer[5];
        EXPECT_EQ(list.GetItemText(0, 0, buffer, sizeof buffer), 4);
        EXPECT_STREQ(buffer, "Verm");
        EXPECT_EQ(list.GetItemText(0, 0, nullptr, 0), 0);
    });
}

TEST_F(ListCtrlEx, GetCheckIsMinusOneWithoutCheckBoxes) {
    RunList([&](kv::User&) {
        list.AddItem(0, 0, "a");
        EXPECT_EQ(list.GetCheck(0), -1);
        list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        EXPECT_EQ(list.GetCheck(0), 0);
        EXPECT_TRUE(list.SetCheck(0, TRUE));
        EXPECT_EQ(list.GetItemState(0, LVIS_STATEIMAGEMASK), 0x2000u);
        EXPECT_EQ(list.GetCheck(0), 1);
        list.SetCheck(0, FALSE);
        EXPECT_EQ(list.GetItemState(0, LVIS_STATEIMAGEMASK), 0x1000u);
    });
}

TEST_F(ListCtrlEx, OnSelchangeScrollsTheMarkIntoView) {
    RunList([&](kv::User&) {
        list.InsertColumn(0, "Area");
        for (int row = 0; row < 100; ++row)
            list.AddItem(row, 0, "row");
        list.SetSelectionMark(70);
        list.messages.clear();
        list.OnSelchange();
        ASSERT_GE(list.messages.size(), 2u);
        EXPECT_EQ(list.messages[1].first, WM_VSCROLL);
        EXPECT_EQ(HIWORD(list.messages[1].second), 70);
        EXPECT_LE(list.GetTopIndex(), 70);
        EXPECT_GT(list.GetTopIndex() + list.GetCountPerPage(), 70);
    });
}

TEST_F(ListCtrlEx, OnSelchangeReachesRowsBehindTheSixteenthBit) {
    RunList([&](kv::User&) {
        for (int row = 0; row < 70000; ++row)
            list.AddItem(row, 0, "row");
        list.SetSelectionMark(69000);
        list.OnSelchange();
        EXPECT_LE(list.GetTopIndex(), 69000);
        EXPECT_GT(list.GetTopIndex() + list.GetCountPerPage(), 69000);
    });
}

TEST_F(ListCtrlEx, OnSelchangeWithoutAMarkScrollsNothing) {
    RunList([&](kv::User&) {
        list.AddItem(0, 0, "a");
        list.messages.clear();
        list.OnSelchange();
        EXPECT_EQ(list.messages.back().first, LVM_GETSELECTIONMARK);
    });
}

TEST_F(ListCtrlEx, ItsOperationsAreMessagesOfTheControl) {
    RunList([&](kv::User&) {
        list.AddItem(0, 0, "a");
        list.messages.clear();
        list.SetItemText(0, 0, "b");
        list.SetHotItem(0);
        list.GetSelectionMark();
        list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
        ASSERT_EQ(list.messages.size(), 4u);
        EXPECT_EQ(list.messages[0].first, LVM_SETITEMTEXT);
        EXPECT_EQ(list.messages[1].first, LVM_SETHOTITEM);
        EXPECT_EQ(list.messages[2].first, LVM_GETSELECTIONMARK);
        EXPECT_EQ(list.messages[3].first, LVM_SETITEMSTATE);
    });
}

}  // namespace
