#include "kvdlg/script_lines.h"

#include <gmock/gmock.h>

#include "support/fuzz_corpus.h"

// Each fuzz target has an entry of this name.
#define LLVMFuzzerTestOneInput ScriptLinesFuzzOneInput
#include "fuzz/script_lines_fuzz.cpp"
#undef LLVMFuzzerTestOneInput

namespace {

using kvdlg::LinesOf;
using ::testing::Contains;
using ::testing::Pair;

TEST(ScriptLines, KnowsTheLineOfEachScene) {
    const auto lines = LinesOf(
        "{\n  \"inputs\": {},\n  \"user\": [\n    {\"window\": \"A\",\n"
        "     \"do\": [ {\"click\": 1},\n\n {\"click\": 2} ]},\n"
        "    { \"message\": \"x]}, \\\"\" }\n  ]\n}\n");
    EXPECT_THAT(lines, Contains(Pair("", 1)));
    EXPECT_THAT(lines, Contains(Pair("/inputs", 2)));
    EXPECT_THAT(lines, Contains(Pair("/user", 3)));
    EXPECT_THAT(lines, Contains(Pair("/user/0", 4)));
    EXPECT_THAT(lines, Contains(Pair("/user/0/do/0", 5)));
    EXPECT_THAT(lines, Contains(Pair("/user/0/do/1", 7)));
    EXPECT_THAT(lines, Contains(Pair("/user/1/message", 8)));
}

TEST(ScriptLines, StopsQuietlyAtAFault) {
    for (const char* text : {"", "{", "[", "[1,", "{\"a\"", "{\"a\":", "\"open", "\"a\\", "{a}",
                             "]", "[[[", "{\"a\":[1 2]}", "nul"}) {
        EXPECT_THAT(LinesOf(text), Contains(Pair("", 1))) << text;
    }
}

TEST(ScriptLines, GoesDownToAHundredLists) {
    std::string pointer;
    for (int i = 0; i < kvdlg::kDeepestJson; ++i)
        pointer += "/0";
    const auto lines = LinesOf(std::string(1'000'000, '['));
    EXPECT_THAT(lines, Contains(Pair(pointer, 1)));
    EXPECT_THAT(lines, Contains(Pair(pointer + "/0", 1)));
    EXPECT_EQ(lines.size(), pointer.size() / 2 + 2);
}

TEST(ScriptLinesCorpus, IsReadWithoutHarm) {
    test::RunCorpus("script_lines", ScriptLinesFuzzOneInput);
}

}  // namespace
