#include "services/kvdbkvn/dialect/translate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libpq-fe.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/text.h"
#include "services/kvdbkvn/dialect/lease_sort.h"
#include "support/dialect_forms.h"
#include "support/postgres_database.h"

namespace {

using kv::dialect::Context;
using kv::dialect::Target;
using kv::dialect::Translate;
using kv::test::DialectForm;
using testing::ElementsAre;

/// A database whose own order of texts is not that of their bytes, with the small tables in the
/// schema "norvadon".
class Database {
public:
    Database()
        : database_(
              "template template0 encoding 'UTF8' locale 'C' locale_provider icu "
              "icu_locale 'en-US'"),
          connection_(PQconnectdb(database_.Url().c_str())) {
        Run("create schema norvadon");
        Run("set search_path to norvadon, public");
        Run(kv::test::kDialectTables);
    }

    /// The rows of the last statement, cells joined by "|".
    std::vector<std::string> Run(const std::string& sql) {
        const std::unique_ptr<PGresult, Clear> result(PQexec(connection_.get(), sql.c_str()));
        const ExecStatusType status = PQresultStatus(result.get());
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK && status != PGRES_EMPTY_QUERY)
            throw std::runtime_error(PQerrorMessage(connection_.get()) + sql);
        std::vector<std::string> rows(static_cast<std::size_t>(PQntuples(result.get())));
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (int column = 0; column < PQnfields(result.get()); ++column)
                rows[row] += (column ? "|" : "") +
                             std::string(PQgetvalue(result.get(), static_cast<int>(row), column));
        return rows;
    }

    std::vector<std::string> RunOracles(const std::string& sql) {
        Context context;
        context.target = Target::kPostgres;
        context.hasSchema = [](const std::string& name) {
            return kv::EqualsNoCase(name, "norvadon");
        };
        return Run(Translate(sql, context).text);
    }

private:
    struct Clear {
        void operator()(PGresult* result) const { PQclear(result); }
        void operator()(PGconn* connection) const { PQfinish(connection); }
    };

    test::PostgresDatabase database_;
    std::unique_ptr<PGconn, Clear> connection_;
};

TEST(DialectOnPostgres, QueriesGiveTheirRows) {
    Database database;
    for (const DialectForm& form : kv::test::DialectQueries())
        EXPECT_EQ(database.RunOracles(form.sql), form.rows) << form.name;
}

TEST(DialectOnPostgres, ChangesHaveTheirEffect) {
    Database database;
    for (const DialectForm& form : kv::test::DialectChanges()) {
        database.Run("begin");
        database.RunOracles(form.sql);
        EXPECT_EQ(database.RunOracles(form.shows), form.rows) << form.name;
        database.Run("rollback");
    }
}

TEST(DialectOnPostgres, LeasesHaveTheKeysOfTheFunction) {
    Database database;
    std::vector<std::string> leases = kv::test::LeasesInOrder();
    leases.insert(leases.end(), {"0", "00A000", "000123456789012345678901234", "7 08 9"});
    for (const std::string& lease : leases)
        EXPECT_THAT(database.RunOracles("select lesort('" + lease + "') from dual"),
                    ElementsAre(kv::dialect::LeaseSortKey(lease)));
}

TEST(DialectOnPostgres, LeasesComeInTheirOrder) {
    Database database;
    const std::vector<std::string>& leases = kv::test::LeasesInOrder();
    database.Run("delete from onshore_lease");
    for (auto lease = leases.rbegin(); lease != leases.rend(); ++lease)
        database.Run("insert into onshore_lease values ('" + *lease + "')");
    EXPECT_EQ(database.RunOracles("select lease from onshore_lease order by lesort(lease)"),
              leases);
}

TEST(DialectOnPostgres, ATextThatIsNoNumberIsAnError) {
    Database database;
    database.Run("update gulf_mexico_lbi set lbnum = 'x' where refnum = 1");
    EXPECT_THROW(database.RunOracles("select to_number(lbnum) from gulf_mexico_lbi"),
                 std::runtime_error);
}

TEST(DialectOnPostgres, TextsAreCutAsOnOracle) {
    Database database;
    for (const auto& [arguments, cut] : {std::pair{"1, 3", "abc"},
                                         {"0, 3", "abc"},
                                         {"3", "cdef"},
                                         {"-2", "ef"},
                                         {"-3, 2", "de"},
                                         {"-7, 3", "-"},
                                         {"7", "-"},
                                         {"2, 0", "-"},
                                         {"1+1, 2", "bc"},
                                         {"1-1, 2", "ab"},
                                         {"1-3, 2", "ef"},
                                         {"1-9, 2", "-"},
                                         {"2, 1-1", "-"}})
        EXPECT_THAT(database.RunOracles(std::string("select nvl(substr('abcdef', ") + arguments +
                                        "), '-') from dual"),
                    ElementsAre(cut))
            << arguments;
}

}  // namespace
