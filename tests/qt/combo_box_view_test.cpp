#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QFrame>

#include "qt_fixture.h"
#include "window/controls/combo_box.h"
#include "window/controls/combo_box_node.h"
#include "window/named.h"

using enum kv::ControlKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kEditable = 16;
constexpr int kList = 17;

class ComboView : public test::QtDialogTest {
protected:
    void SetUp() override {
        Show({{11, kEdit, "", {7, 7, 80, 12}},
              {kEditable, kDropDown, "", {7, 24, 80, 12}},
              {kList, kDropList, "", {7, 41, 80, 12}}});
        for (const char* text : {"EAST CAMERON", "VERMILION", "WEST CAMERON", "WEST DELTA"}) {
            dialog.SendDlgItemMessage(kEditable, CB_ADDSTRING, 0, kv::AsParam(text));
            dialog.SendDlgItemMessage(kList, CB_ADDSTRING, 0, kv::AsParam(text));
        }
        Told();
    }

    kv::ComboBoxNode& Combo(int id) { return static_cast<kv::ComboBoxNode&>(NodeOf(id)); }
    QComboBox* Box(int id) { return WidgetOf<QComboBox>(id); }
    QLineEdit* Line() { return Box(kEditable)->findChild<QLineEdit*>(); }
    QAbstractItemView* Popup() {
        QWidget* popup = QApplication::activePopupWidget();
        return popup ? popup->findChild<QAbstractItemView*>() : nullptr;
    }
    void ClickArrow(int id) {
        QTest::mouseClick(Box(id), Qt::LeftButton, {},
                          QPoint(Box(id)->width() - 6, Box(id)->height() / 2));
        Process();
    }
    void ClickPopupRow(int row) {
        const QRect place = Popup()->visualRect(Popup()->model()->index(row, 0));
        QTest::mouseClick(Popup()->viewport(), Qt::LeftButton, {}, place.center());
        Process();
    }
};

TEST_F(ComboView, APickFromTheDroppedListComesInThePlatformsOrder) {
    ClickArrow(kEditable);
    ASSERT_NE(Popup(), nullptr);
    EXPECT_EQ(Popup()->model()->rowCount(), 4);
    EXPECT_EQ(Popup()->model()->index(1, 0).data().toString(), "VERMILION");
    ClickPopupRow(1);
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_THAT(Told(), ElementsAre("11 lost", "16 gained", "16 sent 7", "16 sent 9", "16 sent 8",
                                    "16 sent 1"));
    EXPECT_EQ(Text(kEditable), "VERMILION");
    EXPECT_EQ(Line()->text(), "VERMILION");
    EXPECT_EQ(Line()->selectedText(), "VERMILION");
}

TEST_F(ComboView, ADropListShowsItsRow) {
    ClickArrow(kList);
    ASSERT_NE(Popup(), nullptr);
    ClickPopupRow(2);
    EXPECT_EQ(Combo(kList).CurrentRow(), 2);
    EXPECT_EQ(Box(kList)->currentText(), "WEST CAMERON");
    dialog.SendDlgItemMessage(kList, CB_SETCURSEL, 0);
    EXPECT_EQ(Box(kList)->currentText(), "EAST CAMERON");
    dialog.SendDlgItemMessage(kList, CB_RESETCONTENT);
    EXPECT_EQ(Box(kList)->currentText(), "");
}

TEST_F(ComboView, TypingIntoItsEditTellsTheParentOnce) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Window()->focusWidget(), Line());
    Told();
    Type("V");
    EXPECT_EQ(Text(kEditable), "V");
    EXPECT_THAT(Told(), ElementsAre("16 sent 6", "16 sent 5"));
    EXPECT_EQ(Line()->text(), "V");
}

TEST_F(ComboView, ArrowsMoveTheRowAndEnterPicksInTheOpenList) {
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Down);
    EXPECT_EQ(Box(kList)->currentText(), "EAST CAMERON");
    Told();
    Key(Qt::Key_F4);
    ASSERT_NE(Popup(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_EQ(Combo(kList).CurrentRow(), 1);
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST_F(ComboView, EscapeClosesTheListAndNotTheDialog) {
    ClickArrow(kList);
    ASSERT_NE(Popup(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_FALSE(Combo(kList).Dropped());
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST_F(ComboView, AClickElsewhereClosesTheList) {
    ClickArrow(kList);
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    QTest::mouseClick(popup, Qt::LeftButton, {}, QPoint(-20, -200));
    EXPECT_FALSE(Combo(kList).Dropped());
    EXPECT_EQ(Combo(kList).CurrentRow(), -1);
    EXPECT_EQ(Popup(), nullptr);
}

TEST_F(ComboView, ANameOfItsOwnIsReadOutForAllItsParts) {
    struct : CComboBox, kv::Named {
        std::string SpokenName() const override { return name; }
        std::string name;
    } box;
    box.SubclassDlgItem(kEditable, &dialog);
    ASSERT_NE(test::NameOf(Box(kEditable)), "Area, by name");
    box.name = "Area, by name";
    NodeOf(kEditable).SetToolTip("Areas by name");
    EXPECT_EQ(test::NameOf(Box(kEditable)), "Area, by name");
    EXPECT_EQ(test::NameOf(Line()), "Area, by name");
    ClickArrow(kEditable);
    EXPECT_EQ(Popup()->accessibleName(), "Area, by name");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    box.name.clear();
    NodeOf(kEditable).SetToolTip("");
    EXPECT_NE(test::NameOf(Line()), "Area, by name");
}

TEST_F(ComboView, TypingInADropListFindsARow) {
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    Type("west d");
    EXPECT_EQ(Box(kList)->currentText(), "WEST DELTA");
}

TEST_F(ComboView, TheWheelTurnsTheRowOfTheOneWithTheFocusOnly) {
    dialog.SendDlgItemMessage(kList, CB_SETCURSEL, 1);
    const auto turn = [&](int delta) {
        QWheelEvent event(QPointF(5, 5), Box(kList)->mapToGlobal(QPointF(5, 5)), {}, {0, delta},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Box(kList), &event);
    };
    turn(-120);
    EXPECT_EQ(Combo(kList).CurrentRow(), 1);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    turn(-120);
    EXPECT_EQ(Combo(kList).CurrentRow(), 2);
    turn(240);
    EXPECT_EQ(Combo(kList).CurrentRow(), 0);
}

TEST_F(ComboView, RowsThatAHandlerAddsAtTheDropAreInTheList) {
    dialog.when["17 sent 7"] = [&] {
        dialog.SendDlgItemMessage(kList, CB_RESETCONTENT);
        dialog.SendDlgItemMessage(kList, CB_ADDSTRING, 0, kv::AsParam("filled late"));
    };
    ClickArrow(kList);
    ASSERT_NE(Popup(), nullptr);
    EXPECT_EQ(Popup()->model()->rowCount(), 1);
    EXPECT_EQ(Popup()->model()->index(0, 0).data().toString(), "filled late");
}

TEST_F(ComboView, TheListOpensAtTheRowThatIsPicked) {
    for (int row = 0; row < 100; ++row)
        dialog.SendDlgItemMessage(kList, CB_ADDSTRING, 0, kv::AsParam(std::to_string(row).c_str()));
    dialog.SendDlgItemMessage(kList, CB_SETCURSEL, 60);
    ClickArrow(kList);
    ASSERT_NE(Popup(), nullptr);
    const QRect place = Popup()->visualRect(Popup()->model()->index(60, 0));
    const QRect middle =
        Popup()->viewport()->rect().adjusted(0, place.height(), 0, -place.height());
    EXPECT_TRUE(middle.contains(place));
}

TEST_F(ComboView, ItsTextIsCopied) {
    dialog.SendDlgItemMessage(kList, CB_SETCURSEL, 1);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "VERMILION");
}

/// A combo box whose list stands open under its edit.
class SimpleComboView : public test::QtDialogTest {
protected:
    void SetUp() override {
        Show({{11, kEdit, "", {7, 7, 80, 12}},
              {18, kDropDown, "", {7, 24, 80, 60}, {CBS_SIMPLE, CBS_DROPDOWN}}});
        for (const char* text : {"EAST CAMERON", "VERMILION", "WEST CAMERON"})
            dialog.SendDlgItemMessage(18, CB_ADDSTRING, 0, kv::AsParam(text));
        Process();
        Told();
    }
    QLineEdit* Line() { return test::QtDialogTest::WidgetOf(18)->findChild<QLineEdit*>(); }
    QAbstractItemView* Rows() {
        return test::QtDialogTest::WidgetOf(18)->findChild<QAbstractItemView*>();
    }
    int Current() { return static_cast<kv::ComboBoxNode&>(NodeOf(18)).CurrentRow(); }
};

TEST_F(SimpleComboView, ShowsEditAndRowsOneBelowTheOther) {
    ASSERT_NE(Line(), nullptr);
    ASSERT_NE(Rows(), nullptr);
    EXPECT_TRUE(Rows()->isVisible());
    EXPECT_EQ(Rows()->model()->rowCount(), 3);
    EXPECT_FALSE(Line()->geometry().intersects(Rows()->geometry()));
    EXPECT_FALSE(test::NameOf(Line()).isEmpty());
}

TEST_F(SimpleComboView, AClickedRowComesIntoItsEditAndIsToldOnce) {
    const QRect place = Rows()->visualRect(Rows()->model()->index(1, 0));
    QTest::mouseClick(Rows()->viewport(), Qt::LeftButton, {}, place.center());
    EXPECT_EQ(Current(), 1);
    EXPECT_EQ(Line()->text(), "VERMILION");
    const auto told = Told();
    EXPECT_EQ(std::count(told.begin(), told.end(), "18 sent 1"), 1);
    EXPECT_EQ(test::FocusedId(), 18);
}

TEST_F(SimpleComboView, IsTypedIntoAndGoesThroughItsRowsByArrows) {
    Key(Qt::Key_Tab);
    EXPECT_EQ(Window()->focusWidget(), Line());
    Told();
    Type("W");
    EXPECT_EQ(Text(18), "W");
    EXPECT_THAT(Told(), ElementsAre("18 sent 6", "18 sent 5"));
    dialog.SendDlgItemMessage(18, CB_SETCURSEL, 0);
    EXPECT_EQ(Line()->text(), "EAST CAMERON");
    Key(Qt::Key_Down);
    EXPECT_EQ(Current(), 1);
    EXPECT_EQ(Line()->text(), "VERMILION");
}

TEST_F(SimpleComboView, FollowsTheRowsThatTheProgramAddsAndTakes) {
    dialog.SendDlgItemMessage(18, CB_ADDSTRING, 0, kv::AsParam("SABINE PASS"));
    EXPECT_EQ(Rows()->model()->rowCount(), 4);
    dialog.SendDlgItemMessage(18, CB_DELETESTRING, 0);
    EXPECT_EQ(Rows()->model()->index(0, 0).data().toString(), "VERMILION");
    dialog.SendDlgItemMessage(18, CB_RESETCONTENT);
    EXPECT_EQ(Rows()->model()->rowCount(), 0);
}

}  // namespace
