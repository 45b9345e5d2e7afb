#include "workbench/printing/painter_paper.h"

#include <QFontMetricsF>
#include <QPaintDevice>

namespace workbench {

namespace {

Qt::PenStyle StyleOf(Dashes dashes) {
    switch (dashes) {
        case Dashes::kDashed:
            return Qt::DashLine;
        case Dashes::kDashDotted:
            return Qt::DashDotLine;
        case Dashes::kWhole:
            break;
    }
    return Qt::SolidLine;
}

double Shift(Anchor anchor, double width) {
    switch (anchor) {
        case Anchor::kMiddle:
            return -width / 2;
        case Anchor::kRight:
            return -width;
        case Anchor::kLeft:
            break;
    }
    return 0;
}

}  // namespace

PainterPaper::PainterPaper(QPainter& painter, double pixels) : painter_(painter), pixels_(pixels) {
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterPaper::Draw(const QPainterPath& shape, const Ink& ink) {
    painter_.save();
    painter_.scale(pixels_, pixels_);
    painter_.setBrush(ink.fill.isValid() ? QBrush(ink.fill) : QBrush(Qt::NoBrush));
    painter_.setPen(ink.line.isValid()
                        ? QPen(ink.line, ink.width, StyleOf(ink.dashes), Qt::FlatCap, Qt::MiterJoin)
                        : QPen(Qt::NoPen));
    painter_.drawPath(shape);
    painter_.restore();
}

/// In the device's own pixels, which letters are shaped for.
void PainterPaper::Write(const Writing& writing) {
    QFont font(PaperFont());
    font.setPointSizeF(writing.size * pixels_ * kPointsPerInch / painter_.device()->logicalDpiY());
    font.setBold(writing.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    const double width = QFontMetricsF(font, painter_.device()).horizontalAdvance(writing.text);
    painter_.save();
    painter_.translate(writing.at * pixels_);
    painter_.rotate(writing.turned);
    const QPointF at(Shift(writing.anchor, width), 0);
    painter_.setFont(font);
    if (writing.halo.isValid() || writing.stroke > 0) {
        // Letters as a shape are made in the screen's pixels.
        QPainterPath letters;
        QFont shaped = font;
        shaped.setPixelSize(1000);
        letters.addText({}, shaped, writing.text);
        const double part = writing.size * pixels_ / 1000;
        const QPainterPath outline = QTransform(part, 0, 0, part, at.x(), at.y()).map(letters);
        const auto stroke = [&](const QColor& color, double thick) {
            painter_.strokePath(
                outline, QPen(color, thick * pixels_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        };
        if (writing.halo.isValid()) stroke(writing.halo, kHaloWidth * writing.size);
        if (writing.stroke > 0) stroke(writing.color, writing.stroke);
    }
    painter_.setPen(writing.color);
    painter_.drawText(at, writing.text);
    painter_.restore();
}

}  // namespace workbench
