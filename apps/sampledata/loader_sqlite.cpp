#include "sampledata/loader_sqlite.h"

#include <unistd.h>

#include <cstring>
#include <stdexcept>
#include <system_error>

#include "sampledata/sqlite_file.h"

namespace kv::sample {

SqliteLoader::SqliteLoader(std::filesystem::path target)
    : target_(std::move(target)),
      unfinished_(target_.string() + "." + std::to_string(getpid()) + ".part") {
    std::filesystem::remove(unfinished_);
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(unfinished_.c_str(), &opened,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    database_.reset(opened);
    Check(code);
    // Whatever breaks off is thrown away whole, so there is nothing to roll back to.
    Run("pragma journal_mode = off");
    Run("pragma synchronous = off");
    Run("begin");
}

SqliteLoader::~SqliteLoader() {
    insert_.reset();
    database_.reset();
    std::error_code ignored;
    std::filesystem::remove(unfinished_, ignored);
    RemoveWhatLiesBeside(unfinished_);
}

void SqliteLoader::Begin(const Table& table) {
    table_ = &table;
    Run(CreateTable(table, "", SqliteType));
    std::string sql = std::string("insert into ") + table.name + " values (?";
    for (size_t i = 1; i < table.columns.size(); ++i)
        sql += ",?";
    sqlite3_stmt* prepared = nullptr;
    const int code =
        sqlite3_prepare_v2(database_.get(), (sql + ")").c_str(), -1, &prepared, nullptr);
    insert_.reset(prepared);
    Check(code);
}

void SqliteLoader::Add(const Row& row) {
    if (row.size() != table_->columns.size()) {
        throw std::runtime_error(std::string("A row does not fit ") + table_->name);
    }
    for (size_t i = 0; i < row.size(); ++i) {
        const int at = static_cast<int>(i) + 1;
        Check(row[i].empty() ? sqlite3_bind_null(insert_.get(), at)
                             : sqlite3_bind_text(insert_.get(), at, row[i].data(),
                                                 static_cast<int>(row[i].size()), SQLITE_STATIC));
    }
    const int code = sqlite3_step(insert_.get());
    if (code != SQLITE_DONE) Check(code);
    Check(sqlite3_reset(insert_.get()));
}

void SqliteLoader::End() {
    insert_.reset();
    for (const std::string& sql : CreateIndexes(*table_, ""))
        Run(sql);
}

void SqliteLoader::Finish() {
    Run("commit");
    Run("analyze");
    LetReadersShare();
    if (sqlite3_close(database_.release()) != SQLITE_OK) {
        throw std::runtime_error("The database does not close");
    }
    if (!RemoveWhatLiesBeside(target_))
        throw std::runtime_error("The log of the database that is replaced cannot be removed");
    std::filesystem::rename(unfinished_, target_);
}

void SqliteLoader::LetReadersShare() {
    sqlite3_stmt* pragma = nullptr;
    Check(sqlite3_prepare_v2(database_.get(), "pragma journal_mode = wal", -1, &pragma, nullptr));
    const std::unique_ptr<sqlite3_stmt, Close> statement(pragma);
    const bool answered = sqlite3_step(pragma) == SQLITE_ROW;
    const auto* mode = reinterpret_cast<const char*>(sqlite3_column_text(pragma, 0));
    if (!answered || !mode || std::strcmp(mode, "wal") != 0)
        throw std::runtime_error("The database cannot have a write-ahead log");
}

void SqliteLoader::Run(const std::string& sql) {
    Check(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

void SqliteLoader::Check(int code) const {
    if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(database_.get()));
}

}  // namespace kv::sample
