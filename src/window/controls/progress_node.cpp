#include "window/controls/progress_node.h"

#include <algorithm>
#include <utility>

namespace kv {

LRESULT ProgressNode::SetRange(int lower, int upper) {
    const LRESULT former = MAKELPARAM(lower_, upper_);
    if (lower == lower_ && upper == upper_) return former;
    lower_ = lower;
    upper_ = upper;
    Tell(Change::kRange);
    SetPosition(position_);
    return former;
}

int ProgressNode::SetPosition(long long position) {
    const auto [least, most] = std::minmax(lower_, upper_);
    const int next = static_cast<int>(std::clamp<long long>(position, least, most));
    const int former = std::exchange(position_, next);
    if (next != former) Tell(Change::kPosition);
    return former;
}

/// Past its end the bar begins anew.
int ProgressNode::StepIt() {
    const long long next = static_cast<long long>(position_) + step_;
    return SetPosition(next > upper_ ? lower_ + (next - upper_) : next);
}

LRESULT ProgressNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    const int value = static_cast<int>(wParam);
    switch (message) {
        case PBM_SETRANGE:
            return SetRange(LOWORD(static_cast<std::uintptr_t>(lParam)),
                            HIWORD(static_cast<std::uintptr_t>(lParam)));
        case PBM_SETRANGE32:
            return SetRange(value, static_cast<int>(lParam));
        case PBM_GETRANGE:
            if (auto* range = reinterpret_cast<PBRANGE*>(lParam)) *range = {lower_, upper_};
            return wParam ? lower_ : upper_;
        case PBM_SETPOS:
            return SetPosition(value);
        case PBM_DELTAPOS:
            return SetPosition(static_cast<long long>(position_) + value);
        case PBM_SETSTEP:
            return std::exchange(step_, value);
        case PBM_STEPIT:
            return StepIt();
        case PBM_GETPOS:
            return position_;
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
