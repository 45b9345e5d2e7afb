#pragma once

#include <QList>
#include <QString>

#include "window/node.h"

namespace kv {
class ListBoxNode;
class ListViewNode;
}  // namespace kv

namespace kv::qt {

/// The rows of a list box or of a list view, read where they stand. Good as long as the node.
class RowReader {
public:
    /// Any other node, and null, is a list with no rows.
    explicit RowReader(const Node* list);

    int Rows() const;
    int Columns() const;
    bool Has(int row) const { return row >= 0 && row < Rows(); }
    /// Whether its columns have headings.
    bool Headed() const { return view_ != nullptr; }
    QString Heading(int column) const;
    QString Text(int row, int column) const;
    /// The row that the keyboard acts on, -1 for none.
    int Caret() const;
    bool Selected(int row) const;
    QList<int> SelectedRows() const;
    /// Whether several rows can be selected.
    bool Multiple() const;
    bool HasCheckBoxes() const;
    bool Checked(int row) const;

private:
    const ListBoxNode* box_;
    const ListViewNode* view_;
};

}  // namespace kv::qt
