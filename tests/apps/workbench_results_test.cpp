#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <numeric>

#include "support/file_size_limit.h"
#include "support/temp_folder.h"
#include "workbench/csv.h"
#include "workbench/results_pane.h"

namespace workbench {
namespace {

using testing::ElementsAre;

ResultTable Sample() {
    ResultTable table;
    table.title = "Wells";
    table.columns = {{"Well"}, {"Depth, ft", true}};
    table.cells = {"A-10", "9000", "B \"deep\"", "12000", "a-2", "", "C\n1", "700.5"};
    table.keys = {{"1", "10"}, {"1", "11"}, {"2", "12"}, {"2", "13"}};
    return table;
}

std::vector<std::string> FirstColumn(const QAbstractItemModel& model) {
    std::vector<std::string> texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.push_back(model.index(row, 0).data().toString().toStdString());
    }
    return texts;
}

std::vector<int> AllRows(const ResultTable& table) {
    std::vector<int> rows(static_cast<std::size_t>(table.RowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

TEST(Csv, QuotesWhatWouldBreakALine) {
    EXPECT_EQ(CsvCell("plain text"), "plain text");
    EXPECT_EQ(CsvCell(""), "");
    EXPECT_EQ(CsvCell("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvCell("say \"no\""), "\"say \"\"no\"\"\"");
    EXPECT_EQ(CsvCell("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(CsvCell("two\r\nlines"), "\"two\r\nlines\"");
    EXPECT_EQ(CsvCell(" blank"), "\" blank\"");
}

TEST(Csv, WritesHeadingsAndTheRowsInOrder) {
    const test::TempFolder folder;
    const std::vector<int> rows = {1, 3, 2};
    std::string error;
    ASSERT_TRUE(SaveCsv(Sample(), rows, folder.Native("wells.csv"), error));
    EXPECT_EQ(folder.Read("wells.csv"),
              "Well,\"Depth, ft\"\r\n\"B \"\"deep\"\"\",12000\r\n\"C\n1\",700.5\r\na-2,\r\n");
    EXPECT_EQ(error, "");
}

TEST(Csv, WhatCannotBeWrittenLeavesTheOldFile) {
    const test::TempFolder folder;
    folder.Write("wells.csv", "good");
    ResultTable table = Sample();
    for (int i = 0; i < 20'000; ++i) {
        table.cells.insert(table.cells.end(), {"some well", "1"});
        table.keys.push_back({"1", "1"});
    }
    std::string error;
    {
        const test::FileSizeLimit limit(4096);
        EXPECT_FALSE(SaveCsv(table, AllRows(table), folder.Native("wells.csv"), error));
    }
    EXPECT_NE(error, "");
    EXPECT_EQ(folder.Read("wells.csv"), "good");
    EXPECT_FALSE(SaveCsv(table, AllRows(table), folder.Native("nowhere/wells.csv"), error));
}

TEST(TabSeparated, KeepsEachRowOnALine) {
    const std::vector<int> rows = {0, 3};
    EXPECT_EQ(TabSeparated(Sample(), rows, true), "Well\tDepth, ft\nA-10\t9000\nC 1\t700.5");
}

TEST(ResultsModel, SortsNumbersByValueAndEmptyOnesLast) {
    ResultsModel model;
    model.SetTable(Sample());
    model.sort(1, Qt::AscendingOrder);
    EXPECT_THAT(FirstColumn(model), ElementsAre("C\n1", "A-10", "B \"deep\"", "a-2"));
    model.sort(0, Qt::DescendingOrder);
    EXPECT_THAT(FirstColumn(model), ElementsAre("a-2", "C\n1", "B \"deep\"", "A-10"));
    model.sort(-1, Qt::AscendingOrder);
    EXPECT_THAT(FirstColumn(model), ElementsAre("A-10", "B \"deep\"", "a-2", "C\n1"));
}

TEST(ResultsModel, KeepsTheSelectedRowWhenItIsSorted) {
    ResultsModel model;
    model.SetTable(Sample());
    const QPersistentModelIndex deep = model.index(1, 0);
    model.sort(1, Qt::DescendingOrder);
    EXPECT_EQ(deep.data().toString().toStdString(), "B \"deep\"");
}

TEST(ResultsPane, NarrowsTheRowsAsOneTypes) {
    ResultsPane pane;
    pane.SetTable(Sample());
    QTest::keyClicks(&pane.FindField(), "a-");
    EXPECT_THAT(FirstColumn(pane.Model()), ElementsAre("A-10", "a-2"));
    QTest::keyClick(&pane.FindField(), Qt::Key_1);
    EXPECT_THAT(FirstColumn(pane.Model()), ElementsAre("A-10"));
    pane.FindField().clear();
    EXPECT_EQ(pane.Model().rowCount(), 4);
}

TEST(ResultsPane, CopiesTheSelectedRowsWithTheirHeadings) {
    ResultsPane pane;
    pane.SetTable(Sample());
    pane.show();
    QApplication::setActiveWindow(&pane);
    pane.View().setFocus();
    pane.View().selectRow(0);
    QTest::keyClick(&pane.View(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "A-10\t9000");
    pane.View().selectAll();
    QTest::keyClick(&pane.View(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Well\tDepth, ft\nA-10\t9000\nB \"deep\"\t12000\na-2\t\nC 1\t700.5");
}

TEST(ResultsPane, AClickOnAHeadingSorts) {
    ResultsPane pane;
    pane.SetTable(Sample());
    pane.resize(500, 300);
    pane.show();
    QHeaderView* header = pane.View().horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionPosition(1) + 10, header->height() / 2));
    EXPECT_THAT(FirstColumn(pane.Model()), ElementsAre("C\n1", "A-10", "B \"deep\"", "a-2"));
}

TEST(ResultsPane, EnterOnARowAsksForItsBlock) {
    ResultsPane pane;
    pane.SetTable(Sample());
    pane.show();
    std::string asked;
    QObject::connect(&pane, &ResultsPane::BlockWanted,
                     [&](const QString& area, const QString& block) {
                         asked = (area + u'#' + block).toStdString();
                     });
    pane.View().setCurrentIndex(pane.Model().index(2, 1));
    QTest::keyClick(&pane.View(), Qt::Key_Return);
    EXPECT_EQ(asked, "2#12");
}

TEST(ResultsPane, SavesWhatIsShown) {
    const test::TempFolder folder;
    ResultsPane pane;
    pane.SetTable(Sample());
    pane.FindField().setText("a-");
    QString error;
    ASSERT_TRUE(pane.Save(QString::fromStdString(folder.Native("shown.csv")), error));
    EXPECT_EQ(folder.Read("shown.csv"), "Well,\"Depth, ft\"\r\nA-10,9000\r\na-2,\r\n");
}

}  // namespace
}  // namespace workbench
