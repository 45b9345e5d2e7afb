#pragma once

#include <string>

namespace test {

/// Makes an SQLite database with a handful of leases, companies and operators, as the qualifier
/// dialogs ask for them, and returns its path on the machine.
///
/// - `lease` (lease_no, lplana, lessee, operator): of each dataset, C, E, W, L and T, one lease or
///   more; lease numbers whose text order is not their lease order; the lessees AMBER, AMBER SHELF,
///   BLUE SHELF, SHELF and SHELF OIL, and one null.
/// - `old_lease` (the same columns): the lessees SHELF and OLD SHELF.
/// - `company` (company): A, AB, ABC, B.
/// - `operator` (key_no, operator): under the key 1 NORTH RIG and NORTHERN, under 2 NORTH RIG and
///   SOUTH NORTH.
std::string MakeQualifierDatabase(const std::string& path);

}  // namespace test
