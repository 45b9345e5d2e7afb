#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kv::dialect {

enum class DateField : std::uint8_t {
    kSigns,  ///< what stands between the others: blanks and punctuation
    kYear,
    kYearOfCentury,  ///< the century is this one
    kYearNearby,     ///< "RR": from 1950 to 2049
    kMonth,
    kMonthName,  ///< of three letters
    kDay,
    kHour,
    kHourOfHalfDay,
    kHalfDay,  ///< "AM" or "PM"
    kMinute,
    kSecond,
};

struct DatePart {
    DateField field;
    std::string_view text;
};

using DateFormat = std::vector<DatePart>;

/// How dates and times are written everywhere here: "YYYY-MM-DD HH24:MI:SS".
inline constexpr const char* kWholeDateFormat = "YYYY-MM-DD HH24:MI:SS";

/// The months as "MON" writes them, one behind the other.
inline constexpr const char* kMonthNames = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";

/// The parts of a date's format, in any case; views into it. None where it has elements beside
/// years, months, days, hours, minutes and seconds.
std::optional<DateFormat> ReadDateFormat(std::string_view format);

/// The date that a text in that format means, in the `kWholeDateFormat`. None where there is no
/// such date, and where the format names no year or no month: those would be today's.
std::optional<std::string> DateOf(std::string_view text, const DateFormat& format);

}  // namespace kv::dialect
