#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/export.h"

/// The rows that vertices are written in: X and Y, or latitude and longitude, each of these in
/// decimal degrees or in degrees, minutes and seconds.
namespace kv::vertices {

/// X and Y, or latitude and longitude.
struct Pair {
    double first = 0.0;
    double second = 0.0;
};

/// With blanks for all commas, semicolons and tabs, if one of them stands behind the first place.
KVGUICTL_API std::string Normalised(std::string_view row);

/// Reads of normalised rows. What is not found is 0.
KVGUICTL_API Pair ScanPair(std::string_view row);
KVGUICTL_API Pair ScanDms(std::string_view row);
/// In whichever form each of the two is written: an angle whose first number has a point is
/// decimal. Degrees, minutes and seconds are read in single precision; of a longitude they are the
/// last three numbers.
KVGUICTL_API Pair ScanLatLon(std::string_view row);

/// "%.6f , %.6f".
KVGUICTL_API std::string PairRow(const Pair& pair);
/// "%d %d %.6f , %d %d %.6f".
KVGUICTL_API std::string DmsRow(const Pair& pair);

/// X and Y as people write them, a comma, semicolon, tab or blank between; none for any other text.
KVGUICTL_API std::optional<Pair> ReadXy(std::string_view text);
/// A position in any notation; none for any other text.
KVGUICTL_API std::optional<Pair> ReadLatLon(std::string_view text);

/// Reads one line of a vertex file byte by byte: `next` gives a byte, or -1 at the end. Printable
/// characters are kept, tabs become " , ", a carriage return ends the line, and all else is
/// dropped. True at the end of the file; what stands ahead of that without a carriage return gets
/// one.
template <typename Next>
bool ReadRow(Next next, std::string& row) {
    constexpr int kFirstPrintable = ' ';
    constexpr int kLastPrintable = '~';
    row.clear();
    for (;;) {
        const int byte = next();
        if (byte < 0) break;
        if (byte == '\r') return false;
        if (byte == '\t' || byte == '\v') row += " , ";
        if (byte >= kFirstPrintable && byte <= kLastPrintable) row += static_cast<char>(byte);
    }
    if (!row.empty()) row += '\r';
    return true;
}

}  // namespace kv::vertices
