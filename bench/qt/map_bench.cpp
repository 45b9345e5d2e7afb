// The map of the workbench over the whole sample dataset, a frame at a time, beside a loop that
// draws every outline.

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <ctime>

#include "ratio.h"
#include "sample_map.h"
#include "workbench/map/map_painter.h"

namespace {

using workbench::MapView;

constexpr int kWidth = 1600;
constexpr int kHeight = 900;
/// Thirty frames a second.
constexpr double kLongestFrame = 1.0 / 30;

/// In the middle of the busiest areas.
constexpr workbench::Place kMiddle{28.4, -91.5};
/// Pixels for a degree at which the lines of all blocks are drawn and most are on the screen.
constexpr double kAllBlocks = 115;

MapView Whole() {
    MapView view;
    view.Resize(kWidth, kHeight);
    view.SetBounds(bench::SampleMap().Bounds());
    view.ShowAll();
    return view;
}

/// A movement to and fro takes so many frames.
constexpr int kFrames = 48;

/// Draws frame after frame, with `move` in between. The first movement, which finds no label drawn
/// yet, is left out. With `inTime`, thirty frames must fit in a second.
template <typename Move, typename Draw>
void Run(benchmark::State& state, Move&& move, Draw&& draw, bool inTime) {
    MapView view = Whole();
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    int frame = 0;
    const auto next = [&] {
        move(view, frame++);
        QPainter painter(&screen);
        draw(painter, view);
    };
    while (inTime && frame < kFrames)
        next();
    const int before = frame;
    const std::clock_t begin = std::clock();
    for (auto _ : state)
        next();
    const double seconds =
        static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / (frame - before);
    state.counters["frames/s"] = 1 / seconds;
    if (inTime && frame - before >= kFrames && seconds > kLongestFrame) {
        state.SkipWithError("slower than 30 frames a second");
    }
}

template <typename Move>
void Ours(benchmark::State& state, Move&& move) {
    workbench::MapPainter map;
    map.SetFont(QApplication::font());
    Run(
        state, move,
        [&](QPainter& painter, const MapView& view) {
            map.Draw(painter, bench::SampleMap(), view, {}, {});
        },
        true);
}

template <typename Move>
void Peer(benchmark::State& state, Move&& move) {
    const auto draw = [](QPainter& painter, const MapView& view) {
        painter.fillRect(0, 0, kWidth, kHeight, Qt::white);
        painter.setRenderHint(QPainter::Antialiasing);
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
    };
    Run(state, move, draw, false);
}

/// All areas, from afar.
void Stay(MapView&, int) {}

/// All blocks with their lines, dragged to and fro.
void Pan(MapView& view, int frame) {
    if (frame == 0) view.SetMiddle(view.Middle(), kAllBlocks);
    view.Pan(frame % kFrames < kFrames / 2 ? 7 : -7, 0);
}

/// From all blocks down to a few with their wells and pipelines, and back again.
void Zoom(MapView& view, int frame) {
    constexpr double kStep = 1.25;
    if (frame == 0) view.SetMiddle(workbench::ToMap(kMiddle), kAllBlocks);
    view.Zoom({kWidth / 2.0, kHeight / 2.0}, frame % kFrames < kFrames / 2 ? kStep : 1 / kStep);
}

const bench::Subject kWhole(
    "map/frame of all areas", 1.0, [](benchmark::State& state) { Ours(state, Stay); },
    [](benchmark::State& state) { Peer(state, Stay); });
const bench::Subject kPan(
    "map/pan over all blocks", 1.0, [](benchmark::State& state) { Ours(state, Pan); },
    [](benchmark::State& state) { Peer(state, Pan); });
const bench::Subject kZoom(
    "map/zoom from all blocks to few", 1.0, [](benchmark::State& state) { Ours(state, Zoom); },
    [](benchmark::State& state) { Peer(state, Zoom); });

}  // namespace
