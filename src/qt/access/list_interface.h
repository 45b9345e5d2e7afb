#pragma once

#include <QHash>

#include "qt/access/control_interface.h"

namespace kv::qt {

/// A list box, the list of a combo box, or a list view. It is a table, and its children are the
/// cells, made when somebody asks for them: ahead of those of a list view the headings.
class ListInterface : public ControlInterface, public QAccessibleTableInterface {
public:
    using ControlInterface::ControlInterface;

    /// The row that the keyboard acts on, by its first cell; null for none.
    QAccessibleInterface* CaretCell() const;
    /// The rows are other ones.
    void ForgetCells();

    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

protected:
    ~ListInterface() override;

private:
    /// By the index as a child.
    mutable QHash<int, QAccessible::Id> cells_;
};

}  // namespace kv::qt
