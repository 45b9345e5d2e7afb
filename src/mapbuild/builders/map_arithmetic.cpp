#include "mapbuild/builders/map_arithmetic.h"

#include <cmath>
#include <cstdint>

#include "base/numbers.h"
#include "frame/kvcom/util_lldrv.h"

namespace kv::mapbuild {

namespace {

constexpr double kNoAngle = 1000.0;
constexpr int kMostPercent = 1000;

/// One side of a map, from its minimum to its maximum.
struct Side {
    double low;
    double high;
    double Length() const { return high - low; }
    Side Enlarged(double margin) const { return {low - margin, high + margin}; }
};

Side X(const CKvMapBounds& bounds) {
    return {bounds.GetXMin(), bounds.GetXMax()};
}
Side Y(const CKvMapBounds& bounds) {
    return {bounds.GetYMin(), bounds.GetYMax()};
}
Side Lat(const CKvMapBounds& bounds) {
    return {bounds.GetLatMin(), bounds.GetLatMax()};
}
Side Lon(const CKvMapBounds& bounds) {
    return {bounds.GetLonMin(), bounds.GetLonMax()};
}
void SetX(CKvMapBounds& bounds, const Side& side) {
    bounds.SetXMin(side.low);
    bounds.SetXMax(side.high);
}
void SetY(CKvMapBounds& bounds, const Side& side) {
    bounds.SetYMin(side.low);
    bounds.SetYMax(side.high);
}
void SetLat(CKvMapBounds& bounds, const Side& side) {
    bounds.SetLatMin(side.low);
    bounds.SetLatMax(side.high);
}
void SetLon(CKvMapBounds& bounds, const Side& side) {
    bounds.SetLonMin(side.low);
    bounds.SetLonMax(side.high);
}

Side WidenedInWhole(const Side& side, int times) {
    if (times <= 1) return side;
    const std::int64_t more = std::int64_t{times - 1} * ToInt(side.Length());
    return side.Enlarged(static_cast<double>(more / 2));
}

Side Widened(const Side& side, int times) {
    return times > 1 ? side.Enlarged((times - 1) * side.Length() * 0.5) : side;
}

Side WithMargin(const Side& side, double length, int percent) {
    return IsPercent(percent) ? side.Enlarged(length * (percent * 0.01)) : side;
}

Side WithoutMargin(const Side& side, int percent) {
    if (!IsPercent(percent)) return side;
    const double before = side.Length() * 100.0 / (percent * 2 + 100);
    return side.Enlarged((before - side.Length()) * 0.5);
}

/// The remainder takes the sign of the place.
double OnGrid(double place, int range) {
    const double whole = std::trunc(place);
    return whole - std::fmod(whole, range);
}

}  // namespace

bool HasXY(const CKvMapBounds& bounds) {
    return bounds.GetXMin() != CKvUtilLLdrv::kNoXY;
}

bool HasAngles(const CKvMapBounds& bounds) {
    return bounds.GetLatMin() != kNoAngle;
}

void UseRectifyingPoint(CKvMapBounds& bounds) {
    if (!bounds.GetRectSpec()) {
        if (!HasAngles(bounds)) return;
        bounds.SetRectifyingLat((bounds.GetLatMin() + bounds.GetLatMax()) * 0.5);
        bounds.SetRectifyingLon((bounds.GetLonMin() + bounds.GetLonMax()) * 0.5);
    }
    CKvUtilLLdrv::SetRectLat(bounds.GetRectifyingLat());
    CKvUtilLLdrv::SetRectLon(bounds.GetRectifyingLon());
}

void ProjectToAngles(CKvMapBounds& bounds, const Plane& plane) {
    if (!HasXY(bounds)) return;
    Side lat{};
    Side lon{};
    const auto invert = [&plane](double x, double y, double& toLat, double& toLon) {
        CKvUtilLLdrv::XYdrv(x, y, &toLat, &toLon, plane.projection, plane.units, 1, 100.0, 0.0,
                            0.0);
        return std::isfinite(toLat);
    };
    if (!invert(bounds.GetXMin(), bounds.GetYMin(), lat.low, lon.low) ||
        !invert(bounds.GetXMax(), bounds.GetYMax(), lat.high, lon.high)) {
        lat = lon = {kNoAngle, kNoAngle};
    }
    SetLat(bounds, lat);
    SetLon(bounds, lon);
}

void ProjectToXY(CKvMapBounds& bounds, const Plane& plane) {
    if (!HasAngles(bounds)) return;
    Side x{};
    Side y{};
    const auto project = [&plane](double lat, double lon, double& toX, double& toY) {
        CKvUtilLLdrv::LLdrv(lat, lon, &toX, &toY, plane.projection, plane.units, 1, 100.0, 0.0,
                            0.0);
        return toX != CKvUtilLLdrv::kNoXY;
    };
    if (!project(bounds.GetLatMin(), bounds.GetLonMin(), x.low, y.low) ||
        !project(bounds.GetLatMax(), bounds.GetLonMax(), x.high, y.high)) {
        x = y = {CKvUtilLLdrv::kNoXY, CKvUtilLLdrv::kNoXY};
    }
    SetX(bounds, x);
    SetY(bounds, y);
}

void WidenX(CKvMapBounds& bounds, int times) {
    if (HasXY(bounds)) SetX(bounds, WidenedInWhole(X(bounds), times));
}

void WidenY(CKvMapBounds& bounds, int times) {
    if (HasXY(bounds)) SetY(bounds, WidenedInWhole(Y(bounds), times));
}

void WidenLon(CKvMapBounds& bounds, int times) {
    if (HasAngles(bounds)) SetLon(bounds, Widened(Lon(bounds), times));
}

void WidenLat(CKvMapBounds& bounds, int times) {
    if (HasAngles(bounds)) SetLat(bounds, Widened(Lat(bounds), times));
}

bool IsPercent(int percent) {
    return percent >= 0 && percent <= kMostPercent;
}

void AddMarginXY(CKvMapBounds& bounds, int percent) {
    if (!HasXY(bounds)) return;
    SetX(bounds, WithMargin(X(bounds), ToInt(X(bounds).Length()), percent));
    SetY(bounds, WithMargin(Y(bounds), ToInt(Y(bounds).Length()), percent));
}

void AddMarginAngles(CKvMapBounds& bounds, int percent) {
    if (!HasAngles(bounds)) return;
    SetLat(bounds, WithMargin(Lat(bounds), Lat(bounds).Length(), percent));
    SetLon(bounds, WithMargin(Lon(bounds), Lon(bounds).Length(), percent));
}

void TakeMarginXY(CKvMapBounds& original, const CKvMapBounds& enlarged, int percent) {
    SetX(original, WithoutMargin(X(enlarged), percent));
    SetY(original, WithoutMargin(Y(enlarged), percent));
}

void TakeMarginAngles(CKvMapBounds& original, const CKvMapBounds& enlarged, int percent) {
    SetLat(original, WithoutMargin(Lat(enlarged), percent));
    SetLon(original, WithoutMargin(Lon(enlarged), percent));
}

void SnapXY(CKvMapBounds& bounds, int range) {
    if (range <= 0 || !HasXY(bounds)) return;
    SetX(bounds, {OnGrid(bounds.GetXMin(), range), OnGrid(bounds.GetXMax(), range) + range});
    SetY(bounds, {OnGrid(bounds.GetYMin(), range), OnGrid(bounds.GetYMax(), range) + range});
}

}  // namespace kv::mapbuild
