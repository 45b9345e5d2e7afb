#include "workbench/map/map_symbols.h"

#include <QPainter>

namespace workbench {

namespace {

constexpr QPointF kMiddle(MapSymbols::kSize / 2, MapSymbols::kSize / 2);
constexpr double kRadius = 3.6;
constexpr double kTick = 5.4;

}  // namespace

QColor WellColor(const MapLook& look, std::uint8_t kind) {
    switch (kind) {
        case kWellCompleted:
            return look.wellCompleted;
        case kWellDrilling:
            return look.wellDrilling;
        case kWellSuspended:
            return look.wellSuspended;
        case kWellSidetracked:
            return look.wellSidetracked;
        default:
            return look.wellAbandoned;
    }
}

QColor PlatformColor(const MapLook& look, std::uint8_t kind) {
    return kind == kPlatformStanding ? look.platform : look.removedPlatform;
}

QColor PipelineColor(const MapLook& look, std::uint8_t kind) {
    switch (kind) {
        case kPipeOil:
            return look.oil;
        case kPipeGas:
            return look.gas;
        default:
            return look.otherPipeline;
    }
}

void MapSymbols::SetLook(const MapLook& look, double pixelRatio) {
    if (look == look_ && pixelRatio == pixelRatio_) return;
    look_ = look;
    pixelRatio_ = pixelRatio;
    for (std::size_t kind = 0; kind < wells_.size(); ++kind) {
        wells_[kind] = DrawWell(static_cast<WellKind>(kind));
    }
    for (std::size_t kind = 0; kind < platforms_.size(); ++kind) {
        platforms_[kind] = DrawPlatform(static_cast<PlatformKind>(kind));
    }
}

QPixmap MapSymbols::Blank() const {
    QPixmap pixmap((QSizeF(kSize, kSize) * pixelRatio_).toSize());
    pixmap.setDevicePixelRatio(pixelRatio_);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QPixmap MapSymbols::DrawWell(WellKind kind) const {
    QPixmap pixmap = Blank();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = WellColor(look_, kind);
    const bool filled = kind == kWellCompleted || kind == kWellSidetracked;
    // A rim of the ground keeps a well apart from lines below it.
    painter.setPen(QPen(look_.halo, 3.5));
    painter.setBrush(filled ? color : look_.ground);
    painter.drawEllipse(kMiddle, kRadius, kRadius);
    painter.setPen(QPen(color, 1.5));
    painter.drawEllipse(kMiddle, kRadius, kRadius);
    if (kind == kWellDrilling) {
        painter.setBrush(color);
        painter.drawEllipse(kMiddle, 0.8, 0.8);
    }
    if (kind == kWellSuspended) {
        painter.drawLine(kMiddle - QPointF(kTick, 0), kMiddle + QPointF(kTick, 0));
    }
    if (kind == kWellAbandoned) {
        const double tick = kTick * 0.78;
        painter.drawLine(kMiddle - QPointF(tick, tick), kMiddle + QPointF(tick, tick));
        painter.drawLine(kMiddle - QPointF(tick, -tick), kMiddle + QPointF(tick, -tick));
    }
    return pixmap;
}

QPixmap MapSymbols::DrawPlatform(PlatformKind kind) const {
    QPixmap pixmap = Blank();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = PlatformColor(look_, kind);
    const QRectF square(kMiddle - QPointF(3.5, 3.5), QSizeF(7, 7));
    painter.setBrush(kind == kPlatformStanding ? color : look_.ground);
    painter.setPen(QPen(look_.halo, 3.5));
    painter.drawRect(square);
    painter.setPen(QPen(color, 1.5));
    painter.drawRect(square);
    return pixmap;
}

}  // namespace workbench
