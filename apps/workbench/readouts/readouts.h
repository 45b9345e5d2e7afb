#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "workbench/map_mouse.h"
#include "workbench/map_tools.h"
#include "workbench/readouts/coord_tool.h"
#include "workbench/readouts/distance_tool.h"
#include "workbench/readouts/map_positions.h"

class QAction;
class QMenu;

namespace workbench {

class Commands;
class MapCanvas;
class StatusLine;

/// The readouts beside the map: feeds them what the mouse does there, and shows which of them waits
/// for places in the status line, by the cursor and in the menu.
class Readouts : public QObject {
    Q_OBJECT
public:
    /// All of them outlive it but the canvas and what is in its window.
    Readouts(const MapModel& model, MapTools& tools, MapCanvas& canvas, MapMouse& mouse,
             StatusLine& status, Commands& commands, MapPositions::Fail fail);

    /// Fills the menu of tools.
    void MakeMenu(QMenu& menu);
    /// The map is about to be another one.
    void MapGoes();
    /// A map was built, or is one no more: positions are in its projection and its unit.
    void SetPlane(const std::optional<DriverPlane>& plane);

    /// Null as long as it was never opened.
    const CoordTool* Coordinates() const { return coord_; }
    const DistanceTool* Distance() const { return distance_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What the menu, the status line and the cursor show.
    struct State {
        bool coordinates = false;
        bool held = false;
        bool hasPosition = false;
        bool distance = false;
        bool drawing = false;
        bool operator==(const State&) const = default;
    };

    std::unique_ptr<adaptors::Tool> MakeCoordinates(CWnd* owner);
    std::unique_ptr<adaptors::Tool> MakeDistance(CWnd* owner);
    void Watch(adaptors::Tool& tool);
    void Toggle(const char* className);
    void GiveKeysToMap();
    void MouseAt(const Place& place);
    bool Escape();
    void Refresh();
    void Show(const State& state);
    static MouseUse UseIn(const State& state);
    void Copy(const QString& text);
    QString NoPosition() const;

    MapPositions positions_;
    MapTools& tools_;
    QPointer<MapCanvas> canvas_;
    MapMouse& mouse_;
    StatusLine& status_;
    Commands& commands_;
    CoordTool* coord_ = nullptr;  ///< kept by `tools_`, as the other one
    DistanceTool* distance_ = nullptr;
    QAction* coordinatesRow_ = nullptr;
    QAction* distanceRow_ = nullptr;
    State shown_;
};

}  // namespace workbench
