#include "services_pg/many_users.h"

#include <gmock/gmock.h>

#include <thread>

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

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(SessionsOfManyUsers, AreToldOfWhereOneIsWithinATransactionOrInNoPool) {
    const PostgresDatabase database;
    PostgresClient client(database.Url());
    PostgresClient other(database.Url());
    EXPECT_THAT(FaultsOfSessions(client, 1), IsEmpty());
    EXPECT_THAT(FaultsOfSessions(client, 0),
                ElementsAre("a session was not given back to its pool: 1 are open, 0 in pools"));
    other.Run("begin");
    EXPECT_THAT(FaultsOfSessions(client, 1),
                ElementsAre(HasSubstr("within a transaction: idle in transaction, begin")));
}

/// Lets the server clean up behind changes every second instead of every minute.
class OftenCleaningUp {
public:
    explicit OftenCleaningUp(PostgresClient& client) : client_(client) {
        client_.Run("alter system set autovacuum_naptime = 1");
        client_.Run("select pg_reload_conf()");
    }
    ~OftenCleaningUp() {
        client_.Run("alter system reset autovacuum_naptime");
        client_.Run("select pg_reload_conf()");
    }
    OftenCleaningUp(const OftenCleaningUp&) = delete;
    OftenCleaningUp& operator=(const OftenCleaningUp&) = delete;

private:
    PostgresClient& client_;
};

TEST(SessionsOfManyUsers, AreNotWhatTheServerCleansUpWith) {
    const PostgresDatabase database;
    PostgresClient client(database.Url());
    const OftenCleaningUp often(client);
    // It pauses behind each page, and so is at it for longer than this test.
    database.Run(
        "create table changed with (autovacuum_vacuum_threshold = 1, "
        "autovacuum_vacuum_scale_factor = 0, autovacuum_vacuum_cost_delay = 100, "
        "autovacuum_vacuum_cost_limit = 1) as select repeat('x', 500) from "
        "generate_series(1, 20000)");
    database.Run("delete from changed");
    const auto workers = [&] {
        return client.Run(
            "select count(*) from pg_stat_activity where datname = current_database() and "
            "backend_type = 'autovacuum worker'");
    };
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (workers() == "0" && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_THAT(FaultsOfSessions(client, 0), IsEmpty());
    EXPECT_EQ(workers(), "1") << "it was there all the time";
}

}  // namespace
}  // namespace test
