#include "kvload/cell_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

#include "base/text.h"
#include "frame/coordinate_text.h"
#include "kvload/refused.h"

namespace kvload {
namespace {

using kv::sample::CellKind;
using kv::sample::Column;

std::string Quoted(std::string_view text) {
    constexpr size_t kMost = 40;
    return "\"" + std::string(text.substr(0, kMost)) + (text.size() > kMost ? "..." : "") + "\"";
}

size_t Characters(std::string_view utf8) {
    return static_cast<size_t>(
        std::ranges::count_if(utf8, [](char ch) { return (ch & 0xc0) != 0x80; }));
}

std::string TextValue(const Column& column, std::string_view text) {
    std::string value = kv::ToUpper(text);
    std::ranges::replace_if(value, kv::IsSpace, ' ');
    if (std::ranges::any_of(value, [](char ch) { return ch >= 0 && ch < ' '; }))
        throw Refused("holds a sign that is no letter: " + Quoted(text));
    if (Characters(value) > static_cast<size_t>(column.length))
        throw Refused(Quoted(text) + " is longer than " + std::to_string(column.length));
    return value;
}

/// Thousands may be parted by commas.
std::string WithoutThousands(std::string_view text) {
    const std::vector<std::string> parts = kv::Split(text, ',');
    for (size_t i = 1; i < parts.size(); ++i)
        if (std::ranges::find_if_not(parts[i], kv::IsDigit) - parts[i].begin() != 3)
            return std::string(text);
    return kv::ReplaceAll(text, ",", "");
}

std::string NumberValue(const Column& column, std::string_view text) {
    const std::optional<double> value = NumberIn(WithoutThousands(text));
    if (!value) throw Refused(Quoted(text) + " is no number");
    char written[400];
    if (column.kind == CellKind::kWhole) {
        constexpr double kMost = 2'147'483'647.0;
        if (*value != std::floor(*value)) throw Refused(Quoted(text) + " is no whole number");
        if (std::abs(*value) > kMost) throw Refused(Quoted(text) + " is too large");
        return std::to_string(static_cast<long>(*value));
    }
    const auto end =
        std::to_chars(written, written + sizeof written, *value, std::chars_format::fixed);
    return std::string(written, end.ptr);
}

/// The letter of a hemisphere stands beside a sign.
bool HasSignAndLetter(std::string_view text) {
    if (!text.starts_with('-') && !text.starts_with('+')) return false;
    const auto unsignedOne = kv::ParseCoordinate(text.substr(1));
    return unsignedOne && !unsignedOne->angle;
}

/// What a date is written of: signs of its own, and numbers of so many digits.
struct DayReader {
    std::string_view text;
    int year = 0, month = 0, day = 0;

    std::optional<int> Digits(size_t least, size_t most) {
        size_t count = 0;
        while (count < most && count < text.size() && kv::IsDigit(text[count]))
            ++count;
        if (count < least) return std::nullopt;
        int value = 0;
        std::from_chars(text.data(), text.data() + count, value);
        text.remove_prefix(count);
        return value;
    }

    bool MonthName() {
        static constexpr std::array kNames = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                              "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
        for (size_t i = 0; i < kNames.size(); ++i) {
            if (!kv::StartsWithNoCase(text, kNames[i])) continue;
            month = static_cast<int>(i) + 1;
            text.remove_prefix(3);
            return true;
        }
        return false;
    }

    bool Take(std::string_view& format) {
        const auto is = [&](std::string_view word) {
            if (!kv::StartsWithNoCase(format, word)) return false;
            format.remove_prefix(word.size());
            return true;
        };
        const auto into = [](std::optional<int> read, int& value) {
            if (read) value = *read;
            return read.has_value();
        };
        // Digits that stand close must all be there.
        if (is("YYYY")) return into(Digits(4, 4), year);
        if (is("YY")) {
            if (!into(Digits(2, 2), year)) return false;
            constexpr int kPivot = 50;
            year += year < kPivot ? 2000 : 1900;
            return true;
        }
        if (is("MON")) return MonthName();
        const auto closes = [&] { return !format.empty() && kv::ToUpper(format[0]) >= 'A'; };
        if (is("MM")) return into(Digits(closes() ? 2 : 1, 2), month);
        if (is("DD")) return into(Digits(closes() ? 2 : 1, 2), day);
        if (text.empty() || text.front() != format.front()) return false;
        text.remove_prefix(1);
        format.remove_prefix(1);
        return true;
    }
};

std::optional<std::string> ReadDay(std::string_view text, std::string_view format) {
    DayReader reader{text};
    while (!format.empty())
        if (!reader.Take(format)) return std::nullopt;
    // A time of day may stand behind it.
    if (!reader.text.empty() && reader.text.front() != ' ' && reader.text.front() != 'T')
        return std::nullopt;
    const std::chrono::year_month_day day(std::chrono::year(reader.year),
                                          std::chrono::month(static_cast<unsigned>(reader.month)),
                                          std::chrono::day(static_cast<unsigned>(reader.day)));
    if (!day.ok() || reader.year < 1) return std::nullopt;
    return kv::FormatText("%04d-%02d-%02d", reader.year, reader.month, reader.day);
}

}  // namespace

std::optional<double> NumberIn(std::string_view text) {
    double value = 0.0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) return std::nullopt;
    return value;
}

double CoordinateIn(std::string_view text, Axis axis) {
    if (const std::optional<double> number = NumberIn(text)) return *number;
    const std::string named = "the coordinate " + Quoted(text);
    const auto read = kv::ParseCoordinate(text);
    if (!read || (read->latitude && read->longitude))
        throw Refused(named + (HasSignAndLetter(text)
                                   ? " has a sign and the letter of a hemisphere"
                                   : " is neither a number nor degrees, minutes and seconds"));
    if (axis == Axis::kX && read->latitude)
        throw Refused(named + " is a latitude, not a longitude");
    if (axis == Axis::kY && read->longitude)
        throw Refused(named + " is a longitude, not a latitude");
    const double value = read->angle.value_or(read->latitude.value_or(read->longitude.value_or(0)));
    if (text.starts_with('+') && value < 0.0)
        throw Refused(named + " has a sign and the letter of the other hemisphere");
    return value;
}

std::string DegreesText(double value) {
    char text[64];
    const auto written =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 10);
    char* end = written.ptr;
    while (end[-1] == '0')
        --end;
    if (end[-1] == '.') --end;
    return {text, end};
}

std::string_view WithoutZeroFraction(std::string_view text) {
    const size_t point = text.find('.');
    const bool isZero = point != std::string_view::npos && point + 1 < text.size() &&
                        text.find_first_not_of('0', point + 1) == std::string_view::npos;
    return isZero ? text.substr(0, point) : text;
}

std::string WholeAmount(const std::string& text) {
    const std::optional<double> value = NumberIn(WithoutThousands(text));
    if (!value || *value == std::round(*value)) return text;
    return kv::FormatText("%.0f", std::round(*value));
}

bool IsDay(std::string_view text, const std::string& format) {
    return ReadDay(text, format).has_value();
}

bool IsDateFormat(std::string_view format) {
    const std::string upper = kv::ToUpper(format);
    const auto has = [&](const char* word) { return upper.find(word) != std::string::npos; };
    return has("YY") && (has("MM") || has("MON")) && has("DD");
}

std::string DayOf(std::string_view text, const std::string& format) {
    static constexpr std::array kPlain = {"YYYY-MM-DD", "YYYY/MM/DD", "YYYYMMDD", "DD-MON-YYYY",
                                          "DD MON YYYY"};
    if (!format.empty()) {
        if (const auto day = ReadDay(text, format)) return *day;
        throw Refused(Quoted(text) + " is no date of the form " + format);
    }
    for (const char* plain : kPlain)
        if (const auto day = ReadDay(text, plain)) return *day;
    if (IsDay(text, "MM/DD/YYYY") || IsDay(text, "DD/MM/YYYY"))
        throw Refused(
            Quoted(text) +
            " may be read in two ways: tell the \"format\", as MM/DD/YYYY, in the mapping");
    throw Refused(Quoted(text) + " is no date");
}

std::string ApiNumber(std::string_view text) {
    std::string digits;
    for (const char ch : WithoutZeroFraction(text)) {
        if (kv::IsDigit(ch))
            digits += ch;
        else if (ch != '-' && ch != ' ')
            throw Refused(Quoted(text) + " is no API number");
    }
    // The state's leading zero is what gets lost.
    if (digits.size() % 2 == 1) digits.insert(0, "0");
    if (digits.size() == 10) digits += "00";
    if (digits.size() == 14) digits.resize(12);
    if (digits.size() != 12)
        throw Refused(Quoted(text) + " is no API number: it has not 10, 12 or 14 digits");
    return digits;
}

std::string CellValue(const Column& column, std::string_view text, const std::string& dateFormat) {
    const std::string value = kv::TrimSpace(text);
    if (value.empty()) return {};
    const std::string_view name = column.name;
    if (name == "api_no") return ApiNumber(value);
    if (name == "stcode") return TextValue(column, WithoutZeroFraction(value));
    if (name == "lbnum" || name == "to_lbnum" || name == "lbext" || name == "to_lbext")
        throw std::logic_error("The parts of a label are split by its rule");
    switch (column.kind) {
        case CellKind::kText:
            return TextValue(column, value);
        case CellKind::kWhole:
        case CellKind::kNumber:
            return NumberValue(column, value);
        case CellKind::kDate:
            if (value.find_first_not_of('0') == std::string::npos) return {};
            return DayOf(value, dateFormat);
    }
    return {};
}

}  // namespace kvload
