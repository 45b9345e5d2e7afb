#pragma once

#include <string>

namespace kv::mapbuild {

/// The name of a map that has no picks to be named by: the desktop's time, local and in English, as
/// 2000JAN14_09H30M15S.
std::string ClockName();

}  // namespace kv::mapbuild
