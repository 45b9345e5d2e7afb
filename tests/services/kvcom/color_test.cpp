#include "frame/kvcom/color.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace {

using Rgb = std::array<int, 3>;

Rgb ColorAt(int index) {
    Rgb color = {-1, -1, -1};
    EXPECT_TRUE(CKvColor::GetRGBColor(index, color[0], color[1], color[2])) << index;
    return color;
}

TEST(Color, KnowsTheNamedColors) {
    EXPECT_EQ(ColorAt(0), (Rgb{0, 0, 0}));
    EXPECT_EQ(ColorAt(6), (Rgb{0, 128, 128}));
    EXPECT_EQ(ColorAt(9), (Rgb{255, 0, 0}));
    EXPECT_EQ(ColorAt(15), (Rgb{255, 255, 255}));
}

TEST(Color, EachHueHasTenBrightShadesAndSixSoftOnesFromDarkToLight) {
    for (int first = 16; first < 240; first += 16) {
        for (int shade = 1; shade < 16; ++shade) {
            if (shade == 10) continue;
            const Rgb darker = ColorAt(first + shade - 1);
            const Rgb lighter = ColorAt(first + shade);
            const auto sum = [](const Rgb& color) { return color[0] + color[1] + color[2]; };
            EXPECT_GT(sum(lighter), sum(darker)) << first + shade;
        }
    }
    EXPECT_EQ(ColorAt(16), (Rgb{82, 0, 0}));
    EXPECT_EQ(ColorAt(23), (Rgb{255, 128, 128}));
    EXPECT_EQ(ColorAt(28), (Rgb{177, 72, 72}));
    EXPECT_EQ(ColorAt(16 + 6 * 16), (Rgb{0, 82, 14}));
    EXPECT_EQ(ColorAt(16 + 10 * 16 + 9), (Rgb{214, 224, 255}));
}

TEST(Color, GraysAreTheLast) {
    EXPECT_EQ(ColorAt(240), (Rgb{15, 15, 15}));
    EXPECT_EQ(ColorAt(255), (Rgb{240, 240, 240}));
}

TEST(Color, NoColorIsTwiceInTheTable) {
    std::set<Rgb> colors;
    for (int index = 0; index < 256; ++index)
        colors.insert(ColorAt(index));
    EXPECT_EQ(colors.size(), 256u);
}

TEST(Color, EveryColorIsWithinItsLimits) {
    for (int index = 0; index < 256; ++index) {
        for (const int part : ColorAt(index)) {
            EXPECT_GE(part, 0) << index;
            EXPECT_LE(part, 255) << index;
        }
    }
}

TEST(Color, OutsideTheTableIsBlackAndFalse) {
    for (const int index : {-1, 256, 100000}) {
        Rgb color = {1, 2, 3};
        EXPECT_FALSE(CKvColor::GetRGBColor(index, color[0], color[1], color[2])) << index;
        EXPECT_EQ(color, (Rgb{0, 0, 0}));
    }
}

TEST(Color, TheFortyCellsAreFarApartAndBeginWithTheNamedColors) {
    std::set<int> indices;
    for (int cell = 0; cell < 40; ++cell) {
        const int index = CKvColor::Get256CrossIndexRGB(cell);
        if (cell < 16) {
            EXPECT_EQ(index, cell);
        }
        indices.insert(index);
    }
    EXPECT_EQ(indices.size(), 40u);
    for (const int a : indices) {
        for (const int b : indices) {
            if (a == b) continue;
            const Rgb left = ColorAt(a);
            const Rgb right = ColorAt(b);
            int distance = 0;
            for (std::size_t i = 0; i < 3; ++i)
                distance += (left[i] - right[i]) * (left[i] - right[i]);
            EXPECT_GE(distance, 60 * 60) << a << " and " << b;
        }
    }
}

TEST(Color, OtherCellsStandForTheFirstColor) {
    EXPECT_EQ(CKvColor::Get256CrossIndexRGB(-1), 0);
    EXPECT_EQ(CKvColor::Get256CrossIndexRGB(40), 0);
}

}  // namespace
