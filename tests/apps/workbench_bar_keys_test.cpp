#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTableView>
#include <QTest>

#include "frame/module.h"
#include "pickers/abe_bar_ids.h"
#include "qt/qt_desktop.h"
#include "support/dialog_fixture.h"
#include "window/acting/user.h"
#include "window/window_system.h"
#include "workbench/workbench.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using namespace kv::abe_bar;

/// The workbench on the sample database, and a person at its keyboard.
class WorkbenchBarKeys : public test::SampleTest {
protected:
    void SetUp() override {
        InitControlDll();
        desktop = std::make_unique<kv::qt::QtDesktop>();
        host = std::make_unique<Workbench>(CKvDbInfo("", "", test::SampleServer().c_str()));
        host->SetFailureShown(
            [this](const QString& message) { failures.push_back(message.toStdString()); });
        QSignalSpy painted(host.get(), &Workbench::FirstPainted);
        host->Show();
        while (painted.isEmpty())
            QApplication::processEvents();
        host->Runner().Finish();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host->Window()));
        user = std::make_unique<kv::User>(*host->Frame().m_bar.m_hWnd,
                                          [](const std::string& words) { FAIL() << words; });
        find = host->Results().findChild<QLineEdit*>();
    }
    void TearDown() override {
        user.reset();
        host.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        desktop.reset();
    }

    void Pick(const char* area, const char* block) {
        user->Select(kArea, area);
        user->Select(kBlock, block);
    }
    /// Also where a dropped list has taken the window's activation, as it does without a display.
    void GoToMap() {
        host->Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host->Window()));
        host->Canvas().setFocus();
        QApplication::processEvents();
        ASSERT_TRUE(host->Canvas().hasFocus());
    }
    void RunReport() {
        Pick("EI", "ALL");
        user->Click(kReport);
        user->Select(kLayer, "Platforms");
        user->Click(kRun);
        host->Runner().Finish();
    }
    bool IsPickedOnMap(const char* block) const {
        const auto& picked = host->Canvas().GetPick().block;
        return picked && picked->Label() == block;
    }

    std::unique_ptr<kv::qt::QtDesktop> desktop;
    std::vector<std::string> failures;
    std::unique_ptr<Workbench> host;
    std::unique_ptr<kv::User> user;
    QLineEdit* find = nullptr;
};

TEST_F(WorkbenchBarKeys, RunHasAKeyAndSaysWhereItCannot) {
    GoToMap();
    QTest::keyClick(&host->Canvas(), Qt::Key_F5);
    EXPECT_TRUE(host->Canvas().GetPick().Empty());
    EXPECT_THAT(failures, testing::IsEmpty());
    Pick("EI", "391");
    GoToMap();
    QTest::keyClick(&host->Canvas(), Qt::Key_F5);
    EXPECT_TRUE(IsPickedOnMap("391"));
}

TEST_F(WorkbenchBarKeys, AShortcutLeadsIntoTheBar) {
    GoToMap();
    QTest::keyClick(&host->Canvas(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(test::FocusedId(), kArea);
    EXPECT_THAT(user->Rows(kArea), testing::Contains("EI"));
}

/// The same with keys that come from an X display one by one, a Shift, too.
class WorkbenchOnADisplay : public WorkbenchBarKeys {
protected:
    void SetUp() override {
        if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "there is no X display";
        if (QStandardPaths::findExecutable("xdotool").isEmpty())
            GTEST_SKIP() << "xdotool is not installed";
        WorkbenchBarKeys::SetUp();
    }

    /// Words of xdotool: "key", "keydown" and "keyup" with the names of keys.
    static void Play(const QString& words) {
        QProcess player;
        player.start("xdotool", words.split(u' '));
        ASSERT_TRUE(QTest::qWaitFor([&] { return player.state() == QProcess::NotRunning; }));
        ASSERT_EQ(player.exitCode(), 0) << player.readAllStandardError().toStdString();
    }
    /// Until what the last key does is seen, and so has been done what those ahead of it do.
    template <typename Seen>
    static bool See(const Seen& seen) {
        return QTest::qWaitFor(seen);
    }
};

TEST_F(WorkbenchOnADisplay, KeysOnTheMapStayThere) {
    Pick("EI", "391");
    GoToMap();
    const MapCanvas& canvas = host->Canvas();
    const double scale = canvas.View().Scale();
    Play("keydown Shift_L keyup Shift_L key Return key minus");
    ASSERT_TRUE(See([&] { return canvas.View().Scale() < scale; }));
    const double middle = canvas.View().Middle().y;
    Play("keydown Shift_L key a keyup Shift_L key Down");
    ASSERT_TRUE(See([&] { return canvas.View().Middle().y != middle; }));
    EXPECT_TRUE(canvas.hasFocus());
    EXPECT_EQ(user->Text(kArea), "EI");
    EXPECT_EQ(user->Text(kBlock), "391");
    EXPECT_TRUE(canvas.GetPick().Empty()) << "nothing was run";
}

TEST_F(WorkbenchOnADisplay, AClickOnTheMapLeavesTheKeysThere) {
    const MapCanvas& canvas = host->Canvas();
    host->Canvas().ShowPick(host->Model().FindPick({"43113"}, "391"));
    Play("key ctrl+l key v");
    ASSERT_TRUE(See([&] { return user->Text(kArea).starts_with("V"); }));
    const QPoint at = canvas.mapToGlobal(canvas.rect().center());
    Play(QStringLiteral("mousemove %1 %2 click 1").arg(at.x()).arg(at.y()));
    ASSERT_TRUE(See([&] { return user->Text(kBlock) == "391"; }));
    EXPECT_EQ(user->Text(kArea), "EI");
    EXPECT_TRUE(canvas.hasFocus());
    const double scale = canvas.View().Scale();
    Play("key minus key 7 key minus");
    ASSERT_TRUE(See([&] { return canvas.View().Scale() < scale * 0.6; }));
    EXPECT_TRUE(canvas.hasFocus());
    EXPECT_EQ(user->Text(kBlock), "391");
}

TEST_F(WorkbenchOnADisplay, KeysInTheSearchBoxStayThere) {
    RunReport();
    Play("key ctrl+f");
    ASSERT_TRUE(See([&] { return find->hasFocus(); }));
    Play("keydown Shift_L key e keyup Shift_L key i");
    ASSERT_TRUE(See([&] { return find->text() == "Ei"; }));
    Play("key Down key Return key x");
    ASSERT_TRUE(See([&] { return find->text() == "Eix"; })) << "Enter has run the report again";
    EXPECT_TRUE(find->hasFocus());
    EXPECT_EQ(user->Text(kBlock), "ALL");
}

TEST_F(WorkbenchOnADisplay, KeysInTheTableStayThere) {
    RunReport();
    QTableView& table = host->Results().View();
    table.setCurrentIndex(table.model()->index(0, 0));
    table.setFocus();
    Play("keydown Shift_L keyup Shift_L key Down key Down");
    ASSERT_TRUE(See([&] { return table.currentIndex().row() == 2; }));
    EXPECT_TRUE(table.hasFocus());
    EXPECT_EQ(user->Text(kBlock), "ALL");
}

TEST_F(WorkbenchOnADisplay, FromTheMapToARunAndBackByKeysAlone) {
    GoToMap();
    Play("key ctrl+l");
    ASSERT_TRUE(See([] { return test::FocusedId() == kArea; }));
    Play("keydown Shift_L key e keyup Shift_L key i key Tab key 3 key 9 key 1");
    ASSERT_TRUE(See([&] { return user->Text(kBlock) == "391"; }));
    EXPECT_EQ(user->Text(kArea), "EI");
    Play("key Return");
    ASSERT_TRUE(See([&] { return IsPickedOnMap("391"); }));
    EXPECT_EQ(test::FocusedId(), kBlock);
    Play("key ctrl+l key Tab");
    ASSERT_TRUE(See([] { return test::FocusedId() == kBlock; }));
    EXPECT_EQ(user->Text(kBlock), "391") << "the pick is kept";
    EXPECT_THAT(failures, testing::IsEmpty());
}

}  // namespace
}  // namespace workbench
