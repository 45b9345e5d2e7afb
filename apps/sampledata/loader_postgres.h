#pragma once

#include <libpq-fe.h>

#include <memory>
#include <string>

#include "sampledata/sink.h"

namespace kv::sample {

/// Fills the tables in a schema of their own in a PostgreSQL database, all in one transaction:
/// what breaks off leaves the database as it was.
class PostgresLoader final : public Sink {
public:
    /// Connects with a text such as `postgresql://host/database`. Throws std::runtime_error, as
    /// every operation does that fails. With `replace`, tables of the same names give way.
    PostgresLoader(const std::string& server, bool replace);

    /// Whether a dataset is there already.
    bool HasDataset() const;

    void Begin(const Table& table) override;
    void Add(const Row& row) override;
    void End() override;

    /// Makes the dataset visible to others.
    void Finish();

private:
    struct Release {
        void operator()(PGconn* connection) const { PQfinish(connection); }
        void operator()(PGresult* result) const { PQclear(result); }
    };
    using Result = std::unique_ptr<PGresult, Release>;

    void Run(const std::string& sql);
    void Expect(const Result& result, ExecStatusType status) const;
    void Send();
    [[noreturn]] void Fail() const;

    std::unique_ptr<PGconn, Release> connection_;
    bool replace_;
    const Table* table_ = nullptr;
    std::string pending_;
};

}  // namespace kv::sample
