#include "map_picks/map_picks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <string>

#include "apps/workbench_fixture.h"
#include "blocks/blk_ext_dlg.h"
#include "blocks/blk_ext_ids.h"
#include "frame/graphics.h"
#include "frame/module.h"
#include "qt/map/block_map_canvas.h"
#include "qt/qt_desktop.h"

namespace {

using kv::qt::BlockMapWindow;
using kv::qt::MapBlock;
using testing::ElementsAre;

class MapPicks : public test::SampleTest {
protected:
    MapPicks() {
        InitControlDll();
        map_picks::Install();
    }
    ~MapPicks() override { kv::SetGraphics(nullptr); }
};

const MapBlock* Find(const std::vector<MapBlock>& blocks, const std::string& area,
                     const std::string& label) {
    const auto found = std::ranges::find_if(blocks, [&](const MapBlock& block) {
        return block.area == area && block.Label() == label;
    });
    return found == blocks.end() ? nullptr : &*found;
}

TEST_F(MapPicks, ReadEveryBlockWithItsCorners) {
    const std::vector<MapBlock> blocks = map_picks::ReadBlocks();
    EXPECT_EQ(blocks.size(), static_cast<std::size_t>(Count("NORVADON.gulf_mexico_lbi")));
    std::size_t corners = 0;
    for (const MapBlock& block : blocks)
        corners += block.outline.size();
    EXPECT_EQ(corners, static_cast<std::size_t>(Count("NORVADON.gulf_mexico_lbv")));
    const MapBlock* block = Find(blocks, "GREEN CANYON", "500");
    ASSERT_TRUE(block);
    EXPECT_EQ(block->extension, "");
    EXPECT_EQ(block->outline.size(), 4U);
    EXPECT_NEAR(block->outline[0].lat, 27.5, 0.1);
    EXPECT_NEAR(block->outline[0].lon, -91.3, 0.1);
}

TEST_F(MapPicks, ExtensionsHaveTheSuffixOfTheWater) {
    const std::vector<MapBlock> blocks = map_picks::ReadBlocks();
    const auto inStateWaters = std::ranges::count_if(
        blocks, [](const MapBlock& block) { return block.extension.ends_with("-S"); });
    EXPECT_EQ(inStateWaters,
              Count("NORVADON.gulf_mexico_lbi where substr(areacode, 1, 3) = '426'"));
    EXPECT_GT(inStateWaters, 0);
}

/// What the person does at the map, as soon as it is up.
void AtTheMap(const std::function<void(BlockMapWindow&, kv::qt::BlockMapCanvas&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* window = dynamic_cast<BlockMapWindow*>(QApplication::activeModalWidget());
        if (!window) return;
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            if (auto* canvas = dynamic_cast<kv::qt::BlockMapCanvas*>(widget))
                return act(*window, *canvas);
        }
    });
}

void ClickBlock(kv::qt::BlockMapCanvas& canvas, const std::string& area, const std::string& label) {
    const MapBlock* block = Find(canvas.Blocks(), area, label);
    ASSERT_TRUE(block);
    const auto number = static_cast<std::size_t>(block - canvas.Blocks().data());
    kv::map::Box box;
    for (const kv::map::Place& place : block->outline)
        box.Include(kv::map::ToMap(place));
    const auto at = canvas.View().ToScreen(box.Middle());
    QTest::mouseClick(&canvas, Qt::LeftButton, {},
                      QPoint(static_cast<int>(at.x), static_cast<int>(at.y)));
    EXPECT_TRUE(canvas.IsPicked(number)) << area << " " << label;
}

class SelectFromMap : public MapPicks {
protected:
    SelectFromMap() {
        dialog_.SetFieldString("areaname");
        dialog_.SetTableName("NORVADON.gulf_mexico_connam2");
        dialog_.SetType(selection_, "NORVADON");
        EXPECT_TRUE(dialog_.Create(kv::blk_ext::kTemplate));
        QApplication::processEvents();
    }
    ~SelectFromMap() override { dialog_.DestroyWindow(); }

    void Press() {
        QTest::mouseClick(kv::qt::WidgetOf(*dialog_.GetDlgItem(kv::blk_ext::kFromMap)->m_hWnd),
                          Qt::LeftButton);
    }
    static void End(BlockMapWindow& window, QDialogButtonBox::StandardButton button) {
        QTest::mouseClick(window.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    }

    kv::qt::QtDesktop desktop_;
    kv::blocks::Selection selection_;
    CKvGuiBlkExtDlg dialog_;
};

TEST_F(SelectFromMap, PutsWhatWasPickedIntoTheSelection) {
    bool opened = false;
    AtTheMap([&](BlockMapWindow& window, kv::qt::BlockMapCanvas& canvas) {
        opened = true;
        window.resize(1200, 800);
        canvas.ShowArea("GREEN CANYON");
        QApplication::processEvents();
        ClickBlock(canvas, "GREEN CANYON", "500");
        ClickBlock(canvas, "GREEN CANYON", "545");
        canvas.ShowAll();
        canvas.ShowArea("GREEN CANYON");
        QApplication::processEvents();
        QDir().mkpath(QStringLiteral("pictures"));
        EXPECT_TRUE(window.grab().save(QStringLiteral("pictures/select_from_map.png")));
        End(window, QDialogButtonBox::Ok);
    });
    Press();
    EXPECT_TRUE(opened);
    EXPECT_THAT(selection_.first, ElementsAre("GREEN CANYON", "GREEN CANYON"));
    EXPECT_THAT(selection_.second, ElementsAre("500", "545"));
}

TEST_F(SelectFromMap, CancelLeavesTheSelectionAsItWas) {
    bool opened = false;
    AtTheMap([&](BlockMapWindow& window, kv::qt::BlockMapCanvas& canvas) {
        opened = true;
        canvas.ShowArea("GREEN CANYON");
        ClickBlock(canvas, "GREEN CANYON", "500");
        End(window, QDialogButtonBox::Cancel);
    });
    Press();
    EXPECT_TRUE(opened);
    EXPECT_TRUE(selection_.first.empty());
}

}  // namespace
