#include "frame/kvcom/color.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr int kColors = 256;
constexpr int kRampsBegin = 16;
constexpr int kCells = 40;

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;
};

constexpr std::array<Rgb, kRampsBegin> kNamed = {{{0, 0, 0},
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

/// Degrees on the circle of colours. They stand closer where the eye tells more of them apart.
constexpr std::array<int, 14> kHues = {0,   18,  33,  48,  66,  95,  130,
                                       155, 182, 204, 226, 258, 286, 325};

struct Tone {
    double saturation;
    double lightness;
};
/// From dark to light: bright ones, and behind them soft ones.
constexpr std::array<Tone, 16> kTones = {{{1.0, 0.16},
                                          {1.0, 0.24},
                                          {1.0, 0.32},
                                          {1.0, 0.41},
                                          {1.0, 0.48},
                                          {1.0, 0.57},
                                          {1.0, 0.66},
                                          {1.0, 0.75},
                                          {1.0, 0.84},
                                          {1.0, 0.92},
                                          {0.42, 0.25},
                                          {0.42, 0.37},
                                          {0.42, 0.49},
                                          {0.42, 0.61},
                                          {0.42, 0.73},
                                          {0.42, 0.85}}};

/// Sixteen even grays with neither black nor white, nor one of those that have a name.
constexpr int GrayLevel(int step) {
    return 15 * (step + 1);
}

Rgb Mix(int hue, const Tone& tone) {
    // Red, green and blue each rise and fall along the circle, a third of it apart.
    const double reach = tone.saturation * std::min(tone.lightness, 1 - tone.lightness);
    const auto part = [&](int twelfths) {
        const double place = std::fmod(twelfths + hue / 30.0, 12.0);
        const double slope = std::clamp(std::min(place - 3, 9 - place), -1.0, 1.0);
        return static_cast<int>(std::lround(255 * (tone.lightness - reach * slope)));
    };
    return {part(0), part(8), part(4)};
}

std::array<Rgb, kColors> MakeTable() {
    std::array<Rgb, kColors> table{};
    auto at = std::copy(kNamed.begin(), kNamed.end(), table.begin());
    for (const int hue : kHues) {
        for (const Tone& tone : kTones)
            *at++ = Mix(hue, tone);
    }
    for (int step = 0; at != table.end(); ++step) {
        const int level = GrayLevel(step);
        *at++ = {level, level, level};
    }
    return table;
}

const Rgb& ColorAt(int index) {
    static const std::array<Rgb, kColors> table = MakeTable();
    return table[static_cast<std::size_t>(index)];
}

int Distance(const Rgb& a, const Rgb& b) {
    const int red = a.red - b.red;
    const int green = a.green - b.green;
    const int blue = a.blue - b.blue;
    return red * red + green * green + blue * blue;
}

using Cells = std::array<int, kCells>;

/// The colour whose nearest neighbour among the cells chosen so far is furthest away.
int FurthestFrom(const Cells& cells, int chosen) {
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

/// Those behind the named ones in the order of the table, so that hues stand together.
Cells ChooseCells() {
    Cells cells{};
    for (int i = 0; i < kCells; ++i) {
        cells[static_cast<std::size_t>(i)] = i < kRampsBegin ? i : FurthestFrom(cells, i);
    }
    std::sort(cells.begin() + kRampsBegin, cells.end());
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
