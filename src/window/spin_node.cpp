#include "window/spin_node.h"

#include <algorithm>
#include <string>

namespace kv {

Node* SpinNode::Buddy() const {
    const auto buddy = buddy_.lock();
    if (buddy && !buddy->Destroyed()) return buddy.get();
    if (!HasStyle(UDS_AUTOBUDDY) || !Parent()) return nullptr;
    const auto& siblings = Parent()->Children();
    const auto at = std::find_if(siblings.begin(), siblings.end(),
                                 [this](const auto& each) { return each.get() == this; });
    return at == siblings.begin() || at == siblings.end() ? nullptr : std::prev(at)->get();
}

void SpinNode::SetPosition(int position) {
    position_ = std::clamp(position, std::min(lower_, upper_), std::max(lower_, upper_));
    Tell(Change::kPosition);
    Node* buddy = Buddy();
    if (buddy && HasStyle(UDS_SETBUDDYINT)) {
        Send(*buddy, WM_SETTEXT, 0, AsParam(std::to_string(position_).c_str()));
    }
}

int SpinNode::Stepped(int delta) const {
    const int least = std::min(lower_, upper_);
    const int most = std::max(lower_, upper_);
    const long long next = static_cast<long long>(position_) + delta;
    if (next >= least && next <= most) return static_cast<int>(next);
    if (HasStyle(UDS_WRAP)) return next > most ? least : most;
    return next > most ? most : least;
}

void SpinNode::UserStep(bool up) {
    const auto keep = shared_from_this();
    // The upper end may be the smaller number, and then up counts down.
    const int delta = (up ? 1 : -1) * (upper_ >= lower_ ? 1 : -1);
    NMUPDOWN notice{{this, Id(), UDN_DELTAPOS}, position_, delta};
    LRESULT refused = 0;
    if (Parent()) {
        refused = Send(*Parent(), WM_NOTIFY, static_cast<WPARAM>(Id()),
                       reinterpret_cast<LPARAM>(&notice));
    }
    if (refused || Destroyed()) return;
    SetPosition(Stepped(notice.iDelta));
    if (!Parent()) return;
    Send(*Parent(), WM_VSCROLL, MAKEWPARAM(4, position_), reinterpret_cast<LPARAM>(this));
}

LRESULT SpinNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case UDM_SETRANGE32:
            lower_ = static_cast<int>(wParam);
            upper_ = static_cast<int>(lParam);
            Tell(Change::kRange);
            return 0;
        case UDM_GETRANGE32:
            *reinterpret_cast<int*>(wParam) = lower_;
            *reinterpret_cast<int*>(lParam) = upper_;
            return 0;
        case UDM_SETPOS32: {
            const int former = position_;
            SetPosition(static_cast<int>(lParam));
            return former;
        }
        case UDM_GETPOS32:
            return position_;
        case UDM_SETBUDDY: {
            Node* former = Buddy();
            auto* buddy = reinterpret_cast<Node*>(wParam);
            buddy_ = buddy ? buddy->weak_from_this() : std::weak_ptr<Node>();
            return reinterpret_cast<LRESULT>(former);
        }
        case UDM_GETBUDDY:
            return reinterpret_cast<LRESULT>(Buddy());
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
