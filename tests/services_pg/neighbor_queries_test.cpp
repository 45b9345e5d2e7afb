// The search for neighbors, and the table that they are written to, on both engines: the same
// blocks in the same order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "blocks/neighbor_blocks.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using kv::blocks::NeighborRelation;
using kv::blocks::Selection;
using testing::HasSubstr;

struct Search {
    int type;
    Selection selection;
};

/// Of each kind of areas: inside one, at its border, with an extension, in state waters.
const Search kSearches[] = {
    {0, {{"GREEN CANYON", "GREEN CANYON", "GARDEN BANKS"}, {"500", "5", "1"}}},
    {1, {{"43608", "42607", "43002"}, {"500", "1", "1A"}}},
    {2, {{"GC", "AT", "HI"}, {"500", "1", "1"}}},
    {0, {{"NOWHERE", "GREEN CANYON"}, {"1", ""}}},
};

struct Found {
    bool whole = false;
    Selection selection;
    NeighborRelation relation;
    std::vector<std::string> messages;
    /// What the table holds when the relation was written to it.
    std::string table;
    bool operator==(const Found&) const = default;
};

class NeighborsOnTheSample : public testing::Test {
protected:
    NeighborsOnTheSample() { InitControlDll(); }
    ~NeighborsOnTheSample() override {
        kv::WindowSystem::Get().SetDesktop(nullptr);
        kv::db::SessionPool::Instance().Clear();
    }

    static Found Run(const std::string& server, const Search& search) {
        ConnectTo(CKvDbInfo("", "", server.c_str()));
        kv::HeadlessDesktop desktop;
        kv::WindowSystem::Get().SetDesktop(&desktop);
        if (search.selection.first.front() == "NOWHERE") {
            desktop.ExpectMessage("");
            desktop.ExpectMessage("");
        }
        Found found;
        found.selection = search.selection;
        CNeighborBlocks finder(found.selection, found.relation, search.type, "NORVADON");
        found.whole = finder.PopulateNeighbor();
        finder.InsertMapToTable(found.relation);
        found.table = Table();
        finder.DeleteFromABE2("NORVADON.nvd2000_tmp_abe2");
        EXPECT_EQ(Table(), "");
        found.messages = desktop.Messages();
        kv::WindowSystem::Get().SetDesktop(nullptr);
        return found;
    }

    static std::string Table() {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Select(
            "select machine_ID, o_area, o_bext, n_area, n_bext, area_type from "
            "NORVADON.nvd2000_tmp_abe2 order by o_area, o_bext, n_area, n_bext");
        return RowsOf(manager, 6);
    }

    TempFolder folder_;
};

TEST_F(NeighborsOnTheSample, AreTheSameOnBothEngines) {
    const PostgresDatabase copy(std::string("template ") + kSampleTemplate);
    std::filesystem::copy_file(SAMPLE_DATABASE, folder_.Native("copy.db"));
    for (const Search& search : kSearches) {
        const Found expected = Run("sqlite:" + folder_.Native("copy.db"), search);
        const Found found = Run(copy.Url(), search);
        SCOPED_TRACE(search.selection.first.front());
        EXPECT_TRUE(found.whole);
        EXPECT_EQ(found.relation, expected.relation);
        EXPECT_EQ(found.selection, expected.selection);
        EXPECT_EQ(found.messages, expected.messages);
        EXPECT_EQ(found.table, expected.table);
        EXPECT_EQ(found.relation.empty(), !found.messages.empty());
        for (const auto& [place, neighbors] : found.relation)
            EXPECT_GE(neighbors.size(), 1U) << place.first << " " << place.second;
    }
}

/// A plan, as the server tells it, of a statement as a dialog sends it.
std::string PlanOf(PostgresClient& client, const std::string& sql) {
    kv::dialect::Context context;
    context.target = kv::dialect::Target::kPostgres;
    context.hasSchema = [](const std::string&) { return true; };
    return client.Run("explain (format json) " + kv::dialect::Translate(sql, context).text);
}

TEST_F(NeighborsOnTheSample, AreReadByIndexesAlone) {
    PostgresClient client(SamplePostgresUrl());
    ConnectTo(CKvDbInfo("", "", SamplePostgresUrl().c_str()));
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    std::set<std::string> statements;
    kv::db::SetStatementTrace([&](const std::string& sql) { statements.insert(sql); });
    for (const Search& search : std::span(kSearches).first(3)) {
        Selection selection = search.selection;
        NeighborRelation relation;
        EXPECT_TRUE(
            CNeighborBlocks(selection, relation, search.type, "NORVADON").PopulateNeighbor());
    }
    kv::db::SetStatementTrace(nullptr);
    EXPECT_GT(statements.size(), 20U);
    for (const std::string& sql : statements) {
        const std::string plan = PlanOf(client, sql);
        EXPECT_THAT(plan, HasSubstr("gulf_mexico_lbv_i")) << sql;
        for (std::size_t at = plan.find("Seq Scan"); at != std::string::npos;
             at = plan.find("Seq Scan", at + 1)) {
            // The table of areas is so small that the server reads it whole.
            const std::size_t table = plan.find("\"Relation Name\": \"", at);
            EXPECT_EQ(plan.substr(table + 18, 19), "gulf_mexico_connam2") << sql;
        }
    }
}

}  // namespace
}  // namespace test
