#include "qt/map/block_map_canvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "qt/drawing/text.h"

namespace kv::qt {

namespace {

/// Of the view's width and height, at each side of an area.
constexpr double kRoomAroundArea = 0.08;
/// How large a block must be for its lines, and for its label, in pixels.
constexpr double kLinesFrom = 4;
constexpr double kLabelsFrom = 30;
constexpr double kAreaLabelMargin = 4;
constexpr double kCross = 6;
/// Areas no farther apart than that, in map units, lie beside one another.
constexpr double kBeside = 0.01;
constexpr int kDark = 128;

struct Look {
    /// So that areas beside one another can be told apart.
    QColor blocks[BlockMapCanvas::kTints];
    QColor ground, line, text, pick, pickLine, hover, band;
};

const Look& LookFor(const QPalette& palette) {
    static const Look light{{{0xd0, 0xe4, 0xf5},
                             {0xdc, 0xef, 0xd9},
                             {0xf3, 0xea, 0xd2},
                             {0xe4, 0xdf, 0xf3},
                             {0xbd, 0xdd, 0xdc},
                             {0xf2, 0xdc, 0xdc}},
                            {0xf4, 0xf3, 0xef},
                            {0x7f, 0x9b, 0xb3},
                            {0x2b, 0x45, 0x5e},
                            {0xf2, 0x9b, 0x4b},
                            {0xa8, 0x4a, 0x00},
                            {0x1c, 0x6f, 0xc4},
                            {0x1c, 0x6f, 0xc4, 0x30}};
    static const Look dark{{{0x22, 0x33, 0x45},
                            {0x26, 0x3b, 0x2c},
                            {0x3d, 0x36, 0x22},
                            {0x33, 0x2d, 0x47},
                            {0x1d, 0x3c, 0x3d},
                            {0x42, 0x2a, 0x2b}},
                           {0x1b, 0x1d, 0x20},
                           {0x5c, 0x76, 0x8e},
                           {0xd5, 0xe1, 0xed},
                           {0xc8, 0x6a, 0x1c},
                           {0xff, 0xb4, 0x70},
                           {0x6c, 0xb4, 0xf5},
                           {0x6c, 0xb4, 0xf5, 0x38}};
    return palette.color(QPalette::Window).lightness() < kDark ? dark : light;
}

map::FeatureLayer LayerOf(const std::vector<MapBlock>& blocks) {
    map::FeatureLayer layer;
    for (const MapBlock& block : blocks) {
        layer.Begin(block.Label());
        for (const map::Place& place : block.outline)
            layer.Add(map::ToMap(place));
    }
    layer.Finish();
    return layer;
}

}  // namespace

BlockMapCanvas::BlockMapCanvas(std::vector<MapBlock> blocks, QWidget* parent)
    : MapWidget(parent),
      blocks_(std::move(blocks)),
      layer_(LayerOf(blocks_)),
      isPicked_(blocks_.size()) {
    for (std::size_t block = 0; block < blocks_.size(); ++block)
        areas_[blocks_[block].area].Include(layer_.BoxOf(block));
    TintAreas();
    setAccessibleName(tr("Map of blocks"));
    if (!layer_.Bounds().Empty()) ChangeView().SetBounds(layer_.Bounds());
    ShowAll();
}

void BlockMapCanvas::TintAreas() {
    std::map<std::string, std::size_t> tints;
    for (const auto& [name, box] : areas_) {
        std::array<int, kTints> beside{};
        const map::Box around = box.Grown(kBeside);
        for (const auto& [other, tint] : tints) {
            if (areas_[other].Meets(around)) ++beside[tint];
        }
        const auto rarest = std::min_element(beside.begin(), beside.end());
        tints.emplace(name, static_cast<std::size_t>(rarest - beside.begin()));
    }
    for (const MapBlock& block : blocks_)
        tints_.push_back(tints[block.area]);
}

void BlockMapCanvas::SetPicked(std::size_t block, bool picked) {
    if (isPicked_[block] == picked) return;
    isPicked_[block] = picked;
    if (picked) {
        picks_.push_back(block);
    } else {
        std::erase(picks_, block);
    }
    Told();
}

void BlockMapCanvas::ClearPicks() {
    for (const std::size_t block : picks_)
        isPicked_[block] = false;
    picks_.clear();
    Told();
}

void BlockMapCanvas::Told() {
    update();
    if (onPicksChanged) onPicksChanged();
}

std::vector<std::string> BlockMapCanvas::Areas() const {
    std::vector<std::string> names;
    for (const auto& [name, box] : areas_)
        names.push_back(name);
    return names;
}

void BlockMapCanvas::ShowArea(const std::string& area) {
    const auto found = areas_.find(area);
    if (found == areas_.end()) return;
    ChangeView().Show(found->second, kRoomAroundArea);
    Moved();
}

std::optional<std::size_t> BlockMapCanvas::BlockAt(const QPointF& at) const {
    const map::Point point = View().ToMap({at.x(), at.y()});
    std::optional<std::size_t> found;
    layer_.ForEachIn({point.x, point.y, point.x, point.y}, [&](std::size_t block) {
        if (!found && map::Inside(layer_.Points(block), point)) found = block;
    });
    return found;
}

// Drawing.

QPolygonF BlockMapCanvas::Ring(std::size_t block) const {
    QPolygonF ring;
    for (const map::Point& point : layer_.Points(block)) {
        const map::ScreenPoint at = View().ToScreen(point);
        ring << QPointF(at.x, at.y);
    }
    return ring;
}

/// The lesser of its width and height, in pixels.
double BlockMapCanvas::SizeOf(std::size_t block) const {
    const map::Box& box = layer_.BoxOf(block);
    return std::min(box.Width(), box.Height()) * View().Scale();
}

QPointF BlockMapCanvas::Middle(std::size_t block) const {
    const map::ScreenPoint at = View().ToScreen(layer_.BoxOf(block).Middle());
    return {at.x, at.y};
}

void BlockMapCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), LookFor(palette()).ground);
    DrawBlocks(painter);
    DrawAreaLabels(painter);
    if (dragging_ && held_ == Qt::LeftButton) DrawBand(painter);
    if (ByKeys()) {
        DrawKeyFrame(painter);
        // What the space bar picks.
        const QPointF middle = rect().toRectF().center();
        painter.drawLine(middle - QPointF(kCross, 0), middle + QPointF(kCross, 0));
        painter.drawLine(middle - QPointF(0, kCross), middle + QPointF(0, kCross));
    }
}

void BlockMapCanvas::DrawBlocks(QPainter& painter) {
    const Look& look = LookFor(palette());
    std::vector<std::size_t> labelled, picked;
    layer_.ForEachIn(View().Visible(), [&](std::size_t block) {
        if (isPicked_[block]) {
            picked.push_back(block);
            return;
        }
        const double size = SizeOf(block);
        const QColor& tint = look.blocks[tints_[block]];
        painter.setPen(size < kLinesFrom ? tint : look.line);
        painter.setBrush(tint);
        // Where there are no lines, smooth edges would leave gaps between blocks.
        painter.setRenderHint(QPainter::Antialiasing, size >= kLinesFrom);
        painter.drawPolygon(Ring(block));
        if (size >= kLabelsFrom) labelled.push_back(block);
    });
    painter.setRenderHint(QPainter::Antialiasing);
    // Their lines lie over those of their neighbors.
    painter.setPen(look.pickLine);
    painter.setBrush(look.pick);
    for (const std::size_t block : picked) {
        painter.drawPolygon(Ring(block));
        if (SizeOf(block) >= kLabelsFrom) labelled.push_back(block);
    }
    if (hovered_) {
        painter.setPen(QPen(look.hover, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(Ring(*hovered_));
    }
    DrawBlockLabels(painter, labelled);
}

void BlockMapCanvas::DrawBlockLabels(QPainter& painter, const std::vector<std::size_t>& blocks) {
    painter.setPen(LookFor(palette()).text);
    for (const std::size_t block : blocks) {
        const QString text = ToQString(blocks_[block].Label());
        const double width = layer_.BoxOf(block).Width() * View().Scale();
        if (painter.fontMetrics().horizontalAdvance(text) > width) continue;
        const QPointF at = Middle(block);
        painter.drawText(QRectF(at.x() - width / 2, at.y() - width / 2, width, width),
                         Qt::AlignCenter, text);
    }
}

/// From afar an area has a name where the name finds room on it, and near the top from close by.
void BlockMapCanvas::DrawAreaLabels(QPainter& painter) {
    const Look& look = LookFor(palette());
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const map::Box seen = View().Visible();
    for (const auto& [name, box] : areas_) {
        if (!box.Meets(seen)) continue;
        const map::ScreenPoint low = View().ToScreen({box.minX, box.maxY});
        const map::ScreenPoint high = View().ToScreen({box.maxX, box.minY});
        const QRectF onScreen = QRectF(low.x, low.y, high.x - low.x, high.y - low.y) & rect();
        const QString text = ToQString(name);
        QRectF label = QFontMetricsF(bold).boundingRect(text).adjusted(
            -kAreaLabelMargin, -kAreaLabelMargin, kAreaLabelMargin, kAreaLabelMargin);
        if (label.width() > onScreen.width() || label.height() > onScreen.height()) continue;
        const bool wholly = onScreen.height() >= high.y - low.y - 1;
        label.moveCenter(onScreen.center());
        if (!wholly) label.moveTop(onScreen.top() + kAreaLabelMargin);
        QColor veil = look.ground;
        veil.setAlpha(200);
        painter.fillRect(label, veil);
        painter.setPen(look.text);
        painter.drawText(label, Qt::AlignCenter, text);
    }
    painter.setFont(font());
}

void BlockMapCanvas::DrawBand(QPainter& painter) {
    const Look& look = LookFor(palette());
    painter.setPen(look.hover);
    painter.setBrush(look.band);
    painter.drawRect(QRectF(pressedAt_, lastAt_).normalized());
}

// Mouse and keys.

void BlockMapCanvas::mousePressEvent(QMouseEvent* event) {
    if (held_ != Qt::NoButton) return;
    MapWidget::mousePressEvent(event);
    held_ = event->button();
    pressedAt_ = lastAt_ = event->position();
    dragging_ = false;
}

void BlockMapCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    Hover(BlockAt(at));
    if (held_ == Qt::NoButton) return;
    if ((at - pressedAt_).manhattanLength() >= QApplication::startDragDistance()) dragging_ = true;
    if (!dragging_) return;
    if (held_ == Qt::LeftButton) {
        update();
    } else {
        ChangeView().Pan(at.x() - lastAt_.x(), at.y() - lastAt_.y());
        Moved();
    }
    lastAt_ = at;
}

void BlockMapCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != held_) return;
    const Qt::MouseButton button = held_;
    const bool dragged = dragging_;
    held_ = Qt::NoButton;
    dragging_ = false;
    update();
    if (button != Qt::LeftButton) return;
    if (dragged) {
        lastAt_ = event->position();
        TakeBand(!(event->modifiers() & Qt::ControlModifier));
    } else if (const auto block = BlockAt(event->position())) {
        SetPicked(*block, !isPicked_[*block]);
    }
}

void BlockMapCanvas::TakeBand(bool picked) {
    const map::Point a = View().ToMap({pressedAt_.x(), pressedAt_.y()});
    const map::Point b = View().ToMap({lastAt_.x(), lastAt_.y()});
    map::Box band;
    band.Include(a);
    band.Include(b);
    std::vector<std::size_t> held;
    layer_.ForEachIn(band, [&](std::size_t block) {
        if (band.Contains(layer_.BoxOf(block).Middle()) && isPicked_[block] != picked)
            held.push_back(block);
    });
    // In the order of the blocks, whatever that of the look-up.
    std::ranges::sort(held);
    for (const std::size_t block : held)
        isPicked_[block] = picked;
    if (picked) {
        picks_.insert(picks_.end(), held.begin(), held.end());
    } else {
        std::erase_if(picks_, [&](std::size_t block) { return !isPicked_[block]; });
    }
    if (!held.empty()) Told();
}

void BlockMapCanvas::Hover(std::optional<std::size_t> block) {
    if (block == hovered_) return;
    hovered_ = block;
    update();
    if (onHovered) onHovered();
}

void BlockMapCanvas::leaveEvent(QEvent*) {
    Hover(std::nullopt);
}

/// The space bar picks what lies in the middle, for those who move the map by keys.
void BlockMapCanvas::keyPressEvent(QKeyEvent* event) {
    MapWidget::keyPressEvent(event);
    if (event->key() != Qt::Key_Space) return;
    event->accept();
    if (const auto block = BlockAt({width() / 2.0, height() / 2.0}))
        SetPicked(*block, !isPicked_[*block]);
}

}  // namespace kv::qt
