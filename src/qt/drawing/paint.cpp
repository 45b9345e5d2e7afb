#include "qt/drawing/paint.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleOptionFrame>

#include "qt/drawing/colors.h"
#include "qt/drawing/painter_surface.h"
#include "window/drawing/device_context.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"
#include "window/templates/resources.h"

namespace kv::qt {

namespace {

/// Sizes in which an icon is asked for; between them it would be blurred.
constexpr int kIconScales[] = {2, 3};
constexpr double kOutlineOpacity = 0.5;

/// Twice the size: a corner takes the colour of its two neighbours where they are of one, so that
/// slanted edges stay edges and do not become stairs.
QImage Doubled(const QImage& image) {
    QImage doubled(image.size() * 2, QImage::Format_ARGB32);
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    const auto row = [&](int y) {
        return reinterpret_cast<const QRgb*>(image.constScanLine(std::clamp(y, 0, bottom)));
    };
    for (int y = 0; y <= bottom; ++y) {
        const QRgb* above = row(y - 1);
        const QRgb* here = row(y);
        const QRgb* below = row(y + 1);
        auto* upper = reinterpret_cast<QRgb*>(doubled.scanLine(2 * y));
        auto* lower = reinterpret_cast<QRgb*>(doubled.scanLine(2 * y + 1));
        for (int x = 0; x <= right; ++x) {
            const QRgb n = above[x], s = below[x];
            const QRgb w = here[std::max(x - 1, 0)], e = here[std::min(x + 1, right)];
            upper[2 * x] = w == n && w != s && n != e ? w : here[x];
            upper[2 * x + 1] = n == e && n != w && e != s ? e : here[x];
            lower[2 * x] = w == s && w != n && s != e ? w : here[x];
            lower[2 * x + 1] = s == e && s != w && e != n ? e : here[x];
        }
    }
    return doubled;
}

QIcon IconOf(const QPixmap& plain) {
    QIcon icon;
    if (plain.isNull()) return icon;
    icon.addPixmap(plain);
    const QImage large = Doubled(Doubled(plain.toImage().convertToFormat(QImage::Format_ARGB32)));
    for (const int factor : kIconScales) {
        const QSize size = plain.size() * factor;
        icon.addPixmap(QPixmap::fromImage(
            large.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    }
    return icon;
}

/// Also where a host has wrapped it.
bool IsFusion(const QWidget& widget) {
    const QStyle* style = widget.style();
    while (const auto* wrapping = qobject_cast<const QProxyStyle*>(style))
        style = wrapping->baseStyle();
    return style->name() == u"fusion";
}

bool MayPaint(const Node& node) {
    const bool ownerDrawn =
        node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) == BS_OWNERDRAW;
    return node.Handle() || ownerDrawn;
}

}  // namespace

bool PaintByLayer(QWidget& widget, Node& node, int beyond) {
    if (node.Destroyed() || !MayPaint(node)) return false;
    QPainter painter(&widget);
    CSize extent = node.Rect().Size();
    extent.cx += 2 * beyond;
    PainterSurface surface(painter, extent, CurrentScale());
    CDC context(surface);
    context.SetViewportOrg(beyond, 0);
    return PaintControl(node, context);
}

void OutlineOnDark(QPainter& painter, const QRect& indicator, bool round, const QWidget& widget) {
    const QColor ground = widget.palette().color(QPalette::Base);
    const QColor text = widget.palette().color(QPalette::Text);
    if (!IsFusion(widget) || ground.lightness() >= text.lightness()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(kOutlineOpacity);
    painter.setPen(text);
    painter.setBrush(Qt::NoBrush);
    const QRectF middleOfPixels = QRectF(indicator).adjusted(0.5, 0.5, -0.5, -0.5);
    if (round) {
        painter.drawEllipse(middleOfPixels);
    } else {
        painter.drawRect(middleOfPixels);
    }
    painter.restore();
}

void PaintFocus(QWidget& frame) {
    if (!frame.hasFocus()) return;
    QPainter painter(&frame);
    QStyleOptionFrame option;
    option.initFrom(&frame);
    option.lineWidth = frame.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &frame);
    option.state |= QStyle::State_Sunken | QStyle::State_HasFocus;
    frame.style()->drawPrimitive(QStyle::PE_FrameLineEdit, &option, &painter, &frame);
}

void PaintCell(QPainter& painter, QStyleOptionViewItem cell, const QWidget& view) {
    const bool selected = cell.state & QStyle::State_Selected;
    const bool outlined = selected && cell.state & QStyle::State_HasFocus;
    if (selected) MakeSelectionReadable(cell.palette);
    cell.state.setFlag(QStyle::State_HasFocus, cell.state & QStyle::State_HasFocus && !selected);
    view.style()->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, &view);
    if (outlined) OutlineRow(painter, cell.rect, cell.palette.color(QPalette::HighlightedText));
}

void OutlineRow(QPainter& painter, const QRect& row, const QColor& color) {
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(row.adjusted(1, 1, -2, -2));
}

void MarkFocusedButton(QPainter& painter, const QWidget& button) {
    constexpr double kWidth = 2;
    if (!button.hasFocus() || !IsFusion(button)) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(button.palette().color(QPalette::Highlight), kWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(button.rect()).adjusted(kWidth, kWidth, -kWidth, -kWidth), 2, 2);
}

QPixmap PixmapOf(int imageId) {
    const ImageResource* image = FindImage(imageId);
    return image ? QPixmap::fromImage(ToImage(DecodeImage(*image))) : QPixmap();
}

QIcon IconOf(int imageId) {
    return IconOf(PixmapOf(imageId));
}

QIcon IconOf(const Raster& image) {
    return IconOf(QPixmap::fromImage(ToImage(image)));
}

}  // namespace kv::qt
