#include "workbench/map_mouse.h"

#include <algorithm>

#include "workbench/status_line.h"

namespace workbench {

std::vector<MapMouse::Waiting>::iterator MapMouse::Find(const void* tool) {
    return std::ranges::find(waiting_, tool, &Waiting::tool);
}

void MapMouse::Use(const void* tool, const MouseUse& use) {
    const auto known = Find(tool);
    if (use.taken == Taken::kNothing) {
        if (known != waiting_.end()) waiting_.erase(known);
    } else if (known != waiting_.end()) {
        known->use = use;
    } else {
        waiting_.push_back({tool, use});
    }
    Show();
}

void MapMouse::Raise(const void* tool) {
    const auto known = Find(tool);
    if (known != waiting_.end()) std::rotate(known, known + 1, waiting_.end());
    Show();
}

void MapMouse::Show() {
    if (!canvas_) return;
    const MouseUse use = waiting_.empty() ? MouseUse() : waiting_.back().use;
    status_.ShowMode(use.mode);
    canvas_->SetTaken(use.taken, use.cursor);
    canvas_->update();
}

}  // namespace workbench
