#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sampledata/tables.h"

namespace kvload {

/// The text of a source as a column of the dataset takes it; "" is null. Texts are made upper case,
/// as searches look for them. `dateFormat` tells how dates are written: YYYY, YY, MM, MON and DD
/// with any signs between them; "" takes only what can be read in one way. Throws Refused.
std::string CellValue(const kv::sample::Column& column, std::string_view text,
                      const std::string& dateFormat);

/// An API number in twelve digits, of any of its usual forms: 10, 12 or 14 digits, with or without
/// hyphens, also where a table calculation took its leading zero. Throws Refused.
std::string ApiNumber(std::string_view text);

/// None where the text is no number, or has anything behind it.
std::optional<double> NumberIn(std::string_view text);

/// Which of the two coordinates of a place.
enum class Axis { kX, kY };

/// A coordinate: a number, or degrees with minutes and seconds in any notation of one angle that
/// `kv::ParseCoordinate` reads. Throws Refused, also where a letter tells that it is the other of
/// the two, or does not go with a sign.
double CoordinateIn(std::string_view text, Axis axis);

/// Year-month-day. Throws Refused.
std::string DayOf(std::string_view text, const std::string& format);

/// Ten decimals are less than what two outlines may differ by, and stay the same out and in again.
std::string DegreesText(double value);

/// A table calculation writes a whole number with a fraction of nothing: "12.0" is "12".
std::string_view WithoutZeroFraction(std::string_view text);

/// A number that has a fraction, rounded; any other text as it stands.
std::string WholeAmount(const std::string& text);

/// Whether a text is a date by that format.
bool IsDay(std::string_view text, const std::string& format);

/// Whether a format has a year, a month and a day.
bool IsDateFormat(std::string_view format);

}  // namespace kvload
