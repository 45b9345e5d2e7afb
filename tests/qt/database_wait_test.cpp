// A query that takes long, behind real windows: the person cancels it by mouse or by key.

#include "frame/kvcom/cancelled.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "qt_fixture.h"
#include "support/endless_view.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"
#include "window/blocked_windows.h"

namespace {

constexpr int kAsk = 11;
constexpr int kOther = 12;

class DatabaseWait : public test::QtDialogTest {
protected:
    DatabaseWait() {
        InitControlDll();
        kv::SetPatience(kv::kUsualPatience);
        const std::string path = folder_.Native("kv.db");
        test::RunOnSqliteFile(path, test::EndlessView("endless", "a"));
        CKvDbInfo info("", "", ("sqlite:" + path).c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }
    static std::vector<kv::ControlRow> Rows() {
        return {{kAsk, kv::ControlKind::kPushButton, "Ask", {7, 7, 50, 14}},
                {kOther, kv::ControlKind::kPushButton, "Other", {7, 30, 50, 14}}};
    }
    void ShowAsking() {
        Show(Rows());
        AskWhenClicked();
    }
    void AskWhenClicked() {
        dialog.when["11 clicked"] = [this] {
            CKvDbAbsDataMgr manager(1);
            manager.Connect();
            try {
                manager.Select("select a from endless");
            } catch (const CKvCancelled&) {
                ++cancelled;
            }
            manager.Disconnect();
        };
    }
    /// The window by which the query is cancelled, once it is in sight.
    static kv::Node& WaitWindow() { return *kv::WindowSystem::Get().TopLevels().back(); }

    test::TempFolder folder_;
    int cancelled = 0;
};

TEST_F(DatabaseWait, IsEndedByAClickAndTheDialogHasItsFocusAgain) {
    ShowAsking();
    bool acted = false;
    Then([&] {
        acted = true;
        QWidget* wait = kv::qt::WidgetOf(WaitWindow());
        EXPECT_EQ(wait->windowTitle(), "Waiting for the Database");
        EXPECT_TRUE(wait->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), wait) << "the host's own widgets wait, too";
        QTest::mouseClick(WidgetOf(kOther), Qt::LeftButton);
        EXPECT_FALSE(dialog.WasTold("12 clicked"));
        QTest::mouseClick(kv::qt::WidgetOf(*WaitWindow().FindChild(IDCANCEL)), Qt::LeftButton);
    });
    Click(kAsk);
    Process();
    EXPECT_TRUE(acted);
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(kv::WindowSystem::Get().TopLevels().size(), 1U);
    EXPECT_TRUE(Window()->isEnabled());
    EXPECT_EQ(Window()->focusWidget(), WidgetOf(kAsk));
    Click(kOther);
    EXPECT_TRUE(dialog.WasTold("12 clicked"));
}

TEST_F(DatabaseWait, IsEndedInFrontOfAModalDialog) {
    template_ = std::make_unique<test::TestTemplate>(Rows());
    AskWhenClicked();
    Then([&] {
        Then([&] {
            QTest::mouseClick(WidgetOf(kOther), Qt::LeftButton);
            QTest::mouseClick(kv::qt::WidgetOf(*WaitWindow().FindChild(IDCANCEL)), Qt::LeftButton);
        });
        Click(kAsk);
        EXPECT_TRUE(Window()->isEnabled());
        dialog.EndDialog(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(cancelled, 1);
    EXPECT_FALSE(dialog.WasTold("12 clicked"));
}

TEST_F(DatabaseWait, IsEndedByEscape) {
    ShowAsking();
    Then([&] {
        QTest::keyClick(kv::qt::WidgetOf(*WaitWindow().FindChild(IDCANCEL)), Qt::Key_Escape);
    });
    Click(kAsk);
    EXPECT_EQ(cancelled, 1);
}

TEST_F(DatabaseWait, IsEndedByClosingItsWindow) {
    ShowAsking();
    Then([&] { kv::qt::WidgetOf(WaitWindow())->close(); });
    Click(kAsk);
    EXPECT_EQ(cancelled, 1);
}

}  // namespace
