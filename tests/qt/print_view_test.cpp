// The dialogs for scale and paper in real windows, in their forms. Their pictures are kept.

#include <QAbstractItemView>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>

#include "dark_palette.h"
#include "frame/module.h"
#include "print/print_control.h"
#include "print/print_control_ids.h"
#include "print/sizing_dlg.h"
#include "print/sizing_ids.h"
#include "qt_fixture.h"
#include "window/dialogs/print_dialog.h"

namespace {

const CMinMax2Dd_t kMap{100000, 130000, 500000, 520000};

class PrintView : public ::testing::Test {
protected:
    PrintView() { InitControlDll(); }

    /// Opens a dialog with that map, in that unit, whole or as for the screen.
    template <typename Dialog>
    static void Open(Dialog& dialog, int unit, bool whole) {
        dialog.SetBounds(kMap);
        dialog.SetUnit(unit);
        dialog.IsCGM(whole);
        ASSERT_TRUE(dialog.Create(dialog.GetTemplateId()));
        QApplication::processEvents();
        ASSERT_TRUE(QTest::qWaitForWindowActive(kv::qt::WidgetOf(*dialog.m_hWnd)));
    }
    template <typename Widget = QWidget>
    static Widget* WidgetOf(const CDialog& dialog, int id) {
        return dynamic_cast<Widget*>(kv::qt::WidgetOf(*dialog.m_hWnd->FindChild(id)));
    }
    /// Whether the widget is to be seen as a whole.
    static bool InSight(const CDialog& dialog, int id) {
        const QWidget* widget = WidgetOf(dialog, id);
        return widget->isVisible() && widget->parentWidget()->rect().contains(widget->geometry());
    }
    static bool OutOfSight(const CDialog& dialog, int id) {
        const QWidget* widget = WidgetOf(dialog, id);
        return !widget->isVisible() || widget->visibleRegion().isEmpty();
    }
    static QImage Picture(const CDialog& dialog, const QString& name) {
        QApplication::processEvents();
        const double ratio = kv::qt::WidgetOf(*dialog.m_hWnd)->devicePixelRatio();
        const QString file = QStringLiteral("%1_x%2.png").arg(name).arg(ratio);
        const QString path = test::PicturePath(file);
        EXPECT_TRUE(kv::qt::SavePicture(*dialog.m_hWnd, path.toStdString()));
        return QImage(path);
    }
    /// In light and in dark, of the same size.
    static void Pictures(const CDialog& dialog, const QString& name) {
        const QPalette light = QApplication::palette();
        const QImage image = Picture(dialog, name);
        QApplication::setPalette(test::DarkPalette());
        const QImage dark = Picture(dialog, name + "_dark");
        QApplication::setPalette(light);
        EXPECT_EQ(image.size(), dark.size());
        EXPECT_NE(image, dark);
    }
    static QAbstractItemView* Popup() {
        QWidget* popup = QApplication::activePopupWidget();
        return popup ? popup->findChild<QAbstractItemView*>() : nullptr;
    }
    static void DropDown(QComboBox* box) {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 6, box->height() / 2));
        QApplication::processEvents();
        ASSERT_NE(Popup(), nullptr);
    }
    static void PressTab() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QApplication::processEvents();
    }
    /// A text of the letter that fills the widget is not cut.
    static void ExpectTextFits(const CDialog& dialog, int id) {
        QWidget* label = WidgetOf<QWidget>(dialog, id);
        ASSERT_NE(label, nullptr) << id;
        const QString text = test::NameOf(label);
        EXPECT_FALSE(text.isEmpty()) << id;
        EXPECT_LE(label->fontMetrics().horizontalAdvance(text), label->width()) << id;
    }

    kv::qt::QtDesktop desktop;
    DEVMODE paper = kv::ToDevMode({"Plotter of the drafting room", 8, true, 2970, 4200, "A3"});
};

TEST_F(PrintView, AllOfTheDialogShowsForAFile) {
    using namespace kv::print_control;
    CKvGuiPrintControl dialog(&paper, nullptr);
    dialog.SetPrintMode(true);
    Open(dialog, 0, true);
    for (const int id : std::initializer_list<int>{kMapScale, kPageWidth, kPrintScale,
                                                   kChangePrinter, kGrayscale, IDOK})
        EXPECT_TRUE(InSight(dialog, id)) << id;
    EXPECT_FALSE(WidgetOf(dialog, kMapLandscape)->isVisible());
    ExpectTextFits(dialog, kPrinterName);
    Pictures(dialog, "CKvGuiPrintControl_file");
}

TEST_F(PrintView, OnlyTheMapShowsForTheScreen) {
    using namespace kv::print_control;
    CKvGuiPrintControl dialog(&paper, nullptr);
    Open(dialog, 0, false);
    for (const int id :
         std::initializer_list<int>{kMapScale, kMapWidth, kMapHeight, IDOK, IDCANCEL})
        EXPECT_TRUE(InSight(dialog, id)) << id;
    for (const int id : {kMapLandscape, kPageWidth, kPrintScale, kPrinterName, kColor})
        EXPECT_TRUE(OutOfSight(dialog, id)) << id;
    std::vector<int> visited;
    for (int stop = 0; stop < 5; ++stop) {
        PressTab();
        visited.push_back(test::FocusedId());
    }
    EXPECT_THAT(visited, testing::ElementsAre(kMapWidth, kMapHeight, IDOK, IDCANCEL, kMapScale));
    Pictures(dialog, "CKvGuiPrintControl_screen");
}

TEST_F(PrintView, MetersHaveTheirLabels) {
    using namespace kv::print_control;
    CKvGuiPrintControl dialog(&paper, nullptr);
    Open(dialog, 1, true);
    EXPECT_EQ(test::NameOf(WidgetOf<QWidget>(dialog, kMapScaleUnit)), "Meters");
    ExpectTextFits(dialog, kMapScaleUnit);
    Pictures(dialog, "CKvGuiPrintControl_meters");
}

TEST_F(PrintView, APrintScaleIsPickedInTheListThatIsRefilledByIt) {
    using namespace kv::print_control;
    CKvGuiPrintControl dialog(&paper, nullptr);
    Open(dialog, 1, true);
    auto* box = WidgetOf<QComboBox>(dialog, kPrintScale);
    const auto* line = box->findChild<QLineEdit*>();
    const auto pick = [&](const QString& text) {
        DropDown(box);
        QAbstractItemModel* rows = Popup()->model();
        const QModelIndexList found =
            rows->match(rows->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << text.toStdString();
        const QModelIndex index = found.front();
        Popup()->scrollTo(index);
        QTest::mouseClick(Popup()->viewport(), Qt::LeftButton, {},
                          Popup()->visualRect(index).center());
        QApplication::processEvents();
        EXPECT_EQ(line->text(), text);
    };
    pick(QStringLiteral("1.6e+006"));
    EXPECT_EQ(dialog.GetScale(), 1'600'000);
    pick(QStringLiteral("50000"));
    EXPECT_EQ(dialog.GetScale(), 50'000);
    // The arrows go on from there, in the closed list and in the open one.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(line->text(), "100000");
    DropDown(box);
    for (int key = 0; key < 2; ++key) {
        QTest::keyClick(Popup(), Qt::Key_Up);
        QApplication::processEvents();
    }
    EXPECT_EQ(line->text(), "25000");
    QTest::keyClick(Popup(), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_EQ(line->text(), "25000");
    EXPECT_EQ(dialog.GetScale(), 25'000);
}

TEST_F(PrintView, ATypedScaleIsWhatItReads) {
    using namespace kv::print_control;
    CKvGuiPrintControl dialog(&paper, nullptr);
    Open(dialog, 0, true);
    auto* box = WidgetOf<QComboBox>(dialog, kPrintScale);
    auto* line = box->findChild<QLineEdit*>();
    QTest::mouseClick(line, Qt::LeftButton);
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, "5000");
    EXPECT_EQ(dialog.GetScale(), 5000);
    EXPECT_EQ(dialog.DlgItemText(kPageWidth), "6");
}

TEST_F(PrintView, TheSizingDialogShowsInItsForms) {
    using namespace kv::sizing;
    const struct {
        int unit;
        bool whole;
        const char* name;
    } kForms[] = {{0, true, "CKvGuiSizingDlg_file"},
                  {0, false, "CKvGuiSizingDlg_screen"},
                  {1, true, "CKvGuiSizingDlg_meters"}};
    for (const auto& form : kForms) {
        CKvGuiSizingDlg dialog;
        Open(dialog, form.unit, form.whole);
        for (const int id : std::initializer_list<int>{kScale, kWidth, kHeight, IDOK, IDCANCEL})
            EXPECT_TRUE(InSight(dialog, id)) << form.name << " " << id;
        for (const int id : {kLandscape, kPaperWidth, kStrokeFont, kGray})
            EXPECT_NE(InSight(dialog, id), OutOfSight(dialog, id)) << form.name << " " << id;
        EXPECT_EQ(InSight(dialog, kGray), form.whole) << form.name;
        Pictures(dialog, form.name);
    }
}

}  // namespace
