#pragma once

/// Template and controls of the dialog for the colour of a filled block.
namespace kv::color_fill_ctrl {

inline constexpr int kTemplate = 15125;

inline constexpr int kColor = 29249;

}  // namespace kv::color_fill_ctrl
