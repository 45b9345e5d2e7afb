#include "workbench/readouts/rubber_line.h"

#include <QFontMetricsF>
#include <algorithm>

namespace workbench {

namespace {

constexpr double kLineWidth = 2;
constexpr double kHaloWidth = 5;
constexpr double kDot = 3.5;
/// Between the end of the line and the length, and around it.
constexpr double kGap = 14;
constexpr double kPadding = 4;
constexpr int kDark = 128;

struct Colors {
    QColor line;
    QColor halo;
};

Colors ColorsOf(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Window).lightness() < kDark;
    if (dark) return {QColor(0xFF, 0x8A, 0xC8), QColor(0x10, 0x14, 0x18, 0xC0)};
    return {QColor(0xB0, 0x10, 0x60), QColor(0xFF, 0xFF, 0xFF, 0xD0)};
}

/// Beside the end, on the side away from the start, wholly in the view.
QRectF PlaceOfLength(const QSizeF& size, const QPointF& from, const QPointF& to,
                     const MapView& view) {
    const double left = to.x() >= from.x() ? to.x() + kGap : to.x() - kGap - size.width();
    const double top = to.y() >= from.y() ? to.y() + kGap : to.y() - kGap - size.height();
    return {QPointF(std::clamp(left, 0.0, std::max(0.0, view.Width() - size.width())),
                    std::clamp(top, 0.0, std::max(0.0, view.Height() - size.height()))),
            size};
}

void DrawLength(QPainter& painter, const QString& text, const QPointF& from, const QPointF& to,
                const MapView& view, const QPalette& palette) {
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    const QSizeF size =
        QFontMetricsF(font).size(Qt::TextSingleLine, text) + QSizeF(2 * kPadding, 2 * kPadding);
    const QRectF place = PlaceOfLength(size, from, to, view);
    QColor ground = palette.color(QPalette::Base);
    ground.setAlpha(0xE0);
    painter.setPen(QPen(ColorsOf(palette).line, 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(place, kPadding, kPadding);
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(place, Qt::AlignCenter, text);
}

}  // namespace

void DrawRubberLine(QPainter& painter, const MapView& view, const MapProjection& projection,
                    const RubberLine& line, const QPalette& palette) {
    const auto begin = projection.ToMap(line.from);
    const auto end = projection.ToMap(line.to.value_or(line.from));
    if (!begin || !end) return;
    const auto onScreen = [&](const Point& point) {
        const ScreenPoint at = view.ToScreen(point);
        return QPointF(at.x, at.y);
    };
    const Colors colors = ColorsOf(palette);
    const QPointF from = onScreen(*begin);
    const QPointF to = onScreen(*end);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [color, width] :
         {std::pair(colors.halo, kHaloWidth), std::pair(colors.line, kLineWidth)}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(color);
        painter.drawLine(from, to);
        for (const QPointF& tip : {from, to})
            painter.drawEllipse(tip, kDot, kDot);
    }
    if (!line.length.empty()) {
        DrawLength(painter, QString::fromStdString(line.length), from, to, view, palette);
    }
    painter.restore();
}

}  // namespace workbench
