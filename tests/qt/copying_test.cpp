#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTreeView>
#include <QWindow>

#include "qt_fixture.h"
#include "window/list_view/list_ctrl.h"

using enum kv::ControlKind;

namespace {

/// Whatever is shown can be copied.
class Copying : public test::QtDialogTest {
protected:
    void SetUp() override {
        Show({{10, kLabel, "Latitude: 28.504236", {7, 7, 100, 8}},
              {11, kEdit, "28.504236", {7, 20, 100, 12}, kv::kReadOnly},
              {12, kEdit, "secret", {7, 37, 100, 12}, kv::kPassword},
              {31, kListBox, "", {7, 54, 80, 50}},
              {35, kListView, "", {94, 54, 150, 50}}});
        for (const char* text : {"alpha", "beta"})
            dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam(text));
        auto& list = dialog.Control<CListCtrl>(35);
        list.InsertColumn(0, "Lease", LVCFMT_LEFT, 60);
        list.InsertColumn(1, "Block", LVCFMT_LEFT, 60);
        for (const char* text : {"G1", "G2"}) {
            const int row = list.InsertItem(9, text);
            list.SetItemText(row, 1, "391");
        }
        QGuiApplication::clipboard()->setText("before");
        Process();
    }
    static std::string Clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }
    /// Opens the menu at a widget and picks its command of that name; false where it is greyed.
    static bool Pick(QWidget* widget, const QString& words) {
        const QPoint at(3, 3);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
        QApplication::sendEvent(widget, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        EXPECT_NE(menu, nullptr);
        if (!menu) return false;
        bool picked = false;
        for (QAction* action : menu->actions()) {
            if (action->text() != words || !action->isEnabled()) continue;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            picked = true;
        }
        if (!picked) menu->close();
        Process();
        return picked;
    }
    /// The current row of the list box.
    std::string Text31() {
        const QModelIndex row = WidgetOf<QAbstractItemView>(31)->currentIndex();
        return row.data().toString().toStdString();
    }
    template <typename View>
    QWidget* ViewportOf(int id) {
        return WidgetOf<View>(id)->viewport();
    }
    void ClickFirstRow(int id) {
        auto* view = WidgetOf<QAbstractItemView>(id);
        const QRect place = view->visualRect(view->model()->index(0, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
    }
};

TEST_F(Copying, AReadOnlyEditsTextByKeysAndByItsMenu) {
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "28.504236");
    QGuiApplication::clipboard()->setText("pasted");
    EXPECT_FALSE(Pick(WidgetOf(11), "Cu&t"));
    EXPECT_FALSE(Pick(WidgetOf(11), "&Paste"));
    EXPECT_TRUE(Pick(WidgetOf(11), "&Copy"));
    EXPECT_EQ(Clipboard(), "28.504236");
    EXPECT_EQ(Text(11), "28.504236");
}

TEST_F(Copying, ByCtrlInsert) {
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "28.504236");
}

TEST_F(Copying, APasswordIsNot) {
    Key(Qt::Key_Tab);
    ASSERT_EQ(test::FocusedId(), 12);
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "before");
    EXPECT_FALSE(Pick(WidgetOf(12), "&Copy"));
    EXPECT_FALSE(Pick(WidgetOf(12), "Cu&t"));
}

TEST_F(Copying, ALabelsTextByItsMenu) {
    EXPECT_TRUE(Pick(WidgetOf(10), "&Copy"));
    EXPECT_EQ(Clipboard(), "Latitude: 28.504236");
}

TEST_F(Copying, AListBoxsRowsByItsMenu) {
    EXPECT_FALSE(Pick(ViewportOf<QAbstractItemView>(31), "&Copy")) << "nothing is selected";
    ClickFirstRow(31);
    EXPECT_TRUE(Pick(ViewportOf<QAbstractItemView>(31), "&Copy"));
    EXPECT_EQ(Clipboard(), "alpha");
}

TEST_F(Copying, AListViewsRowsByItsMenu) {
    ClickFirstRow(35);
    EXPECT_TRUE(Pick(ViewportOf<QTreeView>(35), "&Copy"));
    EXPECT_EQ(Clipboard(), "G1\t391");
}

TEST_F(Copying, TheMenuKeyOpensTheMenu) {
    dialog.GetDlgItem(31)->SetFocus();
    Key(Qt::Key_Down);
    // As the platform tells of that key.
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(Window()->windowHandle(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(Clipboard(), Text31());
    EXPECT_EQ(test::FocusedId(), 31);
}

TEST_F(Copying, WhatIsNotSelectedLeavesTheClipboard) {
    dialog.GetDlgItem(31)->SetFocus();
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "before");
}

}  // namespace
