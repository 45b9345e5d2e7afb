#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/export.h"

namespace kv {

/// A value of a qualifier file holds no more characters than this.
inline constexpr std::size_t kLongestQualifier = 99;

/// The values of a qualifier file: a line each, without the white space around it, in upper case.
/// Blank lines and lines that begin with "#" are passed over. A longer line than a value may hold
/// is cut; `cut`, if given, counts those.
KVGUICTL_API std::vector<std::string> ParseQualifiers(std::string_view text, int* cut = nullptr);

}  // namespace kv
