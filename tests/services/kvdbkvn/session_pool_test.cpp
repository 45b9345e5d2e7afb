#include "services/kvdbkvn/session_pool.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/database_helpers.h"
#include "support/failing_memory.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

TEST(SessionPool, ClosesASessionThatThereIsNoMemoryToKeep) {
    const TempFolder folder;
    const std::string path = folder.Native("kv.db");
    RunOnSqliteFile(path, "create table kvt (a text)");
    const CKvDbInfo info("", "", ("sqlite:" + path).c_str());
    kv::db::SessionPool& pool = kv::db::SessionPool::Instance();
    pool.Clear();
    auto session = pool.Borrow(info);
    {
        const FailingMemory none;
        pool.GiveBack(info, std::move(session));
    }
    EXPECT_EQ(pool.Idle(), 0u);
    pool.GiveBack(info, pool.Borrow(info));
    EXPECT_EQ(pool.Idle(), 1u);
    pool.Clear();
}

}  // namespace
}  // namespace test
