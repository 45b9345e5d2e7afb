#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QSizeF>
#include <QString>

namespace workbench {

/// Points of 1/72 inch are the measure of all that is drawn on paper; Y grows down.
inline constexpr double kPointsPerInch = 72;

/// Of the halo around letters, in parts of their size.
inline constexpr double kHaloWidth = 0.25;

enum class Dashes { kWhole, kDashed, kDashDotted };

/// How a shape is drawn: filled, outlined, or both. An invalid colour leaves its part out.
struct Ink {
    QColor fill;
    QColor line;
    double width = 0;
    Dashes dashes = Dashes::kWhole;
};

enum class Anchor { kLeft, kMiddle, kRight };

/// One line of text.
struct Writing {
    QString text;
    QPointF at;  ///< on the base line, at the anchor
    double size = 0;
    QColor color;
    Anchor anchor = Anchor::kLeft;
    bool bold = false;
    QColor halo = {};   ///< around the letters; none where it is invalid
    double turned = 0;  ///< degrees, clockwise
    double stroke = 0;  ///< how much thicker the letters are, by a line of their colour around them
};

/// What a page is drawn on. Lines stay lines, and text stays text.
class Paper {
public:
    virtual ~Paper() = default;
    /// An outline that crosses itself, or has several parts, is filled by the odd-even rule.
    virtual void Draw(const QPainterPath& shape, const Ink& ink) = 0;
    virtual void Write(const Writing& writing) = 0;
};

/// Width of a text, and its height from the highest to the lowest letter, where it is written in
/// that size.
QSizeF SizeOf(const QString& text, double size, bool bold = false);
/// From the middle of a line of text down to its base line.
double BaseLine(double size);

/// The family that text is written in.
QString PaperFont();

}  // namespace workbench
