#pragma once

#include "qt/access/control_interface.h"

namespace kv::qt {

/// A number between two others: a spin button, a progress bar.
class ValueInterface : public ControlInterface, public QAccessibleValueInterface {
public:
    using ControlInterface::ControlInterface;

    QString text(QAccessible::Text which) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }
};

}  // namespace kv::qt
