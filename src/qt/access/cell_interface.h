#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "window/node.h"

class QAbstractItemView;

namespace kv::qt {

/// A cell of a list, or the heading of one of its columns. It belongs to the list's interface, and
/// means whatever stands at its place.
class CellInterface : public QAccessibleInterface,
                      public QAccessibleTableCellInterface,
                      public QAccessibleActionInterface {
public:
    /// Instead of a row: the heading.
    static constexpr int kHeading = -1;

    /// `widget` shows the list.
    CellInterface(QAccessible::Id list, QWidget& widget, Node& node, int row, int column);

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

protected:
    ~CellInterface() override = default;

private:
    /// Null when the list is gone.
    Node* List() const;
    bool IsHeading() const { return row_ == kHeading; }
    bool HasCheckBox() const;
    QRect RectIn(const QAbstractItemView& view) const;

    QAccessible::Id list_;
    QPointer<QWidget> widget_;
    std::weak_ptr<Node> node_;
    int row_;
    int column_;
};

/// What shows the rows of a list: its widget, or what lies in that of a combo box; null where
/// nothing does, as long as the list was never open.
QAbstractItemView* RowsViewIn(QWidget* widget);

/// Picks a row as a click does, in a combo box as a pick from its list; with `add` among others.
void PickRowLater(Node& list, int row, bool add);

}  // namespace kv::qt
