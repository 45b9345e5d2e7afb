#pragma once

/// Template and controls of the dialog for lines and polygons.
namespace kv::new_line_ctrl {

inline constexpr int kTemplate = 13067;

inline constexpr int kWidth = 29087;
inline constexpr int kType = 23248;
inline constexpr int kColor = 29088;
inline constexpr int kClose = 29161;
inline constexpr int kFill = 29152;
inline constexpr int kFillColor = 29089;
inline constexpr int kVertices = 29190;
inline constexpr int kRubberBand = 29191;

}  // namespace kv::new_line_ctrl
