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

TEST(Color, TheCubeRunsFromBlackToWhiteWithBlueFastest) {
    EXPECT_EQ(ColorAt(16), (Rgb{0, 0, 0}));
    EXPECT_EQ(ColorAt(17), (Rgb{0, 0, 51}));
    EXPECT_EQ(ColorAt(22), (Rgb{0, 51, 0}));
    EXPECT_EQ(ColorAt(52), (Rgb{51, 0, 0}));
    EXPECT_EQ(ColorAt(231), (Rgb{255, 255, 255}));
}

TEST(Color, GreysFollowTheCube) {
    EXPECT_EQ(ColorAt(232), (Rgb{8, 8, 8}));
    EXPECT_EQ(ColorAt(255), (Rgb{238, 238, 238}));
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
