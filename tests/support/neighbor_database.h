#pragma once

#include <string>

namespace test {

/// Makes an SQLite database with a handful of blocks that lie side by side, and the table that
/// neighbors are written to, and returns its path on the machine.
///
/// Blocks are squares of a tenth of a degree. ALPHA (A01, MMS code AL) has nine, numbered from its
/// north-west corner by rows: 1 2 3, 4 5 6, 7 8 9. East of 6 is 1A of BETA ISLE (B01, BI); north of
/// 3 is 1 of GULF BAY (G01, no MMS code); south of 8 is 7 of SHORE (42601, SH). Far from all of
/// them is 99 of ALPHA. No corner is where its neighbors' are: all are off by less than a metre.
std::string MakeNeighborDatabase(const std::string& path);

}  // namespace test
