#include "workbench/map/map_symbols.h"

#include <QPainter>

namespace workbench {

namespace {

constexpr double kRadius = 3.6;
constexpr double kTick = 5.4;
constexpr double kHalo = 3.5;
constexpr double kLine = 1.5;

QPainterPath Circle(double radius) {
    QPainterPath path;
    path.addEllipse(QPointF(), radius, radius);
    return path;
}

QPainterPath Line(const QPointF& from, const QPointF& to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

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

std::vector<SymbolPart> WellParts(const MapLook& look, std::uint8_t kind) {
    const QColor color = WellColor(look, kind);
    const bool filled = kind == kWellCompleted || kind == kWellSidetracked;
    const QColor fill = filled ? color : look.ground;
    // A rim of the ground keeps a well apart from lines below it.
    std::vector<SymbolPart> parts{{Circle(kRadius), fill, look.halo, kHalo},
                                  {Circle(kRadius), fill, color, kLine}};
    if (kind == kWellDrilling) parts.push_back({Circle(0.8), color, color, kLine});
    if (kind == kWellSuspended) parts.push_back({Line({-kTick, 0}, {kTick, 0}), {}, color, kLine});
    if (kind == kWellSidetracked) parts.push_back({Line({}, {4.6, 4.6}), {}, color, kLine});
    if (kind == kWellAbandoned) {
        const double tick = kTick * 0.78;
        parts.push_back({Line({-tick, -tick}, {tick, tick}), {}, color, kLine});
        parts.push_back({Line({-tick, tick}, {tick, -tick}), {}, color, kLine});
    }
    return parts;
}

std::vector<SymbolPart> PlatformParts(const MapLook& look, std::uint8_t kind) {
    const QColor color = PlatformColor(look, kind);
    QPainterPath square;
    square.addRect(-3.5, -3.5, 7, 7);
    const QColor fill = kind == kPlatformStanding ? color : look.ground;
    return {{square, fill, look.halo, kHalo}, {square, fill, color, kLine}};
}

void MapSymbols::SetLook(const MapLook& look, double pixelRatio) {
    if (look == look_ && pixelRatio == pixelRatio_) return;
    look_ = look;
    pixelRatio_ = pixelRatio;
    for (std::size_t kind = 0; kind < wells_.size(); ++kind)
        wells_[kind] = Drawn(WellParts(look_, static_cast<std::uint8_t>(kind)));
    for (std::size_t kind = 0; kind < platforms_.size(); ++kind)
        platforms_[kind] = Drawn(PlatformParts(look_, static_cast<std::uint8_t>(kind)));
}

QPixmap MapSymbols::Drawn(const std::vector<SymbolPart>& parts) const {
    QPixmap pixmap((QSizeF(kSize, kSize) * pixelRatio_).toSize());
    pixmap.setDevicePixelRatio(pixelRatio_);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kSize / 2, kSize / 2);
    for (const SymbolPart& part : parts) {
        painter.setBrush(part.fill.isValid() ? QBrush(part.fill) : QBrush(Qt::NoBrush));
        painter.setPen(part.line.isValid() ? QPen(part.line, part.width) : QPen(Qt::NoPen));
        painter.drawPath(part.shape);
    }
    return pixmap;
}

}  // namespace workbench
