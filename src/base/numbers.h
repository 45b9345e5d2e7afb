#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/export.h"

/// Numbers from and to text, as the platform's C runtime reads and writes them, whatever the
/// locale. What has no end is written as inf or -inf, what is no number as nan.
namespace kv {

/// Value of the number that the text begins with, white space ahead of it left out; 0 when there is
/// none. Decimal only: "0x10" is 0, "inf" and "nan" are 0. Too large a number is infinite.
KVGUICTL_API double Atof(std::string_view text);

/// The same for an integer, of decimal digits. Too large a number is the largest, or smallest, int.
KVGUICTL_API int Atoi(std::string_view text);

/// What "%lf" reads: skips white space, then takes the longest decimal number. None when there is
/// no number. `end`, if given, becomes the place behind what was taken, or 0.
KVGUICTL_API std::optional<double> ScanNumber(std::string_view text, std::size_t* end = nullptr);

/// The number of a text that holds nothing else but white space: what "%lf%s" reads where it finds
/// one item only.
KVGUICTL_API std::optional<double> ScanLoneNumber(std::string_view text);

/// What "%d" reads, saturating; with `end` as in ScanNumber.
KVGUICTL_API std::optional<int> ScanInteger(std::string_view text, std::size_t* end = nullptr);

/// What a stream in its default format writes: six significant digits, an exponent of at least
/// three digits, as 1.23457e+006.
KVGUICTL_API std::string FormatStream(double value);

/// Fixed notation with that many decimals, as 12.50.
KVGUICTL_API std::string FormatFixed(double value, int decimals);

/// "%G": as FormatStream with a capital E.
KVGUICTL_API std::string FormatG(double value);

/// A printf format with one conversion for a double and any text around it, as "%.3f". A format of
/// another shape gives an empty text.
KVGUICTL_API std::string FormatPrintf(const std::string& format, double value);

/// The value without its fraction; the largest or smallest int where it does not fit, 0 for a value
/// that is no number.
KVGUICTL_API int ToInt(double value);

}  // namespace kv
