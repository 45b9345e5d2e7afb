#pragma once

/// Template and controls of the dialog for the order of areas.
namespace kv::order_dlg {

inline constexpr int kTemplate = 15109;

inline constexpr int kOrderBy = 29090;
inline constexpr int kCustom = 29091;
inline constexpr int kAreaName = 29092;
inline constexpr int kCustomize = 29093;

}  // namespace kv::order_dlg
