#pragma once

#include <string_view>

namespace kv::blocks {

/// Ahead of the neighbors.
inline constexpr std::string_view kMarker = "***Neighborhood Relationship***";
/// Stands for each blank of an area there.
inline constexpr const char* kBlankMark = "~";

}  // namespace kv::blocks
