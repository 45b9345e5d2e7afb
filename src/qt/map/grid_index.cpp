#include "qt/map/grid_index.h"

#include <cmath>

namespace kv::map {

namespace {

constexpr double kBoxesPerCell = 4;
constexpr double kSmallestExtent = 1e-9;

}  // namespace

GridIndex::GridIndex(std::span<const Box> boxes) {
    for (const Box& box : boxes)
        bounds_.Include(box);
    if (bounds_.Empty()) return;

    const double width = std::max(bounds_.Width(), kSmallestExtent);
    const double height = std::max(bounds_.Height(), kSmallestExtent);
    const double cells = std::max(1.0, static_cast<double>(boxes.size()) / kBoxesPerCell);
    const auto count = [cells](double ratio) {
        return static_cast<int>(std::clamp(std::sqrt(cells * ratio), 1.0, cells));
    };
    columns_ = count(width / height);
    rows_ = count(height / width);
    cellWidth_ = width / columns_;
    cellHeight_ = height / rows_;

    const auto forEachCell = [this](const Box& box, auto&& visit) {
        const Range range = CellsOf(box);
        for (int row = range.top; row <= range.bottom; ++row) {
            for (int column = range.left; column <= range.right; ++column) {
                visit(static_cast<std::size_t>(row) * columns_ + column);
            }
        }
    };
    starts_.assign(static_cast<std::size_t>(columns_) * rows_ + 1, 0);
    for (const Box& box : boxes) {
        forEachCell(box, [this](std::size_t cell) { ++starts_[cell + 1]; });
    }
    for (std::size_t cell = 1; cell < starts_.size(); ++cell)
        starts_[cell] += starts_[cell - 1];
    numbers_.resize(starts_.back());
    std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
    for (std::uint32_t number = 0; number < boxes.size(); ++number) {
        forEachCell(boxes[number], [&](std::size_t cell) { numbers_[next[cell]++] = number; });
    }
}

int GridIndex::ColumnOf(double x) const {
    const double column = std::floor((x - bounds_.minX) / cellWidth_);
    return static_cast<int>(std::clamp(column, 0.0, columns_ - 1.0));
}

int GridIndex::RowOf(double y) const {
    const double row = std::floor((y - bounds_.minY) / cellHeight_);
    return static_cast<int>(std::clamp(row, 0.0, rows_ - 1.0));
}

GridIndex::Range GridIndex::CellsOf(const Box& box) const {
    return {ColumnOf(box.minX), RowOf(box.minY), ColumnOf(box.maxX), RowOf(box.maxY)};
}

}  // namespace kv::map
