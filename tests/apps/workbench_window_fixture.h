#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "frame/module.h"
#include "pickers/abe_bar_ids.h"
#include "qt/qt_desktop.h"
#include "window/acting/user.h"
#include "workbench/workbench.h"
#include "workbench_fixture.h"

namespace workbench {

/// The workbench on the sample database, and a person at its bar.
class WorkbenchTest : public test::SampleTest {
protected:
    WorkbenchTest() { InitControlDll(); }
    ~WorkbenchTest() override {
        host.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Opens the window, reads the map, and opens a map document, where one is named.
    void Open(const std::string& server = test::SampleServer(), const std::string& file = {}) {
        host.reset();
        CKvDbInfo info("", "", server.c_str());
        test::ConnectTo(info);
        host = std::make_unique<Workbench>(info);
        host->SetFailureShown(
            [this](const QString& message) { failures.push_back(message.toStdString()); });
        QSignalSpy painted(host.get(), &Workbench::FirstPainted);
        host->Show(file);
        while (painted.isEmpty())
            QApplication::processEvents();
        host->Runner().Finish();
        user = std::make_unique<kv::User>(*host->Frame().m_bar.m_hWnd,
                                          [](const std::string& words) { FAIL() << words; });
    }
    void Pick(const char* area, const char* block) {
        user->Select(kv::abe_bar::kArea, area);
        user->Select(kv::abe_bar::kBlock, block);
    }
    QAction* MenuAction(const QString& text) {
        for (const QMenu* menu : host->Window().findChildren<QMenu*>()) {
            for (QAction* action : menu->actions()) {
                if (action->text().remove(u'&') == text) return action;
            }
        }
        return nullptr;
    }
    /// Runs the report of a layer on what is picked.
    void Report(const char* layer) {
        user->Click(kv::abe_bar::kReport);
        user->Select(kv::abe_bar::kLayer, layer);
        user->Click(kv::abe_bar::kRun);
        host->Runner().Finish();
    }
    /// On what has the focus, the modifiers being held already.
    void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = QApplication::focusWidget();
        ASSERT_TRUE(focus);
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(focus, &press);
        QApplication::processEvents();
    }
    std::string Said() { return host->Status().Said().toStdString(); }

    kv::qt::QtDesktop desktop;
    std::vector<std::string> failures;
    std::unique_ptr<Workbench> host;
    std::unique_ptr<kv::User> user;
};

}  // namespace workbench
