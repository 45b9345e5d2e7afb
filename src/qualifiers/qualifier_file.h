#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"

namespace kv {

/// A value of a qualifier file holds no more characters than this; a byte that is no UTF-8 is one.
inline constexpr std::size_t kLongestQualifier = 99;

/// The values of a qualifier file: a line each, without the white space around it, in upper case.
/// Blank lines and lines that begin with "#" are passed over. What a line holds beyond as many
/// characters is cut off; `cut`, if given, counts the lines that lose more than white space by it.
KVGUICTL_API std::vector<std::string> ParseQualifiers(std::string_view text, int* cut = nullptr);

/// Tells the person that so many lines of a file were cut.
KVGUICTL_API std::string WordsOfCut(const std::string& path, int cut);

}  // namespace kv
