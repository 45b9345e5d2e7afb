#pragma once

#include <string>

namespace test {

/// Makes an SQLite database with a handful of areas and blocks, which cover every form of area and
/// block that the pickers tell apart, and returns its path on the machine.
///
/// Areas: GRAND ISLE (GI, 017), GRAND ISLE SOUTH (GI, 018), GULF BAY (no MMS code, 4201), SHORE
/// LANDS (SL, 4261), LAKE LANDS (LL, 4271), HARBOR (HB, 4281), PLAIN (PL, 4301), EMPTY (EM, 099).
std::string MakeSmallDatabase(const std::string& path);

}  // namespace test
