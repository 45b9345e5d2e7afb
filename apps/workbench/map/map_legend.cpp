#include "workbench/map/map_legend.h"

namespace workbench {

const QColor& WaterColor(const MapLook& look, Water water) {
    switch (water) {
        case Water::kState:
            return look.state;
        case Water::kBay:
            return look.bay;
        case Water::kShelf:
            return look.shelf;
        case Water::kDeep:
            break;
    }
    return look.deep;
}

}  // namespace workbench
