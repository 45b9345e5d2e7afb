#include "window/drawing/raster.h"

#include <algorithm>
#include <cstdlib>

#include "window/drawing/font_glyphs.h"
#include "window/drawing/font_scale.h"
#include "window/drawing/text_metrics.h"

namespace kv {

namespace {

long long FloorDivide(long long a, long long b) {
    const long long quotient = a / b;
    return quotient * b > a ? quotient - 1 : quotient;
}

/// `step` of `steps` equal parts of a length, in whole pixels; a half goes up or left, so that a
/// line takes the same pixels either way.
int PartOf(int length, int step, int steps) {
    const long long twice = 2LL * length * step;
    return -static_cast<int>(FloorDivide(steps - twice, 2LL * steps));
}

/// Calls `plot` with each pixel of a line and its number, without the last one.
template <typename Plot>
void WalkLine(CPoint from, CPoint to, Plot&& plot) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const int steps = std::max(std::abs(dx), std::abs(dy));
    for (int step = 0; step < steps; ++step) {
        plot(CPoint{from.x + PartOf(dx, step, steps), from.y + PartOf(dy, step, steps)}, step);
    }
}

/// Whether the pixel at that distance along a line is drawn, rather than left out.
bool IsDrawn(const Stroke& stroke, int distance) {
    int total = 0;
    for (const int length : stroke.dashes)
        total += length;
    if (total <= 0) return true;
    int rest = distance % total;
    bool drawn = true;
    for (const int length : stroke.dashes) {
        if (rest < length) return drawn;
        rest -= length;
        drawn = !drawn;
    }
    return drawn;
}

/// First pixel whose place is at or right of the edge a-b on row `y`, which lies within it.
int CrossingOf(CPoint a, CPoint b, int y) {
    if (a.y > b.y) std::swap(a, b);
    const long long height = b.y - a.y;
    const long long run = static_cast<long long>(b.x - a.x) * (y - a.y);
    return a.x - static_cast<int>(FloorDivide(-run, height));
}

std::vector<int> CrossingsOf(std::span<const CPoint> corners, int y) {
    std::vector<int> crossings;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const CPoint a = corners[i];
        const CPoint b = corners[(i + 1) % corners.size()];
        if (std::min(a.y, b.y) <= y && y < std::max(a.y, b.y)) {
            crossings.push_back(CrossingOf(a, b, y));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

/// Whether the centre of a pixel lies in the ellipse that fills the rectangle.
bool InEllipse(const CRect& rect, int x, int y) {
    if (rect.IsRectEmpty()) return false;
    const long long w = rect.Width();
    const long long h = rect.Height();
    const long long dx = 2LL * x + 1 - rect.left - rect.right;
    const long long dy = 2LL * y + 1 - rect.top - rect.bottom;
    return dx * dx * h * h + dy * dy * w * w <= w * w * h * h;
}

std::uint32_t Mixed(std::uint32_t below, std::uint32_t above) {
    const std::uint32_t alpha = above >> 24;
    const std::uint32_t belowAlpha = (below >> 24) * (255 - alpha) / 255;
    const std::uint32_t sum = alpha + belowAlpha;
    if (sum == 0) return 0;
    std::uint32_t mixed = sum << 24;
    for (const int shift : {16, 8, 0}) {
        const std::uint32_t a = above >> shift & 0xFF;
        const std::uint32_t b = below >> shift & 0xFF;
        mixed |= ((a * alpha + b * belowAlpha + sum / 2) / sum) << shift;
    }
    return mixed;
}

/// Calls `plot` with the place of each pixel of a glyph that is set, from the cell's top left.
template <typename Plot>
void WalkGlyph(const Glyph& glyph, const FontScale& scale, bool italic, Plot&& plot) {
    const int top = scale.Stretched(glyph.top);
    const int bottom = scale.Stretched(glyph.top + glyph.RowCount());
    const int width = scale.Stretched(glyph.Width());
    for (int y = top; y < bottom; ++y) {
        const int row = std::clamp(scale.Source(y) - glyph.top, 0, glyph.RowCount() - 1);
        const int slant = italic ? (scale.Stretched(kGlyphAscent) - 1 - y) / 4 : 0;
        for (int x = 0; x < width; ++x) {
            const int column = std::min(scale.Source(x), glyph.Width() - 1);
            if (!glyph.Dot(column, row)) continue;
            for (int smear = 0; smear <= scale.Smear(); ++smear) {
                plot(x + slant + smear, scale.Top() + y);
            }
        }
    }
}

}  // namespace

Raster::Raster(int width, int height, std::uint32_t argb)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      clip_{0, 0, width_, height_},
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), argb) {}

std::uint32_t Raster::Argb(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
}

void Raster::SetArgb(int x, int y, std::uint32_t argb) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
    pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
            static_cast<std::size_t>(x)] = argb;
}

void Raster::SetClip(const CRect& clip) {
    clip_.IntersectRect(clip, {0, 0, width_, height_});
}

void Raster::Put(int x, int y, COLORREF color) {
    if (clip_.PtInRect({x, y})) SetArgb(x, y, ToArgb(color));
}

void Raster::Blend(int x, int y, std::uint32_t argb) {
    if (clip_.PtInRect({x, y})) SetArgb(x, y, Mixed(Argb(x, y), argb));
}

void Raster::PutRow(int left, int right, int y, COLORREF color) {
    Fill({left, y, right, y + 1}, color);
}

void Raster::Fill(const CRect& rect, COLORREF color) {
    CRect part;
    if (!part.IntersectRect(rect, clip_)) return;
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x)
            SetArgb(x, y, ToArgb(color));
    }
}

/// A round dot, as a wide pen leaves one at each place.
void Raster::Dab(CPoint at, int size, COLORREF color) {
    const CRect dot{at.x - size / 2, at.y - size / 2, at.x - size / 2 + size,
                    at.y - size / 2 + size};
    Ellipse(dot, color, std::nullopt);
}

void Raster::Line(CPoint from, CPoint to, const Stroke& stroke) {
    if (stroke.width > 1) {
        WalkLine(from, to, [&](CPoint at, int) { Dab(at, stroke.width, stroke.color); });
        Dab(to, stroke.width, stroke.color);
        return;
    }
    WalkLine(from, to, [&](CPoint at, int distance) {
        if (IsDrawn(stroke, distance)) {
            Put(at.x, at.y, stroke.color);
        } else if (stroke.gap) {
            Put(at.x, at.y, *stroke.gap);
        }
    });
}

void Raster::Polygon(std::span<const CPoint> corners, COLORREF color) {
    for (int y = clip_.top; y < clip_.bottom; ++y) {
        const std::vector<int> crossings = CrossingsOf(corners, y);
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            PutRow(crossings[i], crossings[i + 1], y, color);
        }
    }
}

void Raster::Ellipse(const CRect& rect, std::optional<COLORREF> fill,
                     const std::optional<Stroke>& stroke) {
    const int width = stroke ? std::max(stroke->width, 1) : 0;
    CRect outer = rect;
    outer.DeflateRect(-(width / 2), -(width / 2));
    CRect inner = outer;
    inner.DeflateRect(width, width);
    CRect part;
    if (!part.IntersectRect(outer, clip_)) return;
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            if (!InEllipse(outer, x, y)) continue;
            if (stroke && !InEllipse(inner, x, y)) {
                Put(x, y, stroke->color);
            } else if (fill) {
                Put(x, y, *fill);
            }
        }
    }
}

void Raster::Text(CPoint topLeft, const std::string& text, const Font& font, COLORREF color) {
    const FontScale scale(font);
    std::string_view rest = text;
    int x = topLeft.x;
    while (!rest.empty() && x < clip_.right) {
        const Glyph& glyph = GlyphOf(TakeCharacter(rest));
        WalkGlyph(glyph, scale, font.italic,
                  [&](int dx, int dy) { Put(x + dx, topLeft.y + dy, color); });
        x += scale.Advance(glyph);
    }
}

TextSize Raster::Measure(const std::string& text, const Font& font) const {
    return MeasureLine(text, font);
}

void Raster::Image(const CRect& target, const Raster& image, const CRect& source) {
    CRect part;
    if (source.IsRectEmpty() || !part.IntersectRect(target, clip_)) return;
    // A copy, since the image may be this very raster.
    const Raster from = &image == this ? image : Raster();
    const Raster& pixels = &image == this ? from : image;
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            const long long column = static_cast<long long>(x - target.left) * source.Width();
            const long long row = static_cast<long long>(y - target.top) * source.Height();
            Blend(x, y,
                  pixels.Argb(source.left + static_cast<int>(column / target.Width()),
                              source.top + static_cast<int>(row / target.Height())));
        }
    }
}

}  // namespace kv
