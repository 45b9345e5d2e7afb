#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "sampledata/sink.h"

namespace kvload {

/// What `Commit` throws where nobody knows whether the database keeps the rows.
class CommitUnanswered : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A database that holds the dataset, or is to hold it, within one transaction: until `Commit`, all
/// is as it was, also for those who read it meanwhile. What fails throws std::runtime_error.
class Store : public kv::sample::Sink {
public:
    /// What a query gives, as text; null is "".
    virtual std::vector<kv::sample::Row> Query(const std::string& sql) = 0;
    virtual void Run(const std::string& sql) = 0;
    virtual bool Has(const kv::sample::Table& table) = 0;
    /// A table without rows and indexes. `Begin` and `End` give it both.
    virtual void Create(const kv::sample::Table& table) = 0;
    virtual void Commit() = 0;

    /// The name of a table in a statement.
    std::string Named(std::string_view table) const;

    /// Begins to add rows behind those that a table has. One without rows gets its indexes at the
    /// end of it, where nobody waits for it meanwhile.
    void Begin(const kv::sample::Table& table) final;
    void End() final;

protected:
    explicit Store(std::string owner) : owner_(std::move(owner)) {}
    const std::string& Owner() const { return owner_; }
    const kv::sample::Table& Filled() const { return *table_; }

    /// Whether a table can be without its indexes for a while and nobody has to wait for it.
    virtual bool MayDropIndexes(const kv::sample::Table& table) = 0;
    virtual void BeginRows() = 0;
    virtual void EndRows() = 0;

private:
    std::string owner_;
    const kv::sample::Table* table_ = nullptr;
    bool indexAfterwards_ = false;
};

enum class Purpose { kLoad, kCheck };

/// The store behind `sqlite:PATH` or `postgresql://...`. A SQLite file that is not there is made at
/// the commit; to be checked, it must be there.
std::unique_ptr<Store> OpenStore(const std::string& server, Purpose purpose);

/// "" where a server text is of a known form, or else what is wrong with it.
std::string CheckServer(const std::string& server);

}  // namespace kvload
