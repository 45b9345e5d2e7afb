#include "window/stacking.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "window/node.h"

namespace kv {

namespace {

/// From the back to the front. Never destroyed: windows of static lifetime may outlast any other
/// order.
std::vector<std::weak_ptr<Node>>& Order() {
    static auto* order = new std::vector<std::weak_ptr<Node>>;
    return *order;
}

bool IsOwnedBy(const Node& window, const Node& owner) {
    for (const Node* at = window.Owner(); at; at = at->Owner()) {
        if (at == &owner) return true;
    }
    return false;
}

}  // namespace

/// Windows are entered when they are made, so that moving one up needs no memory.
void NoteOnTop(Node& window) {
    const auto self = window.weak_from_this().lock();
    if (!self) return;
    auto& order = Order();
    std::erase_if(order, [](const auto& each) { return each.expired(); });
    auto at = std::ranges::find_if(order, [&](const auto& each) { return each.lock() == self; });
    if (at == order.end()) at = order.insert(at, self);
    std::rotate(at, at + 1, order.end());
    std::ranges::stable_partition(order, [&](const auto& each) {
        const auto other = each.lock();
        return !other || !IsOwnedBy(*other, window);
    });
}

bool IsOnTop(const Node& window) {
    const auto& order = Order();
    for (auto at = order.rbegin(); at != order.rend(); ++at) {
        const auto other = at->lock();
        if (!other || other->Destroyed()) continue;
        if (other.get() == &window) return true;
        if (other->Visible() && !IsOwnedBy(*other, window)) return false;
    }
    return false;
}

void BringToTop(Node& window) {
    if (!window.Visible() || IsOnTop(window)) return;
    NoteOnTop(window);
    if (auto* view = dynamic_cast<Stacked*>(window.GetView())) view->Raise();
}

}  // namespace kv
