#pragma once

#include <map>
#include <string>
#include <string_view>

namespace kvdlg {

/// How many lists and objects may stand inside each other.
inline constexpr int kDeepestJson = 100;

/// The line, from 1, on which each value of a JSON text begins, by its JSON pointer, such as
/// "/user/0/do/2". Of a text that is no JSON, or goes too deep, what comes ahead of the fault.
std::map<std::string, int> LinesOf(std::string_view json);

}  // namespace kvdlg
