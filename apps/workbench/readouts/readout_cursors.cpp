#include "workbench/readouts/readout_cursors.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <functional>

namespace workbench {

namespace {

constexpr int kSize = 32;
constexpr int kHot = 12;  ///< the middle of the cross, from the left and from the top
constexpr int kArm = 10;
constexpr QRectF kSign{18, 18, 12, 12};

/// Draws black lines with white ones around them, which are seen on any ground.
QCursor Draw(const std::function<void(QPainter&)>& drawSign) {
    const double ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(kSize, kSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0.5, 0.5);
    for (const auto& [color, width] : {std::pair(Qt::white, 3.0), std::pair(Qt::black, 1.0)}) {
        painter.setPen(QPen(color, width));
        painter.drawLine(kHot - kArm, kHot, kHot + kArm, kHot);
        painter.drawLine(kHot, kHot - kArm, kHot, kHot + kArm);
        drawSign(painter);
    }
    painter.end();
    return QCursor(pixmap, kHot, kHot);
}

}  // namespace

/// Two axes.
QCursor CoordinatesCursor() {
    return Draw([](QPainter& painter) {
        painter.drawPolyline(QPolygonF{kSign.topLeft(), kSign.bottomLeft(), kSign.bottomRight()});
    });
}

/// Two axes with a point between them.
QCursor HeldCursor() {
    return Draw([](QPainter& painter) {
        painter.drawPolyline(QPolygonF{kSign.topLeft(), kSign.bottomLeft(), kSign.bottomRight()});
        painter.drawEllipse(kSign.center() + QPointF(1, -1), 2, 2);
    });
}

/// A line between two marks.
QCursor DistanceCursor() {
    return Draw([](QPainter& painter) {
        const double middle = kSign.center().y();
        painter.drawLine(QPointF(kSign.left(), middle), QPointF(kSign.right(), middle));
        for (const double x : {kSign.left(), kSign.right()})
            painter.drawLine(QPointF(x, middle - 4), QPointF(x, middle + 4));
    });
}

}  // namespace workbench
