#include "qt/drawing/painter_surface.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "qt/drawing/colors.h"
#include "qt/drawing/text.h"
#include "window/drawing/raster.h"

namespace kv::qt {

QImage ToImage(const Raster& raster) {
    QImage image(raster.Width(), raster.Height(), QImage::Format_ARGB32);
    const auto width = static_cast<std::size_t>(raster.Width());
    for (int y = 0; y < raster.Height(); ++y) {
        const auto first = raster.Pixels().begin() +
                           static_cast<std::ptrdiff_t>(static_cast<std::size_t>(y) * width);
        std::copy_n(first, width, reinterpret_cast<std::uint32_t*>(image.scanLine(y)));
    }
    return image;
}

PainterSurface::PainterSurface(QPainter& painter, CSize extent, Scale scale)
    : painter_(painter), extent_(extent), scale_(scale) {
    const bool exact = scale == Scale{1, 1};
    painter_.setRenderHint(QPainter::Antialiasing, !exact);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, !exact);
}

void PainterSurface::SetClip(const CRect& clip) {
    painter_.setClipRect(scale_.ToScreen(clip));
}

void PainterSurface::Fill(const CRect& rect, COLORREF color) {
    if (!rect.IsRectEmpty()) painter_.fillRect(scale_.ToScreen(rect), ToQColor(color));
}

int PainterSurface::Width(const Stroke& stroke) const {
    const double wide = std::max(stroke.width, 1) * std::sqrt(scale_.x * scale_.y);
    return std::max(1, static_cast<int>(wide));
}

QPen PainterSurface::Pen(const Stroke& stroke, COLORREF color) const {
    QPen pen(ToQColor(color), Width(stroke), Qt::SolidLine,
             stroke.width > 1 ? Qt::RoundCap : Qt::FlatCap, Qt::RoundJoin);
    pen.setCosmetic(true);
    return pen;
}

void PainterSurface::Line(CPoint from, CPoint to, const Stroke& stroke) {
    if (from == to) return;
    const QPointF start = scale_.ToScreen(from);
    const QPointF end = scale_.ToScreen(to);
    // A pixel's place is its corner, a line runs through its middle.
    const QPointF middle =
        scale_ == Scale{1, 1} && stroke.width <= 1 ? QPointF(0, 0) : QPointF(0.5, 0.5);
    if (!stroke.dashes.empty() && stroke.gap) {
        painter_.setPen(Pen(stroke, *stroke.gap));
        painter_.drawLine(start + middle, end + middle);
    }
    QPen pen = Pen(stroke, stroke.color);
    if (!stroke.dashes.empty()) {
        QList<qreal> pattern;
        for (const int length : stroke.dashes) {
            pattern.append(std::max(1.0, length * scale_.x) / pen.widthF());
        }
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(pattern);
    }
    painter_.setPen(pen);
    painter_.drawLine(start + middle, end + middle);
}

void PainterSurface::Polygon(std::span<const CPoint> corners, COLORREF color) {
    QPolygonF polygon;
    for (const CPoint corner : corners)
        polygon.append(scale_.ToScreen(corner));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(ToQColor(color));
    painter_.drawPolygon(polygon, Qt::OddEvenFill);
}

void PainterSurface::Ellipse(const CRect& rect, std::optional<COLORREF> fill,
                             const std::optional<Stroke>& stroke) {
    QRectF place = scale_.ToScreen(rect);
    if (stroke) {
        const double half = Width(*stroke) / 2.0;
        place.adjust(half, half, -half, -half);
    }
    painter_.setPen(stroke ? Pen(*stroke, stroke->color) : QPen(Qt::NoPen));
    painter_.setBrush(fill ? QBrush(ToQColor(*fill)) : QBrush(Qt::NoBrush));
    painter_.drawEllipse(place);
}

void PainterSurface::Text(CPoint topLeft, const std::string& text, const Font& font,
                          COLORREF color) {
    const QFont own = ToQFont(font);
    const QPoint at = scale_.ToScreen(topLeft);
    painter_.setFont(own);
    painter_.setPen(ToQColor(color));
    painter_.drawText(QPointF(at.x(), at.y() + QFontMetricsF(own).ascent()), ToQString(text));
}

TextSize PainterSurface::Measure(const std::string& text, const Font& font) const {
    const QFontMetricsF metrics(ToQFont(font));
    const auto up = [](double value) { return static_cast<int>(std::ceil(value)); };
    return {up(metrics.horizontalAdvance(ToQString(text)) / scale_.x),
            up(metrics.height() / scale_.y), up(metrics.ascent() / scale_.y)};
}

void PainterSurface::Image(const CRect& target, const Raster& image, const CRect& source) {
    const QRect part(source.left, source.top, source.Width(), source.Height());
    painter_.drawImage(scale_.ToScreen(target), ToImage(image), part);
}

COLORREF PainterSurface::Pixel(CPoint at) const {
    const auto* image = dynamic_cast<const QImage*>(painter_.device());
    const QPoint place = scale_.ToScreen(at);
    return image && image->valid(place) ? ToColorRef(image->pixelColor(place)) : 0;
}

double PainterSurface::PixelsAcross() const {
    return scale_.x * painter_.device()->devicePixelRatioF();
}

}  // namespace kv::qt
