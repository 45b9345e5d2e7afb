#include "qt/access/list_interface.h"

#include <QAbstractItemView>
#include <QApplication>
#include <utility>

#include "qt/access/cell_interface.h"
#include "qt/access/row_reader.h"
#include "window/acting/input.h"

namespace kv::qt {

ListInterface::~ListInterface() {
    for (const QAccessible::Id cell : std::as_const(cells_))
        QAccessible::deleteAccessibleInterface(cell);
}

QAccessible::State ListInterface::state() const {
    QAccessible::State state = ControlInterface::state();
    state.multiSelectable = RowReader(GetNode()).Multiple();
    state.extSelectable = state.multiSelectable;
    return state;
}

void* ListInterface::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return ControlInterface::interface_cast(type);
}

int ListInterface::childCount() const {
    const RowReader rows(GetNode());
    return (rows.Rows() + (rows.Headed() ? 1 : 0)) * rows.Columns();
}

QAccessibleInterface* ListInterface::child(int index) const {
    if (!Widget() || index < 0 || index >= childCount()) return nullptr;
    if (const auto made = cells_.constFind(index); made != cells_.constEnd()) {
        return QAccessible::accessibleInterface(*made);
    }
    const RowReader rows(GetNode());
    const int row = index / rows.Columns() - (rows.Headed() ? 1 : 0);
    auto* self = const_cast<ListInterface*>(this);
    auto* cell = new CellInterface(QAccessible::uniqueId(self), *Widget(), *GetNode(), row,
                                   index % rows.Columns());
    cells_.insert(index, QAccessible::registerAccessibleInterface(cell));
    return cell;
}

int ListInterface::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const CellInterface*>(child);
    if (!cell || cell->parent() != this || !cell->isValid()) return -1;
    const RowReader rows(GetNode());
    return (cell->rowIndex() + (rows.Headed() ? 1 : 0)) * rows.Columns() + cell->columnIndex();
}

QAccessibleInterface* ListInterface::CaretCell() const {
    return cellAt(RowReader(GetNode()).Caret(), 0);
}

QAccessibleInterface* ListInterface::focusChild() const {
    return Widget() && GetNode() && HasKeyboard(*GetNode(), *Widget()) ? CaretCell() : nullptr;
}

QAccessibleInterface* ListInterface::childAt(int x, int y) const {
    const QAbstractItemView* view = RowsViewIn(Widget());
    if (!view || !view->isVisible() || !rect().contains(x, y)) return nullptr;
    const QModelIndex index = view->indexAt(view->viewport()->mapFromGlobal(QPoint(x, y)));
    if (index.isValid()) return cellAt(index.row(), index.column());
    const RowReader rows(GetNode());
    for (int column = 0; rows.Headed() && column < rows.Columns(); ++column) {
        if (child(column)->rect().contains(x, y)) return child(column);
    }
    return nullptr;
}

QAccessibleInterface* ListInterface::cellAt(int row, int column) const {
    const RowReader rows(GetNode());
    if (!rows.Has(row) || column < 0 || column >= rows.Columns()) return nullptr;
    return child((row + (rows.Headed() ? 1 : 0)) * rows.Columns() + column);
}

int ListInterface::selectedCellCount() const {
    return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> ListInterface::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
        for (int column = 0; column < columnCount(); ++column)
            cells.append(cellAt(row, column));
    }
    return cells;
}

QString ListInterface::columnDescription(int column) const {
    return RowReader(GetNode()).Heading(column);
}

int ListInterface::selectedRowCount() const {
    return static_cast<int>(selectedRows().size());
}

int ListInterface::columnCount() const {
    return RowReader(GetNode()).Columns();
}

int ListInterface::rowCount() const {
    return RowReader(GetNode()).Rows();
}

QList<int> ListInterface::selectedRows() const {
    return RowReader(GetNode()).SelectedRows();
}

bool ListInterface::isRowSelected(int row) const {
    return RowReader(GetNode()).Selected(row);
}

bool ListInterface::selectRow(int row) {
    const RowReader rows(GetNode());
    if (!rows.Has(row) || !input::CanAct(*GetNode())) return false;
    if (!rows.Selected(row)) PickRowLater(*GetNode(), row, rows.Multiple());
    return true;
}

bool ListInterface::unselectRow(int row) {
    const RowReader rows(GetNode());
    if (!rows.Multiple() || !rows.Selected(row) || !input::CanAct(*GetNode())) return false;
    PickRowLater(*GetNode(), row, true);
    return true;
}

/// A cell may be in the middle of an answer.
void ListInterface::ForgetCells() {
    if (cells_.isEmpty()) return;
    QMetaObject::invokeMethod(
        qApp,
        [cells = std::exchange(cells_, {})] {
            for (const QAccessible::Id cell : cells)
                QAccessible::deleteAccessibleInterface(cell);
        },
        Qt::QueuedConnection);
}

}  // namespace kv::qt
