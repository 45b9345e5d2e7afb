// Linked to an example that opens windows: a person who picks "Removed (REM)" in the dialog,
// presses OK, and then closes what is still open.

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

template <typename Button>
Button* ShownButton(const QString& text) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        for (auto* button : window->findChildren<Button*>()) {
            if (button->text().remove(u'&') == text && button->isVisible()) return button;
        }
    }
    return nullptr;
}

void Press(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

bool g_picked = false;

void Look() {
    // A press may open a dialog, and returns when it is closed.
    QTimer::singleShot(0, qApp, Look);
    if (auto* box = ShownButton<QCheckBox>(QStringLiteral("Removed (REM)")); box && !g_picked) {
        g_picked = true;
        Press(box);
    } else if (auto* ok = ShownButton<QPushButton>(QStringLiteral("OK"))) {
        Press(ok);
    } else if (auto* pick = ShownButton<QPushButton>(QStringLiteral("Pick..."));
               pick && !g_picked) {
        Press(pick);
    } else if (g_picked) {
        QApplication::closeAllWindows();
    }
}

void Begin() {
    QTimer::singleShot(0, qApp, Look);
}

Q_COREAPP_STARTUP_FUNCTION(Begin)

}  // namespace
