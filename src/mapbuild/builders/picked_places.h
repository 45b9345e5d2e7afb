#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "frame/kvdbkvn/db_util.h"
#include "mapbuild/builders/map_arithmetic.h"

/// What the database knows of the picks of a map.
namespace kv::mapbuild {

/// The bounds around picks.
struct PickedBounds {
    /// Latitude in the X places.
    CMinMax2Dd_t angles;
    /// None where the projection shows none of the picks.
    std::optional<CMinMax2Dd_t> xy;
};

/// A point that the driver uses for Straight Mercator.
struct RectifyingPoint {
    double lat = 0.0;
    double lon = 0.0;
    bool operator==(const RectifyingPoint&) const = default;
};

/// Looks up the bounds of picks. The database is asked once for each; what it does not know is
/// logged and left out, and no bounds come of picks that are all unknown. Its failure is thrown as
/// `CKvException`, and the next look-up asks again.
class PickedPlaces {
public:
    using Picks = std::vector<CKvDbUtil::Pick>;

    /// Around blocks of a dataset. `point` is that which the driver uses now.
    std::optional<PickedBounds> OfBlocks(Picks picks, const std::string& dataset,
                                         const Plane& plane, const RectifyingPoint& point);
    /// Around counties, which are named by the blocks of the picks.
    std::optional<PickedBounds> OfCounties(Picks picks, const Plane& plane,
                                           const RectifyingPoint& point);

private:
    using Outline = std::vector<CKvDispPoint>;
    struct Asked {
        bool offshore = true;
        Picks picks;
        std::string dataset;
        Plane plane;
        RectifyingPoint point;
        bool operator==(const Asked&) const = default;
    };

    struct HashOfPick {
        std::size_t operator()(const CKvDbUtil::Pick& pick) const;
    };
    /// Empty for a block that is not known.
    using Blocks = std::unordered_map<CKvDbUtil::Pick, Outline, HashOfPick>;

    static void LearnBlocks(const Picks& picks, const std::string& dataset, Blocks& blocks);
    void LearnCounties(const Picks& picks);

    /// By dataset.
    std::map<std::string, Blocks> blocks_;
    std::map<std::string, std::optional<CMinMax2Dd_t>> counties_;
    Asked asked_;
    std::optional<PickedBounds> answered_;
};

}  // namespace kv::mapbuild
