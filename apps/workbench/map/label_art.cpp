#include "workbench/map/label_art.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace workbench {

namespace {

constexpr double kHaloWidth = 3;
constexpr double kMargin = 2;
/// More labels than are ever seen at once; behind that the oldest are not worth keeping.
constexpr std::size_t kMostLabels = 20'000;

QString Text(std::string_view label) {
    return QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()));
}

double LineHeight(const QFontMetricsF& metrics) {
    return metrics.ascent() + metrics.descent();
}

}  // namespace

void LabelArt::SetStyle(const QFont& font, const QColor& text, const QColor& halo,
                        double pixelRatio) {
    if (font == font_ && text == text_ && halo == halo_ && pixelRatio == pixelRatio_) return;
    font_ = font, text_ = text, halo_ = halo, pixelRatio_ = pixelRatio;
    known_.clear();
}

const QPixmap& LabelArt::Of(std::string_view label) {
    Known& known = Find(label);
    if (known.drawn.isNull()) known.drawn = Draw(Text(label), known.size);
    return known.drawn;
}

QSizeF LabelArt::SizeOf(std::string_view label) {
    return QSizeF(Find(label).size) / pixelRatio_;
}

LabelArt::Known& LabelArt::Find(std::string_view label) {
    const std::string key(label);
    if (const auto found = known_.find(key); found != known_.end()) return found->second;
    if (known_.size() >= kMostLabels) known_.clear();
    return known_.emplace(key, Known{Measure(Text(label)), {}}).first->second;
}

QSize LabelArt::Measure(const QString& label) const {
    const QFontMetricsF metrics(font_);
    const QStringList lines = label.split(u'\n');
    double width = 1;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const double height = LineHeight(metrics) * static_cast<double>(lines.size());
    const QSizeF size(std::ceil(width + 2 * kMargin), std::ceil(height + 2 * kMargin));
    return (size * pixelRatio_).toSize();
}

QPixmap LabelArt::Draw(const QString& label, const QSize& size) const {
    const QFontMetricsF metrics(font_);
    QPixmap pixmap(size);
    pixmap.setDevicePixelRatio(pixelRatio_);
    const double width = pixmap.deviceIndependentSize().width();
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font_);
    double baseline = kMargin + metrics.ascent();
    for (const QString& line : label.split(u'\n')) {
        const QPointF at(std::round((width - metrics.horizontalAdvance(line)) / 2), baseline);
        QPainterPath letters;
        letters.addText(at, font_, line);
        painter.strokePath(letters,
                           QPen(halo_, kHaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setPen(text_);
        painter.drawText(at, line);
        baseline += LineHeight(metrics);
    }
    painter.end();
    // What was painted on keeps all that the painter needed, which is many times its pixels.
    return pixmap.copy();
}

}  // namespace workbench
