#include "window/controls/list_box.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/recording_window.h"
#include "window/acting/headless_desktop.h"
#include "window/controls/list_box_node.h"
#include "window/dialog_keys.h"
#include "window/window_system.h"

using kv::ListBoxNode;
using kv::Modifiers;
using kv::ModifierScope;
using kv::test::Notice;
using kv::test::Notices;
using kv::test::RecordingWindow;

namespace {

constexpr int kId = 1193;
constexpr Modifiers kShift{true, false, false};
constexpr Modifiers kCtrl{false, true, false};
constexpr int kManyRows = 100'000;

using Rows = std::vector<int>;
using Codes = std::vector<int>;

struct ListTest : testing::Test {
    explicit ListTest(DWORD listStyle) : style(listStyle) {}

    void SetUp() override { Make(0); }
    void Make(DWORD add) {
        if (list.m_hWnd) list.DestroyWindow();
        ASSERT_TRUE(list.Create(kv::test::kControlStyle | LBS_NOTIFY | style | add,
                                kv::test::kControlRect, &window, kId));
    }
    void Add(std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            list.AddString(text);
    }
    void AddMany() {
        for (int i = 0; i < kManyRows; ++i)
            list.AddString(std::to_string(i).c_str());
    }
    ListBoxNode& Node() const { return *static_cast<ListBoxNode*>(list.m_hWnd); }
    void Key(int key, Modifiers keys = {}) {
        const ModifierScope scope(keys);
        list.SendMessage(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    }
    void Type(std::string_view text) {
        for (const char ch : text) {
            list.SendMessage(WM_CHAR, static_cast<WPARAM>(static_cast<unsigned char>(ch)), 1);
        }
    }
    Rows Selected() const { return Node().SelectedRows(); }
    std::string Text(int row) const {
        CString text;
        list.GetText(row, text);
        return text.str();
    }

    DWORD style;
    RecordingWindow window;
    CListBox list;
};

struct List : ListTest {
    List() : ListTest(0) {}
};
struct Extended : ListTest {
    Extended() : ListTest(LBS_EXTENDEDSEL) {}
};

/// A view that writes down which rows came and went.
struct RowView : kv::View {
    explicit RowView(std::vector<std::string>& log) : log_(log) {}
    void Changed(kv::Change change) override {
        if (change == kv::Change::kRows) log_.push_back("all");
        if (change == kv::Change::kSelection) log_.push_back("selection");
    }
    void RowsInserted(int first, int count) override {
        log_.push_back("+" + std::to_string(first) + "," + std::to_string(count));
    }
    void RowsRemoved(int first, int count) override {
        log_.push_back("-" + std::to_string(first) + "," + std::to_string(count));
    }
    std::vector<std::string>& log_;
};

}  // namespace

TEST_F(List, KeepsRowsAndTheirData) {
    EXPECT_EQ(list.AddString("b"), 0);
    EXPECT_EQ(list.AddString("a"), 1);
    EXPECT_EQ(list.InsertString(1, "c"), 1);
    EXPECT_EQ(list.InsertString(-1, "d"), 3);
    EXPECT_EQ(list.InsertString(9, "e"), LB_ERR);
    EXPECT_EQ(list.GetCount(), 4);
    EXPECT_EQ(Text(1), "c");
    EXPECT_EQ(list.GetTextLen(1), 1);
    list.SetItemData(2, 77);
    EXPECT_EQ(list.DeleteString(0), 3);
    EXPECT_EQ(list.GetItemData(1), 77);
    EXPECT_EQ(list.DeleteString(3), LB_ERR);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(List, DataOfAllRowsIsSetByTheRowMinusOne) {
    EXPECT_EQ(list.SetItemData(-1, 5), 0);
    Add({"a", "b", "c"});
    list.SetItemData(1, 7);
    EXPECT_EQ(list.SetItemData(-1, 9), 0);
    EXPECT_EQ(list.GetItemData(0), 9);
    EXPECT_EQ(list.GetItemData(1), 9);
    EXPECT_EQ(list.GetItemData(2), 9);
    EXPECT_EQ(list.SetItemData(-2, 5), LB_ERR);
    EXPECT_EQ(list.GetItemData(2), 9);
}

TEST_F(List, AnsweringForARowThatThereIsNot) {
    Add({"a"});
    EXPECT_EQ(list.GetTextLen(1), LB_ERR);
    EXPECT_EQ(Text(1), "");
    EXPECT_EQ(list.GetItemData(-1), LB_ERR);
    EXPECT_EQ(list.SetItemData(1, 5), LB_ERR);
    EXPECT_EQ(list.SetCurSel(1), LB_ERR);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_EQ(list.GetSel(3), LB_ERR);
}

TEST_F(List, SortedKeepsCaseInsensitiveOrderAndAnAddedRowsIndexIsItsPlace) {
    Make(LBS_SORT);
    EXPECT_EQ(list.AddString("green canyon"), 0);
    EXPECT_EQ(list.AddString("Garden Banks"), 0);
    EXPECT_EQ(list.AddString("GULF"), 2);
    EXPECT_EQ(list.AddString("gap"), 0);
    EXPECT_EQ(Text(3), "GULF");
}

TEST_F(List, FindsAndSelects) {
    Add({"GULF", "GRAND", "Gulfport"});
    EXPECT_EQ(list.FindString(-1, "gulf"), 0);
    EXPECT_EQ(list.FindString(0, "gulf"), 2);
    EXPECT_EQ(list.FindString(2, "gulf"), 0);
    EXPECT_EQ(list.FindString(-1, ""), LB_ERR);
    EXPECT_EQ(list.FindStringExact(-1, "gulfport"), 2);
    EXPECT_EQ(list.FindStringExact(-1, "gulfp"), LB_ERR);
    EXPECT_EQ(list.SelectString(-1, "gra"), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(list.SelectString(-1, "x"), LB_ERR);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(List, HasNoCurrentRowUntilOneIsSelected) {
    Add({"a", "b"});
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_EQ(list.SetCurSel(1), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_GT(list.GetSel(1), 0);
    EXPECT_EQ(list.GetSel(0), 0);
    EXPECT_EQ(list.SetCurSel(-1), LB_ERR);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST_F(List, DeletingTheCurrentRowLeavesNone) {
    Add({"a", "b", "c"});
    list.SetCurSel(1);
    list.DeleteString(1);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(List, InsertingOrDeletingAheadOfTheCurrentRowMovesItAlong) {
    Add({"a", "b", "c"});
    list.SetCurSel(1);
    list.InsertString(0, "z");
    EXPECT_EQ(list.GetCurSel(), 2);
    list.InsertString(3, "y");
    EXPECT_EQ(list.GetCurSel(), 2);
    list.DeleteString(0);
    EXPECT_EQ(list.GetCurSel(), 1);
    list.DeleteString(2);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(Text(list.GetCurSel()), "b");
}

TEST_F(List, SortingARowInMovesTheCurrentRowAlong) {
    Make(LBS_SORT);
    Add({"b", "d"});
    list.SetCurSel(0);
    list.AddString("a");
    EXPECT_EQ(Text(list.GetCurSel()), "b");
}

TEST_F(List, MessagesForManyRowsAreNotForIt) {
    Add({"a"});
    int row = 7;
    EXPECT_EQ(list.SetSel(0), LB_ERR);
    EXPECT_EQ(list.GetSelCount(), LB_ERR);
    EXPECT_EQ(list.GetSelItems(1, &row), LB_ERR);
    EXPECT_EQ(list.SelItemRange(TRUE, 0, 0), LB_ERR);
    EXPECT_EQ(row, 7);
}

TEST_F(List, AClickSelectsAndTellsOnce) {
    Add({"a", "b"});
    Node().UserSelect(1, false, false);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(window.Take(), (Notices{{kId, LBN_SELCHANGE}}));
    Node().UserSelect(5, false, false);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(List, TheSelectionStandsWhenTheParentIsTold) {
    Add({"a", "b"});
    int seen = -2;
    window.onNotice = [&](const Notice&) { seen = list.GetCurSel(); };
    Node().UserSelect(1, false, false);
    EXPECT_EQ(seen, 1);
}

TEST_F(List, WithoutTheNotifyStyleItTellsNothing) {
    Make(0);
    list.ModifyStyle(LBS_NOTIFY, 0);
    Add({"a", "b"});
    Node().UserDoubleClick(1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(List, ADoubleClickSelectsAndThenTellsIt) {
    Add({"a", "b"});
    Node().UserDoubleClick(1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(window.TakeCodes(), (Codes{LBN_SELCHANGE, LBN_DBLCLK}));
}

TEST_F(List, ArrowsMoveTheSelectionAndStopAtTheEnds) {
    Add({"a", "b", "c"});
    Key(VK_DOWN);
    EXPECT_EQ(list.GetCurSel(), 0);
    Key(VK_DOWN);
    EXPECT_EQ(list.GetCurSel(), 1);
    Key(VK_END);
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(window.Take().size(), 3u);
    Key(VK_DOWN);
    EXPECT_TRUE(window.Take().empty());
    Key(VK_HOME);
    Key(VK_NEXT);
    EXPECT_EQ(list.GetCurSel(), 2);
    Key(VK_PRIOR);
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST_F(List, TellsItsFocus) {
    list.SetFocus();
    kv::WindowSystem::Get().SetFocus(nullptr);
    EXPECT_EQ(window.TakeCodes(), (Codes{LBN_SETFOCUS, LBN_KILLFOCUS}));
}

namespace {

struct TypedSearch : List {
    TypedSearch() {
        kv::WindowSystem::Get().SetDesktop(&desktop);
        desktop.SetNow(now);
    }
    ~TypedSearch() override { kv::WindowSystem::Get().SetDesktop(nullptr); }
    void Wait(int milliseconds) {
        now += std::chrono::milliseconds(milliseconds);
        desktop.SetNow(now);
    }
    kv::HeadlessDesktop desktop;
    std::chrono::system_clock::time_point now{std::chrono::hours(1)};
};

}  // namespace

TEST_F(TypedSearch, ALetterGoesToTheNextRowThatBeginsWithIt) {
    Add({"Gulf", "Apache", "grand", "Garden"});
    Type("g");
    EXPECT_EQ(list.GetCurSel(), 0);
    Wait(2000);
    Type("G");
    EXPECT_EQ(list.GetCurSel(), 2);
    Wait(2000);
    Type("g");
    Wait(2000);
    Type("g");
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(window.Take().size(), 4u);
    Wait(2000);
    Type("x");
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(TypedSearch, LettersTypedQuicklyMakeUpOneText) {
    Add({"Gulf", "Apache", "grand", "Garden Banks", "garden isle"});
    Type("gard");
    EXPECT_EQ(list.GetCurSel(), 3);
    Type("en i");
    EXPECT_EQ(list.GetCurSel(), 4);
    Wait(2000);
    Type("a");
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(TypedSearch, OneLetterTypedAgainAndAgainGoesRound) {
    Add({"Gulf", "Apache", "grand", "Garden"});
    Type("gg");
    EXPECT_EQ(list.GetCurSel(), 2);
    Type("g");
    EXPECT_EQ(list.GetCurSel(), 3);
    Type("g");
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST_F(Extended, TheCaretRowIsTheFirstInAnyListWithRows) {
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    Add({"b"});
    EXPECT_EQ(list.GetCurSel(), 0);
    list.InsertString(0, "a");
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(list.GetSelCount(), 0);
    list.ResetContent();
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST_F(Extended, ASelectingSetSelMovesTheCaret) {
    Add({"a", "b", "c"});
    list.SetSel(2);
    EXPECT_EQ(list.GetCurSel(), 2);
    list.SetSel(1, FALSE);
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(Selected(), Rows{2});
    EXPECT_EQ(list.SetSel(3), LB_ERR);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Extended, SetSelOfMinusOneAppliesToEveryRow) {
    Add({"a", "b", "c"});
    list.SetSel(1);
    list.SetSel(-1);
    EXPECT_EQ(Selected(), (Rows{0, 1, 2}));
    EXPECT_EQ(list.GetCurSel(), 1);
    list.SetSel(-1, FALSE);
    EXPECT_TRUE(Selected().empty());
}

TEST_F(Extended, SelectingWhatASearchDidNotFindSelectsEveryRow) {
    Add({"a", "b"});
    list.SetSel(list.FindString(-1, "x"));
    EXPECT_EQ(list.GetSelCount(), 2);
}

TEST_F(Extended, AnswersTheSelectedRowsInOrder) {
    Add({"a", "b", "c", "d"});
    list.SetSel(3);
    list.SetSel(1);
    int rows[4] = {-1, -1, -1, -1};
    EXPECT_EQ(list.GetSelCount(), 2);
    EXPECT_EQ(list.GetSelItems(4, rows), 2);
    EXPECT_EQ(rows[0], 1);
    EXPECT_EQ(rows[1], 3);
    EXPECT_EQ(rows[2], -1);
    EXPECT_EQ(list.GetSelItems(1, rows), 1);
    EXPECT_GT(list.GetSel(3), 0);
    EXPECT_EQ(list.GetSel(0), 0);
}

TEST_F(Extended, SelectsRanges) {
    Add({"a", "b", "c", "d"});
    list.SelItemRange(TRUE, 1, 9);
    EXPECT_EQ(Selected(), (Rows{1, 2, 3}));
    list.SelItemRange(FALSE, 2, 3);
    EXPECT_EQ(Selected(), Rows{1});
    list.SelItemRange(FALSE, 1, 1);
    EXPECT_TRUE(Selected().empty());
}

TEST_F(Extended, SetCurSelIsNotForIt) {
    Add({"a", "b"});
    EXPECT_EQ(list.SetCurSel(1), LB_ERR);
    EXPECT_TRUE(Selected().empty());
}

TEST_F(Extended, AClickSelectsThatRowAlone) {
    Add({"a", "b", "c"});
    list.SetSel(-1);
    Node().UserSelect(1, false, false);
    EXPECT_EQ(Selected(), Rows{1});
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(window.Take(), (Notices{{kId, LBN_SELCHANGE}}));
}

TEST_F(Extended, CtrlAddsAndTakesAway) {
    Add({"a", "b", "c"});
    Node().UserSelect(0, false, false);
    Node().UserSelect(2, false, true);
    EXPECT_EQ(Selected(), (Rows{0, 2}));
    Node().UserSelect(0, false, true);
    EXPECT_EQ(Selected(), Rows{2});
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(window.Take().size(), 3u);
}

TEST_F(Extended, ShiftSelectsFromTheAnchor) {
    Add({"a", "b", "c", "d", "e"});
    Node().UserSelect(2, false, false);
    Node().UserSelect(4, true, false);
    EXPECT_EQ(Selected(), (Rows{2, 3, 4}));
    Node().UserSelect(1, true, false);
    EXPECT_EQ(Selected(), (Rows{1, 2}));
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(Extended, ShiftWithCtrlKeepsTheOthers) {
    Add({"a", "b", "c", "d", "e"});
    Node().UserSelect(0, false, false);
    Node().UserSelect(2, false, true);
    Node().UserSelect(3, true, true);
    EXPECT_EQ(Selected(), (Rows{0, 2, 3}));
}

TEST_F(Extended, PickingRowsClicksTheFirstAndAddsTheOthersWithOneNoticeEach) {
    Add({"a", "b", "c", "d"});
    list.SetSel(3);
    Node().UserSelectRows({0, 2});
    EXPECT_EQ(Selected(), (Rows{0, 2}));
    EXPECT_EQ(window.TakeCodes(), (Codes{LBN_SELCHANGE, LBN_SELCHANGE}));
    Node().UserSelectRows({});
    EXPECT_TRUE(Selected().empty());
    window.Take();
    Node().UserSelectRows({});
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Extended, ArrowsSelectAloneExtendWithShiftAndOnlyMoveWithCtrl) {
    Add({"a", "b", "c", "d"});
    Key(VK_DOWN);
    EXPECT_EQ(Selected(), Rows{1});
    Key(VK_DOWN, kShift);
    EXPECT_EQ(Selected(), (Rows{1, 2}));
    EXPECT_EQ(window.Take().size(), 2u);
    Key(VK_DOWN, kCtrl);
    EXPECT_EQ(Selected(), (Rows{1, 2}));
    EXPECT_EQ(list.GetCurSel(), 3);
    window.Take();
    Key(VK_SPACE, kCtrl);
    EXPECT_EQ(Selected(), (Rows{1, 2, 3}));
    Key(VK_SPACE);
    EXPECT_EQ(Selected(), Rows{3});
    EXPECT_EQ(window.Take().size(), 2u);
}

TEST_F(Extended, AnArrowIsToldAlsoWhereItChangesNothing) {
    Add({"a", "b"});
    list.SetSel(1);
    Key(VK_DOWN);
    EXPECT_EQ(window.TakeCodes(), Codes{LBN_SELCHANGE});
    EXPECT_EQ(Selected(), Rows{1});
    Key(VK_UP, kCtrl);
    EXPECT_EQ(window.TakeCodes(), Codes{LBN_SELCHANGE});
    EXPECT_EQ(Selected(), Rows{1});
    EXPECT_EQ(list.GetCaretIndex(), 0);
}

TEST_F(List, AnArrowThatChangesNothingIsNotTold) {
    Add({"a", "b"});
    list.SetCurSel(1);
    Key(VK_DOWN);
    EXPECT_TRUE(window.Take().empty());
}

TEST_F(Extended, ATypedLetterSelectsTheRowAlone) {
    Add({"a", "b", "c"});
    list.SetSel(-1);
    Type("c");
    EXPECT_EQ(Selected(), Rows{2});
}

TEST_F(Extended, SelectionAndCaretGoAlongWithTheirRows) {
    Add({"a", "b", "c"});
    list.SetSel(0);
    list.SetSel(2);
    list.InsertString(1, "x");
    EXPECT_EQ(Selected(), (Rows{0, 3}));
    EXPECT_EQ(list.GetCurSel(), 3);
    list.DeleteString(0);
    EXPECT_EQ(Selected(), Rows{2});
    EXPECT_EQ(list.GetCurSel(), 2);
    list.DeleteString(2);
    EXPECT_TRUE(Selected().empty());
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(Extended, TheCaretCanBeSet) {
    Add({"a", "b"});
    EXPECT_EQ(list.SetCaretIndex(1), 0);
    EXPECT_EQ(list.GetCaretIndex(), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_TRUE(Selected().empty());
    EXPECT_EQ(list.SetCaretIndex(2), LB_ERR);
}

TEST_F(Extended, ADoubleClickTellsOneChange) {
    Add({"a", "b"});
    Node().UserDoubleClick(1);
    EXPECT_EQ(window.TakeCodes(), (Codes{LBN_SELCHANGE, LBN_DBLCLK}));
    EXPECT_EQ(Selected(), Rows{1});
}

TEST_F(Extended, AHandlerMayDestroyTheListAmidAPick) {
    Add({"a", "b", "c"});
    window.onNotice = [&](const Notice&) { list.DestroyWindow(); };
    Node().UserSelectRows({0, 1, 2});
    EXPECT_EQ(window.Take().size(), 1u);
    EXPECT_EQ(list.GetCount(), 0);
}

TEST(MultipleSelection, AClickTogglesAndArrowsOnlyMoveTheCaret) {
    RecordingWindow window;
    CListBox list;
    ASSERT_TRUE(list.Create(kv::test::kControlStyle | LBS_NOTIFY | LBS_MULTIPLESEL,
                            kv::test::kControlRect, &window, kId));
    for (const char* text : {"a", "b", "c"})
        list.AddString(text);
    auto& node = *static_cast<ListBoxNode*>(list.m_hWnd);
    node.UserSelect(0, false, false);
    node.UserSelect(2, false, false);
    EXPECT_EQ(node.SelectedRows(), (Rows{0, 2}));
    node.UserSelect(0, false, false);
    EXPECT_EQ(node.SelectedRows(), Rows{2});
    window.Take();
    list.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(node.SelectedRows(), Rows{2});
    EXPECT_EQ(list.GetCaretIndex(), 1);
    EXPECT_EQ(window.TakeCodes(), Codes{LBN_SELCHANGE});
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(node.SelectedRows(), (Rows{1, 2}));
}

TEST_F(List, TheViewIsToldOfEachRowAndOfNoneThatStayed) {
    std::vector<std::string> log;
    list.m_hWnd->SetView(std::make_unique<RowView>(log));
    list.ResetContent();
    Add({"b", "a"});
    list.InsertString(0, "c");
    list.SetCurSel(1);
    list.SetCurSel(1);
    list.DeleteString(2);
    list.ResetContent();
    EXPECT_EQ(log, (std::vector<std::string>{"+0,1", "+1,1", "+0,1", "selection", "-2,1", "all"}));
}

TEST_F(Extended, WritingWhatIsThereAlreadyChangesNothing) {
    Add({"a", "b"});
    list.SetSel(1);
    const auto before = kv::WindowSystem::Get().Changes();
    list.SetSel(1);
    list.SetSel(0, FALSE);
    list.SetCaretIndex(1);
    EXPECT_EQ(kv::WindowSystem::Get().Changes(), before);
}

TEST_F(Extended, ManyRowsAreSelectedAndDeletedOneByOne) {
    AddMany();
    list.SetSel(-1);
    std::vector<int> rows(kManyRows);
    ASSERT_EQ(list.GetSelItems(kManyRows, rows.data()), kManyRows);
    EXPECT_EQ(rows.front(), 0);
    EXPECT_EQ(rows.back(), kManyRows - 1);
    for (int i = 0; i < kManyRows; ++i) {
        const std::string text = std::to_string(i);
        const int row = list.FindString(-1, text.c_str());
        ASSERT_EQ(row, 0);
        ASSERT_EQ(list.DeleteString(static_cast<UINT>(row)), kManyRows - 1 - i);
        ASSERT_EQ(list.GetSelCount(), kManyRows - 1 - i);
    }
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
}

TEST_F(Extended, EachOfManyRowsIsSelectedByItself) {
    AddMany();
    for (int row = 0; row < kManyRows; row += 2)
        list.SetSel(row);
    EXPECT_EQ(list.GetSelCount(), kManyRows / 2);
    Node().UserSelect(5, false, false);
    EXPECT_EQ(Selected(), Rows{5});
}

TEST_F(List, ManyRowsAreSortedAsTheyCome) {
    Make(LBS_SORT);
    for (int i = 0; i < kManyRows; ++i) {
        list.AddString(std::to_string((i * 7919LL) % kManyRows + kManyRows).c_str());
    }
    for (int row = 0; row < kManyRows; row += 1234) {
        ASSERT_EQ(Text(row), std::to_string(kManyRows + row));
    }
    list.SetCurSel(kManyRows - 1);
    while (list.GetCount() > 1)
        list.DeleteString(0);
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(Text(0), std::to_string(2 * kManyRows - 1));
}

TEST(AbsentList, AnswersAsAnEmptyOne) {
    CListBox list;
    int row = 7;
    CString text("before");
    EXPECT_EQ(list.AddString("a"), LB_ERR);
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetCurSel(), LB_ERR);
    EXPECT_EQ(list.SetCurSel(0), LB_ERR);
    EXPECT_EQ(list.FindString(-1, "a"), LB_ERR);
    EXPECT_EQ(list.FindStringExact(-1, "a"), LB_ERR);
    EXPECT_EQ(list.GetSelItems(1, &row), LB_ERR);
    EXPECT_EQ(list.DeleteString(0), LB_ERR);
    list.GetText(0, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(row, 7);
}
