#pragma once

#include "base/export.h"
#include "frame/kvcom/disp_point.h"

/// Bounds in two dimensions: four doubles in this order. A latitude and longitude result carries
/// latitude in the X place and longitude in the Y place.
class KVGUICTL_API CMinMax2Dd_t {
public:
    double minX = 0.0;
    double maxX = 0.0;
    double minY = 0.0;
    double maxY = 0.0;

    CKvDispPoint GetMin() const { return {minX, minY}; }
    CKvDispPoint GetMax() const { return {maxX, maxY}; }

    bool operator==(const CMinMax2Dd_t&) const = default;
};
