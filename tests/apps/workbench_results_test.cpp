#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <numeric>
#include <utility>

#include "support/file_size_limit.h"
#include "support/temp_folder.h"
#include "workbench/results/csv.h"
#include "workbench/results/results_pane.h"

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
    EXPECT_EQ(TabSeparated(Sample(), rows), "Well\tDepth, ft\nA-10\t9000\nC 1\t700.5");
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
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "Well\tDepth, ft\nA-10\t9000");
    QTest::keyClick(&pane.View(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&pane.View(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Well\tDepth, ft\nA-10\t9000\nB \"deep\"\t12000\na-2\t\nC 1\t700.5");
}

TEST(ResultsPane, ShiftAndAnArrowSelectOneRowMore) {
    ResultsPane pane;
    pane.SetTable(Sample());
    pane.show();
    QApplication::setActiveWindow(&pane);
    pane.View().Enter();
    EXPECT_TRUE(pane.View().hasFocus());
    EXPECT_EQ(pane.SelectedText().toStdString(), "Well\tDepth, ft\nA-10\t9000");
    QTest::keyClick(&pane.View(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(pane.SelectedText().toStdString(), "Well\tDepth, ft\nA-10\t9000\nB \"deep\"\t12000");
}

TEST(ResultsPane, NothingIsCopiedWhereNothingIsSelected) {
    ResultsPane pane;
    pane.SetTable(Sample());
    QApplication::clipboard()->setText("kept");
    pane.Copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "kept");
}

TEST(ResultsPane, TheWindowAroundDoesNotGetItsKeys) {
    ResultsPane pane;
    pane.SetTable(Sample());
    for (const auto& [key, modifiers] :
         {std::pair{Qt::Key_C, Qt::ControlModifier}, std::pair{Qt::Key_A, Qt::ControlModifier}}) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QApplication::sendEvent(&pane.View(), &event);
        EXPECT_TRUE(event.isAccepted()) << key;
    }
}

TEST(ResultsPane, SaysWhatItsRowsAre) {
    ResultsPane pane;
    EXPECT_EQ(pane.Heading().text().toStdString(),
              "Pick an area and a block above, choose Report, and press Run.");
    ResultTable table = Sample();
    table.what = "Wells in GREEN CANYON 200";
    pane.SetTable(table);
    EXPECT_EQ(pane.Heading().text().toStdString(), "Wells in GREEN CANYON 200: 4");
    pane.FindField().setText("a-");
    EXPECT_EQ(pane.Heading().text().toStdString(), "Wells in GREEN CANYON 200: 2 of 4");
    table.cells.clear(), table.keys.clear();
    pane.SetTable(table);
    EXPECT_EQ(pane.Heading().text().toStdString(), "There are no wells in GREEN CANYON 200.");
}

TEST(ResultTable, KeepsAbbreviationsInItsSentence) {
    ResultTable table;
    table.what = "APDs in GC";
    EXPECT_EQ(table.Heading(0), "There are no APDs in GC.");
    table.what = "2D Shotpoints in GC";
    EXPECT_EQ(table.Heading(0), "There are no 2D Shotpoints in GC.");
}

TEST(ResultTable, GroupsTheDigitsOfACount) {
    ResultTable table;
    table.what = "Wells in GC";
    table.keys.resize(1'234'567);
    EXPECT_EQ(table.Heading(999), "Wells in GC: 999 of 1,234,567");
}

TEST(ResultTable, NumbersOfAColumnHaveTheSameDecimals) {
    ResultTable table;
    table.columns = {{"Size", true}, {"Name"}, {"Block", true}};
    table.cells = {"16", "1.5", "12A", "2.375", "x", "7", "", "y", "8", "-4.5", "z", "9"};
    table.keys.resize(4);
    table.AlignDecimals();
    EXPECT_THAT(table.cells, ElementsAre("16.000", "1.5", "12A", "2.375", "x", "7", "", "y", "8",
                                         "-4.500", "z", "9"));
}

TEST(ResultsPane, AColumnIsAsWideAsTheWidestOfAllItsRows) {
    ResultTable table = Sample();
    for (int row = 0; row < 3000; ++row) {
        table.cells.insert(table.cells.end(), {"well", "1"});
        table.keys.push_back({"1", "1"});
    }
    ResultsPane pane;
    pane.SetTable(table);
    const int narrow = pane.View().columnWidth(0);
    const QString wide = "A NAME THAT IS WIDER THAN ALL";
    table.cells[table.cells.size() - 2] = wide.toStdString();
    pane.SetTable(table);
    const int room = pane.View().columnWidth(0);
    EXPECT_GT(room, narrow);
    EXPECT_GT(room, pane.View().fontMetrics().horizontalAdvance(wide));
    EXPECT_LT(room, pane.View().fontMetrics().horizontalAdvance(wide) + 40);
}

/// Four columns in a window that has room for two.
ResultTable Wide() {
    ResultTable table;
    table.columns = {{"Well"}, {"Operator"}, {"Area"}, {"Lease"}};
    for (int row = 0; row < 40; ++row) {
        for (const char* cell : {"A-10", "EXAMPLE MINERALS", "GREEN CANYON", "G 12345"})
            table.cells.push_back(cell + std::to_string(row));
        table.keys.push_back({"1", "10"});
    }
    return table;
}

TEST(ResultsPane, TheFirstColumnStaysWhenTheOthersAreScrolled) {
    ResultsPane pane;
    pane.resize(260, 200);
    pane.SetTable(Wide());
    pane.show();
    ResultsView& view = pane.View();
    EXPECT_FALSE(view.Kept().isVisible());
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    view.verticalScrollBar()->setValue(57);
    ASSERT_TRUE(view.Kept().isVisible());
    EXPECT_EQ(view.Kept().columnWidth(0), view.columnWidth(0));
    EXPECT_EQ(view.Kept().rowViewportPosition(5), view.rowViewportPosition(5));
    EXPECT_EQ(view.Kept().mapTo(&view, QPoint()).x(), view.verticalHeader()->width());
    for (int column = 1; column < 4; ++column)
        EXPECT_TRUE(view.Kept().isColumnHidden(column));

    // A click there selects the row, and the keys are the table's.
    QApplication::setActiveWindow(&pane);
    QTest::mouseClick(view.Kept().viewport(), Qt::LeftButton, {},
                      view.Kept().visualRect(pane.Model().index(4, 0)).center());
    EXPECT_TRUE(pane.SelectedText().contains("A-104"));
    EXPECT_TRUE(view.hasFocus());
}

TEST(ResultsPane, WhatTheArrowsComeToIsNotBelowTheFirstColumn) {
    ResultsPane pane;
    pane.resize(260, 200);
    pane.SetTable(Wide());
    pane.show();
    ResultsView& view = pane.View();
    view.setCurrentIndex(pane.Model().index(0, 3));
    view.setCurrentIndex(pane.Model().index(0, 1));
    EXPECT_GE(view.columnViewportPosition(1), view.columnWidth(0));
}

TEST(ResultsPane, TellsWhichRowTheUserCameTo) {
    ResultsPane pane;
    pane.SetTable(Sample());
    pane.show();
    std::vector<int> rows;
    QObject::connect(&pane, &ResultsPane::RowChosen, [&](int row) { rows.push_back(row); });
    pane.FindField().setText("a-");
    rows.clear();
    pane.View().setCurrentIndex(pane.Model().index(1, 0));
    EXPECT_THAT(rows, ElementsAre(2));
    EXPECT_EQ(pane.ChosenRow(), 2);
}

TEST(ResultsPane, BeforeTheFirstReportItSaysWhatToDoAndShowsNoHeadings) {
    ResultsPane pane;
    pane.show();
    const auto isGrey = [&] { return pane.Heading().foregroundRole() != QPalette::WindowText; };
    EXPECT_FALSE(pane.View().horizontalHeader()->isVisible());
    pane.SetCurrent(false);
    EXPECT_FALSE(isGrey());
    pane.SetTable(Sample());
    EXPECT_TRUE(pane.View().horizontalHeader()->isVisible());
    pane.SetCurrent(false);
    EXPECT_TRUE(isGrey());
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
