// The map of the workbench over the whole sample dataset, a frame at a time, beside a loop that
// draws every outline.

#include <QApplication>

#include "frames.h"
#include "ratio.h"
#include "sample_map.h"
#include "workbench/map/map_painter.h"

namespace {

using workbench::MapView;

/// In the middle of the busiest areas.
constexpr workbench::Place kMiddle{28.4, -91.5};
/// Pixels for a degree at which the lines of all blocks are drawn and most are on the screen.
constexpr double kAllBlocks = 115;

/// All blocks with their lines.
MapView AllBlocks(const workbench::Point& middle) {
    MapView view = bench::WholeView();
    view.SetMiddle(middle, kAllBlocks);
    return view;
}

void Ours(benchmark::State& state, const MapView& view, bench::Move move) {
    workbench::MapPainter map;
    map.SetFont(QApplication::font());
    bench::DrawFramesInTime(state, view, move, [&](QPainter& painter, const MapView& at) {
        map.Draw(painter, bench::SampleMap(), at, {}, {});
    });
}

void DrawEveryOutline(QPainter& painter, const MapView& view) {
    painter.fillRect(0, 0, bench::kMapWidth, bench::kMapHeight, Qt::white);
    painter.setBrush(QColor(0xe1, 0xef, 0xf8));
    painter.setPen(QColor(0x6f, 0x8d, 0xa8));
    QPolygonF polygon;
    for (const auto& area : bench::SampleMap().Areas()) {
        for (std::size_t block = 0; block < area->blocks.Size(); ++block) {
            polygon.clear();
            for (const workbench::Point& corner : area->blocks.Points(block)) {
                const workbench::ScreenPoint at = view.ToScreen(corner);
                polygon.append({at.x, at.y});
            }
            painter.drawPolygon(polygon);
        }
    }
}

void Peer(benchmark::State& state, const MapView& view, bench::Move move) {
    bench::DrawFrames(state, view, move, DrawEveryOutline);
}

/// All areas, from afar.
void Stay(MapView&, int) {}

MapView BusiestBlocks() {
    return AllBlocks(workbench::ToMap(kMiddle));
}

MapView MiddleBlocks() {
    return AllBlocks(bench::WholeView().Middle());
}

const bench::Subject kWhole(
    "map/frames of all areas", 1.0,
    [](benchmark::State& state) { Ours(state, bench::WholeView(), Stay); },
    [](benchmark::State& state) { Peer(state, bench::WholeView(), Stay); });
const bench::Subject kPan(
    "map/pan over all blocks", 1.0,
    [](benchmark::State& state) { Ours(state, MiddleBlocks(), bench::Pan); },
    [](benchmark::State& state) { Peer(state, MiddleBlocks(), bench::Pan); });
const bench::Subject kZoom(
    "map/zoom from all blocks to few", 1.0,
    [](benchmark::State& state) { Ours(state, BusiestBlocks(), bench::Zoom); },
    [](benchmark::State& state) { Peer(state, BusiestBlocks(), bench::Zoom); });

}  // namespace
