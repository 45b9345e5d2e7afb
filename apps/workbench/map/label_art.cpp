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

}  // namespace

void LabelArt::SetStyle(const QFont& font, const QColor& text, const QColor& halo,
                        double pixelRatio) {
    if (font == font_ && text == text_ && halo == halo_ && pixelRatio == pixelRatio_) return;
    font_ = font, text_ = text, halo_ = halo, pixelRatio_ = pixelRatio;
    drawn_.clear();
}

const QPixmap& LabelArt::Of(std::string_view label) {
    const std::string key(label);
    if (const auto found = drawn_.find(key); found != drawn_.end()) return found->second;
    if (drawn_.size() >= kMostLabels) drawn_.clear();
    return drawn_.emplace(key, Draw(QString::fromUtf8(key))).first->second;
}

QPixmap LabelArt::Draw(const QString& label) const {
    const QFontMetricsF metrics(font_);
    const QStringList lines = label.split(u'\n');
    double width = 1;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const double lineHeight = metrics.ascent() + metrics.descent();
    const QSizeF size(std::ceil(width + 2 * kMargin),
                      std::ceil(lineHeight * static_cast<double>(lines.size()) + 2 * kMargin));

    QPixmap pixmap((size * pixelRatio_).toSize());
    pixmap.setDevicePixelRatio(pixelRatio_);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font_);
    double baseline = kMargin + metrics.ascent();
    for (const QString& line : lines) {
        const QPointF at(std::round((size.width() - metrics.horizontalAdvance(line)) / 2),
                         baseline);
        QPainterPath letters;
        letters.addText(at, font_, line);
        painter.strokePath(letters,
                           QPen(halo_, kHaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setPen(text_);
        painter.drawText(at, line);
        baseline += lineHeight;
    }
    painter.end();
    // What was painted on keeps all that the painter needed, which is many times its pixels.
    return pixmap.copy();
}

}  // namespace workbench
