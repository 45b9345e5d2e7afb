#pragma once

#include "qt/map/map_view.h"
#include "workbench/map/geometry.h"

namespace workbench {

using kv::map::MapView;
using kv::map::ScreenPoint;

}  // namespace workbench
