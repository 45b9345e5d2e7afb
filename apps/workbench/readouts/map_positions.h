#pragma once

#include <map>
#include <string>

#include "workbench/map/map_model.h"

namespace workbench {

/// Places of the map as the readouts take them: X and Y in feet, in the usual projection of the
/// area that they lie in. Where there is no area, or the dataset tells none, it is the UTM zone on
/// the spheroid of Clarke 1866.
class MapPositions {
public:
    static constexpr const char* kUnit = "feet";

    /// `model` outlives it.
    explicit MapPositions(const MapModel& model) : model_(model) {}

    /// The code of the projection there.
    int ProjectionAt(const Place& place);
    /// X and Y, with the driver's mark where it has no answer.
    static Point InProjection(const Place& place, int projection);
    /// Straight Mercator is about the middle of the map from now on.
    void SetRectifyingPoint() const;
    /// The dataset is another one.
    void Forget() { projections_.clear(); }

private:
    int ProjectionOf(const std::string& areaCode);

    const MapModel& model_;
    std::map<std::string, int> projections_;  ///< of areas, by their codes; -1 for none
};

}  // namespace workbench
