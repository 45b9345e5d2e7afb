// What the qualifier dialogs ask, on every engine: the same rows in the same order.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "sampledata/dataset.h"
#include "sampledata/loader_postgres.h"
#include "sampledata/loader_sqlite.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/postgres_database.h"
#include "support/temp_folder.h"

namespace test {
namespace {

struct Query {
    const char* form;
    const char* sql;
};

constexpr Query kQueries[] = {
    {"one column, contain",
     "select distinct lessee from NORVADON.gulf_mexico_lease where lessee like '%MINERALS%'"},
    {"one column, start with",
     "select distinct company from NORVADON.gulf_mexico_company where company like 'EXAMPLE E%'"},
    {"one column, end with",
     "select distinct operator from NORVADON.gulf_mexico_lease where operator like '%LLC'"},
    {"one column, all of it",
     "select distinct company from NORVADON.gulf_mexico_lease_owner where company like '%%'"},
    {"one column, a percent sign typed in",
     "select distinct lessee from NORVADON.gulf_mexico_lease where lessee like '%A%E%'"},
    {"one column, any character typed in",
     "select distinct lease_no from NORVADON.gulf_mexico_lease where lease_no like '%1_3%'"},
    {"one column, in lease order",
     "(select distinct lease_no from NORVADON.gulf_mexico_lease where lease_no like '%12%') order "
     "by lesort(lease_no) "},
    {"several tables",
     " select distinct operator from NORVADON.gulf_mexico_lease where operator like '%O%' UNION "
     "select distinct operator from NORVADON.gulf_mexico_operator where operator like '%O%' UNION "
     "select distinct operator from NORVADON.gulf_mexico_pipeline where operator like '%O%'"},
    {"several tables, in lease order",
     "( select distinct lease_no from NORVADON.gulf_mexico_lease where lease_no like '%7' UNION "
     "select distinct lease_no from NORVADON.gulf_mexico_bid where lease_no like '%7') order by "
     "lesort(lease_no) "},
    {"two columns",
     "((SELECT DISTINCT lessee FROM NORVADON.gulf_mexico_lease WHERE lessee LIKE '%E%') UNION "
     "(SELECT DISTINCT operator FROM NORVADON.gulf_mexico_lease WHERE operator LIKE '%E%')) ORDER "
     "BY lessee"},
    {"leases of two datasets",
     "select distinct lease_no from NORVADON.gulf_mexico_lease where lease_no like '%5%' and "
     "lplana in ('C', 'E', 'W', 'T') "},
    {"leases of one dataset",
     "select distinct lease_no from NORVADON.gulf_mexico_lease where lease_no like '%%' and lplana "
     "in ('L') "},
    {"leases of one dataset, in lease order",
     "(select distinct lease_no from NORVADON.gulf_mexico_lease where lease_no like '%%' and "
     "lplana in ('L') ) order by lesort(lease_no) "},
    {"operators under keys",
     "SELECT DISTINCT operator FROM NORVADON.gulf_mexico_operator WHERE areacode in ('43013', "
     "'43008') AND operator LIKE '%' ORDER BY operator"},
    {"operators under a query",
     "SELECT DISTINCT operator FROM NORVADON.gulf_mexico_operator WHERE areacode in (select stcode "
     "from NORVADON.gulf_mexico_connam2 where area_abbr = 'VR') AND operator LIKE 'SAMPLE%' ORDER "
     "BY "
     "operator"},
    {"columns put together",
     "select distinct lease_no||company from NORVADON.gulf_mexico_lease_owner where "
     "lease_no||company like '%1%'"},
    {"nothing matches",
     "select distinct lessee from NORVADON.gulf_mexico_lease where lessee like '%no such name%'"},
};

constexpr Query kRefused[] = {
    {"a quote typed in",
     "select distinct lessee from NORVADON.gulf_mexico_lease where lessee like '%O'NEIL%'"},
    {"a last table without a name",
     " select distinct lessee from NORVADON.gulf_mexico_lease where lessee like '%A%' UNION select "
     "distinct lessee from  where lessee like '%A%'"},
    {"a column without a name",
     "select distinct  from NORVADON.gulf_mexico_lease where  like '%A%'"},
    {"a statement typed in",
     "select distinct lessee from NORVADON.gulf_mexico_lease where lessee like '%'; delete from "
     "NORVADON.gulf_mexico_lease; --%'"},
};

using Rows = std::vector<std::string>;

/// The rows of each query on that server; none for a query that is refused.
std::vector<std::optional<Rows>> Answers(const std::string& server,
                                         std::span<const Query> queries) {
    ConnectTo(CKvDbInfo("", "", server.c_str()));
    std::vector<std::optional<Rows>> answers;
    for (const Query& query : queries) {
        CKvDbAbsDataMgr manager(1);
        answers.emplace_back();
        const std::string failure = FailureOf([&] {
            manager.Connect();
            manager.Select(query.sql);
            Rows& rows = answers.back().emplace();
            for (int row = 0; row < manager.NumberOfRows(); ++row) {
                rows.emplace_back(manager.GetItem(row, 0));
            }
        });
        EXPECT_EQ(failure.empty(), answers.back().has_value());
    }
    return answers;
}

class QualifierQueries : public testing::Test {
protected:
    QualifierQueries() {
        kv::sample::SqliteLoader sqlite(path_);
        Load(sqlite);
        kv::sample::PostgresLoader postgres(database_.Url(), false);
        Load(postgres);
    }
    ~QualifierQueries() override { kv::db::SessionPool::Instance().Clear(); }

    std::string Sqlite() const { return "sqlite:" + path_; }
    /// The other engines by name.
    std::vector<std::pair<const char*, std::string>> Others() const {
        return {{"PostgreSQL", database_.Url()},
                {"SQLite over ODBC", "odbc:Driver=SQLite3;Database=" + path_},
                {"PostgreSQL over ODBC",
                 "odbc:Driver=PostgreSQL Unicode;Servername=" + database_.SocketFolder() +
                     ";Database=" + database_.Name() + ";UID=kv"}};
    }

private:
    template <typename Loader>
    static void Load(Loader& loader) {
        kv::sample::WriteDataset(loader, [](const std::string&) {});
        loader.Finish();
    }

    TempFolder folder_;
    PostgresDatabase database_;
    std::string path_ = folder_.Native("sample.db");
};

TEST_F(QualifierQueries, GiveTheSameRowsOnEveryEngine) {
    const auto expected = Answers(Sqlite(), kQueries);
    for (std::size_t i = 0; i < std::size(kQueries); ++i) {
        SCOPED_TRACE(kQueries[i].form);
        ASSERT_TRUE(expected[i]);
        EXPECT_EQ(expected[i]->empty(), kQueries[i].form == std::string("nothing matches"));
    }
    for (const auto& [name, server] : Others()) {
        const auto answers = Answers(server, kQueries);
        for (std::size_t i = 0; i < std::size(kQueries); ++i) {
            EXPECT_EQ(answers[i], expected[i]) << name << ": " << kQueries[i].form;
        }
    }
}

TEST_F(QualifierQueries, AreRefusedOnEveryEngineAndHarmNothing) {
    auto engines = Others();
    engines.emplace_back("SQLite", Sqlite());
    for (const auto& [name, server] : engines) {
        SCOPED_TRACE(name);
        const auto before = Answers(server, std::span(kQueries).first(1));
        for (const auto& answer : Answers(server, kRefused))
            EXPECT_FALSE(answer);
        EXPECT_EQ(Answers(server, std::span(kQueries).first(1)), before);
    }
}

}  // namespace
}  // namespace test
