#pragma once

#include <string>
#include <vector>

namespace workbench {

/// What a report found: columns and rows of text.
struct ResultTable {
    struct Column {
        std::string heading;
        bool number = false;  ///< sorted by value and set to the right
    };
    /// The block that a row belongs to.
    struct Key {
        std::string areaCode;
        std::string block;
    };

    std::string title;
    std::vector<Column> columns;
    std::vector<std::string> cells;  ///< row by row
    std::vector<Key> keys;           ///< one for each row

    int RowCount() const { return static_cast<int>(keys.size()); }
    int ColumnCount() const { return static_cast<int>(columns.size()); }
    const std::string& Cell(int row, int column) const {
        return cells[static_cast<std::size_t>(row) * columns.size() +
                     static_cast<std::size_t>(column)];
    }
};

}  // namespace workbench
