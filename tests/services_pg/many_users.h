#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "support/postgres_database.h"

namespace test {

/// What so many processes did at once, and what is wrong with what they left.
struct ManyUsers {
    /// What each pick took, in seconds, the shortest first.
    std::vector<double> picks;
    int searches = 0;
    int comments = 0;
    /// In words: what failed, was lost, was torn, or was not given back.
    std::vector<std::string> faults;

    /// So long take all picks but one in twenty at most.
    double Percentile95() const;
};

/// Lets so many processes pick in the bar, search, and comment on a few wells, one right behind the
/// other, each a person's program of its own, without a screen. The database on a PostgreSQL server
/// holds the sample dataset; the comments of the current dataset in it are thrown away first.
ManyUsers WorkAtOnce(const std::string& url, int processes, std::chrono::milliseconds time);

/// What is wrong, in words, with the sessions that others have on the database of that client: so
/// many are to be open, each between two transactions. What the server itself does there, as
/// cleaning up behind changes, is no session.
std::vector<std::string> FaultsOfSessions(PostgresClient& client, int open);

}  // namespace test
