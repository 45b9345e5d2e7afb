#include "workbench/printing/paper.h"

#include <QFont>
#include <QFontMetricsF>

namespace workbench {

namespace {

/// Texts are measured so large that nothing is rounded.
constexpr int kMeasured = 200;

QFontMetricsF Metrics(bool bold) {
    QFont font(PaperFont());
    font.setPixelSize(kMeasured);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QFontMetricsF(font);
}

}  // namespace

QString PaperFont() {
    return QFont().family();
}

QSizeF SizeOf(const QString& text, double size, bool bold) {
    static const QFontMetricsF plain = Metrics(false);
    static const QFontMetricsF heavy = Metrics(true);
    const QFontMetricsF& metrics = bold ? heavy : plain;
    return QSizeF(metrics.horizontalAdvance(text), metrics.ascent() + metrics.descent()) * size /
           kMeasured;
}

double BaseLine(double size) {
    static const QFontMetricsF metrics = Metrics(false);
    return (metrics.ascent() - metrics.descent()) / 2 * size / kMeasured;
}

}  // namespace workbench
