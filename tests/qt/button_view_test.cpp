#include <QAbstractButton>
#include <QProxyStyle>
#include <QStyleFactory>
#include <map>

#include "qt_fixture.h"
#include "window/controls/button_node.h"

using enum kv::ControlKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

kv::ControlRow At(int id, kv::ControlKind kind, int y, const char* text = "",
                  kv::RowStyle style = {}) {
    return {id, kind, text, {7, y, 100, 14}, style};
}

class ButtonView : public test::QtDialogTest {
protected:
    QAbstractButton* Button(int id) { return WidgetOf<QAbstractButton>(id); }
    kv::ButtonNode& Node(int id) { return static_cast<kv::ButtonNode&>(NodeOf(id)); }
};

TEST_F(ButtonView, AClickFocusesAndThenPressesOnce) {
    Show({At(11, kEdit, 7), At(20, kPushButton, 24, "Go")});
    Told();
    Click(20);
    EXPECT_THAT(Told(), ElementsAre("11 lost", "20 clicked"));
    EXPECT_EQ(test::FocusedId(), 20);
    EXPECT_EQ(Window()->focusWidget(), Button(20));
}

TEST_F(ButtonView, IsDownAsLongAsItIsHeld) {
    Show({At(20, kPushButton, 24, "Go")});
    Told();
    QTest::mousePress(Button(20), Qt::LeftButton);
    EXPECT_TRUE(Node(20).Pushed());
    EXPECT_TRUE(Button(20)->isDown());
    EXPECT_THAT(Told(), IsEmpty());
    const QPoint outside(-5, -5);
    QMouseEvent leave(QEvent::MouseMove, outside, Button(20)->mapToGlobal(outside), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Button(20), &leave);
    EXPECT_FALSE(Button(20)->isDown());
    QTest::mouseRelease(Button(20), Qt::LeftButton, {}, outside);
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(ButtonView, TheFirstOneShowsTheFocusAsSoonAsTheWindowIsInFront) {
    for (const kv::ControlKind kind : {kCheckBox, kRadio}) {
        Show({At(20, kind, 7, "Go", kv::kFirstOfGroup), At(21, kind, 24, "Go")});
        EXPECT_EQ(test::FocusedId(), 20);
        EXPECT_NE(Button(20)->grab().toImage(), Button(21)->grab().toImage());
        dialog.DestroyWindow();
    }
}

TEST_F(ButtonView, AFocusedOneIsMarkedAlsoWhereAHostHasWrappedTheStyle) {
    Show({At(20, kPushButton, 7, "Go"), At(21, kPushButton, 24, "Go")});
    const QImage marked = Button(20)->grab().toImage();
    ASSERT_NE(marked, Button(21)->grab().toImage());
    QProxyStyle hosts(new QProxyStyle(QStyleFactory::create(QApplication::style()->name())));
    Button(20)->setStyle(&hosts);
    EXPECT_EQ(Button(20)->grab().toImage(), marked);
    Button(20)->setStyle(nullptr);
}

TEST_F(ButtonView, SpaceAndItsMnemonicPress) {
    Show({At(20, kPushButton, 24, "&Go"), At(11, kEdit, 7)});
    Told();
    Key(Qt::Key_Space);
    EXPECT_THAT(Told(), ElementsAre("20 clicked"));
    Key(Qt::Key_Tab);
    Told();
    Key(Qt::Key_G, Qt::AltModifier);
    EXPECT_THAT(Told(), ElementsAre("20 clicked"));
    EXPECT_EQ(test::FocusedId(), 11);
}

TEST_F(ButtonView, EnterPressesTheDefaultOne) {
    Show({At(11, kEdit, 7), At(20, kPushButton, 24, "Go"), At(IDOK, kDefaultButton, 41, "OK")});
    int oks = 0;
    dialog.when["1 clicked"] = [&] { ++oks; };
    Key(Qt::Key_Return);
    EXPECT_EQ(oks, 1);
}

TEST_F(ButtonView, ACheckBoxTogglesInTheNodeAndShows) {
    Show({At(21, kCheckBox, 7, "&All")});
    Told();
    Click(21);
    EXPECT_EQ(Node(21).CheckState(), BST_CHECKED);
    EXPECT_TRUE(Button(21)->isChecked());
    EXPECT_THAT(Told(), ElementsAre("21 clicked"));
    Key(Qt::Key_Space);
    EXPECT_FALSE(Button(21)->isChecked());
    dialog.CheckDlgButton(21, BST_CHECKED);
    EXPECT_TRUE(Button(21)->isChecked());
}

TEST_F(ButtonView, ACheckThatTheHandlerTakesBackDoesNotShow) {
    Show({At(21, kCheckBox, 7, "All")});
    dialog.when["21 clicked"] = [&] { dialog.CheckDlgButton(21, BST_UNCHECKED); };
    Click(21);
    EXPECT_FALSE(Button(21)->isChecked());
}

TEST_F(ButtonView, RadioButtonsGoRoundByArrowsAndClicks) {
    Show({At(31, kRadio, 7, "Names", kv::kFirstOfGroup), At(32, kRadio, 24, "Codes"),
          At(33, kRadio, 41, "MMS"), At(20, kPushButton, 58, "Go", kv::kFirstOfGroup)});
    dialog.CheckRadioButton(31, 33, 31);
    EXPECT_TRUE(Button(31)->isChecked());
    Told();
    Click(33);
    EXPECT_TRUE(Button(33)->isChecked());
    EXPECT_FALSE(Button(31)->isChecked());
    EXPECT_THAT(Told(), ElementsAre("33 clicked"));
    Key(Qt::Key_Down);
    EXPECT_TRUE(Button(31)->isChecked());
    EXPECT_FALSE(Button(33)->isChecked());
    EXPECT_THAT(Told(), ElementsAre("31 clicked"));
    EXPECT_EQ(Window()->focusWidget(), Button(31));
}

TEST_F(ButtonView, TextsKeepTheirAmpersandsApart) {
    Show({At(20, kPushButton, 24, "Save && &Exit"), At(22, kLabel, 41, "Lat && &Lon")});
    EXPECT_EQ(Button(20)->text(), "Save && Exit");
    EXPECT_EQ(test::NameOf(Button(20)), "Save & Exit");
    EXPECT_EQ(test::NameOf(WidgetOf(22)), "Lat & Lon");
    dialog.SetDlgItemText(20, "&Quit");
    EXPECT_EQ(Button(20)->text(), "Quit");
}

TEST_F(ButtonView, DisabledAndHiddenShow) {
    Show({At(20, kPushButton, 24, "Go"), At(21, kPushButton, 41, "Stop")});
    dialog.GetDlgItem(20)->EnableWindow(FALSE);
    EXPECT_FALSE(Button(20)->isEnabled());
    Told();
    Click(20);
    EXPECT_THAT(Told(), IsEmpty());
    dialog.GetDlgItem(21)->ShowWindow(SW_HIDE);
    EXPECT_FALSE(Button(21)->isVisible());
    dialog.GetDlgItem(21)->ShowWindow(SW_SHOW);
    EXPECT_TRUE(Button(21)->isVisible());
}

TEST_F(ButtonView, ToolsThatPressTheWidgetPressTheNode) {
    Show({At(20, kPushButton, 24, "Go"), At(21, kCheckBox, 41, "All")});
    Told();
    Button(20)->click();
    Button(21)->click();
    EXPECT_THAT(Told(), ElementsAre("20 clicked", "21 clicked"));
    EXPECT_TRUE(Button(21)->isChecked());
    EXPECT_EQ(Node(21).CheckState(), BST_CHECKED);
}

TEST_F(ButtonView, TheLettersThatTheLayerGivesAreUnderlinedWhileAltIsHeld) {
    Show({At(10, kLabel, 7, "Find:"), At(11, kEdit, 24), At(20, kPushButton, 41, "Search"),
          At(21, kCheckBox, 58, "Show")});
    const auto picture = [&](int id) { return WidgetOf(id)->grab().toImage(); };
    const std::vector<int> all{10, 20, 21};
    std::map<int, QImage> plain;
    for (const int id : all)
        plain[id] = picture(id);
    QTest::keyPress(Window()->focusWidget(), Qt::Key_Alt);
    EXPECT_NE(picture(10), plain[10]);
    EXPECT_NE(picture(20), plain[20]);
    EXPECT_EQ(picture(21), plain[21]) << "a check box has none";
    QTest::keyClick(Window()->focusWidget(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(dialog.WasTold("20 clicked"));
    QTest::keyRelease(Window()->focusWidget(), Qt::Key_Alt);
    for (const int id : all)
        EXPECT_EQ(picture(id), plain[id]) << id;
}

TEST_F(ButtonView, AltThatIsReleasedInAnotherWindowIsHeldNoMore) {
    Show({At(11, kEdit, 7), At(20, kPushButton, 24, "Search")});
    const QImage plain = Button(20)->grab().toImage();
    QTest::keyPress(Window()->focusWidget(), Qt::Key_Alt);
    QEvent leave(QEvent::WindowDeactivate);
    QApplication::sendEvent(Window(), &leave);
    EXPECT_EQ(Button(20)->grab().toImage(), plain);
}

TEST_F(ButtonView, ACheckBoxWithoutATextGoesByItsToolTip) {
    Show({{21, kCheckBox, "", {7, 24, 10, 10}, {}, "Take the list from a file"},
          {20, kPushButton, "&File...", {20, 22, 50, 14}}});
    EXPECT_EQ(test::NameOf(Button(21)), "Take the list from a file");
    EXPECT_EQ(Button(21)->toolTip(), "Take the list from a file");
    EXPECT_EQ(Button(20)->toolTip(), "");
}

TEST_F(ButtonView, WithoutATextGoesByWhatStandsBesideIt) {
    Show({{10, kLabel, "Selected", {7, 7, 60, 8}},
          {21, kCheckBox, "", {7, 24, 10, 10}},
          {20, kPushButton, "&File...", {20, 22, 50, 14}},
          {50, kOwnerDrawButton, "", {7, 50, 20, 14}}});
    EXPECT_EQ(test::NameOf(Button(21)), "File...");
    EXPECT_EQ(test::NameOf(Button(50)), "Selected") << "there is none beside it";
    dialog.SetDlgItemText(20, "&List...");
    EXPECT_EQ(test::NameOf(Button(21)), "List...");
}

}  // namespace
