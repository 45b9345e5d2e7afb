#pragma once

#include <string_view>

namespace kv {

/// The layer's own font: a small sans serif with proportional widths, in a cell 13 pixels high with
/// its base line below row 9.
inline constexpr int kGlyphCellHeight = 13;
inline constexpr int kGlyphAscent = 10;

/// One character: the rows of its pixels from row `top` of the cell on, with a blank between two.
/// It is as wide as its rows, and one pixel of space behind it.
struct Glyph {
    unsigned char character;
    int top;
    std::string_view rows;

    constexpr int Width() const {
        const auto blank = rows.find(' ');
        return static_cast<int>(blank == std::string_view::npos ? rows.size() : blank);
    }
    constexpr int Advance() const { return Width() + 1; }
    constexpr int RowCount() const {
        return static_cast<int>((rows.size() + 1) / static_cast<std::size_t>(Width() + 1));
    }
    constexpr bool Dot(int x, int row) const {
        return rows[static_cast<std::size_t>(row * (Width() + 1) + x)] == '#';
    }
};

/// The glyph of a code point; a hollow box for one that the font lacks.
const Glyph& GlyphOf(char32_t character);

/// Takes the first character off a text that is not empty. UTF-8; a byte that is none stands for
/// the Latin character of its number.
char32_t TakeCharacter(std::string_view& text);

}  // namespace kv
