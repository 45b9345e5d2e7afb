#pragma once

#include <string>

#include "base/export.h"

/// Conversion between latitude and longitude, projected X and Y, and the datums NAD27 and NAD83.
///
/// Angles are decimal degrees, north and east positive, on the projection's own datum: a conversion
/// between angles and X/Y shifts none. Feet are US survey feet of 1200/3937 m. The transformation
/// of a code is built at its first use and kept.
class KVGUICTL_API CKvUtilLLdrv {
public:
    /// What X and Y become where the driver has no answer.
    static constexpr double kNoXY = 100000000.0;

    /// X and Y of a position in the projection of a code; `nUnits` 0 gives feet, 1 meters. Both
    /// become `kNoXY` for an unknown code and for a position that the projection cannot show. The
    /// last four arguments are 1, 100.0, 0.0 and 0.0 and change nothing.
    static void LLdrv(double dLat, double dLon, double* pX, double* pY, int nProjection, int nUnits,
                      int nOne, float fHundred, float fZeroA, float fZeroB);

    /// The reverse. Both angles become `HUGE_VAL` where there is no answer, which no test of a
    /// range lets through: also for X and Y that no place on earth has, as with a digit too many.
    static void XYdrv(double dX, double dY, double* pLat, double* pLon, int nProjection, int nUnits,
                      int nOne, float fHundred, float fZeroA, float fZeroB);

    /// The point, for the whole process, that Straight Mercator codes use from now on: its latitude
    /// is that of true scale, its longitude the central meridian. 0 and 0 at the start.
    static void SetRectLat(double dLat);
    static void SetRectLon(double dLon);

    /// Gives a code a meaning, or another one than the library's own, as where a database numbers
    /// its zones by itself: PROJ's text of a projection, such as "+proj=lcc ...", or the name of a
    /// projected reference system. Units and datum of the text are put aside. A zone's code and its
    /// negated state plane number are two codes. False, with nothing changed, when PROJ cannot read
    /// it, when it is no projection, and for 0 and -1; a code that was registered before is
    /// replaced.
    static bool RegisterProjection(int nCode, const std::string& definition);

    /// What the library itself calls a zone, a spheroid, or a negated state plane number, as
    /// "Louisiana South" of 3. Empty for other codes, and for one that is registered.
    static std::string BuiltInName(int nCode);

    /// Splits decimal degrees. The sign stands on the first part that is not 0, so that angles
    /// between -1 and 0 keep it: -0.5 is 0, -30, 0.0. Seconds are below 60 by more than half a
    /// millionth; what would lie closer is carried over. An angle that is not finite gives zeros.
    static void GetDegMinSec(double dDeg, int& nDeg, int& nMin, double& dSec);

    /// Joins them. A minus on any part, -0.0 among them, makes the angle negative, whatever the
    /// signs of the others.
    static void GetDegDeg(double& dOut, int nDeg, int nMin, double dSec);
    static void GetDegDeg(double& dOut, double dDeg, int nMin, double dSec);

    /// From NAD27 to NAD83 by the grid of the National Geodetic Survey for the conterminous United
    /// States (NADCON), longitude first. 0 on success, 1 for a point outside of the grid, 2 on any
    /// other failure, as where the grid is not installed, which the log tells. On failure the
    /// outputs stay.
    static int Nad2783(double dLon, double dLat, double& dLonOut, double& dLatOut);
    /// From NAD83 to NAD27.
    static int Nad8327(double dLon, double dLat, double& dLonOut, double& dLatOut);
};
