#include "workbench/readouts/readouts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <utility>

#include "window/acting/input.h"
#include "window/window_system.h"
#include "workbench/commands.h"
#include "workbench/map/angle_text.h"
#include "workbench/map/map_canvas.h"
#include "workbench/readouts/readout_cursors.h"
#include "workbench/status_line.h"

namespace workbench {

Readouts::Readouts(const MapModel& model, MapTools& tools, MapCanvas& canvas, MapMouse& mouse,
                   StatusLine& status, Commands& commands, MapPositions::Fail fail)
    : positions_(model, std::move(fail)),
      tools_(tools),
      canvas_(&canvas),
      mouse_(mouse),
      status_(status),
      commands_(commands) {
    tools.SetMaker(CoordTool::kClass, [this](CWnd* owner) { return MakeCoordinates(owner); });
    tools.SetMaker(DistanceTool::kClass, [this](CWnd* owner) { return MakeDistance(owner); });
    connect(&canvas, &MapCanvas::Pointed, this, &Readouts::MouseAt);
    connect(&canvas, &MapCanvas::PlaceDragged, this,
            [this](const Place& from, const Place& to, bool done) {
                if (distance_ && mouse_.Has(this)) distance_->Drag(from, to, done);
                Refresh();
            });
    canvas.installEventFilter(this);
    canvas.AddDrawnOver([this](QPainter& painter, const MapView& view) {
        const auto line = distance_ ? distance_->Line() : std::nullopt;
        if (line) DrawRubberLine(painter, view, canvas_->Projection(), *line, canvas_->palette());
    });
}

std::unique_ptr<adaptors::Tool> Readouts::MakeCoordinates(CWnd* owner) {
    auto tool = std::make_unique<CoordTool>(owner, positions_);
    coord_ = tool.get();
    Watch(*tool);
    return tool;
}

std::unique_ptr<adaptors::Tool> Readouts::MakeDistance(CWnd* owner) {
    auto tool = std::make_unique<DistanceTool>(owner, positions_);
    distance_ = tool.get();
    Watch(*tool);
    return tool;
}

/// A readout writes to its host's modes and calls nobody: the host looks when all is quiet.
void Readouts::Watch(adaptors::Tool& tool) {
    if (!tool.Window()) return;
    kv::WindowSystem::Get().AddIdleUpdate(*tool.Window()->m_hWnd, [this] { Refresh(); });
}

void Readouts::MakeMenu(QMenu& menu) {
    coordinatesRow_ = commands_.Add(menu, tr("&Coordinates"), Qt::CTRL | Qt::Key_T,
                                    [this] { Toggle(CoordTool::kClass); });
    distanceRow_ = commands_.Add(menu, tr("&Distance"), Qt::CTRL | Qt::Key_D,
                                 [this] { Toggle(DistanceTool::kClass); });
    for (QAction* row : {coordinatesRow_, distanceRow_})
        row->setCheckable(true);
    menu.addSeparator();
    const auto noPosition = [this] { return NoPosition(); };
    commands_.Add(
        menu, tr("Copy position in degrees, &minutes and seconds"),
        Qt::CTRL | Qt::SHIFT | Qt::Key_C,
        [this] { Copy(QString::fromStdString(DegreesMinutesSeconds(*coord_->At()))); }, noPosition);
    commands_.Add(
        menu, tr("Copy position in decimal de&grees"), {},
        [this] { Copy(QString::fromStdString(DecimalDegrees(*coord_->At()))); }, noPosition);
    commands_.Add(
        menu, tr("Copy position as &X and Y"), {},
        [this] { Copy(QString::fromStdString(coord_->PlaneText())); }, noPosition);
}

QString Readouts::NoPosition() const {
    return coord_ && coord_->At()
               ? QString()
               : tr("No position was read yet: Coordinates, and the mouse on the map, do that.");
}

void Readouts::Copy(const QString& text) {
    if (text.isEmpty()) {
        status_.Say(tr("There are no X and Y in that projection."));
        return;
    }
    QGuiApplication::clipboard()->setText(text);
    status_.Say(tr("Copied %1").arg(text));
}

void Readouts::Toggle(const char* className) {
    adaptors::Tool* tool = tools_.Find(className);
    CDialog* window = tool ? tool->Window() : nullptr;
    if (window && window->IsWindowVisible()) {
        kv::input::CloseWindow(*window->m_hWnd);
        kv::WindowSystem::Get().Settle();
    } else {
        tools_.Show(*adaptors::Find(className));
        GiveKeysToMap();
    }
    // A row that can be checked has changed of itself.
    Show(shown_);
}

/// It is on the map that the readout is worked with.
void Readouts::GiveKeysToMap() {
    canvas_->window()->activateWindow();
    canvas_->setFocus();
}

void Readouts::MapGoes() {
    positions_.Forget();
    if (coord_) coord_->MapGoes();
    if (distance_) distance_->MapGoes();
    Refresh();
}

void Readouts::SetPlane(const std::optional<DriverPlane>& plane) {
    const bool another = plane != positions_.Plane();
    positions_.SetPlane(plane);
    if (another) MapGoes();
}

void Readouts::MouseAt(const Place& place) {
    if (coord_) coord_->MouseAt(place);
    if (distance_ && distance_->Drawing()) {
        distance_->MouseAt(place);
        canvas_->update();
    }
    Refresh();
}

/// Ends what is going on: the line, what is held, and then the readout.
bool Readouts::Escape() {
    if (shown_.drawing) {
        distance_->Drop();
        Refresh();
    } else if (shown_.distance) {
        Toggle(DistanceTool::kClass);
    } else if (shown_.held) {
        coord_->LetGo();
        Refresh();
    } else if (shown_.coordinates) {
        Toggle(CoordTool::kClass);
    } else {
        return false;
    }
    return true;
}

bool Readouts::eventFilter(QObject* watched, QEvent* event) {
    const bool escape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    return (escape && Escape()) || QObject::eventFilter(watched, event);
}

void Readouts::Refresh() {
    if (!canvas_) return;
    if (coord_) coord_->Look();
    if (distance_) distance_->Look();
    State state;
    state.coordinates = coord_ && coord_->Waits();
    state.held = coord_ && coord_->Held();
    state.hasPosition = coord_ && coord_->At();
    state.distance = distance_ && distance_->Waits();
    state.drawing = distance_ && distance_->Drawing();
    if (state != shown_) Show(state);
}

void Readouts::Show(const State& state) {
    const bool anew = state.hasPosition != shown_.hasPosition;
    const bool begins =
        (state.distance && !shown_.distance) || (state.coordinates && !shown_.coordinates);
    shown_ = state;
    if (coord_) coord_->SetTakesClicks(!state.distance);
    coordinatesRow_->setChecked(state.coordinates);
    distanceRow_->setChecked(state.distance);
    mouse_.Use(this, UseIn(state));
    if (begins) mouse_.Raise(this);
    if (anew) commands_.Refresh();
}

MouseUse Readouts::UseIn(const State& state) {
    if (state.distance) {
        return {Taken::kDrags, DistanceCursor(),
                state.drawing ? tr("Distance: second point") : tr("Distance: first point")};
    }
    if (state.coordinates) {
        return {Taken::kClicks, state.held ? HeldCursor() : CoordinatesCursor(),
                state.held ? tr("Coordinates: held") : tr("Coordinates: click to hold")};
    }
    return {};
}

}  // namespace workbench
