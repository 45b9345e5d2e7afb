#include "sampledata/loader_postgres.h"

#include <stdexcept>
#include <string_view>

#include "sampledata/copy_text.h"

namespace kv::sample {
namespace {

constexpr size_t kSendAt = 1 << 16;

}  // namespace

PostgresLoader::PostgresLoader(const std::string& server, bool replace)
    : connection_(PQconnectdb(server.c_str())), replace_(replace) {
    if (PQstatus(connection_.get()) != CONNECTION_OK) Fail();
    Run("set client_min_messages = warning");
    Run("begin");
    Run(std::string("create schema if not exists ") + kOwner);
}

bool PostgresLoader::HasDataset() const {
    const std::string sql = std::string("select to_regclass('") + kOwner + "." +
                            Tables().front().name + "') is not null";
    const Result result(PQexec(connection_.get(), sql.c_str()));
    Expect(result, PGRES_TUPLES_OK);
    return std::string_view(PQgetvalue(result.get(), 0, 0)) == "t";
}

void PostgresLoader::Begin(const Table& table) {
    table_ = &table;
    const std::string name = std::string(kOwner) + "." + table.name;
    if (replace_) Run("drop table if exists " + name);
    Run(CreateTable(table, kOwner, PostgresType));
    const Result result(PQexec(connection_.get(), ("copy " + name + " from stdin").c_str()));
    Expect(result, PGRES_COPY_IN);
}

void PostgresLoader::Add(const Row& row) {
    if (row.size() != table_->columns.size()) {
        throw std::runtime_error(std::string("A row does not fit ") + table_->name);
    }
    AppendCopyLine(pending_, row);
    if (pending_.size() >= kSendAt) Send();
}

void PostgresLoader::End() {
    Send();
    if (PQputCopyEnd(connection_.get(), nullptr) != 1) Fail();
    const Result result(PQgetResult(connection_.get()));
    Expect(result, PGRES_COMMAND_OK);
    const Result last(PQgetResult(connection_.get()));
    for (const std::string& sql : CreateIndexes(*table_, kOwner))
        Run(sql);
    Run(std::string("analyze ") + kOwner + "." + table_->name);
}

void PostgresLoader::Finish() {
    Run("commit");
}

void PostgresLoader::Run(const std::string& sql) {
    const Result result(PQexec(connection_.get(), sql.c_str()));
    Expect(result, PGRES_COMMAND_OK);
}

void PostgresLoader::Expect(const Result& result, ExecStatusType status) const {
    if (PQresultStatus(result.get()) != status) Fail();
}

void PostgresLoader::Send() {
    if (PQputCopyData(connection_.get(), pending_.data(), static_cast<int>(pending_.size())) != 1) {
        Fail();
    }
    pending_.clear();
}

void PostgresLoader::Fail() const {
    throw std::runtime_error(PQerrorMessage(connection_.get()));
}

}  // namespace kv::sample
