#include "workbench/drawings/text_shape.h"

#include <QFontMetricsF>

namespace workbench {

namespace {

/// Texts are measured so large that nothing is rounded.
constexpr int kMeasured = 200;
/// Between the place and a text that stands above or below it: descending letters stay clear.
constexpr double kClear = 0.35;
constexpr double kStrokePerWeight = 0.04;

const QFont& MeasuredFont() {
    static const QFont font = [] {
        QFont made(DrawnFont());
        made.setPixelSize(kMeasured);
        made.setHintingPreference(QFont::PreferNoHinting);
        return made;
    }();
    return font;
}

const QFontMetricsF& Metrics() {
    static const QFontMetricsF metrics(MeasuredFont());
    return metrics;
}

double BaseLineOf(TextRow row) {
    switch (row) {
        case TextRow::kAbove:
            return -kClear;
        case TextRow::kBelow:
            return kClear + 1;
        case TextRow::kOn:
            break;
    }
    return 0.5;
}

double PartAhead(TextPart part) {
    switch (part) {
        case TextPart::kLeft:
            return 0;
        case TextPart::kRight:
            return 1;
        case TextPart::kCenter:
            break;
    }
    return 0.5;
}

}  // namespace

QString DrawnFont() {
    return QFont().family();
}

TextShape ShapeOf(const DrawnText& text) {
    const double unit = Metrics().capHeight();
    TextShape shape;
    shape.fontSize = kMeasured / unit;
    shape.length = Metrics().horizontalAdvance(QString::fromStdString(text.text)) / unit;
    shape.begin = {-PartAhead(text.part) * shape.length, BaseLineOf(text.row)};
    shape.box = QRectF(shape.begin.x(), shape.begin.y() - Metrics().ascent() / unit, shape.length,
                       (Metrics().ascent() + Metrics().descent()) / unit);
    return shape;
}

double StrokeOf(int weight) {
    return weight * kStrokePerWeight;
}

QPainterPath LettersOf(const DrawnText& text) {
    QPainterPath letters;
    letters.addText({}, MeasuredFont(), QString::fromStdString(text.text));
    const double part = 1 / Metrics().capHeight();
    const QPointF begin = ShapeOf(text).begin;
    return QTransform(part, 0, 0, part, begin.x(), begin.y()).map(letters);
}

QTransform PlacedAt(const DrawnText& text, const QPointF& at, double unit) {
    QTransform placed;
    placed.translate(at.x(), at.y());
    placed.rotate(-text.angle);
    placed.scale(unit, unit);
    return placed;
}

}  // namespace workbench
