// Reports as workbooks for spreadsheets, read again by GDAL.

#include "workbench/results/xlsx.h"

#include <gmock/gmock.h>

#include <numeric>

#include "kvload/source_module.h"
#include "support/file_faults.h"
#include "support/file_size_limit.h"
#include "support/temp_folder.h"
#include "workbench/results/cell_text.h"
#include "workbench/results/csv.h"

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Optional;

using Cells = std::vector<kvload::Cell>;

ResultTable Sample() {
    ResultTable table;
    table.columns = {{"API number"}, {"Operator"}, {"Depth, ft", true}, {"Block", true}};
    table.cells = {"0421140123", "Pétróleo & <Sons>",      "12000.00", "007",  //
                   "1771140124", "two\nlines, \"quoted\"", "-700.50",  "12",  "9999999999", "", "",
                   "0.125"};
    table.keys = {{"1", "007"}, {"1", "12"}, {"1", "A"}};
    return table;
}

std::vector<int> AllRows(const ResultTable& table) {
    std::vector<int> rows(static_cast<std::size_t>(table.RowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// Headings, and the cells of each row.
std::vector<Cells> ReadBack(const std::string& path, std::vector<std::string>& fields) {
    const auto layer = kvload::Open({path, "Results", ""});
    fields = layer->Fields();
    std::vector<Cells> rows;
    kvload::Feature feature;
    std::string failure;
    while (layer->Read(feature, failure) == kvload::Layer::Reading::kRow)
        rows.push_back(feature.cells);
    EXPECT_EQ(failure, "");
    return rows;
}

bool Save(const ResultTable& table, const std::string& path, std::string& error) {
    return SaveXlsx(table, AllRows(table), path, error);
}

TEST(Xlsx, HasNumbersAsNumbersAndAllElseAsTheTextThatItIs) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here to read it";
    const test::TempFolder folder;
    std::string error;
    const std::vector<int> rows = {1, 0, 2};
    ASSERT_TRUE(SaveXlsx(Sample(), rows, folder.Native("wells.xlsx"), error)) << error;
    std::vector<std::string> fields;
    const std::vector<Cells> read = ReadBack(folder.Native("wells.xlsx"), fields);
    EXPECT_THAT(fields, ElementsAre("API number", "Operator", "Depth, ft", "Block"));
    ASSERT_EQ(read.size(), 3u);
    EXPECT_THAT(read[0], ElementsAre(Optional(std::string("1771140124")),
                                     Optional(std::string("two\nlines, \"quoted\"")),
                                     Optional(std::string("-700.5")), Optional(std::string("12"))));
    EXPECT_THAT(read[1], ElementsAre(Optional(std::string("0421140123")),
                                     Optional(std::string("Pétróleo & <Sons>")),
                                     Optional(std::string("12000")), Optional(std::string("007"))));
    EXPECT_EQ(read[2][1], std::nullopt);
    EXPECT_EQ(read[2][2], std::nullopt);
}

TEST(Xlsx, KeepsDigitsThatANumberWouldLose) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here to read it";
    const test::TempFolder folder;
    ResultTable table;
    table.columns = {{"Text"}, {"Number", true}};
    const std::vector<std::string> numbers = {"1234567890123456", "1e5", "-007", "0x10", "1 2"};
    for (const std::string& number : numbers) {
        table.cells.insert(table.cells.end(), {"a", number});
        table.keys.push_back({"1", "1"});
    }
    std::string error;
    ASSERT_TRUE(Save(table, folder.Native("numbers.xlsx"), error)) << error;
    std::vector<std::string> fields;
    const std::vector<Cells> read = ReadBack(folder.Native("numbers.xlsx"), fields);
    // A sheet of texts alone has no headings for its reader.
    ASSERT_EQ(read.size(), numbers.size() + 1);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        EXPECT_THAT(read[i + 1][1], Optional(numbers[i]));
}

TEST(Xlsx, TakesAByteThatIsNoUtf8ForItsLetter) {
    EXPECT_EQ(CellInUtf8("28\xB0 P\xE9t"), "28° Pét");
    EXPECT_EQ(CellInUtf8("28° Pétróleo €"), "28° Pétróleo €");
}

TEST(Xlsx, RefusesACellThatIsTooLong) {
    const test::TempFolder folder;
    ResultTable table = Sample();
    table.cells[1] = std::string(40'000, 'a');
    std::string error;
    EXPECT_FALSE(Save(table, folder.Native("wells.xlsx"), error));
    EXPECT_NE(error, "");
    EXPECT_FALSE(folder.Has("wells.xlsx"));
}

TEST(Xlsx, WhatCannotBeWrittenLeavesTheOldFile) {
    const test::TempFolder folder;
    folder.Write("wells.xlsx", "good");
    std::string error;
    {
        // Where the workbook is put together, and where it goes.
        const test::FileSizeLimit limit(4096);
        EXPECT_FALSE(Save(Sample(), folder.Native("wells.xlsx"), error));
    }
    EXPECT_THAT(error, HasSubstr("large"));
    for (int call = 1;; ++call) {
        test::FileFaults faults(call);
        error.clear();
        const bool saved = Save(Sample(), folder.Native("wells.xlsx"), error);
        if (faults.Calls() < call) {
            EXPECT_TRUE(saved);
            break;
        }
        EXPECT_FALSE(saved) << call;
        EXPECT_NE(error, "") << call;
        EXPECT_EQ(folder.Read("wells.xlsx"), "good") << call;
    }
    EXPECT_FALSE(Save(Sample(), folder.Native("nowhere/wells.xlsx"), error));
    EXPECT_NE(error, "");
}

TEST(Csv, KeepsLeadingZerosLineEndsAndLettersAsTheyAre) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here to read it";
    const test::TempFolder folder;
    std::string error;
    const ResultTable table = Sample();
    ASSERT_TRUE(SaveCsv(table, AllRows(table), folder.Native("wells.csv"), error)) << error;
    const auto layer = kvload::Open({folder.Native("wells.csv"), "", ""});
    EXPECT_THAT(layer->Fields(), ElementsAre("API number", "Operator", "Depth, ft", "Block"));
    kvload::Feature feature;
    std::string failure;
    for (int row = 0; row < table.RowCount(); ++row) {
        ASSERT_EQ(layer->Read(feature, failure), kvload::Layer::Reading::kRow) << failure;
        for (int column = 0; column < table.ColumnCount(); ++column)
            EXPECT_EQ(feature.cells[static_cast<std::size_t>(column)].value_or(""),
                      table.Cell(row, column));
    }
}

}  // namespace
}  // namespace workbench
