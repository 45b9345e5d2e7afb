#include "workbench/map/map_canvas.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace workbench {

namespace {

constexpr double kZoomPerDoubleClick = 2;
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

MapCanvas::MapCanvas(const MapModel& model, QWidget* parent) : MapWidget(parent), model_(model) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Map"));
    painter_.SetFont(font());
    ChooseLook();
}

bool MapCanvas::IsDark() const {
    return palette().color(QPalette::Window).lightness() < kDark;
}

void MapCanvas::ChooseLook() {
    painter_.SetLook(IsDark() ? DarkLook() : LightLook());
}

void MapCanvas::SetOverlay(const MapOverlay* overlay) {
    painter_.SetOverlay(overlay);
    update();
}

void MapCanvas::ModelChanged() {
    projected_.Update();
    FitBounds();
    if (!MovedByUser()) ChangeView().ShowAll();
    update();
}

/// How far the map can be moved: over all that is there, and the edge of the map that was built.
void MapCanvas::FitBounds() {
    Box bounds = projected_.Drawn().Bounds();
    if (frame_) bounds.Include(frame_->Bounds());
    ChangeView().SetBounds(bounds);
}

void MapCanvas::SetProjection(const MapProjection& projection) {
    const auto middle = Projection().ToPlace(View().Middle());
    const double scale = View().Scale();
    projected_.SetProjection(projection);
    painter_.SetProjection(projection);
    FitBounds();
    const auto point = middle ? projection.ToMap(*middle) : std::nullopt;
    if (point && MovedByUser()) {
        ChangeView().SetMiddle(*point, scale);
    } else {
        ChangeView().ShowAll();
    }
    update();
}

void MapCanvas::SetFrame(std::optional<MapFrame> frame) {
    frame_ = std::move(frame);
    painter_.SetFrame(frame_);
    FitBounds();
    update();
}

void MapCanvas::ShowFrame() {
    constexpr double kRoomAroundFrame = 0.06;
    if (!frame_) return;
    ChangeView().Show(frame_->Bounds(), kRoomAroundFrame);
    Moved();
}

Box MapCanvas::Seen() const {
    Box box;
    if (const auto places = SeenPlaces(View(), Projection())) {
        box.Include(ToMap(places->least));
        box.Include(ToMap(places->most));
    }
    return box;
}

std::optional<BlockRef> MapCanvas::BlockAt(const QPointF& at) const {
    return projected_.ToSource(projected_.Drawn().BlockAt(View().ToMap({at.x(), at.y()})));
}

Pick MapCanvas::Drawn(const Pick& pick) const {
    Pick drawn{{}, projected_.ToDrawn(pick.block)};
    for (const AreaMap* area : pick.areas) {
        if (const AreaMap* there = projected_.ToDrawn(area)) drawn.areas.push_back(there);
    }
    return drawn;
}

std::vector<BlockRef> MapCanvas::Drawn(const std::vector<BlockRef>& blocks) const {
    std::vector<BlockRef> drawn;
    for (const BlockRef& block : blocks) {
        if (const auto there = projected_.ToDrawn(std::optional(block))) drawn.push_back(*there);
    }
    return drawn;
}

MapMarks MapCanvas::DrawnMarks() const {
    return {Drawn(marks_.pick),      projected_.ToDrawn(marks_.hovered),  Drawn(marks_.selected),
            Drawn(marks_.neighbors), projected_.ToDrawn(marks_.rowBlock), marks_.rowPlace};
}

void MapCanvas::ModelGoes() {
    marks_ = {};
    projected_.Clear();
    ForgetMoves();
    update();
    emit PickChanged();
}

void MapCanvas::ShowPick(const Pick& pick) {
    marks_.pick = pick;
    ChangeView().Show(Drawn(pick).Bounds(), pick.block ? kRoomAroundBlock : kRoomAroundAreas);
    Moved();
    emit PickChanged();
}

void MapCanvas::MarkPick(const Pick& pick) {
    marks_.pick = pick;
    update();
    emit PickChanged();
}

void MapCanvas::MarkRow(std::optional<BlockRef> block, std::optional<Place> place) {
    marks_.rowBlock = block;
    marks_.rowPlace = place;
    update();
}

void MapCanvas::BringRowUp() {
    Box bounds;
    if (marks_.rowPlace) {
        if (const auto point = Projection().ToMap(*marks_.rowPlace)) bounds.Include(*point);
    } else if (const auto block = projected_.ToDrawn(marks_.rowBlock)) {
        bounds = block->Bounds();
    }
    const Box seen = View().Visible();
    if (bounds.Empty() ||
        (seen.Contains({bounds.minX, bounds.minY}) && seen.Contains({bounds.maxX, bounds.maxY}))) {
        return;
    }
    ChangeView().SetMiddle(bounds.Middle(), View().Scale());
    Moved();
}

void MapCanvas::FoldLegend() {
    layers_.legendFolded = !layers_.legendFolded;
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
        for (const BlockRef& block : Drawn(*blocks))
            bounds.Include(block.Bounds());
    }
    if (!bounds.Empty()) ChangeView().Show(bounds, kRoomAroundMarked);
    Moved();
}

void MapCanvas::ShowPlace(const Place& place) {
    if (const auto point = Projection().ToMap(place))
        ChangeView().SetMiddle(*point, std::max(View().Scale(), kPlaceScale));
    Moved();
}

void MapCanvas::SetTaken(Taken taken, const QCursor& cursor) {
    taken_ = taken;
    cursor_ = cursor;
    if (!dragging_) setCursor(cursor_);
}

void MapCanvas::AddDrawnOver(std::function<void(QPainter&, const MapView&)> draw) {
    drawnOver_.push_back(std::move(draw));
}

std::optional<QPointF> MapCanvas::ScreenAt(const Place& place) const {
    const auto point = Projection().ToMap(place);
    if (!point) return {};
    const ScreenPoint at = View().ToScreen(*point);
    return QPointF(at.x, at.y);
}

std::optional<Place> MapCanvas::PlaceAt(const QPointF& at) const {
    return Projection().ToPlace(View().ToMap({at.x(), at.y()}));
}

void MapCanvas::SetLayers(const MapLayers& layers) {
    layers_ = layers;
    update();
}

void MapCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter_.Draw(painter, projected_.Drawn(), View(), layers_, DrawnMarks());
    for (const auto& draw : drawnOver_)
        draw(painter, View());
    if (ByKeys()) DrawKeyFrame(painter);
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
    MapWidget::mousePressEvent(event);
    const bool moves = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    if (!moves || held_ != Qt::NoButton) return;
    held_ = event->button();
    pressedAt_ = lastAt_ = event->position();
    pressedPlace_ = PlaceAt(pressedAt_);
    dragging_ = false;
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    if (event->buttons() & held_) {
        Drag(at);
    } else {
        held_ = Qt::NoButton;
        Hover(at);
    }
    if (const auto place = PlaceAt(at)) {
        emit Pointed(*place);
    } else {
        emit PointedNowhere();
    }
}

void MapCanvas::Drag(const QPointF& at) {
    const double far = (at - pressedAt_).manhattanLength();
    if (!dragging_ && far < QApplication::startDragDistance()) return;
    dragging_ = true;
    if (DragsLine()) {
        DragPlace(at, false);
        return;
    }
    setCursor(Qt::ClosedHandCursor);
    ChangeView().Pan(at.x() - lastAt_.x(), at.y() - lastAt_.y());
    lastAt_ = at;
    Moved();
}

void MapCanvas::Hover(const QPointF& at) {
    const auto block = BlockAt(at);
    if (block == marks_.hovered) return;
    marks_.hovered = block;
    update();
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != held_) return;
    const bool line = DragsLine();
    held_ = Qt::NoButton;
    setCursor(cursor_);
    if (!dragging_) {
        if (event->button() == Qt::LeftButton) Click(event->position());
        return;
    }
    dragging_ = false;
    if (line) DragPlace(event->position(), true);
}

void MapCanvas::DragPlace(const QPointF& at, bool done) {
    const auto place = PlaceAt(at);
    if (pressedPlace_ && place) emit PlaceDragged(*pressedPlace_, *place, done);
}

void MapCanvas::Click(const QPointF& at) {
    const bool ours = taken_ == Taken::kNothing;
    if (ours && painter_.LegendHeading().contains(at)) {
        FoldLegend();
        return;
    }
    const auto block = BlockAt(at);
    if (ours && block) emit BlockClicked(*block);
    if (const auto place = PlaceAt(at)) emit PlaceClicked(*place);
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (taken_ != Taken::kNothing) {
        mousePressEvent(event);
        return;
    }
    const bool out = event->modifiers() & Qt::ShiftModifier;
    ChangeView().Zoom({event->position().x(), event->position().y()},
                      out ? 1 / kZoomPerDoubleClick : kZoomPerDoubleClick);
    Moved();
}

void MapCanvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_L && event->modifiers() == Qt::NoModifier) {
        FoldLegend();
    } else {
        MapWidget::keyPressEvent(event);
    }
}

void MapCanvas::leaveEvent(QEvent*) {
    marks_.hovered.reset();
    update();
    emit PointedNowhere();
}

void MapCanvas::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) ChooseLook();
    if (event->type() == QEvent::FontChange) painter_.SetFont(font());
    update();
    MapWidget::changeEvent(event);
}

bool MapCanvas::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return MapWidget::event(event);
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
    const Point place = View().ToMap({at.x(), at.y()});
    QStringList lines;
    if (const auto block = projected_.Drawn().BlockAt(place)) {
        lines << tr("%1, block %2").arg(Text(block->area->name), Text(block->Label()));
    }
    const bool spots = MapPainter::ShowsSpots(View());
    const auto spot =
        spots ? projected_.Drawn().SpotAt(place, kReach / View().Scale()) : std::nullopt;
    if (spot) {
        const QString label = Text(spot->Layer().Label(spot->number));
        lines << (spot->platform ? tr("Platform %1") : tr("Well %1")).arg(label);
    }
    return lines.join(u'\n');
}

}  // namespace workbench
