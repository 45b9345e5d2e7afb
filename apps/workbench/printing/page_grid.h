#pragma once

#include <cstdint>
#include <optional>

#include "workbench/map/geometry.h"

namespace workbench {

/// A sheet as it lies, in inches, and the room in its middle that the map fills: the sheet without
/// its margin.
struct Sheet {
    double width = 0;
    double height = 0;
    double roomWidth = 0;
    double roomHeight = 0;
    bool landscape = false;  ///< of its paper
};

/// How a map is split into pages, which join without a gap: rows from the north, and in each row
/// from the west. X and Y are in feet.
class PageGrid {
public:
    PageGrid() = default;
    /// As few pages as hold the bounds, which lie in the middle of what they cover together. The
    /// scale is in feet per inch; it and the sheet's room are above 0.
    PageGrid(const Box& bounds, double scale, const Sheet& sheet);

    std::int64_t Columns() const { return columns_; }
    std::int64_t Rows() const { return rows_; }
    std::int64_t Count() const { return columns_ * rows_; }
    /// All that the pages show.
    const Box& Covered() const { return covered_; }
    /// What a page shows, counted from 0.
    Box BoxOf(std::int64_t page) const;
    /// The page so many columns to the right and so many rows down; none beyond the last.
    std::optional<std::int64_t> Beside(std::int64_t page, int right, int down) const;

private:
    std::int64_t columns_ = 0;
    std::int64_t rows_ = 0;
    double pageWidth_ = 0;  ///< feet
    double pageHeight_ = 0;
    Box covered_;
};

}  // namespace workbench
