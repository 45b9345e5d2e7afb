#pragma once

#include <cstdint>
#include <vector>

namespace workbench {

/// Which parts of the screen labels have taken, in squares of a few pixels.
class LabelBoard {
public:
    /// Everything is free again.
    void Reset(int width, int height);
    /// Takes the rectangle, in pixels, if all of it is free and on the screen.
    bool Take(double left, double top, double width, double height);

private:
    int columns_ = 0;
    int rows_ = 0;
    std::vector<std::uint8_t> taken_;
};

}  // namespace workbench
