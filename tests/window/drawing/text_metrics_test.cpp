#include "window/drawing/text_metrics.h"

#include <gtest/gtest.h>

#include <string>

#include "window/drawing/raster.h"

namespace {

using kv::Font;
using kv::MeasureText;

const Font kDialogFont;

TEST(TextMetrics, TheDialogFontHasTheBaseUnitsOfDialogs) {
    std::string letters;
    for (char ch = 'a'; ch <= 'z'; ++ch)
        letters += ch;
    for (char ch = 'A'; ch <= 'Z'; ++ch)
        letters += ch;
    const CSize size = MeasureText(letters, kDialogFont);
    // The average over all letters, rounded as the platform does it.
    EXPECT_EQ((size.cx / 26 + 1) / 2, 6);
    EXPECT_EQ(size.cy, 13);
}

TEST(TextMetrics, AnEmptyTextHasTheHeightOfALine) {
    EXPECT_EQ(MeasureText("", kDialogFont), (CSize{0, 13}));
}

TEST(TextMetrics, WidthsAreProportionalAndAddUp) {
    const int i = MeasureText("i", kDialogFont).cx;
    const int w = MeasureText("W", kDialogFont).cx;
    EXPECT_LT(i, w);
    EXPECT_EQ(MeasureText("iWiW", kDialogFont).cx, 2 * i + 2 * w);
}

TEST(TextMetrics, AllDigitsAreOfOneWidth) {
    for (char digit = '0'; digit <= '9'; ++digit) {
        EXPECT_EQ(MeasureText(std::string(1, digit), kDialogFont).cx, 6) << digit;
    }
}

TEST(TextMetrics, BoldIsAPixelACharacterWider) {
    const Font bold{"", 13, true, false};
    EXPECT_EQ(MeasureText("Block", bold).cx, MeasureText("Block", kDialogFont).cx + 5);
}

TEST(TextMetrics, ItalicIsAsWide) {
    const Font italic{"", 13, false, true};
    EXPECT_EQ(MeasureText("Block", italic), MeasureText("Block", kDialogFont));
}

TEST(TextMetrics, TwiceTheHeightIsTwiceTheWidth) {
    const Font large{"", 26, false, false};
    const CSize size = MeasureText("West Cameron", kDialogFont);
    EXPECT_EQ(MeasureText("West Cameron", large), (CSize{2 * size.cx, 26}));
}

TEST(TextMetrics, ALineOneOrTwoPixelsHigherKeepsTheGlyphs) {
    const Font high{"", 15, false, false};
    EXPECT_EQ(MeasureText("Area", high), (CSize{MeasureText("Area", kDialogFont).cx, 15}));
}

TEST(TextMetrics, TheBaseLineLiesBelowTheCapitals) {
    EXPECT_EQ(kv::MeasureLine("A", kDialogFont).ascent, 10);
    EXPECT_EQ(kv::MeasureLine("A", Font{"", 26, false, false}).ascent, 20);
}

TEST(TextMetrics, ADegreeSignIsOneCharacterAsAByteAndInUtf8) {
    const int width = MeasureText("\xB0", kDialogFont).cx;
    EXPECT_EQ(MeasureText("\xC2\xB0", kDialogFont).cx, width);
    EXPECT_EQ(MeasureText("28\xB0", kDialogFont).cx, 12 + width);
}

TEST(TextMetrics, ACharacterOfManyBytesIsOneBox) {
    const int box = MeasureText("\xE2\x82\xAC", kDialogFont).cx;
    EXPECT_EQ(MeasureText("\xF0\x9F\x8C\x8D", kDialogFont).cx, box);
    // Cut off, each of its bytes is one by itself.
    EXPECT_EQ(MeasureText("\xE2\x82", kDialogFont).cx, 2 * box);
}

TEST(TextMetrics, WhatIsDrawnKeepsToTheMeasuredWidth) {
    for (const bool bold : {false, true}) {
        const Font font{"", 13, bold, false};
        const std::string text = "Lease Status: MWQ@%#";
        kv::Raster picture(200, 13);
        picture.Text({0, 0}, text, font, RGB(0, 0, 0));
        const int width = MeasureText(text, font).cx;
        for (int y = 0; y < 13; ++y) {
            for (int x = width - 1; x < 200; ++x) {
                EXPECT_EQ(picture.Argb(x, y), 0u) << x << "," << y;
            }
        }
    }
}

TEST(Mnemonic, IsMarkedByAnAmpersandThatIsNotShown) {
    EXPECT_EQ(kv::WithoutMnemonic("&Import..."), "Import...");
    EXPECT_EQ(kv::MnemonicOf("&Import..."), 'I');
    EXPECT_EQ(kv::WithoutMnemonic("Ex&port"), "Export");
    EXPECT_EQ(kv::MnemonicOf("Ex&port"), 'p');
}

TEST(Mnemonic, TwoAmpersandsAreOneThatIsShown) {
    EXPECT_EQ(kv::WithoutMnemonic("Black && White"), "Black & White");
    EXPECT_EQ(kv::MnemonicOf("Black && White"), '\0');
    EXPECT_EQ(kv::MnemonicOf("Black && &White"), 'W');
}

TEST(Mnemonic, AnAmpersandAtTheEndMarksNothing) {
    EXPECT_EQ(kv::WithoutMnemonic("Area&"), "Area");
    EXPECT_EQ(kv::MnemonicOf("Area&"), '\0');
    EXPECT_EQ(kv::MnemonicOf(""), '\0');
}

TEST(Mnemonic, TheFirstOneCounts) {
    EXPECT_EQ(kv::MnemonicOf("&Area &Block"), 'A');
}

}  // namespace
