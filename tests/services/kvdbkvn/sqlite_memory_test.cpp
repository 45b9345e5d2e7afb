// What a session on an SQLite file keeps of it in memory.

#include <gmock/gmock.h>

#include <fstream>

#include "support/statement_test.h"

namespace test {
namespace {

/// Six hundred values of some length, each forty times; an index knows them.
constexpr const char* kManyRows =
    "create table kvt (a text, n integer);"
    "with recursive n (i) as (select 1 union all select i + 1 from n where i < 24000) "
    "insert into kvt select printf('%0200d', i % 600), i from n;"
    "create index kvt_i on kvt (a); analyze;";
/// More than is read by chance, less than a page for each value.
constexpr long kLittle = 500'000;

class SqliteMemory : public StatementTest {
protected:
    SqliteMemory() : StatementTest(kManyRows) { manager_.Connect(); }
    ~SqliteMemory() override { manager_.Disconnect(); }

    /// Bytes that this process has read so far.
    static long BytesRead() {
        std::ifstream io("/proc/self/io");
        long bytes = -1;
        for (std::string word; io >> word >> bytes;)
            if (word == "rchar:") return bytes;
        ADD_FAILURE() << "The system does not count";
        return 0;
    }

    CKvDbAbsDataMgr manager_{1};
};

TEST_F(SqliteMemory, ADistinctListOfALargeTableIsReadFromItsFileOnce) {
    const std::string sql = "select distinct a from kvt order by a";
    const long before = BytesRead();
    EXPECT_EQ(manager_.Select(sql), 600);
    const long read = BytesRead();
    EXPECT_GT(read - before, 600 * 4096) << "a page for each value";
    EXPECT_EQ(manager_.Select(sql), 600);
    EXPECT_LT(BytesRead() - read, kLittle);
}

}  // namespace
}  // namespace test
