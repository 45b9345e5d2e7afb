#pragma once

#include <cstdint>
#include <string>

#include "sampledata/blocks.h"
#include "sampledata/random.h"
#include "sampledata/sink.h"

namespace kv::sample {

/// How many companies there are.
inline constexpr int kCompanies = 640;

/// Name of a company, from 0: made up, and looking it.
std::string CompanyName(int company);

/// Fills the table of companies.
void WriteCompanies(Sink& sink);

/// With leading zeros up to that many digits.
std::string Padded(int number, int digits);

/// A day, counted from the first of January 1970.
using Day = int;
/// The last day that the dataset knows of.
inline constexpr Day kToday = 13'149;  // 2006-01-01
inline constexpr int kDaysPerYear = 365;

/// As year-month-day.
std::string DateText(Day day);

/// Cells of a block: area code, number, extension.
Row BlockCells(const Block& block);
/// Cells of a place: latitude, longitude.
Row PlaceCells(const GeoPoint& place);

/// Rows put together. A shift, since its left side is worked out ahead of its right, and either may
/// ask for random numbers.
Row operator<<(Row left, const Row& right);

}  // namespace kv::sample
