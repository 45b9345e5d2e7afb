#include <QAbstractItemView>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>

#include "qt_fixture.h"
#include "window/list_box.h"
#include "window/list_box_node.h"
#include "window/list_ctrl.h"
#include "window/list_view_node.h"

using enum kv::ControlKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ListWidgets : public test::QtDialogTest {
protected:
    QAbstractItemView* View(int id) { return WidgetOf<QAbstractItemView>(id); }

    void ClickRow(int id, int row, Qt::KeyboardModifiers keys = {}, int column = 0) {
        const QRect place = View(id)->visualRect(View(id)->model()->index(row, column));
        QTest::mouseClick(View(id)->viewport(), Qt::LeftButton, keys,
                          QPoint(place.left() + place.width() / 2, place.center().y()));
    }
    std::string Shown(int id, int row, int column = 0) {
        return View(id)->model()->index(row, column).data().toString().toStdString();
    }
    kv::ListBoxNode& Box(int id) { return static_cast<kv::ListBoxNode&>(NodeOf(id)); }

    void ShowBoxes() {
        Show({{31, kListBox, "", {7, 7, 80, 80}}, {32, kMultiList, "", {94, 7, 80, 80}}});
        for (const char* text : {"alpha", "beta", "gamma", "delta"}) {
            dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam(text));
            dialog.SendDlgItemMessage(32, LB_ADDSTRING, 0, kv::AsParam(text));
        }
        Process();
        Told();
    }
};

TEST_F(ListWidgets, ShowRowsAndFollowWhatTheProgramDoes) {
    ShowBoxes();
    EXPECT_EQ(View(31)->model()->rowCount(), 4);
    EXPECT_EQ(Shown(31, 2), "gamma");
    dialog.SendDlgItemMessage(31, LB_INSERTSTRING, 1, kv::AsParam("between"));
    EXPECT_EQ(Shown(31, 1), "between");
    dialog.SendDlgItemMessage(31, LB_DELETESTRING, 0);
    EXPECT_EQ(Shown(31, 0), "between");
    EXPECT_EQ(View(31)->model()->rowCount(), 4);
    dialog.SendDlgItemMessage(31, LB_RESETCONTENT);
    EXPECT_EQ(View(31)->model()->rowCount(), 0);
}

TEST_F(ListWidgets, AClickSelectsOnceAndTakesTheFocus) {
    ShowBoxes();
    ClickRow(31, 2);
    EXPECT_EQ(Box(31).CurrentRow(), 2);
    EXPECT_THAT(Told(), ElementsAre("31 sent 1"));
    ClickRow(32, 1);
    // A list's focus-gained has the number of a combo box's focus-lost.
    EXPECT_THAT(Told(), ElementsAre("31 sent 5", "32 lost", "32 sent 1"));
    EXPECT_EQ(Window()->focusWidget(), View(32));
}

TEST_F(ListWidgets, ShiftAndCtrlSelectAsUsersKnowIt) {
    ShowBoxes();
    ClickRow(32, 0);
    ClickRow(32, 2, Qt::ShiftModifier);
    EXPECT_THAT(Box(32).SelectedRows(), ElementsAre(0, 1, 2));
    ClickRow(32, 1, Qt::ControlModifier);
    EXPECT_THAT(Box(32).SelectedRows(), ElementsAre(0, 2));
    Key(Qt::Key_End);
    EXPECT_THAT(Box(32).SelectedRows(), ElementsAre(3));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_THAT(Box(32).SelectedRows(), ElementsAre(2, 3));
}

TEST_F(ListWidgets, DraggingSelectsARange) {
    ShowBoxes();
    QWidget* viewport = View(32)->viewport();
    const auto center = [&](int row) {
        return View(32)->visualRect(View(32)->model()->index(row, 0)).center();
    };
    QTest::mousePress(viewport, Qt::LeftButton, {}, center(0));
    QMouseEvent move(QEvent::MouseMove, center(2), viewport->mapToGlobal(center(2)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, center(2));
    EXPECT_THAT(Box(32).SelectedRows(), ElementsAre(0, 1, 2));
}

TEST_F(ListWidgets, ADoubleClickIsToldOnce) {
    ShowBoxes();
    const QPoint at = View(31)->visualRect(View(31)->model()->index(1, 0)).center();
    QTest::mouseClick(View(31)->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(View(31)->viewport(), Qt::LeftButton, {}, at);
    const auto told = Told();
    EXPECT_EQ(std::count(told.begin(), told.end(), "31 sent 2"), 1);
}

TEST_F(ListWidgets, TypingFindsARow) {
    ShowBoxes();
    Type("de");
    EXPECT_EQ(Box(31).CurrentRow(), 3);
    EXPECT_EQ(View(31)->currentIndex().row(), 3);
}

TEST_F(ListWidgets, SelectedRowsAreCopied) {
    ShowBoxes();
    ClickRow(32, 0);
    ClickRow(32, 2, Qt::ControlModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "alpha\ngamma");
}

TEST_F(ListWidgets, TheKeyboardKeepsTheCaretInView) {
    ShowBoxes();
    for (int row = 0; row < 200; ++row) {
        const std::string text = "row " + std::to_string(row);
        dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam(text.c_str()));
    }
    Process();
    Key(Qt::Key_End);
    const QRect last = View(31)->visualRect(View(31)->model()->index(203, 0));
    EXPECT_TRUE(View(31)->viewport()->rect().intersects(last));
    dialog.SendDlgItemMessage(31, LB_SETCURSEL, 0);
    EXPECT_EQ(View(31)->verticalScrollBar()->value(), 0);
}

TEST_F(ListWidgets, AListThatChangesWhileItIsScrolledStaysWhereItIs) {
    ShowBoxes();
    for (int row = 0; row < 1000; ++row) {
        const std::string text = "row " + std::to_string(row);
        dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam(text.c_str()));
    }
    Process();
    QScrollBar* bar = View(31)->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    const int scrolled = bar->value();
    for (int row = 0; row < 100; ++row)
        dialog.SendDlgItemMessage(31, LB_DELETESTRING, 900);
    Process();
    EXPECT_EQ(bar->value(), scrolled);
    dialog.SendDlgItemMessage(31, LB_RESETCONTENT);
    Process();
    EXPECT_EQ(bar->value(), 0);
    EXPECT_FALSE(View(31)->indexAt(QPoint(5, 5)).isValid());
}

class ListViewWidget : public ListWidgets {
protected:
    void ShowList(DWORD extended = LVS_EX_CHECKBOXES) {
        Show({{11, kEdit, "", {7, 7, 80, 12}}, {35, kListView, "", {7, 24, 200, 90}}});
        auto& list = dialog.Control<CListCtrl>(35);
        list.SetExtendedStyle(extended);
        list.InsertColumn(0, "Lease", LVCFMT_LEFT, 90);
        list.InsertColumn(1, "Block", LVCFMT_RIGHT, 60);
        for (int row = 0; row < 6; ++row) {
            list.InsertItem(row, ("G" + std::to_string(row)).c_str());
            list.SetItemText(row, 1, std::to_string(row * 10).c_str());
        }
        Process();
    }
    kv::ListViewNode& List() { return static_cast<kv::ListViewNode&>(NodeOf(35)); }
    QHeaderView* Header() { return WidgetOf<QTreeView>(35)->header(); }
};

TEST_F(ListViewWidget, ShowsCellsHeadingsAndWidths) {
    ShowList();
    EXPECT_EQ(Shown(35, 4, 0), "G4");
    EXPECT_EQ(Shown(35, 4, 1), "40");
    EXPECT_EQ(View(35)->model()->headerData(1, Qt::Horizontal).toString(), "Block");
    EXPECT_GT(Header()->sectionSize(0), Header()->sectionSize(1));
    dialog.Control<CListCtrl>(35).SetItemText(4, 1, "new");
    EXPECT_EQ(Shown(35, 4, 1), "new");
    dialog.Control<CListCtrl>(35).DeleteItem(0);
    EXPECT_EQ(Shown(35, 0, 0), "G1");
}

TEST_F(ListViewWidget, ClicksAndKeysSelect) {
    ShowList();
    ClickRow(35, 1);
    EXPECT_EQ(List().SelectedCount(), 1);
    EXPECT_EQ(List().FocusedRow(), 1);
    ClickRow(35, 3, Qt::ControlModifier);
    EXPECT_EQ(List().SelectedCount(), 2);
    Key(Qt::Key_Down);
    EXPECT_EQ(List().SelectedCount(), 1);
    EXPECT_EQ(List().FocusedRow(), 4);
    EXPECT_EQ(View(35)->currentIndex().row(), 4);
}

TEST_F(ListViewWidget, AClickOnACheckBoxTogglesItAlone) {
    ShowList();
    const QRect cell = View(35)->visualRect(View(35)->model()->index(2, 0));
    QTest::mouseClick(View(35)->viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 10, cell.center().y()));
    EXPECT_EQ(dialog.Control<CListCtrl>(35).GetCheck(2), 1);
    EXPECT_EQ(View(35)->model()->index(2, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(List().SelectedCount(), 0);
}

TEST_F(ListViewWidget, AClickOnAHeadingIsTold) {
    ShowList();
    int column = -1;
    dialog.onNotice = [&](const NMHDR& head) {
        if (head.code == LVN_COLUMNCLICK) {
            column = reinterpret_cast<const NMLISTVIEW&>(head).iSubItem;
        }
    };
    const QPoint at(Header()->sectionViewportPosition(1) + 10, Header()->height() / 2);
    QTest::mouseClick(Header()->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(column, 1);
}

TEST_F(ListViewWidget, DraggingAColumnsEdgeWidensItInTheNode) {
    ShowList();
    const int before = List().Columns()[0].width;
    Header()->resizeSection(0, Header()->sectionSize(0) * 2);
    EXPECT_NEAR(List().Columns()[0].width, before * 2, 2);
}

TEST_F(ListViewWidget, SelectedRowsAreCopiedWithTheirCells) {
    ShowList();
    ClickRow(35, 1);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "G1\t10");
}

TEST_F(ListViewWidget, ShowsRowsOnDemand) {
    ShowList();
    auto& list = dialog.Control<CListCtrl>(35);
    for (int row = 6; row < 20000; ++row)
        list.InsertItem(row, std::to_string(row).c_str());
    Process();
    EXPECT_EQ(View(35)->model()->rowCount(), 20000);
    list.EnsureVisible(15000, FALSE);
    const QRect place = View(35)->visualRect(View(35)->model()->index(15000, 0));
    EXPECT_TRUE(View(35)->viewport()->rect().intersects(place));
}

}  // namespace
