#pragma once

#include <QColor>

namespace workbench {

/// The colours of the map.
struct MapLook {
    QColor ground;  ///< where there are no blocks
    QColor graticule;
    QColor edgeText;

    // Fill of the areas, by their water.
    QColor state;
    QColor bay;
    QColor shelf;
    QColor deep;

    QColor blockLine;
    QColor areaLine;
    QColor areaText;
    QColor blockText;
    QColor spotText;
    QColor halo;

    QColor oil;
    QColor gas;
    QColor otherPipeline;

    QColor wellCompleted;
    QColor wellDrilling;
    QColor wellSuspended;
    QColor wellSidetracked;
    QColor wellAbandoned;
    QColor platform;
    QColor removedPlatform;

    QColor pick;
    QColor neighbor;
    QColor row;
    QColor hover;
    QColor panel;
    QColor panelLine;
    QColor panelText;

    bool operator==(const MapLook&) const = default;
};

const MapLook& LightLook();
const MapLook& DarkLook();

}  // namespace workbench
