// Swatches and palettes in real windows. Their pictures are kept.

#include <QImage>
#include <QScreen>

#include "controls/static.h"
#include "drawing/new_line_ctrl_dlg.h"
#include "drawing/new_line_ctrl_ids.h"
#include "drawing/swatches/line_button.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/symbol_button.h"
#include "drawing/vertice_builder.h"
#include "drawing/vertice_builder_ids.h"
#include "frame/module.h"
#include "larger_font.h"
#include "qt_fixture.h"
#include "window/controls/edit.h"
#include "window/mnemonics.h"

using enum kv::ControlKind;

namespace {

class DrawingView : public test::QtDialogTest {
protected:
    DrawingView() { InitControlDll(); }

    /// A dialog with a label and a swatch of a colour, and a field.
    void ShowSwatch() {
        Show({{10, kLabel, "Color:", {7, 9, 30, 8}},
              {11, kOwnerDrawButton, "", {40, 7, 40, 14}},
              {12, kEdit, "", {90, 8, 40, 12}}});
        swatch.AutoLoad(11, &dialog);
        swatch.SetChange(9);
        Process();
    }
    QImage Picture(QWidget& widget) { return widget.grab().toImage(); }

    CKvGuiBasicColorButton swatch;
};

TEST_F(DrawingView, ASwatchShowsItsColorAlsoUnderAModalWindow) {
    ShowSwatch();
    QWidget* widget = WidgetOf(11);
    const auto middle = [&] {
        const QImage picture = Picture(*widget);
        return picture.pixelColor(picture.width() / 2, picture.height() / 2);
    };
    EXPECT_EQ(middle(), QColor(255, 0, 0));
    dialog.EnableWindow(FALSE);
    Process();
    EXPECT_EQ(middle(), QColor(255, 0, 0));
    dialog.EnableWindow(TRUE);
}

TEST_F(DrawingView, ASwatchThatChangesKeepsTheKeyboard) {
    ShowSwatch();
    swatch.SetFocus();
    Process();
    ASSERT_TRUE(WidgetOf(11)->hasFocus());
    swatch.SetChange(3);
    Process();
    EXPECT_TRUE(WidgetOf(11)->hasFocus());
}

TEST_F(DrawingView, TheKeyOfItsLabelOpensThePaletteAndAKeyPicks) {
    ShowSwatch();
    EXPECT_EQ(kv::MnemonicOf(NodeOf(10)), 'C');
    Then([&] {
        Process();
        // A display may still be giving it the keyboard.
        const QWidget* palette = QApplication::activeModalWidget();
        QTest::keyClick(palette->focusWidget(), Qt::Key_Right);
        QTest::keyClick(palette->focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(Window(), Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(swatch.GetCWTValue(), 10);
    EXPECT_TRUE(dialog.WasTold("11 clicked"));
}

TEST_F(DrawingView, ALabelThatDrawsItselfTakesNoClickAndIsNotCut) {
    Show({{20, kPushButton, "", {7, 7, 60, 14}}});
    CKvStatic label;
    ASSERT_TRUE(label.Create("88", WS_CHILD | WS_VISIBLE, {50, 14, 75, 30}, &dialog, 21));
    label.SetColor(RGB(255, 0, 0));
    Process();
    QWidget* widget = WidgetOf(21);
    const QPoint onLabel = widget->mapTo(Window(), widget->rect().center());
    QWidget* below = Window()->childAt(onLabel);
    EXPECT_NE(below, widget);

    const QImage picture = Picture(*widget);
    const auto inked = [&](int from, int to) {
        int count = 0;
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < picture.height(); ++y)
                count += picture.pixelColor(x, y).red() > picture.pixelColor(x, y).green() + 60;
        }
        return count;
    };
    // About its left edge, which is a third of the way across its widget.
    const int edge = picture.width() / 3;
    EXPECT_GT(inked(0, edge), 0);
    EXPECT_GT(inked(edge, picture.width()), 0);
}

TEST_F(DrawingView, AWindowThatWasMadeHiddenIsSeenWhenItIsMovedTo) {
    CKvNewLineCtrlDlg line;
    line.SetWaitMode(true);
    ASSERT_TRUE(line.Create(nullptr));
    Process();
    EXPECT_EQ(kv::qt::WidgetOf(*line.m_hWnd), nullptr);
    line.MoveTo({40, 40});
    Process();
    QWidget* window = kv::qt::WidgetOf(*line.m_hWnd);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(kv::qt::SavePicture(*line.m_hWnd, test::PicturePath("polyline.png").toStdString()));
    line.DestroyWindow();
}

TEST_F(DrawingView, ThePaletteShowsFortyColorsAndBehindMoreAllOfThem) {
    ShowSwatch();
    const auto save = [](const QString& name) {
        Process();
        const kv::Node& palette = *kv::WindowSystem::Get().Modals().back();
        const QString file = QStringLiteral("%1_x%2.png").arg(name).arg(qApp->devicePixelRatio());
        const QString path = test::PicturePath(file);
        EXPECT_TRUE(kv::qt::SavePicture(palette, path.toStdString()));
        return QImage(path);
    };
    const auto inSight = [](int first, int count) {
        int seen = 0;
        for (int id = first; id < first + count; ++id) {
            const kv::Node* cell = kv::WindowSystem::Get().Modals().back()->FindChild(id);
            seen += cell && kv::qt::WidgetOf(*cell)->isVisible();
        }
        return seen;
    };
    Then([&] {
        const QImage some = save("palette");
        EXPECT_EQ(inSight(kv::palettes::kFirstShortCell, kv::palettes::kShortCells), 40);
        kv::Node& more = *kv::WindowSystem::Get().Modals().back()->FindChild(kv::palettes::kMore);
        QTest::mouseClick(kv::qt::WidgetOf(more), Qt::LeftButton);
        const QImage all = save("palette_of_all");
        EXPECT_GT(all.width(), some.width());
        EXPECT_EQ(inSight(kv::palettes::kGridCell, kv::palettes::kGridCells), 256);
        EXPECT_EQ(inSight(kv::palettes::kFirstShortCell, kv::palettes::kShortCells), 0);
        kv::Node& cell =
            *kv::WindowSystem::Get().Modals().back()->FindChild(kv::palettes::kGridCell + 40);
        QTest::mouseClick(kv::qt::WidgetOf(cell), Qt::LeftButton);
    });
    Click(11);
    EXPECT_EQ(swatch.GetCWTValue(), 40);
}

TEST_F(DrawingView, APaletteLargerThanTheScreenScrollsToTheCellThatTheArrowsReach) {
    const test::LargerFont larger(3);
    ShowSwatch();
    const auto look = [](const char* when, int cell) {
        const kv::Node& palette = *kv::WindowSystem::Get().Modals().back();
        const QWidget* window = kv::qt::WidgetOf(palette);
        const QWidget* shown = kv::qt::WidgetOf(*palette.FindChild(kv::palettes::kGridCell + cell));
        EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()))
            << when;
        EXPECT_EQ(window->focusWidget(), shown) << when;
        EXPECT_EQ(shown->visibleRegion().boundingRect(), shown->rect()) << when;
    };
    const auto press = [](Qt::Key key) {
        const kv::Node& palette = *kv::WindowSystem::Get().Modals().back();
        QTest::keyClick(kv::qt::WidgetOf(palette)->focusWidget(), key);
        Process();
    };
    Then([&] {
        kv::Node& more = *kv::WindowSystem::Get().Modals().back()->FindChild(kv::palettes::kMore);
        QTest::mouseClick(kv::qt::WidgetOf(more), Qt::LeftButton);
        Process();
        look("at the start", 9);
        press(Qt::Key_End);
        look("at the end", 255);
        for (int i = 0; i < 15; ++i)
            press(Qt::Key_Left);
        look("in the last row", 240);
        press(Qt::Key_Up);
        look("in the row above", 224);
        press(Qt::Key_Return);
    });
    Click(11);
    EXPECT_EQ(swatch.GetCWTValue(), 224);
}

TEST_F(DrawingView, ASwatchIsReadOutByItsLabelAndTellsItsColor) {
    ShowSwatch();
    EXPECT_EQ(test::NameOf(WidgetOf(11)), QStringLiteral("Color"));
    EXPECT_EQ(WidgetOf(11)->toolTip(), QStringLiteral("Color 10, red"));
    swatch.SetEventType(E_EVENT_CELL);
    swatch.SetChange(0);
    EXPECT_EQ(test::NameOf(WidgetOf(11)), QStringLiteral("Color 1, black"));
}

TEST_F(DrawingView, TheListOfVerticesGoesByWhatItsRowsAre) {
    CKvGuiVerticeBuilder builder;
    ASSERT_TRUE(builder.Create(kv::vertice_builder::kTemplate));
    QWidget* list = kv::qt::WidgetOf(*builder.m_hWnd->FindChild(kv::vertice_builder::kRows));
    EXPECT_EQ(test::NameOf(list), QStringLiteral("Vertices"));
    builder.DestroyWindow();
}

TEST_F(DrawingView, AControlThatJoinsItsLabelLaterGoesByIt) {
    Show({{10, kLabel, "Depth:", {7, 9, 30, 8}}});
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, {60, 10, 100, 30}, &dialog, 30));
    Process();
    EXPECT_EQ(test::NameOf(WidgetOf(30)), QStringLiteral("Depth"));
}

}  // namespace
