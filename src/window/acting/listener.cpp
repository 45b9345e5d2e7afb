#include "window/acting/listener.h"

#include <utility>

namespace kv::input {

namespace {

Listener& Present() {
    static Listener listener;
    return listener;
}

}  // namespace

Listener SetListener(Listener listener) {
    return std::exchange(Present(), std::move(listener));
}

void Tell(const Deed& deed) {
    if (Present()) Present()(deed);
}

}  // namespace kv::input
