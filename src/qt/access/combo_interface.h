#pragma once

#include "qt/access/list_interface.h"

namespace kv::qt {

/// A combo box: its children are its edit, where it has one, and its list.
class ComboInterface : public ControlInterface {
public:
    using ControlInterface::ControlInterface;

    /// The list, also while it is closed; null when the box is gone.
    ListInterface* List() const;

protected:
    ~ComboInterface() override;
    QList<QAccessibleInterface*> Children() const override;

private:
    /// 0 until somebody asks.
    mutable QAccessible::Id list_ = 0;
};

}  // namespace kv::qt
