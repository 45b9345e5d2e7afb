#include "workbench/map/label_board.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double kSquare = 4;
constexpr std::uint8_t kTaken = 255;

/// The part of a line, from 0 to 1, in which `from + part * by` lies between 0 and `end`.
void Clip(double from, double by, double end, double& first, double& last) {
    if (by == 0) {
        if (from < 0 || from > end) last = first - 1;
        return;
    }
    const double a = -from / by;
    const double b = (end - from) / by;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
}

}  // namespace

void LabelBoard::Reset(int width, int height) {
    columns_ = static_cast<int>(std::ceil(width / kSquare));
    rows_ = static_cast<int>(std::ceil(height / kSquare));
    squares_.assign(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_), kFree);
}

std::optional<LabelBoard::Squares> LabelBoard::SquaresOf(double left, double top, double width,
                                                         double height) const {
    if (left < 0 || top < 0 || left + width > columns_ * kSquare || top + height > rows_ * kSquare)
        return {};
    return Squares{static_cast<int>(left / kSquare), static_cast<int>(top / kSquare),
                   std::min(columns_ - 1, static_cast<int>((left + width) / kSquare)),
                   std::min(rows_ - 1, static_cast<int>((top + height) / kSquare))};
}

std::optional<int> LabelBoard::CostOf(double left, double top, double width, double height) const {
    const auto wanted = SquaresOf(left, top, width, height);
    if (!wanted) return {};
    int cost = 0;
    for (int row = wanted->top; row <= wanted->bottom; ++row) {
        for (int column = wanted->left; column <= wanted->right; ++column) {
            const std::uint8_t square = squares_[At(column, row)];
            if (square == kTaken) return {};
            cost += square;
        }
    }
    return cost;
}

bool LabelBoard::Take(double left, double top, double width, double height) {
    if (!CostOf(left, top, width, height)) return false;
    const Squares wanted = *SquaresOf(left, top, width, height);
    for (int row = wanted.top; row <= wanted.bottom; ++row) {
        std::fill_n(squares_.begin() + static_cast<std::ptrdiff_t>(At(wanted.left, row)),
                    wanted.right - wanted.left + 1, kTaken);
    }
    return true;
}

void LabelBoard::SpareSquare(double x, double y, Weight weight) {
    const auto column = static_cast<int>(std::floor(x / kSquare));
    const auto row = static_cast<int>(std::floor(y / kSquare));
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_) return;
    std::uint8_t& square = squares_[At(column, row)];
    square = std::max<std::uint8_t>(square, weight);
}

void LabelBoard::Spare(double left, double top, double width, double height, Weight weight) {
    for (double y = top; y <= top + height; y += kSquare) {
        for (double x = left; x <= left + width; x += kSquare)
            SpareSquare(x, y, weight);
    }
}

void LabelBoard::SpareLine(double fromX, double fromY, double toX, double toY, Weight weight) {
    double first = 0;
    double last = 1;
    Clip(fromX, toX - fromX, columns_ * kSquare, first, last);
    Clip(fromY, toY - fromY, rows_ * kSquare, first, last);
    if (first > last) return;
    const double length = std::hypot(toX - fromX, toY - fromY);
    const double step = length > 0 ? kSquare / length : 1;
    for (double part = first; part <= last; part += step)
        SpareSquare(fromX + part * (toX - fromX), fromY + part * (toY - fromY), weight);
}

}  // namespace workbench
