#include "qt/access/combo_interface.h"

#include <QAbstractItemView>

#include "qt/access/cell_interface.h"
#include "window/controls/combo_box_node.h"

namespace kv::qt {

namespace {

/// The list of a combo box: the popup that shows it is made when it opens for the first time.
class ComboList : public ListInterface {
public:
    using ListInterface::ListInterface;

    /// The widget is the box's.
    QObject* object() const override { return nullptr; }
    QRect rect() const override {
        const QAbstractItemView* view = RowsViewIn(Widget());
        if (!view || !view->isVisible()) return {};
        return {view->mapToGlobal(QPoint(0, 0)), view->size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state = ListInterface::state();
        const QAbstractItemView* view = RowsViewIn(Widget());
        state.invisible = !view || !view->isVisible();
        state.offscreen = false;
        state.focusable = false;
        return state;
    }
    QStringList actionNames() const override { return {}; }
};

}  // namespace

ComboInterface::~ComboInterface() {
    if (list_ != 0) QAccessible::deleteAccessibleInterface(list_);
}

ListInterface* ComboInterface::List() const {
    auto* combo = static_cast<ComboBoxNode*>(GetNode());
    if (!combo || !Widget()) return nullptr;
    if (list_ == 0) {
        list_ = QAccessible::registerAccessibleInterface(new ComboList(*Widget(), combo->List()));
    }
    return static_cast<ListInterface*>(QAccessible::accessibleInterface(list_));
}

QList<QAccessibleInterface*> ComboInterface::Children() const {
    QList<QAccessibleInterface*> children;
    const auto* combo = static_cast<ComboBoxNode*>(GetNode());
    if (!combo) return children;
    QAccessibleInterface* edit = combo->Edit() ? InterfaceOf(*combo->Edit()) : nullptr;
    if (edit) children.append(edit);
    if (ListInterface* list = List()) children.append(list);
    return children;
}

}  // namespace kv::qt
