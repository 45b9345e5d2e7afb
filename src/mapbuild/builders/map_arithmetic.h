#pragma once

#include "frame/kvcom/map_bounds.h"

/// The arithmetic of a map's bounds, with no window in it.
///
/// X/Y and angles of a record are kept in step through the coordinate driver. Where it has no
/// answer, the side that was to be computed has no value: `CKvUtilLLdrv::kNoXY` in all four places
/// of X and Y, 1000.0 in those of latitude and longitude. What has no value is not computed with.
namespace kv::mapbuild {

/// A projection and the unit of X and Y in it, as the driver takes them: 0 for feet, 1 for meters.
struct Plane {
    int projection = -1;
    int units = 0;
    bool operator==(const Plane&) const = default;
};

bool HasXY(const CKvMapBounds& bounds);
bool HasAngles(const CKvMapBounds& bounds);

/// Hands the rectifying point to the driver. Unless the user named it, it is the middle of the
/// angles, and stored in the record first.
void UseRectifyingPoint(CKvMapBounds& bounds);

/// The angles of the corners of X/Y, and X/Y of the corners of the angles.
void ProjectToAngles(CKvMapBounds& bounds, const Plane& plane);
void ProjectToXY(CKvMapBounds& bounds, const Plane& plane);

/// Widens the bounds so that they hold that many of themselves side by side; below 2 changes
/// nothing. In X/Y the whole units of the bounds count alone.
void WidenX(CKvMapBounds& bounds, int times);
void WidenY(CKvMapBounds& bounds, int times);
void WidenLon(CKvMapBounds& bounds, int times);
void WidenLat(CKvMapBounds& bounds, int times);

/// Adds so many percent on each side, from 0 to 1000; anything else adds nothing. In X/Y the whole
/// units of the bounds count alone.
bool IsPercent(int percent);
void AddMarginXY(CKvMapBounds& bounds, int percent);
void AddMarginAngles(CKvMapBounds& bounds, int percent);

/// Gives `original` the bounds that `enlarged` had ahead of that margin.
void TakeMarginXY(CKvMapBounds& original, const CKvMapBounds& enlarged, int percent);
void TakeMarginAngles(CKvMapBounds& original, const CKvMapBounds& enlarged, int percent);

/// Cuts X/Y to integers and moves them to a grid, each minimum toward zero, each maximum likewise
/// and then one cell up, also where it lies on the grid. A range of 0 or below changes nothing.
void SnapXY(CKvMapBounds& bounds, int range);

}  // namespace kv::mapbuild
