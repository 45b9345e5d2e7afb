#include "kvload/store_postgres.h"

#include <libpq-fe.h>

#include <set>
#include <stdexcept>

#include "base/text.h"
#include "sampledata/copy_text.h"

namespace kvload {
namespace {

using kv::sample::Row;
using kv::sample::Table;

constexpr size_t kSendAt = 1 << 16;

struct Release {
    void operator()(PGconn* connection) const { PQfinish(connection); }
    void operator()(PGresult* result) const { PQclear(result); }
};
using Connection = std::unique_ptr<PGconn, Release>;
using Result = std::unique_ptr<PGresult, Release>;

/// A host that does not answer, or no longer answers, is given up within seconds.
Connection Connect(const std::string& server) {
    const char* const keywords[] = {"connect_timeout", "tcp_user_timeout", "application_name",
                                    "client_encoding", "dbname",           nullptr};
    const char* const values[] = {"10", "30000", "kvload", "UTF8", server.c_str(), nullptr};
    constexpr int kReadUrl = 1;
    return Connection(PQconnectdbParams(keywords, values, kReadUrl));
}

class PostgresStore final : public Store {
public:
    PostgresStore(const std::string& server, Purpose purpose)
        : Store(kv::sample::kOwner), connection_(Connect(server)) {
        if (PQstatus(connection_.get()) != CONNECTION_OK) Fail();
        Run("set client_min_messages = warning");
        Run(purpose == Purpose::kCheck ? "begin read only" : "begin");
        if (purpose == Purpose::kCheck) return;
        const std::string schema = Owner();
        if (Query("select 1 from pg_namespace where nspname = '" + schema + "'").empty())
            Run("create schema " + schema);
    }

    std::vector<Row> Query(const std::string& sql) override {
        const Result result(PQexec(connection_.get(), sql.c_str()));
        Expect(result, PGRES_TUPLES_OK);
        std::vector<Row> rows(static_cast<size_t>(PQntuples(result.get())));
        for (size_t i = 0; i < rows.size(); ++i)
            for (int column = 0; column < PQnfields(result.get()); ++column)
                rows[i].emplace_back(PQgetvalue(result.get(), static_cast<int>(i), column));
        return rows;
    }

    void Run(const std::string& sql) override {
        const Result result(PQexec(connection_.get(), sql.c_str()));
        Expect(result, PGRES_COMMAND_OK);
    }

    bool Has(const Table& table) override {
        return Query("select to_regclass('" + Named(table.name) + "') is not null")
                   .front()
                   .front() == "t";
    }

    void Create(const Table& table) override {
        Run(kv::sample::CreateTable(table, Owner(), kv::sample::PostgresType));
        created_.insert(table.name);
    }

    void Add(const Row& row) override {
        kv::sample::AppendCopyLine(pending_, row);
        if (pending_.size() >= kSendAt) Send();
    }

    void Commit() override {
        const Result result(PQexec(connection_.get(), "commit"));
        const std::string_view answer = PQcmdStatus(result.get());
        if (PQresultStatus(result.get()) == PGRES_COMMAND_OK && answer == "COMMIT") return;
        if (PQstatus(connection_.get()) != CONNECTION_OK)
            throw CommitUnanswered(
                "The server went away before it had answered whether it keeps the rows: look for "
                "them");
        Fail();
    }

private:
    /// To drop one keeps all readers of its table out until the commit.
    bool MayDropIndexes(const Table& table) override { return created_.contains(table.name); }

    void BeginRows() override {
        std::string names;
        for (const kv::sample::Column& column : Filled().columns)
            names.append(names.empty() ? "" : ", ").append(column.name);
        const std::string sql = "copy " + Named(Filled().name) + " (" + names + ") from stdin";
        const Result result(PQexec(connection_.get(), sql.c_str()));
        Expect(result, PGRES_COPY_IN);
    }

    void EndRows() override {
        Send();
        if (PQputCopyEnd(connection_.get(), nullptr) != 1) Fail();
        const Result result(PQgetResult(connection_.get()));
        Expect(result, PGRES_COMMAND_OK);
        const Result last(PQgetResult(connection_.get()));
        Run("analyze " + Named(Filled().name));
    }

    void Send() {
        const int size = static_cast<int>(pending_.size());
        if (PQputCopyData(connection_.get(), pending_.data(), size) != 1) Fail();
        pending_.clear();
    }

    void Expect(const Result& result, ExecStatusType status) const {
        if (PQresultStatus(result.get()) != status) Fail();
    }

    [[noreturn]] void Fail() const {
        throw std::runtime_error(kv::TrimSpace(PQerrorMessage(connection_.get())));
    }

    Connection connection_;
    std::string pending_;
    /// Tables that nobody else sees yet.
    std::set<std::string_view> created_;
};

}  // namespace

std::unique_ptr<Store> OpenPostgresStore(const std::string& server, Purpose purpose) {
    return std::make_unique<PostgresStore>(server, purpose);
}

}  // namespace kvload
