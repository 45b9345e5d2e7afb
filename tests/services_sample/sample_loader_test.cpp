#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "sampledata/loader_sqlite.h"
#include "support/database_helpers.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using kv::sample::SqliteLoader;
using kv::sample::TableNamed;

/// Exit code of the sampledata program; what it says goes nowhere.
int RunSampledata(const std::string& arguments) {
    const std::string command =
        std::string("\"" SAMPLEDATA_PROGRAM "\" ") + arguments + " >/dev/null 2>&1";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string Query(const std::string& path, const std::string& sql, int columns) {
    ConnectTo(CKvDbInfo("", "", ("sqlite:" + path).c_str()));
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    manager.Select(sql);
    return RowsOf(manager, columns);
}

class SampleSqliteLoader : public testing::Test {
protected:
    void LoadOneBlock(SqliteLoader& loader) {
        loader.Begin(TableNamed("gulf_mexico_lbi"));
        loader.Add({"42601", "12", "", "1"});
        loader.End();
        loader.Begin(TableNamed("gulf_mexico_lbv"));
        loader.Add({"1", "1", "28", "-90.12345"});
        loader.End();
    }

    TempFolder folder_;
    std::string path_ = folder_.Native("made.db");
};

TEST_F(SampleSqliteLoader, PutsTheDatabaseInItsPlaceWhenItIsComplete) {
    SqliteLoader loader(path_);
    LoadOneBlock(loader);
    EXPECT_FALSE(folder_.Has("made.db"));
    loader.Finish();
    EXPECT_TRUE(folder_.Has("made.db"));
    EXPECT_EQ(folder_.Count(), 1U);
}

TEST_F(SampleSqliteLoader, GivesItTheWriteAheadLog) {
    SqliteLoader loader(path_);
    LoadOneBlock(loader);
    loader.Finish();
    // Two in the head of the file, for who reads and for who writes.
    EXPECT_EQ(folder_.Read("made.db").substr(18, 2), "\2\2");
}

TEST_F(SampleSqliteLoader, TakesAwayWhatLiesBesideTheDatabaseThatItReplaces) {
    {
        SqliteLoader loader(path_);
        LoadOneBlock(loader);
        loader.Finish();
    }
    // The log of a program that died.
    RunOnSqliteFile(path_, "delete from gulf_mexico_lbv");
    for (const char* ending : {"-wal", "-shm", "-journal"})
        folder_.Write(std::string("made.db") + ending, "left behind");
    SqliteLoader loader(path_);
    LoadOneBlock(loader);
    loader.Finish();
    EXPECT_EQ(folder_.Count(), 1U);
    EXPECT_EQ(Query(path_, "select count(*) from gulf_mexico_lbv", 1), "1");
}

TEST_F(SampleSqliteLoader, LeavesTheOldDatabaseAndNothingElseWhenItBreaksOff) {
    folder_.Write("made.db", "old");
    {
        SqliteLoader loader(path_);
        LoadOneBlock(loader);
        EXPECT_THROW(loader.Begin(TableNamed("gulf_mexico_lbi")), std::runtime_error);
    }
    EXPECT_EQ(folder_.Read("made.db"), "old");
    EXPECT_EQ(folder_.Count(), 1U);
}

TEST_F(SampleSqliteLoader, StoresEmptyTextAsNullAndNumbersAsNumbers) {
    SqliteLoader loader(path_);
    LoadOneBlock(loader);
    loader.Finish();
    EXPECT_EQ(Query(path_, "select lbnum, refnum from gulf_mexico_lbi where lbext is null", 2),
              "12|1");
    EXPECT_EQ(Query(path_, "select lat, lon from gulf_mexico_lbv where lat < 28.5", 2),
              "28|-90.12345");
}

TEST_F(SampleSqliteLoader, RefusesARowThatDoesNotFitItsTable) {
    SqliteLoader loader(path_);
    loader.Begin(TableNamed("gulf_mexico_lbi"));
    EXPECT_THROW(loader.Add({"42601", "12", ""}), std::runtime_error);
}

TEST_F(SampleSqliteLoader, RefusesAFolderThatIsNotThere) {
    EXPECT_THROW(SqliteLoader(folder_.Native("none/made.db")), std::runtime_error);
}

TEST_F(SampleSqliteLoader, RefusesATableThatIsNotKnown) {
    EXPECT_THROW(TableNamed("gulf_mexico_none"), std::out_of_range);
}

TEST(SampledataProgram, LeavesADatabaseThatIsThereUnlessItIsForced) {
    TempFolder folder;
    folder.Write("made.db", "old");
    const std::string target = "sqlite:" + folder.Native("made.db");
    EXPECT_EQ(RunSampledata(target), 1);
    EXPECT_EQ(folder.Read("made.db"), "old");
    EXPECT_EQ(RunSampledata(target + " --force"), 0);
    EXPECT_THAT(folder.Read("made.db"), testing::StartsWith("SQLite format 3"));
    EXPECT_EQ(folder.Count(), 1U);
}

TEST(SampledataProgram, RefusesATargetOfAnotherKind) {
    constexpr int kInvalidArgument = 105;
    EXPECT_EQ(RunSampledata("mysql://host/db"), kInvalidArgument);
    EXPECT_EQ(RunSampledata("sqlite:"), kInvalidArgument);
    EXPECT_EQ(RunSampledata(""), 2);
    EXPECT_EQ(RunSampledata("--help"), 0);
}

TEST(SampledataProgram, SaysWhenItCannotWrite) {
    TempFolder folder;
    EXPECT_EQ(RunSampledata("sqlite:" + folder.Native("none/made.db")), 1);
    EXPECT_EQ(folder.Count(), 0U);
}

}  // namespace
}  // namespace test
