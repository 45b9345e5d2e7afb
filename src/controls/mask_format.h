#pragma once

#include <string>
#include <string_view>

#include "base/export.h"

namespace kv {

/// A text as a format shows it: a number by a format of digits, a date or a time by one of its
/// parts. A text that is neither, and any text with an empty format, comes back as it is.
///
/// Numbers have up to three sections between semicolons: for what is positive, negative, and zero.
/// In a section, 0 is a digit or a zero, # a digit where there is one, a period begins the
/// decimals, a comma between digits groups them by threes, % shows hundredths, and E+ or E- begins
/// an exponent. Text in quotes, and a character behind a backslash, stand for themselves, and so
/// does all else.
///
/// Dates read as month/day/year, times as hour:minute:second with AM or PM, and are shown by
/// d, dd, ddd, dddd, m, mm, mmm, mmmm, yy, yyyy, h, hh, n, nn, s, ss and AM/PM (m behind an hour is
/// the minute), or by c (what the text holds), ddddd (short date), dddddd (long date) and ttttt
/// (time).
KVGUICTL_API std::string FormatMasked(std::string_view format, const std::string& text);

}  // namespace kv
