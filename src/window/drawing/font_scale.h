#pragma once

#include <algorithm>

#include "window/drawing/font.h"
#include "window/drawing/font_glyphs.h"

namespace kv {

/// The layer's font at a height: how its glyphs are stretched, and where they stand in their cell.
///
/// Close to the height at which it is designed the font is drawn as it is; dropping or doubling a
/// row of so small a font would only spoil it.
class FontScale {
public:
    explicit FontScale(const Font& font)
        : cell_(std::max(font.height, 1)),
          glyph_(cell_ >= 12 && cell_ <= 15 ? kGlyphCellHeight : cell_),
          bold_(font.bold) {}

    int CellHeight() const { return cell_; }
    int Ascent() const { return Top() + Stretched(kGlyphAscent); }
    int Advance(const Glyph& glyph) const {
        return std::max(Stretched(glyph.Advance()), 1) + Smear();
    }
    /// Where row 0 of the glyphs stands in the cell.
    int Top() const { return cell_ - glyph_; }
    /// Extent, in drawn pixels, of so many pixels of the design.
    int Stretched(int length) const {
        return (2 * length * glyph_ + kGlyphCellHeight) / (2 * kGlyphCellHeight);
    }
    /// The pixel of the design that a drawn one shows.
    int Source(int drawn) const { return (2 * drawn + 1) * kGlyphCellHeight / (2 * glyph_); }
    /// By how many pixels bold strokes are wider.
    int Smear() const { return bold_ ? std::max(glyph_ / kGlyphCellHeight, 1) : 0; }

private:
    int cell_;
    int glyph_;
    bool bold_;
};

}  // namespace kv
