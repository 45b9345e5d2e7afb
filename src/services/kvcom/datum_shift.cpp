#include <cmath>
#include <numbers>
#include <string>

#include "frame/kvcom/util_lldrv.h"
#include "frame/kvlogs/log.h"
#include "services/kvcom/projections.h"

namespace {

constexpr int kLogLevel = 101;
constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
constexpr const char* kGrid = "us_noaa_conus.tif";

enum Result { kShifted = 0, kOutsideGrid = 1, kFailed = 2 };

void LogMissingGrid() {
    static bool told = false;
    if (told) return;
    told = true;
    CKvLog::Output(std::string("The datum grid ") + kGrid +
                       " is not installed, so that nothing is converted between NAD27 and NAD83. "
                       "It is fetched by: projsync --file " +
                       kGrid,
                   kLogLevel, false);
}

/// From NAD27 to NAD83 ahead, from NAD83 to NAD27 backwards. Null where the grid is missing: it is
/// looked for again each time, since a person may install it meanwhile.
PJ* Shift() {
    static kv::coord::Operation shift;
    if (!shift) {
        shift = kv::coord::CreateOperation(std::string("+proj=hgridshift +grids=") + kGrid);
    }
    if (!shift) LogMissingGrid();
    return shift.get();
}

bool IsPlace(double lon, double lat) {
    return std::abs(lat) <= 90.0 && std::abs(lon) <= 360.0;
}

Result ShiftPlace(PJ_DIRECTION direction, double lon, double lat, double& lonOut, double& latOut) {
    PJ* shift = Shift();
    if (!shift || !std::isfinite(lon) || !std::isfinite(lat)) return kFailed;
    if (!IsPlace(lon, lat)) return kOutsideGrid;
    const PJ_COORD place = proj_trans(
        shift, direction, {{lon / kDegreesPerRadian, lat / kDegreesPerRadian, 0.0, 0.0}});
    if (!std::isfinite(place.lp.lam) || !std::isfinite(place.lp.phi)) {
        const int why = proj_errno_reset(shift);
        return why == PROJ_ERR_COORD_TRANSFM_OUTSIDE_GRID ? kOutsideGrid : kFailed;
    }
    lonOut = place.lp.lam * kDegreesPerRadian;
    latOut = place.lp.phi * kDegreesPerRadian;
    return kShifted;
}

}  // namespace

int CKvUtilLLdrv::Nad2783(double dLon, double dLat, double& dLonOut, double& dLatOut) {
    return ShiftPlace(PJ_FWD, dLon, dLat, dLonOut, dLatOut);
}

int CKvUtilLLdrv::Nad8327(double dLon, double dLat, double& dLonOut, double& dLatOut) {
    return ShiftPlace(PJ_INV, dLon, dLat, dLonOut, dLatOut);
}
