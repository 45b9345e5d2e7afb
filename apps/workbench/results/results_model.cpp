#include "workbench/results/results_model.h"

#include <algorithm>

#include "base/numbers.h"

namespace workbench {

namespace {

/// By value, and by text where the values are alike; empty cells stand last.
bool NumberLess(const std::string& a, const std::string& b) {
    if (a.empty() != b.empty()) return b.empty();
    const double left = kv::Atof(a);
    const double right = kv::Atof(b);
    return left != right ? left < right : a < b;
}

}  // namespace

void ResultsModel::SetTable(ResultTable table) {
    beginResetModel();
    table_ = std::move(table);
    filter_.clear();
    sortColumn_ = -1;
    Arrange();
    endResetModel();
}

void ResultsModel::SetFilter(const QString& text) {
    if (text == filter_) return;
    beginResetModel();
    filter_ = text;
    Arrange();
    endResetModel();
}

bool ResultsModel::Holds(int row, const QString& text) const {
    for (int column = 0; column < table_.ColumnCount(); ++column) {
        const QString cell = QString::fromStdString(table_.Cell(row, column));
        if (cell.contains(text, Qt::CaseInsensitive)) return true;
    }
    return false;
}

void ResultsModel::Arrange() {
    shown_.clear();
    for (int row = 0; row < table_.RowCount(); ++row) {
        if (filter_.isEmpty() || Holds(row, filter_)) shown_.push_back(row);
    }
    if (sortColumn_ < 0) return;
    const bool number = table_.columns[static_cast<std::size_t>(sortColumn_)].number;
    const auto less = [&](int a, int b) {
        const std::string& left = table_.Cell(a, sortColumn_);
        const std::string& right = table_.Cell(b, sortColumn_);
        return number ? NumberLess(left, right) : left < right;
    };
    std::stable_sort(shown_.begin(), shown_.end(), [&](int a, int b) {
        return order_ == Qt::AscendingOrder ? less(a, b) : less(b, a);
    });
}

int ResultsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int ResultsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : table_.ColumnCount();
}

QVariant ResultsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return QString::fromStdString(table_.Cell(RowAt(index.row()), index.column()));
    }
    if (role == Qt::TextAlignmentRole) {
        const bool number = table_.columns[static_cast<std::size_t>(index.column())].number;
        return QVariant::fromValue(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

QVariant ResultsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    if (section >= table_.ColumnCount()) return {};
    const ResultTable::Column& column = table_.columns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return QString::fromStdString(column.heading);
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (column.number ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

void ResultsModel::sort(int column, Qt::SortOrder order) {
    if (column >= table_.ColumnCount()) return;
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<int> rows;
    for (const QModelIndex& index : before)
        rows.push_back(RowAt(index.row()));
    sortColumn_ = column;
    order_ = order;
    Arrange();
    std::vector<int> places(static_cast<std::size_t>(table_.RowCount()));
    for (std::size_t place = 0; place < shown_.size(); ++place)
        places[static_cast<std::size_t>(shown_[place])] = static_cast<int>(place);
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto row = static_cast<std::size_t>(rows[static_cast<std::size_t>(i)]);
        after.append(index(places[row], before[i].column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

}  // namespace workbench
