#include "workbench/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

namespace workbench {

namespace {

/// So much of a text tells something.
constexpr int kLeastLetters = 6;
constexpr int kRoom = 16;

}  // namespace

void ElidedLabel::SetWidest(const QString& text) {
    widest_ = text;
    updateGeometry();
}

QSize ElidedLabel::sizeHint() const {
    const int widest = fontMetrics().horizontalAdvance(widest_) + kRoom;
    return QLabel::sizeHint().expandedTo({widest, 0});
}

QSize ElidedLabel::minimumSizeHint() const {
    const QSize whole = sizeHint();
    const int least = fontMetrics().averageCharWidth() * kLeastLetters;
    return {std::min(whole.width(), least), whole.height()};
}

QString ElidedLabel::Shown() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    if (Shown() == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), Shown(), foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || Shown() == text()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

}  // namespace workbench
