#pragma once

#include <string>

#include "workbench/map/geometry.h"

namespace workbench {

/// What the dialog for wells gave, as SQL that is true for the wells that are meant, "t" being
/// their table and "a" that of the areas. Of those that are searched by area, block and number,
/// which begin with an area named as the mode says, only such as lie between two places are meant.
std::string WellCondition(const std::string& search, bool byApi, int areaMode,
                          const Place& southWest, const Place& northEast);

}  // namespace workbench
