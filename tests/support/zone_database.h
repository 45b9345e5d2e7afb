#pragma once

#include <string>

namespace test {

/// Makes an SQLite database with a handful of projection zones, of every category that the program
/// knows and of one that it does not, and returns its path on the machine.
///
/// - state_lambert: 1, 2 and 3 (state plane 4204, 4205 and 1702), 4 North Coast (4203).
/// - state_trans_mercator: 40 West Hills (102).
/// - misc_lambert: 60. misc_trans_mercator: none.
/// - utm_spheroids: 100 Clarke 1866, 200 International, 300 Bessel.
/// - misc_boone: 5001. misc_cassini: 5000. misc_other: 5002.
/// - no_such_category: 6000.
std::string MakeZoneDatabase(const std::string& path);

/// The two statements that fill the catalogue of projections, and their owner's dataset.
extern const char* const kZoneCatalogueStatement;
extern const char* const kStatePlaneCatalogueStatement;

}  // namespace test
