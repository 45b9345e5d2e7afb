#include "controls/mask_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <optional>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"

namespace kv {

namespace {

/// More digits than a number has are never shown.
constexpr int kMostDecimals = 30;
/// Beyond it is nothing that people write out.
constexpr double kGreatest = 1e300;

// Numbers.

/// A section of a number's format, taken apart.
struct NumberFormat {
    std::string ahead;   ///< text ahead of the digits
    std::string behind;  ///< text behind them
    int leastWhole = 0;
    int leastDecimals = 0;
    int mostDecimals = 0;
    int leastExponent = 0;
    bool digits = false;
    bool decimals = false;
    bool grouped = false;
    bool percent = false;
    bool exponent = false;
    bool plus = false;
};

/// Takes text that stands for itself from the head of a format: in quotes, or behind a backslash.
bool TakeQuoted(std::string_view& format, std::string& text) {
    if (format.front() == '\\' && format.size() > 1) {
        text += format[1];
        format.remove_prefix(2);
        return true;
    }
    if (format.front() != '"') return false;
    const std::size_t end = std::min(format.find('"', 1), format.size());
    text += format.substr(1, end - 1);
    format.remove_prefix(std::min(end + 1, format.size()));
    return true;
}

void TakeDigit(NumberFormat& parsed, char digit) {
    parsed.digits = true;
    const int zero = digit == '0' ? 1 : 0;
    if (parsed.exponent) {
        parsed.leastExponent += zero;
    } else if (parsed.decimals) {
        if (parsed.mostDecimals == kMostDecimals) return;
        ++parsed.mostDecimals;
        if (zero) parsed.leastDecimals = parsed.mostDecimals;
    } else if (zero || parsed.leastWhole > 0) {
        ++parsed.leastWhole;
    }
}

NumberFormat ParseNumberFormat(std::string_view format) {
    NumberFormat parsed;
    while (!format.empty()) {
        std::string& text = parsed.digits || parsed.decimals ? parsed.behind : parsed.ahead;
        if (TakeQuoted(format, text)) continue;
        const char ch = format.front();
        const bool exponent = parsed.digits && !parsed.exponent && ToUpper(ch) == 'E' &&
                              format.size() > 1 && (format[1] == '+' || format[1] == '-');
        if (ch == '0' || ch == '#') {
            TakeDigit(parsed, ch);
        } else if (ch == '.' && !parsed.decimals) {
            parsed.decimals = true;
        } else if (ch == ',' && parsed.digits && !parsed.decimals) {
            parsed.grouped = true;
        } else if (exponent) {
            parsed.exponent = true;
            parsed.plus = format[1] == '+';
            format.remove_prefix(1);
        } else {
            parsed.percent = parsed.percent || ch == '%';
            text += ch;
        }
        format.remove_prefix(1);
    }
    return parsed;
}

std::string WithDigits(const std::string& digits, const NumberFormat& format) {
    const std::size_t point = digits.find('.');
    std::string whole = digits.substr(0, point);
    std::string decimals = point == std::string::npos ? "" : digits.substr(point + 1);
    if (whole == "0") whole.clear();
    const auto least = static_cast<std::size_t>(format.leastWhole);
    if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
    while (decimals.size() > static_cast<std::size_t>(format.leastDecimals) &&
           decimals.back() == '0') {
        decimals.pop_back();
    }
    if (format.grouped) {
        for (std::size_t at = whole.size(); at > 3; at -= 3)
            whole.insert(at - 3, 1, ',');
    }
    return whole + (format.decimals ? "." + decimals : decimals);
}

std::string ExponentOf(int exponent, const NumberFormat& format) {
    std::string digits = std::to_string(std::abs(exponent));
    const auto least = static_cast<std::size_t>(format.leastExponent);
    if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
    return std::string("E") + (exponent < 0 ? "-" : format.plus ? "+" : "") + digits;
}

/// A number as people write it, which is what they round: the shortest digits that are read as it,
/// the first of them ahead of the point, and a power of ten.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

/// `value` is not negative.
Decimal DecimalOf(double value) {
    char text[64];
    const auto end = std::to_chars(text, std::end(text), value, std::chars_format::scientific).ptr;
    const std::string_view written(text, static_cast<std::size_t>(end - text));
    const std::size_t mark = written.find('e');
    std::string digits(written.substr(0, mark));
    std::erase(digits, '.');
    return {digits, Atoi(written.substr(mark + 1))};
}

/// The first so many digits, a half being rounded up.
Decimal Rounded(Decimal number, int count) {
    auto& [digits, exponent] = number;
    if (count < 0) return {"0", exponent};
    const auto kept = static_cast<std::size_t>(count);
    if (kept >= digits.size()) return number;
    const bool up = digits[kept] >= '5';
    digits.resize(kept);
    if (!up) return digits.empty() ? Decimal{"0", exponent} : number;
    const std::size_t last = digits.find_last_not_of('9');
    if (last == std::string::npos) return {"1", exponent + 1};
    ++digits[last];
    digits.resize(last + 1);
    return number;
}

std::string FixedText(const Decimal& number, int decimals) {
    const Decimal rounded = Rounded(number, number.exponent + 1 + decimals);
    const auto digitOf = [&](int power) {
        const int at = rounded.exponent - power;
        const bool there = at >= 0 && at < static_cast<int>(rounded.digits.size());
        return there ? rounded.digits[static_cast<std::size_t>(at)] : '0';
    };
    std::string text;
    for (int power = std::max(rounded.exponent, 0); power >= -decimals; --power) {
        if (power == -1) text += '.';
        text += digitOf(power);
    }
    return text;
}

/// `value` is not negative.
std::string FormatSection(std::string_view section, double value) {
    const NumberFormat format = ParseNumberFormat(section);
    if (!format.digits) return format.ahead + format.behind;
    Decimal number = DecimalOf(value);
    if (format.percent && value != 0) number.exponent += 2;
    if (!format.exponent) {
        return format.ahead + WithDigits(FixedText(number, format.mostDecimals), format) +
               format.behind;
    }
    number = Rounded(number, 1 + format.mostDecimals);
    const std::string mantissa = FixedText({number.digits, 0}, format.mostDecimals);
    return format.ahead + WithDigits(mantissa, format) + ExponentOf(number.exponent, format) +
           format.behind;
}

/// The sections between the semicolons that are not quoted.
std::vector<std::string> SectionsOf(std::string_view format) {
    std::vector<std::string> sections(1);
    while (!format.empty()) {
        std::string quoted;
        const std::string_view before = format;
        if (TakeQuoted(format, quoted)) {
            sections.back() += before.substr(0, before.size() - format.size());
            continue;
        }
        if (format.front() == ';') {
            sections.emplace_back();
        } else {
            sections.back() += format.front();
        }
        format.remove_prefix(1);
    }
    return sections;
}

std::string FormatNumber(std::string_view format, double value) {
    const std::vector<std::string> sections = SectionsOf(format);
    const bool own = sections.size() > 1 && !sections[1].empty();
    if (value < 0) {
        return own ? FormatSection(sections[1], -value) : "-" + FormatSection(sections[0], -value);
    }
    const bool zero = value == 0 && sections.size() > 2 && !sections[2].empty();
    return FormatSection(sections[zero ? 2 : 0], value);
}

std::optional<double> NumberIn(const std::string& text) {
    std::string digits = TrimSpace(ReplaceAll(text, ",", ""));
    if (digits.starts_with("$")) digits.erase(0, 1);
    std::size_t end = 0;
    const auto number = ScanNumber(digits, &end);
    if (!number || end != digits.size() || std::abs(*number) > kGreatest) return std::nullopt;
    return number;
}

// Dates and times.

struct Moment {
    bool hasDate = false;
    bool hasTime = false;
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

constexpr std::array<const char*, 12> kMonths{"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};
constexpr std::array<const char*, 7> kDays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};

std::chrono::year_month_day DateOf(const Moment& moment) {
    return {std::chrono::year(moment.year), std::chrono::month(static_cast<unsigned>(moment.month)),
            std::chrono::day(static_cast<unsigned>(moment.day))};
}

int WeekdayOf(const Moment& moment) {
    const std::chrono::weekday day{std::chrono::sys_days(DateOf(moment))};
    return static_cast<int>(day.c_encoding());
}

/// Numbers between separators; none where a part is no number of at most four digits.
std::optional<std::vector<int>> PartsOf(const std::string& text, char separator) {
    std::vector<int> parts;
    for (const std::string& part : Split(text, separator)) {
        const bool digits = part.find_first_not_of("0123456789") == std::string::npos;
        if (part.empty() || part.size() > 4 || !digits) return std::nullopt;
        parts.push_back(Atoi(part));
    }
    return parts;
}

bool ReadDate(const std::string& word, Moment& moment) {
    auto parts = PartsOf(word, '/');
    if (!parts || parts->size() != 3) parts = PartsOf(word, '-');
    if (!parts || parts->size() != 3) return false;
    // Two digits mean the years from 1930 to 2029.
    constexpr int kFirstOfCentury = 30;
    moment.month = (*parts)[0];
    moment.day = (*parts)[1];
    moment.year = (*parts)[2];
    if (moment.year < 100) moment.year += moment.year < kFirstOfCentury ? 2000 : 1900;
    moment.hasDate = DateOf(moment).ok();
    return moment.hasDate;
}

bool ReadTime(const std::string& word, Moment& moment) {
    const auto parts = PartsOf(word, ':');
    if (!parts || parts->size() < 2 || parts->size() > 3) return false;
    moment.hour = (*parts)[0];
    moment.minute = (*parts)[1];
    moment.second = parts->size() > 2 ? (*parts)[2] : 0;
    moment.hasTime = moment.hour < 24 && moment.minute < 60 && moment.second < 60;
    return moment.hasTime;
}

bool ReadHalf(const std::string& word, Moment& moment) {
    const bool pm = EqualsNoCase(word, "PM");
    if ((!pm && !EqualsNoCase(word, "AM")) || !moment.hasTime) return false;
    if (moment.hour < 1 || moment.hour > 12) return false;
    moment.hour = moment.hour % 12 + (pm ? 12 : 0);
    return true;
}

std::optional<Moment> MomentIn(const std::string& text) {
    Moment moment;
    for (const std::string& word : Split(TrimSpace(text), ' ')) {
        if (word.empty()) continue;
        const bool read = (!moment.hasDate && ReadDate(word, moment)) ||
                          (!moment.hasTime && ReadTime(word, moment)) || ReadHalf(word, moment);
        if (!read) return std::nullopt;
    }
    if (!moment.hasDate && !moment.hasTime) return std::nullopt;
    return moment;
}

std::string Padded(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return text;
}

/// One run of a letter in a date's format.
std::string DatePart(char letter, std::size_t length, const Moment& moment) {
    const auto month = static_cast<std::size_t>(std::max(moment.month, 1) - 1);
    switch (letter) {
        case 'd':
            if (length <= 2) return Padded(moment.day, length);
            return length == 3 ? std::string(kDays[static_cast<std::size_t>(WeekdayOf(moment))], 3)
                               : kDays[static_cast<std::size_t>(WeekdayOf(moment))];
        case 'm':
            if (length <= 2) return Padded(moment.month, length);
            return length == 3 ? std::string(kMonths[month], 3) : kMonths[month];
        case 'y':
            return length <= 2 ? Padded(moment.year % 100, 2) : Padded(moment.year, 4);
        case 'n':
            return Padded(moment.minute, length);
        case 's':
            return Padded(moment.second, length);
        default:
            return {};
    }
}

std::string FormatMoment(std::string_view format, const Moment& moment);

/// A format that has a name of its own; empty where it is none.
std::string NamedFormat(std::string_view format, const Moment& moment) {
    constexpr std::string_view kShortDate = "m/d/yyyy";
    constexpr std::string_view kLongTime = "h:nn:ss AM/PM";
    if (format == "ddddd") return FormatMoment(kShortDate, moment);
    if (format == "dddddd") return FormatMoment("dddd, mmmm dd, yyyy", moment);
    if (format == "ttttt") return FormatMoment(kLongTime, moment);
    if (format != "c") return {};
    std::string text = moment.hasDate ? FormatMoment(kShortDate, moment) : std::string();
    if (moment.hasDate && moment.hasTime) text += ' ';
    return moment.hasTime ? text + FormatMoment(kLongTime, moment) : text;
}

std::string FormatMoment(std::string_view format, const Moment& moment) {
    constexpr std::string_view kHalf = "AM/PM";
    bool half = false;
    for (std::size_t at = 0; at < format.size(); ++at) {
        half = half || StartsWithNoCase(format.substr(at), kHalf);
    }
    std::string text;
    bool behindHour = false;
    while (!format.empty()) {
        if (TakeQuoted(format, text)) continue;
        if (StartsWithNoCase(format, kHalf)) {
            text += moment.hour < 12 ? "AM" : "PM";
            format.remove_prefix(kHalf.size());
            continue;
        }
        const char letter = ToLower(format.front());
        std::size_t length = 1;
        while (length < format.size() && ToLower(format[length]) == letter)
            ++length;
        if (letter == 'h') {
            const int hour = half ? (moment.hour + 11) % 12 + 1 : moment.hour;
            text += Padded(hour, length);
            behindHour = true;
        } else if (std::string_view("dmyns").find(letter) != std::string_view::npos) {
            const bool minute = letter == 'm' && behindHour && length <= 2;
            text += DatePart(minute ? 'n' : letter, length, moment);
            behindHour = false;
        } else {
            text += format.substr(0, length);
        }
        format.remove_prefix(length);
    }
    return text;
}

bool IsForNumbers(std::string_view format) {
    std::string quoted;
    while (!format.empty()) {
        if (TakeQuoted(format, quoted)) continue;
        if (format.front() == '0' || format.front() == '#') return true;
        format.remove_prefix(1);
    }
    return false;
}

bool NeedsDate(std::string_view format) {
    return format == "ddddd" || format == "dddddd" ||
           (format != "c" && format != "ttttt" &&
            format.find_first_of("dDyY") != std::string_view::npos);
}

}  // namespace

std::string FormatMasked(std::string_view format, const std::string& text) {
    if (format.empty() || text.empty()) return text;
    if (IsForNumbers(format)) {
        const auto number = NumberIn(text);
        return number ? FormatNumber(format, *number) : text;
    }
    const auto moment = MomentIn(text);
    if (!moment || (NeedsDate(format) && !moment->hasDate)) return text;
    const std::string named = NamedFormat(format, *moment);
    return named.empty() ? FormatMoment(format, *moment) : named;
}

}  // namespace kv
