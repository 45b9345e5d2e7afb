#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kv {

/// Names a row for as long as it lives, wherever it moves to.
using RowId = std::uint32_t;

/// Texts and item data of rows, by their ids. The texts lie one behind the other in one buffer.
class RowStore {
public:
    RowId Add(std::string_view text);
    void Remove(RowId id);
    void Clear();

    /// Good until a row is added or removed.
    std::string_view Text(RowId id) const {
        const Row& row = rows_[id];
        return {buffer_.data() + row.offset, row.length};
    }
    LPARAM Data(RowId id) const { return rows_[id].data; }
    void SetData(RowId id, LPARAM data) { rows_[id].data = data; }
    /// An index into a list of images; -1 for none, as a new row has.
    int Image(RowId id) const { return rows_[id].image; }
    void SetImage(RowId id, int image) { rows_[id].image = static_cast<std::int16_t>(image); }
    /// One more than the greatest id there has been.
    std::size_t IdCount() const { return rows_.size(); }

private:
    struct Row {
        std::size_t offset = 0;
        LPARAM data = 0;
        std::uint32_t length = 0;
        std::int16_t image = -1;
        bool alive = true;
    };

    void DropDeadTexts();

    std::vector<Row> rows_;
    std::vector<RowId> free_;
    std::string buffer_;
    std::size_t deadBytes_ = 0;
};

}  // namespace kv
