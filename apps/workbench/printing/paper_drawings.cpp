#include "workbench/printing/paper_drawings.h"

namespace workbench {

PaperDrawings DrawingsOnPaper(const MapDrawings& from, const PaperProjection& projection) {
    PaperDrawings paper{from, {}, {}, 0};
    if (!from.drawings) return paper;
    const DriverPlane plane = projection.Plane();
    for (const DrawnLine& line : from.drawings->lines) {
        std::vector<Point> points;
        for (const Place& place : line.points) {
            if (const auto point = plane.ToXY(place)) points.push_back(*point);
        }
        if (points.size() != line.points.size()) {
            points.clear();
            ++paper.leftOut;
        } else if (line.closed) {
            points.push_back(points.front());
        }
        paper.lines.push_back(std::move(points));
    }
    for (const DrawnText& text : from.drawings->texts) {
        paper.texts.push_back(plane.ToXY(text.at));
        if (!paper.texts.back()) ++paper.leftOut;
    }
    return paper;
}

}  // namespace workbench
