#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>

#include "sampledata/sink.h"

namespace kv::sample {

/// Fills a new SQLite database, which is written beside its place and stands in it once complete.
class SqliteLoader final : public Sink {
public:
    /// Throws std::runtime_error, as every operation does that fails.
    explicit SqliteLoader(std::filesystem::path target);
    /// Leaves nothing behind that was not finished.
    ~SqliteLoader() override;

    void Begin(const Table& table) override;
    void Add(const Row& row) override;
    void End() override;

    /// Puts the database in its place, over one that stands there, whose log goes with it.
    void Finish();

private:
    struct Close {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    /// Gives the database the write-ahead log: who reads then holds up nobody who writes.
    void LetReadersShare();
    void Run(const std::string& sql);
    void Check(int code) const;

    std::filesystem::path target_;
    std::filesystem::path unfinished_;
    std::unique_ptr<sqlite3, Close> database_;
    std::unique_ptr<sqlite3_stmt, Close> insert_;
    const Table* table_ = nullptr;
};

}  // namespace kv::sample
