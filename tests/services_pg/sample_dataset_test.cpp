#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "frame/kvdbkvn/db_util.h"
#include "sampledata/dataset.h"
#include "sampledata/digest.h"
#include "sampledata/loader_postgres.h"
#include "sampledata/loader_sqlite.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using kv::sample::PostgresLoader;
using kv::sample::Sink;
using kv::sample::SqliteLoader;
using kv::sample::Table;
using kv::sample::TableNamed;

void Load(Sink& sink) {
    kv::sample::WriteDataset(sink, [](const std::string&) {});
}

/// Digest of all tables as they are read back, each ordered by all its columns.
std::string DigestReadBack(const std::string& server) {
    ConnectTo(CKvDbInfo("", "", server.c_str()));
    kv::sample::Digest digest;
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    for (const Table& table : kv::sample::Tables()) {
        std::string columns;
        for (const kv::sample::Column& column : table.columns) {
            columns += std::string(columns.empty() ? "" : ", ") + column.name;
        }
        manager.Select("select " + columns + " from NORVADON." + table.name + " order by " +
                       columns);
        digest.Begin(table);
        for (int row = 0; row < manager.NumberOfRows(); ++row) {
            kv::sample::Row cells;
            for (std::size_t i = 0; i < table.columns.size(); ++i) {
                cells.emplace_back(manager.GetItem(row, static_cast<int>(i)));
            }
            digest.Add(cells);
        }
        digest.End();
    }
    return digest.Text();
}

class SampleOnPostgres : public testing::Test {
protected:
    ~SampleOnPostgres() override { kv::db::SessionPool::Instance().Clear(); }

    void LoadOneArea(PostgresLoader& loader) {
        loader.Begin(TableNamed("gulf_mexico_connam2"));
        loader.Add({"BACK\\SLASH\tTAB", "43008", ""});
        loader.End();
    }

    TempFolder folder_;
    PostgresDatabase database_;
};

TEST_F(SampleOnPostgres, ReadsBackAsItDoesOnSqlite) {
    PostgresLoader postgres(database_.Url(), false);
    Load(postgres);
    postgres.Finish();
    SqliteLoader sqlite(folder_.Native("made.db"));
    Load(sqlite);
    sqlite.Finish();
    EXPECT_EQ(DigestReadBack(database_.Url()),
              DigestReadBack("sqlite:" + folder_.Native("made.db")));
    EXPECT_EQ(database_.Run("select count(*) from norvadon.gulf_mexico_pipeline"), "15000");

    ConnectTo(CKvDbInfo("", "", database_.Url().c_str()));
    EXPECT_EQ(CKvDbUtil::S_GetAreaName("43013", true), "HI");
    EXPECT_EQ(CKvDbUtil::S_GetAreacodeFromMMSandBlk("HI", "1-S"), "42607");
    EXPECT_EQ(CKvDbUtil::S_GetProjectionByArea("GC", ""), 115);
    CMinMax2Dd_t bounds;
    EXPECT_TRUE(CKvDbUtil::S_GetLLBounds("HI", "12", "A", bounds, ""));
    EXPECT_LT(bounds.minX, bounds.maxX);
}

TEST_F(SampleOnPostgres, LoadsTextThatCopyWouldMistake) {
    PostgresLoader loader(database_.Url(), false);
    LoadOneArea(loader);
    loader.Finish();
    EXPECT_EQ(database_.Run("select areaname from norvadon.gulf_mexico_connam2"),
              "BACK\\SLASH\tTAB");
    EXPECT_EQ(
        database_.Run("select count(*) from norvadon.gulf_mexico_connam2 where area_abbr is null"),
        "1");
}

TEST_F(SampleOnPostgres, LeavesNothingBehindWhenItBreaksOff) {
    {
        PostgresLoader loader(database_.Url(), false);
        LoadOneArea(loader);
    }
    EXPECT_EQ(database_.Run("select count(*) from pg_namespace where nspname = 'norvadon'"), "0");
}

TEST_F(SampleOnPostgres, ReplacesTablesOnlyWhenItIsTold) {
    {
        PostgresLoader first(database_.Url(), false);
        EXPECT_FALSE(first.HasDataset());
        LoadOneArea(first);
        first.Finish();
    }
    {
        PostgresLoader second(database_.Url(), false);
        EXPECT_TRUE(second.HasDataset());
        EXPECT_THROW(second.Begin(TableNamed("gulf_mexico_connam2")), std::runtime_error);
    }
    PostgresLoader third(database_.Url(), true);
    LoadOneArea(third);
    third.Finish();
    EXPECT_EQ(database_.Run("select count(*) from norvadon.gulf_mexico_connam2"), "1");
}

TEST_F(SampleOnPostgres, SaysWhenTheServerIsNotThere) {
    EXPECT_THROW(PostgresLoader("postgresql://127.0.0.1:1/none", false), std::runtime_error);
}

}  // namespace
}  // namespace test
