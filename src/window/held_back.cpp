#include "window/held_back.h"

#include <utility>

namespace kv {

namespace {

using IsBlocked = std::function<bool(const Node&)>;

/// Never destroyed: windows of static lifetime may outlast any other order.
IsBlocked& Blocked() {
    static auto* const blocked = new IsBlocked;
    return *blocked;
}

}  // namespace

void HoldBack(IsBlocked isBlocked) {
    Blocked() = std::move(isBlocked);
}

bool IsHeldBack(const Node& node) {
    return Blocked() && Blocked()(node);
}

bool HoldsBack() {
    return Blocked() != nullptr;
}

}  // namespace kv
