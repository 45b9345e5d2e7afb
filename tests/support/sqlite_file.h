#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace test {

/// Runs statements on a SQLite file, past the library; makes the file if it is not there.
inline void RunOnSqliteFile(const std::string& path, const std::string& sql) {
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    const int code = sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr);
    const std::string words = sqlite3_errmsg(database);
    sqlite3_close(database);
    if (code != SQLITE_OK) throw std::runtime_error(words);
}

/// Makes an empty database file.
inline void MakeSqliteFile(const std::string& path) {
    RunOnSqliteFile(path, "create table made (a); drop table made");
}

/// Another program in the middle of reading the rows of a query.
class SqliteReader {
public:
    SqliteReader(const std::string& path, const std::string& sql) {
        sqlite3_open(path.c_str(), &database_);
        sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement_, nullptr);
        if (sqlite3_step(statement_) != SQLITE_ROW)
            throw std::runtime_error(sqlite3_errmsg(database_));
    }
    ~SqliteReader() {
        sqlite3_finalize(statement_);
        sqlite3_close(database_);
    }
    SqliteReader(const SqliteReader&) = delete;
    SqliteReader& operator=(const SqliteReader&) = delete;

private:
    sqlite3* database_ = nullptr;
    sqlite3_stmt* statement_ = nullptr;
};

/// Another program that lets nobody read or write a file without a write-ahead log.
class SqliteLock {
public:
    explicit SqliteLock(const std::string& path) {
        sqlite3_open(path.c_str(), &database_);
        if (sqlite3_exec(database_, "begin exclusive", nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(database_));
    }
    ~SqliteLock() { sqlite3_close(database_); }
    SqliteLock(const SqliteLock&) = delete;
    SqliteLock& operator=(const SqliteLock&) = delete;

private:
    sqlite3* database_ = nullptr;
};

}  // namespace test
