#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "workbench/results/result_table.h"

namespace workbench {

/// The rows of a report for a table view: sorted by a column and narrowed to those that hold a
/// text, without copying them.
class ResultsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetTable(ResultTable table);
    const ResultTable& Table() const { return table_; }
    /// Only rows that hold the text in some cell, without regard to case; all for an empty one.
    void SetFilter(const QString& text);
    /// Numbers of the table's rows that are shown, in order.
    const std::vector<int>& Shown() const { return shown_; }
    /// Number of the table's row at a row of the view.
    int RowAt(int viewRow) const { return shown_.at(static_cast<std::size_t>(viewRow)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    bool Holds(int row, const QString& text) const;
    void Arrange();

    ResultTable table_;
    QString filter_;
    int sortColumn_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
    std::vector<int> shown_;
};

}  // namespace workbench
