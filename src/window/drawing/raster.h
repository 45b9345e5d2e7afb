#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "window/drawing/surface.h"

namespace kv {

/// An opaque pixel of that colour, as a raster holds it: 0xAARRGGBB, colours not multiplied by the
/// opacity.
constexpr std::uint32_t ToArgb(COLORREF color) {
    return 0xFF000000u | static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 |
           static_cast<std::uint32_t>(GetBValue(color));
}
constexpr COLORREF FromArgb(std::uint32_t argb) {
    return RGB(static_cast<int>(argb >> 16), static_cast<int>(argb >> 8), static_cast<int>(argb));
}

/// A picture in memory that can be drawn on. All its drawing is in whole pixels, without smoothing,
/// so that it is the same everywhere.
class KVGUICTL_API Raster : public Surface {
public:
    Raster() = default;
    /// Transparent unless another pixel is given.
    Raster(int width, int height, std::uint32_t argb = 0);

    int Width() const { return width_; }
    int Height() const { return height_; }
    /// 0 outside.
    std::uint32_t Argb(int x, int y) const;
    /// Does nothing outside; regards no clip.
    void SetArgb(int x, int y, std::uint32_t argb);
    /// Row by row from the top.
    const std::vector<std::uint32_t>& Pixels() const { return pixels_; }

    CSize Extent() const override { return {width_, height_}; }
    void SetClip(const CRect& clip) override;
    void Fill(const CRect& rect, COLORREF color) override;
    void Line(CPoint from, CPoint to, const Stroke& stroke) override;
    void Polygon(std::span<const CPoint> corners, COLORREF color) override;
    void Ellipse(const CRect& rect, std::optional<COLORREF> fill,
                 const std::optional<Stroke>& stroke) override;
    void Text(CPoint topLeft, const std::string& text, const Font& font, COLORREF color) override;
    TextSize Measure(const std::string& text, const Font& font) const override;
    void Image(const CRect& target, const Raster& image, const CRect& source) override;
    COLORREF Pixel(CPoint at) const override { return FromArgb(Argb(at.x, at.y)); }

private:
    void Put(int x, int y, COLORREF color);
    void PutRow(int left, int right, int y, COLORREF color);
    void Dab(CPoint at, int size, COLORREF color);
    void Blend(int x, int y, std::uint32_t argb);

    int width_ = 0;
    int height_ = 0;
    CRect clip_;
    std::vector<std::uint32_t> pixels_;
};

/// Writes the picture as a PNG file, at a path of the machine. False when it cannot.
KVGUICTL_API bool SavePng(const Raster& picture, const std::string& machinePath);

}  // namespace kv
