#include "workbench/drawing_tools/text_scale.h"

namespace workbench {

namespace {

constexpr double kUsualScale = 4000;
/// Of a map in meters the scale is a ratio.
constexpr double kInchesPerFoot = 12;

}  // namespace

double FeetPerInch(const MapDocument& document) {
    const int scale = document.map ? document.map->bounds.GetScale() : 0;
    if (scale <= 0) return kUsualScale;
    return document.map->Feet() ? scale : scale / kInchesPerFoot;
}

}  // namespace workbench
