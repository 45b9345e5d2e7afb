#pragma once

#include <cstdarg>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"

/// Text as bytes: only ASCII letters have a case, and only ASCII white space is white.
namespace kv {

constexpr char ToUpper(char ch) {
    return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch;
}
constexpr char ToLower(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}
constexpr bool IsDigit(char ch) {
    return ch >= '0' && ch <= '9';
}
/// Blank, tab, line feed, vertical tab, form feed, carriage return.
constexpr bool IsSpace(char ch) {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

KVGUICTL_API std::string ToUpper(std::string_view text);
KVGUICTL_API std::string ToLower(std::string_view text);

/// Without the blanks at both ends; blanks only.
KVGUICTL_API std::string Trim(std::string_view text);
/// Without the white space at both ends.
KVGUICTL_API std::string TrimSpace(std::string_view text);

/// Below 0, 0 or above 0; without regard to case.
KVGUICTL_API int CompareNoCase(std::string_view a, std::string_view b);
KVGUICTL_API bool EqualsNoCase(std::string_view a, std::string_view b);
KVGUICTL_API bool StartsWithNoCase(std::string_view text, std::string_view prefix);

/// The parts between the separators; always one more than there are separators.
KVGUICTL_API std::vector<std::string> Split(std::string_view text, char separator);

/// Each line closed by a line feed.
KVGUICTL_API std::string JoinLines(const std::vector<std::string>& lines);
/// The lines of a text; a line feed at its very end begins no further line.
KVGUICTL_API std::vector<std::string> SplitLines(std::string_view text);

/// Every occurrence, from left to right; an empty `from` replaces nothing.
KVGUICTL_API std::string ReplaceAll(std::string_view text, std::string_view from,
                                    std::string_view to);

/// As sprintf, whatever the locale; exponents have at least three digits.
KVGUICTL_API std::string FormatText(const char* format, ...) __attribute__((format(printf, 1, 2)));
KVGUICTL_API std::string FormatTextV(const char* format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));

}  // namespace kv
