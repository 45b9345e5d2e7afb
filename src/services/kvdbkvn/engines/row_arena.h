#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "services/kvdbkvn/engines/engine.h"

namespace kv::db {

/// Rows in one block of memory: the cells' bytes one behind the other, each closed by a zero, and
/// the place where each begins. Cells are added row by row.
class RowArena final : public Rows {
public:
    explicit RowArena(int columns) : columns_(columns), bytes_(1, '\0') {}

    void AddNull() { starts_.push_back(0); }
    void Add(std::string_view cell) {
        BeginCell();
        AddPiece(cell);
        EndCell();
    }

    /// A cell that comes in pieces.
    void BeginCell() { starts_.push_back(bytes_.size()); }
    void AddPiece(std::string_view piece) { bytes_.append(piece); }
    void EndCell() { bytes_.push_back('\0'); }

    int Count() const override {
        return columns_ == 0 ? 0 : static_cast<int>(starts_.size()) / columns_;
    }
    int Columns() const override { return columns_; }
    const char* Cell(int row, int column) const override {
        const auto at = static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                        static_cast<std::size_t>(column);
        return bytes_.data() + starts_[at];
    }

private:
    int columns_;
    /// Begins with a zero, which every null points at.
    std::string bytes_;
    std::vector<std::size_t> starts_;
};

}  // namespace kv::db
