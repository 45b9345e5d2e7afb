#include "workbench/printing/page_drawings.h"

#include "workbench/drawings/drawing_colors.h"
#include "workbench/drawings/line_dashes.h"
#include "workbench/drawings/text_shape.h"
#include "workbench/map/cut.h"

namespace workbench {

namespace {

/// Points of paper for a pixel.
constexpr double kPixel = kPointsPerInch / 96;

std::vector<Point> Corners(const std::vector<QPointF>& points) {
    std::vector<Point> corners;
    corners.reserve(points.size());
    for (const QPointF& point : points)
        corners.push_back({point.x(), point.y()});
    return corners;
}

void AddLine(QPainterPath& path, std::span<const Point> points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF at(points[i].x, points[i].y);
        i == 0 ? path.moveTo(at) : path.lineTo(at);
    }
}

Anchor AnchorOf(TextPart part) {
    switch (part) {
        case TextPart::kCenter:
            return Anchor::kMiddle;
        case TextPart::kRight:
            return Anchor::kRight;
        case TextPart::kLeft:
            break;
    }
    return Anchor::kLeft;
}

}  // namespace

PageDrawings::PageDrawings(const PrintPlan& plan, const PageView& view, Paper& paper)
    : plan_(plan),
      view_(view),
      paper_(paper),
      neat_{view.Neat().left(), view.Neat().top(), view.Neat().right(), view.Neat().bottom()} {}

QColor PageDrawings::LineColor(int index) const {
    return LineOnPaper(DrawnColor(index), plan_.ink);
}

std::vector<QPointF> PageDrawings::OnPage(std::span<const Point> points) const {
    std::vector<QPointF> onPage;
    onPage.reserve(points.size());
    for (const Point& point : points)
        onPage.push_back(view_.At(point));
    return onPage;
}

void PageDrawings::Fill(std::span<const Point> points, int color) {
    const std::vector<Point> outline = CutOutline(Corners(OnPage(points)), neat_);
    if (outline.empty()) return;
    QPainterPath path;
    AddLine(path, outline);
    path.closeSubpath();
    paper_.Draw(path, {FillOnPaper(DrawnColor(color), plan_.ink), {}});
}

void PageDrawings::DrawFills() {
    if (!plan_.drawings.from.drawings) return;
    const auto& fills = plan_.drawings.from.drawings->fills;
    for (const AreaMap& area : plan_.map.areas) {
        const auto first = fills.lower_bound({area.code, ""});
        if (first == fills.end() || first->first.area != area.code) continue;
        area.blocks.ForEachIn(view_.Shown(), [&](std::size_t number) {
            const auto fill = fills.find({area.code, std::string(area.blocks.Label(number))});
            if (fill != fills.end()) Fill(area.blocks.Points(number), fill->second);
        });
    }
}

void PageDrawings::DrawLinesAndTexts() {
    const PaperDrawings& drawings = plan_.drawings;
    for (std::size_t i = 0; i < drawings.lines.size(); ++i)
        DrawLine(drawings.from.drawings->lines[i], drawings.lines[i]);
    for (std::size_t i = 0; i < drawings.texts.size(); ++i) {
        if (drawings.texts[i]) WriteText(drawings.from.drawings->texts[i], *drawings.texts[i]);
    }
}

void PageDrawings::DrawLine(const DrawnLine& line, std::span<const Point> points) {
    Box box;
    for (const Point& point : points)
        box.Include(point);
    if (box.Empty() || !box.Meets(view_.Shown())) return;
    if (line.filled) Fill(points, line.fillColor);
    if (IsBlank(line.type)) return;
    const std::vector<QPointF> onPage = OnPage(points);
    QPainterPath path;
    if (IsSolid(line.type)) {
        for (const auto& part : CutPath(Corners(onPage), neat_))
            AddLine(path, part);
    } else {
        path = DashesOf(onPage, line.type, line.width, kPixel, view_.Neat());
    }
    if (path.isEmpty()) return;
    paper_.Draw(path, {{}, LineColor(line.color), LineThickness(line.width) * kPixel});
}

/// What reaches over the line around the map is cut, and so is a shape.
void PageDrawings::WriteText(const DrawnText& text, const Point& at) {
    const double unit = text.height * plan_.drawings.from.feetPerInch * view_.Scale();
    const TextShape shape = ShapeOf(text);
    const QPointF place = view_.At(at);
    const QRectF reach = PlacedAt(text, place, unit).mapRect(shape.box);
    if (!reach.intersects(view_.Neat())) return;
    const double stroke = StrokeOf(text.weight) * unit;
    const QColor color = LineColor(text.color);
    if (!view_.Neat().contains(reach)) {
        QPainterPath map;
        map.addRect(view_.Neat());
        const QPainterPath letters = PlacedAt(text, place, unit).map(LettersOf(text));
        paper_.Draw(letters.intersected(map), {color, {}});
        return;
    }
    Writing writing;
    writing.text = QString::fromStdString(text.text);
    writing.at = PlacedAt(text, place, unit).map(QPointF(0, shape.begin.y()));
    writing.size = shape.fontSize * unit;
    writing.color = color;
    writing.anchor = AnchorOf(text.part);
    writing.turned = text.angle == 0 ? 0 : -text.angle;
    writing.stroke = stroke;
    paper_.Write(writing);
}

}  // namespace workbench
