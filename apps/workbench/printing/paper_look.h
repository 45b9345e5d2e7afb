#pragma once

#include "workbench/map/map_look.h"

namespace workbench {

enum class InkMode { kColor, kGray, kBlackAndWhite };

/// The map's colours as they are on white paper, all of them opaque.
MapLook LookOnPaper(InkMode mode);

}  // namespace workbench
