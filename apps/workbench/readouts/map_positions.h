#pragma once

#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "workbench/map/map_model.h"
#include "workbench/map/map_projection.h"

namespace workbench {

/// Places of the map as the readouts take them: X and Y in the projection and the unit of the map
/// that was built; where none was, in feet in the usual projection of the area that they lie in.
/// Where there is no area, or the dataset tells none, it is the UTM zone on the spheroid of Clarke
/// 1866. So it is for as long as the database fails, which is told once.
class MapPositions {
public:
    using Fail = std::function<void(const QString&)>;

    /// `model` outlives it.
    MapPositions(const MapModel& model, Fail fail) : model_(model), fail_(std::move(fail)) {}

    /// That of the map that was built; none where there is no such map.
    void SetPlane(const std::optional<DriverPlane>& plane) { plane_ = plane; }
    const std::optional<DriverPlane>& Plane() const { return plane_; }

    /// The name of the unit of X and Y.
    const char* Unit() const { return InFeet() ? "feet" : "meter"; }
    /// The code of the projection there.
    int ProjectionAt(const Place& place);
    /// X and Y, with the driver's mark where it has no answer.
    Point InProjection(const Place& place, int projection) const;
    /// Straight Mercator is from now on about the point of the map that was built, and else about
    /// the middle of the map.
    void SetRectifyingPoint() const;
    /// The dataset is another one.
    void Forget();

private:
    bool InFeet() const { return !plane_ || plane_->feet; }
    int ProjectionOf(const std::string& areaCode);

    const MapModel& model_;
    Fail fail_;
    std::optional<DriverPlane> plane_;
    std::map<std::string, int> projections_;  ///< of areas, by their codes; -1 for none
    bool failed_ = false;
};

}  // namespace workbench
