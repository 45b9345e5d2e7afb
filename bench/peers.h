#pragma once

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <stdexcept>
#include <string>

/// What several benchmarks measure against.
namespace bench {

/// A file that is gone when the program ends.
class PassingFile {
public:
    explicit PassingFile(const std::string& name);
    ~PassingFile();
    PassingFile(const PassingFile&) = delete;
    PassingFile& operator=(const PassingFile&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

/// The sample database, built at the first call.
const std::string& SamplePath();

/// Makes the sample database the one that dialogs ask.
void ConnectToSample();

/// A connection to the sample database past the library.
class BareEngine {
public:
    BareEngine() {
        if (sqlite3_open_v2(SamplePath().c_str(), &database_, SQLITE_OPEN_READONLY, nullptr) !=
            SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(database_));
        }
    }
    ~BareEngine() { sqlite3_close(database_); }
    BareEngine(const BareEngine&) = delete;
    BareEngine& operator=(const BareEngine&) = delete;

    /// Hands each row to `take`.
    template <typename Take>
    void Read(const std::string& sql, const Take& take) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(database_));
        while (sqlite3_step(statement) == SQLITE_ROW)
            take(statement);
        sqlite3_finalize(statement);
    }

private:
    sqlite3* database_ = nullptr;
};

/// A peer's loop: runs a query on SQLite past the library, and copies the first column of its rows.
void QueryBareEngine(benchmark::State& state, const std::string& path, const std::string& sql);

}  // namespace bench
