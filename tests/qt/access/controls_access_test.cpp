#include <QApplication>
#include <QLabel>
#include <QTimer>

#include "access_fixture.h"
#include "window/controls/progress_node.h"
#include "window/controls/spin_node.h"
#include "window/list_view/list_ctrl.h"

using enum kv::ControlKind;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

kv::ControlRow At(int id, kv::ControlKind kind, int y, const char* text = "",
                  kv::RowStyle style = {}) {
    return {id, kind, text, {7, y, 100, 14}, style};
}

class ControlsAccess : public test::QtDialogTest {
protected:
    QAccessibleInterface* Of(int id) { return test::Shown(NodeOf(id)); }
    QAccessible::State State(int id) { return Of(id)->state(); }
    QString Name(int id) { return test::NameOf(Of(id)); }
    QString Value(int id) { return test::ValueOf(Of(id)); }
    void Do(QAccessibleInterface* shown, const QString& action) {
        ASSERT_TRUE(shown->actionInterface()->actionNames().contains(action));
        shown->actionInterface()->doAction(action);
        Process();
    }
};

TEST_F(ControlsAccess, ADialogHoldsItsControlsInTheOrderOfTab) {
    Show({At(10, kLabel, 7, "&Name:"), At(11, kEdit, 20), At(60, kGroupBox, 35, "Kind"),
          At(31, kRadio, 40, "One", kv::kFirstOfGroup), At(20, kPushButton, 60, "&Go")});
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(Window());
    EXPECT_EQ(window->role(), QAccessible::Dialog);
    EXPECT_EQ(test::NameOf(window), "Test");
    EXPECT_THAT(test::NamesOfChildren(window), ElementsAre("Name:", "Name", "Kind", "One", "Go"));
    for (int index = 0; index < window->childCount(); ++index) {
        EXPECT_EQ(window->indexOfChild(window->child(index)), index);
        EXPECT_EQ(window->child(index)->parent(), window);
    }
    EXPECT_EQ(window->parent(), QAccessible::queryAccessibleInterface(qApp));
}

TEST_F(ControlsAccess, WhatLiesAtAPlaceIsFoundWithinItsGroupBox) {
    Show({{60, kGroupBox, "Kind", {7, 7, 100, 60}},
          {31, kRadio, "One", {15, 20, 60, 10}, kv::kFirstOfGroup}});
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(Window());
    const QPoint radio = Of(31)->rect().center();
    EXPECT_EQ(window->childAt(radio.x(), radio.y()), Of(31));
    const QPoint box = Of(60)->rect().bottomRight() - QPoint(3, 3);
    EXPECT_EQ(window->childAt(box.x(), box.y()), Of(60));
    EXPECT_EQ(window->childAt(-50, -50), nullptr);
}

TEST_F(ControlsAccess, EachKindHasItsRole) {
    Show({At(10, kLabel, 7, "Label"), At(11, kEdit, 7), At(20, kPushButton, 7, "Go"),
          At(21, kCheckBox, 7, "All"), At(31, kRadio, 7, "One"), At(50, kOwnerDrawButton, 7),
          At(60, kGroupBox, 7, "Kind"), At(12, kDropDown, 7), At(13, kDropList, 7),
          At(14, kListBox, 7), At(15, kMultiList, 7), At(16, kListView, 7), At(42, kSpin, 7),
          At(46, kProgress, 7), At(47, kIcon, 7)});
    EXPECT_EQ(Of(10)->role(), QAccessible::StaticText);
    EXPECT_EQ(Of(11)->role(), QAccessible::EditableText);
    EXPECT_EQ(Of(20)->role(), QAccessible::Button);
    EXPECT_EQ(Of(21)->role(), QAccessible::CheckBox);
    EXPECT_EQ(Of(31)->role(), QAccessible::RadioButton);
    EXPECT_EQ(Of(50)->role(), QAccessible::Button);
    EXPECT_EQ(Of(60)->role(), QAccessible::Grouping);
    EXPECT_EQ(Of(12)->role(), QAccessible::ComboBox);
    EXPECT_EQ(Of(13)->role(), QAccessible::ComboBox);
    EXPECT_EQ(Of(14)->role(), QAccessible::List);
    EXPECT_EQ(Of(15)->role(), QAccessible::List);
    EXPECT_EQ(Of(16)->role(), QAccessible::Table);
    EXPECT_EQ(Of(42)->role(), QAccessible::SpinBox);
    EXPECT_EQ(Of(46)->role(), QAccessible::ProgressBar);
    EXPECT_EQ(Of(47)->role(), QAccessible::Graphic);
}

TEST_F(ControlsAccess, WhatTakesTheKeyboardSaysSoAndWhetherItHasIt) {
    Show({At(10, kLabel, 7, "Label"), At(11, kEdit, 20), At(20, kPushButton, 40, "Go")});
    EXPECT_FALSE(State(10).focusable);
    EXPECT_TRUE(State(11).focusable);
    EXPECT_TRUE(State(11).focused);
    EXPECT_FALSE(State(20).focused);
    Key(Qt::Key_Tab);
    EXPECT_FALSE(State(11).focused);
    EXPECT_TRUE(State(20).focused);
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(Window());
    EXPECT_EQ(window->focusChild(), Of(20));
    Do(Of(11), QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(test::FocusedId(), 11);
    EXPECT_TRUE(State(11).focused);
}

TEST_F(ControlsAccess, DisabledAndHiddenOnesSaySo) {
    Show({At(11, kEdit, 20), At(20, kPushButton, 40, "Go")});
    EXPECT_FALSE(State(20).disabled);
    EXPECT_FALSE(State(20).invisible);
    dialog.GetDlgItem(20)->EnableWindow(FALSE);
    EXPECT_TRUE(State(20).disabled);
    EXPECT_FALSE(State(20).focusable);
    dialog.GetDlgItem(20)->ShowWindow(SW_HIDE);
    EXPECT_TRUE(State(20).invisible);
}

TEST_F(ControlsAccess, ButtonsArePressedAndTellTheirKey) {
    Show({At(11, kEdit, 20), At(20, kPushButton, 40, "&Go"), At(1, kDefaultButton, 60, "OK")});
    Told();
    Do(Of(20), QAccessibleActionInterface::pressAction());
    EXPECT_THAT(Told(), Contains("20 clicked"));
    EXPECT_EQ(Of(20)->text(QAccessible::Accelerator), "Alt+G");
    EXPECT_THAT(
        Of(20)->actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
        ElementsAre("Alt+G"));
    EXPECT_EQ(Of(1)->text(QAccessible::Accelerator), "Alt+O") << "the letter it was given";
    Do(Of(11), QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(State(1).defaultButton);
    EXPECT_FALSE(State(20).defaultButton);
}

TEST_F(ControlsAccess, AFieldHasTheKeyOfTheLabelAheadOfIt) {
    Show({At(10, kLabel, 7, "&Name:"), At(11, kEdit, 20), At(12, kEdit, 40)});
    EXPECT_EQ(Of(11)->text(QAccessible::Accelerator), "Alt+N");
    EXPECT_EQ(Of(12)->text(QAccessible::Accelerator), "");
    EXPECT_EQ(Name(12), "Name");
}

TEST_F(ControlsAccess, ALabelAndItsFieldAreRelatedAsThoseOfThePlatformAre) {
    QWidget window;
    QLabel label("&Name:", &window);
    QLineEdit field(&window);
    label.setBuddy(&field);
    const auto related = [](QAccessibleInterface* one, const QAccessibleInterface* other) {
        for (const auto& [each, relation] : one->relations()) {
            if (each == other) return relation;
        }
        return QAccessible::Relation();
    };
    QAccessibleInterface* itsLabel = QAccessible::queryAccessibleInterface(&label);
    QAccessibleInterface* itsField = QAccessible::queryAccessibleInterface(&field);
    Show({At(10, kLabel, 7, "&Name:"), At(11, kEdit, 20), At(20, kPushButton, 40, "Go")});
    EXPECT_EQ(related(Of(11), Of(10)), related(itsField, itsLabel));
    EXPECT_EQ(related(Of(10), Of(11)), related(itsLabel, itsField));
    EXPECT_NE(related(Of(10), Of(11)), QAccessible::Relation());
    EXPECT_THAT(Of(20)->relations(), IsEmpty());
}

TEST_F(ControlsAccess, AFieldGoesByItsUnitAndACheckByTheTextBesideIt) {
    using test::Related;
    Show({{10, kLabel, "Maximum", {7, 7, 40, 12}},
          {11, kEdit, "", {50, 7, 30, 12}},
          {42, kSpin, "", {80, 7, 10, 12}},
          {12, kLabel, "Degrees", {92, 7, 40, 12}},
          {30, kCheckBox, "", {7, 30, 10, 12}},
          {20, kPushButton, "File...", {20, 30, 50, 14}}});
    EXPECT_THAT(Related(*Of(11), QAccessible::Label), ElementsAre(Of(10), Of(12)));
    EXPECT_THAT(Related(*Of(12), QAccessible::Labelled), ElementsAre(Of(11), Of(42)));
    EXPECT_THAT(Related(*Of(30), QAccessible::Label), ElementsAre(Of(20)));
    EXPECT_THAT(Related(*Of(20), QAccessible::Labelled), ElementsAre(Of(30)));
}

TEST_F(ControlsAccess, TheBoxesOfAnAngleGoByItsLabelAndTheLettersBehindThem) {
    Show({{10, kLabel, "Latitude:", {7, 7, 40, 8}},
          {11, kEdit, "", {50, 5, 30, 12}},
          {12, kLabel, "D", {82, 7, 7, 8}},
          {13, kEdit, "", {90, 5, 30, 12}},
          {14, kLabel, "M", {122, 7, 7, 8}},
          {15, kEdit, "", {130, 5, 30, 12}},
          {16, kLabel, "S", {162, 7, 7, 8}}});
    EXPECT_EQ(Of(11)->text(QAccessible::Name), "Latitude D");
    EXPECT_EQ(Of(13)->text(QAccessible::Name), "Latitude M");
    EXPECT_EQ(Of(15)->text(QAccessible::Name), "Latitude S");
}

TEST_F(ControlsAccess, TheEditOfAComboBoxGoesByTheLabelOfTheBox) {
    Show({At(10, kLabel, 7, "&Area:"), At(12, kDropDown, 20)});
    QAccessibleInterface* edit = test::ChildOfRole(Of(12), QAccessible::EditableText);
    ASSERT_NE(edit, nullptr);
    EXPECT_THAT(test::Related(*edit, QAccessible::Label), ElementsAre(Of(10)));
    EXPECT_THAT(test::Related(*Of(10), QAccessible::Labelled), ElementsAre(Of(12)));
}

TEST_F(ControlsAccess, AButtonThatOpensAModalWindowAnswersAtOnce) {
    Show({At(20, kPushButton, 40, "&Go")});
    bool opened = false;
    dialog.when["20 clicked"] = [&] {
        Then([&] {
            opened = true;
            QApplication::activeModalWidget()->close();
        });
        dialog.MessageBox("Gone", "Test");
    };
    Of(20)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(opened);
    Process();
    EXPECT_TRUE(opened);
}

TEST_F(ControlsAccess, ChecksAreToldAndToggled) {
    Show({At(21, kCheckBox, 7, "All"), At(31, kRadio, 24, "One", kv::kFirstOfGroup),
          At(32, kRadio, 41, "Two")});
    EXPECT_TRUE(State(21).checkable);
    EXPECT_FALSE(State(21).checked);
    Do(Of(21), QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(State(21).checked);
    dialog.CheckRadioButton(31, 32, 31);
    EXPECT_TRUE(State(31).checked);
    Do(Of(32), QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(State(31).checked);
    EXPECT_TRUE(State(32).checked);
}

TEST_F(ControlsAccess, AToolTipIsTheDescription) {
    Show({At(20, kPushButton, 40, "Go")});
    EXPECT_EQ(Of(20)->text(QAccessible::Description), "");
    NodeOf(20).SetToolTip("Goes on");
    EXPECT_EQ(Of(20)->text(QAccessible::Description), "Goes on");
}

TEST_F(ControlsAccess, SpinButtonsAndProgressBarsTellTheirValues) {
    Show({At(10, kLabel, 0, "Scale"),
          At(11, kEdit, 7, "5"),
          {42, kSpin, "", {107, 7, 10, 14}, {UDS_AUTOBUDDY | UDS_SETBUDDYINT, 0}},
          At(46, kProgress, 24)});
    dialog.SendDlgItemMessage(42, UDM_SETRANGE32, 0, 10);
    dialog.SendDlgItemMessage(42, UDM_SETPOS32, 0, 5);
    QAccessibleValueInterface* spin = Of(42)->valueInterface();
    ASSERT_NE(spin, nullptr);
    EXPECT_EQ(spin->currentValue(), 5);
    EXPECT_EQ(spin->minimumValue(), 0);
    EXPECT_EQ(spin->maximumValue(), 10);
    Do(Of(42), QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(spin->currentValue(), 6);
    Do(Of(42), QAccessibleActionInterface::decreaseAction());
    Do(Of(42), QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(Value(42), "4");
    spin->setCurrentValue(9);
    Process();
    EXPECT_EQ(Text(11), "9");

    dialog.SendDlgItemMessage(46, PBM_SETRANGE32, 10, 30);
    dialog.SendDlgItemMessage(46, PBM_SETPOS, 25);
    QAccessibleValueInterface* bar = Of(46)->valueInterface();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->currentValue(), 25);
    EXPECT_EQ(bar->minimumValue(), 10);
    EXPECT_EQ(bar->maximumValue(), 30);
    EXPECT_THAT(Of(46)->actionInterface()->actionNames(), IsEmpty());
}

TEST_F(ControlsAccess, AGoneDialogAnswersNothing) {
    Show({At(20, kPushButton, 40, "Go")});
    QAccessibleInterface* button = Of(20);
    EXPECT_TRUE(button->isValid());
    dialog.DestroyWindow();
    EXPECT_FALSE(button->isValid());
    EXPECT_TRUE(button->state().invalid);
    EXPECT_EQ(test::NameOf(button), "");
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    Process();
}

class EditAccess : public ControlsAccess {
protected:
    QAccessibleTextInterface* TextOf(int id) { return Of(id)->textInterface(); }
    std::pair<int, int> Selection(int id) {
        int start = 0;
        int end = 0;
        TextOf(id)->selection(0, &start, &end);
        return {start, end};
    }
};

TEST_F(EditAccess, TellsItsTextCaretAndSelection) {
    Show({At(10, kLabel, 0, "Name"), At(11, kEdit, 7, "caf\xC3\xA9 noir")});
    QAccessibleTextInterface* text = TextOf(11);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 9);
    EXPECT_EQ(text->text(3, 6), QString::fromUtf8("\xC3\xA9 n"));
    EXPECT_EQ(Value(11), QString::fromUtf8("caf\xC3\xA9 noir"));
    EXPECT_EQ(Selection(11), std::pair(0, 9)) << "entered as by Tab";
    Key(Qt::Key_End);
    EXPECT_EQ(text->cursorPosition(), 9);
    EXPECT_EQ(text->selectionCount(), 0);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Selection(11), std::pair(8, 9));
    text->setSelection(0, 1, 4);
    Process();
    EXPECT_EQ(Selection(11), std::pair(1, 4));
    text->setCursorPosition(5);
    Process();
    EXPECT_EQ(text->cursorPosition(), 5);
    EXPECT_EQ(text->selectionCount(), 0);
}

TEST_F(EditAccess, ATextThatAScreenReaderTypesArrives) {
    Show({At(11, kEdit, 7, "one two")});
    Told();
    Of(11)->editableTextInterface()->replaceText(4, 7, "three");
    Process();
    EXPECT_EQ(Text(11), "one three");
    EXPECT_THAT(Told(), Contains("11 changed"));
    Of(11)->editableTextInterface()->insertText(0, ">");
    Process();
    Of(11)->editableTextInterface()->deleteText(1, 5);
    Process();
    EXPECT_EQ(Text(11), ">three");
    Of(11)->setText(QAccessible::Value, "all");
    Process();
    EXPECT_EQ(Text(11), "all");
}

TEST_F(EditAccess, AReadOnlyOneSaysSoAndStays) {
    Show({At(11, kEdit, 7, "fixed", kv::kReadOnly), At(12, kEdit, 24, "free")});
    EXPECT_TRUE(State(11).readOnly);
    EXPECT_FALSE(State(11).editable);
    EXPECT_FALSE(State(12).readOnly);
    EXPECT_TRUE(State(12).editable);
    Of(11)->setText(QAccessible::Value, "other");
    Process();
    EXPECT_EQ(Text(11), "fixed");
}

TEST_F(EditAccess, OfAPasswordOnlyTheLengthIsTold) {
    Show({At(11, kEdit, 7, "secret", kv::kPassword)});
    EXPECT_TRUE(State(11).passwordEdit);
    const QString told = TextOf(11)->text(0, 6) + Value(11);
    EXPECT_EQ(told.size(), 12);
    for (const QChar letter : QStringLiteral("secret"))
        EXPECT_FALSE(told.contains(letter));
}

TEST_F(EditAccess, PlacesOfCharactersAreThoseOnTheScreen) {
    Show({At(11, kEdit, 7, "one two"), {12, kEdit, "a\r\nbc", {7, 30, 100, 40}, kv::kMultiLine}});
    for (const int id : {11, 12}) {
        QAccessibleTextInterface* text = TextOf(id);
        for (int offset = 0; offset + 1 < text->characterCount(); ++offset) {
            const QRect place = text->characterRect(offset);
            if (place.isEmpty()) continue;  // the end of a line
            EXPECT_TRUE(Of(id)->rect().contains(place.center())) << id << ' ' << offset;
            const QPoint left(place.left() + 1, place.center().y());
            EXPECT_EQ(text->offsetAtPoint(left), offset) << id;
        }
    }
    EXPECT_TRUE(State(12).multiLine);
    EXPECT_EQ(TextOf(12)->text(0, 4), "a\nbc");
    EXPECT_EQ(TextOf(11)->offsetAtPoint({-100, -100}), -1);
}

class ComboAccess : public ControlsAccess {
protected:
    void Fill(int id, std::initializer_list<const char*> rows) {
        for (const char* row : rows)
            dialog.SendDlgItemMessage(id, CB_ADDSTRING, 0, kv::AsParam(row));
    }
    QAccessibleInterface* List(int id) { return test::ChildOfRole(Of(id), QAccessible::List); }
};

TEST_F(ComboAccess, TellsItsTextItsRowsAndWhichIsTheCurrentOne) {
    Show({At(10, kLabel, 0, "Layer"), At(13, kDropList, 7)});
    Fill(13, {"Wells", "Leases"});
    dialog.SendDlgItemMessage(13, CB_SETCURSEL, 1);
    EXPECT_EQ(Name(13), "Layer");
    EXPECT_EQ(Value(13), "Leases");
    ASSERT_NE(List(13), nullptr);
    EXPECT_EQ(test::NameOf(List(13)), "Layer");
    EXPECT_THAT(test::NamesOfChildren(List(13)), ElementsAre("Wells", "Leases"));
    EXPECT_FALSE(List(13)->child(0)->state().selected);
    EXPECT_TRUE(List(13)->child(1)->state().selected);
    EXPECT_TRUE(List(13)->state().invisible);
    EXPECT_TRUE(State(13).collapsed);
    EXPECT_EQ(List(13)->parent(), Of(13));
    EXPECT_EQ(Of(13)->childCount(), 1);
}

TEST_F(ComboAccess, OpensAndPicks) {
    Show({At(13, kDropList, 7), At(20, kPushButton, 40, "Go")});
    Fill(13, {"Wells", "Leases"});
    EXPECT_TRUE(State(13).focused);
    Do(Of(13), QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(State(13).expanded);
    EXPECT_FALSE(List(13)->state().invisible);
    const QPoint second = List(13)->child(1)->rect().center();
    EXPECT_TRUE(List(13)->rect().contains(second));
    EXPECT_EQ(List(13)->childAt(second.x(), second.y()), List(13)->child(1));
    Do(List(13)->child(1), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Text(13), "Leases");
    EXPECT_TRUE(State(13).collapsed);
    EXPECT_EQ(List(13)->childAt(second.x(), second.y()), nullptr) << "it is closed";
}

TEST_F(ComboAccess, OfAnEditableOneTheEditHasTheKeyboard) {
    Show({At(10, kLabel, 0, "Area"), At(12, kDropDown, 7)});
    QAccessibleInterface* edit = test::ChildOfRole(Of(12), QAccessible::EditableText);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(test::NameOf(edit), "Area");
    EXPECT_EQ(edit->parent(), Of(12));
    EXPECT_TRUE(edit->state().focused);
    Type("VR");
    EXPECT_EQ(test::ValueOf(edit), "VR");
    EXPECT_EQ(Value(12), "VR");
}

class ListAccess : public ControlsAccess {
protected:
    void Fill(int id, std::initializer_list<const char*> rows) {
        for (const char* row : rows)
            dialog.SendDlgItemMessage(id, LB_ADDSTRING, 0, kv::AsParam(row));
    }
    QAccessibleTableInterface* Table(int id) { return Of(id)->tableInterface(); }
};

TEST_F(ListAccess, RowsSayWhetherTheyAreSelected) {
    Show({At(10, kLabel, 0, "Areas"), {15, kMultiList, "", {7, 10, 100, 60}}});
    Fill(15, {"Breton Sound", "Eugene Island", "Green Canyon"});
    EXPECT_EQ(Name(15), "Areas");
    EXPECT_THAT(test::NamesOfChildren(Of(15)),
                ElementsAre("Breton Sound", "Eugene Island", "Green Canyon"));
    EXPECT_TRUE(State(15).multiSelectable);
    Key(Qt::Key_Space);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(Table(15)->selectedRows(), ElementsAre(0, 1));
    EXPECT_EQ(Table(15)->selectedRowCount(), 2);
    EXPECT_EQ(Table(15)->selectedCellCount(), 2);
    EXPECT_TRUE(Of(15)->child(0)->state().selected);
    EXPECT_TRUE(Of(15)->child(1)->state().selected);
    EXPECT_FALSE(Of(15)->child(2)->state().selected);
    EXPECT_TRUE(Of(15)->child(1)->state().focused) << "the row that the keyboard acts on";
    EXPECT_FALSE(Of(15)->child(0)->state().focused);
    EXPECT_EQ(Of(15)->focusChild(), Of(15)->child(1));
    EXPECT_EQ(Of(15)->child(1)->role(), QAccessible::ListItem);
    EXPECT_EQ(Of(15)->child(3), nullptr);
}

TEST_F(ListAccess, AScreenReaderSelectsRows) {
    Show({{15, kMultiList, "", {7, 10, 100, 60}}, {14, kListBox, "", {120, 10, 100, 60}}});
    for (const int id : {15, 14})
        Fill(id, {"a", "b", "c"});
    EXPECT_TRUE(Table(15)->selectRow(0));
    EXPECT_TRUE(Table(15)->selectRow(2));
    EXPECT_FALSE(Table(15)->selectRow(3));
    Process();
    EXPECT_THAT(Table(15)->selectedRows(), ElementsAre(0, 2));
    EXPECT_TRUE(Table(15)->unselectRow(0));
    EXPECT_FALSE(Table(15)->unselectRow(1));
    Process();
    EXPECT_THAT(Table(15)->selectedRows(), ElementsAre(2));
    Do(Of(14)->child(1), QAccessibleActionInterface::pressAction());
    Do(Of(14)->child(2), QAccessibleActionInterface::pressAction());
    EXPECT_THAT(Table(14)->selectedRows(), ElementsAre(2));
    EXPECT_FALSE(Table(14)->unselectRow(2));
}

TEST_F(ListAccess, OnlyTheRowsThatAreAskedForAreMadeAndTheyComeAndGo) {
    Show({{14, kListBox, "", {7, 10, 100, 60}}});
    for (int row = 0; row < 100'000; ++row) {
        dialog.SendDlgItemMessage(14, LB_ADDSTRING, 0,
                                  kv::AsParam(("row " + std::to_string(row)).c_str()));
    }
    Process();
    EXPECT_EQ(Of(14)->childCount(), 100'000);
    QAccessibleInterface* row = Of(14)->child(99'999);
    EXPECT_EQ(test::NameOf(row), "row 99999");
    EXPECT_EQ(Of(14)->indexOfChild(row), 99'999);
    EXPECT_TRUE(row->state().offscreen);
    EXPECT_FALSE(Of(14)->child(0)->state().offscreen);
    dialog.SendDlgItemMessage(14, LB_DELETESTRING, 0);
    EXPECT_FALSE(row->isValid());
    EXPECT_TRUE(row->state().invalid);
    EXPECT_EQ(test::NameOf(Of(14)->child(0)), "row 1");
    dialog.SendDlgItemMessage(14, LB_RESETCONTENT);
    EXPECT_EQ(Of(14)->childCount(), 0);
}

class ListViewAccess : public ControlsAccess {
protected:
    void ShowList(DWORD extended = 0) {
        Show(
            {At(10, kLabel, 0, "Other"), At(11, kEdit, 10), {16, kListView, "", {7, 30, 150, 80}}});
        List().InsertColumn(0, "Area", LVCFMT_LEFT, 80);
        List().InsertColumn(1, "Block", LVCFMT_LEFT, 50);
        List().SetExtendedStyle(extended);
        for (int row = 0; row < 3; ++row) {
            List().InsertItem(row, std::vector{"BS", "EI", "GC"}[static_cast<std::size_t>(row)]);
            List().SetItemText(row, 1, std::to_string(row + 7).c_str());
        }
        Process();
    }
    CListCtrl& List() { return dialog.Control<CListCtrl>(16); }
    QAccessibleTableInterface* Table() { return Of(16)->tableInterface(); }
};

TEST_F(ListViewAccess, IsATableWithHeadings) {
    ShowList();
    EXPECT_EQ(Name(16), "Area, Block") << "the label is another control's";
    EXPECT_EQ(Table()->rowCount(), 3);
    EXPECT_EQ(Table()->columnCount(), 2);
    EXPECT_THAT(test::NamesOfChildren(Of(16)),
                ElementsAre("Area", "Block", "BS", "7", "EI", "8", "GC", "9"));
    EXPECT_EQ(Table()->columnDescription(1), "Block");
    QAccessibleInterface* cell = Table()->cellAt(1, 1);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 1);
    ASSERT_EQ(cell->tableCellInterface()->columnHeaderCells().size(), 1);
    EXPECT_EQ(test::NameOf(cell->tableCellInterface()->columnHeaderCells().first()), "Block");
    EXPECT_EQ(cell->tableCellInterface()->table(), Of(16));
    EXPECT_EQ(Of(16)->indexOfChild(cell), 5);
    EXPECT_EQ(Of(16)->child(0)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(Table()->cellAt(3, 0), nullptr);
    EXPECT_EQ(Table()->cellAt(0, 2), nullptr);
    EXPECT_EQ(Table()->columnDescription(2), "");
}

TEST_F(ListViewAccess, CellsTakeTheKeyboardWhereTheListDoesAndLieNowhereOnceTheyAreGone) {
    ShowList();
    QAccessibleInterface* last = Table()->cellAt(2, 0);
    EXPECT_TRUE(last->state().focusable);
    List().EnableWindow(FALSE);
    EXPECT_FALSE(last->state().focusable);
    EXPECT_FALSE(last->rect().isEmpty());
    List().DeleteItem(2);
    EXPECT_EQ(last->rect(), QRect());
}

TEST_F(ListViewAccess, GoesByALabelDirectlyAheadOfItRatherThanByItsHeadings) {
    Show({At(10, kLabel, 7, "Wells"), {16, kListView, "", {7, 30, 150, 80}}});
    List().InsertColumn(0, "Area", LVCFMT_LEFT, 80);
    Process();
    EXPECT_EQ(Name(16), "Wells");
}

TEST_F(ListViewAccess, GoesByItsHeadingsAsTheFirstOfItsDialog) {
    Show({{16, kListView, "", {7, 30, 150, 80}}});
    List().InsertColumn(0, "Area", LVCFMT_LEFT, 80);
    Process();
    EXPECT_EQ(Name(16), "Area");
}

TEST_F(ListViewAccess, CellsLieWhereTheyAreSeen) {
    ShowList(LVS_EX_FULLROWSELECT);
    for (int index = 0; index < Of(16)->childCount(); ++index) {
        const QPoint at = Of(16)->child(index)->rect().center();
        EXPECT_TRUE(Of(16)->rect().contains(at)) << index;
        EXPECT_EQ(Of(16)->childAt(at.x(), at.y()), Of(16)->child(index)) << index;
    }
}

TEST_F(ListViewAccess, SelectedAndCheckedRowsSaySo) {
    ShowList(LVS_EX_CHECKBOXES);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_THAT(Table()->selectedRows(), ElementsAre(1));
    EXPECT_TRUE(Table()->cellAt(1, 0)->state().selected);
    EXPECT_TRUE(Table()->cellAt(1, 0)->state().focused);
    EXPECT_TRUE(Table()->cellAt(1, 1)->state().selected);
    EXPECT_FALSE(Table()->cellAt(2, 0)->state().selected);
    EXPECT_TRUE(Table()->cellAt(0, 0)->state().checkable);
    EXPECT_FALSE(Table()->cellAt(0, 1)->state().checkable);
    Do(Table()->cellAt(2, 0), QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(Table()->cellAt(2, 0)->state().checked);
    EXPECT_FALSE(Table()->cellAt(0, 0)->state().checked);
    EXPECT_TRUE(List().GetCheck(2));
}

}  // namespace
