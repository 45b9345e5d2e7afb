// The map with 10,000 drawn lines of 20 vertices, every fifth of them wide or dashed, and 1,000
// texts, a frame at a time, beside a loop that draws them all.

#include <QApplication>
#include <cmath>
#include <memory>
#include <random>

#include "frames.h"
#include "ratio.h"
#include "sample_map.h"
#include "workbench/drawings/drawing_colors.h"
#include "workbench/drawings/drawn_layer.h"
#include "workbench/map/map_painter.h"

namespace {

using workbench::Drawings;
using workbench::DrawnLine;
using workbench::MapView;
using workbench::Place;

constexpr Place kMiddle{28.4, -91.5};
/// Pixels for a degree at which all that is drawn is on the screen.
constexpr double kAll = 115;
constexpr int kLines = 10'000;
constexpr int kVertices = 20;
constexpr int kTexts = 1'000;
constexpr double kFeetPerInch = 20'000;

Drawings Make() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> part(-1, 1);
    const auto place = [&] {
        return Place{kMiddle.lat + 3.2 * part(random), kMiddle.lon + 6.5 * part(random)};
    };
    Drawings drawings;
    for (int i = 0; i < kLines; ++i) {
        DrawnLine line;
        line.color = i % workbench::kColors;
        if (i % 10 == 0) line.width = 1 + i / 10 % 9;
        if (i % 10 == 5) line.type = 1 + i / 10 % 4;
        line.points.push_back(place());
        double direction = 3 * part(random);
        while (line.points.size() < kVertices) {
            direction += 0.5 * part(random);
            const Place& last = line.points.back();
            line.points.push_back(
                {last.lat + 0.015 * std::sin(direction), last.lon + 0.015 * std::cos(direction)});
        }
        drawings.lines.push_back(std::move(line));
    }
    for (int i = 0; i < kTexts; ++i)
        drawings.texts.push_back(
            {place(), "PROSPECT " + std::to_string(i), 0.5, i % 4 * 30.0, i % workbench::kColors});
    return drawings;
}

const std::shared_ptr<const Drawings>& Drawn() {
    static const auto drawings = std::make_shared<const Drawings>(Make());
    return drawings;
}

MapView View() {
    MapView view = bench::WholeView();
    view.SetMiddle(workbench::ToMap(kMiddle), kAll);
    return view;
}

void Ours(benchmark::State& state, bench::Move move) {
    workbench::DrawnLayer layer(bench::SampleMap());
    layer.Show(Drawn(), {}, kFeetPerInch);
    workbench::MapPainter map;
    map.SetFont(QApplication::font());
    map.SetOverlay(&layer);
    bench::DrawFramesInTime(state, View(), move, [&](QPainter& painter, const MapView& view) {
        map.Draw(painter, bench::SampleMap(), view, {}, {});
    });
}

QPointF At(const MapView& view, const Place& place) {
    const workbench::ScreenPoint point = view.ToScreen(workbench::ToMap(place));
    return {point.x, point.y};
}

/// Every line by a pen with its own dashes, and every text.
void DrawAll(QPainter& painter, const MapView& view) {
    constexpr Qt::PenStyle kStyles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                        Qt::DashDotDotLine};
    painter.fillRect(0, 0, bench::kMapWidth, bench::kMapHeight, Qt::white);
    for (const DrawnLine& line : Drawn()->lines) {
        QPolygonF points;
        for (const Place& place : line.points)
            points.append(At(view, place));
        painter.setPen(QPen(workbench::DrawnColor(line.color), line.width + 1, kStyles[line.type]));
        painter.drawPolyline(points);
    }
    for (const workbench::DrawnText& text : Drawn()->texts) {
        painter.save();
        painter.translate(At(view, text.at));
        painter.rotate(-text.angle);
        painter.setPen(workbench::DrawnColor(text.color));
        painter.drawText(QPointF(), QString::fromStdString(text.text));
        painter.restore();
    }
}

void Peer(benchmark::State& state, bench::Move move) {
    bench::DrawFrames(state, View(), move, DrawAll);
}

const bench::Subject kPan(
    "drawings/pan over 10,000 lines and 1,000 texts", 1.0,
    [](benchmark::State& state) { Ours(state, bench::Pan); },
    [](benchmark::State& state) { Peer(state, bench::Pan); });
const bench::Subject kZoom(
    "drawings/zoom from 10,000 lines to few", 1.0,
    [](benchmark::State& state) { Ours(state, bench::Zoom); },
    [](benchmark::State& state) { Peer(state, bench::Zoom); });

}  // namespace
