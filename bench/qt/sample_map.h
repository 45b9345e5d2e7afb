#pragma once

#include "workbench/map/map_model.h"

namespace bench {

/// The map of the whole sample dataset, made once.
const workbench::MapModel& SampleMap();

}  // namespace bench
