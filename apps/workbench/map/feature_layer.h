#pragma once

#include "qt/map/feature_layer.h"
#include "workbench/map/geometry.h"

namespace workbench {

using kv::map::FeatureLayer;
using kv::map::GridIndex;
using kv::map::Inside;
using kv::map::SignedArea;

}  // namespace workbench
