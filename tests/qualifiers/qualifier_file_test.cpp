#include "qualifiers/qualifier_file.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(QualifierFile, HoldsAValueOnEachLine) {
    EXPECT_THAT(kv::ParseQualifiers("AMBER\nShelf oil\n"), ElementsAre("AMBER", "SHELF OIL"));
    EXPECT_THAT(kv::ParseQualifiers("no line feed at the end"),
                ElementsAre("NO LINE FEED AT THE END"));
    EXPECT_THAT(kv::ParseQualifiers(""), IsEmpty());
}

TEST(QualifierFile, DropsBlanksAroundAValueAndKeepsThoseInIt) {
    EXPECT_THAT(kv::ParseQualifiers("   a  b \n\tc\t\n"), ElementsAre("A  B", "C"));
}

TEST(QualifierFile, PassesOverBlankLines) {
    EXPECT_THAT(kv::ParseQualifiers("\n\na\n\n\nb\n   \n \t \n\n"), ElementsAre("A", "B"));
}

TEST(QualifierFile, PassesOverCommentsThatBeginTheLine) {
    EXPECT_THAT(kv::ParseQualifiers("#a\n#\n# b\n"), IsEmpty());
    EXPECT_THAT(kv::ParseQualifiers(" # a\na#b\n"), ElementsAre("# A", "A#B"));
}

TEST(QualifierFile, KeepsDoubles) {
    EXPECT_THAT(kv::ParseQualifiers("a\nA\na"), ElementsAre("A", "A", "A"));
}

TEST(QualifierFile, RaisesAsciiLettersAlone) {
    EXPECT_THAT(kv::ParseQualifiers("caf\xc3\xa9 \xb0z"), ElementsAre("CAF\xc3\xa9 \xb0Z"));
}

TEST(QualifierFile, HoldsNinetyNineCharactersOfALine) {
    int cut = -1;
    const std::string longest(99, 'a');
    EXPECT_THAT(kv::ParseQualifiers(longest + "\nb\n", &cut),
                ElementsAre(std::string(99, 'A'), "B"));
    EXPECT_EQ(cut, 0);
    for (const std::size_t length : {100u, 1000u}) {
        EXPECT_THAT(kv::ParseQualifiers(std::string(length, 'a') + "\nb", &cut),
                    ElementsAre(std::string(99, 'A'), "B"));
        EXPECT_EQ(cut, 1);
    }
}

TEST(QualifierFile, CountsCharactersAndCutsNoneInTwo) {
    const auto times = [](int count, const std::string& character) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += character;
        return text;
    };
    int cut = -1;
    for (const std::string character : {"\xD0\x96", "\xE2\x82\xAC", "\xF0\x9F\x9B\xA2", "\xC6"}) {
        for (const int count : {60, 99}) {
            EXPECT_THAT(kv::ParseQualifiers(times(count, character), &cut),
                        ElementsAre(times(count, character)));
            EXPECT_EQ(cut, 0);
        }
        EXPECT_THAT(kv::ParseQualifiers(times(100, character), &cut),
                    ElementsAre(times(99, character)));
        EXPECT_EQ(cut, 1);
    }
}

TEST(QualifierFile, DoesNotCountALineThatLosesWhiteSpaceAloneAsCut) {
    int cut = -1;
    const std::string longest(99, 'A');
    EXPECT_THAT(kv::ParseQualifiers(longest + " \t \nB" + std::string(200, ' '), &cut),
                ElementsAre(longest, "B"));
    EXPECT_EQ(cut, 0);
    EXPECT_THAT(kv::ParseQualifiers(longest + " c", &cut), ElementsAre(longest));
    EXPECT_EQ(cut, 1);
}

TEST(QualifierFile, DoesNotCountALongCommentAsCut) {
    int cut = -1;
    EXPECT_THAT(kv::ParseQualifiers("#" + std::string(1000, 'a') + "\nb", &cut), ElementsAre("B"));
    EXPECT_EQ(cut, 0);
}

}  // namespace
