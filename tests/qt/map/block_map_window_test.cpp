#include "qt/map/block_map_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "qt/map/block_map_canvas.h"
#include "qt/qt_fixture.h"

namespace {

using kv::qt::BlockMapCanvas;
using kv::qt::BlockMapWindow;
using kv::qt::MapBlock;
using testing::ElementsAre;
using testing::IsEmpty;

/// Rows of blocks of a tenth of a degree, numbered from 1, north to south.
std::vector<MapBlock> Squares(const std::string& area, double west, int columns, int rows) {
    std::vector<MapBlock> blocks;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double left = west + 0.1 * column, top = 28.0 - 0.1 * row;
            const int number = row * columns + column + 1;
            blocks.push_back(
                {area,
                 std::to_string(number),
                 number % 7 == 0 ? "A" : "",
                 {{top, left}, {top, left + 0.1}, {top - 0.1, left + 0.1}, {top - 0.1, left}}});
        }
    }
    return blocks;
}

BlockMapCanvas* CanvasOf(const QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (auto* canvas = dynamic_cast<BlockMapCanvas*>(widget)) return canvas;
    }
    return nullptr;
}

class BlockMap : public testing::Test {
protected:
    BlockMap() {
        std::vector<MapBlock> blocks = Squares("EAST FIELD", -90.0, 5, 4);
        for (MapBlock& block : Squares("WEST FIELD", -91.0, 5, 4))
            blocks.push_back(std::move(block));
        window_ = std::make_unique<BlockMapWindow>(std::move(blocks));
        window_->resize(1000, 600);
        window_->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
        canvas_ = CanvasOf(*window_);
    }

    QPushButton* Button(const QString& text) {
        for (QPushButton* button : window_->findChildren<QPushButton*>()) {
            if (button->text().remove(u'&') == text) return button;
        }
        return nullptr;
    }
    QStringList Listed() {
        const auto* list = window_->findChild<QListWidget*>();
        QStringList rows;
        for (int row = 0; row < list->count(); ++row)
            rows << list->item(row)->text();
        return rows;
    }
    /// The middle of a block on the canvas; its number counts from 0 over both areas.
    QPoint At(std::size_t block, double east = 0.5, double south = 0.5) {
        const auto& outline = window_->Blocks()[block].outline;
        const kv::map::Place place{outline[0].lat + (outline[2].lat - outline[0].lat) * south,
                                   outline[0].lon + (outline[2].lon - outline[0].lon) * east};
        const auto at = canvas_->View().ToScreen(kv::map::ToMap(place));
        return {static_cast<int>(at.x), static_cast<int>(at.y)};
    }
    void Click(std::size_t block) { QTest::mouseClick(canvas_, Qt::LeftButton, {}, At(block)); }
    void Drag(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = {}) {
        QTest::mousePress(canvas_, button, modifiers, from);
        for (const QPoint& at : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, canvas_->mapToGlobal(at), Qt::NoButton, button,
                             modifiers);
            QApplication::sendEvent(canvas_, &move);
        }
        QTest::mouseRelease(canvas_, button, modifiers, to);
    }
    void SavePicture(const QString& name) {
        EXPECT_TRUE(window_->grab().save(test::PicturePath(name)));
    }

    std::unique_ptr<BlockMapWindow> window_;
    BlockMapCanvas* canvas_ = nullptr;
};

TEST_F(BlockMap, FitsASmallScreen) {
    EXPECT_LE(window_->minimumSizeHint().width(), 960);
    const QFont former = QApplication::font();
    QFont twice = former;
    twice.setPointSizeF(former.pointSizeF() * 2);
    QApplication::setFont(twice);
    EXPECT_LE(window_->minimumSizeHint().width(), 960);
    EXPECT_LE(window_->minimumSizeHint().height(), 540);
    QApplication::setFont(former);
}

TEST_F(BlockMap, ComesUpWithAllBlocksInSightAndNonePicked) {
    ASSERT_TRUE(canvas_);
    for (std::size_t block = 0; block < window_->Blocks().size(); ++block) {
        EXPECT_TRUE(canvas_->rect().contains(At(block)));
        EXPECT_EQ(canvas_->BlockAt(At(block)), block);
    }
    EXPECT_THAT(window_->Picks(), IsEmpty());
    EXPECT_FALSE(Button("OK")->isEnabled());
    EXPECT_FALSE(Button("Remove")->isEnabled());
    EXPECT_FALSE(Button("Clear")->isEnabled());
}

TEST_F(BlockMap, AClickPicksABlockAndAnotherTakesItOut) {
    Click(6);
    Click(21);
    EXPECT_THAT(window_->Picks(), ElementsAre(6, 21));
    EXPECT_EQ(Listed(), (QStringList{"EAST FIELD 7A", "WEST FIELD 2"}));
    EXPECT_TRUE(Button("OK")->isEnabled());
    Click(6);
    EXPECT_THAT(window_->Picks(), ElementsAre(21));
    EXPECT_EQ(Listed(), QStringList{"WEST FIELD 2"});
    Click(21);
    EXPECT_FALSE(Button("OK")->isEnabled());
}

TEST_F(BlockMap, AClickBesideTheBlocksPicksNone) {
    QTest::mouseClick(canvas_, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_THAT(window_->Picks(), IsEmpty());
}

TEST_F(BlockMap, ARubberBandPicksTheBlocksWhoseMiddleItHolds) {
    Click(6);
    Drag(At(0, 0.3, 0.3), At(6, 0.7, 0.7));
    EXPECT_THAT(window_->Picks(), ElementsAre(6, 0, 1, 5));
    // From below, and only across half of blocks.
    Drag(At(13, 0.4, 0.9), At(12, 0.6, 0.6));
    EXPECT_THAT(window_->Picks(), ElementsAre(6, 0, 1, 5));
}

TEST_F(BlockMap, WithCtrlARubberBandTakesThemOut) {
    Drag(At(0, 0.3, 0.3), At(12, 0.7, 0.7));
    ASSERT_EQ(window_->Picks().size(), 9U);
    Drag(At(5, 0.3, 0.3), At(12, 0.7, 0.7), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_THAT(window_->Picks(), ElementsAre(0, 1, 2));
}

TEST_F(BlockMap, TheRightButtonMovesTheMapAndPicksNothing) {
    const QPoint before = At(6);
    Drag(before, before + QPoint(40, 25), Qt::RightButton);
    EXPECT_THAT(window_->Picks(), IsEmpty());
    EXPECT_LE((At(6) - before - QPoint(40, 25)).manhattanLength(), 2);
    Click(6);
    EXPECT_THAT(window_->Picks(), ElementsAre(6));
}

TEST_F(BlockMap, TheWheelZoomsAboutTheMouse) {
    const double scale = canvas_->View().Scale();
    const QPoint before = At(6);
    QWheelEvent wheel(before, canvas_->mapToGlobal(before), {}, {0, 240}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(canvas_, &wheel);
    EXPECT_GT(canvas_->View().Scale(), 1.5 * scale);
    EXPECT_LE((At(6) - before).manhattanLength(), 2);
}

TEST_F(BlockMap, ItsTwoButtonsZoom) {
    const auto click = [&](const char* name) {
        for (QToolButton* button : window_->findChildren<QToolButton*>())
            if (button->accessibleName() == name && button->isVisible())
                QTest::mouseClick(button, Qt::LeftButton);
    };
    const double scale = canvas_->View().Scale();
    click("Zoom in");
    EXPECT_GT(canvas_->View().Scale(), scale);
    click("Zoom out");
    EXPECT_NEAR(canvas_->View().Scale(), scale, 1e-9 * scale);
}

TEST_F(BlockMap, KeysMoveZoomAndPick) {
    const double scale = canvas_->View().Scale();
    canvas_->setFocus();
    QTest::keyClick(canvas_, Qt::Key_Plus);
    EXPECT_GT(canvas_->View().Scale(), scale);
    const QPoint before = At(6);
    QTest::keyClick(canvas_, Qt::Key_Left);
    EXPECT_GT(At(6).x(), before.x());
    QTest::keyClick(canvas_, Qt::Key_Home);
    EXPECT_DOUBLE_EQ(canvas_->View().Scale(), scale);
    canvas_->ShowArea("WEST FIELD");
    const auto middle = canvas_->BlockAt(canvas_->rect().center());
    ASSERT_TRUE(middle);
    QTest::keyClick(canvas_, Qt::Key_Space);
    EXPECT_THAT(window_->Picks(), ElementsAre(*middle));
    QTest::keyClick(canvas_, Qt::Key_Space);
    EXPECT_THAT(window_->Picks(), IsEmpty());
}

TEST_F(BlockMap, AKeyMarksWhereItActsUntilTheMouseIsUsed) {
    const auto click = [&] { QTest::mouseClick(canvas_, Qt::LeftButton, {}, {2, 2}); };
    click();
    const QImage byMouse = canvas_->grab().toImage();
    QTest::keyClick(canvas_, Qt::Key_Shift);
    EXPECT_FALSE(canvas_->grab().toImage() == byMouse);
    click();
    EXPECT_TRUE(canvas_->grab().toImage() == byMouse);
}

TEST_F(BlockMap, AnAreaIsBroughtUpByItsName) {
    auto* areas = window_->findChild<QComboBox*>(QStringLiteral("areas"));
    ASSERT_EQ(areas->count(), 3);
    EXPECT_EQ(areas->itemText(2), "WEST FIELD");
    const double scale = canvas_->View().Scale();
    areas->setFocus();
    QTest::keyClick(areas, Qt::Key_Down);
    QTest::keyClick(areas, Qt::Key_Down);
    EXPECT_GT(canvas_->View().Scale(), 1.5 * scale);
    EXPECT_TRUE(canvas_->rect().contains(At(20)) && canvas_->rect().contains(At(39)));
    EXPECT_FALSE(canvas_->rect().contains(At(4)));
}

TEST_F(BlockMap, MarkedPicksAreRemovedAndAllOfThemCleared) {
    for (const std::size_t block : {3U, 5U, 9U, 22U})
        Click(block);
    auto* list = window_->findChild<QListWidget*>();
    list->item(1)->setSelected(true);
    list->item(2)->setSelected(true);
    QTest::mouseClick(Button("Remove"), Qt::LeftButton);
    EXPECT_THAT(window_->Picks(), ElementsAre(3, 22));
    EXPECT_FALSE(Button("Remove")->isEnabled());
    QTest::mouseClick(Button("Clear"), Qt::LeftButton);
    EXPECT_THAT(window_->Picks(), IsEmpty());
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(BlockMap, TellsWhichBlockTheMouseIsOn) {
    QTest::mouseMove(canvas_, At(6));
    EXPECT_TRUE(QTest::qWaitFor([&] { return canvas_->Hovered() == 6U; }));
    bool told = false;
    for (const QLabel* label : window_->findChildren<QLabel*>())
        told = told || label->text() == "EAST FIELD 7A";
    EXPECT_TRUE(told);
}

TEST_F(BlockMap, PutsThePicksInFieldsWithCommas) {
    EXPECT_EQ(window_->PicksText(), "BLOCKS,0,");
    Click(6);
    Click(21);
    EXPECT_EQ(window_->PicksText(), "BLOCKS,2,EAST FIELD,7,A,WEST FIELD,2,,");
}

TEST_F(BlockMap, DrawsPicksInAColorOfTheirOwn) {
    const QImage before = canvas_->grab().toImage();
    const QPoint place = At(6, 0.2, 0.2), other = At(8, 0.2, 0.2);
    Click(6);
    QTest::mouseMove(canvas_, QPoint(1, 1));
    const QImage after = canvas_->grab().toImage();
    EXPECT_NE(after.pixelColor(place), before.pixelColor(place));
    EXPECT_EQ(after.pixelColor(other), before.pixelColor(other));
    Drag(At(22), At(34, 0.8, 0.8));
    SavePicture("block_map.png");
}

TEST(BlockMapCanvas, AreasBesideOneAnotherDifferInTheirTints) {
    // In the order of their names the neighbors are as far apart as there are tints.
    std::vector<MapBlock> blocks = Squares("A", -90, 2, 2);
    for (const auto& [name, west] : std::vector<std::pair<std::string, double>>{
             {"B", -80}, {"C", -78}, {"D", -76}, {"E", -74}, {"F", -72}, {"G", -89.8}}) {
        for (MapBlock& block : Squares(name, west, 2, 2))
            blocks.push_back(std::move(block));
    }
    BlockMapCanvas canvas(blocks);
    canvas.resize(1800, 400);
    const QImage picture = canvas.grab().toImage();
    const auto colorOf = [&](std::size_t block) {
        const auto& place = blocks[block].outline[0];
        const auto at =
            canvas.View().ToScreen(kv::map::ToMap({place.lat - 0.04, place.lon + 0.04}));
        return picture.pixelColor(static_cast<int>(at.x), static_cast<int>(at.y));
    };
    EXPECT_EQ(colorOf(0), colorOf(3));
    EXPECT_NE(colorOf(0), colorOf(24));
}

TEST(BlockMapCanvas, LinesAreSmooth) {
    BlockMapCanvas canvas(
        {{"AREA", "", "", {{28, -90}, {28.05, -89}, {27.05, -88.9}, {27, -90.1}}}});
    canvas.resize(400, 300);
    const QImage picture = canvas.grab().toImage();
    std::set<QRgb> colors;
    for (int x = 0; x < picture.width(); ++x)
        colors.insert(picture.pixel(x, 20));
    for (int y = 0; y < picture.height(); ++y)
        colors.insert(picture.pixel(200, y));
    for (int y = 0; y < picture.height(); ++y)
        colors.insert(picture.pixel(120, y));
    // More than ground, block and line.
    EXPECT_GT(colors.size(), 4U);
}

TEST_F(BlockMap, AMapWithoutBlocksHarmsNothing) {
    BlockMapWindow empty({});
    empty.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&empty));
    QTest::mouseClick(CanvasOf(empty), Qt::LeftButton);
    EXPECT_FALSE(empty.grab().isNull());
    EXPECT_THAT(empty.Picks(), IsEmpty());
}

/// The window that is open, as the person at it finds it.
BlockMapWindow* OpenWindow() {
    return dynamic_cast<BlockMapWindow*>(QApplication::activeModalWidget());
}

TEST(PickBlocksOnMap, GivesThePicksWithOkAndNothingWithCancel) {
    for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
        bool opened = false;
        // Showing a window may handle events before it is modal.
        QTimer person;
        QObject::connect(&person, &QTimer::timeout, qApp, [&] {
            BlockMapWindow* window = OpenWindow();
            if (!window || !window->isVisible()) return;
            person.stop();
            opened = true;
            auto* canvas = CanvasOf(*window);
            const auto at = canvas->View().ToScreen(kv::map::ToMap({27.95, -89.95}));
            QTest::mouseClick(canvas, Qt::LeftButton, {},
                              QPoint(static_cast<int>(at.x), static_cast<int>(at.y)));
            QTest::mouseClick(window->findChild<QDialogButtonBox*>()->button(button),
                              Qt::LeftButton);
        });
        person.start(0);
        const std::string text = kv::qt::PickBlocksOnMap(Squares("EAST FIELD", -90.0, 5, 4));
        EXPECT_TRUE(opened);
        EXPECT_EQ(text, button == QDialogButtonBox::Ok ? "BLOCKS,1,EAST FIELD,1,," : "");
    }
}

}  // namespace
