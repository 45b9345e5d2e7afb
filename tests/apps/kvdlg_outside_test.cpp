#include <gmock/gmock.h>

#include <chrono>

#include "kvdlg/script.h"
#include "kvdlg/script_lines.h"
#include "window/dialogs/dialog.h"

namespace {

using testing::HasSubstr;

/// What lies outside the windows as the head of a script says.
class KvdlgOutside : public testing::Test {
protected:
    void Set(const std::string& script) {
        kvdlg::SetOutside(kvdlg::ParseJson(script, "script"), kvdlg::LinesOf(script), desktop_);
    }
    std::string Refusal(const std::string& script) {
        try {
            Set(script);
        } catch (const kvdlg::BadScript& e) {
            return e.what();
        }
        return "";
    }
    kv::HeadlessDesktop desktop_;
};

TEST_F(KvdlgOutside, TheHeadSaysWhatTimeItIs) {
    using namespace std::chrono_literals;
    Set(R"({"time": "2024-02-29T23:08:09Z"})");
    const auto expected = std::chrono::sys_days(std::chrono::year(2024) / 2 / 29) + 23h + 8min + 9s;
    EXPECT_EQ(desktop_.Now(), expected);
    EXPECT_EQ(desktop_.Now(), expected) << "it stands still";
}

TEST_F(KvdlgOutside, WithoutATimeItIsTheMachines) {
    Set("{}");
    const auto before = std::chrono::system_clock::now();
    const auto now = desktop_.Now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, std::chrono::system_clock::now());
}

TEST_F(KvdlgOutside, ATimeIsADayThatIsThereAndATimeOfIt) {
    for (const char* time :
         {R"("")", "12", "null", R"("2024-05-06")", R"("2024-05-06T07:08:09")",
          R"("2024-13-06T07:08:09Z")", R"("2023-02-29T07:08:09Z")", R"("2024-05-06T24:08:09Z")",
          R"("2024-05-06T07:60:09Z")", R"("2024-05-06T07:08:60Z")", R"("2024-05-06 07:08:09Z")",
          R"("-024-05-06T07:08:09Z")", R"("2024-05-06T-7:08:09Z")", R"("2024-05-06T07:+8:09Z")"}) {
        EXPECT_THAT(Refusal(std::string("{\n\"time\": ") + time + "}"),
                    HasSubstr("Line 2, the script: expected \"time\" to be a text as"))
            << time;
    }
}

TEST_F(KvdlgOutside, TheHeadSaysHowLargeTheScreenIs) {
    EXPECT_EQ(desktop_.ScreenSize(), (CSize{1920, 1080}));
    Set(R"({"screen": [1366, 728]})");
    EXPECT_EQ(desktop_.ScreenSize(), (CSize{1366, 728}));
}

TEST_F(KvdlgOutside, AScreenHasAWidthAndAHeight) {
    for (const char* screen : {"1366", "[]", "[1366]", "[1366, 0]", "[1366, -1]", "[1366, 1e9]",
                               "[1366, 72.5]", "[\"1366\", 728]", "[1366, 728, 24]"}) {
        EXPECT_THAT(Refusal(std::string("{\"screen\": ") + screen + "}"),
                    HasSubstr("expected \"screen\" to be its width and height"))
            << screen;
    }
}

}  // namespace
