#include "base/text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "base/c_locale.h"

namespace kv {

namespace {

std::string Cut(std::string_view text, std::string_view set) {
    const std::size_t first = text.find_first_not_of(set);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(set) - first + 1));
}

/// One conversion of a printf format: %[flags][width][.precision][length]type.
struct Conversion {
    std::string flags;
    int width = 0;
    std::string precision;  ///< with its period
    std::string length;
    char type = '\0';

    bool Has(char flag) const { return flags.find(flag) != std::string::npos; }
    /// Written again, but for the width, which is done here.
    std::string Form() const {
        std::string kept = flags;
        std::erase_if(kept, [](char flag) { return flag == '-' || flag == '0'; });
        return "%" + kept + precision + length + type;
    }
};

/// So that a va_list can be handed on by reference on every platform.
struct Arguments {
    std::va_list list;
};

template <class T>
std::string Print(const std::string& form, T value) {
    const int size = std::snprintf(nullptr, 0, form.c_str(), value);
    if (size <= 0) return {};
    std::string text(static_cast<std::size_t>(size) + 1, '\0');
    std::snprintf(text.data(), text.size(), form.c_str(), value);
    text.pop_back();
    return text;
}

std::string PrintDouble(const std::string& form, double value) {
    const CLocale locale;
    std::string text = Print(form, value);
    if (!std::isfinite(value)) return text;
    const std::size_t mark = text.find_first_of("eE");
    const bool twoDigits = mark != std::string::npos && text.size() == mark + 4;
    return twoDigits ? text.insert(mark + 2, 1, '0') : text;
}

std::string PrintInteger(const Conversion& conversion, Arguments& arguments) {
    const std::string form = conversion.Form();
    if (conversion.length == "l") return Print(form, va_arg(arguments.list, long));
    if (conversion.length == "ll") return Print(form, va_arg(arguments.list, long long));
    if (conversion.length == "j") return Print(form, va_arg(arguments.list, std::intmax_t));
    if (conversion.length == "z") return Print(form, va_arg(arguments.list, std::size_t));
    if (conversion.length == "t") return Print(form, va_arg(arguments.list, std::ptrdiff_t));
    return Print(form, va_arg(arguments.list, int));
}

bool IsInteger(char type) {
    return std::string_view("diouxX").find(type) != std::string_view::npos;
}
bool IsFloating(char type) {
    return std::string_view("eEfFgGaA").find(type) != std::string_view::npos;
}

std::string PrintValue(const Conversion& conversion, Arguments& arguments) {
    const std::string form = conversion.Form();
    if (IsInteger(conversion.type)) return PrintInteger(conversion, arguments);
    if (IsFloating(conversion.type)) {
        if (conversion.length != "L") return PrintDouble(form, va_arg(arguments.list, double));
        const auto value = static_cast<double>(va_arg(arguments.list, long double));
        return PrintDouble(ReplaceAll(form, "L", ""), value);
    }
    if (conversion.type == 'c')
        return std::string(1, static_cast<char>(va_arg(arguments.list, int)));
    if (conversion.type == 's') {
        const char* text = va_arg(arguments.list, const char*);
        return Print(form, text ? text : "(null)");
    }
    if (conversion.type == 'p') return Print(form, va_arg(arguments.list, void*));
    return {};
}

std::string Pad(const Conversion& conversion, std::string text) {
    const auto width = static_cast<std::size_t>(conversion.width);
    if (text.size() >= width) return text;
    const std::size_t missing = width - text.size();
    if (conversion.Has('-')) return text.append(missing, ' ');
    const bool number =
        IsFloating(conversion.type) || (IsInteger(conversion.type) && conversion.precision.empty());
    const bool finite = std::any_of(text.begin(), text.end(), IsDigit);
    if (!conversion.Has('0') || !number || !finite) return text.insert(0, missing, ' ');
    std::size_t behindSign = text.find_first_not_of("+- ");
    if (text.compare(behindSign, 2, "0x") == 0 || text.compare(behindSign, 2, "0X") == 0)
        behindSign += 2;
    return text.insert(behindSign, missing, '0');
}

int ReadCount(const char*& at, Arguments& arguments) {
    if (*at == '*') {
        ++at;
        return va_arg(arguments.list, int);
    }
    int count = 0;
    for (; IsDigit(*at); ++at)
        count = count < 100'000'000 ? count * 10 + (*at - '0') : count;
    return count;
}

Conversion ReadConversion(const char*& at, Arguments& arguments) {
    constexpr std::string_view kFlags = "-+ #0";
    constexpr std::string_view kLengths = "hlLjzt";
    Conversion conversion;
    while (*at && kFlags.find(*at) != std::string_view::npos)
        conversion.flags += *at++;
    conversion.width = ReadCount(at, arguments);
    if (conversion.width < 0) {
        conversion.flags += '-';
        conversion.width = -conversion.width;
    }
    if (*at == '.') {
        ++at;
        const int precision = ReadCount(at, arguments);
        if (precision >= 0) conversion.precision = "." + std::to_string(precision);
    }
    while (*at && kLengths.find(*at) != std::string_view::npos)
        conversion.length += *at++;
    if (*at) conversion.type = *at++;
    return conversion;
}

}  // namespace

std::string ToUpper(std::string_view text) {
    std::string result(text);
    for (char& ch : result)
        ch = ToUpper(ch);
    return result;
}

std::string ToLower(std::string_view text) {
    std::string result(text);
    for (char& ch : result)
        ch = ToLower(ch);
    return result;
}

std::string Trim(std::string_view text) {
    return Cut(text, " ");
}

std::string TrimSpace(std::string_view text) {
    return Cut(text, " \t\n\v\f\r");
}

int CompareNoCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto left = static_cast<unsigned char>(ToLower(a[i]));
        const auto right = static_cast<unsigned char>(ToLower(b[i]));
        if (left != right) return left < right ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && (a == b || CompareNoCase(a, b) == 0);
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    return EqualsNoCase(text.substr(0, prefix.size()), prefix);
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, begin)) {
        parts.emplace_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    parts.emplace_back(text.substr(begin));
    return parts;
}

std::string JoinLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines = Split(text, '\n');
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string result;
    std::size_t begin = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos;
         at = text.find(from, begin)) {
        result.append(text, begin, at - begin).append(to);
        begin = at + from.size();
    }
    return result.append(text, begin);
}

std::string FormatText(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::string text = FormatTextV(format, arguments);
    va_end(arguments);
    return text;
}

std::string FormatTextV(const char* format, std::va_list list) {
    Arguments arguments;
    va_copy(arguments.list, list);
    std::string text;
    for (const char* at = format; at && *at;) {
        if (*at != '%') {
            text += *at++;
        } else if (at[1] == '%') {
            text += '%';
            at += 2;
        } else {
            ++at;
            const Conversion conversion = ReadConversion(at, arguments);
            text += Pad(conversion, PrintValue(conversion, arguments));
        }
    }
    va_end(arguments.list);
    return text;
}

}  // namespace kv
