#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <exception>
#include <functional>
#include <ostream>
#include <string>

#include "frame/kvcom/misc.h"
#include "services/kvdbkvn/session_pool.h"
#include "services_pg/line.h"
#include "support/database_helpers.h"
#include "support/failing_memory.h"
#include "support/postgres_cluster.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"
#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace test {
namespace {

using testing::HasSubstr;

void Use(const std::string& server, const char* user = "", const char* password = "") {
    ConnectTo(CKvDbInfo(user, password, server.c_str()));
}

class PostgresEngine : public testing::Test {
protected:
    PostgresEngine() { Use(database_.Url()); }
    ~PostgresEngine() override { kv::db::SessionPool::Instance().Clear(); }

    std::string Cell(const std::string& sql) {
        manager_.Select(sql);
        return manager_.GetItem(0, 0);
    }

    TempFolder folder_;
    PostgresDatabase database_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(PostgresEngine, UnqualifiedTablesAreFoundInTheApplicationsSchemaFirst) {
    database_.Run(
        "create schema norvadon; create table norvadon.kvt (a text);"
        "create table public.kvt (a text); create table public.kvu (a text);"
        "insert into norvadon.kvt values ('ours'); insert into public.kvt values ('no');"
        "insert into public.kvu values ('public')");
    manager_.Connect();
    EXPECT_EQ(Cell("select a from kvt"), "ours");
    EXPECT_EQ(Cell("select a from NORVADON.kvt"), "ours");
    EXPECT_EQ(Cell("select a from kvu"), "public");
}

TEST_F(PostgresEngine, WithoutThatSchemaItsTablesAreFoundWhereTheyAre) {
    database_.Run("create table kvt (a text); insert into kvt values ('public')");
    manager_.Connect();
    EXPECT_EQ(Cell("select a from NORVADON.kvt"), "public");
}

TEST_F(PostgresEngine, WithoutThatSchemaTheDictionaryNamesItAsOwnerOfTheCurrentOne) {
    database_.Run(
        "create schema other; create table other.kvz_well_hdr (a text);"
        "create table kvt_well_hdr (a text)");
    const std::string sql =
        "select table_name from all_tables where table_name like '%WELL_HDR' and "
        "owner='NORVADON'";
    manager_.Connect();
    manager_.Select(sql);
    EXPECT_EQ(RowsOf(manager_, 1), "KVT_WELL_HDR");
    EXPECT_EQ(Cell("select table_name from all_tables where owner = 'OTHER'"), "KVZ_WELL_HDR");
    manager_.ExecuteDDL("create schema norvadon");
    EXPECT_EQ(manager_.Select(sql), 0);
    manager_.ExecuteDDL("create table norvadon.kvs_well_hdr (a VARCHAR2(10))");
    manager_.Select(sql);
    EXPECT_EQ(RowsOf(manager_, 1), "KVS_WELL_HDR");
}

TEST_F(PostgresEngine, ASchemaMadeOverTheConnectionIsKnownAtOnce) {
    database_.Run("create table kvt (a text); insert into kvt values ('public')");
    manager_.Connect();
    EXPECT_EQ(Cell("select a from NORVADON.kvt"), "public");
    manager_.ExecuteDDL("create schema norvadon");
    manager_.ExecuteDDL("create table norvadon.kvt (a VARCHAR2(10))");
    EXPECT_EQ(Cell("select count(*) from NORVADON.kvt"), "0");
}

TEST_F(PostgresEngine, ASearchPathInTheUrlIsKept) {
    database_.Run(
        "create schema mine; create table mine.kvt (a text);"
        "insert into mine.kvt values ('mine')");
    Use(database_.Url() + "?options=-csearch_path%3Dmine");
    manager_.Connect();
    EXPECT_EQ(Cell("select a from kvt"), "mine");
}

TEST_F(PostgresEngine, ADateIsWrittenYearFirst) {
    database_.Run("alter database " + database_.Name() +
                  " set datestyle to 'German';"
                  "create table kvt (d date); insert into kvt values ('2021-12-31')");
    manager_.Connect();
    EXPECT_EQ(Cell("select d from kvt"), "2021-12-31");
}

TEST_F(PostgresEngine, ADateWithoutATimeIsCutToItsMonth) {
    database_.Run("create table kvt (d date); insert into kvt values ('2024-05-17')");
    manager_.Connect();
    EXPECT_EQ(Cell("select trunc(d, 'MM') from kvt"), "2024-05-01 00:00:00");
    EXPECT_EQ(Cell("select trunc(d) from kvt"), "2024-05-17 00:00:00");
}

TEST_F(PostgresEngine, NumbersOfDoublePrecisionAreRoundedCutAndDivided) {
    database_.Run("create table kvt (x double precision); insert into kvt values (28.4567)");
    manager_.Connect();
    EXPECT_EQ(Cell("select round(x, 2) from kvt"), "28.46");
    EXPECT_EQ(Cell("select trunc(x, 2) from kvt"), "28.45");
    EXPECT_EQ(Cell("select mod(x, 1) from kvt"), "0.4567");
    EXPECT_EQ(Cell("select mod(x, 0) from kvt"), "28.4567");
}

TEST_F(PostgresEngine, AYearOfFourDigitsStaysWhereTwoAreNamed) {
    manager_.Connect();
    EXPECT_EQ(Cell("select to_date(t, 'DD-MON-YY') from (select '01-JAN-1985' t from dual) x"),
              "1985-01-01 00:00:00");
    EXPECT_EQ(Cell("select to_date(t, 'DD.MM.RR') from (select '01.01.2055' t from dual) x"),
              "2055-01-01 00:00:00");
    EXPECT_EQ(Cell("select to_date(t, 'YYMMDDHH24MI') from (select '8501171345' t from dual) x"),
              "2085-01-17 13:45:00");
}

TEST(PostgresBytes, TextThatIsNotUtf8ComesThroughWhereTheServerHoldsBytes) {
    TempFolder folder;
    const PostgresDatabase database("encoding 'SQL_ASCII' locale 'C' template template0");
    database.Run(
        "create table kvt (a text); set client_encoding to SQL_ASCII;"
        "insert into kvt values (E'A\\377B')");
    Use(database.Url());
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    EXPECT_EQ(manager.Insert("insert into kvt values ('C\xFE')"), 1);
    manager.Select("select a from kvt order by a");
    EXPECT_EQ(RowsOf(manager, 1),
              "A\xFF"
              "B C\xFE");
    kv::db::SessionPool::Instance().Clear();
}

TEST(PostgresBytes, AServerOfAnotherEncodingTakesAndGivesUtf8) {
    TempFolder folder;
    const PostgresDatabase database("encoding 'LATIN1' locale 'C' template template0");
    database.Run("create table kvt (a text)");
    Use(database.Url());
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    manager.Insert("insert into kvt values ('28\xC2\xB0')");
    ASSERT_EQ(manager.Select("select a, octet_length(a) from kvt"), 1);
    EXPECT_STREQ(manager.GetItem(0, 0), "28\xC2\xB0");
    EXPECT_STREQ(manager.GetItem(0, 1), "3");
    kv::db::SessionPool::Instance().Clear();
}

TEST_F(PostgresEngine, InvalidTextIsRefusedByAServerThatHoldsUtf8) {
    database_.Run("create table kvt (a text)");
    manager_.Connect();
    manager_.Insert("insert into kvt values ('before')");
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt values ('C\xFE')"); }),
                HasSubstr("UTF8"));
    manager_.Insert("insert into kvt values ('behind')");
    manager_.Disconnect();
    EXPECT_EQ(database_.Run("select string_agg(a, ' ' order by a) from kvt"), "before behind");
}

TEST_F(PostgresEngine, AFailureSaysWhatTheServerSaidWithItsDetail) {
    database_.Run("create table kvt (a text primary key)");
    manager_.Connect();
    manager_.Insert("insert into kvt values ('x')");
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt values ('x')"); }),
                AllOf(HasSubstr("duplicate key"), HasSubstr("(a)=(x) already exists")));
}

TEST_F(PostgresEngine, ATextThatCopiesRowsOrEndsTheTransactionIsRefusedAndTheTransactionLivesOn) {
    database_.Run("create table kvt (a text)");
    manager_.Connect();
    manager_.Insert("insert into kvt values ('x')");
    for (const char* sql : {"copy kvt from stdin", "rollback", "end", "savepoint s"})
        EXPECT_THAT(FailureOf([&] { manager_.ExecuteDML(sql); }), HasSubstr("Refused: ")) << sql;
    manager_.Insert("insert into kvt values ('y')");
    manager_.Disconnect();
    EXPECT_EQ(database_.Run("select string_agg(a, ' ') from kvt"), "x y");
}

TEST_F(PostgresEngine, ATextThatEndsTheTransactionBehindACommentIsRefusedAsAQuery) {
    database_.Run("create table kvt (a text)");
    manager_.Connect();
    manager_.Insert("insert into kvt values ('x')");
    for (const char* sql : {"/* select */ end", "-- with\nabort", "/* select */ discard plans"})
        EXPECT_THAT(FailureOf([&] { manager_.Select(sql); }), HasSubstr("Refused: ")) << sql;
    EXPECT_EQ(Cell("select a from kvt"), "x");
    manager_.Rollback();
    EXPECT_EQ(database_.Run("select count(*) from kvt"), "0");
}

TEST_F(PostgresEngine, AQueryIsAskedAndAnsweredInOneTurn) {
    database_.Run("create table kvt (a text); insert into kvt values ('x')");
    const Line line(database_);
    Use(line.Url());
    manager_.Connect();
    EXPECT_EQ(Cell("select a from kvt"), "x");
    int before = line.Turns();
    EXPECT_EQ(Cell("select a from kvt"), "x");
    EXPECT_EQ(line.Turns() - before, 1);
    manager_.Insert("insert into kvt values ('y')");
    before = line.Turns();
    EXPECT_EQ(Cell("select count(*) from kvt"), "2");
    EXPECT_EQ(line.Turns() - before, 1) << "among changes";
    manager_.Rollback();
    manager_.Disconnect();
    kv::db::SessionPool::Instance().Clear();
}

TEST_F(PostgresEngine, ASettingChangedWithinAQueryEndsWithIt) {
    manager_.Connect();
    manager_.Select("select set_config('search_path', 'pg_catalog', false)");
    EXPECT_THAT(Cell("select current_setting('search_path')"), HasSubstr("norvadon"));
}

TEST_F(PostgresEngine, AnIdleSessionHoldsNoTransactionOpen) {
    database_.Run("create table kvt (a text)");
    manager_.Connect();
    manager_.Select("select a from kvt");
    EXPECT_EQ(database_.Run("select state from pg_stat_activity where datname = '" +
                            database_.Name() + "' and application_name = 'KVGuiCtl'"),
              "idle");
}

TEST_F(PostgresEngine, AnUnknownDatabaseIsAFailure) {
    Use(database_.Url() + "_not");
    EXPECT_THAT(FailureOf([&] { manager_.Connect(); }),
                AllOf(HasSubstr("Cannot connect to PostgreSQL"), HasSubstr("does not exist")));
    EXPECT_FALSE(manager_.IsConnected());
    manager_.FreeData();
    manager_.Disconnect();
    manager_.Disconnect();
    EXPECT_EQ(manager_.NumberOfRows(), 0);
}

TEST_F(PostgresEngine, APasswordIsTakenFromTheRecordAheadOfTheUrl) {
    std::string url = database_.Url();
    url.replace(url.find("//kv@"), 5, "//guarded:wrong-one@");
    Use(url, "", PostgresCluster::kGuardedPassword);
    manager_.Connect();
    EXPECT_EQ(Cell("select current_user"), "guarded");
    manager_.Disconnect();
    Use(database_.Url(), "guarded", PostgresCluster::kGuardedPassword);
    manager_.Connect();
    EXPECT_EQ(Cell("select current_user"), "guarded");
}

TEST_F(PostgresEngine, NoPasswordStandsInAFailureOrInTheLog) {
    const std::string url = database_.Url();
    const auto with = [&](const std::string& user) {
        return std::string(url).replace(url.find("//kv@"), 5, "//" + user + "@");
    };
    for (const std::string& server :
         {with("guarded:s3cret-61"), with("guarded:s3cret-61@s3cret-62"),
          with("guarded:s3cret-61/s3cret-62"), with("guarded:s3cret-61?s3cret-62"),
          url + "?user=guarded&password=s3cret-61", url + "?password=s3cret-61&nonsense=1",
          std::string("postgresql://guarded:s3cret-61:s3cret-62@[/db")}) {
        SCOPED_TRACE(server);
        Use(server, "guarded", "s3cret-63");
        const std::string failure = FailureOf([&] { manager_.Connect(); });
        EXPECT_NE(failure, "");
        EXPECT_THAT(failure, Not(HasSubstr("s3cret")));
    }
    EXPECT_THAT(folder_.Read("log.txt"), Not(HasSubstr("s3cret")));
}

TEST_F(PostgresEngine, TheSchemeOfTheUrlMayBeInCapitals) {
    for (const std::string scheme : {"POSTGRESQL", "Postgres"}) {
        const std::string url = database_.Url();
        Use(scheme + url.substr(url.find(':')));
        manager_.Connect();
        EXPECT_EQ(Cell("select current_database()"), database_.Name());
        manager_.Disconnect();
    }
}

TEST_F(PostgresEngine, AUrlTakenApartConnectsAsTheWholeOneDoes) {
    std::string url = database_.Url();
    Use(url.replace(url.find("//kv@"), 5,
                    std::string("//guarded:") + PostgresCluster::kGuardedPassword + "@"));
    std::string user;
    std::string password;
    std::string server;
    CKvMisc::GetParsedConnectString(user, password, server, true);
    EXPECT_EQ(server + "|" + user, database_.Url().replace(url.find("//"), 5, "//") + "|guarded");
    Use(server, user.c_str(), password.c_str());
    manager_.Connect();
    EXPECT_EQ(Cell("select current_user"), "guarded");
}

TEST_F(PostgresEngine, AnIdleSessionThatTheServerClosedIsReplacedWhenItIsLent) {
    manager_.Connect();
    const std::string first = Cell("select pg_backend_pid()");
    manager_.Disconnect();
    // Answers when the session has ended.
    database_.Run("select pg_terminate_backend(" + first + ", 10000)");
    manager_.Connect();
    EXPECT_NE(Cell("select pg_backend_pid()"), first);
}

/// On the shared server, by its own driver and over ODBC.
class PostgresSessions : public testing::TestWithParam<bool> {
protected:
    PostgresSessions() {
        kv::db::SessionPool::Instance().Clear();
        Use(GetParam() ? "odbc:Driver=PostgreSQL Unicode;Servername=" + database_.SocketFolder() +
                             ";Database=" + database_.Name() + ";UID=kv"
                       : database_.Url());
        manager_.Connect();
    }
    ~PostgresSessions() override { kv::db::SessionPool::Instance().Clear(); }

    /// How many advisory locks are held in this test's database.
    std::string Locks() {
        return database_.Run(
            "select count(*) from pg_locks where locktype = 'advisory' and "
            "database = (select oid from pg_database where datname = "
            "current_database())");
    }

    TempFolder folder_;
    PostgresDatabase database_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_P(PostgresSessions, ALockThatAQueryTookEndsWithIt) {
    manager_.Select("select pg_advisory_lock(61)");
    EXPECT_EQ(Locks(), "0");
    EXPECT_NE(FailureOf([&] { manager_.Select("select pg_advisory_lock(61), 1 / 0"); }), "");
    EXPECT_EQ(Locks(), "0");
}

TEST_P(PostgresSessions, OneThatWasTakenAmongChangesEndsWithThem) {
    database_.Run("create table kvt (a text)");
    for (const bool keep : {true, false}) {
        manager_.Insert("insert into kvt values ('x')");
        manager_.Select("select pg_advisory_lock(61)");
        EXPECT_EQ(Locks(), "1");
        if (keep)
            manager_.Commit();
        else
            manager_.Rollback();
        EXPECT_EQ(Locks(), "0");
    }
    EXPECT_EQ(database_.Run("select count(*) from kvt"), "1");
}

TEST_P(PostgresSessions, ABackslashInATextIsABackslash) {
    database_.Run("alter database " + database_.Name() +
                  " set standard_conforming_strings to off; create table kvt (a text)");
    manager_.Disconnect();
    kv::db::SessionPool::Instance().Clear();
    manager_.Connect();
    manager_.Insert("insert into kvt values ('C:\\new\\')");
    ASSERT_EQ(manager_.Select("select a from kvt where a <> '\\'"), 1);
    EXPECT_STREQ(manager_.GetItem(0, 0), "C:\\new\\");
}

TEST_P(PostgresSessions, OneThatThereIsNoMemoryToRollBackIsClosed) {
    database_.Run("create table kvt (a text)");
    manager_.Insert("insert into kvt values ('lost')");
    {
        const FailingMemory none;
        manager_.Rollback();
    }
    manager_.Insert("insert into kvt values ('kept')");
    manager_.Commit();
    EXPECT_EQ(database_.Run("select string_agg(a, ' ') from kvt"), "kept");
}

TEST_P(PostgresSessions, ACommitThatRunsOutOfMemoryTellsTruly) {
    database_.Run("create table kvt (a text)");
    int kept = 0;
    bool failed = true;
    for (int first = 1; failed && first < 100; ++first) {
        manager_.Insert("insert into kvt values ('x')");
        {
            const FailingMemory fault(first);
            try {
                manager_.Commit();
                ++kept;
            } catch (const std::exception&) {
                // Nothing is kept then.
            }
            failed = fault.Failed();
        }
        EXPECT_EQ(database_.Run("select count(*) from kvt"), std::to_string(kept)) << first;
    }
    EXPECT_FALSE(failed);
}

TEST_P(PostgresSessions, AStatementThatAnAdministratorEndedIsNotRunAgain) {
    database_.Run(
        "create sequence kvs; create table kvt (a text);"
        "create function kv_ends() returns text language plpgsql as "
        "'begin perform nextval(''kvs''); perform pg_terminate_backend(pg_backend_pid()); "
        "perform pg_sleep(60); return 1; end';"
        // A sequence is counted on whatever becomes of the transaction.
        "create function kv_starts() returns trigger language plpgsql as "
        "'begin new.a = kv_ends(); return new; end';"
        "create trigger kv_start before insert on kvt for each row execute function kv_starts()");
    EXPECT_NE(FailureOf([&] { manager_.Insert("insert into kvt values ('x')"); }), "");
    EXPECT_EQ(database_.Run("select last_value, is_called from kvs"), "1");
    EXPECT_EQ(manager_.Select("select a from kvt"), 0);
    EXPECT_NE(FailureOf([&] {
                  manager_.Select("select pg_terminate_backend(pg_backend_pid()), pg_sleep(60)");
              }),
              "");
    EXPECT_EQ(manager_.Select("select a from kvt"), 0);
}

INSTANTIATE_TEST_SUITE_P(Engines, PostgresSessions, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& odbc) {
                             return odbc.param ? "PostgresOverOdbc" : "Postgres";
                         });

/// A server that can be stopped, and how to reach it.
struct StoppableServer {
    std::string name;
    std::function<std::string(const PostgresCluster&)> text;
};

void PrintTo(const StoppableServer& server, std::ostream* out) {
    *out << server.name;
}

class StoppedServer : public testing::TestWithParam<StoppableServer> {
protected:
    StoppedServer() {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        kv::db::SessionPool::Instance().Clear();
        PostgresClient(cluster_.Url())
            .Run(
                "create table kvt (a text);"
                "insert into kvt values ('one'), ('two')");
        Use(GetParam().text(cluster_), "", "s3cret-64");
        manager_.Connect();
    }
    ~StoppedServer() override { kv::db::SessionPool::Instance().Clear(); }

    TempFolder folder_;
    kv::HeadlessDesktop desktop_;
    PostgresCluster cluster_;
    CKvDbAbsDataMgr manager_{1};
};

TEST_P(StoppedServer, BetweenTwoRowsTheRowsThatWereSelectedCanStillBeRead) {
    ASSERT_EQ(manager_.Select("select a from kvt order by a"), 2);
    EXPECT_STREQ(manager_.GetItem(0, 0), "one");
    cluster_.Stop();
    EXPECT_STREQ(manager_.GetItem(1, 0), "two");
    EXPECT_NE(FailureOf([&] { manager_.Select("select a from kvt"); }), "");
    manager_.FreeData();
    manager_.Disconnect();
    EXPECT_NE(FailureOf([&] { manager_.Connect(); }), "");
    EXPECT_FALSE(manager_.IsConnected());
}

TEST_P(StoppedServer, BetweenConnectAndSelectTheSelectFailsUntilTheServerIsBack) {
    cluster_.Stop();
    EXPECT_NE(FailureOf([&] { manager_.Select("select a from kvt"); }), "");
    EXPECT_EQ(manager_.NumberOfRows(), 0);
    EXPECT_NE(FailureOf([&] { manager_.Insert("insert into kvt values ('three')"); }), "");
    cluster_.Start();
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
}

TEST_P(StoppedServer, StartedAgainTheFirstStatementFindsIt) {
    cluster_.Stop();
    cluster_.Start();
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
    cluster_.Stop();
    cluster_.Start();
    EXPECT_EQ(manager_.Insert("insert into kvt values ('three')"), 1);
    manager_.Disconnect();
    EXPECT_EQ(PostgresClient(cluster_.Url()).Run("select count(*) from kvt"), "3");
}

TEST_P(StoppedServer, StartedAgainTheFirstStatementOnATableNotAskedBeforeFindsIt) {
    PostgresClient(cluster_.Url()).Run("create table kvu (b text); insert into kvu values ('x')");
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
    cluster_.Stop();
    cluster_.Start();
    EXPECT_EQ(manager_.Select("select b from kvu where b < 'y' order by b"), 1);
}

TEST_P(StoppedServer, StartedAgainIdleSessionsAreReplaced) {
    CKvDbAbsDataMgr second(1);
    second.Connect();
    second.Disconnect();
    manager_.Disconnect();
    EXPECT_EQ(kv::db::SessionPool::Instance().Idle(), 2u);
    cluster_.Stop();
    cluster_.Start();
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
}

TEST_P(StoppedServer, ChangesThatWereLostAreNotCommittedInPart) {
    manager_.Insert("insert into kvt values ('lost')");
    cluster_.Stop();
    cluster_.Start();
    EXPECT_THAT(FailureOf([&] { manager_.Insert("insert into kvt values ('late')"); }),
                HasSubstr("what it had not committed is undone"));
    EXPECT_FALSE(manager_.IsConnected());
    EXPECT_NE(FailureOf([&] { manager_.Insert("insert into kvt values ('later')"); }), "");
    manager_.Disconnect();
    EXPECT_EQ(PostgresClient(cluster_.Url()).Run("select count(*) from kvt"), "2");
    manager_.Connect();
    EXPECT_EQ(manager_.Select("select a from kvt"), 2);
}

TEST_P(StoppedServer, StartedAgainAheadOfACommitTheCommitSaysThatAllIsLost) {
    manager_.Insert("insert into kvt values ('lost')");
    cluster_.Stop();
    cluster_.Start();
    EXPECT_THAT(FailureOf([&] { manager_.Commit(); }),
                testing::AnyOf(HasSubstr("what it had not committed is undone"),
                               HasSubstr("is not known, since the connection was lost")));
    manager_.Rollback();
    manager_.Disconnect();
    EXPECT_EQ(PostgresClient(cluster_.Url()).Run("select count(*) from kvt"), "2");
}

TEST_P(StoppedServer, ADisconnectThatCannotCommitIsShownWithoutThePassword) {
    manager_.Insert("insert into kvt values ('lost')");
    cluster_.Stop();
    cluster_.Start();
    desktop_.ExpectMessage("");
    manager_.Disconnect();
    EXPECT_FALSE(manager_.IsConnected());
    ASSERT_EQ(desktop_.Messages().size(), 1u);
    EXPECT_THAT(desktop_.Messages()[0],
                testing::AnyOf(HasSubstr("undone"), HasSubstr("not known")));
    EXPECT_THAT(desktop_.Messages()[0], Not(HasSubstr("s3cret")));
}

INSTANTIATE_TEST_SUITE_P(
    Engines, StoppedServer,
    testing::Values(StoppableServer{"Postgres",
                                    [](const PostgresCluster& cluster) { return cluster.Url(); }},
                    StoppableServer{"PostgresOverOdbc",
                                    [](const PostgresCluster& cluster) {
                                        return "odbc:Driver=PostgreSQL Unicode;Servername=" +
                                               cluster.Folder() + ";Database=postgres;UID=kv";
                                    }}),
    [](const testing::TestParamInfo<StoppableServer>& server) { return server.param.name; });

}  // namespace
}  // namespace test
