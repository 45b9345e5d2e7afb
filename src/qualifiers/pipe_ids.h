#pragma once

/// Ids of the pipeline status dialog.
namespace kv::pipe_status {

inline constexpr int kTemplate = 13000;
inline constexpr int kFirstBox = 13004;
inline constexpr int kLastBox = 13021;
inline constexpr int kAllActive = 13004;
inline constexpr int kAllInactive = 13007;

}  // namespace kv::pipe_status

/// Ids of the pipeline product dialog.
namespace kv::pipe_product {

inline constexpr int kTemplate = 13001;
inline constexpr int kFirstBox = 13023;
inline constexpr int kLastBox = 13059;
/// The one box outside that range.
inline constexpr int kTraceGas = 29287;
inline constexpr int kAllCombined = 13023;
inline constexpr int kAllOil = 13027;
inline constexpr int kAllGas = 13034;
inline constexpr int kAllOther = 13041;

}  // namespace kv::pipe_product
