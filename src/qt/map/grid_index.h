#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/export.h"
#include "qt/map/geometry.h"

namespace kv::map {

/// Finds the boxes that meet a box: a grid of cells, each with the numbers of the boxes that reach
/// into it.
class KVGUICTL_API GridIndex {
public:
    GridIndex() = default;
    /// Keeps nothing of `boxes` but what cells they reach; they stay where they are and as they
    /// are.
    explicit GridIndex(std::span<const Box> boxes);

    /// Calls `visit(number)` once for each of the boxes that meets `query`, in no given order.
    template <typename Visit>
    void ForEach(std::span<const Box> boxes, const Box& query, Visit&& visit) const {
        if (starts_.empty() || !query.Meets(bounds_)) return;
        const Range cells = CellsOf(query);
        for (int row = cells.top; row <= cells.bottom; ++row) {
            for (int column = cells.left; column <= cells.right; ++column) {
                const auto cell = static_cast<std::size_t>(row) * columns_ + column;
                for (std::uint32_t at = starts_[cell]; at < starts_[cell + 1]; ++at) {
                    const Box& box = boxes[numbers_[at]];
                    if (!box.Meets(query)) continue;
                    // A box in several cells counts in the first of those that were asked for.
                    const bool first = std::max(ColumnOf(box.minX), cells.left) == column &&
                                       std::max(RowOf(box.minY), cells.top) == row;
                    if (first) visit(numbers_[at]);
                }
            }
        }
    }

private:
    struct Range {
        int left, top, right, bottom;
    };

    int ColumnOf(double x) const;
    int RowOf(double y) const;
    Range CellsOf(const Box& box) const;

    Box bounds_;
    int columns_ = 0;
    int rows_ = 0;
    double cellWidth_ = 1;
    double cellHeight_ = 1;
    std::vector<std::uint32_t> starts_;  ///< of each cell in `numbers_`, and the end
    std::vector<std::uint32_t> numbers_;
};

}  // namespace kv::map
