#include "qt/access/cell_interface.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QTreeView>

#include "qt/access/control_interface.h"
#include "qt/access/row_reader.h"
#include "window/acting/input.h"
#include "window/window_system.h"

namespace kv::qt {

QAbstractItemView* RowsViewIn(QWidget* widget) {
    auto* view = qobject_cast<QAbstractItemView*>(widget);
    return view || !widget ? view : widget->findChild<QAbstractItemView*>();
}

void PickRowLater(Node& list, int row, bool add) {
    ActLater(list, [row, add](Node& each) {
        Node* around = each.Parent();
        if (around && around->Class() == NodeClass::kComboBox) {
            input::SelectRows(*around, {row});
        } else {
            input::ClickRow(each, row, {.ctrl = add});
        }
    });
}

CellInterface::CellInterface(QAccessible::Id list, QWidget& widget, Node& node, int row, int column)
    : list_(list), widget_(&widget), node_(node.weak_from_this()), row_(row), column_(column) {}

Node* CellInterface::List() const {
    const auto node = node_.lock();
    return node && !node->Destroyed() ? node.get() : nullptr;
}

bool CellInterface::isValid() const {
    const RowReader rows(List());
    return parent() && column_ < rows.Columns() && (IsHeading() || rows.Has(row_));
}

QWindow* CellInterface::window() const {
    const QAccessibleInterface* list = parent();
    return list ? list->window() : nullptr;
}

QAccessibleInterface* CellInterface::parent() const {
    return QAccessible::accessibleInterface(list_);
}

QString CellInterface::text(QAccessible::Text which) const {
    if (which != QAccessible::Name) return {};
    const RowReader rows(List());
    return IsHeading() ? rows.Heading(column_) : rows.Text(row_, column_);
}

QRect CellInterface::RectIn(const QAbstractItemView& view) const {
    if (!IsHeading()) return view.visualRect(view.model()->index(row_, column_));
    const auto* tree = qobject_cast<const QTreeView*>(&view);
    if (!tree || tree->isHeaderHidden()) return {};
    const QHeaderView& header = *tree->header();
    return {header.sectionViewportPosition(column_), -header.height(), header.sectionSize(column_),
            header.height()};
}

QRect CellInterface::rect() const {
    const QAbstractItemView* view = RowsViewIn(widget_);
    if (!view || !isValid()) return {};
    const QRect place = RectIn(*view);
    return {view->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role CellInterface::role() const {
    if (IsHeading()) return QAccessible::ColumnHeader;
    return RowReader(List()).Headed() ? QAccessible::Cell : QAccessible::ListItem;
}

bool CellInterface::HasCheckBox() const {
    return !IsHeading() && column_ == 0 && RowReader(List()).HasCheckBoxes();
}

QAccessible::State CellInterface::state() const {
    QAccessible::State state;
    const Node* list = List();
    if (!isValid() || !widget_) {
        state.invalid = true;
        return state;
    }
    const QAbstractItemView* view = RowsViewIn(widget_);
    state.invisible = !view || !view->isVisible();
    state.disabled = !list->ReallyEnabled();
    if (IsHeading()) return state;
    const RowReader rows(list);
    state.offscreen = !state.invisible && !view->viewport()->rect().intersects(RectIn(*view));
    state.selectable = true;
    state.multiSelectable = rows.Multiple();
    state.selected = rows.Selected(row_);
    state.focusable = !state.disabled;
    state.focused = row_ == rows.Caret() && column_ == 0 && HasKeyboard(*list, *widget_);
    state.checkable = HasCheckBox();
    state.checked = state.checkable && rows.Checked(row_);
    return state;
}

void* CellInterface::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface) {
        return static_cast<QAccessibleTableCellInterface*>(this);
    }
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool CellInterface::isSelected() const {
    return RowReader(List()).Selected(row_);
}

QList<QAccessibleInterface*> CellInterface::columnHeaderCells() const {
    QAccessibleInterface* list = parent();
    if (!list || !RowReader(List()).Headed()) return {};
    return {list->child(column_)};
}

QStringList CellInterface::actionNames() const {
    if (!isValid()) return {};
    QStringList names{pressAction()};
    if (HasCheckBox()) names.append(toggleAction());
    return names;
}

void CellInterface::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    Node& list = *List();
    if (name == toggleAction()) {
        ActLater(list, [row = row_](Node& each) { input::ToggleCheck(each, row); });
    } else if (IsHeading()) {
        ActLater(list, [column = column_](Node& each) { input::ClickColumn(each, column); });
    } else {
        PickRowLater(list, row_, false);
    }
}

}  // namespace kv::qt
