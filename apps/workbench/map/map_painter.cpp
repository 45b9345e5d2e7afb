#include "workbench/map/map_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "workbench/map/angle_text.h"
#include "workbench/map/cut.h"
#include "workbench/map/graticule.h"
#include "workbench/map/map_legend.h"

namespace workbench {

namespace {

// From how many pixels for a usual block on.
constexpr double kBlockLinesFrom = 5;
constexpr double kBlockLinesFull = 12;
constexpr double kBlockLabelsFrom = 30;
constexpr double kCornerLabelsFrom = 80;

// From how many pixels for a degree on.
constexpr double kGraticuleUntil = 160;
constexpr double kDotsFrom = 320;
constexpr double kPipelinesFrom = 800;
constexpr double kWidePipelinesFrom = 2'000;
constexpr double kSymbolsFrom = 1'400;
constexpr double kSpotLabelsFrom = 4'200;

constexpr double kMargin = 10;
constexpr double kSymbolReach = 4;  ///< from the middle of a symbol to what it needs to be seen
constexpr double kTick = 8;
/// Qt shares the rows of a long translucent line between threads, which takes ten times as long as
/// pieces of so many pixels.
constexpr double kPiece = 32;
constexpr double kMostPieces = 1'000;  ///< of one line, which leaves the view far behind then
constexpr double kEdge = 16;           ///< from the lower edge to the middle of its labels

/// Where an area's name may be put, in parts of the room there is: in the middle if it is in
/// nobody's way there.
constexpr double kShifts[] = {0, -0.2, 0.2, -0.4, 0.4};
/// What it costs to put a name off the middle by all of the room.
constexpr double kCostOfShift = 24;
/// What a name may cover before a shorter way to write it is looked for.
constexpr int kLittle = 10;

QColor WithAlpha(QColor color, double part) {
    color.setAlphaF(static_cast<float>(color.alphaF() * std::clamp(part, 0.0, 1.0)));
    return color;
}

QFont Sized(QFont font, double factor, int weight) {
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(static_cast<QFont::Weight>(weight));
    return font;
}

/// A long name in two lines of like length.
std::string Wrapped(const std::string& name) {
    constexpr std::size_t kLong = 14;
    if (name.size() < kLong) return name;
    std::size_t best = std::string::npos;
    for (std::size_t at = name.find(' '); at != std::string::npos; at = name.find(' ', at + 1)) {
        const auto off = [&](std::size_t place) {
            return std::abs(static_cast<double>(place) - static_cast<double>(name.size()) / 2);
        };
        if (best == std::string::npos || off(at) < off(best)) best = at;
    }
    if (best == std::string::npos) return name;
    std::string wrapped = name;
    wrapped[best] = '\n';
    return wrapped;
}

QPointF CornerOf(const QSizeF& size, const QPointF& middle) {
    return {std::round(middle.x() - size.width() / 2), std::round(middle.y() - size.height() / 2)};
}

}  // namespace

QPointF MapPainter::At(const Point& point) const {
    const ScreenPoint at = view_->ToScreen(point);
    return {at.x, at.y};
}

QPolygonF MapPainter::Ring(std::span<const Point> points) const {
    QPolygonF ring;
    ring.reserve(static_cast<qsizetype>(points.size()));
    for (const Point& point : points)
        ring.append(At(point));
    return ring;
}

QPainterPath MapPainter::Outline(const AreaMap& area) const {
    QPainterPath path;
    for (const auto& ring : area.outline.rings) {
        path.addPolygon(Ring(ring));
        path.closeSubpath();
    }
    return path;
}

bool MapPainter::ShowsSpots(const MapView& view) {
    return view.Scale() >= kSymbolsFrom;
}

void MapPainter::Draw(QPainter& painter, const MapModel& model, const MapView& view,
                      const MapLayers& layers, const MapMarks& marks) {
    painter_ = &painter;
    view_ = &view;
    layers_ = layers;
    PrepareArt();
    FindVisible(model);
    board_.Reset(view.Width(), view.Height());
    panels_.clear();
    edges_.clear();
    if (layers.graticule) curves_ = CurvesOf(view, projection_);

    const QRectF all(0, 0, view.Width(), view.Height());
    painter.fillRect(all, look_.ground);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawAreas();
    const bool drawings = overlay_ && layers.drawings;
    if (drawings) overlay_->DrawFills(painter, model, view);
    DrawBlockLines();
    if (layers.graticule) DrawGraticule();
    DrawAreaLines();
    if (layers.pipelines) DrawPipelines();
    DrawMarks(marks);
    if (layers.wells) DrawSpots(false);
    if (layers.platforms) DrawSpots(true);
    DrawRowMark(marks);
    if (drawings) overlay_->DrawOnTop(painter, view);

    DrawScaleBar();
    if (frame_) DrawTitle();
    legendHeading_ = {};
    if (layers.legend) DrawLegend();
    if (layers.graticule) DrawEdgeLabels();
    if (layers.labels) {
        DrawPickLabel(marks.pick);
        DrawAreaLabels();
        DrawBlockLabels(marks.pick);
        if (layers.platforms) DrawSpotLabels(true);
        if (layers.wells) DrawSpotLabels(false);
        if (layers.pipelines) DrawPipelineLabels();
    }
    if (frame_) DrawFrame();
}

void MapPainter::PrepareArt() {
    const double ratio = painter_->device()->devicePixelRatioF();
    areaLabels_.SetStyle(Sized(font_, 0.9, QFont::DemiBold), look_.areaText, look_.halo, ratio);
    blockLabels_.SetStyle(Sized(font_, 0.82, QFont::Normal), look_.blockText, look_.halo, ratio);
    spotLabels_.SetStyle(Sized(font_, 0.78, QFont::Normal), look_.spotText, look_.halo, ratio);
    edgeLabels_.SetStyle(Sized(font_, 0.78, QFont::Normal), look_.edgeText, look_.halo, ratio);
    symbols_.SetLook(look_, ratio);
}

void MapPainter::FindVisible(const MapModel& model) {
    visible_.clear();
    const Box seen = view_->Visible();
    for (const auto& area : model.Areas()) {
        if (ReachOf(*area).Meets(seen)) visible_.push_back(area.get());
    }
}

void MapPainter::DrawAreas() {
    painter_->setPen(Qt::NoPen);
    for (const AreaMap* area : visible_) {
        painter_->setBrush(WaterColor(look_, area->water));
        painter_->drawPath(Outline(*area));
    }
}

void MapPainter::DrawBlockLines() {
    const Box seen = view_->Visible();
    for (const AreaMap* area : visible_) {
        const double size = BlockPixels(*area);
        if (size < kBlockLinesFrom) continue;
        lines_.clear();
        for (const Segment& line : area->outline.inner) {
            AddLine(line, seen);
        }
        const double part =
            0.35 + 0.65 * (size - kBlockLinesFrom) / (kBlockLinesFull - kBlockLinesFrom);
        // Very many short lines are crisp without smoothing, and take half the time.
        painter_->setRenderHint(QPainter::Antialiasing, size >= kBlockLinesFull);
        DrawHairlines(WithAlpha(look_.blockLine, part));
    }
    painter_->setRenderHint(QPainter::Antialiasing);
}

/// A pixel wide on every screen. Where pieces or lines meet, nothing is drawn twice.
void MapPainter::DrawHairlines(const QColor& color) {
    pieces_.clear();
    for (const QLineF& line : lines_) {
        const double count = std::clamp(std::ceil(line.length() / kPiece), 1.0, kMostPieces);
        for (int i = 0; i < count; ++i)
            pieces_.emplace_back(line.pointAt(i / count), line.pointAt((i + 1) / count));
    }
    painter_->setPen(QPen(color, 0, Qt::SolidLine, Qt::FlatCap));
    painter_->drawLines(pieces_.data(), static_cast<int>(pieces_.size()));
}

void MapPainter::AddLine(const Segment& line, const Box& seen) {
    Box box;
    box.Include(line.from), box.Include(line.to);
    if (box.Meets(seen)) lines_.emplace_back(At(line.from), At(line.to));
}

void MapPainter::DrawAreaLines() {
    painter_->setBrush(Qt::NoBrush);
    for (const AreaMap* area : visible_) {
        const bool near = BlockPixels(*area) >= kBlockLabelsFrom;
        painter_->setPen(QPen(look_.areaLine, near ? 1.8 : 1.0));
        painter_->drawPath(Outline(*area));
        for (const auto& ring : area->outline.rings) {
            QPointF before = At(ring.back());
            for (const Point& point : ring) {
                const QPointF at = At(point);
                board_.SpareLine(before.x(), before.y(), at.x(), at.y(), LabelBoard::kBorder);
                before = at;
            }
        }
    }
}

void MapPainter::DrawPipelines() {
    if (view_->Scale() < kPipelinesFrom) return;
    const Box seen = view_->Visible();
    const bool wide = view_->Scale() >= kWidePipelinesFrom;
    for (const auto kind : {kPipeOther, kPipeOil, kPipeGas}) {
        lines_.clear();
        for (const AreaMap* area : visible_) {
            area->pipelines.ForEachIn(seen, [&](std::size_t number) {
                if (area->pipelines.Kind(number) != kind) return;
                const auto points = area->pipelines.Points(number);
                for (std::size_t i = 1; i < points.size(); ++i) {
                    AddLine({points[i - 1], points[i]}, seen);
                }
            });
        }
        if (wide) {
            painter_->setPen(
                QPen(WithAlpha(PipelineColor(look_, kind), 0.85), 1.4, Qt::SolidLine, Qt::FlatCap));
            painter_->drawLines(lines_.data(), static_cast<int>(lines_.size()));
        } else {
            DrawHairlines(WithAlpha(PipelineColor(look_, kind), 0.55));
        }
    }
}

void MapPainter::DrawSpots(bool platforms) {
    if (view_->Scale() < kDotsFrom) return;
    if (!ShowsSpots(*view_)) {
        DrawDots(platforms);
        return;
    }
    const double half = MapSymbols::kSize / 2;
    const Box seen = view_->Visible().Grown(half / view_->Scale());
    for (const AreaMap* area : visible_) {
        const FeatureLayer& layer = platforms ? area->platforms : area->wells;
        layer.ForEachIn(seen, [&](std::size_t number) {
            const QPointF at = At(layer.Points(number).front());
            const std::uint8_t kind = layer.Kind(number);
            board_.Spare(at.x() - kSymbolReach, at.y() - kSymbolReach, 2 * kSymbolReach,
                         2 * kSymbolReach, LabelBoard::kSpot);
            painter_->drawPixmap(at - QPointF(half, half),
                                 platforms ? symbols_.Platform(kind) : symbols_.Well(kind));
        });
    }
}

void MapPainter::DrawDots(bool platforms) {
    const Box seen = view_->Visible();
    const double size = (platforms ? 2.6 : 1.6) * std::clamp(view_->Scale() / 450, 0.8, 1.5);
    painter_->setPen(Qt::NoPen);
    painter_->setRenderHint(QPainter::Antialiasing, false);
    const int kinds = platforms ? int{kPlatformRemoved} : int{kWellOther};
    for (int kind = kinds; kind >= 0; --kind) {
        dots_.clear();
        for (const AreaMap* area : visible_) {
            const FeatureLayer& layer = platforms ? area->platforms : area->wells;
            layer.ForEachIn(seen, [&](std::size_t number) {
                if (layer.Kind(number) != kind) return;
                const QPointF at = At(layer.Points(number).front());
                dots_.emplace_back(at.x() - size / 2, at.y() - size / 2, size, size);
                board_.Spare(at.x(), at.y(), 0, 0, LabelBoard::kSpot);
            });
        }
        const auto color = static_cast<std::uint8_t>(kind);
        painter_->setBrush(
            WithAlpha(platforms ? PlatformColor(look_, color) : WellColor(look_, color), 0.75));
        painter_->drawRects(dots_.data(), static_cast<int>(dots_.size()));
    }
    painter_->setRenderHint(QPainter::Antialiasing);
}

void MapPainter::DrawMarks(const MapMarks& marks) {
    if (marks.hovered) {
        painter_->setPen(Qt::NoPen);
        painter_->setBrush(look_.hover);
        painter_->drawPolygon(Ring(marks.hovered->area->blocks.Points(marks.hovered->block)));
    }
    DrawMarkedBlocks(marks.neighbors, look_.neighbor);
    DrawMarkedBlocks(marks.selected, look_.pick);
    if (marks.pick.Empty()) return;
    QPainterPath path;
    if (marks.pick.block) {
        const BlockRef& block = *marks.pick.block;
        path.addPolygon(Ring(block.area->blocks.Points(block.block)));
        path.closeSubpath();
    } else {
        for (const AreaMap* area : marks.pick.areas)
            path.addPath(Outline(*area));
    }
    QColor fill = look_.pick;
    fill.setAlphaF(marks.pick.block ? 0.20F : 0.10F);
    painter_->setBrush(fill);
    painter_->setPen(QPen(look_.halo, 5, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_->drawPath(path);
    painter_->setBrush(Qt::NoBrush);
    painter_->setPen(QPen(look_.pick, 2.4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_->drawPath(path);
}

/// A ring around the place; the outline of the block where there is no place.
void MapPainter::DrawRowMark(const MapMarks& marks) {
    constexpr double kRadius = 10;
    const auto draw = [&](const auto& shape) {
        painter_->setPen(QPen(look_.halo, 5));
        shape();
        painter_->setPen(QPen(look_.row, 2.4));
        shape();
    };
    painter_->setBrush(Qt::NoBrush);
    if (marks.rowPlace) {
        const auto point = projection_.ToMap(*marks.rowPlace);
        if (!point) return;
        const QPointF at = At(*point);
        draw([&] { painter_->drawEllipse(at, kRadius, kRadius); });
    } else if (marks.rowBlock) {
        const BlockRef& block = *marks.rowBlock;
        const QPolygonF ring = Ring(block.area->blocks.Points(block.block));
        draw([&] { painter_->drawPolygon(ring); });
    }
}

void MapPainter::DrawMarkedBlocks(const std::vector<BlockRef>& blocks, const QColor& color) {
    constexpr float kFill = 0.35F;
    QColor fill = color;
    fill.setAlphaF(kFill);
    painter_->setBrush(fill);
    painter_->setPen(QPen(color, 1.4));
    const Box seen = view_->Visible();
    for (const BlockRef& block : blocks) {
        if (block.Bounds().Meets(seen))
            painter_->drawPolygon(Ring(block.area->blocks.Points(block.block)));
    }
}

/// Whole lines from afar, and on a map that was built; among the lines of blocks only marks at the
/// edges.
void MapPainter::DrawGraticule() {
    const int width = view_->Width();
    const int height = view_->Height();
    const bool whole = view_->Scale() < kGraticuleUntil;
    painter_->save();
    if (whole || frame_) {
        if (!whole) {
            QPainterPath map;
            map.addPolygon(FrameOnScreen());
            painter_->setClipPath(map);
        }
        DrawCurves(curves_.meridians, look_.graticule);
        DrawCurves(curves_.parallels, look_.graticule);
    }
    if (!whole) {
        const int tick = static_cast<int>(kTick);
        painter_->setClipRegion(QRegion(0, 0, width, tick) |
                                QRegion(0, height - tick, width, tick));
        DrawCurves(curves_.meridians, look_.edgeText);
        painter_->setClipRegion(QRegion(0, 0, tick, height) |
                                QRegion(width - tick, 0, tick, height));
        DrawCurves(curves_.parallels, look_.edgeText);
    }
    painter_->restore();
}

void MapPainter::DrawCurves(const std::vector<GraticuleCurve>& curves, const QColor& color) {
    lines_.clear();
    for (const GraticuleCurve& curve : curves) {
        for (std::size_t i = 1; i < curve.points.size(); ++i) {
            const ScreenPoint& from = curve.points[i - 1];
            const ScreenPoint& to = curve.points[i];
            lines_.emplace_back(from.x, from.y, to.x, to.y);
        }
    }
    DrawHairlines(color);
}

void MapPainter::DrawEdgeLabels() {
    const double bottom = view_->Height();
    for (const GraticuleCurve& curve : curves_.meridians) {
        if (const auto x = curve.XAt(bottom))
            PutEdgeLabel(ShortAngle(curve.angle, 'E', 'W'), {*x, bottom - kEdge});
    }
    for (const GraticuleCurve& curve : curves_.parallels) {
        const auto y = curve.YAt(0);
        if (!y) continue;
        const std::string label = ShortAngle(curve.angle, 'N', 'S');
        PutEdgeLabel(label, {kTick + edgeLabels_.SizeOf(label).width() / 2, *y});
    }
}

void MapPainter::PutEdgeLabel(const std::string& label, QPointF middle) {
    if (PutLabel(edgeLabels_, label, middle)) edges_.emplace_back(label, middle);
}

bool MapPainter::PutLabel(LabelArt& art, std::string_view label, QPointF middle) {
    const QPixmap& pixmap = art.Of(label);
    const QSizeF size = pixmap.deviceIndependentSize();
    const QPointF corner = CornerOf(size, middle);
    if (!board_.Take(corner.x(), corner.y(), size.width(), size.height())) return false;
    painter_->drawPixmap(corner, pixmap);
    return true;
}

std::optional<int> MapPainter::CostOf(LabelArt& art, std::string_view label, QPointF middle) {
    const QSizeF size = art.SizeOf(label);
    return board_.CostOf(std::round(middle.x() - size.width() / 2),
                         std::round(middle.y() - size.height() / 2), size.width(), size.height());
}

void MapPainter::PutLabelAtBest(LabelArt& art, std::string_view label,
                                std::span<const QPointF> middles) {
    const QPointF* best = nullptr;
    int least = 0;
    for (const QPointF& middle : middles) {
        const auto cost = CostOf(art, label, middle);
        if (!cost || (best && *cost >= least)) continue;
        best = &middle, least = *cost;
        if (least == 0) break;
    }
    if (best) PutLabel(art, label, *best);
}

std::optional<MapPainter::Placed> MapPainter::BestForArea(std::string_view label,
                                                          const QSizeF& room, QPointF middle) {
    if (label.empty()) return {};
    const QSizeF size = areaLabels_.SizeOf(label);
    if (size.width() > room.width() || size.height() > room.height()) return {};
    std::optional<Placed> best;
    for (const double down : kShifts) {
        for (const double right : kShifts) {
            const double shift = std::abs(down) + std::abs(right);
            const auto fixed = static_cast<int>(shift * kCostOfShift);
            if (best && best->cost <= fixed) continue;
            const QPointF at = middle + QPointF(right * room.width(), down * room.height());
            const auto cost = CostOf(areaLabels_, label, at);
            if (cost && (!best || *cost + fixed < best->cost)) best = {label, at, *cost + fixed};
        }
    }
    return best;
}

void MapPainter::DrawAreaLabels() {
    const QRectF screen(0, 0, view_->Width(), view_->Height());
    for (const AreaMap* area : visible_) {
        const Box& box = area->blocks.Bounds();
        if (box.Empty()) continue;
        const QRectF seen =
            QRectF(At({box.minX, box.maxY}), At({box.maxX, box.minY})).intersected(screen);
        if (seen.isEmpty()) continue;
        QPointF middle = At(area->labelAt);
        QSizeF room(area->labelRoom.Width() * view_->Scale(),
                    area->labelRoom.Height() * view_->Scale());
        // The name stays in sight when the middle of the area is not.
        if (!screen.contains(middle)) middle = seen.center(), room = seen.size();
        const std::string wrapped = Wrapped(area->name);
        std::optional<Placed> best;
        for (const std::string_view label :
             {std::string_view(area->name), std::string_view(wrapped),
              std::string_view(area->mmsCode)}) {
            const auto placed = BestForArea(label, room, middle);
            if (placed && (!best || placed->cost < best->cost)) best = placed;
            if (best && best->cost <= kLittle) break;
        }
        if (best) PutLabel(areaLabels_, best->label, best->middle);
    }
}

void MapPainter::DrawPickLabel(const Pick& pick) {
    if (!pick.block || BlockPixels(*pick.block->area) < kBlockLabelsFrom) return;
    DrawBlockLabel(*pick.block);
    // No other name is put over the pick.
    const Box& box = pick.block->Bounds();
    const QRectF room(At({box.minX, box.maxY}), At({box.maxX, box.minY}));
    board_.Take(room.x(), room.y() + room.height() / 4, room.width(), room.height() * 3 / 4);
}

void MapPainter::DrawBlockLabels(const Pick& pick) {
    const Box seen = view_->Visible();
    for (const AreaMap* area : visible_) {
        if (BlockPixels(*area) < kBlockLabelsFrom) continue;
        area->blocks.ForEachIn(seen, [&](std::size_t number) {
            if (pick.block != BlockRef{area, number}) DrawBlockLabel({area, number});
        });
    }
}

/// In the middle of a small block, in a corner of a large one, where it is out of the way.
void MapPainter::DrawBlockLabel(const BlockRef& block) {
    const Box& box = block.Bounds();
    const std::string_view label = LabelOf(LabelLayer::kLeases, *block.area, block.Label());
    if (label.empty()) return;
    const QSizeF size = blockLabels_.SizeOf(label);
    const double width = box.Width() * view_->Scale();
    if (size.width() > width) return;
    const QPointF middle = At(box.Middle());
    if (width < kCornerLabelsFrom) {
        PutLabelAtBest(blockLabels_, label, std::array{middle});
        return;
    }
    const QPointF off(width / 2 - size.width() / 2 - 5,
                      box.Height() * view_->Scale() / 2 - size.height() / 2 - 4);
    std::vector<QPointF> places;
    for (const auto& [right, down] : {std::pair{-1, -1}, {1, -1}, {-1, 1}, {1, 1}}) {
        const QPointF corner = middle + QPointF(right * off.x(), down * off.y());
        const Point outer = view_->ToMap({corner.x() + right * size.width() / 2, corner.y()});
        if (Inside(block.area->blocks.Points(block.block), outer)) places.push_back(corner);
    }
    places.push_back(middle);
    PutLabelAtBest(blockLabels_, label, places);
}

void MapPainter::DrawSpotLabels(bool platforms) {
    if (view_->Scale() < kSpotLabelsFrom) return;
    const Box seen = view_->Visible();
    for (const AreaMap* area : visible_) {
        const FeatureLayer& layer = platforms ? area->platforms : area->wells;
        layer.ForEachIn(seen, [&](std::size_t number) {
            std::string_view label = layer.Label(number);
            if (!platforms) label = LabelOf(LabelLayer::kWells, *area, label);
            if (label.empty()) return;
            const QSizeF size = spotLabels_.SizeOf(label);
            const QPointF beside(MapSymbols::kSize / 2 + size.width() / 2, 0);
            const QPointF above(0, MapSymbols::kSize / 2 + size.height() / 2);
            const QPointF at = At(layer.Points(number).front());
            PutLabelAtBest(spotLabels_, label,
                           std::array{at + beside, at - beside, at - above, at + above});
        });
    }
}

/// The ground of a panel, which keeps labels off.
QRectF MapPainter::DrawPanel(const QRectF& panel) {
    board_.Take(panel.x(), panel.y(), panel.width(), panel.height());
    panels_.push_back(panel);
    painter_->setPen(QPen(look_.panelLine, 1));
    painter_->setBrush(look_.panel);
    painter_->drawRoundedRect(panel.translated(0.5, 0.5), 4, 4);
    return panel;
}

/// Beside the middle of its part in the view.
void MapPainter::DrawPipelineLabels() {
    if (view_->Scale() < kSpotLabelsFrom) return;
    const Box seen = view_->Visible();
    for (const AreaMap* area : visible_) {
        area->pipelines.ForEachIn(seen, [&](std::size_t number) {
            const std::string_view label =
                LabelOf(LabelLayer::kPipelines, *area, area->pipelines.Label(number));
            const auto parts = CutPath(area->pipelines.Points(number), seen);
            if (label.empty() || parts.empty()) return;
            const auto& part = parts[parts.size() / 2];
            const QSizeF size = spotLabels_.SizeOf(label);
            const QPointF beside(size.width() / 2 + kMargin / 2, 0);
            const QPointF above(0, size.height() / 2 + kMargin / 2);
            const Segment middle{part[part.size() / 2 - 1], part[part.size() / 2]};
            const QPointF at = (At(middle.from) + At(middle.to)) / 2;
            PutLabelAtBest(spotLabels_, label,
                           std::array{at - above, at + above, at + beside, at - beside});
        });
    }
}

void MapPainter::DrawScaleBar() {
    const ScreenPoint at{view_->Width() / 2.0, view_->Height() - kMargin};
    const ScaleBar bar = ScaleBarOf(*view_, at, 140, projection_);
    if (bar.pixels <= 0) return;
    const QFont font = Sized(font_, 0.78, QFont::Normal);
    const QFontMetricsF metrics(font);
    const QString text = QString::fromStdString(bar.label);
    const double width = std::max(bar.pixels, metrics.horizontalAdvance(text)) + 2 * kMargin;
    const double height = metrics.height() + 14;
    const QRectF panel = DrawPanel(
        {view_->Width() - kMargin - width, view_->Height() - 2 * kEdge - height, width, height});
    painter_->setFont(font);
    painter_->setPen(look_.panelText);
    painter_->drawText(panel.adjusted(0, 3, 0, 0), Qt::AlignHCenter | Qt::AlignTop, text);
    const double y = std::round(panel.bottom() - 7) + 0.5;
    const double left = std::round(panel.center().x() - bar.pixels / 2) + 0.5;
    const double right = left + std::round(bar.pixels);
    const QPointF corners[] = {{left, y - 4}, {left, y}, {right, y}, {right, y - 4}};
    painter_->setBrush(Qt::NoBrush);
    painter_->setPen(QPen(look_.panelText, 1.4));
    painter_->drawPolyline(corners, 4);
}

/// What the built map is called, how it is projected and at what scale.
void MapPainter::DrawTitle() {
    const QFont bold = Sized(font_, 0.95, QFont::DemiBold);
    const QFont font = Sized(font_, 0.78, QFont::Normal);
    const QFontMetricsF large(bold);
    const QFontMetricsF small(font);
    const double most = view_->Width() / 2.0;
    const QString name = large.elidedText(frame_->name, Qt::ElideRight, most);
    const QString details = small.elidedText(frame_->details, Qt::ElideRight, most);
    const double width =
        std::max(large.horizontalAdvance(name), small.horizontalAdvance(details)) + 2 * kMargin;
    const QRectF panel =
        DrawPanel({kMargin, kMargin, std::ceil(width), large.height() + small.height() + 12});
    const QRectF text = panel.adjusted(kMargin, 4, 0, -4);
    painter_->setPen(look_.panelText);
    painter_->setFont(bold);
    painter_->drawText(text, Qt::AlignLeft | Qt::AlignTop, name);
    painter_->setFont(font);
    painter_->drawText(text, Qt::AlignLeft | Qt::AlignBottom, details);
}

QPolygonF MapPainter::FrameOnScreen() const {
    return Ring(frame_->outline);
}

/// Over all that is on the map, labels as well; panels and the graticule's labels stay as they are.
void MapPainter::DrawFrame() {
    constexpr double kDimmed = 0.62;
    const QRect all(0, 0, view_->Width(), view_->Height());
    const QPolygonF frame = FrameOnScreen();
    QRegion open(all);
    for (const QRectF& panel : panels_)
        open -= panel.toAlignedRect();
    QPainterPath outside;
    outside.addRect(all);
    outside.addPolygon(frame);
    outside.closeSubpath();
    painter_->save();
    painter_->setClipRegion(open);
    painter_->fillPath(outside, WithAlpha(look_.ground, kDimmed));
    painter_->setBrush(Qt::NoBrush);
    const auto line = [&](const QColor& color, double width) {
        painter_->setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter_->drawPolygon(frame);
    };
    line(look_.halo, 4.5);
    line(look_.panelText, 2);
    for (const auto& [label, middle] : edges_) {
        const QPixmap& pixmap = edgeLabels_.Of(label);
        painter_->drawPixmap(CornerOf(pixmap.deviceIndependentSize(), middle), pixmap);
    }
    painter_->restore();
}

std::vector<MapPainter::LegendLine> MapPainter::LegendLines() {
    std::vector<LegendLine> lines;
    const bool symbols = ShowsSpots(*view_);
    if (!symbols) AddWaters(lines);
    const auto addSpots = [&](const auto& rows, bool platforms) {
        for (const LegendRow& row : rows) {
            lines.push_back({QString::fromLatin1(row.text), [=, this](QPointF middle) {
                                 DrawSpotSample(middle, platforms, row.kind, symbols);
                             }});
        }
    };
    const bool spots = view_->Scale() >= kDotsFrom;
    if (layers_.wells && spots) addSpots(kWellRows, false);
    if (layers_.platforms && spots) addSpots(kPlatformRows, true);
    if (layers_.pipelines && view_->Scale() >= kPipelinesFrom) {
        for (const LegendRow& row : kPipelineRows) {
            lines.push_back({QString::fromLatin1(row.text), [this, row](QPointF middle) {
                                 painter_->setPen(QPen(PipelineColor(look_, row.kind), 2));
                                 painter_->drawLine(middle - QPointF(8, 0), middle + QPointF(8, 0));
                             }});
        }
    }
    return lines;
}

/// Those that are in sight.
void MapPainter::AddWaters(std::vector<LegendLine>& lines) {
    for (const WaterRow& row : kWaterRows) {
        const bool seen = std::any_of(visible_.begin(), visible_.end(), [&](const AreaMap* area) {
            return area->water == row.water;
        });
        if (!seen) continue;
        lines.push_back({QString::fromLatin1(row.text), [this, water = row.water](QPointF middle) {
                             painter_->setPen(QPen(look_.areaLine, 1));
                             painter_->setBrush(WaterColor(look_, water));
                             painter_->drawRect(QRectF(middle - QPointF(7.5, 4.5), QSizeF(15, 9)));
                         }});
    }
}

/// From afar a spot is but a dot of its colour.
void MapPainter::DrawSpotSample(QPointF middle, bool platform, std::uint8_t kind, bool symbol) {
    if (symbol) {
        const double half = MapSymbols::kSize / 2;
        painter_->drawPixmap(middle - QPointF(half, half),
                             platform ? symbols_.Platform(kind) : symbols_.Well(kind));
        return;
    }
    painter_->setPen(Qt::NoPen);
    painter_->setBrush(platform ? PlatformColor(look_, kind) : WellColor(look_, kind));
    painter_->drawRect(QRectF(middle - QPointF(2, 2), QSizeF(4, 4)));
}

void MapPainter::DrawLegend() {
    std::vector<LegendLine> lines = LegendLines();
    if (lines.empty()) return;
    if (layers_.legendFolded) lines.clear();
    const QString heading = QStringLiteral("Legend");
    const QFont font = Sized(font_, 0.82, QFont::Normal);
    const QFont bold = Sized(font_, 0.82, QFont::DemiBold);
    const QFontMetricsF metrics(font);
    double width = QFontMetricsF(bold).horizontalAdvance(heading);
    for (const LegendLine& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line.text));
    const double height = std::max(metrics.height() + 2, MapSymbols::kSize + 2);
    const QRectF panel = DrawPanel({view_->Width() - kMargin - (width + 44), kMargin, width + 44,
                                    height * static_cast<double>(lines.size() + 1) + 12});
    legendHeading_ = QRectF(panel.topLeft(), QSizeF(panel.width(), height + 8));

    double y = panel.top() + 6 + height / 2;
    const QPointF mark(std::round(panel.left() + 19), std::round(y));
    // It points to where the lines are, or would be.
    const QPolygonF down{{mark + QPointF(-4, -2), mark + QPointF(4, -2), mark + QPointF(0, 3)}};
    const QPolygonF aside{{mark + QPointF(-2, -4), mark + QPointF(-2, 4), mark + QPointF(3, 0)}};
    painter_->setPen(Qt::NoPen);
    painter_->setBrush(look_.panelText);
    painter_->drawPolygon(layers_.legendFolded ? aside : down);
    const auto write = [&](const QString& text) {
        painter_->setPen(look_.panelText);
        painter_->drawText(QRectF(panel.left() + 36, y - height / 2, width + 4, height),
                           Qt::AlignVCenter, text);
    };
    painter_->setFont(bold);
    write(heading);
    painter_->setFont(font);
    for (const LegendLine& line : lines) {
        y += height;
        line.draw({std::round(panel.left() + 19), std::round(y)});
        write(line.text);
    }
}

}  // namespace workbench
