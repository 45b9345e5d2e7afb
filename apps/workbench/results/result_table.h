#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/map/geometry.h"

namespace workbench {

/// What a report found: columns and rows of text.
struct ResultTable {
    struct Column {
        std::string heading;
        bool number = false;  ///< sorted by value and set to the right
    };
    /// The block that a row belongs to, and where in it.
    struct Key {
        std::string areaCode;
        std::string block;
        std::optional<Place> place = std::nullopt;
    };

    std::string title;  ///< of the layer
    std::string what;   ///< what the rows are, as "Wells in GREEN CANYON 200"
    std::vector<Column> columns;
    std::vector<std::string> cells;  ///< row by row
    std::vector<Key> keys;           ///< one for each row
    bool whole = true;               ///< otherwise its reading was cancelled

    int RowCount() const { return static_cast<int>(keys.size()); }
    int ColumnCount() const { return static_cast<int>(columns.size()); }
    const std::string& Cell(int row, int column) const {
        return cells[static_cast<std::size_t>(row) * columns.size() +
                     static_cast<std::size_t>(column)];
    }

    /// Gives the numbers of a column as many decimals as the one that has the most of them.
    void AlignDecimals();
    /// What was found, in words: "Wells in GREEN CANYON 200: 2", of no rows a sentence, and where
    /// only `shown` of them are shown, both numbers. Of what was cancelled it says so.
    std::string Heading(int shown) const;
};

}  // namespace workbench
