#include "qt/drawing/paint.h"

#include <QPainter>
#include <QStyle>

#include "qt/drawing/painter_surface.h"
#include "window/drawing/device_context.h"
#include "window/drawing/raster.h"
#include "window/owner_draw.h"
#include "window/templates/resources.h"

namespace kv::qt {

namespace {

/// Sizes in which an icon is asked for; between them it would be blurred.
constexpr int kIconScales[] = {1, 2, 3};
constexpr double kOutlineOpacity = 0.5;

QIcon IconOf(const QPixmap& plain) {
    QIcon icon;
    if (plain.isNull()) return icon;
    for (const int factor : kIconScales)
        icon.addPixmap(plain.scaled(plain.size() * factor));
    return icon;
}

bool MayPaint(const Node& node) {
    const bool ownerDrawn =
        node.Class() == NodeClass::kButton && (node.Style() & BS_TYPEMASK) == BS_OWNERDRAW;
    return node.Handle() || ownerDrawn;
}

}  // namespace

bool PaintByLayer(QWidget& widget, Node& node) {
    if (node.Destroyed() || !MayPaint(node)) return false;
    QPainter painter(&widget);
    PainterSurface surface(painter, node.Rect().Size(), CurrentScale());
    CDC context(surface);
    return PaintControl(node, context);
}

void OutlineOnDark(QPainter& painter, const QRect& indicator, bool round, const QWidget& widget) {
    const QColor ground = widget.palette().color(QPalette::Base);
    const QColor text = widget.palette().color(QPalette::Text);
    const bool hardlySeen = widget.style()->name() == u"fusion";
    if (!hardlySeen || ground.lightness() >= text.lightness()) return;
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
