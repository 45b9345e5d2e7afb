// Each statement to the letter, and its rows.

#include <gmock/gmock.h>

#include "qualifiers/lease_list_sel.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/optr_list_sel.h"
#include "qualifiers/qualifier_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace kv::list_sel;

class ListSelQuery : public QualifierTest {
protected:
    /// Clicks each control, then searches; answers the rows.
    std::vector<std::string> RowsAfter(CKvGuiListSel& dialog, const std::string& text,
                                       const std::vector<int>& clicks = {}) {
        std::vector<std::string> rows;
        Run(dialog, [&](kv::User& user) {
            for (const int id : clicks)
                user.Click(id);
            Search(user, text);
            rows = user.Rows(kAvailable);
        });
        return rows;
    }
    CKvGuiListSel dialog_{"lessee", "lease", &combo, values, kTemplate, nullptr};
    CKvGuiLeaseListSel lease_{"lease_no", "lease", &combo, values, kLeaseTemplate, nullptr};
};

TEST_F(ListSelQuery, Contain) {
    EXPECT_THAT(RowsAfter(dialog_, "er", {kContain}), ElementsAre("AMBER", "AMBER SHELF"));
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like '%ER%'"));
}

TEST_F(ListSelQuery, StartWith) {
    EXPECT_THAT(RowsAfter(dialog_, "shelf", {kStartWith}), ElementsAre("SHELF", "SHELF OIL"));
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like 'SHELF%'"));
}

TEST_F(ListSelQuery, EndWith) {
    EXPECT_THAT(RowsAfter(dialog_, "shelf", {kEndWith}),
                ElementsAre("AMBER SHELF", "BLUE SHELF", "SHELF"));
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like '%SHELF'"));
}

TEST_F(ListSelQuery, APercentSignGoesInAsItStands) {
    EXPECT_THAT(RowsAfter(dialog_, "a%f", {kStartWith}), ElementsAre("AMBER SHELF"));
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like 'A%F%'"));
}

TEST_F(ListSelQuery, BlanksAtTheEndsOfTheTextAreSearchedFor) {
    EXPECT_THAT(RowsAfter(dialog_, " shelf", {kContain}), ElementsAre("AMBER SHELF", "BLUE SHELF"));
    EXPECT_THAT(RowsAfter(dialog_, "shelf ", {kContain}), ElementsAre("SHELF OIL"));
    EXPECT_THAT(statements,
                ElementsAre("select distinct lessee from lease where lessee like '% SHELF%'",
                            "select distinct lessee from lease where lessee like '%SHELF %'"));
}

TEST_F(ListSelQuery, LeaseOrder) {
    CKvGuiListSel dialog("lease_no", "lease", &combo, values, kTemplate, nullptr);
    dialog.SetSpecialOrderByFlag(true);
    EXPECT_THAT(RowsAfter(dialog, "g", {kStartWith}), ElementsAre("G9", "G10", "G100"));
    EXPECT_THAT(statements,
                ElementsAre("(select distinct lease_no from lease where lease_no like 'G%') order "
                            "by lesort(lease_no) "));
}

TEST_F(ListSelQuery, SeveralTables) {
    CKvGuiListSel dialog("lessee", "lease;old_lease;lease", &combo, values, kTemplate, nullptr);
    EXPECT_THAT(RowsAfter(dialog, "shelf", {kEndWith}),
                ElementsAre("AMBER SHELF", "BLUE SHELF", "OLD SHELF", "SHELF"));
    EXPECT_THAT(statements,
                ElementsAre(" select distinct lessee from lease where lessee like '%SHELF'"
                            " UNION select distinct lessee from old_lease where lessee like "
                            "'%SHELF' UNION select distinct lessee from lease where lessee like "
                            "'%SHELF'"));
}

TEST_F(ListSelQuery, SeveralTablesInLeaseOrder) {
    CKvGuiListSel dialog("lease_no", "lease;old_lease", &combo, values, kTemplate, nullptr);
    dialog.SetSpecialOrderByFlag(true);
    EXPECT_THAT(RowsAfter(dialog, "g"), ElementsAre("G1", "G2", "G9", "G10", "G100"));
    EXPECT_THAT(statements,
                ElementsAre("( select distinct lease_no from lease where lease_no like '%G%'"
                            " UNION select distinct lease_no from old_lease where lease_no like "
                            "'%G%') order by lesort(lease_no) "));
}

TEST_F(ListSelQuery, AFinalSemicolonIsRefusedByTheDatabase) {
    desktop.ExpectMessage("");
    CKvGuiListSel dialog("lessee", "lease;", &combo, values, kTemplate, nullptr);
    EXPECT_THAT(RowsAfter(dialog, "shelf"), IsEmpty());
    EXPECT_THAT(statements,
                ElementsAre(" select distinct lessee from lease where lessee like '%SHELF%'"
                            " UNION select distinct lessee from  where lessee like '%SHELF%'"));
    EXPECT_EQ(desktop.Messages().size(), 1u);
}

TEST_F(ListSelQuery, TwoColumns) {
    CKvGuiListSel dialog("lessee", "operator", "lease", true, &combo, values, kTemplate, nullptr);
    dialog.SetSpecialOrderByFlag(true);
    EXPECT_THAT(RowsAfter(dialog, "r", {kContain}),
                ElementsAre("AMBER", "AMBER SHELF", "NORTH RIG", "NORTHERN", "SOUTH NORTH"));
    EXPECT_THAT(
        statements,
        ElementsAre("((SELECT DISTINCT lessee FROM lease WHERE lessee LIKE '%R%') UNION (SELECT "
                    "DISTINCT operator FROM lease WHERE operator LIKE '%R%')) ORDER BY lessee"));
}

TEST_F(ListSelQuery, TwoColumnsForAnEdit) {
    CKvGuiListSel dialog("lessee", "operator", "lease", true, &edit, values, nullptr);
    EXPECT_THAT(RowsAfter(dialog, "north", {kEndWith}), ElementsAre("SOUTH NORTH"));
    EXPECT_THAT(statements, ElementsAre(HasSubstr("WHERE operator LIKE '%NORTH'))")));
}

TEST_F(ListSelQuery, TwoColumnsTakeTheTableWhole) {
    desktop.ExpectMessage("");
    CKvGuiListSel dialog("lessee", "operator", "a;b", true, &combo, values, kTemplate, nullptr);
    RowsAfter(dialog, "x");
    EXPECT_THAT(statements,
                ElementsAre("((SELECT DISTINCT lessee FROM a;b WHERE lessee LIKE '%X%') UNION "
                            "(SELECT DISTINCT operator FROM a;b WHERE operator LIKE '%X%')) ORDER "
                            "BY lessee"));
}

TEST_F(ListSelQuery, TwoColumnsThatAreNotToBeUsedLeaveNoColumn) {
    desktop.ExpectMessage("");
    CKvGuiListSel dialog("lessee", "operator", "lease", false, &combo, values, kTemplate, nullptr);
    EXPECT_THAT(RowsAfter(dialog, "x"), IsEmpty());
    EXPECT_THAT(statements, ElementsAre("select distinct  from lease where  like '%X%'"));
}

// Leases by dataset.

TEST_F(ListSelQuery, LeaseBoxesComeUpCheckedAndAddNothing) {
    Run(lease_, [](kv::User& user) {
        for (const int id : {kFederal, kLouisiana, kTexas})
            EXPECT_TRUE(user.Checked(id)) << id;
        EXPECT_EQ(user.Text(kFederal), "Federal");
        EXPECT_EQ(user.Text(kLouisiana), "Louisiana State");
        EXPECT_EQ(user.Text(kTexas), "Texas State");
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("G10", "G100", "G9", "L7", "T4", "T5"));
    });
    EXPECT_THAT(statements,
                ElementsAre("select distinct lease_no from lease where lease_no like '%%'"));
}

TEST_F(ListSelQuery, FederalAndTexas) {
    EXPECT_THAT(RowsAfter(lease_, "", {kLouisiana}), ElementsAre("G10", "G100", "G9", "T4", "T5"));
    EXPECT_THAT(statements,
                ElementsAre("select distinct lease_no from lease where lease_no like '%%' and "
                            "lplana in ('C', 'E', 'W', 'T') "));
}

TEST_F(ListSelQuery, LouisianaAloneInLeaseOrder) {
    lease_.SetSpecialOrderByFlag(true);
    EXPECT_THAT(RowsAfter(lease_, "7", {kFederal, kTexas, kEndWith}), ElementsAre("L7"));
    EXPECT_THAT(statements,
                ElementsAre("(select distinct lease_no from lease where lease_no like '%7' and "
                            "lplana in ('L') ) order by lesort(lease_no) "));
}

TEST_F(ListSelQuery, AllDatasetsInLeaseOrder) {
    lease_.SetSpecialOrderByFlag(true);
    EXPECT_THAT(RowsAfter(lease_, ""), ElementsAre("G9", "G10", "G100", "L7", "T4", "T5"));
    EXPECT_THAT(statements,
                ElementsAre("(select distinct lease_no from lease where lease_no like '%%') order "
                            "by lesort(lease_no) "));
}

TEST_F(ListSelQuery, NoDatasetIsRefusedEachTimeAndLeavesTheLists) {
    Given("<LIST>", {"T4"});
    desktop.ExpectMessage("Please select at least one lease dataset.");
    desktop.ExpectMessage("Please select at least one lease dataset.");
    Run(lease_, [](kv::User& user) {
        Search(user, "g1");
        user.Select(kAvailable, 1);
        for (const int id : {kFederal, kLouisiana, kTexas})
            user.Click(id);
        Search(user, "L");
        user.Click(kSearch);
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("G10", "G100"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(1));
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("T4"));
    });
    EXPECT_EQ(statements.size(), 1u);
}

TEST_F(ListSelQuery, LeaseTakesTheTableWhole) {
    desktop.ExpectMessage("");
    CKvGuiLeaseListSel dialog("lease_no", "lease;old_lease", &combo, values, kLeaseTemplate,
                              nullptr);
    RowsAfter(dialog, "");
    EXPECT_THAT(
        statements,
        ElementsAre("select distinct lease_no from lease;old_lease where lease_no like '%%'"));
}

// Operators under keys.

TEST_F(ListSelQuery, OperatorsAlwaysMatchAtTheStart) {
    CKvGuiOptrListSel dialog("operator", "key_no", "operator", "(1, 2)", &combo, values, kTemplate,
                             nullptr);
    EXPECT_THAT(RowsAfter(dialog, "north", {kEndWith}), ElementsAre("NORTH RIG", "NORTHERN"));
    EXPECT_THAT(statements,
                ElementsAre("SELECT DISTINCT operator FROM operator WHERE key_no in (1, 2) AND "
                            "operator LIKE 'NORTH%' ORDER BY operator"));
}

TEST_F(ListSelQuery, OperatorsUnderAQueryForAnEdit) {
    CKvGuiOptrListSel dialog("operator", "key_no", "operator", "(select max(key_no) from operator)",
                             &edit, values, nullptr);
    dialog.SetSpecialOrderByFlag(true);
    EXPECT_THAT(RowsAfter(dialog, ""), ElementsAre("NORTH RIG", "SOUTH NORTH"));
    EXPECT_THAT(statements,
                ElementsAre("SELECT DISTINCT operator FROM operator WHERE key_no in (select "
                            "max(key_no) from operator) AND operator LIKE '%' ORDER BY operator"));
}

TEST_F(ListSelQuery, OperatorsWithoutACallerAskForNothingThatThereIs) {
    desktop.ExpectMessage("");
    CKvGuiOptrListSel dialog;
    RowsAfter(dialog, "x");
    EXPECT_THAT(statements,
                ElementsAre("SELECT DISTINCT  FROM  WHERE  in  AND  LIKE 'X%' ORDER BY "));
}

}  // namespace
