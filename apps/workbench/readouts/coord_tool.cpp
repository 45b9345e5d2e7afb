#include "workbench/readouts/coord_tool.h"

#include "coordtools/coord_ids.h"

namespace workbench {

CoordTool::CoordTool(CWnd* owner, MapPositions& positions)
    : positions_(positions), dialog_(positions, &open_, owner) {
    dialog_.SetModePtr(&mode_);
    dialog_.Create(dialog_.GetTemplateId());
}

CoordTool::~CoordTool() {
    dialog_.CloseDlg();
    dialog_.DestroyWindow();
}

void CoordTool::SetPosition(double lat, double lon) {
    if (!takesClicks_) return;
    held_ = !held_;
    Show({lat, lon});
}

void CoordTool::MouseAt(const Place& place) {
    if (Waits() && !held_) Show(place);
}

void CoordTool::Show(const Place& place) {
    at_ = place;
    const int projection = positions_.ProjectionAt(place);
    const Point at = positions_.InProjection(place, projection);
    if (otherMap_) dialog_.ResetToDefault(projection, std::string(positions_.Unit()));
    otherMap_ = false;
    positions_.SetRectifyingPoint();
    dialog_.DialogUpdateText(at.x, at.y, projection, positions_.Unit());
}

void CoordTool::MapGoes() {
    otherMap_ = at_.has_value();
    held_ = false;
}

void CoordTool::Look() {
    if (!dialog_.IsWindowVisible()) {
        held_ = false;
    } else if (!Waits()) {
        open_ = 1;
        mode_ = kReadCoordinates;
    }
}

std::string CoordTool::PlaneText() const {
    const std::string x = dialog_.DlgItemText(kv::coord_dialog::kX);
    const std::string y = dialog_.DlgItemText(kv::coord_dialog::kY);
    return x.empty() || y.empty() ? std::string() : x + " " + y;
}

}  // namespace workbench
