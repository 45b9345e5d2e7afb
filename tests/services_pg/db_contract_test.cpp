#include "support/database_contract.h"
#include "support/postgres_database.h"

namespace test {
namespace {

class PostgresContract : public ContractDatabase {
public:
    explicit PostgresContract(bool odbc) : odbc_(odbc) {
        Raw("create schema norvadon;"
            "create table kv_log (a text); create sequence kv_sequence;"
            "create function kv_writes() returns int language sql as "
            "'insert into kv_log values (''w''); select 1'");
    }

    CKvDbInfo Info() const override {
        const std::string odbc =
            "odbc:Driver=PostgreSQL Unicode;Servername=" + database_.SocketFolder() +
            ";Database=" + database_.Name() + ";UID=kv";
        return {"", "", (odbc_ ? odbc : database_.Url()).c_str()};
    }
    void Raw(const std::string& sql) const override {
        database_.Run("set search_path to norvadon; " + sql);
    }
    std::string ManyRows() const override {
        return "insert into kvt select 'row', i from generate_series(1, 100000) i";
    }
    std::string FailsAtThree() const override {
        return "select 1 / (b - 3) from kvt where b > 0 order by b";
    }
    std::vector<std::string> WritingTexts() const override {
        return {"insert into kvt values ('w', 900) returning a",
                "with x as (insert into kvt values ('w', 900) returning a) select a from x",
                "with x as (delete from kvt returning a) select a from x",
                "select a into kvu from kvt",
                "select kv_writes()",
                "select kv_writes() from kvt",
                "select nextval('kv_sequence')",
                "select a from kvt for update",
                "with ro as (select set_config('transaction_read_only', 'off', true) as x) "
                "select kv_writes(), x from ro",
                "select a from kvt where b = 1 /* /* */ ' */; commit; delete from kvt --'",
                "truncate kvt",
                "copy kvt from stdin",
                "copy kvt to stdout",
                "lock table kvt",
                "begin",
                "savepoint s",
                "set transaction read write",
                "do 'begin delete from kvt; end'",
                "explain analyze delete from kvt",
                "prepare p as delete from kvt",
                "declare c cursor for select a from kvt",
                "alter table kvt rename to kvx",
                "vacuum"};
    }

    std::shared_ptr<void> ForbidCommit() const override {
        Raw("alter table kvt add constraint kv_once unique (a) deferrable initially deferred");
        return std::shared_ptr<void>(
            nullptr, [this](void*) { Raw("alter table kvt drop constraint kv_once"); });
    }

private:
    PostgresDatabase database_;
    bool odbc_;
};

ContractEngine Engine(const std::string& name, bool odbc) {
    return {name, [=] { return std::make_unique<PostgresContract>(odbc); }};
}

INSTANTIATE_TEST_SUITE_P(Engines, DatabaseContract,
                         testing::Values(Engine("Postgres", false),
                                         Engine("PostgresOverOdbc", true)),
                         NameOfEngine);

}  // namespace
}  // namespace test
