#include <gmock/gmock.h>

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

#include "window/window_system.h"
#include "workbench/command_palette.h"
#include "workbench/key_help.h"
#include "workbench/map/angle_text.h"
#include "workbench_window_fixture.h"

namespace workbench {
namespace {

using namespace kv::abe_bar;
using testing::ElementsAre;
using testing::HasSubstr;

/// The workbench, worked with by keys.
class WorkbenchKeys : public WorkbenchTest {
protected:
    WorkbenchKeys() {
        Open();
        QApplication::setActiveWindow(&host->Window());
    }
    bool BarHasFocus() {
        const kv::Node* focus = kv::WindowSystem::Get().Focus();
        return focus && focus->IsSelfOrDescendantOf(*host->Frame().m_bar.m_hWnd);
    }
    std::string Title() { return host->Window().windowTitle().toStdString(); }
    QColor HeadingColor() {
        const QLabel& heading = host->Results().Heading();
        return heading.palette().color(heading.foregroundRole());
    }
    /// Acts on the palette of commands once it has opened.
    void InPalette(std::function<void(CommandPalette&)> act) {
        QTimer::singleShot(0, [act = std::move(act)] {
            auto* palette = qobject_cast<CommandPalette*>(QApplication::activeModalWidget());
            ASSERT_TRUE(palette);
            act(*palette);
        });
    }
};

TEST_F(WorkbenchKeys, F6GoesRoundTheBarTheMapAndTheTable) {
    ASSERT_TRUE(host->Canvas().hasFocus());
    PressKey(Qt::Key_F6);
    EXPECT_TRUE(host->Results().View().hasFocus());
    PressKey(Qt::Key_F6);
    EXPECT_TRUE(BarHasFocus());
    EXPECT_FALSE(host->Results().View().hasFocus());
    PressKey(Qt::Key_F6);
    EXPECT_TRUE(host->Canvas().hasFocus());
    EXPECT_FALSE(BarHasFocus());
    PressKey(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(BarHasFocus());
    PressKey(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(host->Results().View().hasFocus());
}

TEST_F(WorkbenchKeys, TheHelpNamesEachKeyOfTheMenusWithWhatItDoes) {
    QMenuBar& menus = *host->Window().menuBar();
    const QString help = KeyHelp(menus);
    int keys = 0;
    ForEachCommand(menus, [&](QAction& action, const QString& where) {
        if (action.shortcut().isEmpty()) return;
        ++keys;
        const QString name = where + " > " + CommandName(action).remove(QStringLiteral("..."));
        EXPECT_TRUE(help.contains(QStringLiteral("<b>%1</b>&nbsp;&nbsp;</td><td>%2</td>")
                                      .arg(action.shortcut().toString(), name.toHtmlEscaped())))
            << name.toStdString();
    });
    EXPECT_GT(keys, 20);
    EXPECT_TRUE(help.contains(
        QStringLiteral("<b>Ctrl+Shift+K</b>&nbsp;&nbsp;</td><td>Draw &gt; Fill block")));
}

TEST_F(WorkbenchKeys, TheHelpScrollsInAWindowThatFitsTheScreen) {
    QSize size;
    int scrolled = 0;
    QTimer reader;
    QObject::connect(&reader, &QTimer::timeout, [&] {
        QWidget* help = QApplication::activeModalWidget();
        auto* text = help ? help->findChild<QTextBrowser*>() : nullptr;
        if (!text) return;
        reader.stop();
        size = help->size();
        QTest::keyClick(text, Qt::Key_PageDown);
        scrolled = text->verticalScrollBar()->value();
        QTest::keyClick(text, Qt::Key_Escape);
    });
    reader.start(0);
    MenuAction("Mouse and keys...")->trigger();
    EXPECT_GT(scrolled, 0);
    EXPECT_LE(size.width(), 960);
    EXPECT_LE(size.height(), 540);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(WorkbenchKeys, F6ComesByTheOpenTools) {
    MenuAction("NAD27 to NAD83...")->trigger();
    QApplication::processEvents();
    const CDialog* tool = host->Tools().Shown().at(0);
    QWidget* window = kv::qt::WidgetOf(*tool->m_hWnd);
    ASSERT_TRUE(window->isActiveWindow());
    PressKey(Qt::Key_F6);
    EXPECT_TRUE(host->Window().isActiveWindow());
    EXPECT_TRUE(BarHasFocus());
    PressKey(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(window->isActiveWindow());
    PressKey(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(host->Results().View().hasFocus());
}

TEST_F(WorkbenchKeys, F6PassesByWhatIsNotSeen) {
    MenuAction("Results")->trigger();
    MenuAction("Area and block bar")->trigger();
    QApplication::processEvents();
    host->Canvas().setFocus();
    PressKey(Qt::Key_F6);
    EXPECT_FALSE(BarHasFocus());
    PressKey(Qt::Key_F6);
    EXPECT_TRUE(host->Canvas().hasFocus());
}

TEST_F(WorkbenchKeys, RowsAreCopiedWithTheirHeadings) {
    Pick("EI", "391");
    Report("Wells");
    ResultsView& view = host->Results().View();
    const auto press = [&view](Qt::Key key, Qt::KeyboardModifier modifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifier);
        QApplication::sendEvent(&view, &event);
    };
    view.Enter();
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QApplication::clipboard()->text().split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("API number\tWell\tArea\tBlock")));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().count(u'\n'), host->Results().Model().rowCount());
}

TEST_F(WorkbenchKeys, ACommandThatWouldDoNothingSaysWhy) {
    for (const auto& [name, words] : std::initializer_list<std::pair<const char*, const char*>>{
             {"Save results...", "There are no results."},
             {"Find in results", "There are no results."},
             {"Copy rows", "No row of the results is selected."},
             {"Zoom to pick", "Nothing is picked on the map yet"},
             {"Show neighbors of the selected blocks", "No blocks were selected yet"}}) {
        const QAction* action = MenuAction(name);
        ASSERT_TRUE(action) << name;
        EXPECT_FALSE(action->isEnabled()) << name;
        EXPECT_THAT(action->statusTip().toStdString(), HasSubstr(words));
        if (action->shortcut().isEmpty()) continue;
        QTest::keySequence(&host->Window(), action->shortcut());
        EXPECT_THAT(Said(), HasSubstr(words)) << name;
    }
    QTest::keySequence(&host->Window(), MenuAction("Zoom to all")->shortcut());
    EXPECT_EQ(Said(), "");
}

TEST_F(WorkbenchKeys, CommandsAreEnabledOnceTheyAct) {
    Pick("EI", "391");
    user->Click(kRun);
    EXPECT_TRUE(MenuAction("Zoom to pick")->isEnabled());
    Report("Wells");
    for (const char* name : {"Save results...", "Find in results", "Select all rows"})
        EXPECT_TRUE(MenuAction(name)->isEnabled()) << name;
    EXPECT_FALSE(MenuAction("Copy rows")->isEnabled());
    host->Results().SelectAll();
    EXPECT_TRUE(MenuAction("Copy rows")->isEnabled());
    EXPECT_EQ(MenuAction("Copy rows")->statusTip().toStdString(), "");
    host->LoadMap();
    EXPECT_FALSE(MenuAction("Zoom in")->isEnabled());
    EXPECT_FALSE(MenuAction("Zoom to pick")->isEnabled());
    host->Runner().Finish();
    EXPECT_TRUE(MenuAction("Zoom in")->isEnabled());
}

TEST_F(WorkbenchKeys, WhatWasSaidGoesWhenTheNextCommandBegins) {
    host->Status().Say("old words");
    MenuAction("Zoom in")->trigger();
    EXPECT_EQ(Said(), "");
    host->Status().Say("old words");
    Pick("EI", "391");
    user->Click(kRun);
    EXPECT_EQ(Said(), "EUGENE ISLAND SOUTH ADDITION, block 391");
}

TEST_F(WorkbenchKeys, GoToAPickSetsTheBarToo) {
    EXPECT_TRUE(host->GoTo("gc 200"));
    EXPECT_EQ(host->Canvas().GetPick().block->Label(), "200");
    EXPECT_EQ(user->Text(kArea), "GC");
    EXPECT_EQ(user->Text(kBlock), "200");
    EXPECT_TRUE(host->Canvas().hasFocus());
    EXPECT_TRUE(host->GoTo("Vermilion"));
    EXPECT_EQ(user->Text(kArea), "VR");
    EXPECT_EQ(user->Text(kBlock), "ALL");
    EXPECT_FALSE(host->GoTo("ATLANTIS"));
}

TEST_F(WorkbenchKeys, GoToAPlaceSetsTheBarToItsBlock) {
    const auto pick = host->Model().FindPick({"43608"}, "200");
    const Place middle = ToPlace(pick.Bounds().Middle());
    EXPECT_TRUE(host->GoTo(QString::fromStdString(DegreesMinutesSeconds(middle))));
    const Point seen = host->Canvas().View().Middle();
    EXPECT_NEAR(seen.x, pick.Bounds().Middle().x, 1e-5);
    EXPECT_NEAR(seen.y, pick.Bounds().Middle().y, 1e-5);
    EXPECT_EQ(user->Text(kArea), "GC");
    EXPECT_EQ(user->Text(kBlock), "200");
}

TEST_F(WorkbenchKeys, ACommandIsFoundBySomeWordsOfItsName) {
    InPalette([](CommandPalette& palette) {
        QTest::keyClicks(&palette.Words(), "pick zoom");
        const QTreeWidgetItem* row = palette.List().currentItem();
        ASSERT_TRUE(row);
        EXPECT_EQ(row->text(0).toStdString(), "Zoom to pick");
        EXPECT_EQ(row->text(1).toStdString(), "View");
        EXPECT_EQ(row->text(2).toStdString(), "Ctrl+1");
        palette.Words().clear();
        QTest::keyClicks(&palette.Words(), "legend");
        QTest::keyClick(&palette.Words(), Qt::Key_Return);
    });
    ASSERT_TRUE(host->Canvas().Layers().legend);
    QTest::keyClick(&host->Window(), Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(host->Canvas().Layers().legend);
}

TEST_F(WorkbenchKeys, EveryDialogIsFoundByItsNameAndByItsClass) {
    CommandPalette palette(*host->Window().menuBar());
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        for (const std::string& words : {adaptor->purpose, adaptor->className}) {
            palette.Words().setText(QString::fromStdString(words));
            const QTreeWidgetItem* row = palette.List().currentItem();
            ASSERT_TRUE(row) << words;
            if (words == adaptor->className) {
                EXPECT_EQ(row->text(0).toStdString(), adaptor->purpose + "...");
            }
        }
    }
    palette.Words().setText("no such command");
    EXPECT_FALSE(palette.List().currentItem());
    QTest::keyClick(&palette.Words(), Qt::Key_Return);
    EXPECT_FALSE(palette.Chosen());
}

TEST_F(WorkbenchKeys, WordsThatNoCommandHasAreSaidToFindNothing) {
    CommandPalette palette(*host->Window().menuBar());
    palette.show();
    const auto* hint = palette.List().findChild<QLabel*>();
    ASSERT_TRUE(hint);
    EXPECT_FALSE(hint->isVisible());
    palette.Words().setText("no such command");
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text().toStdString(), "No command has all of these words.");
    palette.Words().setText("zoom");
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(WorkbenchKeys, ArrowsMoveThroughWhatWasFound) {
    CommandPalette palette(*host->Window().menuBar());
    palette.Words().setText("zoom");
    QTest::keyClick(&palette.Words(), Qt::Key_Down);
    QTest::keyClick(&palette.Words(), Qt::Key_Return);
    ASSERT_TRUE(palette.Chosen());
    EXPECT_EQ(palette.Chosen()->text().remove(u'&').toStdString(), "Zoom out");
}

TEST_F(WorkbenchKeys, CommandsShowTheirKeysWithoutScrolling) {
    CommandPalette palette(*host->Window().menuBar());
    palette.show();
    QApplication::processEvents();
    EXPECT_FALSE(palette.List().horizontalScrollBar()->isVisible());
}

TEST_F(WorkbenchKeys, ADisabledCommandThatIsFoundSaysWhy) {
    InPalette([](CommandPalette& palette) {
        QTest::keyClicks(&palette.Words(), "save");
        QTest::keyClick(&palette.Words(), Qt::Key_Return);
    });
    MenuAction("Find a command...")->trigger();
    EXPECT_EQ(Said(), "There are no results.");
}

TEST_F(WorkbenchKeys, TheLegendFoldsByItsHeadingAndByAKey) {
    MapCanvas& canvas = host->Canvas();
    QApplication::processEvents();
    canvas.grab();
    ASSERT_FALSE(canvas.LegendHeading().isEmpty());
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.LegendHeading().center().toPoint());
    EXPECT_TRUE(canvas.Layers().legendFolded);
    EXPECT_TRUE(canvas.GetPick().Empty());
    EXPECT_EQ(user->Text(kBlock), "");
    canvas.setFocus();
    PressKey(Qt::Key_L);
    EXPECT_FALSE(canvas.Layers().legendFolded);
}

TEST_F(WorkbenchKeys, TheTitleNamesTheDatabaseAndThePick) {
    EXPECT_EQ(Title(), "sample.db - Workbench");
    Pick("EI", "391");
    user->Click(kRun);
    EXPECT_EQ(Title(), "EUGENE ISLAND SOUTH ADDITION, block 391 - sample.db - Workbench");
    host->LoadMap();
    EXPECT_EQ(Title(), "sample.db - Workbench");
}

TEST_F(WorkbenchKeys, ResultsSayWhatTheyAreAndGreyOnceAnotherBlockIsPicked) {
    Pick("EI", "391");
    Report("Wells");
    const QString count = QString::number(host->Results().Model().rowCount());
    const QString words = QStringLiteral("Wells in EUGENE ISLAND SOUTH ADDITION 391: ") + count;
    EXPECT_EQ(host->Results().Heading().text(), words);
    EXPECT_EQ(Said(), words.toStdString());
    const QColor current = HeadingColor();
    user->Select(kBlock, "392");
    kv::WindowSystem::Get().Settle();
    EXPECT_NE(HeadingColor(), current);
    user->Select(kBlock, "391");
    kv::WindowSystem::Get().Settle();
    EXPECT_EQ(HeadingColor(), current);
}

TEST_F(WorkbenchKeys, ResultsOfSeveralAreasAreNamedAsTheyWerePicked) {
    Pick("EI", "ALL");
    Report("Platforms");
    EXPECT_THAT(host->Results().Heading().text().toStdString(),
                testing::StartsWith("Platforms in EI: "));
}

TEST_F(WorkbenchKeys, ARowIsMarkedOnTheMap) {
    Pick("EI", "391");
    Report("Wells");
    QTableView& view = host->Results().View();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(host->Results().Model().index(1, 0)).center());
    const ResultTable::Key& key = host->Results().Model().Table().keys.at(1);
    const MapMarks& marks = host->Canvas().Marks();
    ASSERT_TRUE(marks.rowPlace && marks.rowBlock);
    EXPECT_DOUBLE_EQ(marks.rowPlace->lat, key.place->lat);
    EXPECT_EQ(marks.rowBlock->Label(), "391");
    Report("Leases");
    EXPECT_FALSE(marks.rowPlace || marks.rowBlock);
    host->Results().View().Enter();
    EXPECT_TRUE(marks.rowBlock);
    host->LoadMap();
    EXPECT_FALSE(marks.rowBlock);
}

TEST_F(WorkbenchKeys, TheMapFollowsAReportOnRequestOnly) {
    Pick("EI", "391");
    Report("Wells");
    EXPECT_TRUE(host->Canvas().GetPick().Empty());
    MenuAction("Map follows the results")->trigger();
    Report("Wells");
    const Box& block = host->Canvas().GetPick().block->Bounds();
    EXPECT_TRUE(host->Canvas().View().Visible().Contains(block.Middle()));

    host->Canvas().ShowPick(host->Model().FindPick({"43608"}, "200"));
    host->Results().View().setCurrentIndex(host->Results().Model().index(0, 0));
    const Place well = *host->Results().Model().Table().keys.at(0).place;
    EXPECT_TRUE(host->Canvas().View().Visible().Contains(ToMap(well)));
}

}  // namespace
}  // namespace workbench
