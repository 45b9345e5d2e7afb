#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/map/feature_layer.h"
#include "workbench/map/geometry.h"
#include "workbench/map/outline.h"

namespace workbench {

/// Kinds of wells, by their status.
enum WellKind : std::uint8_t {
    kWellCompleted,
    kWellDrilling,
    kWellSuspended,  ///< temporarily abandoned
    kWellSidetracked,
    kWellAbandoned,
    kWellOther,
};
WellKind WellKindOf(std::string_view status);

/// Kinds of pipelines, by their product.
enum PipelineKind : std::uint8_t { kPipeOil, kPipeGas, kPipeOther };
PipelineKind PipelineKindOf(std::string_view product);

enum PlatformKind : std::uint8_t { kPlatformStanding, kPlatformRemoved };

/// Whose water an area lies in, which decides its colour.
enum class Water { kState, kBay, kShelf, kDeep };
/// By the area code's first three characters.
Water WaterOf(std::string_view areaCode);
/// What the pickers show behind the number of a block in state waters, by those characters: "-S".
std::string_view WaterSuffix(std::string_view areaCode);

/// One area of the map with all that lies in it. Pipelines belong to the area they begin in.
struct AreaMap {
    std::string code;
    std::string name;
    std::string mmsCode;  ///< "" where it has none

    FeatureLayer blocks;  ///< labels are number and extension
    FeatureLayer wells;
    FeatureLayer platforms;
    FeatureLayer pipelines;

    // Worked out by Finish.
    Water water = Water::kShelf;
    Outline outline;
    Point labelAt;         ///< a good place for the name: the middle of the blocks
    Box labelRoom;         ///< how far the area reaches from there, to all sides
    double blockSize = 0;  ///< side of a usual block, map units

    void Finish();
    /// The same where it is known what the blocks look like together.
    void Finish(Outline known);
};

/// One block of the map.
struct BlockRef {
    const AreaMap* area = nullptr;
    std::size_t block = 0;

    std::string_view Label() const { return area->blocks.Label(block); }
    const Box& Bounds() const { return area->blocks.BoxOf(block); }
    bool operator==(const BlockRef&) const = default;
};

/// A well or a platform.
struct SpotRef {
    const AreaMap* area = nullptr;
    bool platform = false;
    std::size_t number = 0;

    const FeatureLayer& Layer() const { return platform ? area->platforms : area->wells; }
};

/// What the user picked: a block, or all blocks of some areas.
struct Pick {
    std::vector<const AreaMap*> areas;
    std::optional<BlockRef> block;

    bool Empty() const { return areas.empty() && !block; }
    Box Bounds() const;
};

/// All areas of the map. Areas come one by one and stay where they are.
class MapModel {
public:
    /// The map will cover this box, in the end.
    void Expect(const Box& bounds) { bounds_.Include(bounds); }
    /// The area must be finished.
    void Add(std::unique_ptr<const AreaMap> area);
    void Clear();

    const std::vector<std::unique_ptr<const AreaMap>>& Areas() const { return areas_; }
    std::size_t BlockCount() const { return blocks_; }
    /// Of all blocks, those included that are expected.
    const Box& Bounds() const { return bounds_; }

    /// Null for an unknown code.
    const AreaMap* FindArea(std::string_view code) const;
    /// The block in the areas with these codes that has that number and extension; all blocks of
    /// the areas where `block` is "ALL". Empty where there is none.
    Pick FindPick(const std::vector<std::string>& codes, std::string_view block) const;

    std::optional<BlockRef> BlockAt(const Point& point) const;
    /// The platform or else the well nearest to the point, no farther than `reach` map units.
    std::optional<SpotRef> SpotAt(const Point& point, double reach) const;

private:
    std::vector<std::unique_ptr<const AreaMap>> areas_;
    std::size_t blocks_ = 0;
    Box bounds_;
};

/// Everything of an area, pipelines included.
Box ReachOf(const AreaMap& area);

}  // namespace workbench
