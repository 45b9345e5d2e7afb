#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "support/postgres_database.h"

namespace test {

/// A way over TCP to the server of a database, which listens at a socket of this machine. Once it
/// is broken, no byte goes either way, and nobody else is let in or turned away.
class Line {
public:
    explicit Line(const PostgresDatabase& database);
    ~Line();
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /// The database at its end.
    std::string Url() const;
    void Break();
    /// How often the server was spoken to behind its last answer.
    int Turns() const { return turns_; }

private:
    void Stop();
    void Relay();
    void LetIn();
    void PassOn(std::size_t from);
    int Port() const;

    std::string user_;
    std::string database_;
    std::string server_;
    int listening_;
    /// In pairs that pass on to each other: a client, then the server.
    std::vector<int> ends_;
    bool serverSpoke_ = true;
    std::atomic<int> turns_ = 0;
    std::atomic<bool> broken_ = false;
    std::thread relay_;
};

}  // namespace test
