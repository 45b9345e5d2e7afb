#include "workbench/drawings/drawn_layer.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "workbench/drawings/drawing_colors.h"
#include "workbench/drawings/line_dashes.h"
#include "workbench/drawings/screen_line.h"
#include "workbench/map/cut.h"

namespace workbench {

namespace {

constexpr double kReach = 5;  ///< pixels
constexpr double kThickest = LineThickness(kLineWidths - 1);
/// What is drawn beyond the view may reach into it so far, in pixels.
constexpr double kBeyond = 32;
/// A thing larger than that is cut at the view, pixels.
constexpr double kLargest = 8'000;
// Of capital letters, pixels: smaller ones are not seen, or a stroke; larger ones are a shape.
constexpr double kLeastText = 1.2;
constexpr double kReadableText = 3;
constexpr double kLargeText = 60;

/// More drawings than that are not painted anew where the map is but dragged or zoomed.
constexpr std::size_t kMany = 500;
constexpr double kPartOfPixel = 0.01;
/// A frame so soon after another belongs to the same movement.
constexpr std::chrono::milliseconds kSoon(150);
/// Beyond that nothing can be made out of what is stretched.
constexpr double kMostStretched = 4;

constexpr double kRadius = 6'371'000;  ///< of the earth, metres
constexpr double kMetersPerFoot = 1200.0 / 3937.0;

QPointF OnScreen(const MapView& view, const Point& point) {
    const ScreenPoint at = view.ToScreen(point);
    return {at.x, at.y};
}

QRectF Around(const MapView& view) {
    return QRectF(0, 0, view.Width(), view.Height()).adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond);
}

QPolygonF Polygon(const MapView& view, std::span<const Point> points) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(points.size()));
    for (const Point& point : points)
        polygon.append(OnScreen(view, point));
    return polygon;
}

Box Grown(const MapView& view) {
    return view.Visible().Grown(kBeyond / view.Scale());
}

}  // namespace

DrawnLayer::DrawnLayer(const MapModel& model) : model_(model) {
    zooming_.setSingleShot(true);
    zooming_.setInterval(kSoon);
    QObject::connect(&zooming_, &QTimer::timeout, [this] {
        if (stretched_ && repaint_) repaint_();
    });
}

void DrawnLayer::Show(std::shared_ptr<const Drawings> drawings, const MapProjection& projection,
                      double feetPerInch) {
    drawings_ = drawings ? std::move(drawings) : std::make_shared<const Drawings>();
    projection_ = projection;
    feetPerInch_ = feetPerInch;
    painted_ = {};
    lines_ = {};
    std::vector<Point> points;
    for (const DrawnLine& line : drawings_->lines) {
        points.clear();
        for (const Place& place : line.points) {
            const auto point = projection_.ToMap(place);
            if (point) points.push_back(*point);
        }
        lines_.Begin("");
        if (points.size() != line.points.size()) continue;
        for (const Point& point : points)
            lines_.Add(point);
        if (line.closed) lines_.Add(points.front());
    }
    lines_.Finish();
    texts_.clear();
    textBoxes_ = {};
    for (const DrawnText& text : drawings_->texts) {
        texts_.push_back(Put(text));
        textBoxes_.Begin("");
        const PlacedText& placed = texts_.back();
        if (placed.unit == 0) continue;
        const QPolygonF frame = PlacedAt(text, {}, placed.unit).map(QPolygonF(placed.shape.box));
        for (const QPointF& corner : frame)
            textBoxes_.Add({placed.at.x + corner.x(), placed.at.y - corner.y()});
    }
    textBoxes_.Finish();
}

void DrawnLayer::SetDark(bool dark) {
    dark_ = dark;
    painted_ = {};
}

/// Map units for a foot there.
double DrawnLayer::UnitAt(const Place& place) const {
    constexpr double kAside = 0.01;
    const double north = place.lat < 0 ? kAside : -kAside;
    const auto here = projection_.ToMap(place);
    const auto there = projection_.ToMap({place.lat + north, place.lon});
    if (!here || !there) return 0;
    const double feet = kAside * std::acos(-1) / 180 * kRadius / kMetersPerFoot;
    return std::hypot(there->x - here->x, there->y - here->y) / feet;
}

DrawnLayer::PlacedText DrawnLayer::Put(const DrawnText& text) const {
    const auto at = projection_.ToMap(text.at);
    if (!at) return {};
    return {*at, text.height * feetPerInch_ * UnitAt(text.at), ShapeOf(text)};
}

QColor DrawnLayer::ColorOf(int index) const {
    const QColor color = DrawnColor(index);
    return dark_ ? OnDarkMap(color) : color;
}

std::vector<std::size_t> DrawnLayer::Seen(const FeatureLayer& layer, const Box& box) const {
    std::vector<std::size_t> seen;
    layer.ForEachIn(box, [&](std::size_t number) { seen.push_back(number); });
    std::ranges::sort(seen);
    return seen;
}

// Filled blocks.

void DrawnLayer::DrawFills(QPainter& painter, const MapModel& model, const MapView& view) const {
    const auto& fills = drawings_->fills;
    if (fills.empty()) return;
    const Box seen = view.Visible();
    painter.setPen(Qt::NoPen);
    for (const auto& area : model.Areas()) {
        const auto first = fills.lower_bound({area->code, ""});
        if (first == fills.end() || first->first.area != area->code) continue;
        area->blocks.ForEachIn(seen, [&](std::size_t number) {
            const auto fill = fills.find({area->code, std::string(area->blocks.Label(number))});
            if (fill == fills.end()) return;
            painter.setBrush(ColorOf(fill->second));
            painter.drawPolygon(Polygon(view, area->blocks.Points(number)));
        });
    }
}

// Lines and texts.

void DrawnLayer::DrawWithin(QPainter& painter, const MapView& view, const Box& box) const {
    for (const std::size_t number : Seen(lines_, box))
        DrawLine(painter, view, drawings_->lines[number], lines_.Points(number));
    for (const std::size_t number : Seen(textBoxes_, box))
        Draw(painter, view, drawings_->texts[number], texts_[number]);
}

void DrawnLayer::DrawOnTop(QPainter& painter, const MapView& view) const {
    if (drawings_->lines.size() + drawings_->texts.size() > kMany) {
        DrawKept(painter, view);
    } else {
        DrawWithin(painter, view, Grown(view));
    }
}

void DrawnLayer::DrawKept(QPainter& painter, const MapView& view) const {
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize size = QSizeF(view.Width() * ratio, view.Height() * ratio).toSize();
    const bool kept = painted_.pixels.size() == size && painted_.pixels.devicePixelRatio() == ratio;
    const bool zoomed = kept && painted_.scale != view.Scale();
    const bool stretches = zoomed && zooming_.isActive() && CanStretch(view);
    if (zoomed) zooming_.start();
    if (stretches) return DrawStretched(painter, view);
    if (!kept || zoomed || !MoveKept(view)) {
        painted_ = {QPixmap(size), view.Middle(), view.Scale()};
        painted_.pixels.setDevicePixelRatio(ratio);
        Repaint(view, QRect(QPoint(), size));
    }
    stretched_ = false;
    painter.drawPixmap(0, 0, painted_.pixels);
}

bool DrawnLayer::CanStretch(const MapView& view) const {
    const double times = view.Scale() / painted_.scale;
    return times <= kMostStretched && times >= 1 / kMostStretched;
}

void DrawnLayer::DrawStretched(QPainter& painter, const MapView& view) const {
    stretched_ = true;
    const double right = view.Width() / 2.0 / painted_.scale;
    const double up = view.Height() / 2.0 / painted_.scale;
    const QRectF place(OnScreen(view, {painted_.middle.x - right, painted_.middle.y + up}),
                       OnScreen(view, {painted_.middle.x + right, painted_.middle.y - up}));
    painter.drawPixmap(place, painted_.pixels, painted_.pixels.rect());
}

/// False where the map has moved by parts of pixels, or out of sight.
bool DrawnLayer::MoveKept(const MapView& view) const {
    const double perUnit = view.Scale() * painted_.pixels.devicePixelRatio();
    const double right = (painted_.middle.x - view.Middle().x) * perUnit;
    const double down = (view.Middle().y - painted_.middle.y) * perUnit;
    const QSize size = painted_.pixels.size();
    if (std::abs(right) >= size.width() || std::abs(down) >= size.height()) return false;
    const int x = static_cast<int>(std::lround(right));
    const int y = static_cast<int>(std::lround(down));
    if (std::abs(right - x) > kPartOfPixel || std::abs(down - y) > kPartOfPixel) return false;
    if (x == 0 && y == 0) return true;
    painted_.pixels.scroll(x, y, painted_.pixels.rect());
    painted_.middle = {painted_.middle.x - x / perUnit, painted_.middle.y + y / perUnit};
    const QRegion shown = QRegion(painted_.pixels.rect()) - painted_.pixels.rect().translated(x, y);
    for (const QRect& part : shown)
        Repaint(view, part);
    return true;
}

/// `part` is in the device's pixels.
void DrawnLayer::Repaint(const MapView& view, const QRect& part) const {
    const double ratio = painted_.pixels.devicePixelRatio();
    const QRectF place(QPointF(part.topLeft()) / ratio, QSizeF(part.size()) / ratio);
    QPainter painter(&painted_.pixels);
    painter.setClipRect(place);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(place, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    Box box;
    box.Include(view.ToMap({place.left(), place.top()}));
    box.Include(view.ToMap({place.right(), place.bottom()}));
    DrawWithin(painter, view, box.Grown(kBeyond / view.Scale()));
}

void DrawnLayer::DrawLine(QPainter& painter, const MapView& view, const DrawnLine& line,
                          std::span<const Point> points) const {
    Box box;
    for (const Point& point : points)
        box.Include(point);
    const bool large = std::max(box.Width(), box.Height()) * view.Scale() > kLargest;
    const Box seen = Grown(view);
    if (line.filled) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ColorOf(line.fillColor));
        painter.drawPolygon(large ? Polygon(view, CutOutline(points, seen))
                                  : ScreenLine(view, points));
    }
    if (IsBlank(line.type)) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ColorOf(line.color), LineThickness(line.width), Qt::SolidLine, Qt::FlatCap,
                        Qt::MiterJoin));
    const QPolygonF shape = large ? QPolygonF() : ScreenLine(view, points);
    if (!IsSolid(line.type)) {
        const QPolygonF whole = large ? Polygon(view, points) : shape;
        painter.drawPath(DashesOf(whole, line.type, line.width, 1, Around(view)));
    } else if (!large) {
        painter.drawPolyline(shape);
    } else {
        for (const auto& part : CutPath(points, seen))
            painter.drawPolyline(ScreenLine(view, part));
    }
}

void DrawnLayer::DrawText(QPainter& painter, const MapView& view, const DrawnText& text,
                          const Point& at) const {
    PlacedText placed = Put(text);
    placed.at = at;
    Draw(painter, view, text, placed);
}

void DrawnLayer::Draw(QPainter& painter, const MapView& view, const DrawnText& text,
                      const PlacedText& placed) const {
    const double unit = placed.unit * view.Scale();
    if (unit < kLeastText) return;
    const QColor color = ColorOf(text.color);
    const QTransform before = painter.worldTransform();
    const TextShape& shape = placed.shape;
    if (unit < kReadableText) {
        painter.setWorldTransform(PlacedAt(text, OnScreen(view, placed.at), unit), true);
        const QPointF middle = shape.begin - QPointF(0, 0.5);
        painter.setPen(QPen(color, 0.6));
        painter.drawLine(middle, middle + QPointF(shape.length, 0));
    } else if (unit < kLargeText && text.weight == 0) {
        QFont font(DrawnFont());
        font.setPointSizeF(shape.fontSize * unit * 72 / painter.device()->logicalDpiY());
        font.setHintingPreference(QFont::PreferNoHinting);
        painter.setFont(font);
        painter.setPen(color);
        painter.setWorldTransform(PlacedAt(text, OnScreen(view, placed.at), 1), true);
        painter.drawText(shape.begin * unit, QString::fromStdString(text.text));
    } else {
        painter.setWorldTransform(PlacedAt(text, OnScreen(view, placed.at), unit), true);
        painter.setBrush(color);
        painter.setPen(text.weight > 0 ? QPen(color, StrokeOf(text.weight), Qt::SolidLine,
                                              Qt::RoundCap, Qt::RoundJoin)
                                       : QPen(Qt::NoPen));
        painter.drawPath(LettersOf(text));
    }
    painter.setWorldTransform(before);
}

// What is where.

bool DrawnLayer::IsAt(const MapView& view, const DrawnLine& line, std::span<const Point> points,
                      const ScreenPoint& at) const {
    const Point here = view.ToMap(at);
    if (line.filled && Inside(points, here)) return true;
    const double reach = (kReach + LineThickness(line.width) / 2) / view.Scale();
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (SquaredDistance(here, {points[i - 1], points[i]}) <= reach * reach) return true;
    }
    return false;
}

std::optional<DrawingRef> DrawnLayer::At(const MapView& view, const ScreenPoint& at) const {
    const Point here = view.ToMap(at);
    const double reach = (kReach + kThickest / 2) / view.Scale();
    const Box around = Box{here.x, here.y, here.x, here.y}.Grown(reach);
    const auto texts = Seen(textBoxes_, around);
    for (auto number = texts.rbegin(); number != texts.rend(); ++number) {
        const PlacedText& placed = texts_[*number];
        const QTransform onMap = PlacedAt(drawings_->texts[*number], {}, placed.unit);
        const QPointF off(here.x - placed.at.x, placed.at.y - here.y);
        if (placed.shape.box.contains(onMap.inverted().map(off)))
            return DrawingRef{DrawingRef::kText, *number};
    }
    const auto lines = Seen(lines_, around);
    for (auto number = lines.rbegin(); number != lines.rend(); ++number) {
        if (IsAt(view, drawings_->lines[*number], lines_.Points(*number), at))
            return DrawingRef{DrawingRef::kLine, *number};
    }
    const auto place = projection_.ToPlace(here);
    const auto block = place ? model_.BlockAt(ToMap(*place)) : std::nullopt;
    if (!block) return {};
    const BlockKey key{block->area->code, std::string(block->Label())};
    if (!drawings_->fills.contains(key)) return {};
    return DrawingRef{DrawingRef::kFill, 0, key};
}

QPainterPath DrawnLayer::OutlineOf(const MapView& view, const DrawingRef& ref) const {
    QPainterPath path;
    if (ref.kind == DrawingRef::kLine) {
        for (const auto& part : CutPath(lines_.Points(ref.number), Grown(view)))
            path.addPolygon(Polygon(view, part));
    } else if (ref.kind == DrawingRef::kText && texts_[ref.number].unit > 0) {
        const PlacedText& placed = texts_[ref.number];
        const QTransform onScreen = PlacedAt(drawings_->texts[ref.number],
                                             OnScreen(view, placed.at), placed.unit * view.Scale());
        path.addPolygon(onScreen.map(QPolygonF(placed.shape.box)));
    } else if (ref.kind == DrawingRef::kFill) {
        const Pick pick = model_.FindPick({ref.block.area}, ref.block.block);
        std::vector<Point> corners;
        if (pick.block) {
            for (const Point& corner : pick.block->area->blocks.Points(pick.block->block))
                corners.push_back(projection_.ToMap(ToPlace(corner)).value_or(corner));
        }
        path.addPolygon(Polygon(view, corners));
        path.closeSubpath();
    }
    return path;
}

}  // namespace workbench
