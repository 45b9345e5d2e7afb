#include "workbench/printing/page_grid.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// What rounding may add to a map that just fits is no reason for another page.
constexpr double kRounding = 1e-6;

std::int64_t PagesFor(double extent, double page) {
    return std::max<std::int64_t>(1, std::llround(std::ceil(extent / page - kRounding)));
}

}  // namespace

PageGrid::PageGrid(const Box& bounds, double scale, const Sheet& sheet)
    : pageWidth_(sheet.roomWidth * scale), pageHeight_(sheet.roomHeight * scale) {
    columns_ = PagesFor(bounds.Width(), pageWidth_);
    rows_ = PagesFor(bounds.Height(), pageHeight_);
    const Point middle = bounds.Middle();
    const double halfWidth = pageWidth_ * static_cast<double>(columns_) / 2;
    const double halfHeight = pageHeight_ * static_cast<double>(rows_) / 2;
    covered_ = {middle.x - halfWidth, middle.y - halfHeight, middle.x + halfWidth,
                middle.y + halfHeight};
}

Box PageGrid::BoxOf(std::int64_t page) const {
    const double left = covered_.minX + pageWidth_ * static_cast<double>(page % columns_);
    const double top = covered_.maxY - pageHeight_ * static_cast<double>(page / columns_);
    return {left, top - pageHeight_, left + pageWidth_, top};
}

std::optional<std::int64_t> PageGrid::Beside(std::int64_t page, int right, int down) const {
    const std::int64_t column = page % columns_ + right;
    const std::int64_t row = page / columns_ + down;
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_) return {};
    return row * columns_ + column;
}

}  // namespace workbench
