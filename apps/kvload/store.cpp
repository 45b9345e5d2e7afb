#include "kvload/store.h"

#include "kvload/store_postgres.h"
#include "kvload/store_sqlite.h"

namespace kvload {
namespace {

constexpr std::string_view kSqlite = "sqlite:";

}  // namespace

std::string Store::Named(std::string_view table) const {
    return owner_.empty() ? std::string(table) : owner_ + "." + std::string(table);
}

void Store::Begin(const kv::sample::Table& table) {
    table_ = &table;
    indexAfterwards_ =
        MayDropIndexes(table) && Query("select 1 from " + Named(table.name) + " limit 1").empty();
    if (indexAfterwards_) {
        for (size_t i = 0; i < table.indexes.size(); ++i)
            Run("drop index if exists " + Named(kv::sample::IndexName(table, i)));
    }
    BeginRows();
}

void Store::End() {
    EndRows();
    if (!indexAfterwards_) return;
    for (const std::string& sql : kv::sample::CreateIndexes(*table_, owner_))
        Run(sql);
}

std::unique_ptr<Store> OpenStore(const std::string& server, Purpose purpose) {
    if (server.starts_with(kSqlite)) return OpenSqliteStore(server.substr(kSqlite.size()), purpose);
    return OpenPostgresStore(server, purpose);
}

std::string CheckServer(const std::string& server) {
    for (const std::string_view prefix :
         {kSqlite, std::string_view("postgresql://"), std::string_view("postgres://")}) {
        if (server.starts_with(prefix) && server.size() > prefix.size()) return {};
    }
    return "The database is sqlite:PATH or postgresql://...";
}

}  // namespace kvload
