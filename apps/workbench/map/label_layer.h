#pragma once

#include <cstdint>

namespace workbench {

/// Whose labels they are: of blocks, of wells, or of pipelines.
enum class LabelLayer : std::uint8_t { kLeases, kWells, kPipelines };

}  // namespace workbench
