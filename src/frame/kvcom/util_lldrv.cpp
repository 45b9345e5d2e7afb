#include "frame/kvcom/util_lldrv.h"

#include <cmath>

#include "frame/kvcom/angle.h"

namespace {

constexpr double kMinutesPerDegree = 60.0;
constexpr double kSecondsPerDegree = 3600.0;

}  // namespace

void CKvUtilLLdrv::GetDegMinSec(double dDeg, int& nDeg, int& nMin, double& dSec) {
    const kv::AngleParts parts = kv::SplitAngle(dDeg);
    nDeg = parts.degrees;
    nMin = parts.minutes;
    dSec = parts.seconds;
    if (!parts.negative) return;
    if (nDeg != 0) {
        nDeg = -nDeg;
    } else if (nMin != 0) {
        nMin = -nMin;
    } else {
        dSec = -dSec;
    }
}

void CKvUtilLLdrv::GetDegDeg(double& dOut, int nDeg, int nMin, double dSec) {
    GetDegDeg(dOut, static_cast<double>(nDeg), nMin, dSec);
}

void CKvUtilLLdrv::GetDegDeg(double& dOut, double dDeg, int nMin, double dSec) {
    const double size =
        std::abs(dDeg) + std::abs(nMin / kMinutesPerDegree) + std::abs(dSec) / kSecondsPerDegree;
    const bool negative = std::signbit(dDeg) || nMin < 0 || std::signbit(dSec);
    dOut = negative ? -size : size;
}
