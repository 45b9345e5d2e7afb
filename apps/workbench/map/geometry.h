#pragma once

#include "qt/map/geometry.h"

namespace workbench {

using kv::map::Box;
using kv::map::NauticalMiles;
using kv::map::Place;
using kv::map::Point;
using kv::map::Segment;
using kv::map::SquaredDistance;
using kv::map::ToMap;
using kv::map::ToPlace;

}  // namespace workbench
