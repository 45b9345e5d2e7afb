#include "frame/kvcom/color.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr int kColors = 256;
constexpr int kCubeBegin = 16;
constexpr int kGreysBegin = 232;
constexpr int kCells = 40;

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;
};

constexpr std::array<Rgb, kCubeBegin> kNamed = {{{0, 0, 0},
                                                 {128, 0, 0},
                                                 {0, 128, 0},
                                                 {128, 128, 0},
                                                 {0, 0, 128},
                                                 {128, 0, 128},
                                                 {0, 128, 128},
                                                 {192, 192, 192},
                                                 {128, 128, 128},
                                                 {255, 0, 0},
                                                 {0, 255, 0},
                                                 {255, 255, 0},
                                                 {0, 0, 255},
                                                 {255, 0, 255},
                                                 {0, 255, 255},
                                                 {255, 255, 255}}};

/// Six even levels, 0 to 255.
constexpr int CubeLevel(int step) {
    return step * 51;
}

/// 24 even greys, with neither black nor white.
constexpr int GreyLevel(int step) {
    return 8 + step * 10;
}

constexpr Rgb ColorAt(int index) {
    if (index < kCubeBegin) return kNamed[static_cast<std::size_t>(index)];
    if (index >= kGreysBegin) {
        const int level = GreyLevel(index - kGreysBegin);
        return {level, level, level};
    }
    const int place = index - kCubeBegin;
    return {CubeLevel(place / 36), CubeLevel(place / 6 % 6), CubeLevel(place % 6)};
}

constexpr int Distance(const Rgb& a, const Rgb& b) {
    const int red = a.red - b.red;
    const int green = a.green - b.green;
    const int blue = a.blue - b.blue;
    return red * red + green * green + blue * blue;
}

using Cells = std::array<int, kCells>;

/// The colour whose nearest neighbour among the cells chosen so far is furthest away.
constexpr int FurthestFrom(const Cells& cells, int chosen) {
    int best = 0;
    int bestDistance = -1;
    for (int index = 0; index < kColors; ++index) {
        int nearest = std::numeric_limits<int>::max();
        for (int i = 0; i < chosen; ++i) {
            nearest = std::min(
                nearest, Distance(ColorAt(index), ColorAt(cells[static_cast<std::size_t>(i)])));
        }
        if (nearest > bestDistance) {
            best = index;
            bestDistance = nearest;
        }
    }
    return best;
}

Cells ChooseCells() {
    Cells cells{};
    for (int i = 0; i < kCells; ++i) {
        cells[static_cast<std::size_t>(i)] = i < kCubeBegin ? i : FurthestFrom(cells, i);
    }
    return cells;
}

}  // namespace

bool CKvColor::GetRGBColor(int nIndex, int& nRed, int& nGreen, int& nBlue) {
    const bool known = nIndex >= 0 && nIndex < kColors;
    const Rgb color = known ? ColorAt(nIndex) : Rgb{};
    nRed = color.red;
    nGreen = color.green;
    nBlue = color.blue;
    return known;
}

int CKvColor::Get256CrossIndexRGB(int nCell) {
    static const Cells cells = ChooseCells();
    return nCell >= 0 && nCell < kCells ? cells[static_cast<std::size_t>(nCell)] : 0;
}
