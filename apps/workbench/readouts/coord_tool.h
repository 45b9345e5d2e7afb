#pragma once

#include <optional>
#include <string>

#include "adaptors/tool.h"
#include "coordtools/coord_dialog.h"
#include "workbench/readouts/event_mode.h"
#include "workbench/readouts/on_map.h"

namespace workbench {

/// The coordinate readout of the map: it follows the mouse until a click holds it, and goes on at
/// the next one.
class CoordTool : public adaptors::Tool {
public:
    static constexpr const char* kClass = "CKvCoordDialog";

    /// `positions` outlives it.
    CoordTool(CWnd* owner, MapPositions& positions);
    ~CoordTool() override;

    CDialog* Window() override { return dialog_.m_hWnd ? &dialog_ : nullptr; }
    /// A click there.
    void SetPosition(double lat, double lon) override;
    /// The mouse is there.
    void MouseAt(const Place& place);
    void LetGo() { held_ = false; }
    /// Whether clicks hold it; else they are another tool's.
    void SetTakesClicks(bool takes) { takesClicks_ = takes; }
    /// The map is another one.
    void MapGoes();
    /// Takes note of whether it was closed, or shown again.
    void Look();

    bool Waits() const { return mode_ == kReadCoordinates; }
    bool Held() const { return held_; }
    /// What it shows; none ahead of the first position.
    const std::optional<Place>& At() const { return at_; }
    /// X and Y as it shows them; empty where there are none.
    std::string PlaneText() const;

private:
    void Show(const Place& place);

    MapPositions& positions_;
    int open_ = 1;
    KVEventMode mode_ = kReadCoordinates;
    bool takesClicks_ = true;
    bool held_ = false;
    bool otherMap_ = false;
    std::optional<Place> at_;
    OnMap<CKvCoordDialog> dialog_;
};

}  // namespace workbench
