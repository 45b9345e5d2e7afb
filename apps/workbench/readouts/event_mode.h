#pragma once

#include "coordtools/event_mode.h"

/// What a click on the map does. Each readout has a mode of its own, and leaves the last one
/// behind.
enum KVEventMode : int {
    kReadCoordinates = 1,
    kMeasureDistance = 2,
    kPickBlocks = 3,
};
