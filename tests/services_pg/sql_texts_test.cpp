#include "support/sql_texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <set>
#include <string>

#include "services/kvdbkvn/session_pool.h"
#include "services_pg/partitions.h"
#include "services_pg/sample_answers.h"
#include "services_sample/collected_rows.h"
#include "support/database_helpers.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"

/// The dialogs' statements on the whole sample dataset, on every engine, through the database
/// manager.
namespace test {
namespace {

using kv::test::SqlQueries;
using kv::test::SqlText;
using kv::test::SqlValues;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

// Values

SqlValues Picked(const char* name, const char* code, const char* mmsCode, const char* block) {
    SqlValues values;
    values.areaName = name;
    values.areaCode = code;
    values.mmsCode = mmsCode;
    values.block = block;
    values.box = BoxAround(code, block);
    values.namesInBox = NamesInBox(values.box);
    values.mmsCodesInBox = MmsCodesInBox(values.box);
    std::erase(values.mmsCodesInBox, "");
    values.planTable = "gulf_mexico_pipeline";
    values.plan = {"areacode", "lbnum", "lbext"};
    values.otherPlan = {"to_areacode", "to_lbnum", "to_lbext"};
    values.place = 3;
    values.movedArea = "EAST BREAKS";
    values.defaultPlace = 97;
    values.machine = "PC 7";
    values.neighbors = {"131", "105", "", "131"};
    values.grantedTable = "GULF_MEXICO_WELL_COMMENT";
    return values;
}

void SearchAreas(SqlValues& values, const char* namePart, const char* codeStart, const char* mmsEnd,
                 const char* nameStart, const char* mmsStart) {
    values.namePart = namePart;
    values.codeStart = codeStart;
    values.mmsEnd = mmsEnd;
    values.nameStart = nameStart;
    values.mmsStart = mmsStart;
}

/// `tables`: the table of leases and two more, without the dataset's name.
void SearchLeases(SqlValues& values, const char* column, const char* secondTable,
                  const char* thirdTable) {
    values.leaseColumn = column;
    for (const char* table : {"_lease", secondTable, thirdTable})
        values.leaseTables.push_back(std::string("NORVADON.gulf_mexico") + table);
}

void LookFor(SqlValues& values, const char* part, const char* start, const char* end,
             const char* datasetPart, const char* companyPart, const char* expressionStart) {
    values.leasePart = part;
    values.leaseStart = start;
    values.leaseEnd = end;
    values.datasetPart = datasetPart;
    values.companyPart = companyPart;
    values.expressionStart = expressionStart;
    values.operatorStart = companyPart;
}

/// An area of each water, with what is searched in one column each.
std::vector<SqlValues> MakeValues() {
    SqlValues stateWater = Picked("GALVESTON STATE", "42606", "GA", "104");
    SearchAreas(stateWater, "ISLAND", "42", "A", "G", "");
    SearchLeases(stateWater, "lease_no", "_bid", "_well_hdr");
    LookFor(stateWater, "012", "SL0", "7", "99", "EXAMPLE O", "TM-0001");

    SqlValues federal = Picked("HIGH ISLAND EAST ADDITION", "43013", "HI", "131");
    SearchAreas(federal, "A", "4301", "I", "HIGH ISLAND", "H");
    SearchLeases(federal, "lbnum", "_lbi", "_well_hdr");
    LookFor(federal, "1", "9", "0", "4", "SAMPLE P", "C1");

    SqlValues lake = Picked("LAGUNA MADRE NORTH", "42702", "PN", "104");
    SearchAreas(lake, "", "", "", "", "");
    SearchLeases(lake, "status", "_well_hdr", "_pipeline");
    LookFor(lake, "A", "P", "D", "", "", "");

    SqlValues bay = Picked("TRINITY BAY", "42002", "GA", "264");
    SearchAreas(bay, "BAY", "42001", "GA", "TRINITY BAY", "GA");
    SearchLeases(bay, "operator", "_platform", "_operator");
    LookFor(bay, " 04", "SPECIMEN", "LLC", "10", "048", "CEX");

    SqlValues remnant = Picked("WEST CAMERON", "43103", "WC", "203A");
    SearchAreas(remnant, "WEST CAMERON", "431", "C", "WEST ", "W");
    SearchLeases(remnant, "lbext", "_lbi", "_pipeline");
    LookFor(remnant, "A", "A", "A", "A", "INC", "CA");

    SqlValues besideNamelessAreas = Picked("PENSACOLA", "43615", "PE", "12");
    SearchAreas(besideNamelessAreas, ".", "43624", "S", "ST. ", "X");
    SearchLeases(besideNamelessAreas, "royalty_pct", "_lease", "_lease");
    LookFor(besideNamelessAreas, "6", "1", ".5", "7", "SPECIMEN ENERGY", "E16");

    SqlValues lowerCase = Picked("Pensacola", "43615", "pe", "12");
    SearchAreas(lowerCase, "island", "43", "a", "g", "h");
    SearchLeases(lowerCase, "lease_no", "_bid", "_well_hdr");
    LookFor(lowerCase, "m-", "sl", "g", "g", "sample", "t");
    return {stateWater, federal, lake, bay, remnant, besideNamelessAreas, lowerCase};
}

const std::vector<SqlValues>& AllValues() {
    static const std::vector<SqlValues> values = MakeValues();
    return values;
}

// Engines

/// The sample dataset on one engine.
struct Engine {
    std::string name;
    bool postgres;
    bool odbc;
};

void PrintTo(const Engine& engine, std::ostream* out) {
    *out << engine.name;
}

std::string NameOfEngine(const testing::TestParamInfo<Engine>& engine) {
    return engine.param.name;
}

std::string SqliteServer(const Engine& engine, const std::string& path) {
    return (engine.odbc ? "odbc:Driver=SQLite3;Database=" : "sqlite:") + path;
}

std::string PostgresServer(const Engine& engine, const std::string& folder, const std::string& name,
                           const std::string& url) {
    if (!engine.odbc) return url;
    return "odbc:Driver=PostgreSQL Unicode;Servername=" + folder + ";Database=" + name + ";UID=kv";
}

/// A database of the test's own, to be changed.
class Copy {
public:
    explicit Copy(const Engine& engine) : engine_(engine) {
        if (engine.postgres)
            database_ =
                std::make_unique<PostgresDatabase>(std::string("template ") + kSampleTemplate);
        else
            std::filesystem::copy_file(SAMPLE_DATABASE, folder_.Native("copy.db"));
    }
    std::string Server() const {
        if (!engine_.postgres) return SqliteServer(engine_, folder_.Native("copy.db"));
        return PostgresServer(engine_, database_->SocketFolder(), database_->Name(),
                              database_->Url());
    }
    /// Null but for PostgreSQL.
    const PostgresDatabase* Postgres() const { return database_.get(); }

private:
    Engine engine_;
    TempFolder folder_;
    std::unique_ptr<PostgresDatabase> database_;
};

/// Rows of a query, with as many columns as there are in the expected ones.
Answer Read(const std::string& sql, const Answer& expected) {
    const auto bars = expected.empty() ? 0 : std::ranges::count(expected.front(), '|');
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    manager.Select(sql);
    Answer rows;
    for (int row = 0; row < manager.NumberOfRows(); ++row) {
        std::string text = manager.GetItem(row, 0);
        for (int column = 1; column <= bars; ++column)
            text.append("|").append(manager.GetItem(row, column));
        rows.push_back(std::move(text));
    }
    manager.Disconnect();
    return rows;
}

/// "" where both are the same, otherwise the first row in which they differ.
std::string Difference(const Answer& rows, const Answer& expected) {
    const std::size_t common = std::min(rows.size(), expected.size());
    for (std::size_t i = 0; i < common; ++i)
        if (rows[i] != expected[i])
            return "row " + std::to_string(i) + " is \"" + rows[i] + "\", not \"" + expected[i] +
                   "\"";
    if (rows.size() == expected.size()) return "";
    return std::to_string(rows.size()) + " rows, not " + std::to_string(expected.size());
}

void ConnectToServer(const std::string& server) {
    ConnectTo(CKvDbInfo("", "", server.c_str()));
}

/// Runs one statement in a connection of its own, and commits.
void Change(const std::string& sql, int (CKvDbAbsDataMgr::*run)(const std::string&)) {
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    (manager.*run)(sql);
    manager.Disconnect();
}

class StatementsOnTheSample : public testing::TestWithParam<Engine> {
protected:
    ~StatementsOnTheSample() override { kv::db::SessionPool::Instance().Clear(); }

    void UseSample() {
        const std::string url = GetParam().postgres ? SamplePostgresUrl() : "";
        ConnectToServer(GetParam().postgres
                            ? PostgresServer(GetParam(), SocketFolderOf(url), kSampleDatabase, url)
                            : SqliteServer(GetParam(), SAMPLE_DATABASE));
    }
    void UseCopy() {
        copy_ = std::make_unique<Copy>(GetParam());
        ConnectToServer(copy_->Server());
    }

    TempFolder folder_;
    std::unique_ptr<Copy> copy_;
};

void ExpectTheRowsThatTheGeneratorMade(const SqlValues& values) {
    const auto answers = SampleAnswers(values);
    for (const SqlText& query : SqlQueries(values)) {
        SCOPED_TRACE(values.areaName + ", " + query.name + ": " + query.sql);
        const Answer expected = answers.at(query.name)();
        EXPECT_EQ(Difference(Read(query.sql, expected), expected), "");
    }
}

TEST_P(StatementsOnTheSample, QueriesGiveTheRowsThatTheGeneratorMade) {
    UseSample();
    for (const SqlValues& values : AllValues())
        ExpectTheRowsThatTheGeneratorMade(values);
}

std::size_t RowsIn(PostgresClient& client, const std::string& table) {
    return std::stoul(client.Run("select count(*) from norvadon." + table));
}

std::string PlanOfBlocks(PostgresClient& client, const std::string& areaCode) {
    return client.Run(
        "explain (format json) select lbnum from norvadon.gulf_mexico_lbi where areacode = '" +
        areaCode + "'");
}

TEST(PartsOnTheSample, GiveTheRowsThatTheGeneratorMade) {
    const PostgresCluster other;
    const PostgresDatabase database(std::string("template ") + kSampleTemplate);
    SplitByArea(database, other);
    PostgresClient near(database.Url());
    PostgresClient far(other.Url());
    for (const std::string table : kSplitTables) {
        const std::size_t rows = Dataset().Of(table).size();
        EXPECT_EQ(RowsIn(near, table), rows);
        std::size_t away = 0;
        for (const char* part : kFarParts)
            away += RowsIn(far, table + "_" + part);
        EXPECT_GT(away, rows / 2) << table;
        EXPECT_LT(away, rows) << table;
    }
    EXPECT_THAT(PlanOfBlocks(near, "43013"),
                AllOf(HasSubstr("gulf_mexico_lbi_texas"), Not(HasSubstr("Foreign Scan"))));
    EXPECT_THAT(PlanOfBlocks(near, "43620"),
                AllOf(HasSubstr("Foreign Scan"), Not(HasSubstr("gulf_mexico_lbi_texas"))));

    ConnectToServer(database.Url());
    // One whose area stays, and one whose area is away.
    for (const char* area : {"TRINITY BAY", "WEST CAMERON"})
        ExpectTheRowsThatTheGeneratorMade(
            *std::ranges::find(AllValues(), area, &SqlValues::areaName));
    kv::db::SessionPool::Instance().Clear();
}

TEST_P(StatementsOnTheSample, TextsWithAGapAreRefusedAndTheConnectionGoesOn) {
    UseSample();
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    for (const SqlText& text : SqlFailures(AllValues().front())) {
        SCOPED_TRACE(text.name + ": " + text.sql);
        const std::string failure = FailureOf([&] { manager.Select(text.sql); });
        EXPECT_NE(failure, "");
        EXPECT_EQ(failure.find("the list behind \"in\" is empty") != std::string::npos,
                  text.name.ends_with("OfAnEmptyList"));
        EXPECT_EQ(manager.Select("select areaname from NORVADON.nvd2000_area_order"),
                  static_cast<int>(Dataset().Of("nvd2000_area_order").size()));
    }
}

// Changes

using Rows = std::vector<kv::sample::Row>;

std::string Joined(const kv::sample::Row& row) {
    std::string text;
    for (const std::string& cell : row)
        text += (&cell == row.data() ? "" : "|") + cell;
    return text;
}

/// In the order of these columns, null behind all else.
Answer InOrder(Rows rows, const std::vector<std::size_t>& columns, bool ofNumbers) {
    std::ranges::sort(rows, [&](const auto& a, const auto& b) {
        for (const std::size_t column : columns) {
            if (a[column] == b[column]) continue;
            if (a[column].empty() || b[column].empty()) return b[column].empty();
            return ofNumbers ? std::stoi(a[column]) < std::stoi(b[column]) : a[column] < b[column];
        }
        return false;
    });
    Answer answer;
    for (const auto& row : rows)
        answer.push_back(Joined(row));
    return answer;
}

SqlText ChangeNamed(const std::string& name, const SqlValues& values) {
    const std::vector<SqlText> changes = SqlChanges(values);
    return *std::ranges::find(changes, name, &SqlText::name);
}

TEST_P(StatementsOnTheSample, AnAreaTakesThePlaceOfAnother) {
    UseCopy();
    const SqlValues& values = AllValues().front();
    Rows order = Dataset().Of("nvd2000_area_order");

    const SqlText remove = ChangeNamed("DeleteByPlace", values);
    Change(remove.sql, &CKvDbAbsDataMgr::Delete);
    EXPECT_EQ(std::erase_if(order, [](const auto& row) { return row[1] == "3"; }), 1u);
    Answer expected = InOrder(order, {2, 1}, true);
    EXPECT_EQ(Difference(Read(remove.shows, expected), expected), "");

    const SqlText insert = ChangeNamed("InsertOfValues", values);
    Change(insert.sql, &CKvDbAbsDataMgr::Insert);
    order.push_back({"EAST BREAKS", "3", "97"});
    expected = InOrder(order, {2, 1}, true);
    EXPECT_EQ(Difference(Read(insert.shows, expected), expected), "");
}

/// The work table, and the statements on it as they are meant.
class WorkTable {
public:
    void Insert(const SqlValues& values, std::size_t neighbors) {
        std::set<kv::sample::Row> rows;
        for (std::size_t i = 0; i < neighbors; ++i)
            rows.insert({values.machine, values.areaName, values.block, values.areaName,
                         values.neighbors[i], "N"});
        rows_.insert(rows_.end(), rows.begin(), rows.end());
    }
    void DeleteOf(const std::string& machine) {
        std::erase_if(rows_, [&](const auto& row) { return row[0] == machine; });
    }
    /// Null is equal to nothing.
    void DeleteSelected() {
        const Rows before = rows_;
        std::erase_if(rows_, [&](const auto& row) {
            return std::ranges::any_of(before, [&](const auto& other) {
                return !row[4].empty() && row[3] == other[1] && row[4] == other[2];
            });
        });
    }
    Answer Shown() const { return InOrder(rows_, {0, 2, 4, 1, 3, 5}, false); }

private:
    Rows rows_;
};

TEST_P(StatementsOnTheSample, NeighborsAreStoredAndThoseThatAreSelectedTakenOut) {
    UseCopy();
    const SqlValues& ours = AllValues().front();
    SqlValues theirs = ours;
    theirs.machine = "PC 8";
    theirs.block = "105";
    theirs.neighbors = {"104", "106", "104"};
    WorkTable table;
    const auto run = [&](const std::string& name, const SqlValues& values,
                         int (CKvDbAbsDataMgr::*operation)(const std::string&)) {
        const SqlText text = ChangeNamed(name, values);
        Change(text.sql, operation);
        return Read(text.shows, {"|||||"});
    };

    table.Insert(ours, 1);
    EXPECT_EQ(run("InsertOfOneRowInBrackets", ours, &CKvDbAbsDataMgr::Insert), table.Shown());
    table.Insert(ours, ours.neighbors.size());
    EXPECT_EQ(run("InsertOfAUnion", ours, &CKvDbAbsDataMgr::Insert), table.Shown());
    table.Insert(theirs, theirs.neighbors.size());
    EXPECT_EQ(run("InsertOfAUnion", theirs, &CKvDbAbsDataMgr::Insert), table.Shown());
    ASSERT_EQ(table.Shown().size(), 6u);
    table.DeleteSelected();
    ASSERT_EQ(table.Shown().size(), 4u);
    EXPECT_EQ(run("DeleteOfRowsInASubquery", ours, &CKvDbAbsDataMgr::Delete), table.Shown());
    table.DeleteOf("PC 7");
    ASSERT_EQ(table.Shown().size(), 1u);
    EXPECT_EQ(run("DeleteByMachine", ours, &CKvDbAbsDataMgr::Delete), table.Shown());
}

TEST_P(StatementsOnTheSample, TheCommentTableIsMadeForAll) {
    UseCopy();
    const SqlValues& values = AllValues().front();
    const std::string isThere = SqlQueryNamed("ATableThatIsNotThere", values);
    ASSERT_EQ(Read(isThere, {}), Answer{});

    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    for (const SqlText& text : SqlChanges(values)) {
        SCOPED_TRACE(text.sql);
        if (text.name == "Commit")
            manager.Insert("insert into GULF_MEXICO_WELL_COMMENT values ('A', 1, '', null, null)");
        if (text.name == "CreateTable") {
            EXPECT_TRUE(manager.ExecuteDDL(text.sql));
        } else if (text.name.starts_with("Grant") || text.name == "Commit") {
            EXPECT_TRUE(manager.ExecuteDML(text.sql));
        }
    }
    EXPECT_EQ(Read(isThere, {}), Answer{"GULF_MEXICO_WELL_COMMENT"});
    EXPECT_EQ(Read(ChangeNamed("CreateTable", values).shows, {"||"}), Answer{"A|1|"});

    const std::string head = "insert into NORVADON.GULF_MEXICO_WELL_COMMENT values (";
    for (const char* row : {"null, 2, 'b', null, null", "'', 2, 'b', null, null",
                            "'B', null, 'b', null, null", "'A', 1, 'b', null, null"})
        EXPECT_NE(FailureOf([&] { manager.Insert(head + row + ")"); }), "") << row;
    EXPECT_EQ(manager.Insert(head + "'A', 2, 'b', 'kv', null)"), 1);

    if (copy_->Postgres()) {
        EXPECT_EQ(copy_->Postgres()->Run(
                      "select string_agg(privilege_type, ' ' order by privilege_type) from "
                      "information_schema.role_table_grants where grantee = 'PUBLIC' and "
                      "table_schema = 'norvadon' and table_name = 'gulf_mexico_well_comment'"),
                  "DELETE INSERT REFERENCES UPDATE");
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, StatementsOnTheSample,
                         testing::Values(Engine{"Sqlite", false, false},
                                         Engine{"SqliteOverOdbc", false, true},
                                         Engine{"Postgres", true, false},
                                         Engine{"PostgresOverOdbc", true, true}),
                         NameOfEngine);

// The test itself

TEST(AnswersOnTheSample, AreGivenForEveryQueryAndForNoOther) {
    std::set<std::string> queries;
    for (const SqlText& query : SqlQueries(AllValues().front()))
        EXPECT_TRUE(queries.insert(query.name).second) << query.name;
    std::set<std::string> answers;
    for (const auto& [name, answer] : SampleAnswers(AllValues().front()))
        answers.insert(name);
    EXPECT_EQ(queries, answers);
}

TEST(AnswersOnTheSample, HaveRowsForSomePickWhereverThereCanBeAny) {
    std::map<std::string, std::size_t> most;
    for (const SqlValues& values : AllValues())
        for (const auto& [name, answer] : SampleAnswers(values))
            most[name] = std::max(most[name], answer().size());
    for (const auto& [name, rows] : most) {
        const bool none =
            name == "ATableThatIsNotThere" || name.starts_with("CandidatesOfAWholeArea");
        EXPECT_EQ(rows == 0, none) << name;
    }
}

}  // namespace
}  // namespace test
