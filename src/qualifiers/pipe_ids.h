#pragma once

/// Ids of the pipeline status dialog.
namespace kv::pipe_status {

inline constexpr int kTemplate = 13000;
inline constexpr int kAllActive = 13004;
inline constexpr int kAllInactive = 13007;

}  // namespace kv::pipe_status

/// Ids of the pipeline product dialog.
namespace kv::pipe_product {

inline constexpr int kTemplate = 13001;
inline constexpr int kAllCombined = 13023;
inline constexpr int kAllOil = 13027;
inline constexpr int kAllGas = 13034;
inline constexpr int kAllOther = 13041;

}  // namespace kv::pipe_product
