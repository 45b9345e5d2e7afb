#include "workbench/map/map_canvas.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <cmath>

namespace workbench {

namespace {

constexpr double kWheelNotch = 120;
constexpr double kZoomPerNotch = 1.25;
constexpr double kZoomPerDoubleClick = 2;
constexpr double kZoomPerKey = 1.5;
constexpr double kPanPerKey = 80;  ///< pixels
/// How much of the view's extent stays around a pick at each side.
constexpr double kRoomAroundBlock = 0.38;
constexpr double kRoomAroundAreas = 0.08;
constexpr double kRoomAroundMarked = 0.2;
constexpr double kPlaceScale = 1'500;  ///< pixels for a degree
constexpr double kReach = 8;           ///< pixels around the mouse
constexpr int kDark = 128;

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

MapCanvas::MapCanvas(const MapModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
    setAccessibleName(tr("Map"));
    painter_.SetFont(font());
    ChooseLook();
    view_.Resize(width(), height());
}

void MapCanvas::ChooseLook() {
    const bool dark = palette().color(QPalette::Window).lightness() < kDark;
    painter_.SetLook(dark ? DarkLook() : LightLook());
}

void MapCanvas::ModelChanged() {
    view_.SetBounds(model_.Bounds());
    if (!movedByUser_) view_.ShowAll();
    update();
}

void MapCanvas::ModelGoes() {
    marks_ = {};
    movedByUser_ = false;
    update();
}

void MapCanvas::ShowPick(const Pick& pick) {
    marks_.pick = pick;
    movedByUser_ = true;
    view_.Show(pick.Bounds(), pick.block ? kRoomAroundBlock : kRoomAroundAreas);
    update();
}

void MapCanvas::MarkPick(const Pick& pick) {
    marks_.pick = pick;
    update();
}

void MapCanvas::ShowSelected(std::vector<BlockRef> blocks) {
    marks_.selected = std::move(blocks);
    marks_.neighbors.clear();
    ShowMarked();
}

void MapCanvas::ShowNeighbors(std::vector<BlockRef> blocks) {
    marks_.neighbors = std::move(blocks);
    ShowMarked();
}

void MapCanvas::ShowMarked() {
    Box bounds;
    for (const auto* blocks : {&marks_.selected, &marks_.neighbors}) {
        for (const BlockRef& block : *blocks)
            bounds.Include(block.Bounds());
    }
    if (!bounds.Empty()) view_.Show(bounds, kRoomAroundMarked);
    Moved();
}

void MapCanvas::ShowAll() {
    movedByUser_ = false;
    view_.ShowAll();
    update();
}

void MapCanvas::ShowPlace(const Place& place) {
    view_.SetMiddle(ToMap(place), std::max(view_.Scale(), kPlaceScale));
    Moved();
}

void MapCanvas::SetLayers(const MapLayers& layers) {
    layers_ = layers;
    update();
}

void MapCanvas::Moved() {
    movedByUser_ = true;
    update();
}

void MapCanvas::ZoomBy(double factor) {
    view_.Zoom({width() / 2.0, height() / 2.0}, factor);
    Moved();
}

void MapCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter_.Draw(painter, model_, view_, layers_, marks_);
    if (!reachedByKey_) return;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

/// The frame that tells where the keys go is for those who got there by keys.
void MapCanvas::focusInEvent(QFocusEvent* event) {
    reachedByKey_ =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void MapCanvas::focusOutEvent(QFocusEvent*) {
    reachedByKey_ = false;
    update();
}

void MapCanvas::resizeEvent(QResizeEvent*) {
    view_.Resize(width(), height());
    if (!movedByUser_) view_.ShowAll();
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressedAt_ = lastAt_ = event->position();
    dragging_ = false;
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    if (event->buttons() & Qt::LeftButton) {
        const double far = (at - pressedAt_).manhattanLength();
        if (!dragging_ && far >= QApplication::startDragDistance()) {
            dragging_ = true;
            setCursor(Qt::ClosedHandCursor);
        }
        if (dragging_) {
            view_.Pan(at.x() - lastAt_.x(), at.y() - lastAt_.y());
            lastAt_ = at;
            Moved();
        }
    } else {
        Hover(at);
    }
    emit Pointed(ToPlace(view_.ToMap({at.x(), at.y()})));
}

void MapCanvas::Hover(const QPointF& at) {
    const auto block = model_.BlockAt(view_.ToMap({at.x(), at.y()}));
    if (block == marks_.hovered) return;
    marks_.hovered = block;
    update();
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setCursor(Qt::CrossCursor);
    if (dragging_) {
        dragging_ = false;
        return;
    }
    const QPointF at = event->position();
    const Point point = view_.ToMap({at.x(), at.y()});
    if (const auto block = model_.BlockAt(point)) emit BlockClicked(*block);
    emit PlaceClicked(ToPlace(point));
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const bool out = event->modifiers() & Qt::ShiftModifier;
    view_.Zoom({event->position().x(), event->position().y()},
               out ? 1 / kZoomPerDoubleClick : kZoomPerDoubleClick);
    Moved();
}

void MapCanvas::leaveEvent(QEvent*) {
    marks_.hovered.reset();
    update();
    emit PointedNowhere();
}

void MapCanvas::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / kWheelNotch;
    view_.Zoom({event->position().x(), event->position().y()}, std::pow(kZoomPerNotch, notches));
    event->accept();
    Moved();
}

void MapCanvas::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            ZoomBy(kZoomPerKey);
            return;
        case Qt::Key_Minus:
            ZoomBy(1 / kZoomPerKey);
            return;
        case Qt::Key_Left:
            view_.Pan(kPanPerKey, 0);
            break;
        case Qt::Key_Right:
            view_.Pan(-kPanPerKey, 0);
            break;
        case Qt::Key_Up:
            view_.Pan(0, kPanPerKey);
            break;
        case Qt::Key_Down:
            view_.Pan(0, -kPanPerKey);
            break;
        case Qt::Key_Home:
            ShowAll();
            return;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    Moved();
}

void MapCanvas::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) ChooseLook();
    if (event->type() == QEvent::FontChange) painter_.SetFont(font());
    update();
    QWidget::changeEvent(event);
}

bool MapCanvas::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString tip = TipAt(help->pos());
    if (tip.isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help->globalPos(), tip, this);
    }
    return true;
}

QString MapCanvas::TipAt(const QPointF& at) const {
    const Point place = view_.ToMap({at.x(), at.y()});
    QStringList lines;
    if (const auto block = model_.BlockAt(place)) {
        lines << tr("%1, block %2").arg(Text(block->area->name), Text(block->Label()));
    }
    const bool spots = MapPainter::ShowsSpots(view_);
    const auto spot = spots ? model_.SpotAt(place, kReach / view_.Scale()) : std::nullopt;
    if (spot) {
        const QString label = Text(spot->Layer().Label(spot->number));
        lines << (spot->platform ? tr("Platform %1") : tr("Well %1")).arg(label);
    }
    return lines.join(u'\n');
}

}  // namespace workbench
