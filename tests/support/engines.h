#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "support/postgres_database.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {

/// A kind of server that a test is run on.
struct ServerKind {
    std::string name;
    bool postgres = false;
    bool odbc = false;
    /// Of a PostgreSQL database.
    std::string options = {};
};

inline void PrintTo(const ServerKind& kind, std::ostream* out) {
    *out << kind.name;
}

/// SQLite and PostgreSQL by their own drivers and over ODBC, and a PostgreSQL whose own order of
/// texts is not that of their bytes.
inline const std::vector<ServerKind>& ServerKinds() {
    static const std::vector<ServerKind> kinds = {
        {"Sqlite"},
        {"SqliteOverOdbc", false, true},
        {"Postgres", true},
        {"PostgresOverOdbc", true, true},
        {"PostgresByIcu", true, false,
         "template template0 encoding 'UTF8' locale 'C' locale_provider icu icu_locale 'en-US'"}};
    return kinds;
}

/// A database of the test's own on such a server, with the application's schema where there are
/// schemas.
class OwnDatabase {
public:
    explicit OwnDatabase(const ServerKind& kind) : kind_(kind) {
        if (kind.postgres) {
            postgres_ = std::make_unique<PostgresDatabase>(kind.options);
            postgres_->Run("create schema norvadon");
        } else {
            MakeSqliteFile(path_);
        }
    }

    /// Past the library.
    void Run(const std::string& sql) const {
        if (postgres_)
            postgres_->Run("set search_path to norvadon;" + sql);
        else
            RunOnSqliteFile(path_, sql);
    }
    std::string Server() const {
        if (!postgres_) return (kind_.odbc ? "odbc:Driver=SQLite3;Database=" : "sqlite:") + path_;
        if (!kind_.odbc) return postgres_->Url();
        return "odbc:Driver=PostgreSQL Unicode;Servername=" + postgres_->SocketFolder() +
               ";Database=" + postgres_->Name() + ";UID=kv";
    }
    const std::string& Path() const { return path_; }
    /// Null on SQLite.
    const PostgresDatabase* Postgres() const { return postgres_.get(); }

private:
    ServerKind kind_;
    TempFolder folder_;
    std::string path_ = folder_.Native("own.db");
    std::unique_ptr<PostgresDatabase> postgres_;
};

}  // namespace test
