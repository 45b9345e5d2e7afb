#pragma once

#include <libpq-fe.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

namespace test {

/// URL of the database "postgres" of the server that the test run shares.
inline std::string SharedPostgresUrl() {
    const char* file = std::getenv("KVGUICTL_TEST_PG");
    std::ifstream in(file ? file : "");
    std::string url;
    if (!std::getline(in, url))
        throw std::runtime_error("KVGUICTL_TEST_PG names no file that pg_fixture has written");
    return url;
}

/// The sample dataset on that server: to be read, and the same to make copies of, to which nobody
/// connects.
inline constexpr const char* kSampleDatabase = "kv_sample";
inline constexpr const char* kSampleTemplate = "kv_sample_template";

/// The URL with another database in the place of its own.
inline std::string WithDatabase(const std::string& url, const std::string& name) {
    return url.substr(0, url.rfind('/') + 1) + name;
}

inline std::string SamplePostgresUrl() {
    return WithDatabase(SharedPostgresUrl(), kSampleDatabase);
}

/// Folder of the server's socket.
inline std::string SocketFolderOf(const std::string& url) {
    const std::size_t begin = url.find('@') + 1;
    std::string folder = url.substr(begin, url.rfind('/') - begin);
    for (std::size_t at; (at = folder.find("%2F")) != std::string::npos;)
        folder.replace(at, 3, "/");
    return folder;
}

/// A connection that goes past the library.
class PostgresClient {
public:
    explicit PostgresClient(const std::string& url) : connection_(PQconnectdb(url.c_str())) {
        if (PQstatus(connection_.get()) != CONNECTION_OK)
            throw std::runtime_error(PQerrorMessage(connection_.get()));
        Run("set client_min_messages to warning");
    }

    /// Runs any number of statements; the first cell of what the last one gives, or "".
    std::string Run(const std::string& sql) {
        const std::unique_ptr<PGresult, Clear> result(PQexec(connection_.get(), sql.c_str()));
        const ExecStatusType status = PQresultStatus(result.get());
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            throw std::runtime_error(PQerrorMessage(connection_.get()));
        return PQntuples(result.get()) > 0 ? PQgetvalue(result.get(), 0, 0) : "";
    }

private:
    struct Clear {
        void operator()(PGresult* result) const { PQclear(result); }
        void operator()(PGconn* connection) const { PQfinish(connection); }
    };
    std::unique_ptr<PGconn, Clear> connection_;
};

/// An empty database of its own for one test, on the shared server.
class PostgresDatabase {
public:
    explicit PostgresDatabase(const std::string& options = "")
        : server_(SharedPostgresUrl()), name_(NewName()) {
        PostgresClient(server_).Run("create database " + name_ + " " + options);
    }
    PostgresDatabase(const PostgresDatabase&) = delete;
    PostgresDatabase& operator=(const PostgresDatabase&) = delete;
    ~PostgresDatabase() {
        try {
            PostgresClient(server_).Run("drop database " + name_ + " with (force)");
        } catch (const std::exception&) {
            // The server, and all on it, goes when the test run ends.
        }
    }

    const std::string& Name() const { return name_; }
    /// The server's URL up to the slash ahead of the database, with this one behind it.
    std::string Url() const { return WithDatabase(server_, name_); }
    std::string SocketFolder() const { return SocketFolderOf(server_); }
    std::string Run(const std::string& sql) const { return PostgresClient(Url()).Run(sql); }

private:
    static std::string NewName() {
        static int count = 0;
        return "kv_" + std::to_string(getpid()) + "_" + std::to_string(++count);
    }

    std::string server_;
    std::string name_;
};

}  // namespace test
