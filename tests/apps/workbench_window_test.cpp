#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <set>

#include "frame/kvcom/profile.h"
#include "frame/kvdbkvn/database_fault.h"
#include "frame/module.h"
#include "pickers/abe_bar_ids.h"
#include "qt/qt_desktop.h"
#include "support/sqlite_file.h"
#include "window/acting/input.h"
#include "window/acting/user.h"
#include "window/window_system.h"
#include "workbench/workbench.h"
#include "workbench_window_fixture.h"

namespace workbench {
namespace {

using namespace kv::abe_bar;

TEST_F(WorkbenchTest, RunWithMapCentersOnThePickAndHighlightsIt) {
    Open();
    Pick("EI", "391");
    user->Click(kRun);
    const auto& pick = host->Canvas().GetPick();
    ASSERT_TRUE(pick.block);
    EXPECT_EQ(pick.block->area->name, "EUGENE ISLAND SOUTH ADDITION");
    EXPECT_EQ(pick.block->Label(), "391");
    const Point middle = host->Canvas().View().Middle();
    EXPECT_NEAR(middle.x, pick.Bounds().Middle().x, 1e-9);
    EXPECT_NEAR(middle.y, pick.Bounds().Middle().y, 1e-9);
    EXPECT_TRUE(failures.empty());
}

TEST_F(WorkbenchTest, RunWithMapOnAllBlocksShowsEveryAreaOfTheCode) {
    Open();
    Pick("EI", "ALL");
    user->Click(kRun);
    const auto& pick = host->Canvas().GetPick();
    EXPECT_EQ(pick.areas.size(), 3U);
    const Box seen = host->Canvas().View().Visible();
    EXPECT_LT(seen.minX, pick.Bounds().minX);
    EXPECT_GT(seen.maxY, pick.Bounds().maxY);
}

TEST_F(WorkbenchTest, RunWithMapDoesNotWaitForTheRestOfTheMap) {
    Open();
    host->LoadMap();
    ASSERT_TRUE(host->Model().Areas().empty());
    Pick("GC", "200");
    user->Click(kRun);
    ASSERT_TRUE(host->Canvas().GetPick().block);
    EXPECT_EQ(host->Model().Areas().size(), 1U);
    host->Runner().Finish();
    EXPECT_EQ(host->Canvas().GetPick().block->area, host->Model().FindArea("43608"));
}

TEST_F(WorkbenchTest, RunWithReportFillsTheTable) {
    Open();
    Pick("EI", "391");
    user->Click(kReport);
    user->Select(kLayer, "Wells");
    user->Click(kRun);
    host->Runner().Finish();
    const ResultTable& table = host->Results().Model().Table();
    EXPECT_EQ(table.title, "Wells");
    EXPECT_EQ(table.RowCount(),
              Count(TableName("_well_hdr") + " where areacode = '43113' and lbnum||lbext = '391'"));
    EXPECT_GT(table.RowCount(), 0);
}

TEST_F(WorkbenchTest, RunWithReportOnAllBlocksTakesEveryAreaOfTheCode) {
    Open();
    Pick("EI", "ALL");
    user->Click(kReport);
    user->Select(kLayer, "Platforms");
    user->Click(kRun);
    host->Runner().Finish();
    EXPECT_EQ(host->Results().Model().Table().RowCount(),
              Count(TableName("_platform") + " where areacode in ('43112','43113','43405')"));
}

TEST_F(WorkbenchTest, ARowOfTheReportLeadsToItsBlock) {
    Open();
    Pick("EI", "ALL");
    user->Click(kReport);
    user->Select(kLayer, "Platforms");
    user->Click(kRun);
    host->Runner().Finish();
    const ResultTable::Key key = host->Results().Model().Table().keys.at(7);
    host->Results().View().setCurrentIndex(host->Results().Model().index(7, 0));
    QTest::keyClick(&host->Results().View(), Qt::Key_Return);
    const auto& pick = host->Canvas().GetPick();
    ASSERT_TRUE(pick.block);
    EXPECT_EQ(pick.block->area->code, key.areaCode);
    EXPECT_EQ(pick.block->Label(), key.block);
}

TEST_F(WorkbenchTest, AClickOnTheMapPicksTheBlockInTheBar) {
    Open();
    MapCanvas& canvas = host->Canvas();
    canvas.ShowPick(host->Model().FindPick({"43113"}, "391"));
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.rect().center());
    EXPECT_EQ(user->Text(kArea), "EI");
    EXPECT_EQ(user->Text(kBlock), "391");
    EXPECT_TRUE(user->Enabled(kRun));
}

TEST_F(WorkbenchTest, ABlockInStateWaterIsPickedWithItsSuffix) {
    Open();
    const auto block = *host->Model().FindPick({"42601"}, "9").block;
    host->PickInBar(block);
    EXPECT_EQ(user->Text(kArea), "PS");
    EXPECT_EQ(user->Text(kBlock), "9-S");
    EXPECT_EQ(host->Frame().m_bar.GetAreacode(false), "42601");
}

TEST_F(WorkbenchTest, DraggingWheelAndKeysMoveTheMap) {
    Open();
    MapCanvas& canvas = host->Canvas();
    QTest::keyClick(&canvas, Qt::Key_Home);
    const double all = canvas.View().Scale();
    QTest::keyClick(&canvas, Qt::Key_Plus);
    EXPECT_GT(canvas.View().Scale(), all);
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, canvas.rect().center());
    EXPECT_NEAR(canvas.View().Scale(), all * 3, all * 0.01);

    const Point before = canvas.View().Middle();
    QTest::mousePress(&canvas, Qt::LeftButton, {}, QPoint(200, 200));
    QMouseEvent move(QEvent::MouseMove, QPointF(260, 200), canvas.mapToGlobal(QPointF(260, 200)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&canvas, &move);
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, QPoint(260, 200));
    EXPECT_NEAR(canvas.View().Middle().x, before.x - 60 / canvas.View().Scale(), 1e-9);

    QWheelEvent wheel(QPointF(10, 10), canvas.mapToGlobal(QPointF(10, 10)), {}, {0, -240},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas, &wheel);
    EXPECT_NEAR(canvas.View().Scale(), all * 3 / 1.5625, all * 0.01);
    QTest::keyClick(&canvas, Qt::Key_Home);
    EXPECT_NEAR(canvas.View().Scale(), all, 1e-9);
}

TEST_F(WorkbenchTest, ABlockThatIsNotThereIsSaid) {
    Open();
    host->ShowOnMap({"43113"}, "9999");
    EXPECT_THAT(failures, testing::ElementsAre("There is no block \"9999\" there on the map."));
}

TEST_F(WorkbenchTest, AClickOnTheMapLeavesTheKeysThere) {
    Open();
    MapCanvas& canvas = host->Canvas();
    canvas.ShowPick(host->Model().FindPick({"43113"}, "391"));
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.rect().center());
    QApplication::processEvents();
    EXPECT_TRUE(canvas.hasFocus());
    const double before = canvas.View().Scale();
    PressKey(Qt::Key_Plus);
    EXPECT_GT(canvas.View().Scale(), before);
    EXPECT_EQ(user->Text(kBlock), "391");
}

TEST_F(WorkbenchTest, TheWindowOpensWithinTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    ASSERT_LT(screen.width(), 900) << "nothing to fit in";
    Open();
    EXPECT_TRUE(screen.contains(host->Window().geometry()));
}

/// Half as wide as the smallest screen.
constexpr QSize kNarrow{480, 540};

TEST_F(WorkbenchTest, NothingIsOutOfReachInANarrowWindow) {
    Open();
    Pick("EI", "391");
    user->Click(kReport);
    host->Window().resize(kNarrow);
    QApplication::processEvents();
    ASSERT_EQ(host->Window().size(), kNarrow);
    for (const int id : {kArea, kBlock, kLayer, kReport, kRun}) {
        const CWnd& control = *host->Frame().m_bar.GetDlgItem(id);
        kv::input::MoveFocus(*control.m_hWnd);
        QApplication::processEvents();
        const QWidget* widget = kv::qt::WidgetOf(*control.m_hWnd);
        EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect()) << id;
    }
    user->Click(kRun);
    EXPECT_TRUE(failures.empty());
}

TEST_F(WorkbenchTest, WhatTheLinesSayMakesTheWindowNoWider) {
    Open();
    const int least = host->Window().minimumSizeHint().width();
    EXPECT_LE(least, kNarrow.width());
    const auto pick = host->Model().FindPick({"43113"}, "391");
    host->Status().ShowPlace(ToPlace(pick.Bounds().Middle()), pick.block);
    Pick("EI", "391");
    Report("Wells");
    EXPECT_EQ(host->Window().minimumSizeHint().width(), least);
}

TEST_F(WorkbenchTest, AWindowThatWasLargerThanTheScreenComesBackWithinIt) {
    Open();
    host->Window().resize(1600, 1200);
    kv::input::CloseWindow(*host->Frame().m_hWnd);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    host.reset();
    Open();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(screen.contains(host->Window().geometry()));
}

TEST_F(WorkbenchTest, AFailedDatabaseIsSaidAndAnotherOneWorks) {
    Open("sqlite:" + folder.Native("missing.db"));
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_THAT(failures[0], testing::HasSubstr("missing.db"));
    EXPECT_TRUE(host->Model().Areas().empty());

    QString failure;
    ASSERT_TRUE(host->UseDatabase({"", "", test::SampleServer().c_str()}, failure));
    host->Runner().Finish();
    EXPECT_FALSE(host->Model().Areas().empty());
    Pick("EI", "391");
    user->Click(kRun);
    EXPECT_TRUE(host->Canvas().GetPick().block);
}

TEST_F(WorkbenchTest, ADatabaseThatCannotBeOpenedLeavesTheOneBefore) {
    Open();
    test::MakeSqliteFile(folder.Native("empty.db"));
    QString failure;
    EXPECT_FALSE(
        host->UseDatabase({"", "", ("sqlite:" + folder.Native("empty.db")).c_str()}, failure));
    EXPECT_THAT(failure.toStdString(), testing::HasSubstr("connam2"));
    EXPECT_FALSE(host->Model().Areas().empty());
    EXPECT_GT(Count(TableName("_lbi")), 0);
}

TEST_F(WorkbenchTest, ADatabaseThatFailsInRunIsNotSaidToKnowNoSuchBlock) {
    Open();
    Pick("EI", "391");
    for (const int what : {kMap, kReport}) {
        user->Click(what);
        if (what == kReport) user->Select(kLayer, "Wells");
        kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
        user->Click(kRun);
        host->Runner().Finish();
        kv::db::SetDatabaseFault(nullptr);
        ASSERT_EQ(failures.size(), 1U);
        EXPECT_THAT(failures[0], testing::HasSubstr("Database error"));
        failures.clear();
    }
    EXPECT_FALSE(host->Canvas().GetPick().block);
}

TEST_F(WorkbenchTest, ADialogThatLogsInHoldsTheReadingOfTheMapUpNoLongerThanItIsOpen) {
    Open();
    host->LoadMap();
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, [] {
        auto& modals = kv::WindowSystem::Get().Modals();
        if (!modals.empty()) kv::input::CloseWindow(*modals.back());
    });
    close.start(0);
    host->RunDialog(*adaptors::Find("CKvCreateUserTable"));
    close.stop();
    const std::size_t before = host->Model().Areas().size();
    QSignalSpy progress(&host->Runner(), &WorkRunner::Progress);
    ASSERT_TRUE(progress.wait());
    EXPECT_GT(host->Model().Areas().size(), before);
}

TEST_F(WorkbenchTest, CancelEndsTheReadingOfTheMap) {
    Open();
    host->LoadMap();
    QSignalSpy progress(&host->Runner(), &WorkRunner::Progress);
    while (progress.isEmpty())
        QApplication::processEvents();
    host->Runner().Cancel();
    EXPECT_FALSE(host->Runner().Busy());
    const std::size_t areas = host->Model().Areas().size();
    QApplication::processEvents();
    EXPECT_EQ(host->Model().Areas().size(), areas);
}

TEST_F(WorkbenchTest, LongWorkShowsHowFarItIsAndItsCancelButtonEndsIt) {
    Open();
    auto* progress = host->Window().statusBar()->findChild<QProgressBar*>();
    auto* cancel = host->Window().statusBar()->findChild<QToolButton*>();
    ASSERT_TRUE(progress && cancel);
    EXPECT_FALSE(progress->isVisible());
    host->LoadMap();
    while (!progress->isVisible() || progress->value() == 0)
        QApplication::processEvents();
    EXPECT_LT(progress->value(), progress->maximum());
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_FALSE(host->Runner().Busy());
    EXPECT_FALSE(progress->isVisible());
    EXPECT_FALSE(cancel->isVisible());
}

TEST_F(WorkbenchTest, EachLayerOfTheBarHasItsReport) {
    Open();
    Pick("EI", "ALL");
    user->Click(kReport);
    for (const std::string& layer : user->Rows(kLayer)) {
        user->Select(kLayer, layer);
        user->Click(kRun);
        host->Runner().Finish();
        EXPECT_EQ(host->Results().Model().Table().title, layer);
        EXPECT_GT(host->Results().Model().rowCount(), 0) << layer;
    }
    EXPECT_TRUE(failures.empty());
}

TEST_F(WorkbenchTest, TheRunButtonSaysWhatItIs) {
    Open();
    auto* run =
        qobject_cast<QPushButton*>(kv::qt::WidgetOf(*host->Frame().m_bar.GetDlgItem(kRun)->m_hWnd));
    ASSERT_TRUE(run);
    EXPECT_EQ(run->text(), "Run");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(run)->text(QAccessible::Name), "Run");
    EXPECT_EQ(run->toolTip(), "Run");
    EXPECT_FALSE(run->icon().isNull());
    EXPECT_LE(run->sizeHint().width(), run->width() + 2 * run->fontMetrics().averageCharWidth());
}

TEST_F(WorkbenchTest, EveryDialogIsInTheMenuOfItsFamily) {
    Open();
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        const auto* action =
            host->Window().findChild<QAction*>(QString::fromStdString(adaptor->className));
        ASSERT_TRUE(action) << adaptor->className;
        const auto menus = action->associatedObjects();
        ASSERT_EQ(menus.size(), 1);
        const QString family = qobject_cast<QMenu*>(menus[0])->title().remove(u'&');
        EXPECT_EQ(family.toStdString(), adaptor->family);
    }
}

TEST_F(WorkbenchTest, EveryDialogIsNamedByWhatItDoesAndOpensAWindow) {
    Open();
    std::set<QString> names;
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        const auto* action =
            host->Window().findChild<QAction*>(QString::fromStdString(adaptor->className));
        const QString name = QString(action->text()).remove(u'&');
        EXPECT_EQ(name.toStdString(), adaptor->purpose + "...");
        EXPECT_TRUE(names.insert(name).second) << adaptor->purpose;
    }
}

TEST_F(WorkbenchTest, NoTwoRowsOfAMenuShareALetter) {
    Open();
    for (const QMenu* menu : host->Window().findChildren<QMenu*>()) {
        std::set<QKeySequence> letters;
        for (const QAction* action : menu->actions()) {
            if (action->isSeparator()) continue;
            const QKeySequence letter = QKeySequence::mnemonic(action->text());
            EXPECT_FALSE(letter.isEmpty()) << action->text().toStdString();
            EXPECT_TRUE(letters.insert(letter).second) << action->text().toStdString();
        }
    }
}

TEST_F(WorkbenchTest, NoTwoCommandsShareTheirKeys) {
    Open();
    std::set<QKeySequence> taken;
    for (const QAction* action : host->Window().findChildren<QAction*>()) {
        for (const QKeySequence& keys : action->shortcuts())
            EXPECT_TRUE(taken.insert(keys).second) << action->text().toStdString();
    }
    EXPECT_FALSE(taken.empty());
}

TEST_F(WorkbenchTest, ADialogsOutcomeIsShown) {
    Open();
    const adaptors::Adaptor* adaptor = adaptors::Find("CKvGuiPipeStatusDlg");
    ASSERT_TRUE(adaptor);
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, [] {
        auto& modals = kv::WindowSystem::Get().Modals();
        if (!modals.empty()) kv::input::CloseWindow(*modals.back());
    });
    close.start(0);
    host->RunDialog(*adaptor);
    EXPECT_THAT(host->Outcome().toPlainText().toStdString(),
                testing::StartsWith("CKvGuiPipeStatusDlg (IDCANCEL)\n"));
}

TEST_F(WorkbenchTest, AQualifierFillsTheTableWithTheRowsThatMatch) {
    Open();
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, [&person] {
        auto& modals = kv::WindowSystem::Get().Modals();
        if (modals.empty()) return;
        person.stop();
        kv::User at(*modals.back(), [](const std::string& words) { FAIL() << words; });
        constexpr int kAbandoned = 13008;
        at.Click(kAbandoned);
        at.Click(IDOK);
    });
    person.start(0);
    host->RunDialog(*adaptors::Find("CKvGuiPipeStatusDlg"));
    host->Runner().Finish();
    const std::string condition = "t.status in ('ACT', 'ABN')";
    EXPECT_THAT(host->Outcome().toPlainText().toStdString(),
                testing::EndsWith("Matching rows: Pipelines where " + condition));
    const ResultTable& table = host->Results().Model().Table();
    EXPECT_EQ(table.title, "Matching Pipelines");
    EXPECT_EQ(table.RowCount(), Count(TableName("_pipeline") + " t where " + condition));
    EXPECT_GT(table.RowCount(), 0);
    EXPECT_TRUE(failures.empty());
}

TEST_F(WorkbenchTest, EveryDialogOfTheMenuOpensAndItsOutcomeIsShown) {
    Open();
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, [this] {
        // A machine without a printer says so ahead of printing.
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            box->button(QMessageBox::Ok)->click();
            return;
        }
        const auto& system = kv::WindowSystem::Get();
        if (!system.Modals().empty()) {
            kv::input::CloseWindow(*system.Modals().back());
            return;
        }
        for (const auto& window : system.TopLevels()) {
            if (window.get() == host->Frame().m_hWnd || !window->Visible()) continue;
            kv::input::CloseWindow(*window);
            return;
        }
    });
    close.start(0);
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        host->Outcome().clear();
        host->Window().findChild<QAction*>(QString::fromStdString(adaptor->className))->trigger();
        // A tool stays open, and so has no outcome.
        const bool isOpen = host->Tools().Find(adaptor->className);
        if (adaptor->makeTool || isOpen) {
            EXPECT_TRUE(isOpen) << adaptor->className;
        } else {
            EXPECT_THAT(host->Outcome().toPlainText().toStdString(),
                        testing::StartsWith(adaptor->className + " (ID"));
        }
    }
    EXPECT_TRUE(failures.empty());
}

TEST_F(WorkbenchTest, TheBarWorksOnWhenAnotherBarWasRun) {
    Open();
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, [this] {
        for (const auto& window : kv::WindowSystem::Get().TopLevels()) {
            if (window.get() == host->Frame().m_hWnd) continue;
            kv::input::CloseWindow(*window);
            return;
        }
    });
    close.start(0);
    host->RunDialog(*adaptors::Find("CVZABEBar"));
    close.stop();
    Pick("EI", "391");
    user->Click(kRun);
    EXPECT_TRUE(host->Canvas().GetPick().block);
}

TEST_F(WorkbenchTest, TheWindowComesBackAsItWasLeft) {
    Open();
    host->Window().resize(737, 611);
    QAction* outcome = MenuAction("Dialog outcome");
    ASSERT_TRUE(outcome);
    ASSERT_TRUE(outcome->isChecked());
    outcome->trigger();
    kv::input::CloseWindow(*host->Frame().m_hWnd);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_NE(kv::profile::GetString("Workbench", "Geometry", ""), "");
    host.reset();

    Open();
    EXPECT_EQ(host->Window().size(), QSize(737, 611));
    EXPECT_FALSE(MenuAction("Dialog outcome")->isChecked());
    EXPECT_TRUE(MenuAction("Results")->isChecked());
}

TEST(Readable, IndentsWhatLiesWithin) {
    const adaptors::Json value = {{"result", "IDOK"},
                                  {"empty", ""},
                                  {"list", {"a", "b c"}},
                                  {"inner", {{"count", 3}, {"rows", adaptors::Json::array()}}}};
    EXPECT_EQ(
        Readable(value).toStdString(),
        "result: IDOK\nempty: \"\"\nlist:\n    a\n    b c\ninner:\n    count: 3\n    rows: []\n");
}

}  // namespace
}  // namespace workbench
