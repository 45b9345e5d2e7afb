#pragma once

/// Template and controls of the dialog that asks which graphics to clear.
namespace kv::clear_custom_obj {

inline constexpr int kTemplate = 15127;

inline constexpr int kTexts = 29256;
inline constexpr int kPolygons = 29257;
inline constexpr int kColorFills = 29258;

}  // namespace kv::clear_custom_obj
