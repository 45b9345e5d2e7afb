#include "workbench/readouts/distance_tool.h"

#include <QGuiApplication>

#include "coordtools/distance_ids.h"

namespace workbench {

DistanceTool::DistanceTool(CWnd* owner, MapPositions& positions)
    : positions_(positions), dialog_(positions, &lineMode_, &open_, owner) {
    dialog_.SetModePtr(&mode_);
    dialog_.Create(dialog_.GetTemplateId());
}

DistanceTool::~DistanceTool() {
    dialog_.CloseDlg();
    dialog_.DestroyWindow();
}

void DistanceTool::SetPosition(double lat, double lon) {
    const Place place{lat, lon};
    if (drawing_ || GoOn()) {
        Lead(place);
        drawing_ = false;
    } else {
        Begin(place);
    }
}

void DistanceTool::MouseAt(const Place& place) {
    if (drawing_) Lead(place);
}

void DistanceTool::Drag(const Place& from, const Place& to, bool done) {
    if (!drawing_ && !GoOn()) Begin(from);
    if (!done) return;
    Lead(to);
    drawing_ = false;
}

void DistanceTool::Begin(Place start) {
    start_ = start;
    end_.reset();
    drawing_ = true;
    projection_ = positions_.ProjectionAt(start);
    startAt_ = positions_.InProjection(start, projection_);
    Feed({});
}

/// Begins where the last line ended, if Shift says so.
bool DistanceTool::GoOn() {
    const bool goesOn = end_ && (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier);
    if (goesOn) Begin(*end_);
    return goesOn;
}

void DistanceTool::Lead(const Place& end) {
    end_ = end;
    Feed(positions_.InProjection(end, projection_));
}

/// An end of 0 and 0 says that there is none.
void DistanceTool::Feed(const Point& end) {
    if (otherMap_) dialog_.ResetToDefault(projection_, std::string(positions_.Unit()));
    otherMap_ = false;
    positions_.SetRectifyingPoint();
    dialog_.DialogUpdateText(startAt_.x, startAt_.y, end.x, end.y, projection_, positions_.Unit());
}

bool DistanceTool::Drop() {
    if (!drawing_) return false;
    drawing_ = false;
    start_.reset();
    end_.reset();
    Feed({});
    return true;
}

void DistanceTool::MapGoes() {
    otherMap_ = projection_ != -1;
    drawing_ = false;
    start_.reset();
    end_.reset();
}

void DistanceTool::Look() {
    if (!dialog_.IsWindowVisible()) {
        Drop();
    } else if (!Waits()) {
        open_ = 1;
        lineMode_ = kMeasureDistance;
        mode_ = kMeasureDistance;
    }
}

std::optional<RubberLine> DistanceTool::Line() const {
    if (lineMode_ != kMeasureDistance || !start_) return {};
    RubberLine line{*start_, end_, {}};
    const std::string length = dialog_.DlgItemText(kv::distance_dialog::kDistance);
    if (end_ && !length.empty()) {
        line.length = length + " " + dialog_.DlgItemText(kv::distance_dialog::kUnit);
    }
    return line;
}

}  // namespace workbench
