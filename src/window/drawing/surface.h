#pragma once

#include <optional>
#include <span>
#include <string>

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/font.h"

namespace kv {

class Raster;

/// How a line is drawn.
struct Stroke {
    COLORREF color = 0;
    int width = 1;
    /// Lengths in pixels of what is drawn and what is left out, in turn; empty: all is drawn.
    std::span<const int> dashes;
    /// Colour of what the dashes leave out; none: it stays as it is.
    std::optional<COLORREF> gap;
};

/// Extent of a line of text, in logical pixels.
struct TextSize {
    int width = 0;
    int height = 0;
    int ascent = 0;  ///< from the top to the base line
    bool operator==(const TextSize&) const = default;
};

/// What a device context draws on, in logical pixels. A pixel's place is its top left corner;
/// rectangles leave out their right and bottom sides, lines their last point.
class KVGUICTL_API Surface {
public:
    virtual ~Surface() = default;

    virtual CSize Extent() const = 0;
    /// Everything below stays within this rectangle.
    virtual void SetClip(const CRect& clip) = 0;
    virtual void Fill(const CRect& rect, COLORREF color) = 0;
    virtual void Line(CPoint from, CPoint to, const Stroke& stroke) = 0;
    /// Fills by the even-odd rule.
    virtual void Polygon(std::span<const CPoint> corners, COLORREF color) = 0;
    /// The ellipse that fills the rectangle; `fill` and `stroke` may each be missing.
    virtual void Ellipse(const CRect& rect, std::optional<COLORREF> fill,
                         const std::optional<Stroke>& stroke) = 0;
    virtual void Text(CPoint topLeft, const std::string& text, const Font& font,
                      COLORREF color) = 0;
    virtual TextSize Measure(const std::string& text, const Font& font) const = 0;
    /// Puts the part `source` of an image over `target`, stretched to it, by the image's opacity.
    virtual void Image(const CRect& target, const Raster& image, const CRect& source) = 0;
    /// Black outside, and where pixels cannot be read.
    virtual COLORREF Pixel(CPoint at) const = 0;
};

}  // namespace kv
