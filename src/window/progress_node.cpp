#include "window/progress_node.h"

#include <algorithm>

namespace kv {

int ProgressNode::SetPosition(long long position) {
    const int former = position_;
    position_ = static_cast<int>(std::clamp<long long>(position, std::min(lower_, upper_),
                                                       std::max(lower_, upper_)));
    if (position_ != former) Tell(Change::kPosition);
    return former;
}

/// Past its end the bar begins anew.
int ProgressNode::StepIt() {
    const long long next = static_cast<long long>(position_) + step_;
    return SetPosition(next > upper_ ? lower_ + (next - upper_) : next);
}

LRESULT ProgressNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case PBM_SETRANGE32:
            lower_ = static_cast<int>(wParam);
            upper_ = static_cast<int>(lParam);
            Tell(Change::kRange);
            SetPosition(position_);
            return 0;
        case PBM_SETPOS:
            return SetPosition(static_cast<int>(wParam));
        case PBM_DELTAPOS:
            return SetPosition(static_cast<long long>(position_) + static_cast<int>(wParam));
        case PBM_SETSTEP: {
            const int former = step_;
            step_ = static_cast<int>(wParam);
            return former;
        }
        case PBM_STEPIT:
            return StepIt();
        case PBM_GETPOS:
            return position_;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
