#include "random_person.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "qt/qt_desktop.h"
#include "window/window_system.h"

namespace test {

namespace {

/// How often the person may look at a window that does not close before they give up.
constexpr int kMostTurns = 3000;

const std::array kTexts{"1",           "12",
                        "-89.5",       "28",
                        "391",         "0",
                        "A",           "SHELL",
                        "ge",          "ENERGY",
                        "W",           "x",
                        "%",           "'",
                        " ",           "1e9",
                        "99999",       "-",
                        ".",           "\u00e9",
                        "N28 30 15",   "28.504236, -89.125",
                        "GC 200",      "name.txt",
                        "C:\\",        "ACT",
                        "2000",        "3.25",
                        "ab cd",       "\\",
                        "\u4e95\u20ac"};

const std::array kKeys{Qt::Key_Tab,      Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return,
                       Qt::Key_Space,    Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Up,
                       Qt::Key_Down,     Qt::Key_Home,   Qt::Key_End,     Qt::Key_PageUp,
                       Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Insert,  Qt::Key_Backspace,
                       Qt::Key_F4,       Qt::Key_Escape, Qt::Key_F2};

const std::array kShortcuts{Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Insert};

QWidget* Holder() {
    QWidget* focus = QApplication::focusWidget();
    return focus ? focus : QApplication::activeWindow();
}

/// The window of the layer that a person can act on.
kv::Node* WindowInFront() {
    kv::Node* window = kv::WindowSystem::Get().ActiveWindow();
    const bool open = window && window->ReallyVisible() && window->ReallyEnabled();
    return open && kv::qt::WidgetOf(*window) ? window : nullptr;
}

void AddControls(kv::Node& node, std::vector<kv::Node*>& controls) {
    for (const auto& child : node.Children()) {
        const QWidget* widget = kv::qt::WidgetOf(*child);
        if (!widget || !widget->isVisible() || !child->Visible()) continue;
        const bool around = child->Class() == kv::NodeClass::kBar;
        if (around) {
            AddControls(*child, controls);
        } else {
            controls.push_back(child.get());
        }
    }
}

}  // namespace

RandomPerson::RandomPerson(unsigned seed, int acts, std::vector<QString> files)
    : random_(seed), actsLeft_(acts), turnsLeft_(kMostTurns), files_(std::move(files)) {
    Look();
}

/// What is done may open a window, and returns when that is closed.
void RandomPerson::Look() {
    QTimer::singleShot(0, this, [this] {
        if (--turnsLeft_ < 0) {
            gaveUp_ = true;
            // The loops are those of dialogs, and not the application's own, which alone `quit`
            // ends.
            QCoreApplication::exit();
            return;
        }
        Look();
        Act();
    });
}

void RandomPerson::Act() {
    if (QWidget* popup = QApplication::activePopupWidget()) return OnPopup(*popup);
    QWidget* modal = QApplication::activeModalWidget();
    kv::Node* window = WindowInFront();
    const bool others = modal && (!window || kv::qt::WidgetOf(*window) != modal);
    if (others) return OnOthersDialog(*modal);
    if (!window) return;
    if (--actsLeft_ < 0) {
        Leave(*window);
    } else {
        OnWindow(*window);
    }
}

void RandomPerson::OnPopup(QWidget& popup) {
    if (auto* menu = qobject_cast<QMenu*>(&popup)) {
        QAction* action = menu->actions().value(Any(static_cast<int>(menu->actions().size())));
        if (action && action->isEnabled() && !action->isSeparator() && Chance(70)) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        } else {
            QTest::keyClick(menu, Qt::Key_Escape);
        }
        return;
    }
    auto* rows = popup.findChild<QAbstractItemView*>();
    if (rows && Chance(60)) {
        Click(*rows->viewport());
    } else if (Chance(40)) {
        QTest::keyClick(&popup, AnyOf(kKeys));
    } else if (Chance(50)) {
        const QString text = QString::fromUtf8(AnyOf(kTexts));
        QTest::sendKeyEvent(QTest::Click, &popup, Qt::Key_unknown, text.left(1), {});
    } else {
        // Elsewhere: that closes it.
        QTest::mouseClick(&popup, Qt::LeftButton, {}, QPoint(-20, -20));
    }
}

void RandomPerson::OnOthersDialog(QWidget& dialog) {
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
        auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (name && Chance(70)) {
            name->setText(AnyOf(files_));
            QTest::keyClick(name, Qt::Key_Return);
        } else {
            files->reject();
        }
        return;
    }
    auto buttons = dialog.findChildren<QAbstractButton*>();
    buttons.removeIf([](const QAbstractButton* each) {
        return !each->isVisible() || !each->isEnabled() || each->text().isEmpty();
    });
    const auto parts = dialog.findChildren<QWidget*>();
    if (!qobject_cast<QMessageBox*>(&dialog) && !parts.isEmpty() && Chance(60)) {
        // As on the map that blocks are picked on.
        QWidget& part = *AnyOf(parts);
        if (part.isVisible()) Click(part);
    } else if (buttons.isEmpty() || Chance(10)) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        QTest::mouseClick(AnyOf(buttons), Qt::LeftButton);
    }
}

void RandomPerson::OnWindow(kv::Node& window) {
    std::vector<kv::Node*> controls;
    AddControls(window, controls);
    const int what = Any(100);
    if (what < 15) {
        PressKey();
    } else if (what < 25) {
        Type();
    } else if (what < 27) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(AnyOf(kTexts)));
    } else if (what < 28) {
        Click(*kv::qt::WidgetOf(window));
    } else if (!controls.empty()) {
        kv::Node& control = *AnyOf(controls);
        OnControl(control, *kv::qt::WidgetOf(control));
    }
}

void RandomPerson::OnControl(kv::Node& control, QWidget& widget) {
    switch (control.Class()) {
        case kv::NodeClass::kButton:
            // Rather late than early.
            if (control.Id() == IDCANCEL && Chance(80)) return;
            return OnButton(widget);
        case kv::NodeClass::kEdit:
            return OnEdit(widget);
        case kv::NodeClass::kComboBox:
            return OnCombo(widget);
        case kv::NodeClass::kListBox:
        case kv::NodeClass::kListView:
            return OnRows(widget);
        case kv::NodeClass::kSpin:
            return OnSpin(widget);
        default:
            return Click(widget);
    }
}

void RandomPerson::OnButton(QWidget& widget) {
    const int what = Any(100);
    if (what < 80) {
        Click(widget);
    } else if (what < 88) {
        DoubleClick(widget);
    } else if (what < 94) {
        // Held, and let go elsewhere.
        const QPoint outside(-30, -30);
        QTest::mousePress(&widget, Qt::LeftButton);
        QTest::mouseMove(&widget, outside);
        if (Chance(30)) QTest::mouseMove(&widget, widget.rect().center());
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, outside);
    } else {
        QTest::mousePress(&widget, Qt::LeftButton);
        PressKey();
        QTest::mouseRelease(&widget, Qt::LeftButton);
    }
}

void RandomPerson::OnEdit(QWidget& widget) {
    auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
    QWidget& text = area ? *area->viewport() : widget;
    const int what = Any(100);
    if (what < 40) {
        Click(text);
        Type();
    } else if (what < 55) {
        Drag(text);
    } else if (what < 65) {
        DoubleClick(text);
    } else if (what < 75) {
        AskForMenu(widget);
    } else if (what < 85) {
        Wheel(widget);
    } else {
        Click(text);
        PressKey();
    }
}

void RandomPerson::OnRows(QWidget& widget) {
    auto* view = qobject_cast<QAbstractItemView*>(&widget);
    if (!view) return Click(widget);
    auto* tree = qobject_cast<QTreeView*>(view);
    QWidget& rows = *view->viewport();
    const int what = Any(100);
    if (what < 45) {
        Click(rows);
    } else if (what < 55) {
        DoubleClick(rows);
    } else if (what < 62) {
        Drag(rows);
    } else if (what < 69 && tree) {
        Click(*tree->header()->viewport());
    } else if (what < 75) {
        Click(rows, Qt::RightButton);
        AskForMenu(rows);
    } else if (what < 88) {
        Click(rows);
        Type();
    } else {
        Click(rows);
        PressKey();
    }
}

void RandomPerson::OnCombo(QWidget& widget) {
    const int what = Any(100);
    auto* edit = widget.findChild<QLineEdit*>();
    if (edit && what < 40) {
        OnEdit(*edit);
    } else if (what < 75) {
        Click(widget);
    } else if (what < 85) {
        Wheel(widget);
    } else {
        Click(widget);
        PressKey();
    }
}

void RandomPerson::OnSpin(QWidget& widget) {
    auto arrows = widget.findChildren<QToolButton*>();
    if (arrows.isEmpty() || Chance(20)) {
        Wheel(widget);
    } else {
        Click(*AnyOf(arrows));
    }
}

/// By Cancel, or else as it comes. What does not let go may want something else done first.
void RandomPerson::Leave(kv::Node& window) {
    if (Chance(15)) return PutRight();
    if (Chance(15)) return OnWindow(window);
    for (const int id : {IDCANCEL, IDOK}) {
        kv::Node* button = window.FindChild(id);
        QWidget* widget = button && button->ReallyVisible() ? kv::qt::WidgetOf(*button) : nullptr;
        if (!widget || !widget->isEnabled() || Chance(30)) continue;
        return Click(*widget);
    }
    if (Chance(50)) {
        kv::qt::WidgetOf(*window.Root())->close();
    } else if (QWidget* holder = Holder()) {
        QTest::keyClick(holder, Qt::Key_Escape);
    }
}

/// A number in the place of what is in a box.
void RandomPerson::PutRight() {
    auto* box = qobject_cast<QLineEdit*>(Holder());
    if (!box) return;
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_1);
    if (QWidget* holder = Holder()) QTest::keyClick(holder, Qt::Key_Tab);
}

void RandomPerson::PressKey() {
    QWidget* holder = Holder();
    if (!holder) return;
    const int what = Any(100);
    if (what < 4) {
        QTest::keyClick(holder, Chance(70) ? Qt::Key_Down : Qt::Key_Up, Qt::AltModifier);
    } else if (what < 70) {
        const Qt::Key key = AnyOf(kKeys);
        if (key == Qt::Key_Escape && Chance(70)) return;
        QTest::keyClick(holder, key, Held());
    } else if (what < 85) {
        QTest::keyClick(holder, AnyOf(kShortcuts), Qt::ControlModifier);
    } else {
        const auto letter = static_cast<Qt::Key>(Qt::Key_A + Any(26));
        QTest::keyClick(holder, letter, Qt::AltModifier);
    }
}

void RandomPerson::Type() {
    const QString text = QString::fromUtf8(AnyOf(kTexts));
    QWidget* first = Holder();
    if (first && Chance(10)) {
        // By an input method, as a whole.
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(first, &event);
        return;
    }
    for (const QChar& each : text) {
        // Each key goes where the one before it has led.
        QWidget* holder = Holder();
        if (!holder || QApplication::activePopupWidget()) return;
        QTest::sendKeyEvent(QTest::Click, holder, Qt::Key_unknown, QString(each), {});
    }
}

void RandomPerson::Click(QWidget& widget, Qt::MouseButton button) {
    QTest::mouseClick(&widget, button, Held(), PlaceIn(widget));
}

void RandomPerson::DoubleClick(QWidget& widget) {
    const QPoint place = PlaceIn(widget);
    const QPointer<QWidget> held(&widget);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
    // The first click may have closed its window.
    if (held && held->isVisible() && held->isEnabled())
        QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
}

void RandomPerson::Drag(QWidget& widget) {
    const QPointer<QWidget> held(&widget);
    QTest::mousePress(&widget, Qt::LeftButton, {}, PlaceIn(widget));
    for (int step = 0; step < 2 && held; ++step) {
        const QPoint place = PlaceIn(widget);
        QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }
    if (held) QTest::mouseRelease(&widget, Qt::LeftButton, {}, PlaceIn(widget));
}

void RandomPerson::Wheel(QWidget& widget) {
    const QPoint place = widget.rect().center();
    QWheelEvent wheel(place, widget.mapToGlobal(place), QPoint(),
                      QPoint(0, Chance(50) ? 120 : -240), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
}

void RandomPerson::AskForMenu(QWidget& widget) {
    const QPoint place = PlaceIn(widget);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &menu);
}

QPoint RandomPerson::PlaceIn(const QWidget& widget) {
    // Rather at the top of a list, where its rows are.
    const int height = Chance(60) ? std::min(widget.height(), 80) : widget.height();
    return {Any(std::max(1, widget.width())), Any(std::max(1, height))};
}

Qt::KeyboardModifiers RandomPerson::Held() {
    Qt::KeyboardModifiers held;
    held.setFlag(Qt::ShiftModifier, Chance(12));
    held.setFlag(Qt::ControlModifier, Chance(12));
    return held;
}

int RandomPerson::Any(int count) {
    // Not by a distribution: those differ from one library to the next.
    return static_cast<int>(random_() % static_cast<unsigned>(count));
}

}  // namespace test
