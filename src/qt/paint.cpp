#include "qt/paint.h"

#include <QPainter>

#include "qt/painter_surface.h"
#include "window/device_context.h"
#include "window/owner_draw.h"
#include "window/raster.h"
#include "window/resources.h"

namespace kv::qt {

namespace {

/// Sizes in which an icon is asked for; between them it would be blurred.
constexpr int kIconScales[] = {1, 2, 3};

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

QPixmap PixmapOf(int imageId) {
    const ImageResource* image = FindImage(imageId);
    return image ? QPixmap::fromImage(ToImage(DecodeImage(*image))) : QPixmap();
}

QIcon IconOf(int imageId) {
    const QPixmap plain = PixmapOf(imageId);
    QIcon icon;
    if (plain.isNull()) return icon;
    for (const int factor : kIconScales)
        icon.addPixmap(plain.scaled(plain.size() * factor));
    return icon;
}

}  // namespace kv::qt
