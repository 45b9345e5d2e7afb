#pragma once

/// Template and controls of the choice of a report's projection.
namespace kv::rpt_proj {

inline constexpr int kTemplate = 15133;

inline constexpr int kMapProjection = 29288;
inline constexpr int kBaseProjection = 29289;

}  // namespace kv::rpt_proj
