#include "blocks/block_file.h"

#include <gmock/gmock.h>

#include <sstream>

#include "support/comma_locale.h"

namespace {

using namespace kv::blocks;
using kv::ImportedBlock;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr const char* kHeader = "AREA NAME\tBlock\tExt.\n";

std::vector<ImportedBlock> Columns(const std::string& lines, int columns = 3) {
    return ReadColumns(kHeader + lines, columns);
}

NeighborRelation Relation(const std::string& text) {
    NeighborRelation relation;
    ReadRelation(text, relation);
    return relation;
}

// The head.

TEST(BlockFileHead, NamesItsVocabularyInEitherCase) {
    EXPECT_TRUE(FileHead("Area Name\tblock").Names(Vocabulary::kNames));
    EXPECT_TRUE(FileHead("areacode").Names(Vocabulary::kCodes));
    EXPECT_TRUE(FileHead("# area code").Names(Vocabulary::kCodes));
    EXPECT_TRUE(FileHead("mms code").Names(Vocabulary::kMmsCodes));
    EXPECT_FALSE(FileHead("MMSCODE AREANAME").Names(Vocabulary::kMmsCodes));
    EXPECT_FALSE(FileHead("").Names(Vocabulary::kNames));
}

TEST(BlockFileHead, IsTheFirstSixtyBytes) {
    EXPECT_TRUE(FileHead(std::string(51, ' ') + "AREA NAME").Names(Vocabulary::kNames));
    EXPECT_FALSE(FileHead(std::string(52, ' ') + "AREA NAME").Names(Vocabulary::kNames));
}

TEST(BlockFileHead, TellsWhichWordStandsThereInTheOrderThatIsAsked) {
    const FileHead head("MMS CODE, AREA CODE");
    using enum Vocabulary;
    EXPECT_EQ(head.FirstOf({kNames, kCodes, kMmsCodes}), kCodes);
    EXPECT_EQ(head.FirstOf({kNames, kMmsCodes, kCodes}), kMmsCodes);
    EXPECT_EQ(FileHead("anything").FirstOf({kNames, kMmsCodes, kCodes}), std::nullopt);
}

TEST(BlockFileHead, TellsTheColumnsByTheirHeadings) {
    EXPECT_EQ(FileHead("AREA NAME").Columns(), 1);
    EXPECT_EQ(FileHead("AREA NAME\text.").Columns(), 1);
    EXPECT_EQ(FileHead("AREA NAME\tBlock").Columns(), 2);
    EXPECT_EQ(FileHead("AREA NAME\tBlock\tExt.").Columns(), 3);
    EXPECT_EQ(FileHead("AREA NAME\nNEXTBLOCK").Columns(), 3);
}

TEST(BlockFile, AFieldStringThatIsNoColumnStandsForMmsCodes) {
    EXPECT_EQ(VocabularyOf("areaname"), Vocabulary::kNames);
    EXPECT_EQ(VocabularyOf("stcode"), Vocabulary::kCodes);
    EXPECT_EQ(VocabularyOf("area_abbr"), Vocabulary::kMmsCodes);
    EXPECT_EQ(VocabularyOf("AREANAME"), Vocabulary::kMmsCodes);
    EXPECT_EQ(FieldStringOf(Vocabulary::kNames), "areaname");
    EXPECT_EQ(FieldStringOf(Vocabulary::kCodes), "stcode");
    EXPECT_EQ(FieldStringOf(Vocabulary::kMmsCodes), "area_abbr");
}

// Columns with tabs.

TEST(BlockFileColumns, AreTrimmedOfBlanksAndTheAreaIsInUpperCase) {
    EXPECT_THAT(Columns(" Grand Isle \t 45 \t a \t\n"),
                ElementsAre(ImportedBlock{"GRAND ISLE", "45a"}));
}

TEST(BlockFileColumns, AWholeAreaHasBlankFields) {
    EXPECT_THAT(Columns("PLAIN\t \t \t\n"), ElementsAre(ImportedBlock{"PLAIN", ""}));
}

TEST(BlockFileColumns, AreAsManyAsTheHeaderTells) {
    EXPECT_THAT(Columns("A\t1\tB\t\n", 1), ElementsAre(ImportedBlock{"A", ""}));
    EXPECT_THAT(Columns("A\t1\tB\t\n", 2), ElementsAre(ImportedBlock{"A", "1"}));
}

TEST(BlockFileColumns, AFieldWithoutATabRunsToTheEndOfTheLineAndKeepsItsLineFeed) {
    EXPECT_THAT(Columns("AB\n", 1), ElementsAre(ImportedBlock{"AB\n", ""}));
    EXPECT_THAT(Columns("A\t1\n"), ElementsAre(ImportedBlock{"A", "1\n"}));
    EXPECT_THAT(Columns("A\t1\tB\n"), ElementsAre(ImportedBlock{"A", "1B\n"}));
}

TEST(BlockFileColumns, EndAtALineOfLessThanThreeCharacters) {
    EXPECT_THAT(Columns("AA\t1\t \t\n\nBB\t2\t \t\n"), ElementsAre(ImportedBlock{"AA", "1"}));
    EXPECT_THAT(Columns("A\nBB\t2\t \t\n"), IsEmpty());
    EXPECT_THAT(Columns("A\t\nB\t\t\t\n"),
                ElementsAre(ImportedBlock{"A", "\n"}, ImportedBlock{"B", ""}));
}

TEST(BlockFileColumns, ALastLineWithoutALineFeedIsLost) {
    EXPECT_THAT(Columns("A\t1\t \t\nB\t2\t \t"), ElementsAre(ImportedBlock{"A", "1"}));
    EXPECT_THAT(ReadColumns("AREA NAME", 1), IsEmpty());
    EXPECT_THAT(ReadColumns("AREA NAME\n", 1), IsEmpty());
    EXPECT_THAT(ReadColumns("", 3), IsEmpty());
}

// Lines of the user's own.

TEST(BlockFileLines, AreReadAsTheUserSaysTheyAreMade) {
    EXPECT_THAT(ReadLines("header\n gi ,45-a\nplain, 7 \nwhole\n\nlost,1\n", {",", true, "-"}),
                ElementsAre(ImportedBlock{"GI", "45a"}, ImportedBlock{"PLAIN", "7"},
                            ImportedBlock{"WHOLE", ""}));
    EXPECT_THAT(ReadLines("\nGI;A 45\nGI;45\nGI;BAY\n", {";", false, ""}),
                ElementsAre(ImportedBlock{"GI", "45A"}, ImportedBlock{"GI", "45"},
                            ImportedBlock{"GI", "BAY"}));
}

// Fixed widths.

TEST(BlockFileFixed, TakesTheWidthsAndATabEach) {
    EXPECT_THAT(ReadFixed("Area Code\n4261 \t45        \tA  \t\n017\t9\n", {5, 10, 3}),
                ElementsAre(ImportedBlock{"4261", "45A"}, ImportedBlock{"017\t9", ""}));
    EXPECT_THAT(ReadFixed("Area Code\n4261 \t45\n", {5, 0, 0}),
                ElementsAre(ImportedBlock{"4261", ""}));
}

TEST(BlockFileFixed, EndsAtAnEmptyAreaAndAtTheMarker) {
    EXPECT_THAT(ReadFixed("h\nABCDE\t1\n     \t2\nFGHIJ\t3\n", {5, 1, 0}),
                ElementsAre(ImportedBlock{"ABCDE", "1"}));
    EXPECT_THAT(ReadFixed("h\nABCDE\t1\n***Neighborhood Relationship***\nFGHIJ\t3\n", {5, 1, 0}),
                ElementsAre(ImportedBlock{"ABCDE", "1"}));
}

// Neighbors.

TEST(BlockFileRelation, JoinsKeysAndTheirNeighbors) {
    const auto relation = Relation(
        "AREA NAME\tBlock\tExt.\nA\t1\t \t\n\n***Neighborhood Relationship***\n"
        "[GRAND~ISLE]\t1\nGRAND~ISLE\t2A\nPLAIN\t3\n[PLAIN]\t3\n[PLAIN]\t4\nA\t1\n");
    EXPECT_THAT(relation,
                ElementsAre(Pair(Place("GRAND ISLE", "1"),
                                 ElementsAre(Place("GRAND ISLE", "2A"), Place("PLAIN", "3"))),
                            Pair(Place("PLAIN", "4"), ElementsAre(Place("A", "1")))));
}

TEST(BlockFileRelation, AddsToWhatIsThere) {
    NeighborRelation relation = {{{"A", "1"}, {{"B", "2"}}}};
    ReadRelation("***Neighborhood Relationship***\n[A]\t1\nC\t3\n", relation);
    EXPECT_THAT(relation,
                ElementsAre(Pair(Place("A", "1"), ElementsAre(Place("B", "2"), Place("C", "3")))));
}

TEST(BlockFileRelation, AnyEarlierPartOfTheMarkerIsTakenForIt) {
    // The extension N ends the search, and what follows is read in pairs from there.
    EXPECT_THAT(Relation("A\t1\tN\t\n\n***Neighborhood Relationship***\n[A]\t1\nB\t2\n"),
                ElementsAre(Pair(Place("", ""),
                                 ElementsAre(Place("Relationship***", "[A]"), Place("1", "B")))));
}

TEST(BlockFileRelation, WithoutAKeyNeighborsGoUnderTheEmptyOne) {
    EXPECT_THAT(Relation("***Neighborhood Relationship***\nA\t1\n"),
                ElementsAre(Pair(Place("", ""), ElementsAre(Place("A", "1")))));
}

TEST(BlockFileRelation, AKeyClosesAtItsFirstBracketOrIsNone) {
    EXPECT_THAT(
        Relation("***Neighborhood Relationship***\n[A]\t1\n[B]C] 2\n[D 3\n[[E] 4\nF 5\n"),
        ElementsAre(Pair(Place("A", "1"), ElementsAre(Place("[B]C]", "2"), Place("[D", "3"))),
                    Pair(Place("E", "4"), ElementsAre(Place("F", "5")))));
}

TEST(BlockFileRelation, ABlockWithABlankIsMisread) {
    EXPECT_THAT(Relation("***Neighborhood Relationship***\n[A]\t1\nB\t2 X\nC\t3\n"),
                ElementsAre(Pair(Place("A", "1"), ElementsAre(Place("B", "2"), Place("X", "C")))));
}

TEST(BlockFileRelation, IsEmptyWithoutAMarkerAndWithNothingBehindIt) {
    EXPECT_THAT(Relation(""), IsEmpty());
    EXPECT_THAT(Relation("A 1 B 2"), IsEmpty());
    EXPECT_THAT(Relation("***Neighborhood Relationship***\n"), IsEmpty());
    EXPECT_FALSE(HasMarker("***Neighborhood\nRelationship***"));
    EXPECT_TRUE(HasMarker("x***Neighborhood Relationship***"));
}

// Writers.

TEST(BlockFileParts, AreTheNumberAndWhatStandsBehindItsLength) {
    EXPECT_EQ(PartsOf(""), (BlockParts{" ", " "}));
    EXPECT_EQ(PartsOf(" "), (BlockParts{" ", " "}));
    EXPECT_EQ(PartsOf("45"), (BlockParts{"45", " "}));
    EXPECT_EQ(PartsOf("45A"), (BlockParts{"45", "A"}));
    EXPECT_EQ(PartsOf("45A-S"), (BlockParts{"45", "A-S"}));
    EXPECT_EQ(PartsOf("0"), (BlockParts{"0", " "}));
    // What is lost on the way.
    EXPECT_EQ(PartsOf("045A"), (BlockParts{"45", "5A"}));
    EXPECT_EQ(PartsOf("A12"), (BlockParts{"0", "12"}));
    EXPECT_EQ(PartsOf("A"), (BlockParts{"0", ""}));
    EXPECT_EQ(PartsOf("-5B"), (BlockParts{"-5", "B"}));
    EXPECT_EQ(PartsOf("99999999999"), (BlockParts{"2147483647", "9"}));
}

TEST(BlockFileWriter, WritesAHeaderForEachOfTheThreeColumnsOnly) {
    const auto header = [](auto write, const char* field) {
        std::ostringstream out;
        write(out, field, Selection());
        return out.str();
    };
    EXPECT_EQ(header(WriteColumns, "areaname"), "AREA NAME\tBlock\tExt.\n");
    EXPECT_EQ(header(WriteColumns, "stcode"), "AREA CODE\tBlock\tExt.\n");
    EXPECT_EQ(header(WriteColumns, "area_abbr"), "MMS CODE\tBlock\tExt.\n");
    EXPECT_EQ(header(WriteColumns, "region"), "");
    EXPECT_EQ(header(WriteFixed, "areaname"), "Area Name\tBlock\tExt.\t\n");
    EXPECT_EQ(header(WriteFixed, "stcode"), "Area Code\tBlock\tExt.\n");
    EXPECT_EQ(header(WriteFixed, "area_abbr"), "");
}

TEST(BlockFileWriter, WritesATabBehindEachField) {
    const test::CommaLocale locale;
    std::ostringstream out;
    WriteColumns(out, "stcode", {{"4261", "017"}, {"12345A", ""}});
    EXPECT_EQ(out.str(), "AREA CODE\tBlock\tExt.\n4261\t12345\tA\t\n017\t \t \t\n");
}

TEST(BlockFileWriter, PadsAndNeverCuts) {
    std::ostringstream out;
    WriteFixed(out, "stcode", {{"1", "1234567"}, {"45", "12345678901ABCD"}});
    EXPECT_EQ(out.str(),
              "Area Code\tBlock\tExt.\n"
              "1    \t45        \t   \t\n"
              "1234567\t2147483647\t1ABCD\t\n");
    std::ostringstream names;
    WriteFixed(names, "areaname", {{"A"}, {""}});
    EXPECT_EQ(names.str(), "Area Name\tBlock\tExt.\t\nA" + std::string(32, ' ') + "\t" +
                               std::string(10, ' ') + "\t   \t\n");
}

TEST(BlockFileWriter, PutsAMarkForEachBlankOfAnAreaAmongTheNeighborsOnly) {
    std::ostringstream out;
    WriteRelation(out, {{{"GRAND ISLE", "9"}, {{"PLAIN", "1 A"}}}, {{"A B C", ""}, {}}});
    EXPECT_EQ(out.str(),
              "\n***Neighborhood Relationship***\n[A~B~C]\t\n[GRAND~ISLE]\t9\nPLAIN\t1 A\n");
    std::ostringstream none;
    WriteRelation(none, {});
    EXPECT_EQ(none.str(), "\n***Neighborhood Relationship***\n");
}

}  // namespace
