#pragma once

#include <QPainterPath>
#include <QPixmap>
#include <array>
#include <vector>

#include "workbench/map/map_look.h"
#include "workbench/map/map_model.h"

namespace workbench {

/// A part of a symbol, around its middle and in pixels. An invalid colour leaves its fill or its
/// line out.
struct SymbolPart {
    QPainterPath shape;
    QColor fill;
    QColor line;
    double width = 0;
};
/// The parts of a symbol in the order in which they are drawn.
std::vector<SymbolPart> WellParts(const MapLook& look, std::uint8_t kind);
std::vector<SymbolPart> PlatformParts(const MapLook& look, std::uint8_t kind);

/// The symbols of wells and platforms, drawn once for a look.
class MapSymbols {
public:
    static constexpr double kSize = 13;  ///< pixels, width and height

    void SetLook(const MapLook& look, double pixelRatio);
    const QPixmap& Well(std::uint8_t kind) const { return wells_[kind]; }
    const QPixmap& Platform(std::uint8_t kind) const { return platforms_[kind]; }

private:
    QPixmap Drawn(const std::vector<SymbolPart>& parts) const;

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
