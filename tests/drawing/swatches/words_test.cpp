// What swatches are called, for who reads and who hears them.

#include <gtest/gtest.h>

#include "drawing/swatches/color_words.h"
#include "drawing/swatches/line_button.h"
#include "drawing/swatches/symbol_button.h"

namespace {

TEST(Words, TheSixteenBasicColorsHaveTheirNames) {
    const char* const names[] = {"black", "maroon",  "green", "olive", "navy", "purple",
                                 "teal",  "silver",  "gray",  "red",   "lime", "yellow",
                                 "blue",  "magenta", "cyan",  "white"};
    for (int index = 0; index < 16; ++index)
        EXPECT_EQ(kv::swatches::NameOfColor(index), names[index]);
}

TEST(Words, AnyOtherColorIsNamedByItsHueAndShade) {
    struct {
        int index;
        const char* name;
    } const cases[] = {
        {16, "very dark red"},   {18, "dark red"},        {20, "red"},
        {22, "light red"},       {24, "pale red"},        {26, "soft dark red"},
        {28, "soft red"},        {30, "soft light red"},  {34, "dark brown"},
        {36, "orange"},          {66, "dark olive"},      {68, "yellow"},
        {98, "dark green"},      {100, "lime"},           {114, "dark green"},
        {116, "green"},          {130, "dark sea green"}, {132, "sea green"},
        {146, "dark teal"},      {148, "cyan"},           {162, "dark azure"},
        {164, "azure"},          {178, "dark blue"},      {180, "blue"},
        {194, "dark violet"},    {196, "violet"},         {210, "dark plum"},
        {212, "purple"},         {226, "dark crimson"},   {228, "pink"},
        {239, "soft pale pink"}, {240, "very dark gray"}, {243, "dark gray"},
        {246, "gray"},           {250, "light gray"},     {255, "pale gray"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(kv::swatches::NameOfColor(each.index), each.name) << each.index;
}

TEST(Words, AColorIsNumberedFromOne) {
    EXPECT_EQ(kv::swatches::ColorInWords(0), "Color 1, black");
    EXPECT_EQ(kv::swatches::ColorInWords(16), "Color 17, very dark red");
    for (const int index : {-1, 256}) {
        EXPECT_EQ(kv::swatches::NameOfColor(index), "");
        EXPECT_EQ(kv::swatches::ColorInWords(index), "No color");
    }
}

TEST(Words, LineWidthsAndTypesAreNumberedFromOne) {
    CKvGuiLineWidthButton width;
    width.SetDlgType(E_DIALOG_LINE_WIDTH);
    width.SetEventType(E_EVENT_CELL);
    const auto widthOf = [&](int value) {
        width.SetLineWidth(value);
        return width.SpokenName();
    };
    EXPECT_EQ(widthOf(0), "Line width 1");
    EXPECT_EQ(widthOf(9), "Line width 10");
    EXPECT_EQ(widthOf(-1), "No line width");
    CKvGuiLineTypeButton type;
    type.SetEventType(E_EVENT_CELL);
    const char* const types[] = {"No line type",
                                 "Line type 1, solid",
                                 "Line type 2, dashed",
                                 "Line type 3, dotted",
                                 "Line type 4, dash and dot",
                                 "Line type 5, dash and two dots",
                                 "Line type 6, blank",
                                 "No line type"};
    for (int value = -1; value < 7; ++value) {
        type.SetLineType(value);
        EXPECT_EQ(type.SpokenName(), types[value + 1]) << value;
    }
}

TEST(Words, TextStylesHaveTheirWords) {
    const char* const words[] = {"", "Normal", "Bold", "Italic", "Bold Italic", ""};
    for (int style = -1; style < 5; ++style)
        EXPECT_EQ(kv::swatches::TextStyleWord(style), words[style + 1]) << style;
}

TEST(Words, EachSymbolHasItsName) {
    CKvGuiPointSymbolButton symbol;
    symbol.m_bActive = false;
    const auto nameOf = [&](int id) {
        symbol.m_nSymbolId = id;
        return symbol.SpokenName();
    };
    const char* const points[] = {"No symbol",
                                  "Location",
                                  "Oil well",
                                  "Gas well",
                                  "Oil and gas well",
                                  "Condensate well",
                                  "Dry hole",
                                  "Dry hole with a show of oil",
                                  "Dry hole with a show of gas",
                                  "Plugged oil well",
                                  "Plugged gas well",
                                  "Plugged oil and gas well",
                                  "Suspended well",
                                  "Injection well",
                                  "Disposal well",
                                  "Water supply well",
                                  "Drilling well",
                                  "Junked hole",
                                  "Platform",
                                  "Observation well",
                                  "No symbol"};
    for (int id = 13022; id <= 13042; ++id)
        EXPECT_EQ(nameOf(id), points[id - 13022]) << id;
    const char* const numbers[] = {"No symbol",
                                   "Number in a circle",
                                   "Number in a square",
                                   "Number in a diamond",
                                   "Number in a triangle",
                                   "Number in a hexagon",
                                   "Number in a capsule",
                                   "Number in a flag",
                                   "Bare number",
                                   "No symbol"};
    for (int id = 13046; id <= 13055; ++id)
        EXPECT_EQ(nameOf(id), numbers[id - 13046]) << id;
}

}  // namespace
