#pragma once

/// Template and controls of the dialog for a text on a map.
namespace kv::new_text {

inline constexpr int kTemplate = 13063;

inline constexpr int kContent = 29089;
inline constexpr int kHeight = 1070;
inline constexpr int kHeightSpin = 1336;
inline constexpr int kAngle = 1071;
inline constexpr int kAngleSpin = 1337;
inline constexpr int kWeight = 23301;
inline constexpr int kColor = 23302;
inline constexpr int kVertical = 29149;
inline constexpr int kHorizontal = 29150;

}  // namespace kv::new_text
