#pragma once

/// Template and controls of the dialog for the size of a map.
namespace kv::sizing {

inline constexpr int kTemplate = 15102;

inline constexpr int kScaleMode = 1263;
inline constexpr int kScaleHead = 29192;
inline constexpr int kScale = 1259;
inline constexpr int kScaleUnit = 29193;
inline constexpr int kSettingsMode = 1266;
inline constexpr int kWidth = 1260;
inline constexpr int kHeight = 1264;
inline constexpr int kOrientation = 29147;
inline constexpr int kLandscape = 1262;
inline constexpr int kPortrait = 1261;
inline constexpr int kPaperWidth = 1265;
inline constexpr int kStrokeFont = 1370;
inline constexpr int kTrueTypeFont = 1371;
inline constexpr int kColor = 1372;
inline constexpr int kBlackAndWhite = 1373;
inline constexpr int kGray = 29138;

}  // namespace kv::sizing
