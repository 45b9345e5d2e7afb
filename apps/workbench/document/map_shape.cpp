#include "workbench/document/map_shape.h"

#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/proj_ctrl.h"

namespace workbench {

namespace {

/// A side of latitude or longitude is a curve in X and Y.
constexpr int kSteps = 32;

bool HasAngles(const CKvMapBounds& bounds) {
    constexpr double kNoAngle = 1000.0;
    return bounds.GetLatMin() != kNoAngle;
}

bool HasXY(const CKvMapBounds& bounds) {
    return bounds.GetXMin() != CKvUtilLLdrv::kNoXY;
}

std::vector<Place> AnglesOf(const CKvMapBounds& bounds) {
    if (!HasAngles(bounds)) return {};
    const Place corners[] = {{bounds.GetLatMin(), bounds.GetLonMin()},
                             {bounds.GetLatMin(), bounds.GetLonMax()},
                             {bounds.GetLatMax(), bounds.GetLonMax()},
                             {bounds.GetLatMax(), bounds.GetLonMin()}};
    std::vector<Place> edge;
    for (std::size_t side = 0; side < std::size(corners); ++side) {
        const Place& from = corners[side];
        const Place& to = corners[(side + 1) % std::size(corners)];
        for (int i = 0; i < kSteps; ++i) {
            const double part = static_cast<double>(i) / kSteps;
            edge.push_back(
                {from.lat + (to.lat - from.lat) * part, from.lon + (to.lon - from.lon) * part});
        }
    }
    return edge;
}

std::vector<Point> CornersOf(const CKvMapBounds& bounds) {
    if (!HasXY(bounds)) return {};
    return {{bounds.GetXMin(), bounds.GetYMin()},
            {bounds.GetXMax(), bounds.GetYMin()},
            {bounds.GetXMax(), bounds.GetYMax()},
            {bounds.GetXMin(), bounds.GetYMax()}};
}

}  // namespace

DriverPlane PlaneOf(const BuiltMap& map) {
    return {map.Projection(),
            map.Feet(),
            {map.bounds.GetRectifyingLat(), map.bounds.GetRectifyingLon()}};
}

bool HasExtent(const BuiltMap& map) {
    const CKvMapBounds& bounds = map.bounds;
    const bool angles =
        bounds.GetLatMin() < bounds.GetLatMax() && bounds.GetLonMin() < bounds.GetLonMax();
    const bool xy = bounds.GetXMin() < bounds.GetXMax() && bounds.GetYMin() < bounds.GetYMax();
    return angles || xy;
}

std::optional<Place> MiddleOf(const BuiltMap& map) {
    const CKvMapBounds& bounds = map.bounds;
    if (!HasAngles(bounds)) return {};
    return Place{(bounds.GetLatMin() + bounds.GetLatMax()) / 2,
                 (bounds.GetLonMin() + bounds.GetLonMax()) / 2};
}

std::vector<Place> EdgeOf(const BuiltMap& map) {
    if (!map.bounds.GetXYBounded()) return AnglesOf(map.bounds);
    const DriverPlane plane = PlaneOf(map);
    std::vector<Place> edge;
    for (const Point& corner : CornersOf(map.bounds)) {
        const auto place = plane.ToPlace(corner);
        if (!place) return {};
        edge.push_back(*place);
    }
    return edge;
}

Box XyBoundsOf(const BuiltMap& map, const DriverPlane& plane) {
    Box box;
    for (const Place& place : EdgeOf(map)) {
        if (const auto xy = plane.ToXY(place)) box.Include(*xy);
    }
    return box;
}

std::optional<MapFrame> FrameOf(const BuiltMap& map, const MapProjection& projection) {
    MapFrame frame{{}, QString::fromStdString(map.name), {}};
    for (const Place& place : EdgeOf(map)) {
        if (const auto point = projection.ToMap(place)) frame.outline.push_back(*point);
    }
    const Box box = frame.Bounds();
    if (!(box.Width() > 0) || !(box.Height() > 0)) return {};
    frame.details = QString::fromStdString(ProjectionName(map.Projection())) +
                    QStringLiteral(", ") + ScaleText(map);
    return frame;
}

std::string ProjectionName(int code) {
    const std::string name = CKvGuiProjCtrl::S_GetProjDesc(code);
    return name.empty() ? "Projection " + std::to_string(code) : name;
}

QString ScaleText(const BuiltMap& map) {
    const int scale = map.bounds.GetScale();
    return map.Feet() ? QStringLiteral("1 inch = %1 feet").arg(scale)
                      : QStringLiteral("1 : %1").arg(scale);
}

}  // namespace workbench
