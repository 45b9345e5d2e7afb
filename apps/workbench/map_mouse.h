#pragma once

#include <QCursor>
#include <QPointer>
#include <QString>
#include <vector>

#include "workbench/map/map_canvas.h"

namespace workbench {

class StatusLine;

/// What a tool that waits for places takes of the map's mouse, and how that is shown.
struct MouseUse {
    Taken taken = Taken::kNothing;
    QCursor cursor = Qt::CrossCursor;
    QString mode = {};  ///< in the status line
};

/// Whose the mouse of the map is. Of several tools that wait for places, it is the one that began
/// last; those before have it again when that one ends.
class MapMouse {
public:
    /// Both outlive it, but for the canvas.
    MapMouse(MapCanvas& canvas, StatusLine& status) : canvas_(&canvas), status_(status) {}

    /// `tool`, a pointer that tells tools apart, uses the mouse so from now on; with
    /// `Taken::kNothing` it gives it up.
    void Use(const void* tool, const MouseUse& use);
    /// Ahead of those that wait already.
    void Raise(const void* tool);
    /// Whether it has the mouse.
    bool Has(const void* tool) const { return !waiting_.empty() && waiting_.back().tool == tool; }

private:
    struct Waiting {
        const void* tool;
        MouseUse use;
    };
    std::vector<Waiting>::iterator Find(const void* tool);
    void Show();

    QPointer<MapCanvas> canvas_;
    StatusLine& status_;
    std::vector<Waiting> waiting_;  ///< the one that has the mouse comes last
};

}  // namespace workbench
