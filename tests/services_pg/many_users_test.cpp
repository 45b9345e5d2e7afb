#include "services_pg/many_users.h"

#include <gmock/gmock.h>

#include "services/kvdbkvn/session_pool.h"
#include "support/postgres_database.h"

namespace test {
namespace {

TEST(ManyUsersOnTheSample, LoseAndTearNothingAndGiveTheirSessionsBack) {
    kv::db::SessionPool::Instance().Clear();
    const PostgresDatabase database(std::string("template ") + kSampleTemplate);
    const ManyUsers all = WorkAtOnce(database.Url(), 4, std::chrono::seconds(3));
    EXPECT_THAT(all.faults, testing::IsEmpty());
    EXPECT_GT(all.picks.size(), 8U);
    EXPECT_GT(all.searches, 0);
    EXPECT_GT(all.comments, 8);
}

}  // namespace
}  // namespace test
