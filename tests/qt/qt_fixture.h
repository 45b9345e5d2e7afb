#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "qt/qt_desktop.h"
#include "support/dialog_fixture.h"
#include "window/window_system.h"

namespace test {

/// What a screen reader calls the widget.
inline QString NameOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/// Where a picture of that name is saved. Each way in which the tests are run has a folder of its
/// own.
inline QString PicturePath(const QString& name) {
    QDir folder(QStringLiteral(QT_TESTS_PICTURES) + qEnvironmentVariable("KVGUICTL_TEST_PICTURES"));
    folder.mkpath(QStringLiteral("."));
    return folder.filePath(name);
}

/// It keeps what comes by WM_NOTIFY, too.
class NoticingDialog : public RecordingDialog {
public:
    using RecordingDialog::RecordingDialog;
    std::function<void(const NMHDR&)> onNotice;
    /// What the control is answered.
    std::function<LRESULT(const NMHDR&)> answerNotice;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& head = *reinterpret_cast<const NMHDR*>(lParam);
        if (onNotice) onNotice(head);
        if (answerNotice && (*result = answerNotice(head)) != 0) return TRUE;
        return RecordingDialog::OnNotify(wParam, lParam, result);
    }
};

/// A modeless dialog in a real window, on which keys and mouse buttons are pressed.
class QtDialogTest : public ::testing::Test {
protected:
    /// Shows a dialog with these controls.
    void Show(std::vector<kv::ControlRow> rows) {
        template_ = std::make_unique<TestTemplate>(std::move(rows));
        ASSERT_TRUE(dialog.Create(kTestTemplate));
        Process();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Window()));
    }
    ~QtDialogTest() override {
        if (dialog.m_hWnd) dialog.DestroyWindow();
        Process();
    }

    static void Process() {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    kv::Node& NodeOf(int id) { return *dialog.m_hWnd->FindChild(id); }
    template <typename Widget = QWidget>
    Widget* WidgetOf(int id) {
        return dynamic_cast<Widget*>(kv::qt::WidgetOf(NodeOf(id)));
    }
    QWidget* Window() { return kv::qt::WidgetOf(*dialog.m_hWnd); }

    /// Presses a key where Qt has its focus.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = Window()->focusWidget();
        QTest::keyClick(focus ? focus : Window(), key, modifiers);
    }
    void Type(const QString& text) {
        for (const QChar& ch : text) {
            QWidget* focus = Window()->focusWidget();
            QTest::keyClick(focus ? focus : Window(), ch.toLatin1());
        }
    }
    void Click(int id) { QTest::mouseClick(WidgetOf(id), Qt::LeftButton); }
    std::string Text(int id) { return NodeOf(id).Text(); }
    std::vector<std::string> Told() { return std::exchange(dialog.told, {}); }

    /// What happens as soon as the event loop of the next modal thing runs.
    static void Then(const std::function<void()>& act) { QTimer::singleShot(0, qApp, act); }

    kv::qt::QtDesktop desktop;
    std::unique_ptr<TestTemplate> template_;
    NoticingDialog dialog;
};

}  // namespace test
