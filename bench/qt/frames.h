#pragma once

#include <benchmark/benchmark.h>

#include <QPainter>
#include <functional>

#include "workbench/map/map_view.h"

/// The map that moves, a frame at a time.
namespace bench {

inline constexpr int kMapWidth = 1600;
inline constexpr int kMapHeight = 900;

/// A movement to and fro takes so many frames.
inline constexpr int kFrames = 24;

using Move = void (*)(workbench::MapView& view, int frame);
using Draw = std::function<void(QPainter& painter, const workbench::MapView& view)>;

/// The view that shows all of the sample dataset.
workbench::MapView WholeView();

/// Draws whole movements, with `move` ahead of each frame. The first movement, which finds no label
/// drawn yet, is left out.
void DrawFrames(benchmark::State& state, workbench::MapView view, Move move, const Draw& draw);
/// The same, and fails where thirty frames do not fit in a second.
void DrawFramesInTime(benchmark::State& state, workbench::MapView view, Move move,
                      const Draw& draw);

/// Seven pixels to the left, and back again.
void Pan(workbench::MapView& view, int frame);
/// From where it is down to a hundredth of it, and back again.
void Zoom(workbench::MapView& view, int frame);

}  // namespace bench
