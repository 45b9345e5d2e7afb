#pragma once

#include <QImage>
#include <QPainter>

#include "base/export.h"
#include "qt/drawing/scale.h"
#include "window/drawing/fine_image.h"
#include "window/drawing/surface.h"

namespace kv::qt {

/// A raster's pixels as an image of its own.
KVGUICTL_API QImage ToImage(const Raster& raster);

/// Lets the layer draw through a painter: logical pixels are scaled, texts are in the platform's
/// fonts. At a scale of 1 fills, lines and images come out pixel by pixel as on a raster.
class KVGUICTL_API PainterSurface : public Surface, public ScaledSurface {
public:
    /// `extent` in logical pixels. The painter outlives the surface.
    PainterSurface(QPainter& painter, CSize extent, Scale scale);

    CSize Extent() const override { return extent_; }
    void SetClip(const CRect& clip) override;
    void Fill(const CRect& rect, COLORREF color) override;
    void Line(CPoint from, CPoint to, const Stroke& stroke) override;
    void Polygon(std::span<const CPoint> corners, COLORREF color) override;
    void Ellipse(const CRect& rect, std::optional<COLORREF> fill,
                 const std::optional<Stroke>& stroke) override;
    void Text(CPoint topLeft, const std::string& text, const Font& font, COLORREF color) override;
    TextSize Measure(const std::string& text, const Font& font) const override;
    void Image(const CRect& target, const Raster& image, const CRect& source) override;
    /// Can be read only where the painter paints on an image.
    COLORREF Pixel(CPoint at) const override;
    double PixelsAcross() const override;

private:
    int Width(const Stroke& stroke) const;
    QPen Pen(const Stroke& stroke, COLORREF color) const;

    QPainter& painter_;
    CSize extent_;
    Scale scale_;
};

}  // namespace kv::qt
