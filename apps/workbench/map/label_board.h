#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace workbench {

/// Which parts of the screen labels have taken, and what they had better not cover, in squares of a
/// few pixels.
class LabelBoard {
public:
    /// How much it costs to cover a square.
    enum Weight : std::uint8_t { kFree = 0, kSpot = 1, kBorder = 4 };

    /// Everything is free again.
    void Reset(int width, int height);
    /// Takes the rectangle, in pixels, if all of it is on the screen and no label has any of it.
    bool Take(double left, double top, double width, double height);
    /// What taking it would cover; none where it cannot be taken.
    std::optional<int> CostOf(double left, double top, double width, double height) const;

    /// Something lies there that can be covered where there is no room elsewhere.
    void Spare(double left, double top, double width, double height, Weight weight);
    void SpareLine(double fromX, double fromY, double toX, double toY, Weight weight);

private:
    struct Squares {
        int left, top, right, bottom;
    };
    /// None where the rectangle is not wholly on the screen.
    std::optional<Squares> SquaresOf(double left, double top, double width, double height) const;
    std::size_t At(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    void SpareSquare(double x, double y, Weight weight);

    int columns_ = 0;
    int rows_ = 0;
    std::vector<std::uint8_t> squares_;  ///< a weight, or that a label has it
};

}  // namespace workbench
