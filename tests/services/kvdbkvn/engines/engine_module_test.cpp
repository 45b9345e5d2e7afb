#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "support/database_helpers.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using testing::HasSubstr;

/// What connecting to that server text fails with.
std::string FailureToConnect(const char* server) {
    ConnectTo(CKvDbInfo("", "", server));
    return FailureOf([] { CKvDbAbsDataMgr(1).Connect(); });
}

TEST(EngineModule, AMissingModuleIsNamed) {
    TempFolder folder;
    folder.Set("KVGUICTL_ENGINES", folder.Native());
    EXPECT_THAT(FailureToConnect("postgresql://localhost/db"),
                HasSubstr("The engine for PostgreSQL is not installed (KVGuiCtlPostgres.so"));
    EXPECT_THAT(FailureToConnect("odbc:KV"), HasSubstr("The engine for ODBC is not installed"));
}

TEST(EngineModule, SqliteNeedsNone) {
    TempFolder folder;
    folder.Set("KVGUICTL_ENGINES", folder.Native());
    MakeSqliteFile(folder.Native("kv.db"));
    EXPECT_EQ(FailureToConnect(("sqlite:" + folder.Native("kv.db")).c_str()), "");
}

TEST(EngineModule, AFileThatIsNoModuleIsAFailureAndNoCrash) {
    TempFolder folder;
    folder.Set("KVGUICTL_ENGINES", folder.Native());
    folder.Write("KVGuiCtlPostgres.so", "nothing that can be loaded");
    EXPECT_THAT(FailureToConnect("postgresql://localhost/db"),
                HasSubstr("The PostgreSQL client library is not installed"));
}

/// The loader looks for libraries where the program was told to when it started, so the program is
/// started once more, told to look where the client libraries are broken.
TEST(EngineModule, AMissingClientLibraryIsAFailureThatNamesIt) {
    if (std::getenv("KVGUICTL_TEST_BROKEN_CLIENTS")) {
        EXPECT_THAT(FailureToConnect("postgresql://localhost/db"),
                    HasSubstr("The PostgreSQL client library is not installed"));
        EXPECT_THAT(FailureToConnect("postgresql://localhost/db"), HasSubstr("libpq.so"));
        EXPECT_THAT(FailureToConnect("odbc:KV"),
                    HasSubstr("The ODBC client library is not installed"));
        EXPECT_THAT(FailureToConnect("odbc:KV"), HasSubstr("libodbc.so"));
        return;
    }
    TempFolder folder;
    folder.Write("libpq.so.5", "");
    folder.Write("libodbc.so.2", "");
    const std::string command =
        "KVGUICTL_TEST_BROKEN_CLIENTS=1 LD_LIBRARY_PATH='" + folder.Native() + "' '" +
        std::filesystem::read_symlink("/proc/self/exe").string() +
        "' --gtest_filter=EngineModule.AMissingClientLibraryIsAFailureThatNamesIt >'" +
        folder.Native("said") + "' 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0) << folder.Read("said");
    EXPECT_THAT(folder.Read("said"), HasSubstr("[  PASSED  ] 1 test"));
}

}  // namespace
}  // namespace test
