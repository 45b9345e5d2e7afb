#include "mapbuild/builders/clock_name.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <string>

#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace {

TEST(ClockName, IsTheLocalTimeWithTheMonthInEnglish) {
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    const char* const months[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                  "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    for (int month = 0; month < 12; ++month) {
        std::tm local{};
        local.tm_year = 2026 - 1900;
        local.tm_mon = month;
        local.tm_mday = 5;
        local.tm_hour = 7;
        local.tm_min = 8;
        local.tm_sec = 9;
        local.tm_isdst = -1;
        desktop.SetNow(std::chrono::system_clock::from_time_t(std::mktime(&local)));
        EXPECT_EQ(kv::mapbuild::ClockName(), "2026" + std::string(months[month]) + "05_07H08M09S");
    }
}

}  // namespace
