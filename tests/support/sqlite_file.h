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

}  // namespace test
