#include "mapbuild/builders/clock_name.h"

#include <chrono>
#include <ctime>

#include "base/text.h"
#include "window/window_system.h"

namespace kv::mapbuild {

std::string ClockName() {
    constexpr const char* kMonths[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                       "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    const std::time_t now = std::chrono::system_clock::to_time_t(Now());
    std::tm local{};
    localtime_r(&now, &local);
    return FormatText("%d%s%02d_%02dH%02dM%02dS", local.tm_year + 1900, kMonths[local.tm_mon],
                      local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

}  // namespace kv::mapbuild
