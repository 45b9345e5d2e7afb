#include "qt/map/map_widget.h"

#include <QFocusEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

namespace kv::map {

namespace {

constexpr double kWheelNotch = 120;
constexpr double kZoomPerNotch = 1.25;
constexpr double kZoomPerKey = 1.5;
constexpr double kPanPerKey = 80;  ///< pixels

}  // namespace

MapWidget::MapWidget(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    view_.Resize(width(), height());
}

void MapWidget::ShowAll() {
    movedByUser_ = false;
    view_.ShowAll();
    update();
}

void MapWidget::ZoomBy(double factor) {
    view_.Zoom({width() / 2.0, height() / 2.0}, factor);
    Moved();
}

void MapWidget::Moved() {
    movedByUser_ = true;
    update();
}

void MapWidget::DrawKeyFrame(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void MapWidget::resizeEvent(QResizeEvent*) {
    view_.Resize(width(), height());
    if (!movedByUser_) view_.ShowAll();
}

void MapWidget::mousePressEvent(QMouseEvent*) {
    byKeys_ = false;
    update();
}

void MapWidget::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / kWheelNotch;
    view_.Zoom({event->position().x(), event->position().y()}, std::pow(kZoomPerNotch, notches));
    event->accept();
    Moved();
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
    byKeys_ = true;
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return ZoomBy(kZoomPerKey);
        case Qt::Key_Minus:
            return ZoomBy(1 / kZoomPerKey);
        case Qt::Key_Home:
            return ShowAll();
        case Qt::Key_Left:
            view_.Pan(kPanPerKey, 0);
            break;
        case Qt::Key_Right:
            view_.Pan(-kPanPerKey, 0);
            break;
        case Qt::Key_Up:
            view_.Pan(0, kPanPerKey);
            break;
        case Qt::Key_Down:
            view_.Pan(0, -kPanPerKey);
            break;
        default:
            return QWidget::keyPressEvent(event);
    }
    Moved();
}

void MapWidget::focusInEvent(QFocusEvent* event) {
    byKeys_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    update();
}

void MapWidget::focusOutEvent(QFocusEvent*) {
    byKeys_ = false;
    update();
}

}  // namespace kv::map
