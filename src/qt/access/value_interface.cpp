#include "qt/access/value_interface.h"

#include <algorithm>

#include "window/acting/input.h"
#include "window/controls/progress_node.h"
#include "window/controls/spin_node.h"

namespace kv::qt {

namespace {

struct Value {
    int current = 0;
    int least = 0;
    int most = 0;
};

Value ValueOf(const Node* node) {
    if (const auto* spin = dynamic_cast<const SpinNode*>(node)) {
        return {spin->Position(), std::min(spin->Lower(), spin->Upper()),
                std::max(spin->Lower(), spin->Upper())};
    }
    if (const auto* bar = dynamic_cast<const ProgressNode*>(node)) {
        return {bar->Position(), bar->Lower(), bar->Upper()};
    }
    return {};
}

bool IsSpin(const Node* node) {
    return node && node->Class() == NodeClass::kSpin;
}

}  // namespace

QString ValueInterface::text(QAccessible::Text which) const {
    if (which == QAccessible::Value) return QString::number(ValueOf(GetNode()).current);
    return ControlInterface::text(which);
}

void* ValueInterface::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return ControlInterface::interface_cast(type);
}

QStringList ValueInterface::actionNames() const {
    if (!IsSpin(GetNode())) return {};
    return {increaseAction(), decreaseAction()};
}

void ValueInterface::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    const bool up = name == increaseAction();
    ActLater(*GetNode(), [up](Node& spin) { input::StepSpin(spin, up); });
}

QVariant ValueInterface::currentValue() const {
    return ValueOf(GetNode()).current;
}

QVariant ValueInterface::maximumValue() const {
    return ValueOf(GetNode()).most;
}

QVariant ValueInterface::minimumValue() const {
    return ValueOf(GetNode()).least;
}

/// It is the program that moves a progress bar.
void ValueInterface::setCurrentValue(const QVariant& value) {
    if (!IsSpin(GetNode())) return;
    ActLater(*GetNode(), [position = value.toInt()](Node& spin) {
        if (input::CanAct(spin)) Send(spin, UDM_SETPOS32, 0, position);
    });
}

}  // namespace kv::qt
