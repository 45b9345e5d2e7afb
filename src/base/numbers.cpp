#include "base/numbers.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>

#include "base/c_locale.h"
#include "base/text.h"

namespace kv {

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();
constexpr int kSmallest = std::numeric_limits<int>::min();
/// Of a number in fixed notation: the largest has 309 digits ahead of the point.
constexpr std::size_t kFixedLength = 384;

bool IsSign(char ch) {
    return ch == '+' || ch == '-';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

/// Place of the number's sign or first character, behind white space.
std::size_t NumberBegin(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && IsSpace(text[at]))
        ++at;
    return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
    return at < text.size() && IsSign(text[at]) ? at + 1 : at;
}

/// Behind an exponent that stands at `at` with at least one digit, else `at`.
std::size_t SkipExponent(std::string_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
    const std::size_t digits = SkipSign(text, at + 1);
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end : at;
}

/// Behind the decimal number that begins at `begin`, or `begin` when there is none.
std::size_t NumberEnd(std::string_view text, std::size_t begin) {
    const std::size_t whole = SkipSign(text, begin);
    std::size_t at = SkipDigits(text, whole);
    std::size_t digits = at - whole;
    if (at < text.size() && text[at] == '.') {
        const std::size_t end = SkipDigits(text, at + 1);
        digits += end - at - 1;
        at = end;
    }
    return digits > 0 ? SkipExponent(text, at) : begin;
}

void Report(std::size_t* end, std::size_t place) {
    if (end) *end = place;
}

int Saturated(std::string_view digits, bool negative) {
    long long value = 0;
    for (const char ch : digits) {
        value = value * 10 + (ch - '0');
        if (value > static_cast<long long>(kLargest) + 1) return negative ? kSmallest : kLargest;
    }
    if (negative) return static_cast<int>(-value);
    return value > kLargest ? kLargest : static_cast<int>(value);
}

/// Behind the conversion for a double that follows a percent sign at `at`, or npos.
std::size_t SkipDoubleConversion(std::string_view format, std::size_t at) {
    constexpr std::string_view kTypes = "eEfFgG";
    at = format.find_first_not_of("-+ #0", at);
    if (at == std::string_view::npos) return at;
    at = SkipDigits(format, at);
    if (at < format.size() && format[at] == '.') at = SkipDigits(format, at + 1);
    if (at < format.size() && format[at] == 'l') ++at;
    const bool fits = at < format.size() && kTypes.find(format[at]) != std::string_view::npos;
    return fits ? at + 1 : std::string_view::npos;
}

/// What is no number has no sign either, whatever the machine says.
double Unsigned(double value) {
    return std::isnan(value) ? std::numeric_limits<double>::quiet_NaN() : value;
}

bool HasOneDoubleConversion(std::string_view format) {
    int conversions = 0;
    for (std::size_t at = format.find('%'); at != std::string_view::npos;
         at = format.find('%', at)) {
        if (format.substr(at, 2) == "%%") {
            at += 2;
            continue;
        }
        at = SkipDoubleConversion(format, at + 1);
        if (at == std::string_view::npos) return false;
        ++conversions;
    }
    return conversions == 1;
}

}  // namespace

std::optional<double> ScanNumber(std::string_view text, std::size_t* end) {
    const std::size_t first = NumberBegin(text);
    const std::size_t last = NumberEnd(text, first);
    Report(end, last > first ? last : 0);
    if (last == first) return std::nullopt;
    const CLocale locale;
    return std::strtod(std::string(text.substr(first, last - first)).c_str(), nullptr);
}

std::optional<double> ScanLoneNumber(std::string_view text) {
    std::size_t end = 0;
    const auto number = ScanNumber(text, &end);
    return NumberBegin(text.substr(end)) == text.size() - end ? number : std::nullopt;
}

std::optional<int> ScanInteger(std::string_view text, std::size_t* end) {
    const std::size_t first = NumberBegin(text);
    const std::size_t digits = SkipSign(text, first);
    const std::size_t last = SkipDigits(text, digits);
    Report(end, last > digits ? last : 0);
    if (last == digits) return std::nullopt;
    return Saturated(text.substr(digits, last - digits), text[first] == '-');
}

double Atof(std::string_view text) {
    return ScanNumber(text).value_or(0.0);
}

int Atoi(std::string_view text) {
    return ScanInteger(text).value_or(0);
}

std::string FormatStream(double value) {
    return FormatText("%g", Unsigned(value));
}

std::string FormatFixed(double value, int decimals) {
    value = Unsigned(value);
    char text[kFixedLength];
    const auto [end, error] =
        std::to_chars(text, std::end(text), value, std::chars_format::fixed, decimals);
    if (error != std::errc()) return FormatText("%.*f", decimals, value);
    return std::string(text, end);
}

std::string FormatG(double value) {
    return FormatText("%G", Unsigned(value));
}

std::string FormatPrintf(const std::string& format, double value) {
    if (!HasOneDoubleConversion(format)) return {};
    return FormatText(format.c_str(), Unsigned(value));
}

int ToInt(double value) {
    if (std::isnan(value)) return 0;
    if (value >= kLargest) return kLargest;
    if (value <= kSmallest) return kSmallest;
    return static_cast<int>(value);
}

}  // namespace kv
