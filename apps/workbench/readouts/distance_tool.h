#pragma once

#include <optional>

#include "adaptors/tool.h"
#include "coordtools/distance_dialog.h"
#include "workbench/readouts/event_mode.h"
#include "workbench/readouts/on_map.h"
#include "workbench/readouts/rubber_line.h"

namespace workbench {

/// The distance check of the map: it measures lines that are drawn by two clicks or by a drag. With
/// Shift held a line goes on from the end of the last one.
class DistanceTool : public adaptors::Tool {
public:
    static constexpr const char* kClass = "CKvDistanceDialog";

    /// `positions` outlives it.
    DistanceTool(CWnd* owner, MapPositions& positions);
    ~DistanceTool() override;

    CDialog* Window() override { return dialog_.m_hWnd ? &dialog_ : nullptr; }
    /// A click there: an end of the line.
    void SetPosition(double lat, double lon) override;
    /// The mouse is there.
    void MouseAt(const Place& place);
    /// The mouse was dragged; `done` when its button is let go.
    void Drag(const Place& from, const Place& to, bool done);
    /// Gives up the line that is being drawn; false where none is.
    bool Drop();
    /// The map is another one.
    void MapGoes();
    /// Takes note of whether it was closed, or shown again.
    void Look();

    bool Waits() const { return mode_ == kMeasureDistance; }
    bool Drawing() const { return drawing_; }
    /// What is to be seen on the map; none where there is no line.
    std::optional<RubberLine> Line() const;

private:
    void Begin(Place start);
    bool GoOn();
    void Lead(const Place& end);
    void Feed(const Point& end);

    MapPositions& positions_;
    int open_ = 1;
    int lineMode_ = kMeasureDistance;  ///< whether the line is to be seen
    KVEventMode mode_ = kMeasureDistance;
    bool drawing_ = false;
    bool otherMap_ = false;
    std::optional<Place> start_;
    std::optional<Place> end_;
    int projection_ = -1;
    Point startAt_;
    OnMap<CKvDistanceDialog> dialog_;
};

}  // namespace workbench
