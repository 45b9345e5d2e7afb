#pragma once

#include <QAccessible>
#include <QString>
#include <vector>

#include "qt/qt_fixture.h"

namespace test {

/// What stands for the control's widget.
inline QAccessibleInterface* Shown(const kv::Node& node) {
    QWidget* widget = kv::qt::WidgetOf(node);
    return widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
}

inline QString NameOf(QAccessibleInterface* shown) {
    return shown->text(QAccessible::Name);
}
inline QString ValueOf(QAccessibleInterface* shown) {
    return shown->text(QAccessible::Value);
}

/// What is related to a control in that way.
inline std::vector<QAccessibleInterface*> Related(const QAccessibleInterface& shown,
                                                  QAccessible::RelationFlag how) {
    std::vector<QAccessibleInterface*> related;
    for (const auto& [other, relation] : shown.relations(how)) {
        if (relation == QAccessible::Relation(how)) related.push_back(other);
    }
    return related;
}

inline std::vector<QString> NamesOfChildren(QAccessibleInterface* shown) {
    std::vector<QString> names;
    for (int index = 0; index < shown->childCount(); ++index)
        names.push_back(NameOf(shown->child(index)));
    return names;
}

/// The first child of a combo box, or of a dialog, that is of this role; null for none.
inline QAccessibleInterface* ChildOfRole(QAccessibleInterface* shown, QAccessible::Role role) {
    for (int index = 0; index < shown->childCount(); ++index) {
        if (shown->child(index)->role() == role) return shown->child(index);
    }
    return nullptr;
}

}  // namespace test
