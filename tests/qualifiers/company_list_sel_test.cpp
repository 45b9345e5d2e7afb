#include "qualifiers/company_list_sel.h"

#include <gmock/gmock.h>

#include "qualifiers/qualifier_fixture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace kv::list_sel;

constexpr int kRoles[] = {kOperator, kLessee, kBid, kOperatingRights, kDesignatedOperator};

class CompanyListSel : public QualifierTest {
protected:
    int Open(const std::function<void(kv::User&)>& act) {
        CKvGuiCompanyListSel dialog("company", "company", &combo, values, flags[0], flags[1],
                                    flags[2], flags[3], flags[4], kCompanyTemplate, nullptr);
        return Run(dialog, act);
    }
    /// In the order of the constructor: operator, lessee, bid, operating rights, designated
    /// operator.
    bool flags[5] = {};
};

TEST_F(CompanyListSel, ShowsTheFlagsUnderTheirLabels) {
    constexpr const char* kLabels[] = {"Operator", "Lessee", "Bid", "Operating Rights",
                                       "Designated Operator"};
    for (int set = 0; set < 5; ++set) {
        for (int i = 0; i < 5; ++i)
            flags[i] = i == set;
        Open([&](kv::User& user) {
            EXPECT_EQ(user.Window().WindowText(), "Company Match Dialog");
            EXPECT_EQ(user.Text(kCompanyTypes), "Company Types");
            for (int i = 0; i < 5; ++i) {
                EXPECT_EQ(user.Text(kRoles[i]), kLabels[i]);
                EXPECT_EQ(user.Checked(kRoles[i]), i == set) << kLabels[i];
            }
        });
    }
}

TEST_F(CompanyListSel, WritesEachBoxIntoItsFlagAtOk) {
    flags[0] = flags[3] = true;
    Open([&](kv::User& user) {
        for (const int id : {kOperator, kBid, kDesignatedOperator})
            user.Click(id);
        EXPECT_THAT(flags, ElementsAre(true, false, false, true, false));
        user.Click(IDOK);
    });
    EXPECT_THAT(flags, ElementsAre(false, false, true, true, true));
}

TEST_F(CompanyListSel, CancelLeavesTheFlags) {
    flags[1] = true;
    Open([](kv::User& user) {
        for (const int id : kRoles)
            user.Click(id);
        user.Click(IDCANCEL);
    });
    EXPECT_THAT(flags, ElementsAre(false, true, false, false, false));
}

TEST_F(CompanyListSel, SortsItsListsAndHasNoListFile) {
    Open([](kv::User& user) {
        EXPECT_FALSE(user.HasControl(kListFileCheck));
        EXPECT_FALSE(user.HasControl(kListFileButton));
        Insert(user, "zephyr");
        Insert(user, "blue");
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("BLUE", "ZEPHYR"));
        user.Click(IDOK);
    });
    EXPECT_THAT(values, ElementsAre("BLUE", "ZEPHYR"));
    EXPECT_EQ(combo.WindowText(), "<LIST>");
}

TEST_F(CompanyListSel, AddInASortedListSelectsItsLastRow) {
    Given("<LIST>", {"ZEPHYR", "B"});
    Open([](kv::User& user) {
        Search(user, "a");
        EXPECT_THAT(user.Rows(kAvailable), ElementsAre("A", "AB", "ABC"));
        EXPECT_THAT(user.Selected(kAvailable), ElementsAre(0));
        user.Click(kAdd);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("A", "B", "ZEPHYR"));
        EXPECT_THAT(user.Selected(kSelected), ElementsAre(2));
    });
    EXPECT_THAT(statements,
                ElementsAre("select distinct company from company where company like '%A%'"));
}

TEST_F(CompanyListSel, RunsWithoutAnyCaller) {
    CKvGuiCompanyListSel dialog;
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      for (const int id : kRoles) {
                          EXPECT_FALSE(user.Checked(id));
                          user.Click(id);
                      }
                      user.Click(IDOK);
                  }),
              IDOK);
}

}  // namespace
