#include "frames.h"

#include <QImage>
#include <ctime>

#include "sample_map.h"

namespace bench {

using workbench::MapView;

namespace {

/// Thirty frames a second.
constexpr double kLongestFrame = 1.0 / 30;

bool IsWayBack(int frame) {
    return frame >= kFrames / 2;
}

/// The processor time of a frame, in seconds.
double Run(benchmark::State& state, MapView& view, Move move, const Draw& draw) {
    QImage screen(kMapWidth, kMapHeight, QImage::Format_RGB32);
    const auto movement = [&] {
        for (int frame = 0; frame < kFrames; ++frame) {
            move(view, frame);
            QPainter painter(&screen);
            painter.setRenderHint(QPainter::Antialiasing);
            draw(painter, view);
        }
    };
    movement();
    const std::clock_t begin = std::clock();
    for (auto _ : state)
        movement();
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    return seconds / kFrames / static_cast<double>(state.iterations());
}

}  // namespace

MapView WholeView() {
    MapView view;
    view.Resize(kMapWidth, kMapHeight);
    view.SetBounds(SampleMap().Bounds());
    view.ShowAll();
    return view;
}

void DrawFrames(benchmark::State& state, MapView view, Move move, const Draw& draw) {
    Run(state, view, move, draw);
}

void DrawFramesInTime(benchmark::State& state, MapView view, Move move, const Draw& draw) {
    if (Run(state, view, move, draw) > kLongestFrame)
        state.SkipWithError("slower than 30 frames a second");
}

void Pan(MapView& view, int frame) {
    view.Pan(IsWayBack(frame) ? -7 : 7, 0);
}

void Zoom(MapView& view, int frame) {
    constexpr double kStep = 1.5;
    view.Zoom({kMapWidth / 2.0, kMapHeight / 2.0}, IsWayBack(frame) ? 1 / kStep : kStep);
}

}  // namespace bench
