#include <QAbstractItemView>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHash>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>
#include <algorithm>
#include <cmath>

#include "dark_palette.h"
#include "qt/drawing/scale.h"
#include "qt_fixture.h"
#include "window/controls/list_box.h"
#include "window/controls/list_box_node.h"
#include "window/drawing/image_list.h"
#include "window/list_view/list_ctrl.h"
#include "window/list_view/list_view_node.h"

using enum kv::ControlKind;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// How well what is drawn there stands out from the ground, which is the colour seen most: 1 not at
/// all, 21 black on white.
double ContrastIn(const QImage& picture) {
    const auto luminance = [](QRgb pixel) {
        const auto linear = [](int part) {
            const double share = part / 255.0;
            return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
               0.0722 * linear(qBlue(pixel));
    };
    QHash<QRgb, int> seen;
    double lightest = 0;
    double darkest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            ++seen[pixel];
            lightest = std::max(lightest, luminance(pixel));
            darkest = std::min(darkest, luminance(pixel));
        }
    }
    const auto most = std::max_element(seen.cbegin(), seen.cend());
    const double ground = luminance(most.key()) + 0.05;
    return std::max((lightest + 0.05) / ground, ground / (darkest + 0.05));
}

class ListWidgets : public test::QtDialogTest {
protected:
    /// What is drawn of a row's text, without the edges of its cell.
    QImage TextOfRow(int id, int row) {
        const QRect cell = View(id)->visualRect(View(id)->model()->index(row, 0));
        return View(id)->viewport()->grab(cell.adjusted(3, 3, -3, -3)).toImage();
    }
    QAbstractItemView* View(int id) { return WidgetOf<QAbstractItemView>(id); }

    void ClickRow(int id, int row, Qt::KeyboardModifiers keys = {}, int column = 0) {
        const QRect place = View(id)->visualRect(View(id)->model()->index(row, column));
        QTest::mouseClick(View(id)->viewport(), Qt::LeftButton, keys,
                          QPoint(place.left() + place.width() / 2, place.center().y()));
    }
    std::string Shown(int id, int row, int column = 0) {
        return View(id)->model()->index(row, column).data().toString().toStdString();
    }
    void TurnWheel(int id, int delta) {
        QWidget* viewport = View(id)->viewport();
        const QPointF at(5, 5);
        QWheelEvent event(at, viewport->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport, &event);
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

TEST_F(ListWidgets, ASelectedRowWithTheFocusIsReadWell) {
    ShowBoxes();
    for (const QPalette& palette : {QApplication::palette(), test::DarkPalette()}) {
        const QPalette former = QApplication::palette();
        QApplication::setPalette(palette);
        ClickRow(31, 2);
        EXPECT_GE(ContrastIn(TextOfRow(31, 2)), 4.4);
        EXPECT_GE(ContrastIn(TextOfRow(31, 1)), 7);
        QApplication::setPalette(former);
    }
}

TEST_F(ListWidgets, AnEmptyOneTellsWhatItsToolTipDoes) {
    Show({{31, kListBox, "", {94, 7, 80, 40}},
          {32, kListBox, "", {7, 7, 80, 40}, {}, "Pick a type above"}});
    const auto ink = [&](int id) { return ContrastIn(View(id)->viewport()->grab().toImage()); };
    EXPECT_GT(ink(32), 1.5);
    EXPECT_EQ(ink(31), 1);
    EXPECT_EQ(View(32)->toolTip(), "Pick a type above");
    dialog.SendDlgItemMessage(32, LB_ADDSTRING, 0, kv::AsParam(""));
    Process();
    EXPECT_EQ(ink(32), 1) << "one row, with no text";
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

TEST_F(ListWidgets, ASortedOneShowsARowInItsPlace) {
    Show({{33, kListBox, "", {7, 7, 80, 80}, kv::kSortedList}});
    for (const char* text : {"gamma", "Alpha", "beta"})
        dialog.SendDlgItemMessage(33, LB_ADDSTRING, 0, kv::AsParam(text));
    EXPECT_EQ(Shown(33, 0), "Alpha");
    EXPECT_EQ(Shown(33, 1), "beta");
    EXPECT_EQ(Shown(33, 2), "gamma");
}

TEST_F(ListWidgets, TheWheelScrollsAndSelectsNothing) {
    ShowBoxes();
    for (int row = 0; row < 100; ++row)
        dialog.SendDlgItemMessage(31, LB_ADDSTRING, 0, kv::AsParam("row"));
    Process();
    Told();
    EXPECT_EQ(View(31)->verticalScrollBar()->value(), 0);
    TurnWheel(31, -120);
    EXPECT_GT(View(31)->verticalScrollBar()->value(), 0);
    EXPECT_EQ(Box(31).CurrentRow(), -1);
    EXPECT_THAT(Told(), IsEmpty());
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

TEST_F(ListViewWidget, TheHeadingsReachToTheEndOfTheList) {
    ShowList();
    ASSERT_LT(Header()->length(), Header()->viewport()->width() - 20);
    const QImage picture = Header()->viewport()->grab().toImage();
    const int ratio = qRound(picture.devicePixelRatio());
    const int inside = (Header()->sectionSize(0) - 8) * ratio;
    const int behind = (Header()->length() + 8) * ratio;
    for (int y = 0; y < picture.height(); ++y)
        EXPECT_EQ(picture.pixel(behind, y), picture.pixel(inside, y)) << y;
}

/// The first column of a picture in which something dark is drawn.
int FirstInk(const QImage& picture) {
    constexpr int kDark = 128;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y)
            if (picture.pixelColor(x, y).lightness() < kDark) return x;
    }
    return picture.width();
}

TEST_F(ListViewWidget, AHeadingBeginsWhereTheTextsUnderItDo) {
    Show({{11, kEdit, "", {7, 7, 80, 12}}, {35, kListView, "", {7, 24, 200, 90}}});
    auto& list = dialog.Control<CListCtrl>(35);
    list.InsertColumn(0, "Lease", LVCFMT_LEFT, 90);
    list.InsertItem(0, "Lease");
    Process();
    const QRect cell = View(35)->visualRect(View(35)->model()->index(0, 0));
    EXPECT_EQ(FirstInk(Header()->viewport()->grab().toImage()),
              FirstInk(View(35)->viewport()->grab(cell).toImage()));
}

TEST_F(ListViewWidget, ASelectedRowWithTheFocusIsReadWell) {
    ShowList(0);
    ClickRow(35, 2);
    EXPECT_GE(ContrastIn(TextOfRow(35, 2)), 4.4);
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

TEST_F(ListViewWidget, ADoubleClickIsTwoPressesOfACheckBoxAndOneDeedOnARow) {
    ShowList();
    std::vector<int> rows;
    dialog.onNotice = [&](const NMHDR& head) {
        if (head.code == NM_DBLCLK)
            rows.push_back(reinterpret_cast<const NMITEMACTIVATE&>(head).iItem);
    };
    const QRect cell = View(35)->visualRect(View(35)->model()->index(2, 0));
    const auto doubleClick = [&](int x, Qt::MouseButton button) {
        QTest::mouseClick(View(35)->viewport(), button, {}, QPoint(x, cell.center().y()));
        QTest::mouseDClick(View(35)->viewport(), button, {}, QPoint(x, cell.center().y()));
    };
    doubleClick(cell.left() + 10, Qt::LeftButton);
    EXPECT_EQ(dialog.Control<CListCtrl>(35).GetCheck(2), 0);
    EXPECT_THAT(rows, IsEmpty());
    doubleClick(cell.right() - 10, Qt::RightButton);
    EXPECT_THAT(rows, IsEmpty());
    doubleClick(cell.right() - 10, Qt::LeftButton);
    EXPECT_THAT(rows, ElementsAre(2));
    EXPECT_EQ(dialog.Control<CListCtrl>(35).GetCheck(2), 0);
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

TEST_F(ListViewWidget, ADoubleClickOnAColumnsEdgeFitsItToItsCells) {
    ShowList(0);
    auto& list = dialog.Control<CListCtrl>(35);
    list.SetItemText(3, 1, "a block with a long name");
    const QPoint edge(Header()->sectionViewportPosition(1) + Header()->sectionSize(1) - 1,
                      Header()->height() / 2);
    QTest::mouseDClick(Header()->viewport(), Qt::LeftButton, {}, edge);
    EXPECT_GT(list.GetColumnWidth(1), list.GetStringWidth("a block with a long name"));
    EXPECT_GT(Header()->sectionSize(1), Header()->sectionSize(0));
}

TEST_F(ListViewWidget, TheRightButtonSelectsAndTheParentMayForbidTheMenu) {
    ShowList(0);
    LRESULT forbidden = 0;
    dialog.answerNotice = [&](const NMHDR& head) { return head.code == NM_RCLICK ? forbidden : 0; };
    const auto menuAt = [&](int row) {
        QWidget* viewport = View(35)->viewport();
        const QPoint at = View(35)->visualRect(View(35)->model()->index(row, 0)).center();
        QTest::mouseClick(viewport, Qt::RightButton, {}, at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at));
        QApplication::sendEvent(viewport, &event);
        QWidget* menu = QApplication::activePopupWidget();
        if (menu) menu->close();
        Process();
        return menu != nullptr;
    };
    EXPECT_TRUE(menuAt(1));
    EXPECT_TRUE(List().Selected(1));
    forbidden = 1;
    EXPECT_FALSE(menuAt(2));
    EXPECT_TRUE(List().Selected(2));
    EXPECT_FALSE(List().Selected(1));
    forbidden = 0;
    EXPECT_TRUE(menuAt(2));
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

TEST_F(ListViewWidget, AClickTellsOfTheRowOnce) {
    ShowList(0);
    std::vector<std::string> noticed;
    dialog.onNotice = [&](const NMHDR& head) {
        if (head.code != LVN_ITEMCHANGED && head.code != NM_CLICK) return;
        const int row = reinterpret_cast<const NMLISTVIEW&>(head).iItem;
        noticed.push_back((head.code == NM_CLICK ? "click " : "changed ") + std::to_string(row));
    };
    ClickRow(35, 2);
    EXPECT_THAT(noticed, ElementsAre("changed 2", "click 2"));
    noticed.clear();
    const QRect place = View(35)->visualRect(View(35)->model()->index(2, 0));
    QTest::mouseClick(View(35)->viewport(), Qt::LeftButton, {}, place.center());
    EXPECT_THAT(noticed, ElementsAre("click 2"));
}

TEST_F(ListViewWidget, BesideTheFirstColumnARowIsHitOnlyWithFullRowSelection) {
    ShowList(0);
    ClickRow(35, 1);
    ClickRow(35, 3, {}, 1);
    EXPECT_EQ(List().SelectedCount(), 0);
    dialog.Control<CListCtrl>(35).SetExtendedStyle(LVS_EX_FULLROWSELECT);
    ClickRow(35, 3, {}, 1);
    EXPECT_TRUE(List().Selected(3));
}

TEST_F(ListViewWidget, TypingFindsARow) {
    ShowList(0);
    dialog.GetDlgItem(35)->SetFocus();
    Type("g4");
    EXPECT_EQ(List().FocusedRow(), 4);
    EXPECT_TRUE(List().Selected(4));
    EXPECT_EQ(View(35)->currentIndex().row(), 4);
}

TEST_F(ListViewWidget, SpaceChecksTheRowWithTheFocus) {
    ShowList();
    ClickRow(35, 3);
    Key(Qt::Key_Space);
    EXPECT_EQ(dialog.Control<CListCtrl>(35).GetCheck(3), 1);
    dialog.Control<CListCtrl>(35).SetCheck(3, FALSE);
    EXPECT_EQ(View(35)->model()->index(3, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(ListViewWidget, ColumnsStandInTheOrderThatTheProgramSays) {
    ShowList(0);
    const int order[] = {1, 0};
    dialog.Control<CListCtrl>(35).SetColumnOrderArray(2, order);
    EXPECT_EQ(Header()->visualIndex(1), 0);
    EXPECT_LT(Header()->sectionViewportPosition(1), Header()->sectionViewportPosition(0));
    dialog.Control<CListCtrl>(35).DeleteColumn(0);
    EXPECT_EQ(Header()->count(), 1);
    EXPECT_EQ(View(35)->model()->headerData(0, Qt::Horizontal).toString(), "Block");
}

TEST_F(ListViewWidget, SelectionAndFocusAreMarked) {
    ShowList(0);
    const auto pictureOf = [&](int row) {
        const QRect place = View(35)->visualRect(View(35)->model()->index(row, 0));
        return View(35)->viewport()->grab(place).toImage().scaled(place.size());
    };
    const QColor highlight = View(35)->palette().color(QPalette::Highlight);
    const auto isMarked = [&](int row) {
        const QImage picture = pictureOf(row);
        const QColor ground = picture.pixelColor(picture.width() - 3, picture.height() / 2);
        // Styles shade it.
        return std::abs(ground.hue() - highlight.hue()) < 10 && ground.saturation() > 100;
    };
    EXPECT_FALSE(isMarked(1));
    ClickRow(35, 1);
    EXPECT_TRUE(isMarked(1));
    const QImage focused = pictureOf(1);
    EXPECT_EQ(focused.pixelColor(focused.width() / 2, 1),
              View(35)->palette().color(QPalette::HighlightedText));
    EXPECT_FALSE(isMarked(2));
    const QImage withoutFocusMark = pictureOf(2);
    List().SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_FALSE(isMarked(2));
    EXPECT_NE(pictureOf(2), withoutFocusMark);
    EXPECT_FALSE(isMarked(4));
    List().SetItemState(4, LVIS_DROPHILITED, LVIS_DROPHILITED);
    EXPECT_TRUE(isMarked(4));
}

TEST_F(ListViewWidget, TheWheelScrollsAndSelectsNothing) {
    ShowList(0);
    for (int row = 0; row < 100; ++row)
        dialog.Control<CListCtrl>(35).InsertItem(row, "row");
    Process();
    TurnWheel(35, -120);
    EXPECT_GT(View(35)->verticalScrollBar()->value(), 0);
    EXPECT_EQ(List().SelectedCount(), 0);
    EXPECT_EQ(List().FocusedRow(), -1);
}

TEST_F(ListViewWidget, ChangesWhileItIsScrolledLeaveItWhereItIs) {
    ShowList(0);
    auto& list = dialog.Control<CListCtrl>(35);
    for (int row = 6; row < 1000; ++row)
        list.InsertItem(row, std::to_string(row).c_str());
    Process();
    QScrollBar* bar = View(35)->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    const int scrolled = bar->value();
    for (int row = 0; row < 100; ++row)
        list.DeleteItem(890);
    list.SetItemText(3, 0, "other");
    Process();
    EXPECT_EQ(bar->value(), scrolled);
    list.DeleteAllItems();
    Process();
    EXPECT_EQ(bar->value(), 0);
    EXPECT_EQ(View(35)->model()->rowCount(), 0);
}

/// Colours of the pixels in the left part of a cell, as wide as an image and a check box.
QSet<QRgb> ColorsAt(const QImage& image, const QRect& place) {
    QSet<QRgb> colors;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors;
}

class ListViewImages : public ListViewWidget {
protected:
    void SetUp() override {
        ShowList(0);
        CBitmap strip;
        kv::Raster two(32, 16, kv::ToArgb(kFirst));
        for (int y = 0; y < 16; ++y) {
            for (int x = 16; x < 32; ++x)
                two.SetArgb(x, y, kv::ToArgb(kSecond));
        }
        strip.CreateFrom(std::move(two));
        images.Create(16, 16);
        images.Add(strip, RGB(255, 0, 255));
        Control().SetImageList(&images, LVSIL_SMALL);
    }
    /// The rows as they look, in the pixels that places are told in.
    QImage Picture() {
        QWidget* viewport = View(35)->viewport();
        return viewport->grab().toImage().scaled(viewport->size());
    }
    bool Shows(int row, int column, COLORREF color) {
        Process();
        const QRect cell = View(35)->visualRect(View(35)->model()->index(row, column));
        const QImage picture = Picture();
        return ColorsAt(picture, cell)
            .contains(qRgb(GetRValue(color), GetGValue(color), GetBValue(color)));
    }
    /// Left edge of an image's colour in the row, -1 where it is not.
    int LeftOf(int row, COLORREF color) {
        Process();
        const QImage picture = Picture();
        const QRect cell = View(35)->visualRect(View(35)->model()->index(row, 0));
        const QRgb wanted = qRgb(GetRValue(color), GetGValue(color), GetBValue(color));
        for (int x = cell.left(); x <= cell.right(); ++x) {
            if (picture.pixel(x, cell.center().y()) == wanted) return x;
        }
        return -1;
    }

    static constexpr COLORREF kFirst = RGB(200, 40, 10);
    static constexpr COLORREF kSecond = RGB(10, 160, 60);
    CListCtrl& Control() { return dialog.Control<CListCtrl>(35); }
    CImageList images;
};

TEST_F(ListViewImages, StandBesideTheRowsThatHaveOne) {
    EXPECT_FALSE(Shows(1, 0, kSecond));
    Control().SetItemImage(1, 0, 1);
    EXPECT_TRUE(Shows(1, 0, kSecond));
    EXPECT_FALSE(Shows(0, 0, kSecond));
    Control().SetItemImage(1, 0, 0);
    EXPECT_TRUE(Shows(1, 0, kFirst));
    EXPECT_FALSE(Shows(1, 0, kSecond));
    Control().SetImageList(nullptr, LVSIL_SMALL);
    EXPECT_FALSE(Shows(1, 0, kFirst));
}

TEST_F(ListViewImages, OfARowThatIsCutArePale) {
    Control().SetItemImage(1, 0, 0);
    EXPECT_TRUE(Shows(1, 0, kFirst));
    Control().SetItemState(1, LVIS_CUT, LVIS_CUT);
    EXPECT_FALSE(Shows(1, 0, kFirst));
    Control().SetItemState(1, 0, LVIS_CUT);
    EXPECT_TRUE(Shows(1, 0, kFirst));
}

TEST_F(ListViewImages, StandInFurtherColumnsWhereTheStyleSaysSo) {
    Control().SetItemImage(1, 1, 0);
    EXPECT_FALSE(Shows(1, 1, kFirst));
    Control().SetExtendedStyle(LVS_EX_SUBITEMIMAGES);
    EXPECT_TRUE(Shows(1, 1, kFirst));
}

TEST_F(ListViewImages, MoveToTheRightWithTheIndent) {
    Control().SetItemImage(1, 0, 0);
    Control().SetItemImage(2, 0, 0);
    LVITEM item;
    item.mask = LVIF_INDENT;
    item.iItem = 2;
    item.iIndent = 1;
    Control().SetItem(&item);
    ASSERT_GE(LeftOf(1, kFirst), 0);
    const int step = kv::qt::CurrentScale().ToScreen(CSize{16, 0}).width();
    EXPECT_EQ(LeftOf(2, kFirst) - LeftOf(1, kFirst), step);
}

TEST_F(ListViewImages, ACheckBoxStaysAheadOfThem) {
    Control().SetExtendedStyle(LVS_EX_CHECKBOXES);
    Control().SetItemImage(2, 0, 0);
    LVITEM item;
    item.mask = LVIF_INDENT;
    item.iItem = 2;
    item.iIndent = 1;
    Control().SetItem(&item);
    const QRect cell = View(35)->visualRect(View(35)->model()->index(2, 0));
    const int image = LeftOf(2, kFirst);
    const QPoint onBox(image - 12, cell.center().y());
    QTest::mouseClick(View(35)->viewport(), Qt::LeftButton, {}, onBox);
    EXPECT_EQ(Control().GetCheck(2), 1);
    QTest::mouseClick(View(35)->viewport(), Qt::LeftButton, {}, QPoint(image + 3, onBox.y()));
    EXPECT_EQ(Control().GetCheck(2), 1);
    EXPECT_EQ(List().FocusedRow(), 2);
}

TEST_F(ListViewImages, AreAsHighAsTheRowsAskFor) {
    const int before = View(35)->visualRect(View(35)->model()->index(0, 0)).height();
    CImageList larger;
    larger.Create(32, 32);
    Control().SetImageList(&larger, LVSIL_SMALL);
    Process();
    const int now = View(35)->visualRect(View(35)->model()->index(0, 0)).height();
    EXPECT_GT(now, before);
    EXPECT_GE(now, kv::qt::CurrentScale().ToScreen(CSize{0, 32}).height());
}

}  // namespace
