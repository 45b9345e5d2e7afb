#include "window/controls/spin_node.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace kv {

namespace {

// Kinds of scrolling that a step is told as.
constexpr int kThumbPosition = 4;
constexpr int kEndScroll = 8;

/// The number as a person reads it, with a comma between each three digits.
std::string WithCommas(int number) {
    std::string text = std::to_string(number);
    const int first = number < 0 ? 1 : 0;
    for (int at = static_cast<int>(text.size()) - 3; at > first; at -= 3) {
        text.insert(static_cast<std::size_t>(at), 1, ',');
    }
    return text;
}

}  // namespace

Node* SpinNode::Buddy() const {
    if (buddy_) {
        const auto buddy = buddy_->lock();
        return buddy && !buddy->Destroyed() ? buddy.get() : nullptr;
    }
    if (!HasStyle(UDS_AUTOBUDDY) || !Parent()) return nullptr;
    const auto& siblings = Parent()->Children();
    const auto at = std::find_if(siblings.begin(), siblings.end(),
                                 [this](const auto& each) { return each.get() == this; });
    return at == siblings.begin() || at == siblings.end() ? nullptr : std::prev(at)->get();
}

LRESULT SpinNode::SetBuddy(Node* buddy) {
    Node* former = Buddy();
    buddy_ = buddy ? buddy->weak_from_this() : std::weak_ptr<Node>();
    return reinterpret_cast<LRESULT>(former);
}

void SpinNode::SetRange(int lower, int upper) {
    lower_ = lower;
    upper_ = upper;
    Tell(Change::kRange);
}

int SpinNode::SetPosition(int position) {
    const auto [least, most] = std::minmax(lower_, upper_);
    const int former = std::exchange(position_, std::clamp(position, least, most));
    Tell(Change::kPosition);
    Node* buddy = HasStyle(UDS_SETBUDDYINT) ? Buddy() : nullptr;
    if (!buddy) return former;
    const std::string text =
        HasStyle(UDS_NOTHOUSANDS) ? std::to_string(position_) : WithCommas(position_);
    if (text != buddy->Text()) Send(*buddy, WM_SETTEXT, 0, AsParam(text.c_str()));
    return former;
}

bool SpinNode::ReadBuddy() {
    Node* buddy = Buddy();
    if (!buddy || !HasStyle(UDS_SETBUDDYINT)) return buddy != nullptr;
    const std::string text = TrimSpace(ReplaceAll(buddy->Text(), ",", ""));
    std::size_t end = 0;
    const auto number = ScanInteger(text, &end);
    const auto [least, most] = std::minmax(lower_, upper_);
    if (!number || end != text.size() || *number < least || *number > most) return false;
    position_ = *number;
    return true;
}

int SpinNode::Stepped(int delta) const {
    const auto [least, most] = std::minmax(lower_, upper_);
    const long long next = static_cast<long long>(position_) + delta;
    if (next >= least && next <= most) return static_cast<int>(next);
    const bool above = next > most;
    return above == HasStyle(UDS_WRAP) ? least : most;
}

void SpinNode::UserStep(bool up) {
    const auto keep = shared_from_this();
    ReadBuddy();
    const int delta = (up ? 1 : -1) * (upper_ >= lower_ ? 1 : -1);
    NMUPDOWN notice{{this, Id(), UDN_DELTAPOS}, position_, delta};
    if (Parent()) {
        const LRESULT refused = Send(*Parent(), WM_NOTIFY, static_cast<WPARAM>(Id()),
                                     reinterpret_cast<LPARAM>(&notice));
        if (refused || Destroyed()) return;
    }
    SetPosition(Stepped(notice.iDelta));
    const UINT message = HasStyle(UDS_HORZ) ? WM_HSCROLL : WM_VSCROLL;
    for (const int code : {kThumbPosition, kEndScroll}) {
        if (!Parent() || Destroyed()) return;
        Send(*Parent(), message, MAKEWPARAM(code, position_), reinterpret_cast<LPARAM>(this));
    }
}

/// The messages with numbers of 16 bits.
LRESULT SpinNode::ProcessShort(UINT message, LPARAM lParam, bool& handled) {
    const auto packed = static_cast<std::uintptr_t>(lParam);
    const int low = static_cast<std::int16_t>(LOWORD(packed));
    const int high = static_cast<std::int16_t>(HIWORD(packed));
    switch (message) {
        case UDM_SETRANGE:
            SetRange(high, low);
            return 0;
        case UDM_GETRANGE:
            return MAKELPARAM(upper_, lower_);
        case UDM_SETPOS:
            return SetPosition(low);
        case UDM_GETPOS: {
            const bool read = ReadBuddy();
            return MAKELPARAM(position_, !read);
        }
        default:
            handled = false;
            return 0;
    }
}

LRESULT SpinNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    bool handled = true;
    const LRESULT result = ProcessShort(message, lParam, handled);
    if (handled) return result;
    switch (message) {
        case UDM_SETRANGE32:
            SetRange(static_cast<int>(wParam), static_cast<int>(lParam));
            return 0;
        case UDM_GETRANGE32:
            if (wParam) *reinterpret_cast<int*>(wParam) = lower_;
            if (lParam) *reinterpret_cast<int*>(lParam) = upper_;
            return 0;
        case UDM_SETPOS32:
            return SetPosition(static_cast<int>(lParam));
        case UDM_GETPOS32: {
            const bool read = ReadBuddy();
            if (lParam) *reinterpret_cast<BOOL*>(lParam) = !read;
            return position_;
        }
        case UDM_SETBUDDY:
            return SetBuddy(reinterpret_cast<Node*>(wParam));
        case UDM_GETBUDDY:
            return reinterpret_cast<LRESULT>(Buddy());
        default:
            return Node::Process(message, wParam, lParam);
    }
}

SpinNode* SpinOfKeys(const Node& buddy) {
    if (!buddy.Parent()) return nullptr;
    for (const auto& sibling : buddy.Parent()->Children()) {
        auto* spin = dynamic_cast<SpinNode*>(sibling.get());
        if (!spin || !spin->HasStyle(UDS_ARROWKEYS) || spin->Buddy() != &buddy) continue;
        return spin->ReallyEnabled() && spin->ReallyVisible() ? spin : nullptr;
    }
    return nullptr;
}

}  // namespace kv
