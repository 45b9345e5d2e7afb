#include <QClipboard>
#include <QMenu>
#include <QPlainTextEdit>
#include <algorithm>
#include <cstdlib>

#include "dark_palette.h"
#include "qt_fixture.h"
#include "window/controls/edit_node.h"

using enum kv::ControlKind;
using test::Row;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class EditView : public test::QtDialogTest {
protected:
    QLineEdit* Line(int id) { return WidgetOf<QLineEdit>(id); }
    kv::EditNode& Edit(int id) { return static_cast<kv::EditNode&>(NodeOf(id)); }
};

kv::ControlRow At(int id, kv::ControlKind kind, int y, const char* text = "",
                  kv::RowStyle style = {}) {
    return {id, kind, text, {7, y, 100, 12}, style};
}

/// Of the part of a colour that differs most.
int Difference(const QColor& a, const QColor& b) {
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())});
}

TEST_F(EditView, TypingArrivesInTheNodeAndShows) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24)});
    Told();
    Type("ab");
    EXPECT_EQ(Text(11), "ab");
    EXPECT_EQ(Line(11)->text(), "ab");
    EXPECT_EQ(Line(11)->cursorPosition(), 2);
    EXPECT_THAT(Told(), ElementsAre("11 sent 1024", "11 changed", "11 sent 1024", "11 changed"));
}

TEST_F(EditView, WhatTheProgramWritesShows) {
    Show({At(11, kEdit, 7)});
    dialog.SetDlgItemText(11, "28.5");
    EXPECT_EQ(Line(11)->text(), "28.5");
    dialog.SetDlgItemText(11, "12\xB0 30'");
    EXPECT_EQ(Line(11)->text(), QString::fromUtf8("12° 30'"));
    dialog.SetDlgItemText(11, "Überall");
    EXPECT_EQ(Line(11)->text(), QString::fromUtf8("Überall"));
}

TEST_F(EditView, APartIsDrawnAgainAsItIsInTheWhole) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24), At(13, kEdit, 41, "", kv::kReadOnly)});
    const QPalette light = QApplication::palette();
    for (const QPalette& palette : {light, test::DarkPalette(), light}) {
        QApplication::setPalette(palette);
        for (const int id : {11, 12, 13}) {
            dialog.SetDlgItemText(id, std::to_string(palette.cacheKey()).c_str());
            const QImage whole = Line(id)->grab().toImage();
            for (const QRect& part :
                 {Line(id)->rect().adjusted(2, 2, -2, -2), QRect(QPoint(), Line(id)->size() / 2)}) {
                QImage drawn = whole;
                drawn.fill(palette.color(QPalette::Window));
                Line(id)->render(&drawn, part.topLeft(), part);
                for (int x = part.left(); x <= part.right(); ++x) {
                    for (int y = part.top(); y <= part.bottom(); ++y) {
                        const QPoint at = QPoint(x, y) * whole.devicePixelRatio();
                        ASSERT_LE(Difference(whole.pixelColor(at), drawn.pixelColor(at)), 2)
                            << id << ": " << x << ", " << y;
                    }
                }
            }
        }
    }
}

TEST_F(EditView, CharactersOfSeveralBytesAreTypedAndErasedWhole) {
    Show({At(11, kEdit, 7)});
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("é"));
    QApplication::sendEvent(Line(11), &key);
    EXPECT_EQ(Text(11), "é");
    EXPECT_EQ(Line(11)->text(), QString::fromUtf8("é"));
    EXPECT_EQ(Line(11)->cursorPosition(), 1);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Text(11), "");
}

TEST_F(EditView, AnInputMethodsTextIsTyped) {
    Show({At(11, kEdit, 7)});
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8("漢"));
    QApplication::sendEvent(Line(11), &event);
    EXPECT_EQ(Text(11), "漢");
}

TEST_F(EditView, StylesOfTheNodeHold) {
    Show({At(11, kEdit, 7, "", kv::kUpperCase), At(12, kEdit, 24, "", kv::kDigitsOnly),
          At(13, kEdit, 41, "fixed", kv::kReadOnly), At(14, kEdit, 58, "", kv::kPassword)});
    Type("vr");
    EXPECT_EQ(Line(11)->text(), "VR");
    Key(Qt::Key_Tab);
    Type("1a2");
    EXPECT_EQ(Line(12)->text(), "12");
    Key(Qt::Key_Tab);
    Type("x");
    EXPECT_EQ(Line(13)->text(), "fixed");
    EXPECT_TRUE(Line(13)->isReadOnly());
    EXPECT_EQ(Line(13)->palette().color(QPalette::Base),
              QApplication::palette().color(QPalette::Window));
    Key(Qt::Key_Tab);
    Type("secret");
    EXPECT_EQ(Text(14), "secret");
    EXPECT_EQ(Line(14)->echoMode(), QLineEdit::Password);
    EXPECT_FALSE(Line(14)->acceptDrops());
}

TEST_F(EditView, ALimitHolds) {
    Show({At(11, kEdit, 7)});
    dialog.SendDlgItemMessage(11, EM_LIMITTEXT, 3);
    Type("abcd");
    EXPECT_EQ(Line(11)->text(), "abc");
}

TEST_F(EditView, TabSelectsTheWholeTextOfTheNextEdit) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24, "old")});
    Key(Qt::Key_Tab);
    EXPECT_TRUE(Line(12)->hasFocus() || Window()->focusWidget() == Line(12));
    EXPECT_EQ(Line(12)->selectedText(), "old");
    Type("n");
    EXPECT_EQ(Text(12), "n");
    EXPECT_EQ(Line(11)->selectedText(), "");
}

TEST_F(EditView, AClickMovesFocusAndCaretOnce) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24, "wide text")});
    Told();
    const QPoint behind(Line(12)->width() - 3, Line(12)->height() / 2);
    QTest::mouseClick(Line(12), Qt::LeftButton, {}, behind);
    EXPECT_THAT(Told(), ElementsAre("11 lost", "12 gained"));
    EXPECT_EQ(Edit(12).Caret(), 9);
    EXPECT_EQ(Line(12)->cursorPosition(), 9);
    EXPECT_EQ(Window()->focusWidget(), Line(12));
}

TEST_F(EditView, DraggingSelectsAndShiftClickExtends) {
    Show({At(11, kEdit, 7, "some words")});
    const int middle = Line(11)->height() / 2;
    const QPoint end(Line(11)->width() - 3, middle);
    QTest::mousePress(Line(11), Qt::LeftButton, {}, QPoint(1, middle));
    QTest::mouseMove(Line(11), end);
    QMouseEvent move(QEvent::MouseMove, end, Line(11)->mapToGlobal(end), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Line(11), &move);
    QTest::mouseRelease(Line(11), Qt::LeftButton, {}, end);
    EXPECT_EQ(Edit(11).SelectionStart(), 0);
    EXPECT_EQ(Edit(11).SelectionEnd(), 10);
    EXPECT_EQ(Line(11)->selectedText(), "some words");
    QTest::mouseClick(Line(11), Qt::LeftButton, {}, QPoint(1, middle));
    EXPECT_EQ(Edit(11).SelectionEnd(), 0);
    QTest::mouseClick(Line(11), Qt::LeftButton, Qt::ShiftModifier, end);
    EXPECT_EQ(Line(11)->selectedText(), "some words");
}

TEST_F(EditView, ADoubleClickSelectsAWord) {
    Show({At(11, kEdit, 7, "alpha beta")});
    QTest::mouseDClick(Line(11), Qt::LeftButton, {}, QPoint(8, Line(11)->height() / 2));
    EXPECT_EQ(Line(11)->selectedText(), "alpha");
}

TEST_F(EditView, CopyPasteAndUndoAreTheNodes) {
    Show({At(11, kEdit, 7, "one"), At(12, kEdit, 24)});
    Told();
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "one");
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Text(11), "");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Line(11)->text(), "one");
    Key(Qt::Key_Tab);
    Told();
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Line(12)->text(), "one");
    EXPECT_THAT(Told(), ElementsAre("12 sent 1024", "12 changed"));
}

TEST_F(EditView, ItsMenuActsOnTheNode) {
    Show({At(11, kEdit, 7, "one")});
    Key(Qt::Key_End);
    QGuiApplication::clipboard()->setText(" two");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3),
                            Line(11)->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(Line(11), &event);
    auto* menu = Line(11)->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(menu->actions().at(2)->isEnabled()) << "nothing is selected to cut";
    menu->actions().at(4)->trigger();
    EXPECT_EQ(Text(11), "one two");
    menu->close();
}

TEST_F(EditView, ADisabledEditTakesNothing) {
    Show({At(11, kEdit, 7), At(12, kEdit, 24, "off", kv::kDisabled)});
    Told();
    Click(12);
    EXPECT_FALSE(Line(12)->isEnabled());
    EXPECT_THAT(Told(), IsEmpty());
    EXPECT_EQ(test::FocusedId(), 11);
}

TEST_F(EditView, SeveralLinesShowAndAreTyped) {
    Show({{11, kEdit, "", {7, 7, 150, 60}, kv::kMultiLine | kv::RowStyle{ES_WANTRETURN, 0}}});
    auto* lines = WidgetOf<QPlainTextEdit>(11);
    ASSERT_NE(lines, nullptr);
    dialog.SetDlgItemText(11, "first\r\nsecond");
    EXPECT_EQ(lines->toPlainText(), "first\nsecond");
    Key(Qt::Key_Down);
    Key(Qt::Key_End);
    EXPECT_EQ(lines->textCursor().position(), 12);
    Key(Qt::Key_Return);
    Type("x");
    EXPECT_EQ(Text(11), "first\r\nsecond\r\nx");
    EXPECT_EQ(lines->toPlainText(), "first\nsecond\nx");
    EXPECT_EQ(lines->textCursor().position(), 14);
}

TEST_F(EditView, ToolsThatSetTheWidgetsTextChangeTheNode) {
    Show({At(11, kEdit, 7)});
    Line(11)->setText("by a tool");
    EXPECT_EQ(Text(11), "by a tool");
}

TEST_F(EditView, GoesByTheLabelAheadOfIt) {
    Show({At(10, kLabel, 7, "&Company name:"), At(11, kEdit, 24)});
    EXPECT_EQ(test::NameOf(Line(11)), "Company name");
    dialog.SetDlgItemText(10, "Operator");
    EXPECT_EQ(test::NameOf(Line(11)), "Operator");
}

}  // namespace
