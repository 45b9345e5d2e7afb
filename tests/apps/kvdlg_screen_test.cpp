#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <optional>

#include "frame/module.h"
#include "kvdlg/failure.h"
#include "kvdlg/play.h"
#include "kvdlg/report.h"
#include "kvdlg/screen.h"
#include "pickers/abe_bar_ids.h"
#include "qt/qt_desktop.h"
#include "qualifiers/list_sel_ids.h"
#include "window/window_system.h"
#include "workbench_fixture.h"

namespace {

using adaptors::Json;
using testing::HasSubstr;

/// A person at the windows that kvdlg opens: looks at them again and again, and acts.
class KvdlgScreen : public test::SampleTest {
protected:
    KvdlgScreen() { InitControlDll(); }

    /// Runs a dialog in a window; `act` is asked until the dialog is closed.
    void Open(const std::string& className, const Json& inputs, const std::function<void()>& act) {
        run.emplace(inputs);
        QObject person;
        std::unique_ptr<kvdlg::Screen> screen;
        screen = kvdlg::OpenDisplay(records, [&](kv::Node& window) {
            records.windows.push_back(kvdlg::Describe(window, ""));
            screen->SavePicture(window, folder.Native("closed.png"));
        });
        int turns = 0;
        const std::function<void()> look = [&] {
            if (++turns > kMostTurns) {
                ADD_FAILURE() << "the window is not closed";
                QCoreApplication::quit();
                return;
            }
            // What is done may open a window, and returns when it is closed.
            QTimer::singleShot(0, &person, look);
            act();
        };
        QTimer::singleShot(0, &person, look);
        adaptors::Find(className)->run(*run);
    }
    /// The widget of a control in a window that is open; null while there is none.
    static QWidget* Widget(int id) {
        const auto& system = kv::WindowSystem::Get();
        for (const auto& window : system.TopLevels()) {
            if (!window->Visible()) continue;
            if (QWidget* found = WidgetIn(*window, id)) return found;
        }
        return nullptr;
    }
    static void Click(int id) {
        if (QWidget* widget = Widget(id)) QTest::mouseClick(widget, Qt::LeftButton);
    }

    std::optional<adaptors::Run> run;
    kvdlg::Records records;

private:
    static constexpr int kMostTurns = 2000;

    static QWidget* WidgetIn(kv::Node& node, int id) {
        if (node.Id() == id && node.Parent()) return kv::qt::WidgetOf(node);
        for (const auto& child : node.Children()) {
            if (QWidget* found = WidgetIn(*child, id)) return found;
        }
        return nullptr;
    }
};

TEST_F(KvdlgScreen, TellsTheSameOfAPersonAsOfAScript) {
    const adaptors::Adaptor& adaptor = *adaptors::Find("CKvGuiPipeStatusDlg");
    const Json inputs = {{"text", "ACT"}};
    Open(adaptor.className, inputs, [] { Click(IDOK); });
    const std::string byPerson = kvdlg::Print(kvdlg::Outcome(*run, records, false));

    adaptors::Run scripted(inputs);
    kvdlg::Records told;
    const kvdlg::Script script{
        "", {{"user", {{{"window", adaptor.className}, {"do", {{{"click", IDOK}}}}}}}}};
    kvdlg::Play(
        adaptor, scripted, script, told,
        [&](kv::Node& window) { told.windows.push_back(kvdlg::Describe(window, "")); },
        [](const std::string& words) { FAIL() << words; });
    EXPECT_EQ(byPerson, kvdlg::Print(kvdlg::Outcome(scripted, told, false)));
}

TEST_F(KvdlgScreen, ClosingTheWindowOfABarEndsItWithWhatItHolds) {
    const auto close = [] {
        QWidget* button = Widget(kv::abe_bar::kRun);
        if (button && button->isVisible()) button->window()->close();
    };
    Open("CVZABEBar", {{"areacode", "43113"}, {"block", "391"}}, close);
    EXPECT_EQ(run->result, IDOK);
    EXPECT_EQ(run->outcome.at("block"), "391");
    EXPECT_THAT(run->outcome.at("areacode").get<std::string>(), HasSubstr("43113"));
    ASSERT_EQ(records.windows.size(), 1U);
    EXPECT_EQ(records.windows[0].at("window"), "CVZABEBar");
}

TEST_F(KvdlgScreen, PicturesTheDialogAsItStandsWhenItCloses) {
    Open("CKvGuiPipeStatusDlg", Json::object(), [] { Click(IDCANCEL); });
    EXPECT_EQ(run->result, IDCANCEL);
    const QImage picture(QString::fromStdString(folder.Native("closed.png")));
    EXPECT_GT(picture.width(), 200);
    EXPECT_GT(picture.height(), 200);
}

TEST_F(KvdlgScreen, MessageBoxesAreTold) {
    const auto act = [this] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            box->button(QMessageBox::Ok)->click();
        } else if (records.messages.empty()) {
            Click(kv::list_sel::kInsertMode);
            Click(kv::list_sel::kSearch);
        } else {
            Click(IDCANCEL);
        }
    };
    Open("CKvGuiListSel", {{"column", "lessee"}, {"table", "NORVADON.gulf_mexico_lease"}}, act);
    EXPECT_EQ(records.messages, Json::array({"Error! The string is blank!!"}));
}

}  // namespace
