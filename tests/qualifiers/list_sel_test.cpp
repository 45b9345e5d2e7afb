#include "qualifiers/list_sel.h"

#include <gmock/gmock.h>

#include "qualifiers/qualifier_fixture.h"
#include "window/controls/list_box.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using namespace kv::list_sel;

class ListSel : public QualifierTest {
protected:
    /// The dialog over one column, with the caller's combo box.
    int Open(const std::function<void(kv::User&)>& act, const std::string& table = "lease",
             const std::string& column = "lessee") {
        CKvGuiListSel dialog(column, table, &combo, values, kTemplate, nullptr);
        return Run(dialog, act);
    }
    int Accept() {
        return Open([](kv::User& user) { user.Click(IDOK); });
    }
    std::string Shown() const { return combo.WindowText(); }
};

// What the dialog opens with, and what the caller gets.

TEST_F(ListSel, ComesUpInSearchModeWithContainAndEmptyLists) {
    Open([](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Multiple Selections Dialog");
        EXPECT_TRUE(user.Checked(kSearchMode));
        EXPECT_FALSE(user.Checked(kInsertMode));
        EXPECT_TRUE(user.Checked(kContain));
        EXPECT_FALSE(user.Checked(kStartWith));
        EXPECT_FALSE(user.Checked(kEndWith));
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
        EXPECT_EQ(user.Text(kSearch), "Search...");
        EXPECT_EQ(user.Text(kFindLabel), "Find");
        EXPECT_TRUE(user.Enabled(kSearch));
        for (const int id : {kAdd, kRemove, kClear})
            EXPECT_FALSE(user.Enabled(id)) << id;
        EXPECT_FALSE(user.Checked(kListFileCheck));
        EXPECT_EQ(test::FocusedId(), kFind);
    });
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(ListSel, OkWithoutRowsEmptiesTheCallersControl) {
    Given("");
    EXPECT_EQ(Accept(), IDOK);
    EXPECT_EQ(Shown(), "");
    EXPECT_THAT(values, IsEmpty());
}

TEST_F(ListSel, AnEmptyControlEmptiesTheVectorAlsoWhenTheDialogIsCancelled) {
    Given("  ", {"A", "B"});
    EXPECT_EQ(Open([](kv::User& user) {
                  EXPECT_THAT(user.Rows(kSelected), IsEmpty());
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_THAT(values, IsEmpty());
    EXPECT_EQ(Shown(), "  ");
}

TEST_F(ListSel, AValueOnShowWinsOverAnOldVector) {
    Given("  Amber Shelf ", {"A", "B"});
    Open([](kv::User& user) {
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("Amber Shelf"));
        EXPECT_TRUE(user.Enabled(kClear));
        EXPECT_TRUE(user.Enabled(kRemove));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("Amber Shelf"));
    EXPECT_EQ(Shown(), "Amber Shelf");
}

TEST_F(ListSel, CancelDoesNotBringTheOldVectorBack) {
    Given("AMBER", {"A", "B"});
    Open([](kv::User& user) { user.Click(IDCANCEL); });
    EXPECT_THAT(values, IsEmpty());
    EXPECT_EQ(Shown(), "AMBER");
}

TEST_F(ListSel, TheListMarkerKeepsTheVectorInItsOrder) {
    Given(" <LIST> ", {"b", "A", "b"});
    Open([](kv::User& user) {
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("b", "A", "b"));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("b", "A", "b"));
    EXPECT_EQ(Shown(), "<LIST>");
}

TEST_F(ListSel, CancelLeavesVectorAndControlWhereTheMarkerStood) {
    Given("<LIST>", {"A", "B"});
    EXPECT_EQ(Open([](kv::User& user) {
                  user.Click(kClear);
                  EXPECT_THAT(user.Rows(kSelected), IsEmpty());
                  user.Key(0, "Escape");
              }),
              IDCANCEL);
    EXPECT_THAT(values, ElementsAre("A", "B"));
    EXPECT_EQ(Shown(), "<LIST>");
}

TEST_F(ListSel, TheMarkerWithOneValueBecomesThatValue) {
    Given("<LIST>", {"A"});
    Accept();
    EXPECT_EQ(Shown(), "A");
}

TEST_F(ListSel, WorksWithAnEditOfTheCallers) {
    Given("AMBER", {"old"});
    CKvGuiListSel dialog("lessee", "lease", &edit, values, nullptr);
    Run(dialog, [](kv::User& user) {
        Insert(user, "shelf");
        user.Click(IDOK);
    });
    EXPECT_EQ(edit.WindowText(), "<LIST>");
    EXPECT_EQ(Shown(), "AMBER");
    EXPECT_THAT(values, ElementsAre("AMBER", "SHELF"));
}

TEST_F(ListSel, IsToldItsControlLater) {
    Given("ONE");
    CKvGuiListSel dialog;
    dialog.MakeComboType(&combo, values);
    Run(dialog, [](kv::User& user) {
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("ONE"));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("ONE"));

    edit.SetWindowText("TWO");
    CKvGuiListSel other(kLesseeTemplate, nullptr);
    other.MakeComboType(&combo, values);
    other.MakeEditType(&edit, values);
    Run(other, [](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Lessee Match");
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("TWO"));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("TWO"));
    EXPECT_EQ(Shown(), "ONE");
}

TEST_F(ListSel, RunsWithoutAnyCaller) {
    CKvGuiListSel dialog;
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      Insert(user, "a");
                      user.Click(IDOK);
                  }),
              IDOK);
}

// The list file flag.

TEST_F(ListSel, OneRowWithAListFileShowsTheMarker) {
    Given("AMBER");
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kTemplate, nullptr);
    dialog.SetListFileName("C:\\lists\\a.txt");
    dialog.SetListFileFlag(true);
    Run(dialog, [](kv::User& user) {
        EXPECT_TRUE(user.Checked(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_EQ(Shown(), "<LIST>");
    EXPECT_THAT(values, ElementsAre("AMBER"));
    EXPECT_TRUE(dialog.GetListFileFlag());
    EXPECT_EQ(dialog.GetListFileName(), "C:\\lists\\a.txt");
}

TEST_F(ListSel, AListFileWithoutRowsShowsTheMarkerToo) {
    Given("<LIST>");
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kTemplate, nullptr);
    dialog.SetListFileName("C:\\lists\\a.txt");
    dialog.SetListFileFlag(true);
    Run(dialog, [this](kv::User& user) {
        combo.SetWindowText("");
        user.Click(IDOK);
    });
    EXPECT_EQ(Shown(), "<LIST>");
    EXPECT_THAT(values, IsEmpty());
    EXPECT_TRUE(dialog.GetListFileFlag());
}

TEST_F(ListSel, AnEmptyControlTakesTheListFileOutOfUse) {
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kTemplate, nullptr);
    dialog.SetListFileName("C:\\lists\\a.txt");
    dialog.SetListFileFlag(true);
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Checked(kListFileCheck));
        EXPECT_TRUE(user.Enabled(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetListFileFlag());
    EXPECT_EQ(dialog.GetListFileName(), "C:\\lists\\a.txt");
    EXPECT_EQ(Shown(), "");
}

TEST_F(ListSel, AFlagWithoutAFileNameIsNotShownAndGoesAtOk) {
    Given("<LIST>", {"A", "B"});
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kTemplate, nullptr);
    dialog.SetListFileFlag(true);
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Checked(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetListFileFlag());
}

TEST_F(ListSel, TheFileControlsCanBeTakenOutOfUse) {
    Given("<LIST>", {"A"});
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kTemplate, nullptr);
    dialog.SetListFileName("C:\\lists\\a.txt");
    dialog.SetListFileFlag(true);
    EXPECT_TRUE(dialog.GetEnableFileButtonFlag());
    dialog.SetEnableFileButtonFlag(false);
    EXPECT_FALSE(dialog.GetEnableFileButtonFlag());
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.Checked(kListFileCheck));
        EXPECT_FALSE(user.Enabled(kListFileCheck));
        EXPECT_FALSE(user.Enabled(kListFileButton));
        user.Click(IDOK);
    });
    EXPECT_FALSE(dialog.GetListFileFlag());
    EXPECT_EQ(Shown(), "A");
}

TEST_F(ListSel, ATemplateWithoutFileControlsKeepsTheFlag) {
    Given("<LIST>", {"A"});
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kLesseeTemplate, nullptr);
    dialog.SetListFileName("C:\\lists\\a.txt");
    dialog.SetListFileFlag(true);
    Run(dialog, [](kv::User& user) {
        EXPECT_FALSE(user.HasControl(kListFileCheck));
        user.Click(IDOK);
    });
    EXPECT_TRUE(dialog.GetListFileFlag());
    EXPECT_EQ(Shown(), "<LIST>");
}

// Search.

TEST_F(ListSel, SearchesInUpperCaseAndSelectsTheFirstRowThatBegins) {
    Open([](kv::User& user) {
        Search(user, "shelf");
        EXPECT_THAT(user.Rows(kAvailable),
                    ElementsAre("AMBER SHELF", "BLUE SHELF", "SHELF", "SHELF OIL"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(2));
        EXPECT_TRUE(user.Enabled(kAdd));
        EXPECT_EQ(user.Text(kFind), "shelf");
    });
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like '%SHELF%'"));
}

TEST_F(ListSel, EnterInTheFindEditSearches) {
    Open([](kv::User& user) {
        user.Type(kFind, "blue");
        user.Key(kFind, "Enter");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("BLUE SHELF"));
    });
}

TEST_F(ListSel, ATextThatNoRowBeginsWithSelectsEveryRow) {
    Open([](kv::User& user) {
        Search(user, "HELF");
        EXPECT_THAT(user.Rows(kAvailable),
                    ElementsAre("AMBER SHELF", "BLUE SHELF", "SHELF", "SHELF OIL"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0, 1, 2, 3));
    });
}

TEST_F(ListSel, AnEmptyTextListsTheWholeColumnAndSelectsIt) {
    Open([](kv::User& user) {
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable),
                    ElementsAre("AMBER", "AMBER SHELF", "BLUE SHELF", "SHELF", "SHELF OIL"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0, 1, 2, 3, 4));
    });
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like '%%'"));
}

TEST_F(ListSel, ASearchThatFindsNothingSaysSoAndEmptiesAvailable) {
    desktop.ExpectMessage("No Matches found!");
    Open([](kv::User& user) {
        user.Click(kSearch);
        Search(user, "NOBODY");
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_FALSE(user.Enabled(kAdd));
    });
}

TEST_F(ListSel, ASearchWhoseEveryRowIsSelectedAlreadyIsSilent) {
    Given("<LIST>", {"BLUE SHELF"});
    Open([](kv::User& user) {
        Search(user, "BLUE");
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
    });
    EXPECT_THAT(desktop.Messages(), IsEmpty());
    EXPECT_EQ(statements.size(), 1u);
}

TEST_F(ListSel, ARowThatASelectedRowMerelyBeginsWithIsHeldBack) {
    Given("<LIST>", {"Shelf Oil and Gas", "AMBER"});
    Open([](kv::User& user) {
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER SHELF", "BLUE SHELF"));
    });
}

TEST_F(ListSel, AFailureOfTheDatabaseIsShownAndLeavesAvailableAsItWas) {
    desktop.ExpectMessage("");
    CKvGuiListSel dialog("lessee", "lease", &combo, values, kTemplate, nullptr);
    Run(dialog, [](kv::User& user) {
        user.Click(kSearch);
        user.Select(kAvailable, std::vector<int>{4});
        Search(user, "SHELF' or");
        EXPECT_THAT(user.Rows(kAvailable),
                    ElementsAre("AMBER", "AMBER SHELF", "BLUE SHELF", "SHELF", "SHELF OIL"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(4));
        EXPECT_TRUE(user.Open());
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("SHELF OIL"));
    });
    ASSERT_EQ(desktop.Messages().size(), 1u);
    EXPECT_THAT(desktop.Messages()[0], StartsWith("Database error: "));
    EXPECT_THAT(desktop.Messages()[0], HasSubstr("like '%SHELF' OR%'"));
}

TEST_F(ListSel, ADatabaseThatIsNotThereIsShown) {
    UseDatabase("sqlite:" + folder.Native("missing/none.db"));
    desktop.ExpectMessage("");
    Open([](kv::User& user) { user.Click(kSearch); });
    ASSERT_EQ(desktop.Messages().size(), 1u);
    EXPECT_THAT(desktop.Messages()[0], HasSubstr("none.db"));
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(ListSel, ATextThatWouldChangeATableIsRefused) {
    desktop.ExpectMessage("");
    Open([](kv::User& user) { Search(user, "x'; delete from lease; --"); });
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    EXPECT_EQ(manager.Select("select lease_no from lease"), 6);
}

// Insert.

TEST_F(ListSel, TheModesNameButtonAndLabel) {
    Open([](kv::User& user) {
        user.Click(kInsertMode);
        EXPECT_EQ(user.Text(kSearch), "Insert...");
        EXPECT_EQ(user.Text(kFindLabel), "Insert");
        user.Click(kSearchMode);
        EXPECT_EQ(user.Text(kSearch), "Search...");
        EXPECT_EQ(user.Text(kFindLabel), "Find");
    });
}

TEST_F(ListSel, InsertsWhatIsTypedInUpperCaseReadyToBeTypedOver) {
    Open([](kv::User& user) {
        user.Click(kInsertMode);
        user.Type(kFind, "zephyr");
        user.Key(kFind, "Enter");
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("ZEPHYR"));
        EXPECT_EQ(user.Text(kFind), "zephyr");
        int first = 0;
        int last = 0;
        user.Window().Control<CEdit>(kFind).GetSel(first, last);
        EXPECT_EQ(first, 0);
        EXPECT_EQ(last, 6);
        EXPECT_TRUE(user.Enabled(kClear));
        user.Click(IDOK);
    });
    EXPECT_EQ(Shown(), "ZEPHYR");
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(ListSel, InsertRefusesABlankText) {
    desktop.ExpectMessage("Error! The string is blank!!");
    Open([](kv::User& user) {
        Insert(user, "");
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
    });
}

TEST_F(ListSel, InsertRefusesWhatIsThereButNotWhatIsMerelyBegun) {
    desktop.ExpectMessage("The string has already been added!!");
    Given("<LIST>", {"SHELF OIL"});
    Open([](kv::User& user) {
        Insert(user, "shelf");
        Insert(user, "SHELF");
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("SHELF OIL", "SHELF"));
        int first = 0;
        int last = 0;
        user.Window().Control<CEdit>(kFind).GetSel(first, last);
        EXPECT_EQ(last - first, 5);
    });
}

TEST_F(ListSel, ValuesOfTheVectorKeepTheirCase) {
    Given("<LIST>", {"Shelf", "Amber"});
    Accept();
    EXPECT_THAT(values, ElementsAre("Shelf", "Amber"));
}

// Add, Remove, Clear.

TEST_F(ListSel, AddMovesTheSelectedRowsInTheirOrder) {
    Open([](kv::User& user) {
        user.Click(kSearch);
        user.Select(kAvailable, std::vector<int>{3, 1});
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("AMBER SHELF", "SHELF"));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(1));
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER", "BLUE SHELF", "SHELF OIL"));
        // The place of the row that went last.
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(2));
        EXPECT_TRUE(user.Enabled(kRemove));
        EXPECT_TRUE(user.Enabled(kClear));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("AMBER SHELF", "SHELF"));
    EXPECT_EQ(Shown(), "<LIST>");
}

TEST_F(ListSel, AddSelectsTheLastRowWhereTheListHasBecomeShorter) {
    Open([](kv::User& user) {
        user.Click(kSearch);
        user.Select(kAvailable, std::vector<int>{4});
        user.Click(kAdd);
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(3));
    });
}

TEST_F(ListSel, AddOfAllLeavesNothingToAdd) {
    Open([](kv::User& user) {
        user.Click(kSearch);
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kAvailable), IsEmpty());
        EXPECT_FALSE(user.Enabled(kAdd));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(4));
    });
}

TEST_F(ListSel, AddDeletesTheFirstRowThatBeginsWithTheText) {
    CKvGuiListSel dialog("company", "company", &combo, values, kTemplate, nullptr);
    Run(dialog, [](kv::User& user) {
        auto& available = user.Window().Control<CListBox>(kAvailable);
        for (const char* text : {"abc", "AB", "B"})
            available.AddString(text);
        user.Type(kFind, "x");
        user.Select(kAvailable, "AB");
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("AB"));
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AB", "B"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0));
    });
}

TEST_F(ListSel, AddSkipsABlankRow) {
    Open([](kv::User& user) {
        auto& available = user.Window().Control<CListBox>(kAvailable);
        for (const char* text : {"", "A"})
            available.AddString(text);
        user.Type(kFind, "x");
        user.Select(kAvailable, std::vector<int>{0, 1});
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A"));
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre(""));
        user.Select(kAvailable, std::vector<int>{0});
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A"));
    });
}

TEST_F(ListSel, AddLeavesTheLastRowAloneSelectedInSelected) {
    Given("<LIST>", {"X", "Y"});
    Open([](kv::User& user) {
        user.Select(kSelected, std::vector<int>{0, 1});
        Search(user, "BLUE");
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("X", "Y", "BLUE SHELF"));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(2));
    });
}

TEST_F(ListSel, RemoveIsTheMirrorImage) {
    Given("<LIST>", {"X", "", "Y", "Z"});
    Open([](kv::User& user) {
        user.Click(kSearch);
        user.Select(kAvailable, std::vector<int>{1});
        user.Select(kSelected, std::vector<int>{1, 2});
        user.Click(kRemove);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("X", "Z"));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(1));
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AMBER", "AMBER SHELF", "BLUE SHELF",
                                                       "SHELF", "SHELF OIL", "", "Y"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
    });
}

TEST_F(ListSel, RemoveDeletesTheFirstRowThatBeginsWithTheText) {
    Given("<LIST>", {"ABC", "AB"});
    Open([](kv::User& user) {
        user.Select(kSelected, "AB");
        user.Click(kRemove);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("AB"));
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("AB"));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(0));
    });
}

TEST_F(ListSel, RemoveOfTheLastRowLeavesNothingToRemove) {
    Given("A");
    Open([](kv::User& user) {
        user.Select(kSelected, 0);
        user.Click(kRemove);
        EXPECT_FALSE(user.Enabled(kRemove));
        EXPECT_FALSE(user.Enabled(kClear));
        EXPECT_TRUE(user.Enabled(kAdd));
    });
}

TEST_F(ListSel, ClearRemovesEveryRowFromTheTop) {
    Given("<LIST>", {"ABC", "", "A", "AB", "A"});
    Open([](kv::User& user) {
        user.Click(kClear);
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("ABC", "", "A", "AB", "A"));
        EXPECT_FALSE(user.Enabled(kClear));
        user.Click(IDOK);
    });
    EXPECT_EQ(Shown(), "");
    EXPECT_THAT(values, IsEmpty());
}

TEST_F(ListSel, ClearTakesRowsThatAreSelectedAlongWithTheFirst) {
    Given("<LIST>", {"A", "B", "C"});
    Open([](kv::User& user) {
        user.Select(kSelected, 2);
        user.Click(kClear);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("A", "C", "B"));
    });
}

TEST_F(ListSel, TypingWakesTheButtons) {
    Open([](kv::User& user) {
        user.Window().Control<CListBox>(kAvailable).AddString("AMBER");
        EXPECT_FALSE(user.Enabled(kAdd));
        user.Type(kFind, "a");
        EXPECT_TRUE(user.Enabled(kAdd));
    });
}

// A host's own dialog.

/// A host's list that counts what it is told to do.
class CountingList : public CListBox {
public:
    int added = 0;
    int deleted = 0;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        added += message == LB_ADDSTRING;
        deleted += message == LB_DELETESTRING;
        return CListBox::WindowProc(message, wParam, lParam);
    }
};

/// Asks a query of the host's own, and counts the searches.
class HostListSel : public CKvGuiListSel {
public:
    using CKvGuiListSel::CKvGuiListSel;

    std::string query;
    int searches = 0;
    CountingList available;
    CountingList selected;

    BOOL OnInitDialog() override {
        available.SubclassDlgItem(kAvailable, this);
        selected.SubclassDlgItem(kSelected, this);
        return CKvGuiListSel::OnInitDialog();
    }
    std::string V_SqlQuery() override { return query; }
    void OnSearchButton() override {
        ++searches;
        CKvGuiListSel::OnSearchButton();
    }
};

TEST_F(ListSel, AHostsOwnQueryAndSearchAreCalledFromTheButton) {
    HostListSel dialog(kTemplate, nullptr);
    dialog.MakeComboType(&combo, values);
    Run(dialog, [&](kv::User& user) {
        user.Window().Control<CListBox>(kAvailable).AddString("BEFORE");
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("BEFORE"));
        dialog.query = "select lease_no, lessee from lease where lplana = 'T' order by lease_no";
        user.Type(kFind, "t5");
        user.Key(kFind, "Enter");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("T4", "T5"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
    });
    EXPECT_EQ(dialog.searches, 2);
    EXPECT_THAT(statements, ElementsAre(dialog.query));
}

TEST_F(ListSel, AHostsListsSeeEachRowThatGoesOver) {
    Given("<LIST>", {"SHELF"});
    HostListSel dialog(kTemplate, nullptr);
    dialog.MakeComboType(&combo, values);
    dialog.query = "select distinct lessee from lease where lessee like '%'";
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(dialog.selected.added, 1);
        Search(user, "x");
        EXPECT_EQ(dialog.available.added, 4);
        user.Click(kAdd);
        EXPECT_EQ(dialog.selected.added, 5);
        EXPECT_EQ(dialog.available.deleted, 4);
        user.Click(kClear);
        EXPECT_EQ(dialog.selected.deleted, 5);
        EXPECT_EQ(dialog.available.added, 9);
    });
}

TEST_F(ListSel, OpensNothingWithoutItsTemplate) {
    CKvGuiListSel dialog("lessee", "lease", &combo, values, 4712, nullptr);
    EXPECT_EQ(dialog.DoModal(), -1);
}

}  // namespace
