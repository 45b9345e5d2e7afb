#pragma once

#include <QPixmap>
#include <array>

#include "workbench/map/map_look.h"
#include "workbench/map/map_model.h"

namespace workbench {

/// The symbols of wells and platforms, drawn once for a look.
class MapSymbols {
public:
    static constexpr double kSize = 13;  ///< pixels, width and height

    void SetLook(const MapLook& look, double pixelRatio);
    const QPixmap& Well(std::uint8_t kind) const { return wells_[kind]; }
    const QPixmap& Platform(std::uint8_t kind) const { return platforms_[kind]; }

private:
    QPixmap Blank() const;
    QPixmap DrawWell(WellKind kind) const;
    QPixmap DrawPlatform(PlatformKind kind) const;

    MapLook look_;
    double pixelRatio_ = 0;
    std::array<QPixmap, kWellOther + 1> wells_;
    std::array<QPixmap, kPlatformRemoved + 1> platforms_;
};

/// The colour that stands for a kind.
QColor WellColor(const MapLook& look, std::uint8_t kind);
QColor PlatformColor(const MapLook& look, std::uint8_t kind);
QColor PipelineColor(const MapLook& look, std::uint8_t kind);

}  // namespace workbench
