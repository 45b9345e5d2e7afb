#include "workbench/map/label_board.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double kSquare = 4;

}  // namespace

void LabelBoard::Reset(int width, int height) {
    columns_ = static_cast<int>(std::ceil(width / kSquare));
    rows_ = static_cast<int>(std::ceil(height / kSquare));
    taken_.assign(static_cast<std::size_t>(columns_) * rows_, 0);
}

bool LabelBoard::Take(double left, double top, double width, double height) {
    if (left < 0 || top < 0 || left + width > columns_ * kSquare ||
        top + height > rows_ * kSquare) {
        return false;
    }
    const int first = static_cast<int>(left / kSquare);
    const int last = std::min(columns_ - 1, static_cast<int>((left + width) / kSquare));
    const int bottom = std::min(rows_ - 1, static_cast<int>((top + height) / kSquare));
    const auto squares = [&](int row) {
        return taken_.begin() + static_cast<std::ptrdiff_t>(row) * columns_ + first;
    };
    const int count = last - first + 1;
    for (int row = static_cast<int>(top / kSquare); row <= bottom; ++row) {
        if (std::any_of(squares(row), squares(row) + count, [](auto each) { return each != 0; })) {
            return false;
        }
    }
    for (int row = static_cast<int>(top / kSquare); row <= bottom; ++row) {
        std::fill_n(squares(row), count, std::uint8_t{1});
    }
    return true;
}

}  // namespace workbench
