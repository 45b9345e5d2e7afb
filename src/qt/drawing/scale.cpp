#include "qt/drawing/scale.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "qt/drawing/text.h"

namespace kv::qt {

namespace {

constexpr double kBaseUnitX = 6;
constexpr double kBaseUnitY = 13;

std::optional<Scale> g_scale;

int Round(double value) {
    return static_cast<int>(std::lround(value));
}

/// As the platform measures a dialog's font: by the letters of the alphabet, small and capital.
Scale Measure(const QFont& font) {
    const QFontMetricsF metrics(font);
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const double width = metrics.horizontalAdvance(letters) / static_cast<double>(letters.size());
    return {std::max(width, 1.0) / kBaseUnitX, std::max(metrics.height(), 1.0) / kBaseUnitY};
}

struct MadeFont {
    Font font;
    QFont made;
};
constexpr std::size_t kKeptFonts = 16;
std::vector<MadeFont> g_fonts;

QFont Make(const Font& font) {
    QFont made = QApplication::font();
    if (!font.face.empty()) made.setFamily(ToQString(font.face));
    if (font.height != static_cast<int>(kBaseUnitY)) {
        const double pixels = QFontInfo(made).pixelSize() * font.height / kBaseUnitY;
        made.setPixelSize(std::max(1, Round(pixels)));
    }
    made.setBold(font.bold);
    made.setItalic(font.italic);
    return made;
}

}  // namespace

QRect Scale::ToScreen(const CRect& rect) const {
    const QPoint topLeft = ToScreen(rect.TopLeft());
    const QPoint behind = ToScreen(CPoint{rect.right, rect.bottom});
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}

QPoint Scale::ToScreen(CPoint at) const {
    return {Round(at.x * x), Round(at.y * y)};
}

QSize Scale::ToScreen(CSize size) const {
    return {Round(size.cx * x), Round(size.cy * y)};
}

CRect Scale::ToLogical(const QRect& rect) const {
    const CPoint topLeft = ToLogical(rect.topLeft());
    const CPoint behind = ToLogical(QPoint(rect.x() + rect.width(), rect.y() + rect.height()));
    return {topLeft.x, topLeft.y, behind.x, behind.y};
}

CPoint Scale::ToLogical(const QPoint& at) const {
    return {Round(at.x() / x), Round(at.y() / y)};
}

CSize Scale::ToLogical(const QSize& size) const {
    return {Round(size.width() / x), Round(size.height() / y)};
}

Scale CurrentScale() {
    if (!g_scale) g_scale = Measure(QApplication::font());
    return *g_scale;
}

void ForgetScale() {
    g_scale.reset();
    g_fonts.clear();
}

QFont ToQFont(const Font& font) {
    // A copy of a font has what is known of it, which takes long to find out.
    const auto known = std::ranges::find(g_fonts, font, &MadeFont::font);
    if (known != g_fonts.end()) return known->made;
    if (g_fonts.size() == kKeptFonts) g_fonts.clear();
    return g_fonts.emplace_back(font, Make(font)).made;
}

}  // namespace kv::qt
