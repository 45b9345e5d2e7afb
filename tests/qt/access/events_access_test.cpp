#include <string>

#include "access_fixture.h"
#include "window/controls/edit.h"
#include "window/controls/spin_node.h"
#include "window/list_view/list_ctrl.h"

using enum kv::ControlKind;
using testing::Contains;
using testing::Not;

namespace {

std::vector<std::string> g_events;

std::string InWords(QAccessible::Event type) {
    switch (type) {
        case QAccessible::Focus:
            return "focus";
        case QAccessible::SelectionAdd:
            return "selected";
        case QAccessible::SelectionRemove:
            return "deselected";
        case QAccessible::ValueChanged:
            return "value";
        case QAccessible::StateChanged:
            return "state";
        case QAccessible::NameChanged:
            return "name";
        case QAccessible::DescriptionChanged:
            return "description";
        case QAccessible::TextInserted:
        case QAccessible::TextRemoved:
        case QAccessible::TextUpdated:
            return "text";
        case QAccessible::TextCaretMoved:
            return "caret";
        case QAccessible::TextSelectionChanged:
            return "text selected";
        default:
            return {};
    }
}

/// "focus Name": what happened to what.
void Record(QAccessibleEvent* event) {
    const std::string words = InWords(event->type());
    QAccessibleInterface* shown = words.empty() ? nullptr : event->accessibleInterface();
    if (!shown) return;
    const std::string name = ' ' + test::NameOf(shown).toStdString();
    g_events.push_back(words + name);
    const auto* change = dynamic_cast<QAccessibleStateChangeEvent*>(event);
    if (change && change->changedStates().checked) g_events.push_back("checked" + name);
}

/// On a display with a bus on which screen readers listen: elsewhere nothing is told.
class EventsAccess : public test::QtDialogTest {
protected:
    void SetUp() override {
        constexpr const char* kAlways = "QT_LINUX_ACCESSIBILITY_ALWAYS_ON";
        if (!qEnvironmentVariableIsSet(kAlways)) GTEST_SKIP() << "no screen reader listens here";
        // As the event loop of an application does.
        QAccessible::setRootObject(qApp);
        ASSERT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }));
        former_ = QAccessible::installUpdateHandler(Record);
        installed_ = true;
    }
    ~EventsAccess() override {
        if (installed_) QAccessible::installUpdateHandler(former_);
    }
    /// What was told since it was last asked.
    static std::vector<std::string> Events() {
        Process();
        return std::exchange(g_events, {});
    }
    QAccessibleInterface* Of(int id) { return test::Shown(NodeOf(id)); }

private:
    QAccessible::UpdateHandler former_ = nullptr;
    bool installed_ = false;
};

TEST_F(EventsAccess, ControlsThatAreMadeWhileAScreenReaderListensAreOurs) {
    Show({{12, kDropDown, "", {7, 7, 80, 12}}, {13, kDropList, "", {7, 30, 80, 12}}});
    EXPECT_EQ(Of(12)->childCount(), 2) << "its edit and its list";
    EXPECT_EQ(Of(13)->childCount(), 1);
}

TEST_F(EventsAccess, TheFocusIsTold) {
    Show({{20, kPushButton, "Go", {7, 7, 50, 14}}, {21, kPushButton, "Stop", {7, 30, 50, 14}}});
    Events();
    Key(Qt::Key_Tab);
    EXPECT_THAT(Events(), Contains("focus Stop"));
}

TEST_F(EventsAccess, TheRowThatTheKeyboardActsOnIsToldWhenItMovesAndWhenTheListGetsTheFocus) {
    Show({{20, kPushButton, "Go", {7, 7, 50, 14}}, {15, kMultiList, "", {7, 30, 80, 60}}});
    for (const char* text : {"a", "b", "c"})
        dialog.SendDlgItemMessage(15, LB_ADDSTRING, 0, kv::AsParam(text));
    Events();
    Key(Qt::Key_Tab);
    EXPECT_THAT(Events(), Contains("focus a"));
    Key(Qt::Key_Down);
    const auto moved = Events();
    EXPECT_THAT(moved, Contains("focus b"));
    EXPECT_THAT(moved, Contains("selected b"));
    EXPECT_THAT(moved, Not(Contains("checked b"))) << "it has no box to check";
    Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_THAT(Events(), Contains("deselected b"));
}

TEST_F(EventsAccess, RowsOfAListViewAreTold) {
    Show({{16, kListView, "", {7, 30, 150, 80}}});
    auto& list = dialog.Control<CListCtrl>(16);
    list.InsertColumn(0, "Area", LVCFMT_LEFT, 80);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    list.InsertItem(0, "BS");
    list.InsertItem(1, "EI");
    Events();
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    const auto moved = Events();
    EXPECT_THAT(moved, Contains("selected EI"));
    EXPECT_THAT(moved, Contains("focus EI"));
    Key(Qt::Key_Space);
    EXPECT_THAT(Events(), Contains("checked EI"));
}

TEST_F(EventsAccess, ACheckIsTold) {
    Show({{21, kCheckBox, "All", {7, 7, 50, 12}}});
    Events();
    Key(Qt::Key_Space);
    EXPECT_THAT(Events(), Contains("checked All"));
}

TEST_F(EventsAccess, TextCaretAndSelectionAreTold) {
    Show({{10, kLabel, "Name", {7, 7, 50, 8}}, {11, kEdit, "", {60, 7, 50, 12}}});
    Events();
    Type("ab");
    EXPECT_THAT(Events(), Contains("text Name"));
    Key(Qt::Key_Left);
    EXPECT_THAT(Events(), Contains("caret Name"));
    Key(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_THAT(Events(), Contains("text selected Name"));
    dialog.Control<CEdit>(11).SetReadOnly();
    EXPECT_THAT(Events(), Contains("state Name"));
}

TEST_F(EventsAccess, NoPasswordIsTold) {
    Show({{11, kEdit, "", {60, 7, 50, 12}, kv::kPassword}});
    static QString told;
    told.clear();
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::TextUpdated) {
            told += static_cast<QAccessibleTextUpdateEvent*>(event)->textInserted();
        } else if (event->type() == QAccessible::TextInserted) {
            told += static_cast<QAccessibleTextInsertEvent*>(event)->textInserted();
        }
    });
    Type("secret");
    Process();
    for (const QChar letter : QStringLiteral("secret"))
        EXPECT_FALSE(told.contains(letter)) << told.toStdString();
}

TEST_F(EventsAccess, ComboBoxesTellTheirTextAndThatTheyOpen) {
    Show({{10, kLabel, "Layer", {7, 7, 50, 8}}, {13, kDropList, "", {60, 7, 80, 12}}});
    for (const char* text : {"Wells", "Leases"})
        dialog.SendDlgItemMessage(13, CB_ADDSTRING, 0, kv::AsParam(text));
    Events();
    Key(Qt::Key_Down);
    EXPECT_THAT(Events(), Contains("value Layer"));
    Key(Qt::Key_F4);
    EXPECT_THAT(Events(), Contains("state Layer"));
    Key(Qt::Key_Down);
    const auto moved = Events();
    EXPECT_THAT(moved, Contains("value Layer"));
    EXPECT_THAT(moved, Contains("selected Leases"));
}

TEST_F(EventsAccess, ValuesNamesStatesAndToolTipsAreTold) {
    Show({{10, kLabel, "Scale", {7, 7, 50, 8}},
          {42, kSpin, "", {60, 7, 10, 14}},
          {20, kPushButton, "Go", {7, 30, 50, 14}}});
    Events();
    dialog.SendDlgItemMessage(42, UDM_SETRANGE32, 0, 10);
    dialog.SendDlgItemMessage(42, UDM_SETPOS32, 0, 5);
    EXPECT_THAT(Events(), Contains("value Scale"));
    dialog.SetDlgItemText(20, "Stop");
    EXPECT_THAT(Events(), Contains("name Stop"));
    NodeOf(20).SetToolTip("Stops it");
    EXPECT_THAT(Events(), Contains("description Stop"));
    dialog.GetDlgItem(20)->EnableWindow(FALSE);
    EXPECT_THAT(Events(), Contains("state Stop"));
}

}  // namespace
