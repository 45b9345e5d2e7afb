#include <gmock/gmock.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <filesystem>

#include "kvdlg/play.h"
#include "kvdlg/script.h"
#include "window/query_waits.h"
#include "window/window_system.h"
#include "workbench_window_fixture.h"

namespace {

using adaptors::Json;
using testing::HasSubstr;

constexpr const char* kStatus = "CKvGuiPipeStatusDlg";

class WorkbenchRecording : public workbench::WorkbenchTest {
protected:
    void SetUp() override {
        Open();
        row = MenuAction(QStringLiteral("Record what I do..."));
        ASSERT_TRUE(row);
        std::filesystem::create_directory(Folder());
    }
    std::string Folder() const { return folder.Native("scripts"); }

    /// Begins to record into the folder.
    void Begin() {
        QTimer::singleShot(0, qApp, [this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                ->setText(QString::fromStdString(Folder()));
            QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
        });
        row->trigger();
    }
    /// Opens a dialog, in which a person presses OK.
    void RunDialog() {
        QTimer::singleShot(0, qApp, [] {
            kv::Node* window = kv::WindowSystem::Get().ActiveWindow();
            QTest::mouseClick(kv::qt::WidgetOf(*window->FindChild(IDOK)), Qt::LeftButton);
        });
        host->RunDialog(*adaptors::Find(kStatus));
    }

    QAction* row = nullptr;
};

TEST_F(WorkbenchRecording, WritesAScriptOfEachDialogThatPlays) {
    Begin();
    EXPECT_TRUE(row->isChecked());
    EXPECT_THAT(Said(), HasSubstr(Folder()));
    RunDialog();
    RunDialog();
    EXPECT_TRUE(folder.Has("scripts/002-CKvGuiPipeStatusDlg.json"));

    const std::string text = folder.Read("scripts/001-CKvGuiPipeStatusDlg.json");
    const kvdlg::Script script{text, kvdlg::ParseJson(text, "the script")};
    adaptors::Run run(script.json.at("inputs"));
    kvdlg::Records records;
    kvdlg::Play(*adaptors::Find(kStatus), run, script, records, nullptr,
                [](const std::string& words) { FAIL() << words; });
    kv::WindowSystem::Get().SetDesktop(&desktop);
    EXPECT_EQ(run.result, IDOK);
}

/// Asks the database, as the map does while it is read.
class Asking final : public workbench::StepWork {
public:
    std::string Title() const override { return "Asking"; }
    int Done() const override { return 0; }
    int Total() const override { return 1; }
    bool Step() override {
        const workbench::Rows rows("select 1 from dual");
        return false;
    }
};

TEST_F(WorkbenchRecording, WhatTheWorkbenchAsksMeanwhileIsToldToNoRecording) {
    int told = 0;
    const kv::QueryWaits none = kv::SetQueryWaits({[&](const std::string&) {
                                                       ++told;
                                                       return kv::ActOnWait();
                                                   },
                                                   {}});
    host->Runner().Begin(std::make_shared<Asking>());
    host->Runner().Finish();
    EXPECT_EQ(told, 0);
    const workbench::Rows rows("select 1 from dual");
    EXPECT_EQ(told, 1) << "what a dialog asks is";
    kv::SetQueryWaits(none);
}

TEST_F(WorkbenchRecording, EndsByTheSameRow) {
    Begin();
    RunDialog();
    row->trigger();
    EXPECT_FALSE(row->isChecked());
    EXPECT_EQ(Said(), "1 dialog recorded");
    RunDialog();
    EXPECT_FALSE(folder.Has("scripts/002-CKvGuiPipeStatusDlg.json"));
}

TEST_F(WorkbenchRecording, TellsThatAToolBesideTheMapIsNotRecorded) {
    Begin();
    host->OpenDialog(*adaptors::Find("CKvConverterDialog"));
    EXPECT_THAT(Said(), HasSubstr("not recorded"));
    EXPECT_TRUE(std::filesystem::is_empty(Folder()));
}

TEST_F(WorkbenchRecording, AFolderThatWasNotChosenRecordsNothing) {
    QTimer::singleShot(0, qApp, [] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->reject();
    });
    row->trigger();
    EXPECT_FALSE(row->isChecked());
    RunDialog();
    EXPECT_TRUE(std::filesystem::is_empty(Folder()));
}

TEST_F(WorkbenchRecording, AScriptThatCannotBeWrittenIsTold) {
    Begin();
    std::filesystem::remove_all(Folder());
    host->RunDialog(*adaptors::Find(kStatus));
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_THAT(failures[0], HasSubstr("001-CKvGuiPipeStatusDlg.json cannot be written"));
    EXPECT_FALSE(row->isChecked());
}

}  // namespace
