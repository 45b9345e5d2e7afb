#include "base/utf8.h"

#include <gtest/gtest.h>

namespace test {
namespace {

constexpr char32_t kEnds[] = {0,      0x7F,   0x80,   0x7FF,   0x800,
                              0xD7FF, 0xE000, 0xFFFF, 0x10000, 0x10FFFF};

TEST(Utf8, EveryCharacterReadsAsItIsWritten) {
    std::size_t length = 1;
    for (const char32_t code : kEnds) {
        std::string text = "x";
        kv::AppendUtf8(text, code);
        if (code == 0x80 || code == 0x800 || code == 0x10000) ++length;
        ASSERT_EQ(text.size(), 1 + length) << static_cast<unsigned>(code);
        const kv::Utf8Character character = kv::Utf8At(text + "y", 1);
        EXPECT_EQ(character.code, code);
        EXPECT_EQ(character.length, length);
    }
}

TEST(Utf8, AByteThatBeginsNoCharacterIsOneByItself) {
    for (const char* text :
         {"\x80", "\xBF\x80", "\xC1\x80", "\xF5\x80\x80\x80", "\xFF", "\xC3", "\xC3(", "\xE2\x82",
          "\xE2(\xAC", "\xE2\x82(", "\xF0\x9F\x98", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80"}) {
        const kv::Utf8Character character = kv::Utf8At(text, 0);
        EXPECT_EQ(character.length, 1u) << text;
        EXPECT_EQ(character.code, static_cast<unsigned char>(*text)) << text;
    }
}

}  // namespace
}  // namespace test
