#include "window/list_view/list_ctrl.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "support/dialog_fixture.h"
#include "window/acting/row_texts.h"
#include "window/acting/user.h"
#include "window/list_view/list_view_node.h"

namespace {

using Rows = std::vector<int>;
using Words = std::vector<std::string>;

constexpr int kList = 10;
constexpr int kButton = 11;

/// A dialog that keeps what its list view told it, in words.
class ListDialog : public CDialog {
public:
    ListDialog() : CDialog(test::kTestTemplate) {}

    CListCtrl list;
    std::vector<std::string> told;
    std::function<void(CListCtrl&)> fill;
    std::function<void(const NMITEMACTIVATE&)> whenTold;
    std::function<LRESULT(const NMLISTVIEW&)> answer;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        list.SubclassDlgItem(kList, this);
        if (fill) fill(list);
        told.clear();
        return TRUE;
    }
    std::vector<std::string> TakeTold() { return std::exchange(told, {}); }

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        *result = 0;
        const auto& head = *reinterpret_cast<const NMHDR*>(lParam);
        if (head.code == LVN_KEYDOWN) {
            const auto& key = *reinterpret_cast<const NMLVKEYDOWN*>(lParam);
            told.push_back("key " + std::to_string(key.wVKey));
            return TRUE;
        }
        const auto& notice =
            static_cast<const NMITEMACTIVATE&>(*reinterpret_cast<const NMLISTVIEW*>(lParam));
        const std::string row = std::to_string(notice.iItem);
        switch (notice.hdr.code) {
            case LVN_ITEMCHANGED:
                told.push_back(row + ":" + std::to_string(notice.uOldState) + "->" +
                               std::to_string(notice.uNewState));
                break;
            case NM_CLICK:
                told.push_back("click " + row);
                break;
            case NM_DBLCLK:
                told.push_back("double " + row);
                break;
            case LVN_COLUMNCLICK:
                told.push_back("column " + std::to_string(notice.iSubItem));
                break;
            case NM_RETURN:
                told.push_back("return");
                break;
            case NM_RCLICK:
                told.push_back("right " + row);
                break;
            case LVN_ITEMACTIVATE:
                told.push_back("activate " + row);
                break;
            case LVN_INSERTITEM:
                told.push_back("insert " + row);
                break;
            case LVN_DELETEITEM:
                told.push_back("delete " + row + " of " + std::to_string(notice.lParam));
                break;
            case LVN_DELETEALLITEMS:
                told.push_back("delete all");
                break;
            default:
                break;
        }
        if (whenTold) whenTold(notice);
        if (answer) *result = answer(notice);
        return TRUE;
    }
};

class ListView : public test::DialogTest {
protected:
    ListView()
        : template_({{kList, kv::ControlKind::kListView, "", {0, 0, 100, 60}},
                     {kButton, kv::ControlKind::kPushButton, "B", {0, 70, 50, 14}}}) {}

    /// Runs the dialog with rows of these texts.
    void RunWith(std::vector<std::string> rows, const std::function<void(kv::User&)>& act) {
        dialog.fill = [rows = std::move(rows)](CListCtrl& list) {
            list.InsertColumn(0, "Area", LVCFMT_LEFT, 100);
            list.InsertColumn(1, "Block", LVCFMT_LEFT, 50);
            for (const std::string& text : rows)
                list.InsertItem(list.GetItemCount(), text.c_str());
        };
        Run(dialog, [this, &act](kv::User& user) {
            act(user);
            // The list view still tells of its end.
            dialog.whenTold = nullptr;
            dialog.answer = nullptr;
        });
    }
    std::vector<int> Selected() { return kv::SelectedRows(*dialog.list.m_hWnd); }
    kv::ListViewNode& Node() { return static_cast<kv::ListViewNode&>(*dialog.list.m_hWnd); }
    static kv::Modifiers Ctrl() { return {.ctrl = true}; }
    static kv::Modifiers Shift() { return {.shift = true}; }

    test::TestTemplate template_;
    ListDialog dialog;
};

TEST_F(ListView, InsertsRowsWhereTheyAreAskedFor) {
    RunWith({}, [&](kv::User& user) {
        EXPECT_EQ(dialog.list.InsertItem(0, "b"), 0);
        EXPECT_EQ(dialog.list.InsertItem(0, "a"), 0);
        EXPECT_EQ(dialog.list.InsertItem(99, "d"), 2);
        EXPECT_EQ(dialog.list.InsertItem(2, "c"), 2);
        EXPECT_EQ(dialog.list.InsertItem(-1, "x"), -1);
        EXPECT_EQ(user.Rows(kList), (Words{"a\t", "b\t", "c\t", "d\t"}));
    });
}

TEST_F(ListView, RefusesToInsertAFurtherColumnsCell) {
    RunWith({}, [&](kv::User&) {
        LVITEM item;
        item.iSubItem = 1;
        EXPECT_EQ(dialog.list.InsertItem(&item), -1);
        EXPECT_EQ(dialog.list.GetItemCount(), 0);
    });
}

TEST_F(ListView, SortedByStyleFindsThePlaceItself) {
    RunWith({}, [&](kv::User& user) {
        dialog.list.ModifyStyle(0, LVS_SORTASCENDING);
        for (const char* text : {"Vermilion", "brazos", "Vermilion", "Eugene"})
            dialog.list.InsertItem(0, text);
        EXPECT_EQ(dialog.list.InsertItem(0, "VERMILION"), 4);
        EXPECT_EQ(user.Rows(kList),
                  (Words{"brazos\t", "Eugene\t", "Vermilion\t", "Vermilion\t", "VERMILION\t"}));
        dialog.list.DeleteAllItems();
        dialog.list.ModifyStyle(LVS_SORTASCENDING, LVS_SORTDESCENDING);
        for (const char* text : {"b", "a", "c"})
            dialog.list.InsertItem(0, text);
        EXPECT_EQ(user.Rows(kList), (Words{"c\t", "b\t", "a\t"}));
    });
}

TEST_F(ListView, AnswersForCellsThatAreNotThere) {
    RunWith({"a"}, [&](kv::User&) {
        EXPECT_EQ(dialog.list.GetItemText(0, 5), "");
        EXPECT_EQ(dialog.list.GetItemText(7, 0), "");
        EXPECT_EQ(dialog.list.GetItemText(-1, 0), "");
        EXPECT_EQ(dialog.list.GetItemData(7), 0);
        EXPECT_EQ(dialog.list.GetItemState(7, ~0u), 0u);
        EXPECT_FALSE(dialog.list.DeleteItem(7));
        EXPECT_FALSE(dialog.list.SetItemText(7, 0, "x"));
        EXPECT_FALSE(dialog.list.EnsureVisible(7, FALSE));
    });
}

TEST_F(ListView, ReadsWhatTheMaskAsksForAndNoMore) {
    RunWith({"a"}, [&](kv::User&) {
        LVITEM in;
        in.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM | LVIF_INDENT;
        in.iItem = 0;
        char text[] = "Vermilion";
        in.pszText = text;
        in.iImage = 4;
        in.lParam = 77;
        in.iIndent = 2;
        EXPECT_TRUE(dialog.list.SetItem(&in));
        char buffer[6];
        LVITEM out;
        out.mask = LVIF_TEXT | LVIF_PARAM;
        out.pszText = buffer;
        out.cchTextMax = sizeof buffer;
        EXPECT_TRUE(dialog.list.GetItem(&out));
        EXPECT_STREQ(buffer, "Vermi");
        EXPECT_EQ(out.lParam, 77);
        EXPECT_EQ(out.iImage, -1);
        EXPECT_EQ(out.iIndent, 0);
        out.mask = LVIF_IMAGE | LVIF_INDENT;
        dialog.list.GetItem(&out);
        EXPECT_EQ(out.iImage, 4);
        EXPECT_EQ(out.iIndent, 2);
    });
}

TEST_F(ListView, AClickTellsOfTheChangesAndThenOfTheClick) {
    RunWith({"a", "b"}, [&](kv::User&) {
        kv::input::ClickRow(Node(), 0);
        EXPECT_EQ(dialog.TakeTold(), (Words{"0:0->3", "click 0"}));
        kv::input::ClickRow(Node(), 1);
        EXPECT_EQ(dialog.TakeTold(), (Words{"0:3->1", "0:1->0", "1:0->3", "click 1"}));
        kv::input::ClickRow(Node(), 1);
        EXPECT_EQ(dialog.TakeTold(), (Words{"click 1"}));
    });
}

TEST_F(ListView, AClickBehindTheRowsTakesTheSelectionBack) {
    RunWith({"a", "b"}, [&](kv::User&) {
        kv::input::ClickRow(Node(), 1);
        dialog.TakeTold();
        kv::input::ClickRow(Node(), -1);
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:3->1", "click -1"}));
        EXPECT_EQ(dialog.list.GetNextItem(-1, LVNI_FOCUSED), 1);
    });
}

TEST_F(ListView, ADoubleClickIsAClickFirst) {
    RunWith({"a", "b"}, [&](kv::User& user) {
        user.DoubleClick(kList, 1);
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:0->3", "click 1", "double 1", "activate 1"}));
    });
}

TEST_F(ListView, CtrlTogglesAndShiftExtendsFromTheMark) {
    RunWith({"0", "1", "2", "3", "4", "5"}, [&](kv::User&) {
        kv::input::ClickRow(Node(), 1);
        kv::input::ClickRow(Node(), 4, Ctrl());
        EXPECT_EQ(Selected(), (Rows{1, 4}));
        EXPECT_EQ(dialog.list.GetSelectionMark(), 4);
        kv::input::ClickRow(Node(), 2, Shift());
        EXPECT_EQ(Selected(), (Rows{2, 3, 4}));
        EXPECT_EQ(dialog.list.GetSelectionMark(), 4);
        kv::input::ClickRow(Node(), 5, Shift());
        EXPECT_EQ(Selected(), (Rows{4, 5}));
        kv::input::ClickRow(Node(), 4, Ctrl());
        EXPECT_EQ(Selected(), (Rows{5}));
        kv::input::ClickRow(Node(), 0, {.shift = true, .ctrl = true});
        EXPECT_EQ(Selected(), (Rows{0, 1, 2, 3, 4, 5}));
        EXPECT_EQ(dialog.list.GetSelectedCount(), 6u);
    });
}

TEST_F(ListView, SelectRowsPicksThemAsAPersonDoes) {
    RunWith({"a", "b", "c"}, [&](kv::User& user) {
        user.Select(kList, Rows{2, 0});
        EXPECT_EQ(user.Selected(kList), (Rows{0, 2}));
        EXPECT_EQ(dialog.TakeTold(), (Words{"2:0->3", "click 2", "2:3->2", "0:0->3", "click 0"}));
        user.Select(kList, "b\t");
        EXPECT_EQ(user.Selected(kList), (Rows{1}));
        user.Select(kList, Rows{});
        EXPECT_EQ(user.Selected(kList), Rows{});
        EXPECT_FALSE(kv::input::SelectRows(Node(), {3}));
    });
}

TEST_F(ListView, ADisabledListDoesNotReact) {
    RunWith({"a"}, [&](kv::User&) {
        dialog.list.EnableWindow(FALSE);
        EXPECT_FALSE(kv::input::ClickRow(Node(), 0));
        EXPECT_FALSE(kv::input::ClickColumn(Node(), 0));
        EXPECT_FALSE(kv::input::DoubleClick(Node(), 0));
        EXPECT_EQ(dialog.told, Words{});
    });
}

TEST_F(ListView, SingleSelectionKeepsOneRow) {
    RunWith({"a", "b", "c"}, [&](kv::User&) {
        dialog.list.ModifyStyle(0, LVS_SINGLESEL);
        dialog.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
        dialog.list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
        EXPECT_EQ(Selected(), (Rows{2}));
        kv::input::ClickRow(Node(), 1, Ctrl());
        EXPECT_EQ(Selected(), (Rows{1}));
        kv::input::ClickRow(Node(), 0, Shift());
        EXPECT_EQ(Selected(), (Rows{0}));
    });
}

TEST_F(ListView, StateOfAllRowsIsSetByTheRowMinusOne) {
    RunWith({"a", "b", "c"}, [&](kv::User&) {
        EXPECT_TRUE(dialog.list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED));
        EXPECT_EQ(dialog.TakeTold(), (Words{"0:0->2", "1:0->2", "2:0->2"}));
        EXPECT_TRUE(dialog.list.SetItemState(-1, 0, LVIS_SELECTED));
        EXPECT_EQ(Selected(), Rows{});
    });
}

TEST_F(ListView, OnlyOneRowHasTheFocus) {
    RunWith({"a", "b", "c"}, [&](kv::User&) {
        dialog.list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
        dialog.list.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);
        EXPECT_EQ(dialog.TakeTold(), (Words{"0:0->1", "0:1->0", "2:0->1"}));
        EXPECT_EQ(dialog.list.GetNextItem(-1, LVNI_FOCUSED), 2);
        EXPECT_EQ(dialog.list.GetNextItem(2, LVNI_FOCUSED), -1);
        EXPECT_EQ(dialog.list.GetNextItem(-1, LVNI_FOCUSED | LVNI_SELECTED), -1);
    });
}

TEST_F(ListView, NextItemOfNoStateIsTheNextRow) {
    RunWith({"a", "b"}, [&](kv::User&) {
        EXPECT_EQ(dialog.list.GetNextItem(-1, LVNI_ALL), 0);
        EXPECT_EQ(dialog.list.GetNextItem(0, LVNI_ALL), 1);
        EXPECT_EQ(dialog.list.GetNextItem(1, LVNI_ALL), -1);
    });
}

TEST_F(ListView, WalksOverSelectedRows) {
    RunWith({"a", "b", "c", "d"}, [&](kv::User& user) {
        user.Select(kList, Rows{3, 1});
        POSITION position = dialog.list.GetFirstSelectedItemPosition();
        EXPECT_NE(position, nullptr);
        EXPECT_EQ(dialog.list.GetNextSelectedItem(position), 1);
        EXPECT_EQ(dialog.list.GetNextSelectedItem(position), 3);
        EXPECT_EQ(position, nullptr);
        EXPECT_EQ(dialog.list.GetNextSelectedItem(position), -1);
    });
}

TEST_F(ListView, RowsKeepTheirStatesWhenOthersComeAndGo) {
    RunWith({"a", "b", "c", "d"}, [&](kv::User& user) {
        user.Select(kList, Rows{1, 3});
        dialog.list.InsertItem(0, "new");
        EXPECT_EQ(Selected(), (Rows{2, 4}));
        EXPECT_EQ(Node().FocusedRow(), 4);
        EXPECT_EQ(dialog.list.GetSelectionMark(), 4);
        dialog.list.DeleteItem(2);
        EXPECT_EQ(Selected(), (Rows{3}));
        EXPECT_EQ(dialog.list.GetSelectedCount(), 1u);
        EXPECT_EQ(Node().FocusedRow(), 3);
        dialog.list.DeleteItem(3);
        EXPECT_EQ(Selected(), Rows{});
        EXPECT_EQ(dialog.list.GetSelectionMark(), -1);
    });
}

TEST_F(ListView, TheFocusOfADeletedRowPassesToItsNeighbour) {
    RunWith({"a", "b", "c"}, [&](kv::User&) {
        kv::input::ClickRow(Node(), 1);
        dialog.list.DeleteItem(1);
        EXPECT_EQ(Node().FocusedRow(), 1);
        EXPECT_EQ(Selected(), Rows{});
        dialog.list.DeleteItem(1);
        EXPECT_EQ(Node().FocusedRow(), 0);
        dialog.list.DeleteItem(0);
        EXPECT_EQ(Node().FocusedRow(), -1);
    });
}

TEST_F(ListView, EmptyingItForgetsEverything) {
    RunWith({"a", "b"}, [&](kv::User& user) {
        user.Select(kList, Rows{0, 1});
        EXPECT_TRUE(dialog.list.DeleteAllItems());
        EXPECT_EQ(dialog.list.GetItemCount(), 0);
        EXPECT_EQ(dialog.list.GetSelectedCount(), 0u);
        EXPECT_EQ(dialog.list.GetSelectionMark(), -1);
        EXPECT_EQ(dialog.list.GetNextItem(-1, LVNI_SELECTED), -1);
        dialog.list.InsertItem(0, "c");
        EXPECT_EQ(dialog.list.GetItemState(0, ~0u), 0u);
    });
}

TEST_F(ListView, SetTextTellsOnlyOfANewText) {
    RunWith({"a"}, [&](kv::User&) {
        UINT changed = 0;
        dialog.whenTold = [&](const NMLISTVIEW& notice) { changed = notice.uChanged; };
        dialog.list.SetItemText(0, 1, "new");
        EXPECT_EQ(changed, LVIF_TEXT);
        EXPECT_EQ(dialog.TakeTold().size(), 1u);
        dialog.list.SetItemText(0, 1, "new");
        EXPECT_EQ(dialog.told, Words{});
    });
}

TEST_F(ListView, AHandlerMayTakeTheRowsAwayMeanwhile) {
    RunWith({"a", "b", "c"}, [&](kv::User& user) {
        user.Select(kList, Rows{0, 1, 2});
        dialog.whenTold = [&](const NMLISTVIEW& notice) {
            if (notice.hdr.code == LVN_ITEMCHANGED) dialog.list.DeleteAllItems();
        };
        kv::input::ClickRow(Node(), 2);
        EXPECT_EQ(dialog.list.GetItemCount(), 0);
        EXPECT_EQ(dialog.told.back(), "click -1");
    });
}

int Find(CListCtrl& list, UINT flags, const char* text, LPARAM data = 0, int start = -1) {
    LVFINDINFO what{flags, text, data};
    return list.FindItem(&what, start);
}

TEST_F(ListView, FindItemComparesWholeTextsUnlessItIsToldOtherwise) {
    RunWith({"Vermilion", "Ship Shoal", "vermilion south"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_EQ(Find(list, LVFI_STRING, "VERMILION"), 0);
        EXPECT_EQ(Find(list, LVFI_STRING, "ship"), -1);
        EXPECT_EQ(Find(list, LVFI_PARTIAL, "ship"), 1);
        EXPECT_EQ(Find(list, LVFI_STRING | LVFI_PARTIAL, "verm", 0, 0), 2);
        EXPECT_EQ(Find(list, LVFI_STRING, nullptr), -1);
        EXPECT_EQ(Find(list, 0, "Vermilion"), -1);
    });
}

TEST_F(ListView, FindItemBeginsBehindTheStartAndWrapsWhenTold) {
    RunWith({"a", "b", "a"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_EQ(Find(list, LVFI_STRING, "a", 0, 0), 2);
        EXPECT_EQ(Find(list, LVFI_STRING, "a", 0, 2), -1);
        EXPECT_EQ(Find(list, LVFI_STRING | LVFI_WRAP, "a", 0, 2), 0);
        EXPECT_EQ(Find(list, LVFI_WRAP, "b", 0, 1), 1);
        EXPECT_EQ(Find(list, LVFI_STRING, "a", 0, 99), -1);
        EXPECT_EQ(Find(list, LVFI_STRING | LVFI_WRAP, "b", 0, 99), 1);
    });
}

TEST_F(ListView, FindItemByDataLooksAtNothingElse) {
    RunWith({"a", "b"}, [&](kv::User&) {
        dialog.list.SetItemData(1, 5);
        EXPECT_EQ(Find(dialog.list, LVFI_PARAM | LVFI_STRING, "a", 5), 1);
        EXPECT_EQ(Find(dialog.list, LVFI_PARAM | LVFI_WRAP, nullptr, 5, 1), -1);
    });
}

TEST_F(ListView, CheckBoxesComeUpClear) {
    RunWith({"a", "b"}, [&](kv::User&) {
        EXPECT_EQ(dialog.list.GetCheck(0), -1);
        EXPECT_EQ(dialog.list.SetExtendedStyle(LVS_EX_CHECKBOXES), 0u);
        EXPECT_EQ(dialog.list.GetCheck(0), 0);
        dialog.list.SetCheck(0);
        EXPECT_EQ(dialog.list.GetCheck(0), 1);
        dialog.list.InsertItem(0, "c");
        EXPECT_EQ(dialog.list.GetCheck(0), 0);
        EXPECT_EQ(dialog.list.GetCheck(1), 1);
        EXPECT_EQ(dialog.list.SetExtendedStyle(0), LVS_EX_CHECKBOXES);
        EXPECT_EQ(dialog.list.GetCheck(1), -1);
    });
}

TEST_F(ListView, AClickOnTheCheckBoxLeavesTheSelection) {
    RunWith({"a", "b"}, [&](kv::User&) {
        dialog.list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        kv::input::ClickRow(Node(), 0);
        dialog.TakeTold();
        kv::input::ToggleCheck(Node(), 1);
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:4096->8192", "click 1"}));
        EXPECT_EQ(dialog.list.GetCheck(1), 1);
        EXPECT_EQ(Selected(), (Rows{0}));
        kv::input::ToggleCheck(Node(), 1);
        EXPECT_EQ(dialog.list.GetCheck(1), 0);
    });
}

TEST_F(ListView, WithoutCheckBoxesThereIsNothingToToggle) {
    RunWith({"a"}, [&](kv::User&) {
        kv::input::ToggleCheck(Node(), 0);
        EXPECT_EQ(dialog.told, Words{});
        EXPECT_EQ(dialog.list.GetCheck(0), -1);
    });
}

TEST_F(ListView, SpaceTogglesTheChecksOfTheSelectedRows) {
    RunWith({"a", "b", "c"}, [&](kv::User& user) {
        dialog.list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        user.Select(kList, Rows{0, 2});
        user.Key(kList, "Space");
        EXPECT_EQ(dialog.list.GetCheck(0), 1);
        EXPECT_EQ(dialog.list.GetCheck(1), 0);
        EXPECT_EQ(dialog.list.GetCheck(2), 1);
        dialog.list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
        user.Key(kList, "Space");
        EXPECT_EQ(dialog.list.GetCheck(1), 1);
        EXPECT_EQ(dialog.list.GetCheck(0), 1);
    });
}

TEST_F(ListView, ArrowsMoveTheSelectionAlong) {
    RunWith({"0", "1", "2", "3"}, [&](kv::User& user) {
        user.Key(kList, "Down");
        EXPECT_EQ(Selected(), (Rows{0}));
        user.Key(kList, "Down");
        EXPECT_EQ(Selected(), (Rows{1}));
        user.Key(kList, "Shift+Down");
        EXPECT_EQ(Selected(), (Rows{1, 2}));
        user.Key(kList, "Shift+Up");
        EXPECT_EQ(Selected(), (Rows{1}));
        user.Key(kList, "End");
        EXPECT_EQ(Selected(), (Rows{3}));
        user.Key(kList, "Down");
        EXPECT_EQ(Selected(), (Rows{3}));
        user.Key(kList, "Shift+Home");
        EXPECT_EQ(Selected(), (Rows{0, 1, 2, 3}));
    });
}

TEST_F(ListView, CtrlMovesTheFocusAloneAndCtrlSpaceToggles) {
    RunWith({"0", "1", "2"}, [&](kv::User& user) {
        user.Key(kList, "Down");
        user.Key(kList, "Ctrl+Down");
        user.Key(kList, "Ctrl+Down");
        EXPECT_EQ(Selected(), (Rows{0}));
        EXPECT_EQ(Node().FocusedRow(), 2);
        user.Key(kList, "Ctrl+Space");
        EXPECT_EQ(Selected(), (Rows{0, 2}));
        user.Key(kList, "Ctrl+Space");
        EXPECT_EQ(Selected(), (Rows{0}));
        user.Key(kList, "Ctrl+A");
        EXPECT_EQ(Selected(), (Rows{0, 1, 2}));
    });
}

TEST_F(ListView, PagesMoveByTheRowsThatAreSeen) {
    Words rows;
    for (int row = 0; row < 100; ++row)
        rows.push_back(std::to_string(row));
    RunWith(rows, [&](kv::User& user) {
        const int page = dialog.list.GetCountPerPage();
        ASSERT_GT(page, 2);
        user.Key(kList, "Down");
        user.Key(kList, "PageDown");
        EXPECT_EQ(Selected(), (Rows{page}));
        EXPECT_EQ(dialog.list.GetTopIndex(), 1);
        user.Key(kList, "End");
        EXPECT_EQ(dialog.list.GetTopIndex(), 100 - page);
        user.Key(kList, "Home");
        EXPECT_EQ(dialog.list.GetTopIndex(), 0);
    });
}

TEST_F(ListView, TypedLettersFindTheRow) {
    RunWith({"Brazos", "Eugene", "East Breaks", "Ewing"}, [&](kv::User& user) {
        desktop.SetNow(std::chrono::system_clock::time_point{});
        user.Focus(kList);
        kv::input::TypeHere("ew");
        EXPECT_EQ(Selected(), (Rows{3}));
        desktop.SetNow(std::chrono::system_clock::time_point{std::chrono::seconds(5)});
        kv::input::TypeHere("e");
        EXPECT_EQ(Selected(), (Rows{1}));
        kv::input::TypeHere("e");
        EXPECT_EQ(Selected(), (Rows{2}));
        desktop.SetNow(std::chrono::system_clock::time_point{std::chrono::seconds(9)});
        kv::input::TypeHere("east b");
        EXPECT_EQ(Selected(), (Rows{2}));
        kv::input::TypeHere("x");
        EXPECT_EQ(Selected(), (Rows{2}));
    });
}

TEST_F(ListView, AnEmptyListTakesKeysInItsStride) {
    RunWith({}, [&](kv::User& user) {
        for (const char* key : {"Down", "End", "Space", "A", "Ctrl+Space"})
            user.Key(kList, key);
        EXPECT_EQ(dialog.told.size(), 5u);
        for (const std::string& each : dialog.told)
            EXPECT_TRUE(each.starts_with("key ")) << each;
    });
}

TEST_F(ListView, OutsideADialogEnterIsToldToTheParent) {
    RunWith({"a"}, [&](kv::User&) {
        dialog.list.SendMessage(WM_KEYDOWN, VK_RETURN);
        EXPECT_EQ(dialog.TakeTold(), (Words{"key " + std::to_string(VK_RETURN), "return"}));
    });
}

TEST_F(ListView, AHeadingThatIsClickedIsTold) {
    RunWith({"a"}, [&](kv::User&) {
        EXPECT_TRUE(kv::input::ClickColumn(Node(), 1));
        kv::input::ClickColumn(Node(), 2);
        EXPECT_EQ(dialog.TakeTold(), (Words{"column 1"}));
    });
}

TEST_F(ListView, ColumnsMoveTheCellsBehindThem) {
    RunWith({"a"}, [&](kv::User& user) {
        dialog.list.SetItemText(0, 1, "b");
        EXPECT_EQ(dialog.list.InsertColumn(1, "Middle"), 1);
        EXPECT_EQ(user.Rows(kList), (Words{"a\t\tb"}));
        EXPECT_TRUE(dialog.list.DeleteColumn(1));
        EXPECT_EQ(user.Rows(kList), (Words{"a\tb"}));
        EXPECT_FALSE(dialog.list.DeleteColumn(2));
        EXPECT_EQ(dialog.list.GetColumnCount(), 2);
    });
}

TEST_F(ListView, ColumnsKeepTheirOrderWhenOthersComeAndGo) {
    RunWith({}, [&](kv::User&) {
        const int order[] = {1, 0};
        EXPECT_TRUE(dialog.list.SetColumnOrderArray(2, order));
        const int wrong[] = {0, 0};
        EXPECT_FALSE(dialog.list.SetColumnOrderArray(2, wrong));
        EXPECT_FALSE(dialog.list.SetColumnOrderArray(1, order));
        EXPECT_EQ(dialog.list.InsertColumn(2, "Third"), 2);
        int read[3] = {};
        EXPECT_TRUE(dialog.list.GetColumnOrderArray(read));
        EXPECT_EQ(Rows(read, read + 3), (Rows{1, 0, 2}));
        EXPECT_FALSE(dialog.list.GetColumnOrderArray(read, 2));
        dialog.list.DeleteColumn(0);
        EXPECT_TRUE(dialog.list.GetColumnOrderArray(read, 2));
        EXPECT_EQ(Rows(read, read + 2), (Rows{0, 1}));
    });
}

TEST_F(ListView, AColumnMayNameItsPlaceInTheOrder) {
    RunWith({}, [&](kv::User&) {
        LVCOLUMN column;
        column.mask = LVCF_WIDTH | LVCF_ORDER;
        column.cx = 20;
        column.iOrder = 0;
        EXPECT_EQ(dialog.list.InsertColumn(2, &column), 2);
        EXPECT_EQ(Node().ColumnOrder(), (Rows{2, 0, 1}));
        LVCOLUMN read;
        read.mask = LVCF_ORDER | LVCF_WIDTH;
        EXPECT_TRUE(dialog.list.GetColumn(0, &read));
        EXPECT_EQ(read.iOrder, 1);
        EXPECT_EQ(read.cx, 100);
    });
}

TEST_F(ListView, AColumnIsChangedWhereTheMaskSays) {
    RunWith({}, [&](kv::User&) {
        LVCOLUMN column;
        column.mask = LVCF_FMT;
        column.fmt = LVCFMT_RIGHT;
        EXPECT_TRUE(dialog.list.SetColumn(0, &column));
        char heading[20];
        column.mask = LVCF_TEXT | LVCF_FMT;
        column.pszText = heading;
        column.cchTextMax = sizeof heading;
        EXPECT_TRUE(dialog.list.GetColumn(0, &column));
        EXPECT_STREQ(heading, "Area");
        EXPECT_EQ(column.fmt, LVCFMT_RIGHT);
        EXPECT_FALSE(dialog.list.SetColumn(9, &column));
        EXPECT_TRUE(dialog.list.SetColumnWidth(0, 33));
        EXPECT_EQ(dialog.list.GetColumnWidth(0), 33);
        EXPECT_EQ(dialog.list.GetColumnWidth(9), 0);
    });
}

TEST_F(ListView, TheHeadingsAreAWindowOfTheirOwn) {
    RunWith({}, [&](kv::User&) {
        ASSERT_NE(dialog.list.GetHeaderCtrl(), nullptr);
        EXPECT_EQ(dialog.list.GetHeaderCtrl()->GetItemCount(), 2);
        EXPECT_EQ(dialog.list.GetHeaderCtrl(), dialog.list.GetHeaderCtrl());
        dialog.list.ModifyStyle(0, LVS_NOCOLUMNHEADER);
        EXPECT_EQ(dialog.list.GetHeaderCtrl(), nullptr);
    });
}

TEST_F(ListView, AMouseButtonDownSelectsAndUpIsTheClick) {
    RunWith({"a", "b"}, [&](kv::User&) {
        CRect cell;
        ASSERT_TRUE(dialog.list.GetSubItemRect(1, 0, LVIR_LABEL, cell));
        const CPoint at{cell.left + 2, cell.top + 2};
        kv::input::Press(Node(), at);
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:0->3"}));
        kv::input::Release(Node(), at);
        EXPECT_EQ(dialog.TakeTold(), (Words{"click 1"}));
        kv::input::PressAgain(Node(), at);
        kv::input::Release(Node(), at);
        EXPECT_EQ(dialog.TakeTold(), (Words{"double 1", "activate 1"}));
    });
}

TEST_F(ListView, BesideTheFirstColumnARowIsHitOnlyWithFullRowSelection) {
    RunWith({"a"}, [&](kv::User&) {
        CRect cell;
        ASSERT_TRUE(dialog.list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell));
        const CPoint at{cell.left + 2, cell.top + 2};
        EXPECT_EQ(dialog.list.HitTest(at), -1);
        kv::input::ClickAt(Node(), at);
        EXPECT_EQ(dialog.TakeTold(), (Words{"click -1"}));
        dialog.list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
        UINT flags = 0;
        EXPECT_EQ(dialog.list.HitTest(at, &flags), 0);
        EXPECT_EQ(flags, LVHT_ONITEMLABEL);
        kv::input::ClickAt(Node(), at);
        EXPECT_EQ(Selected(), (Rows{0}));
        LVHITTESTINFO info;
        info.pt = at;
        EXPECT_EQ(dialog.list.SubItemHitTest(&info), 0);
        EXPECT_EQ(info.iSubItem, 1);
    });
}

TEST_F(ListView, PointsOutsideSayWhereTheyAre) {
    RunWith({"a"}, [&](kv::User&) {
        UINT flags = 0;
        EXPECT_EQ(dialog.list.HitTest({-1, 20}, &flags), -1);
        EXPECT_EQ(flags, LVHT_TOLEFT);
        dialog.list.HitTest({5000, 5000}, &flags);
        EXPECT_EQ(flags, LVHT_TORIGHT | LVHT_BELOW);
        dialog.list.HitTest({5, 60}, &flags);
        EXPECT_EQ(flags, LVHT_NOWHERE);
    });
}

TEST_F(ListView, AMouseClickOnTheCheckBoxTogglesIt) {
    RunWith({"a"}, [&](kv::User&) {
        dialog.list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        CRect cell;
        dialog.list.GetSubItemRect(0, 0, LVIR_LABEL, cell);
        UINT flags = 0;
        const CPoint at{cell.left - 4, cell.top + 2};
        EXPECT_EQ(dialog.list.HitTest(at, &flags), 0);
        EXPECT_EQ(flags, LVHT_ONITEMSTATEICON);
        kv::input::ClickAt(Node(), at);
        EXPECT_EQ(dialog.list.GetCheck(0), 1);
        EXPECT_EQ(Selected(), Rows{});
        EXPECT_EQ(dialog.told.back(), "click 0");
    });
}

TEST_F(ListView, CellsStandInTheOrderOfTheirColumns) {
    RunWith({"a", "b"}, [&](kv::User&) {
        const int order[] = {1, 0};
        dialog.list.SetColumnOrderArray(2, order);
        CRect first;
        CRect second;
        dialog.list.GetSubItemRect(1, 0, LVIR_LABEL, first);
        dialog.list.GetSubItemRect(1, 1, LVIR_LABEL, second);
        EXPECT_EQ(second.left, 0);
        EXPECT_EQ(first.left, 50);
        EXPECT_EQ(first.right, 150);
        CRect row;
        dialog.list.GetSubItemRect(1, 0, LVIR_BOUNDS, row);
        EXPECT_EQ(row.Width(), 150);
        EXPECT_FALSE(dialog.list.GetSubItemRect(2, 0, LVIR_BOUNDS, row));
        EXPECT_EQ(dialog.list.ApproximateViewRect().cx, 150);
        EXPECT_GT(dialog.list.ApproximateViewRect({-1, -1}, 9).cy,
                  dialog.list.ApproximateViewRect().cy);
    });
}

TEST_F(ListView, ScrollsByItsScrollBar) {
    Words rows(60, "row");
    RunWith(rows, [&](kv::User&) {
        const int page = dialog.list.GetCountPerPage();
        const auto scroll = [&](int code, int position = 0) {
            dialog.list.SendMessage(WM_VSCROLL, MAKEWPARAM(code, position));
            return dialog.list.GetTopIndex();
        };
        EXPECT_EQ(scroll(1), 1);
        EXPECT_EQ(scroll(3), 1 + page);
        EXPECT_EQ(scroll(2), 1);
        EXPECT_EQ(scroll(0), 0);
        EXPECT_EQ(scroll(0), 0);
        EXPECT_EQ(scroll(4, 20), 20);
        EXPECT_EQ(scroll(7), 60 - page);
        EXPECT_EQ(scroll(6), 0);
    });
}

TEST_F(ListView, KeepsWhatItIsToldOfItsLooks) {
    RunWith({"a"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_EQ(list.GetHotItem(), -1);
        EXPECT_EQ(list.SetHotItem(0), -1);
        EXPECT_EQ(list.GetHotItem(), 0);
        EXPECT_EQ(list.SetHotItem(9), 0);
        EXPECT_EQ(list.GetHotItem(), -1);
        EXPECT_EQ(list.GetHotCursor(), nullptr);
        EXPECT_EQ(list.SetHotCursor(&list), nullptr);
        EXPECT_EQ(list.GetHotCursor(), &list);
        EXPECT_EQ(list.GetHoverTime(), 0xFFFFFFFFu);
        EXPECT_EQ(list.SetHoverTime(400), 0xFFFFFFFFu);
        EXPECT_EQ(list.GetHoverTime(), 400u);
        list.SetIconSpacing(30, 40);
        EXPECT_EQ(list.SetIconSpacing(CSize{1, 2}), (CSize{30, 40}));
        LVBKIMAGE image;
        image.xOffsetPercent = 12;
        EXPECT_TRUE(list.SetBkImage(&image));
        LVBKIMAGE read;
        EXPECT_TRUE(list.GetBkImage(&read));
        EXPECT_EQ(read.xOffsetPercent, 12);
    });
}

TEST_F(ListView, ShowsTheImagesOfItsSmallList) {
    RunWith({"a", "b"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        CImageList images;
        ASSERT_TRUE(images.Create(16, 14));
        CBitmap strip;
        kv::Raster two(32, 14, kv::ToArgb(RGB(255, 0, 255)));
        two.SetArgb(20, 5, kv::ToArgb(RGB(10, 20, 30)));
        ASSERT_TRUE(strip.CreateFrom(two));
        EXPECT_EQ(images.Add(strip, RGB(255, 0, 255)), 0);
        EXPECT_EQ(images.GetImageCount(), 2);
        EXPECT_EQ(list.SetImageList(&images, LVSIL_SMALL), nullptr);
        EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &images);
        EXPECT_EQ(list.GetImageList(LVSIL_NORMAL), nullptr);
        list.SetItemImage(1, 0, 1);
        list.SetItemImage(1, 1, 1);
        ASSERT_NE(Node().ShownImage(1, 0), nullptr);
        EXPECT_EQ(Node().ShownImage(1, 0)->Argb(4, 5), kv::ToArgb(RGB(10, 20, 30)));
        EXPECT_EQ(Node().ShownImage(1, 0)->Argb(0, 0), 0u) << "the mask is transparent";
        EXPECT_EQ(Node().ShownImage(0, 0), nullptr);
        EXPECT_EQ(Node().ShownImage(1, 1), nullptr);
        list.SetExtendedStyle(LVS_EX_SUBITEMIMAGES);
        EXPECT_NE(Node().ShownImage(1, 1), nullptr);
        list.SetItemImage(1, 0, 2);
        EXPECT_EQ(Node().ShownImage(1, 0), nullptr) << "there is no image of that index";
        EXPECT_EQ(list.SetImageList(nullptr, LVSIL_SMALL), &images);
        EXPECT_EQ(Node().ShownImage(1, 1), nullptr);
    });
}

TEST_F(ListView, KeepsItsImagesWhenTheirHandleGoes) {
    RunWith({"a"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        {
            CImageList images;
            images.Create(16, 16);
            CBitmap picture;
            picture.CreateFrom(kv::Raster(16, 16, kv::ToArgb(RGB(1, 2, 3))));
            images.Add(picture, RGB(0, 0, 0));
            list.SetImageList(&images, LVSIL_SMALL);
        }
        list.SetItemImage(0, 0, 0);
        EXPECT_EQ(list.GetImageList(LVSIL_SMALL), nullptr);
        ASSERT_NE(Node().ShownImage(0, 0), nullptr);
        EXPECT_EQ(Node().ShownImage(0, 0)->Argb(3, 3), kv::ToArgb(RGB(1, 2, 3)));
        EXPECT_EQ(list.SetImageList(nullptr, LVSIL_SMALL), nullptr);
    });
}

TEST_F(ListView, ImagesAndIndentsTakeRoomBesideTheText) {
    RunWith({"a", "b"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        const auto placeOf = [&](int row, int part) {
            CRect place;
            list.GetSubItemRect(row, 0, part, place);
            return place;
        };
        EXPECT_EQ(placeOf(0, LVIR_LABEL).left, 0);
        const int lower = placeOf(0, LVIR_BOUNDS).Height();
        CImageList images;
        images.Create(20, 24);
        list.SetImageList(&images, LVSIL_SMALL);
        EXPECT_EQ(placeOf(0, LVIR_LABEL).left, 20) << "with no image of its own, too";
        EXPECT_GT(placeOf(0, LVIR_BOUNDS).Height(), lower);
        LVITEM item;
        item.mask = LVIF_INDENT;
        item.iItem = 1;
        item.iIndent = 2;
        list.SetItem(&item);
        EXPECT_EQ(placeOf(1, LVIR_ICON).left, 40);
        EXPECT_EQ(placeOf(1, LVIR_ICON).right, 60);
        EXPECT_EQ(placeOf(1, LVIR_LABEL).left, 60);
        UINT flags = 0;
        EXPECT_EQ(list.HitTest({50, placeOf(1, LVIR_ICON).top + 3}, &flags), 1);
        EXPECT_EQ(flags, LVHT_ONITEMICON);
    });
}

TEST_F(ListView, ImagesThatThereAreNotAreRefused) {
    CImageList images;
    CBitmap none;
    EXPECT_EQ(images.Add(1u), -1);
    EXPECT_FALSE(images.Create(0, 16));
    EXPECT_FALSE(images.Create(4711u, 16, RGB(0, 0, 0)));
    ASSERT_TRUE(images.Create(16, 16));
    EXPECT_EQ(images.Add(none, RGB(0, 0, 0)), -1);
    EXPECT_EQ(images.Add(4711u), -1);
    EXPECT_TRUE(images.DeleteImageList());
    EXPECT_FALSE(images.DeleteImageList());
}

TEST_F(ListView, AQuestionForWorkAreasThatBringsNoPlaceForThemDoesNoHarm) {
    RunWith({}, [&](kv::User&) {
        const CRect area{0, 0, 10, 10};
        dialog.list.SetWorkAreas(1, nullptr);
        EXPECT_EQ(dialog.list.GetNumberOfWorkAreas(), 0u);
        dialog.list.SetWorkAreas(1, &area);
        EXPECT_EQ(dialog.list.SendMessage(LVM_GETNUMBEROFWORKAREAS), 0);
        EXPECT_EQ(dialog.list.SendMessage(LVM_GETWORKAREAS, 1), 0);
        EXPECT_EQ(dialog.list.GetNumberOfWorkAreas(), 1u);
    });
}

TEST_F(ListView, KeepsItsWorkAreas) {
    RunWith({}, [&](kv::User&) {
        const CRect areas[] = {{0, 0, 10, 10}, {10, 0, 20, 10}};
        dialog.list.SetWorkAreas(2, areas);
        EXPECT_EQ(dialog.list.GetNumberOfWorkAreas(), 2u);
        CRect read[2];
        dialog.list.GetWorkAreas(2, read);
        EXPECT_EQ(read[1], areas[1]);
        dialog.list.SetWorkAreas(LV_MAX_WORKAREAS + 1, areas);
        EXPECT_EQ(dialog.list.GetNumberOfWorkAreas(), 2u);
        dialog.list.SetWorkAreas(0, nullptr);
        EXPECT_EQ(dialog.list.GetNumberOfWorkAreas(), 0u);
    });
}

TEST_F(ListView, AHandleOnNoWindowAnswersAsForAnEmptyList) {
    CListCtrl list;
    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_EQ(list.InsertItem(0, "a"), -1);
    EXPECT_EQ(list.InsertColumn(0, "a"), -1);
    EXPECT_EQ(list.GetItemText(0, 0), "");
    EXPECT_EQ(list.GetNextItem(-1, LVNI_ALL), -1);
    EXPECT_EQ(list.GetSelectionMark(), -1);
    EXPECT_EQ(list.GetHotItem(), -1);
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    EXPECT_EQ(list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(list.GetCheck(0), -1);
}

TEST_F(ListView, AListBoxsQueryIsNotAnswered) {
    RunWith({"a", "b"}, [&](kv::User&) { EXPECT_EQ(dialog.list.SendMessage(LB_GETCOUNT), 0); });
}

TEST_F(ListView, ManyRowsAreFilledSelectedAndLostOneByOne) {
    constexpr int kRows = 100000;
    RunWith({}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        list.SetItemCountEx(kRows);
        for (int row = 0; row < kRows; ++row)
            ASSERT_EQ(list.InsertItem(row, std::to_string(row).c_str()), row);
        list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
        dialog.told.clear();
        EXPECT_EQ(list.GetSelectedCount(), static_cast<UINT>(kRows));
        list.SetItemState(kRows / 2, 0, LVIS_SELECTED);
        int left = kRows;
        for (int row = list.GetNextItem(-1, LVNI_SELECTED); row >= 0;
             row = list.GetNextItem(-1, LVNI_SELECTED)) {
            ASSERT_TRUE(list.DeleteItem(row));
            --left;
        }
        EXPECT_EQ(left, 1);
        EXPECT_EQ(list.GetItemText(0, 0), std::to_string(kRows / 2));
    });
}

TEST_F(ListView, ManyRowsComeInAtTheTop) {
    constexpr int kRows = 100000;
    RunWith({}, [&](kv::User&) {
        for (int row = 0; row < kRows; ++row)
            dialog.list.InsertItem(0, std::to_string(row).c_str());
        EXPECT_EQ(dialog.list.GetItemText(0, 0), std::to_string(kRows - 1));
        EXPECT_EQ(dialog.list.GetItemText(kRows - 1, 0), "0");
        while (dialog.list.GetItemCount() > 1)
            dialog.list.DeleteItem(1);
        EXPECT_EQ(dialog.list.GetItemText(0, 0), std::to_string(kRows - 1));
    });
}

TEST_F(ListView, AChangeIsToldAheadOfItAndCanBeForbidden) {
    RunWith({"a", "b"}, [&](kv::User&) {
        Words order;
        dialog.whenTold = [&](const NMLISTVIEW& notice) {
            const std::string selected = Node().Selected(0) ? " selected" : " clear";
            if (notice.hdr.code == LVN_ITEMCHANGING) order.push_back("ahead," + selected);
            if (notice.hdr.code == LVN_ITEMCHANGED) order.push_back("behind," + selected);
            EXPECT_EQ(notice.uOldState, 0u);
            EXPECT_EQ(notice.uNewState, LVIS_SELECTED);
            EXPECT_EQ(notice.uChanged, LVIF_STATE);
        };
        EXPECT_TRUE(dialog.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED));
        EXPECT_EQ(order, (Words{"ahead, clear", "behind, selected"}));
        dialog.whenTold = nullptr;
        dialog.TakeTold();
        dialog.answer = [](const NMLISTVIEW& notice) {
            return notice.hdr.code == LVN_ITEMCHANGING;
        };
        EXPECT_FALSE(dialog.list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
        EXPECT_FALSE(dialog.list.SetItemState(0, 0, LVIS_SELECTED));
        EXPECT_EQ(Selected(), Rows{0});
        EXPECT_EQ(dialog.TakeTold(), Words{});
    });
}

TEST_F(ListView, ATextCanBeForbiddenToo) {
    RunWith({"a"}, [&](kv::User&) {
        UINT changing = 0;
        dialog.answer = [&](const NMLISTVIEW& notice) {
            changing = notice.uChanged;
            return notice.hdr.code == LVN_ITEMCHANGING && notice.iSubItem == 1;
        };
        EXPECT_FALSE(dialog.list.SetItemText(0, 1, "x"));
        EXPECT_EQ(changing, LVIF_TEXT);
        EXPECT_EQ(dialog.list.GetItemText(0, 1), "");
        EXPECT_TRUE(dialog.list.SetItemText(0, 0, "x"));
        EXPECT_EQ(dialog.list.GetItemText(0, 0), "x");
        changing = 0;
        EXPECT_TRUE(dialog.list.SetItemText(0, 0, "x"));
        EXPECT_EQ(changing, 0u);
    });
}

TEST_F(ListView, ARowThatMayNotGiveUpTheOnlySelectionKeepsIt) {
    RunWith({"a", "b"}, [&](kv::User&) {
        dialog.list.ModifyStyle(0, LVS_SINGLESEL);
        constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
        dialog.list.SetItemState(0, kBoth, kBoth);
        dialog.answer = [](const NMLISTVIEW& notice) {
            return notice.hdr.code == LVN_ITEMCHANGING && notice.iItem == 0;
        };
        EXPECT_FALSE(dialog.list.SetItemState(1, kBoth, kBoth));
        EXPECT_EQ(Selected(), Rows{0});
        EXPECT_EQ(Node().FocusedRow(), 0);
        EXPECT_FALSE(dialog.list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED));
        EXPECT_EQ(dialog.list.GetItemState(1, kBoth), 0u);
    });
}

TEST_F(ListView, AHandlerMayTakeTheRowAwayThatIsAboutToChange) {
    RunWith({"a", "b"}, [&](kv::User& user) {
        dialog.whenTold = [&](const NMLISTVIEW& notice) {
            if (notice.hdr.code != LVN_ITEMCHANGING) return;
            dialog.whenTold = nullptr;
            dialog.list.DeleteItem(0);
        };
        EXPECT_FALSE(dialog.list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED));
        EXPECT_EQ(Selected(), Rows{});
        dialog.whenTold = [&](const NMLISTVIEW& notice) {
            if (notice.hdr.code == LVN_ITEMCHANGING) dialog.list.DeleteItem(0);
        };
        EXPECT_FALSE(dialog.list.SetItemText(0, 0, "x"));
        EXPECT_EQ(user.Rows(kList), Words{});
    });
}

TEST_F(ListView, TellsOfRowsThatComeAndGo) {
    RunWith({}, [&](kv::User&) {
        LVITEM item;
        item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
        item.pszText = const_cast<char*>("a");
        item.lParam = 7;
        item.state = item.stateMask = LVIS_SELECTED;
        dialog.whenTold = [&](const NMLISTVIEW& notice) {
            EXPECT_EQ(notice.lParam, notice.hdr.code == LVN_INSERTITEM ? 0 : 7);
        };
        dialog.list.InsertItem(&item);
        EXPECT_EQ(dialog.TakeTold(), (Words{"insert 0", "0:0->2"}));
        dialog.whenTold = nullptr;
        dialog.list.InsertItem(0, "b");
        EXPECT_EQ(dialog.TakeTold(), (Words{"insert 0"}));
        int rowsAtTheEnd = 0;
        dialog.whenTold = [&](const NMLISTVIEW&) { rowsAtTheEnd = dialog.list.GetItemCount(); };
        EXPECT_TRUE(dialog.list.DeleteItem(1));
        EXPECT_EQ(dialog.TakeTold(), (Words{"delete 1 of 7"}));
        EXPECT_EQ(rowsAtTheEnd, 2);
        EXPECT_FALSE(dialog.list.DeleteItem(1));
        EXPECT_EQ(dialog.TakeTold(), Words{});
    });
}

TEST_F(ListView, TheEndOfAllRowsIsToldAndThenThatOfEach) {
    RunWith({"a", "b"}, [&](kv::User&) {
        dialog.list.SetItemData(0, 7);
        dialog.list.SetItemData(1, 8);
        dialog.TakeTold();
        EXPECT_TRUE(dialog.list.DeleteAllItems());
        EXPECT_EQ(dialog.TakeTold(), (Words{"delete all", "delete 1 of 8", "delete 0 of 7"}));
        dialog.list.InsertItem(0, "c");
        dialog.TakeTold();
        dialog.answer = [](const NMLISTVIEW& notice) {
            return notice.hdr.code == LVN_DELETEALLITEMS;
        };
        EXPECT_TRUE(dialog.list.DeleteAllItems());
        EXPECT_EQ(dialog.TakeTold(), (Words{"delete all"}));
        EXPECT_EQ(dialog.list.GetItemCount(), 0);
    });
}

TEST_F(ListView, ItsOwnEndIsTheEndOfItsRows) {
    RunWith({"a"}, [&](kv::User&) {
        dialog.list.SetItemData(0, 7);
        dialog.TakeTold();
        dialog.list.DestroyWindow();
        EXPECT_EQ(dialog.TakeTold(), (Words{"delete all", "delete 0 of 7"}));
    });
}

TEST_F(ListView, TellsOfEachKeyAheadOfWhatItDoes) {
    RunWith({"a", "b"}, [&](kv::User& user) {
        user.Key(kList, "Down");
        EXPECT_EQ(dialog.TakeTold(), (Words{"key " + std::to_string(VK_DOWN), "0:0->3"}));
        user.Key(kList, "F4");
        EXPECT_EQ(dialog.TakeTold(), (Words{"key " + std::to_string(VK_F4)}));
    });
}

TEST_F(ListView, ADoubleClickOrEnterActivatesARow) {
    RunWith({"a", "b"}, [&](kv::User& user) {
        user.DoubleClick(kList, 1);
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:0->3", "click 1", "double 1", "activate 1"}));
        dialog.list.SendMessage(WM_KEYDOWN, VK_RETURN);
        EXPECT_EQ(dialog.TakeTold(),
                  (Words{"key " + std::to_string(VK_RETURN), "return", "activate 1"}));
        dialog.list.SetItemState(-1, 0, LVIS_SELECTED);
        dialog.TakeTold();
        dialog.list.SendMessage(WM_KEYDOWN, VK_RETURN);
        EXPECT_EQ(dialog.TakeTold(), (Words{"key " + std::to_string(VK_RETURN), "return"}));
    });
}

TEST_F(ListView, ADoubleClickOfTheMouseActivatesWhatItHits) {
    RunWith({"a"}, [&](kv::User&) {
        dialog.list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        CRect label;
        dialog.list.GetSubItemRect(0, 0, LVIR_LABEL, label);
        const auto doubleClick = [&](int x, int y) {
            dialog.TakeTold();
            dialog.list.SendMessage(WM_LBUTTONDBLCLK, 1, MAKELPARAM(x, y));
            return dialog.TakeTold().back();
        };
        EXPECT_EQ(doubleClick(label.left + 1, label.top + 1), "activate 0");
        EXPECT_EQ(doubleClick(2, label.top + 1), "double 0");
        EXPECT_EQ(doubleClick(label.left + 1, label.bottom + 20), "double -1");
    });
}

TEST_F(ListView, TheRightButtonSelectsAndThenIsTold) {
    RunWith({"a", "b", "c"}, [&](kv::User&) {
        EXPECT_TRUE(kv::input::RightClickRow(Node(), 1));
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:0->3", "right 1"}));
        kv::input::ClickRow(Node(), 2, Ctrl());
        dialog.TakeTold();
        EXPECT_TRUE(kv::input::RightClickRow(Node(), 1));
        EXPECT_EQ(Selected(), (Rows{1, 2}));
        EXPECT_EQ(Node().FocusedRow(), 1);
        EXPECT_EQ(dialog.TakeTold().back(), "right 1");
        dialog.answer = [](const NMLISTVIEW& notice) { return notice.hdr.code == NM_RCLICK; };
        EXPECT_FALSE(kv::input::RightClickRow(Node(), -1));
        EXPECT_EQ(Selected(), Rows{});
        EXPECT_EQ(test::FocusedId(), kList);
        dialog.list.EnableWindow(FALSE);
        dialog.TakeTold();
        EXPECT_FALSE(kv::input::RightClickRow(Node(), 0));
        EXPECT_EQ(dialog.TakeTold(), Words{});
    });
}

TEST_F(ListView, TheRightButtonsTwoHalvesComeAsMessages) {
    RunWith({"a", "b"}, [&](kv::User&) {
        CRect label;
        dialog.list.GetSubItemRect(1, 0, LVIR_LABEL, label);
        const CPoint at{label.left + 1, label.top + 1};
        dialog.list.SendMessage(WM_RBUTTONDOWN, 2, MAKELPARAM(at.x, at.y));
        EXPECT_EQ(dialog.TakeTold(), (Words{"1:0->3"}));
        CPoint told;
        dialog.whenTold = [&](const NMLISTVIEW& notice) { told = notice.ptAction; };
        dialog.list.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        EXPECT_EQ(dialog.TakeTold(), (Words{"right 1"}));
        EXPECT_EQ(told, at);
        dialog.list.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        EXPECT_EQ(dialog.TakeTold(), Words{});
    });
}

TEST_F(ListView, ClicksTellTheKeysThatAreHeld) {
    RunWith({"a", "b"}, [&](kv::User&) {
        UINT keys = 99;
        dialog.whenTold = [&](const NMITEMACTIVATE& notice) { keys = notice.uKeyFlags; };
        kv::input::ClickRow(Node(), 0, {.shift = true, .ctrl = true, .alt = true});
        EXPECT_EQ(keys, LVKF_SHIFT | LVKF_CONTROL | LVKF_ALT);
        kv::input::RightClickRow(Node(), 0, Ctrl());
        EXPECT_EQ(keys, LVKF_CONTROL);
        kv::input::ClickRow(Node(), 0);
        EXPECT_EQ(keys, 0u);
    });
}

TEST_F(ListView, NextItemLooksAboveToo) {
    RunWith({"a", "b", "c", "d"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_EQ(list.GetNextItem(2, LVNI_ABOVE), 1);
        EXPECT_EQ(list.GetNextItem(2, LVNI_BELOW), 3);
        EXPECT_EQ(list.GetNextItem(0, LVNI_ABOVE), -1);
        EXPECT_EQ(list.GetNextItem(9, LVNI_ABOVE), 3);
        EXPECT_EQ(list.GetNextItem(9, LVNI_BELOW), -1);
        // From no row on, the first row is the first that fits.
        EXPECT_EQ(list.GetNextItem(-1, LVNI_ABOVE), 0);
        list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
        list.SetItemState(3, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        EXPECT_EQ(list.GetNextItem(3, LVNI_ABOVE | LVNI_SELECTED), 0);
        EXPECT_EQ(list.GetNextItem(0, LVNI_ABOVE | LVNI_SELECTED), -1);
        EXPECT_EQ(list.GetNextItem(9, LVNI_ABOVE | LVNI_SELECTED), 3);
        EXPECT_EQ(list.GetNextItem(3, LVNI_ABOVE | LVNI_FOCUSED), -1);
        EXPECT_EQ(list.GetNextItem(9, LVNI_ABOVE | LVNI_FOCUSED), 3);
        EXPECT_EQ(list.GetNextItem(0, LVNI_FOCUSED | LVNI_SELECTED), 3);
        EXPECT_EQ(list.GetNextItem(3, LVNI_FOCUSED), -1);
    });
}

TEST_F(ListView, BesideARowOfAReportLiesNothing) {
    RunWith({"a", "b"}, [&](kv::User&) {
        EXPECT_EQ(dialog.list.GetNextItem(0, LVNI_TORIGHT), -1);
        EXPECT_EQ(dialog.list.GetNextItem(1, LVNI_TOLEFT), -1);
    });
}

TEST_F(ListView, NextItemKnowsRowsThatAreCutOrDroppedOn) {
    RunWith({"a", "b", "c"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_EQ(list.GetNextItem(-1, LVNI_CUT), -1);
        list.SetItemState(0, LVIS_CUT, LVIS_CUT);
        list.SetItemState(2, LVIS_CUT | LVIS_DROPHILITED, LVIS_CUT | LVIS_DROPHILITED);
        EXPECT_EQ(list.GetNextItem(-1, LVNI_CUT), 0);
        EXPECT_EQ(list.GetNextItem(0, LVNI_CUT), 2);
        EXPECT_EQ(list.GetNextItem(2, LVNI_CUT), -1);
        EXPECT_EQ(list.GetNextItem(2, LVNI_CUT | LVNI_ABOVE), 0);
        EXPECT_EQ(list.GetNextItem(-1, LVNI_DROPHILITED | LVNI_CUT), 2);
        EXPECT_EQ(list.GetNextItem(-1, LVNI_SELECTED | LVNI_CUT), -1);
        list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
        EXPECT_EQ(list.GetNextItem(-1, LVNI_SELECTED | LVNI_CUT), 2);
    });
}

TEST_F(ListView, APartOfATextIsItsBeginning) {
    RunWith({"Garden Banks", "Green Canyon", "Banks"}, [&](kv::User&) {
        LVFINDINFO what{LVFI_SUBSTRING, "gre", 0};
        EXPECT_EQ(dialog.list.FindItem(&what), 1);
        what.psz = "bank";
        EXPECT_EQ(dialog.list.FindItem(&what), 2);
        EXPECT_EQ(dialog.list.FindItem(&what, 2), -1);
        what.flags |= LVFI_WRAP;
        EXPECT_EQ(dialog.list.FindItem(&what, 2), 2);
    });
}

TEST_F(ListView, AColumnFindsTheWidthOfItsCells) {
    RunWith({"a", "the widest of all", "b"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_TRUE(list.SetColumnWidth(0, LVSCW_AUTOSIZE));
        const int text = list.GetStringWidth("the widest of all");
        const int width = list.GetColumnWidth(0);
        EXPECT_GT(width, text);
        EXPECT_LT(width, text + 20);
        list.SetItemText(0, 1, "cell");
        EXPECT_TRUE(list.SetColumnWidth(1, LVSCW_AUTOSIZE));
        EXPECT_EQ(list.GetColumnWidth(1) - list.GetStringWidth("cell"), width - text);
        // Check boxes take room of their own.
        list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        list.SetColumnWidth(0, LVSCW_AUTOSIZE);
        CRect label;
        list.GetSubItemRect(1, 0, LVIR_LABEL, label);
        EXPECT_EQ(label.Width(), width);
        EXPECT_FALSE(list.SetColumnWidth(0, -3));
        EXPECT_FALSE(list.SetColumnWidth(2, LVSCW_AUTOSIZE));
        EXPECT_TRUE(list.SendMessage(LVM_SETCOLUMNWIDTH, 1, MAKELPARAM(LVSCW_AUTOSIZE, 0)));
        EXPECT_EQ(list.GetColumnWidth(1) - list.GetStringWidth("cell"), width - text);
    });
}

TEST_F(ListView, AColumnFindsTheWidthOfItsHeadingAndTheLastOneTheRest) {
    RunWith({"a row that is much wider than its heading"}, [&](kv::User&) {
        CListCtrl& list = dialog.list;
        EXPECT_TRUE(list.SetColumnWidth(0, LVSCW_AUTOSIZE_USEHEADER));
        const int room = list.GetColumnWidth(0) - list.GetStringWidth("Area");
        EXPECT_GT(room, 0);
        EXPECT_LT(room, 20);
        EXPECT_TRUE(list.SetColumnWidth(1, LVSCW_AUTOSIZE_USEHEADER));
        CRect client;
        list.GetClientRect(&client);
        EXPECT_EQ(list.GetColumnWidth(0) + list.GetColumnWidth(1), client.Width());
        list.SetColumnWidth(0, client.Width());
        EXPECT_TRUE(list.SetColumnWidth(1, LVSCW_AUTOSIZE_USEHEADER));
        EXPECT_EQ(list.GetColumnWidth(1), list.GetStringWidth("Block") + room);
    });
}

}  // namespace
