#include "frame/kvdbkvn/db_abs_data_mgr.h"

#include <gtest/gtest.h>

#include <exception>
#include <string_view>

#include "frame/kvdbkvn/database_fault.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/failing_memory.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

TEST(DbAbsDataMgr, ADisconnectWithoutMemoryToTellThatItCannotCommitThrowsNothing) {
    const TempFolder folder;
    const std::string path = folder.Native("kv.db");
    RunOnSqliteFile(path, "create table kvt (a text)");
    ConnectTo(CKvDbInfo("", "", ("sqlite:" + path).c_str()));
    // The commit, its words and the message take one each at least, so none is shown.
    for (int first = 1; first <= 3; ++first) {
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Insert("insert into kvt values ('x')");
        kv::db::SetDatabaseFault([](std::string_view) { return true; });
        bool thrown = false;
        {
            const FailingMemory fault(first);
            try {
                manager.Disconnect();
            } catch (const std::exception&) {
                thrown = true;
            }
        }
        kv::db::SetDatabaseFault(nullptr);
        EXPECT_FALSE(thrown) << first;
        EXPECT_FALSE(manager.IsConnected()) << first;
        manager.Connect();
        EXPECT_EQ(manager.Select("select a from kvt"), 0) << first;
        manager.Disconnect();
    }
    kv::db::SessionPool::Instance().Clear();
}

}  // namespace
}  // namespace test
