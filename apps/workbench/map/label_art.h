#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <string>
#include <string_view>
#include <unordered_map>

namespace workbench {

/// Labels of one style, each drawn once, with a halo around the letters, and kept. Most of those
/// that are measured find no room on the map, and are never drawn.
class LabelArt {
public:
    /// Forgets what it has drawn when the style or the device's pixel ratio has changed.
    void SetStyle(const QFont& font, const QColor& text, const QColor& halo, double pixelRatio);
    /// One line, or several with line feeds. Valid until the style changes.
    const QPixmap& Of(std::string_view label);
    /// Size of a label in pixels.
    QSizeF SizeOf(std::string_view label);

private:
    struct Known {
        QSize size;  ///< in the device's pixels
        QPixmap drawn;
    };

    Known& Find(std::string_view label);
    QSize Measure(const QString& label) const;
    QPixmap Draw(const QString& label, const QSize& size) const;

    QFont font_;
    QColor text_;
    QColor halo_;
    double pixelRatio_ = 0;
    std::unordered_map<std::string, Known> known_;
};

}  // namespace workbench
