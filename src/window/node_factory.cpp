#include "window/node_factory.h"

#include <array>

namespace kv {

namespace {

Factory& Place(NodeClass nodeClass) {
    static std::array<Factory, static_cast<std::size_t>(NodeClass::kOther) + 1> factories;
    return factories[static_cast<std::size_t>(nodeClass)];
}

}  // namespace

const Factory* FindFactory(NodeClass nodeClass) {
    const Factory& factory = Place(nodeClass);
    return factory.makeNode ? &factory : nullptr;
}

void RegisterFactory(NodeClass nodeClass, const Factory& factory) {
    Place(nodeClass) = factory;
}

}  // namespace kv
