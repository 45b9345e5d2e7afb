#include "base/foreign_text.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace {

using namespace std::string_literals;
using kv::DecodeText;

TEST(DecodeText, LeavesPlainTextAlone) {
    EXPECT_EQ(DecodeText(""), "");
    EXPECT_EQ(DecodeText("a\nb"), "a\nb");
    EXPECT_EQ(DecodeText("caf\xC3\xA9 28\xB0\n"), "caf\xC3\xA9 28\xB0\n");
}

TEST(DecodeText, PassesOverTheMarkOfUtf8AtTheBeginningAlone) {
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF"), "");
    EXPECT_EQ(DecodeText("\xEF\xBB\xBF"
                         "a\n\xEF\xBB\xBF"
                         "b"),
              "a\n\xEF\xBB\xBF"
              "b");
    EXPECT_EQ(DecodeText("\xEF\xBB"), "\xEF\xBB");
}

TEST(DecodeText, ReadsUtf16InTheOrderThatItsMarkTells) {
    EXPECT_EQ(DecodeText("\xFF\xFE"s), "");
    EXPECT_EQ(DecodeText("\xFF\xFE"
                         "A\0\r\0\n\0\xE9\0"s),
              "A\n\xC3\xA9");
    EXPECT_EQ(DecodeText("\xFE\xFF\0A\0\r\0\xE9"s), "A\n\xC3\xA9");
}

TEST(DecodeText, TurnsEveryCharacterOfUtf16IntoUtf8) {
    const std::pair<std::string, const char*> cases[] = {
        {"\x00\x7F"s, "\x7F"},
        {"\x00\x80"s, "\xC2\x80"},
        {"\x07\xFF"s, "\xDF\xBF"},
        {"\x08\x00"s, "\xE0\xA0\x80"},
        {"\xD7\xFF"s, "\xED\x9F\xBF"},
        {"\xE0\x00"s, "\xEE\x80\x80"},
        {"\xFF\xFF"s, "\xEF\xBF\xBF"},
        {"\xD8\x00\xDC\x00"s, "\xF0\x90\x80\x80"},
        {"\xD8\x3D\xDE\x00"s, "\xF0\x9F\x98\x80"},
        {"\xDB\xFF\xDF\xFF"s, "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [bytes, utf8] : cases)
        EXPECT_EQ(DecodeText("\xFE\xFF" + bytes + "\0x"s), std::string(utf8) + "x");
}

TEST(DecodeText, WhatUtf16CannotBeIsAReplacementCharacter) {
    const std::string lost = "\xEF\xBF\xBD";
    EXPECT_EQ(DecodeText("\xFE\xFF\xD8\x00\0a"s), lost + "a");
    EXPECT_EQ(DecodeText("\xFE\xFF\xD8\x00"s), lost);
    EXPECT_EQ(DecodeText("\xFE\xFF\xDC\x00\0a"s), lost + "a");
    EXPECT_EQ(DecodeText("\xFE\xFF\xD8\x00\xD8\x00\xDC\x00"s), lost + "\xF0\x90\x80\x80");
    EXPECT_EQ(DecodeText("\xFE\xFF\0a\0"s), "a" + lost);
    EXPECT_EQ(DecodeText("\xFE\xFF\xD8\x00\xDC"s), lost + lost);
}

TEST(DecodeText, EndsALineAtACarriageReturnALineFeedOrBoth) {
    EXPECT_EQ(DecodeText("a\rb\nc\r\nd\r\re\n\rf\r"), "a\nb\nc\nd\n\ne\n\nf\n");
}

TEST(IsText, WhereThereIsNoZeroByte) {
    EXPECT_TRUE(kv::IsText(""));
    EXPECT_TRUE(kv::IsText("\x01\xFF"));
    EXPECT_FALSE(kv::IsText("a\0"s));
    EXPECT_FALSE(kv::IsText(DecodeText("A\0B\0"s)));
    EXPECT_FALSE(kv::IsText(DecodeText("\xFF\xFE\0\0A\0\0\0"s)));
}

TEST(ReadForeignText, DecodesAFile) {
    const test::TempFolder folder;
    folder.Write("a.txt",
                 "\xEF\xBB\xBF"
                 "a\rb");
    EXPECT_EQ(kv::ReadForeignText(folder.Dialog("A.TXT")), "a\nb");
    folder.Write("empty", "");
    EXPECT_EQ(kv::ReadForeignText(folder.Dialog("empty")), "");
    EXPECT_EQ(kv::ReadForeignText(folder.Dialog("none")), std::nullopt);
}

}  // namespace
