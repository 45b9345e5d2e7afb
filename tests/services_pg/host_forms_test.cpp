// On PostgreSQL in databases whose own order of texts is that of their bytes, and another.

#include "support/host_forms_contract.h"
#include "support/postgres_database.h"

namespace test {
namespace {

constexpr const char* kIcu =
    "template template0 encoding 'UTF8' locale 'C' locale_provider icu icu_locale 'en-US'";

class PostgresHost : public HostDatabase {
public:
    explicit PostgresHost(const std::string& options, bool odbc) : database_(options), odbc_(odbc) {
        database_.Run("create schema norvadon; set search_path to norvadon; " +
                      std::string(kv::test::kDialectTables));
    }
    std::string Server() const override {
        if (!odbc_) return database_.Url();
        return "odbc:Driver=PostgreSQL Unicode;Servername=" + database_.SocketFolder() +
               ";Database=" + database_.Name() + ";UID=kv";
    }
    const PostgresDatabase& Database() const { return database_; }

private:
    PostgresDatabase database_;
    bool odbc_;
};

HostEngine Postgres(const char* name, const char* options, bool odbc) {
    return {name, true, [=] { return std::make_unique<PostgresHost>(options, odbc); }};
}

TEST_P(HostForms, AreToldWhenTheServerTakesNoChanges) {
    const PostgresDatabase& database = static_cast<PostgresHost&>(*database_).Database();
    database.Run("alter database " + database.Name() + " set default_transaction_read_only = on");
    kv::db::SessionPool::Instance().Clear();
    CKvDbAbsDataMgr manager(1);
    manager.Connect();
    const std::string failure =
        FailureOf([&] { manager.Insert("insert into plans (area1) values ('w')"); });
    EXPECT_THAT(failure, HasSubstr("cannot execute INSERT in a read-only transaction"));
    EXPECT_THAT(failure, Not(HasSubstr("only a statement that reads")));
}

INSTANTIATE_TEST_SUITE_P(Engines, HostForms,
                         testing::Values(Postgres("PostgresByByte", "", false),
                                         Postgres("PostgresByIcu", kIcu, false),
                                         Postgres("PostgresByIcuOverOdbc", kIcu, true)),
                         [](const auto& engine) { return engine.param.name; });

}  // namespace
}  // namespace test
