#include "workbench/printing/page_map.h"

#include <array>

#include "workbench/map/cut.h"
#include "workbench/map/map_legend.h"

namespace workbench {

namespace {

// From how many points for a usual block on.
constexpr double kBlockLinesFrom = 4;
constexpr double kBlockLabelsFrom = 16;
constexpr double kCornerLabelsFrom = 60;
constexpr double kSpotLabelsFrom = 100;

constexpr double kAreaText = 10;
constexpr double kBlockText = 8;
constexpr double kSpotText = 6;
constexpr double kBesideBlock = 4;  ///< between the corner of a block and its label
constexpr double kSpotReach = 4;    ///< from the middle of a symbol to what it needs to be seen
constexpr double kDot = 1.2;

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void AddPolygon(QPainterPath& path, const std::vector<Point>& corners) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPointF at(corners[i].x, corners[i].y);
        i == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    if (!corners.empty()) path.closeSubpath();
}

std::vector<Point> Closed(std::vector<Point> corners) {
    corners.push_back(corners.front());
    return corners;
}

}  // namespace

Ink PipelineInk(const MapLook& look, InkMode mode, std::uint8_t kind) {
    constexpr double kWidth = 1;
    Dashes dashes = Dashes::kWhole;
    if (mode != InkMode::kColor && kind == kPipeGas) dashes = Dashes::kDashed;
    if (mode != InkMode::kColor && kind == kPipeOther) dashes = Dashes::kDashDotted;
    return {{}, PipelineColor(look, kind), kWidth, dashes};
}

void DrawSymbol(Paper& paper, const std::vector<SymbolPart>& parts, const QPointF& middle) {
    const QTransform place(kSymbolSize, 0, 0, kSymbolSize, middle.x(), middle.y());
    for (const SymbolPart& part : parts)
        paper.Draw(place.map(part.shape), {part.fill, part.line, part.width * kSymbolSize});
}

PageMap::PageMap(const PrintPlan& plan, const PageView& view, const MapLook& look, Paper& paper)
    : plan_(plan),
      view_(view),
      look_(look),
      paper_(paper),
      neat_{view.Neat().left(), view.Neat().top(), view.Neat().right(), view.Neat().bottom()} {}

std::vector<Point> PageMap::OnPage(std::span<const Point> points) const {
    std::vector<Point> onPage;
    onPage.reserve(points.size() + 1);
    for (const Point& point : points) {
        const QPointF at = view_.At(point);
        onPage.push_back({at.x(), at.y()});
    }
    return onPage;
}

void PageMap::AddLine(QPainterPath& path, std::span<const Point> onPage) const {
    for (const auto& part : CutPath(onPage, neat_)) {
        path.moveTo(part.front().x, part.front().y);
        for (std::size_t i = 1; i < part.size(); ++i)
            path.lineTo(part[i].x, part[i].y);
    }
}

void PageMap::DrawShapes(PageLabels& labels, const std::function<void()>& drawFills) {
    DrawAreas();
    drawFills();
    DrawBlockLines();
    DrawAreaLines(labels);
    if (plan_.layers.pipelines) DrawPipelines();
    if (plan_.layers.wells) DrawSpots(false, labels);
    if (plan_.layers.platforms) DrawSpots(true, labels);
}

void PageMap::DrawAreas() {
    for (const AreaMap& area : plan_.map.areas) {
        QPainterPath path;
        for (const auto& ring : area.outline.rings)
            AddPolygon(path, CutOutline(OnPage(ring), neat_));
        if (!path.isEmpty()) paper_.Draw(path, {WaterColor(look_, area.water), {}});
    }
}

void PageMap::DrawBlockLines() {
    constexpr double kWidth = 0.6;
    for (const AreaMap& area : plan_.map.areas) {
        if (BlockSize(area) < kBlockLinesFrom) continue;
        QPainterPath path;
        for (const Segment& line : area.outline.inner)
            AddLine(path, OnPage(std::array{line.from, line.to}));
        if (!path.isEmpty()) paper_.Draw(path, {{}, look_.blockLine, kWidth});
    }
}

void PageMap::DrawAreaLines(PageLabels& labels) {
    constexpr double kWidth = 1.2;
    for (const AreaMap& area : plan_.map.areas) {
        QPainterPath path;
        for (const auto& ring : area.outline.rings) {
            const std::vector<Point> line = Closed(OnPage(ring));
            AddLine(path, line);
            for (std::size_t i = 1; i < line.size(); ++i) {
                labels.SpareLine({line[i - 1].x, line[i - 1].y}, {line[i].x, line[i].y},
                                 LabelBoard::kBorder);
            }
        }
        if (!path.isEmpty()) paper_.Draw(path, {{}, look_.areaLine, kWidth});
    }
}

void PageMap::DrawPipelines() {
    for (const std::uint8_t kind : {kPipeOther, kPipeOil, kPipeGas}) {
        QPainterPath path;
        for (const AreaMap& area : plan_.map.areas) {
            if (BlockSize(area) < kPipelinesOnPaperFrom) continue;
            area.pipelines.ForEachIn(view_.Shown(), [&](std::size_t number) {
                if (area.pipelines.Kind(number) == kind)
                    AddLine(path, OnPage(area.pipelines.Points(number)));
            });
        }
        if (!path.isEmpty()) paper_.Draw(path, PipelineInk(look_, plan_.ink, kind));
    }
}

void PageMap::DrawSpots(bool platforms, PageLabels& labels) {
    for (const AreaMap& area : plan_.map.areas) {
        const double size = BlockSize(area);
        if (size < kDotsOnPaperFrom) continue;
        const FeatureLayer& layer = platforms ? area.platforms : area.wells;
        layer.ForEachIn(view_.Shown(), [&](std::size_t number) {
            const QPointF at = view_.At(layer.Points(number).front());
            if (!Shows(at)) return;
            const std::uint8_t kind = layer.Kind(number);
            if (size >= kSymbolsOnPaperFrom) {
                DrawSpot(platforms ? PlatformParts(look_, kind) : WellParts(look_, kind), at);
                labels.Spare(
                    {at.x() - kSpotReach, at.y() - kSpotReach, 2 * kSpotReach, 2 * kSpotReach},
                    LabelBoard::kSpot);
                return;
            }
            QPainterPath dot;
            dot.addRect(at.x() - kDot / 2, at.y() - kDot / 2, kDot, kDot);
            paper_.Draw(dot, {platforms ? PlatformColor(look_, kind) : WellColor(look_, kind), {}});
            labels.Spare({at, QSizeF()}, LabelBoard::kSpot);
        });
    }
}

/// A symbol that reaches over the line around the map is cut as all else is.
void PageMap::DrawSpot(const std::vector<SymbolPart>& parts, const QPointF& at) {
    const double half = MapSymbols::kSize / 2 * kSymbolSize;
    if (view_.Neat().contains(QRectF(at.x() - half, at.y() - half, 2 * half, 2 * half))) {
        DrawSymbol(paper_, parts, at);
        return;
    }
    const QTransform place(kSymbolSize, 0, 0, kSymbolSize, at.x(), at.y());
    for (const SymbolPart& part : parts) {
        QPainterPath filled, lines;
        for (const QPolygonF& polygon : part.shape.toSubpathPolygons(place)) {
            std::vector<Point> corners;
            for (const QPointF& corner : polygon)
                corners.push_back({corner.x(), corner.y()});
            AddPolygon(filled, CutOutline(corners, neat_));
            AddLine(lines, corners);
        }
        if (part.fill.isValid()) paper_.Draw(filled, {part.fill, {}});
        if (part.line.isValid()) paper_.Draw(lines, {{}, part.line, part.width * kSymbolSize});
    }
}

// Labels.

Writing PageMap::Style(std::string_view text, double size, const QColor& color) const {
    Writing style;
    style.text = Text(text);
    style.size = plan_.TextSize(size);
    style.color = color;
    style.halo = look_.halo;
    return style;
}

void PageMap::DrawLabels(PageLabels& labels) {
    LabelAreas(labels);
    for (const AreaMap& area : plan_.map.areas)
        LabelBlocks(area, labels);
    for (const bool platforms : {true, false}) {
        if (!(platforms ? plan_.layers.platforms : plan_.layers.wells)) continue;
        for (const AreaMap& area : plan_.map.areas)
            LabelSpots(area, platforms, labels);
    }
    if (!plan_.layers.pipelines) return;
    for (const AreaMap& area : plan_.map.areas)
        LabelPipelines(area, labels);
}

/// By its name where that fits into the area, else by its number.
void PageMap::LabelAreas(PageLabels& labels) {
    for (const AreaMap& area : plan_.map.areas) {
        const QPointF middle = view_.At(area.labelAt);
        const QSizeF room = QSizeF(area.labelRoom.Width(), area.labelRoom.Height()) * view_.Scale();
        for (const std::string& name : {area.name, area.mmsCode}) {
            Writing style = Style(name, kAreaText, look_.areaText);
            style.bold = true;
            const QSizeF size = SizeOf(style.text, style.size, true);
            if (name.empty() || size.width() > room.width() || size.height() > room.height())
                continue;
            const QPointF off(0, room.height() / 5);
            labels.Put(
                paper_, style,
                std::array{middle, middle - off, middle + off, middle - 2 * off, middle + 2 * off});
            break;
        }
    }
}

/// In the middle of a small block, in a corner of a large one, where it is out of the way.
void PageMap::LabelBlocks(const AreaMap& area, PageLabels& labels) {
    if (BlockSize(area) < kBlockLabelsFrom) return;
    area.blocks.ForEachIn(view_.Shown(), [&](std::size_t number) {
        const Writing style =
            Style(plan_.Label(LabelLayer::kLeases, area, area.blocks.Label(number)), kBlockText,
                  look_.blockText);
        if (style.text.isEmpty()) return;
        const QSizeF size = SizeOf(style.text, style.size);
        const Box& box = area.blocks.BoxOf(number);
        const double width = box.Width() * view_.Scale();
        if (size.width() > width) return;
        const QPointF middle = view_.At(box.Middle());
        std::vector<QPointF> places;
        const QPointF off(width / 2 - size.width() / 2 - kBesideBlock,
                          box.Height() * view_.Scale() / 2 - size.height() / 2 - kBesideBlock);
        for (const auto& [right, down] : {std::pair{-1, -1}, {1, -1}, {-1, 1}, {1, 1}}) {
            if (width < kCornerLabelsFrom) break;
            const QPointF corner = middle + QPointF(right * off.x(), down * off.y());
            const Point outer = view_.XyAt({corner.x() + right * size.width() / 2, corner.y()});
            if (Inside(area.blocks.Points(number), outer)) places.push_back(corner);
        }
        places.push_back(middle);
        labels.Put(paper_, style, places);
    });
}

void PageMap::LabelSpots(const AreaMap& area, bool platforms, PageLabels& labels) {
    if (BlockSize(area) < kSpotLabelsFrom) return;
    const FeatureLayer& layer = platforms ? area.platforms : area.wells;
    layer.ForEachIn(view_.Shown(), [&](std::size_t number) {
        std::string_view label = layer.Label(number);
        if (!platforms) label = plan_.Label(LabelLayer::kWells, area, label);
        if (label.empty()) return;
        const Writing style = Style(label, kSpotText, look_.spotText);
        const QSizeF size = SizeOf(style.text, style.size);
        const double half = MapSymbols::kSize / 2 * kSymbolSize;
        const QPointF beside(half + size.width() / 2, 0);
        const QPointF above(0, half + size.height() / 2);
        const QPointF at = view_.At(layer.Points(number).front());
        labels.Put(paper_, style, std::array{at + beside, at - beside, at - above, at + above});
    });
}

/// Beside the middle of its part on the page.
void PageMap::LabelPipelines(const AreaMap& area, PageLabels& labels) {
    if (BlockSize(area) < kSpotLabelsFrom) return;
    area.pipelines.ForEachIn(view_.Shown(), [&](std::size_t number) {
        const std::string_view label =
            plan_.Label(LabelLayer::kPipelines, area, area.pipelines.Label(number));
        const auto parts = CutPath(OnPage(area.pipelines.Points(number)), neat_);
        if (label.empty() || parts.empty()) return;
        const auto& part = parts[parts.size() / 2];
        const Point& from = part[part.size() / 2 - 1];
        const Point& to = part[part.size() / 2];
        const QPointF at((from.x + to.x) / 2, (from.y + to.y) / 2);
        const Writing style = Style(label, kSpotText, look_.spotText);
        const QPointF above(0, SizeOf(style.text, style.size).height() / 2 + kBesideBlock / 2);
        labels.Put(paper_, style, std::array{at - above, at + above});
    });
}

}  // namespace workbench
