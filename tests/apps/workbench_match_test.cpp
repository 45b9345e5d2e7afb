#include "workbench/match.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "base/paths.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using adaptors::Json;

const std::string kOwners = "(select lease_no from NORVADON.GULF_MEXICO_lease_owner where ";

/// A dialog that was run on its sample inputs, and what it gave.
class MatchTest : public test::SampleTest {
protected:
    static std::optional<Match> Of(const std::string& className, Json outcome, int result = 1) {
        const adaptors::Adaptor& adaptor = *adaptors::Find(className);
        adaptors::Run run(adaptor.SampleInputs());
        run.outcome = std::move(outcome);
        run.result = result;
        return MatchOf(adaptor, run);
    }
    /// What the lessee dialog gives: the highest lessee, unless `changes` says otherwise.
    static std::string OfLessees(const Json& values, const Json& changes) {
        Json outcome = {{"values", values},
                        {"high", true},
                        {"and", false},
                        {"or", true},
                        {"specifyPercent", false}};
        outcome.update(changes);
        return Of("CKvGuiLesseeListSel", outcome)->condition;
    }
    static std::string OfCompany(const std::string& company, std::vector<std::string> roles) {
        Json outcome = {{"values", {company}}};
        for (const char* role :
             {"operator", "lessee", "bid", "operatingRights", "designatedOperator"})
            outcome[role] = std::ranges::count(roles, role) > 0;
        return Of("CKvGuiCompanyListSel", outcome)->condition;
    }
    static std::vector<std::string> Column(const std::string& statement) {
        const Rows rows(statement);
        std::vector<std::string> texts;
        for (int row = 0; row < rows.Count(); ++row)
            texts.emplace_back(rows.Cell(row, 0));
        return texts;
    }
    /// How many rows a report of the match has.
    static int Report(const Match& match) {
        ResultTable result;
        ReportLoader loader(*match.layer, "Matching", {match.condition},
                            [&](ResultTable table) { result = std::move(table); });
        test::ReadAll(loader);
        return result.RowCount();
    }
    static int Leases(const std::string& condition) {
        return Report({FindReportLayer(KV_LAYER_LEASES), condition});
    }
    /// A lease with two owners at least, its number, and they with their interest.
    struct Shared {
        std::string lease;
        std::vector<std::string> companies;
        std::vector<int> percents;
    };
    static Shared SharedLease() {
        Shared shared;
        shared.lease = Single("select lease_no from " + TableName("_lease_owner") +
                              " group by lease_no having count(*) = 2 order by lease_no");
        const Rows owners("select company, percent from " + TableName("_lease_owner") +
                          " where lease_no = " + Quoted(shared.lease) + " order by percent desc");
        for (int row = 0; row < owners.Count(); ++row) {
            shared.companies.emplace_back(owners.Cell(row, 0));
            shared.percents.push_back(static_cast<int>(owners.Number(row, 1)));
        }
        return shared;
    }
};

TEST_F(MatchTest, OfAListIsItsColumn) {
    const auto match = Of("CKvGuiListSel", {{"values", {"A", "O'B"}}});
    ASSERT_TRUE(match);
    EXPECT_EQ(match->layer->layer, KV_LAYER_LEASES);
    EXPECT_EQ(match->condition, "t.lessee in ('A', 'O''B')");
    EXPECT_EQ(Of("CKvGuiLeaseListSel", {{"values", {"G00001"}}})->condition,
              "t.lease_no in ('G00001')");
}

TEST_F(MatchTest, OfStatusAndProductIsTheirColumn) {
    const Json outcome = {{"values", {"OIL"}}};
    EXPECT_EQ(Of("CKvGuiPipeProductDlg", outcome)->condition, "t.product in ('OIL')");
    EXPECT_EQ(Of("CKvGuiPipeStatusDlg", outcome)->condition, "t.status in ('OIL')");
    EXPECT_EQ(Of("CKvGuiLeaseStatusDlg", outcome)->condition, "t.status in ('OIL')");
    EXPECT_EQ(Of("CKvGuiPipeProductDlg", outcome)->layer->layer, KV_LAYER_PIPELINES);
    EXPECT_EQ(Of("CKvGuiPipeStatusDlg", outcome)->layer->layer, KV_LAYER_PIPELINES);
    EXPECT_EQ(Of("CKvGuiLeaseStatusDlg", outcome)->layer->layer, KV_LAYER_LEASES);
}

TEST_F(MatchTest, NothingForACancelAnEmptyListAndADialogWithoutAQualifier) {
    const Json outcome = {{"values", {"OIL"}}};
    EXPECT_FALSE(Of("CKvGuiPipeProductDlg", outcome, 2));
    EXPECT_FALSE(Of("CKvGuiPipeProductDlg", {{"values", Json::array()}}));
    EXPECT_FALSE(Of("CVZABEBar", outcome));
}

TEST_F(MatchTest, AListFileStandsForTheList) {
    folder.Write("list.txt", "# companies\na\n\n b \n");
    Json outcome = {{"values", {"C"}},
                    {"useListFile", true},
                    {"listFile", kv::FromNative(folder.Native("list.txt"))}};
    EXPECT_EQ(Of("CKvGuiListSel", outcome)->condition, "t.lessee in ('A', 'B')");
    outcome["useListFile"] = false;
    EXPECT_EQ(Of("CKvGuiListSel", outcome)->condition, "t.lessee in ('C')");
}

TEST_F(MatchTest, LinesOfAListFileThatAreCutAreTold) {
    const std::string path = kv::FromNative(folder.Native("list.txt"));
    const Json outcome = {{"values", {"C"}}, {"useListFile", true}, {"listFile", path}};
    folder.Write("list.txt", std::string(99, 'a') + "\nb\n");
    EXPECT_EQ(Of("CKvGuiListSel", outcome)->cut, "");
    folder.Write("list.txt", std::string(100, 'a') + "\nb\n");
    EXPECT_EQ(Of("CKvGuiListSel", outcome)->cut,
              path + ":\n1 line was longer than 99 characters and cut there.");
}

TEST_F(MatchTest, AListFileThatCannotBeReadIsTold) {
    const Json outcome = {
        {"values", {"C"}}, {"useListFile", true}, {"listFile", "C:\\none\\list.txt"}};
    EXPECT_THAT([&] { Of("CKvGuiListSel", outcome); },
                testing::ThrowsMessage<std::runtime_error>(
                    "The list file C:\\none\\list.txt cannot be read."));
}

TEST_F(MatchTest, AListFileMayComeFromAnyEditorAndMustBeText) {
    using namespace std::string_literals;
    const std::string path = kv::FromNative(folder.Native("list.txt"));
    const Json outcome = {{"values", {"C"}}, {"useListFile", true}, {"listFile", path}};
    folder.Write("list.txt", "\xFE\xFF\0a\0\r\0b"s);
    EXPECT_EQ(Of("CKvGuiListSel", outcome)->condition, "t.lessee in ('A', 'B')");
    folder.Write("list.txt", "a\0"s);
    EXPECT_THAT(
        [&] { Of("CKvGuiListSel", outcome); },
        testing::ThrowsMessage<std::runtime_error>("The list file " + path + " is not text."));
}

TEST_F(MatchTest, OfTheHighestLesseeIsTheLeasesOwn) {
    EXPECT_EQ(OfLessees({"A", "B"}, Json::object()), "t.lessee in ('A', 'B')");
}

TEST_F(MatchTest, OfAnyLesseeLooksAtTheOwners) {
    EXPECT_EQ(OfLessees({"A", "B"}, {{"high", false}}),
              "t.lease_no in " + kOwners + "company in ('A', 'B'))");
    EXPECT_EQ(OfLessees({"B", "A", "B"}, {{"high", false}, {"and", true}}),
              "t.lease_no in " + kOwners +
                  "company in ('B', 'A', 'B') group by lease_no having count(distinct company) = "
                  "2)");
}

TEST_F(MatchTest, RangesOfInterestAreThoseOfEachCompany) {
    const Json percents = {{{"company", "A"}, {"min", 0}, {"max", 50}},
                           {{"company", "B"}, {"min", 20}, {"max", 90}},
                           {{"company", "C"}, {"min", 0}, {"max", 50}}};
    EXPECT_EQ(OfLessees({"A", "B", "C"},
                        {{"high", false}, {"specifyPercent", true}, {"percents", percents}}),
              "t.lease_no in " + kOwners +
                  "(company in ('A', 'C') and percent between 0 and 50 or "
                  "company in ('B') and percent between 20 and 90))");
}

TEST_F(MatchTest, LesseesFindTheirLeases) {
    const Shared shared = SharedLease();
    ASSERT_EQ(shared.companies.size(), 2U);
    const std::string& most = shared.companies[0];
    const std::string& least = shared.companies[1];
    const auto find = [&](const Json& values, const Json& changes) {
        return Leases("t.lease_no = " + Quoted(shared.lease) + " and " +
                      OfLessees(values, changes));
    };
    EXPECT_EQ(find({most}, Json::object()), 1);
    EXPECT_EQ(find({least}, Json::object()), 0);
    EXPECT_EQ(find({least}, {{"high", false}}), 1);
    EXPECT_EQ(find({least, most}, {{"high", false}, {"and", true}}), 1);
    EXPECT_EQ(find({least, "NOBODY"}, {{"high", false}}), 1);
    EXPECT_EQ(find({least, "NOBODY"}, {{"high", false}, {"and", true}}), 0);
    const auto inRange = [&](int min, int max) {
        const Json percents = {{{"company", least}, {"min", min}, {"max", max}}};
        return find({least}, {{"high", false}, {"specifyPercent", true}, {"percents", percents}});
    };
    const int percent = shared.percents[1];
    EXPECT_EQ(inRange(percent, percent), 1);
    EXPECT_EQ(inRange(percent + 1, 100), 0);
    EXPECT_EQ(inRange(100, 0), 0);
}

TEST_F(MatchTest, CompaniesCountInTheirRoles) {
    EXPECT_EQ(OfCompany("A", {"operator"}), "t.operator in ('A')");
    EXPECT_EQ(OfCompany("A", {"lessee", "operatingRights"}),
              "t.lease_no in " + kOwners + "company in ('A'))");
    const std::string company =
        Single("select company from " + TableName("_bid") + " where rank_no = 2 order by lease_no");
    const auto found = [&](std::vector<std::string> roles) {
        return Leases(OfCompany(company, std::move(roles)));
    };
    EXPECT_EQ(found({"bid"}), Count("(select distinct lease_no from " + TableName("_bid") +
                                    " where company = " + Quoted(company) + ") x"));
    EXPECT_GT(found({"bid"}), 0);
    EXPECT_GT(found({"operator", "lessee", "bid"}), found({"operator"}));
}

TEST_F(MatchTest, RolesThatTheDatasetDoesNotTellOfAreRefused) {
    EXPECT_THAT(
        [] {
            OfCompany("A", {"operatingRights", "designatedOperator"});
        },
        testing::ThrowsMessage<std::runtime_error>(
            testing::HasSubstr("only as operators, as lessees and in bids")));
}

TEST_F(MatchTest, OperatorsOfAnAreaGiveItsWells) {
    const std::string area = Single("select stcode from " + TableName("_connam2") +
                                    " where area_abbr = 'VR' order by stcode");
    const std::string name = Single("select operator from " + TableName("_well_hdr") +
                                    " where areacode = " + Quoted(area) + " order by api_no");
    const auto match = Of("CKvGuiOptrListSel", {{"values", {name}}});
    ASSERT_TRUE(match);
    EXPECT_EQ(match->layer->layer, KV_LAYER_WELLS);
    const std::string ofArea =
        "(select stcode from " + TableName("_connam2") + " where area_abbr = 'VR')";
    EXPECT_EQ(Report(*match), Count(TableName("_well_hdr") + " where operator = " + Quoted(name) +
                                    " and areacode in " + ofArea));
    EXPECT_GT(Report(*match), 0);
}

TEST_F(MatchTest, AListOfManyThousandValuesIsRead) {
    const auto numbers =
        Column("select lease_no from " + TableName("_lease") + " where lease_no is not null");
    ASSERT_GT(numbers.size(), 5000U);
    const auto match = Of("CKvGuiLeaseListSel", {{"values", numbers}});
    EXPECT_EQ(Report(*match), static_cast<int>(numbers.size()));
    EXPECT_THAT(match->condition, testing::StartsWith("(t.lease_no in ("));
}

}  // namespace
}  // namespace workbench
