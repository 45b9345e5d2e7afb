#pragma once

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <functional>

#include "window/window_system.h"
#include "workbench_window_fixture.h"

namespace workbench {

/// A person who works in the dialogs that the menus open.
class WorkbenchPerson : public WorkbenchTest {
protected:
    WorkbenchPerson() {
        QObject::connect(&person, &QTimer::timeout, [this] { Act(); });
    }
    ~WorkbenchPerson() override { person.stop(); }

    using Deeds = std::deque<std::function<bool()>>;

    /// Triggers a row of the menu. Each deed waits until what it acts on has opened.
    void Trigger(const char* row, Deeds todo) {
        QAction* action = MenuAction(QString::fromLatin1(row));
        ASSERT_TRUE(action) << row;
        deeds = std::move(todo);
        person.start(0);
        action->trigger();
        host->Runner().Finish();
        person.stop();
        EXPECT_TRUE(deeds.empty()) << "it did not open";
    }
    void Act() {
        // A machine without a printer says so.
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            boxes.push_back(box->text().toStdString());
            (box->button(answer) ? box->button(answer) : box->button(QMessageBox::Ok))->click();
            return;
        }
        if (!deeds.empty() && deeds.front()()) {
            deeds.pop_front();
        }
    }

    /// In the dialog ahead of printing.
    static std::function<bool()> InDialog(std::function<void(kv::User&)> act) {
        return [act = std::move(act), done = false]() mutable {
            auto& modals = kv::WindowSystem::Get().Modals();
            if (modals.empty() || done) return false;
            done = true;
            kv::User at(*modals.back(), [](const std::string& words) { FAIL() << words; });
            act(at);
            return true;
        };
    }
    static std::function<bool()> NameFile(const std::string& path) {
        return [path] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return false;
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                ->setText(QString::fromStdString(path));
            dialog->findChild<QDialogButtonBox*>()
                ->button(dialog->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                         : QDialogButtonBox::Open)
                ->click();
            return true;
        };
    }

    QTimer person;
    Deeds deeds;
    std::vector<std::string> boxes;
    /// What is pressed in a box that asks; "No" of one that has it, else "OK".
    QMessageBox::StandardButton answer = QMessageBox::No;
};

}  // namespace workbench
