#pragma once

#include "base/export.h"

namespace kv::coord {

/// How often the process has asked the coordinate driver, for those who watch what a position
/// costs.
struct DriverCalls {
    long toXY = 0;      ///< `CKvUtilLLdrv::LLdrv`
    long toAngles = 0;  ///< `CKvUtilLLdrv::XYdrv`
};
KVGUICTL_API const DriverCalls& CountedDriverCalls();

}  // namespace kv::coord
