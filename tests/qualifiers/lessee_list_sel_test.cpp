#include "qualifiers/lessee_list_sel.h"

#include <gmock/gmock.h>

#include "qualifiers/qualifier_fixture.h"

void PrintTo(const T_KV_LESSEE_PER_STRUCT& range, std::ostream* out) {
    *out << range.sCompany << ' ' << range.nMinPercent << " to " << range.nMaxPercent;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace kv::list_sel;
using Range = T_KV_LESSEE_PER_STRUCT;

constexpr int kAnyOptions[] = {kOr, kAnd, kSpecifyPercent};
constexpr int kRangeControls[] = {kMinLabel, kMaxLabel, kMin, kMax};

class LesseeListSel : public QualifierTest {
protected:
    int Open(const std::function<void(kv::User&)>& act) {
        CKvGuiLesseeListSel dialog("lessee", "lease", &combo, values, high, any, orFlag, andFlag,
                                   specify, percents, kLesseeTemplate, nullptr);
        return Run(dialog, act);
    }
    /// Any lessee, with ranges, and these companies selected.
    void GivenRanges(std::vector<std::string> companies, std::vector<Range> ranges = {}) {
        Given("<LIST>", std::move(companies));
        high = false;
        any = specify = true;
        percents = std::move(ranges);
    }
    /// Checks which groups of the option controls can be used.
    static void ExpectEnabled(kv::User& user, bool radios, bool anyOptions, bool ranges) {
        for (const int id : {kHighest, kAny})
            EXPECT_EQ(user.Enabled(id), radios) << id;
        for (const int id : kAnyOptions)
            EXPECT_EQ(user.Enabled(id), anyOptions) << id;
        for (const int id : kRangeControls)
            EXPECT_EQ(user.Enabled(id), ranges) << id;
    }
    static void ExpectShown(kv::User& user, const std::string& least, const std::string& most) {
        EXPECT_EQ(user.Text(kMin), least);
        EXPECT_EQ(user.Text(kMax), most);
    }

    bool high = true;
    bool any = false;
    bool orFlag = true;
    bool andFlag = false;
    bool specify = false;
    std::vector<Range> percents;
};

TEST_F(LesseeListSel, AnEmptyListDisablesAllOptions) {
    Open([](kv::User& user) {
        EXPECT_EQ(user.Window().WindowText(), "Lessee Match");
        EXPECT_FALSE(user.HasControl(kListFileCheck));
        EXPECT_FALSE(user.HasControl(kListFileButton));
        ExpectEnabled(user, false, false, false);
        ExpectShown(user, "0", "100");
        EXPECT_FALSE(user.Checked(kHighest));
        EXPECT_FALSE(user.Checked(kAny));
    });
}

TEST_F(LesseeListSel, OffersPercentsInTens) {
    Open([](kv::User& user) {
        for (const int id : {kMin, kMax}) {
            EXPECT_THAT(user.Rows(id), ElementsAre("0", "10", "20", "30", "40", "50", "60", "70",
                                                   "80", "90", "100"));
        }
        EXPECT_THAT(user.Selected(kMin), ElementsAre(0));
        EXPECT_THAT(user.Selected(kMax), ElementsAre(10));
    });
}

TEST_F(LesseeListSel, NamesItsOptions) {
    Open([](kv::User& user) {
        EXPECT_EQ(user.Text(kLesseeOptions), "Lessee Options");
        EXPECT_EQ(user.Text(kHighest), "Highest Percentage Lessee");
        EXPECT_EQ(user.Text(kAny), "Any Percent Lessee");
        EXPECT_EQ(user.Text(kOr), "OR");
        EXPECT_EQ(user.Text(kAnd), "AND");
        EXPECT_EQ(user.Text(kSpecifyPercent), "Specify Percentage");
        EXPECT_EQ(user.Text(kMinLabel), "Min");
        EXPECT_EQ(user.Text(kMaxLabel), "Max");
    });
}

TEST_F(LesseeListSel, RowsWakeTheChoiceOfTheHighest) {
    Given("AMBER");
    Open([](kv::User& user) {
        ExpectEnabled(user, true, false, false);
        EXPECT_TRUE(user.Checked(kHighest));
        EXPECT_FALSE(user.Checked(kAny));
    });
}

TEST_F(LesseeListSel, AddDoesNotWakeTheOptions) {
    Open([](kv::User& user) {
        Search(user, "amber");
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("AMBER"));
        ExpectEnabled(user, false, false, false);
        user.Select(kSelected, 0);
        ExpectEnabled(user, true, false, false);
    });
}

TEST_F(LesseeListSel, RemoveDoesNotPutTheOptionsToSleep) {
    Given("AMBER");
    Open([](kv::User& user) {
        user.Select(kSelected, 0);
        user.Click(kRemove);
        EXPECT_THAT(user.Rows(kSelected), IsEmpty());
        ExpectEnabled(user, true, false, false);
    });
}

TEST_F(LesseeListSel, AnyWakesAndOrAndPercent) {
    Given("AMBER");
    Open([this](kv::User& user) {
        user.Click(kAny);
        EXPECT_TRUE(any);
        EXPECT_FALSE(high);
        ExpectEnabled(user, true, true, false);
        EXPECT_TRUE(user.Checked(kAny));
        EXPECT_FALSE(user.Checked(kHighest));
        EXPECT_TRUE(user.Checked(kOr));
        EXPECT_FALSE(user.Checked(kAnd));
        EXPECT_FALSE(user.Checked(kSpecifyPercent));
        user.Click(kHighest);
        EXPECT_TRUE(high);
        EXPECT_FALSE(any);
        ExpectEnabled(user, true, false, false);
    });
}

TEST_F(LesseeListSel, ShowsAndAsTheFlagsSay) {
    Given("AMBER");
    high = orFlag = false;
    Open([](kv::User& user) {
        EXPECT_TRUE(user.Checked(kAny));
        EXPECT_FALSE(user.Checked(kOr));
        EXPECT_TRUE(user.Checked(kAnd));
    });
}

TEST_F(LesseeListSel, RadiosAndCheckWriteThroughAndCancelDoesNotTakeThatBack) {
    Given("AMBER");
    EXPECT_EQ(Open([this](kv::User& user) {
                  user.Click(kAny);
                  user.Click(kAnd);
                  EXPECT_TRUE(andFlag);
                  EXPECT_FALSE(orFlag);
                  user.Click(kOr);
                  EXPECT_TRUE(orFlag);
                  EXPECT_FALSE(andFlag);
                  user.Click(kAnd);
                  user.Click(kSpecifyPercent);
                  EXPECT_TRUE(specify);
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_TRUE(any);
    EXPECT_FALSE(high);
    EXPECT_TRUE(andFlag);
    EXPECT_FALSE(orFlag);
    EXPECT_TRUE(specify);
    EXPECT_EQ(combo.WindowText(), "AMBER");
}

TEST_F(LesseeListSel, UncheckingPercentWritesThroughAndShowsTheFullRange) {
    GivenRanges({"A"}, {{"A", 20, 30}});
    Open([this](kv::User& user) {
        EXPECT_TRUE(user.Checked(kSpecifyPercent));
        user.Select(kSelected, 0);
        ExpectShown(user, "20", "30");
        user.Click(kSpecifyPercent);
        EXPECT_FALSE(specify);
        ExpectEnabled(user, true, true, false);
        ExpectShown(user, "0", "100");
        user.Click(kSpecifyPercent);
        ExpectShown(user, "20", "30");
    });
}

TEST_F(LesseeListSel, RangesWaitForASelectedRow) {
    GivenRanges({"A", "B"}, {{"A", 20, 30}});
    Open([](kv::User& user) {
        ExpectEnabled(user, true, true, false);
        ExpectShown(user, "0", "100");
        user.Select(kSelected, 0);
        ExpectEnabled(user, true, true, true);
        ExpectShown(user, "20", "30");
        EXPECT_THAT(user.Selected(kMin), ElementsAre(2));
        EXPECT_THAT(user.Selected(kMax), ElementsAre(3));
        user.Select(kSelected, 1);
        ExpectShown(user, "0", "100");
        user.Select(kSelected, std::vector<int>{});
        ExpectEnabled(user, true, true, false);
    });
}

TEST_F(LesseeListSel, RangesAreThoseOfTheRowAtTheCaretAndWaitWhereItIsNotSelected) {
    GivenRanges({"A", "B"}, {{"A", 20, 30}});
    Open([](kv::User& user) {
        kv::Node& list = *user.Window().GetDlgItem(kSelected)->m_hWnd;
        user.Select(kSelected, std::vector<int>{0, 1});
        ExpectShown(user, "0", "100");
        // The caret stays on B, and only A is selected.
        kv::input::ClickRow(list, 1, {.ctrl = true});
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(0));
        ExpectEnabled(user, true, true, false);
        ExpectShown(user, "0", "100");
    });
}

TEST_F(LesseeListSel, KeepsWhatIsPickedForEachCompany) {
    GivenRanges({"A", "B"});
    Open([](kv::User& user) {
        user.Select(kSelected, "A");
        user.Select(kMin, "10");
        user.Select(kMax, "90");
        user.Select(kSelected, "B");
        ExpectShown(user, "0", "100");
        user.Select(kMax, "50");
        user.Select(kSelected, "A");
        ExpectShown(user, "10", "90");
        user.Click(IDOK);
    });
    EXPECT_THAT(percents, ElementsAre(Range{"A", 10, 90}, Range{"B", 0, 50}));
    EXPECT_TRUE(specify);
    EXPECT_TRUE(any);
}

TEST_F(LesseeListSel, APercentLeavesTheOtherEndOfItsRange) {
    GivenRanges({"A", "B"});
    Open([](kv::User& user) {
        user.Select(kSelected, "A");
        user.Select(kMin, "10");
        user.Select(kSelected, "B");
        user.Type(kMax, "40");
        user.Click(IDOK);
    });
    EXPECT_THAT(percents, ElementsAre(Range{"A", 10, 100}, Range{"B", 0, 40}));
}

TEST_F(LesseeListSel, KeepsAPercentThatIsNotInTheList) {
    GivenRanges({"A", "B"});
    Open([](kv::User& user) {
        user.Select(kSelected, "A");
        user.Type(kMin, "55");
        user.Type(kMax, "66");
        EXPECT_EQ(user.Text(kMin), "55");
        user.Select(kSelected, "B");
        user.Select(kSelected, "A");
        ExpectShown(user, "55", "66");
        user.Click(IDOK);
    });
    EXPECT_THAT(percents, ElementsAre(Range{"A", 55, 66}, Range{"B", 0, 100}));
}

TEST_F(LesseeListSel, TheStartOfAPercentIsNotTakenForTheWhole) {
    GivenRanges({"A"}, {{"A", 1, 5}});
    Open([](kv::User& user) {
        user.Select(kSelected, "A");
        ExpectShown(user, "1", "5");
    });
}

TEST_F(LesseeListSel, NothingIsCheckedInATypedPercent) {
    GivenRanges({"A"});
    Open([](kv::User& user) {
        user.Select(kSelected, "A");
        user.Type(kMin, "many");
        user.Type(kMax, "250");
        user.Click(IDOK);
    });
    EXPECT_THAT(percents, ElementsAre(Range{"A", 0, 250}));
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(LesseeListSel, AMaxUnderItsMinIsToldAndStored) {
    GivenRanges({"A", "B", "C", "D"}, {{"A", 80, 20}, {"C", 10, 0}, {"D", 30, 30}});
    desktop.ExpectMessage("NOTE: Max Percent is less than Min Percent!");
    desktop.ExpectMessage("NOTE: Max Percent is less than Min Percent!");
    EXPECT_EQ(Open([](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_THAT(percents, ElementsAre(Range{"A", 80, 20}, Range{"B", 0, 100}, Range{"C", 10, 0},
                                      Range{"D", 30, 30}));
}

TEST_F(LesseeListSel, RangesComeInTheOrderOfTheSortedList) {
    GivenRanges({"C", "A", "B"}, {{"C", 1, 2}, {"GONE", 3, 4}});
    Open([](kv::User& user) {
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A", "B", "C"));
        user.Click(IDOK);
    });
    EXPECT_THAT(percents, ElementsAre(Range{"A", 0, 100}, Range{"B", 0, 100}, Range{"C", 1, 2}));
    EXPECT_THAT(values, ElementsAre("A", "B", "C"));
}

TEST_F(LesseeListSel, ALaterRangeOfOneCompanyCounts) {
    GivenRanges({"A"}, {{"A", 1, 2}, {"A", 3, 4}});
    Open([](kv::User& user) { user.Click(IDOK); });
    EXPECT_THAT(percents, ElementsAre(Range{"A", 3, 4}));
}

TEST_F(LesseeListSel, RangesWithNothingSelectedAreToldAndTheDialogCloses) {
    GivenRanges({"A"}, {{"A", 10, 20}});
    desktop.ExpectMessage("Nothing in listbox!");
    EXPECT_EQ(Open([](kv::User& user) {
                  user.Select(kSelected, 0);
                  user.Click(kRemove);
                  user.Click(IDOK);
              }),
              IDOK);
    EXPECT_THAT(percents, IsEmpty());
    EXPECT_THAT(values, IsEmpty());
    EXPECT_EQ(combo.WindowText(), "");
}

TEST_F(LesseeListSel, HighestAtOkLeavesPercentAndAny) {
    Given("A");
    specify = any = andFlag = true;
    orFlag = false;
    percents = {{"X", 1, 2}};
    Open([](kv::User& user) { user.Click(IDOK); });
    EXPECT_TRUE(high);
    EXPECT_TRUE(any);
    EXPECT_TRUE(specify);
    EXPECT_TRUE(orFlag);
    EXPECT_FALSE(andFlag);
    EXPECT_THAT(percents, ElementsAre(Range{"X", 1, 2}));
}

TEST_F(LesseeListSel, WithoutPercentsTheVectorStaysAsItCame) {
    Given("A");
    high = false;
    percents = {{"X", 1, 2}};
    Open([](kv::User& user) {
        user.Click(kAnd);
        user.Click(IDOK);
    });
    EXPECT_TRUE(any);
    EXPECT_TRUE(andFlag);
    EXPECT_FALSE(orFlag);
    EXPECT_FALSE(specify);
    EXPECT_THAT(percents, ElementsAre(Range{"X", 1, 2}));
}

TEST_F(LesseeListSel, AnEmptyListAtOkSaysAnyWithOr) {
    orFlag = false;
    andFlag = true;
    Open([](kv::User& user) { user.Click(IDOK); });
    EXPECT_TRUE(any);
    EXPECT_TRUE(high);
    EXPECT_TRUE(orFlag);
    EXPECT_FALSE(andFlag);
    EXPECT_FALSE(specify);
}

TEST_F(LesseeListSel, ClearSetsTheFlagsBackAndCancelDoesNotTakeThatBack) {
    GivenRanges({"A", "B"}, {{"A", 10, 20}});
    orFlag = false;
    andFlag = true;
    EXPECT_EQ(Open([this](kv::User& user) {
                  user.Select(kSelected, 1);
                  user.Click(kClear);
                  EXPECT_THAT(user.Rows(kSelected), IsEmpty());
                  EXPECT_THAT(user.Rows(kAvailable), ElementsAre("A", "B"));
                  EXPECT_FALSE(user.Checked(kSpecifyPercent));
                  ExpectEnabled(user, false, false, false);
                  ExpectShown(user, "0", "100");
                  user.Click(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_TRUE(high);
    EXPECT_FALSE(any);
    EXPECT_TRUE(orFlag);
    EXPECT_FALSE(andFlag);
    EXPECT_FALSE(specify);
    EXPECT_THAT(values, ElementsAre("A", "B"));
    EXPECT_THAT(percents, ElementsAre(Range{"A", 10, 20}));
    EXPECT_EQ(combo.WindowText(), "<LIST>");
}

TEST_F(LesseeListSel, ChangingTheSelectionLeavesTheActionButtons) {
    Open([](kv::User& user) {
        Insert(user, "A");
        user.Window().GetDlgItem(kRemove)->EnableWindow(FALSE);
        user.Select(kSelected, 0);
        EXPECT_FALSE(user.Enabled(kRemove));
    });
}

TEST_F(LesseeListSel, RunsWithoutAnyCaller) {
    CKvGuiLesseeListSel dialog;
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      Insert(user, "A");
                      user.Select(kSelected, 0);
                      user.Click(kAny);
                      user.Click(kSpecifyPercent);
                      user.Click(IDOK);
                  }),
              IDOK);
}

}  // namespace
