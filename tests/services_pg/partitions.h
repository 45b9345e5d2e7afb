#pragma once

#include "support/postgres_cluster.h"
#include "support/postgres_database.h"

namespace test {

/// The tables that are split, and the partitions of each that lie on another server.
inline constexpr const char* kSplitTables[] = {"gulf_mexico_lbi", "gulf_mexico_well_hdr"};
inline constexpr const char* kFarParts[] = {"louisiana", "deep"};

/// Splits the tables of blocks and of wells in a copy of the sample dataset by area code: the bays
/// and the waters off Texas stay, those off Louisiana and the protraction diagrams go to another
/// server.
void SplitByArea(const PostgresDatabase& database, const PostgresCluster& other);

}  // namespace test
