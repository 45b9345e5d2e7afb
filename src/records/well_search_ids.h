#pragma once

/// Template and controls of the dialog that asks for a well.
namespace kv::well_search {

inline constexpr int kTemplate = 15126;

inline constexpr int kByApi = 29250;
inline constexpr int kByArea = 29251;
inline constexpr int kApiLabel = 29255;
inline constexpr int kApi = 1045;
inline constexpr int kAreaLabel = 1001;
inline constexpr int kArea = 1042;
inline constexpr int kBlock = 1064;
inline constexpr int kWellLabel = 29254;
inline constexpr int kWell = 29253;

// Never shown.
inline constexpr int kAreaList = 1170;
inline constexpr int kBlockList = 1171;
inline constexpr int kFirstCheck = 1146;

}  // namespace kv::well_search
