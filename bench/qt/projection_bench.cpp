// The map of the workbench changes its projection: all of the sample dataset up to the next whole
// frame, beside a loop that sends the same vertices through the driver and paints every outline.

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <ctime>
#include <set>
#include <vector>

#include "frames.h"
#include "ratio.h"
#include "sample_map.h"
#include "workbench/map/map_painter.h"
#include "workbench/map/projected_map.h"

namespace {

using workbench::AreaMap;
using workbench::MapProjection;
using workbench::MapView;
using workbench::Place;
using workbench::Point;

constexpr double kLongest = 0.3;
constexpr Place kMiddle{28.4, -91.5};

/// To and fro, so that nothing is as it was.
MapProjection Next(int turn) {
    return *MapProjection::Of({turn % 2 == 0 ? 115 : 116, true, {}}, kMiddle);
}

MapView Whole(const workbench::MapModel& model) {
    MapView view;
    view.Resize(bench::kMapWidth, bench::kMapHeight);
    view.SetBounds(model.Bounds());
    view.ShowAll();
    return view;
}

/// Each vertex of the map once; of corners that blocks share, one.
const std::vector<Place>& Vertices() {
    static const std::vector<Place> all = [] {
        std::vector<Place> places;
        for (const auto& area : bench::SampleMap().Areas()) {
            std::set<std::pair<double, double>> corners;
            for (const Point& corner : area->blocks.AllPoints()) {
                if (corners.emplace(corner.x, corner.y).second)
                    places.push_back(workbench::ToPlace(corner));
            }
            for (const auto layer : {&AreaMap::wells, &AreaMap::platforms, &AreaMap::pipelines}) {
                for (const Point& point : ((*area).*layer).AllPoints())
                    places.push_back(workbench::ToPlace(point));
            }
        }
        return places;
    }();
    return all;
}

void Ours(benchmark::State& state) {
    workbench::ProjectedMap projected(bench::SampleMap());
    workbench::MapPainter painter;
    painter.SetFont(QApplication::font());
    QImage screen(bench::kMapWidth, bench::kMapHeight, QImage::Format_RGB32);
    int turn = 0;
    const auto change = [&] {
        const MapProjection projection = Next(turn++);
        projected.SetProjection(projection);
        painter.SetProjection(projection);
        QPainter canvas(&screen);
        painter.Draw(canvas, projected.Drawn(), Whole(projected.Drawn()), {}, {});
    };
    // The map that a person changes is shown already, with its labels.
    change();
    const std::clock_t begin = std::clock();
    for (auto _ : state)
        change();
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC /
                           static_cast<double>(state.iterations());
    if (seconds > kLongest) state.SkipWithError("slower than 300 ms");
}

void Peer(benchmark::State& state) {
    const MapView view = Whole(bench::SampleMap());
    const std::vector<Place>& vertices = Vertices();
    QImage screen(bench::kMapWidth, bench::kMapHeight, QImage::Format_RGB32);
    int turn = 0;
    for (auto _ : state) {
        const MapProjection projection = Next(turn++);
        for (const Place& place : vertices)
            benchmark::DoNotOptimize(projection.ToMap(place));
        QPainter canvas(&screen);
        canvas.fillRect(0, 0, bench::kMapWidth, bench::kMapHeight, Qt::white);
        canvas.setRenderHint(QPainter::Antialiasing);
        canvas.setBrush(QColor(0xe1, 0xef, 0xf8));
        canvas.setPen(QColor(0x6f, 0x8d, 0xa8));
        QPolygonF polygon;
        for (const auto& area : bench::SampleMap().Areas()) {
            for (std::size_t block = 0; block < area->blocks.Size(); ++block) {
                polygon.clear();
                for (const Point& corner : area->blocks.Points(block)) {
                    const workbench::ScreenPoint at = view.ToScreen(corner);
                    polygon.append({at.x, at.y});
                }
                canvas.drawPolygon(polygon);
            }
        }
    }
}

const bench::Subject kChange("map/change of the projection", 1.3, Ours, Peer);

}  // namespace
