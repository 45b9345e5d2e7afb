#include "frame/kvcom/util_lldrv.h"

#include <cmath>
#include <numbers>

#include "frame/kvcom/driver_calls.h"
#include "services/kvcom/projection_zones.h"
#include "services/kvcom/projections.h"

namespace {

using kv::coord::Projection;
using kv::coord::Projections;

constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
/// The US survey foot, as the Coast and Geodetic Survey and the NAD27 state plane zones have it.
constexpr double kFeetPerMeter = 3937.0 / 1200.0;
constexpr int kFeet = 0;

kv::coord::DriverCalls g_calls;

double UnitsPerMeter(int units) {
    return units == kFeet ? kFeetPerMeter : 1.0;
}

}  // namespace

const kv::coord::DriverCalls& kv::coord::CountedDriverCalls() {
    return g_calls;
}

void CKvUtilLLdrv::LLdrv(double dLat, double dLon, double* pX, double* pY, int nProjection,
                         int nUnits, int /*nOne*/, float /*fHundred*/, float /*fZeroA*/,
                         float /*fZeroB*/) {
    ++g_calls.toXY;
    *pX = *pY = kNoXY;
    const Projection* projection = Projections::Get().Find(nProjection);
    if (!projection) return;
    const PJ_COORD place =
        proj_trans(projection->operation.get(), PJ_FWD,
                   {{dLon / kDegreesPerRadian, dLat / kDegreesPerRadian, 0.0, 0.0}});
    if (!std::isfinite(place.xy.x) || !std::isfinite(place.xy.y)) return;
    *pX = place.xy.x * UnitsPerMeter(nUnits);
    *pY = place.xy.y * UnitsPerMeter(nUnits);
}

void CKvUtilLLdrv::XYdrv(double dX, double dY, double* pLat, double* pLon, int nProjection,
                         int nUnits, int /*nOne*/, float /*fHundred*/, float /*fZeroA*/,
                         float /*fZeroB*/) {
    ++g_calls.toAngles;
    *pLat = *pLon = HUGE_VAL;
    const Projection* projection = Projections::Get().Find(nProjection);
    if (!projection || !std::isfinite(dX) || !std::isfinite(dY)) return;
    PJ* operation = projection->operation.get();
    const double x = dX / UnitsPerMeter(nUnits);
    const double y = dY / UnitsPerMeter(nUnits);
    const PJ_COORD place = proj_trans(operation, PJ_INV, {{x, y, 0.0, 0.0}});
    if (!std::isfinite(place.lp.lam) || !std::isfinite(place.lp.phi)) return;
    if (!projection->domain.Holds(x, y) && !kv::coord::ComesBack(operation, place, x, y)) return;
    *pLat = place.lp.phi * kDegreesPerRadian;
    *pLon = place.lp.lam * kDegreesPerRadian;
}

void CKvUtilLLdrv::SetRectLat(double dLat) {
    Projections::Get().SetRectLat(dLat);
}

void CKvUtilLLdrv::SetRectLon(double dLon) {
    Projections::Get().SetRectLon(dLon);
}

bool CKvUtilLLdrv::RegisterProjection(int nCode, const std::string& definition) {
    return Projections::Get().Register(nCode, definition);
}

std::string CKvUtilLLdrv::BuiltInName(int nCode) {
    const kv::coord::Zone* zone = kv::coord::FindZoneOf(nCode);
    return zone && !Projections::Get().IsRegistered(nCode) ? zone->description : "";
}
