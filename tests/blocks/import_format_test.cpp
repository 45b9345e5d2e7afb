#include "blocks/import_format.h"

#include <gtest/gtest.h>

#include <string>

namespace kv {

void PrintTo(const ImportedBlock& block, std::ostream* out) {
    *out << '(' << block.area << '|' << block.block << ')';
}

namespace {

using Imported = ImportedBlock;

TEST(ImportFormat, CutsALineAtTheColumnDelimiter) {
    EXPECT_EQ(ReadImportLine("GC\t45A", {}), (Imported{"GC", "45A"}));
    EXPECT_EQ(ReadImportLine("GREEN CANYON, 45A", {.columnDelimiter = ","}),
              (Imported{"GREEN CANYON", "45A"}));
    EXPECT_EQ(ReadImportLine("GC::45", {.columnDelimiter = "::"}), (Imported{"GC", "45"}));
}

TEST(ImportFormat, CutsAtTheFirstOfThem) {
    EXPECT_EQ(ReadImportLine("GC-45-A", {.columnDelimiter = "-"}), (Imported{"GC", "45-A"}));
    EXPECT_EQ(ReadImportLine("GC\t45\tA", {}), (Imported{"GC", "45A"}));
}

TEST(ImportFormat, ALineWithoutOneIsAWholeArea) {
    EXPECT_EQ(ReadImportLine("green canyon", {}), (Imported{"GREEN CANYON", ""}));
    EXPECT_EQ(ReadImportLine("GC 45", {.columnDelimiter = ""}), (Imported{"GC 45", ""}));
    EXPECT_EQ(ReadImportLine("", {}), (Imported{"", ""}));
}

TEST(ImportFormat, TakesEveryExtensionDelimiterOut) {
    EXPECT_EQ(ReadImportLine("GC\t45-A-", {.extDelimiter = "-"}), (Imported{"GC", "45A"}));
    EXPECT_EQ(ReadImportLine("GC\t45 and A", {.extDelimiter = "and"}), (Imported{"GC", "45A"}));
    EXPECT_EQ(ReadImportLine("GC\t45-A", {}), (Imported{"GC", "45-A"}));
}

TEST(ImportFormat, PutsAnExtensionThatStandsFirstBehind) {
    const ImportFormat format{.blockFirst = false, .extDelimiter = "-"};
    EXPECT_EQ(ReadImportLine("GC\tA-45", format), (Imported{"GC", "45A"}));
    EXPECT_EQ(ReadImportLine("GC\t45", format), (Imported{"GC", "45"}));
    EXPECT_EQ(ReadImportLine("GC\tA 45 B", format), (Imported{"GC", "45BA"}));
    EXPECT_EQ(ReadImportLine("GC\tNONE", format), (Imported{"GC", "NONE"}));
}

TEST(ImportFormat, AreasLoseBlanksAtTheirEndsAndTabsAndBlocksLoseAll) {
    EXPECT_EQ(ReadImportLine("  Green  Canyon , 4 5\tA ", {.columnDelimiter = ","}),
              (Imported{"GREEN  CANYON", "45A"}));
    EXPECT_EQ(ReadImportLine("\t G\tC,1", {.columnDelimiter = ","}), (Imported{" GC", "1"}));
}

TEST(ImportFormat, BlocksKeepTheirLetters) {
    EXPECT_EQ(ReadImportLine("gc\t45a", {}), (Imported{"GC", "45a"}));
}

}  // namespace
}  // namespace kv
