#pragma once

/// Template and controls of the dialog ahead of printing.
namespace kv::print_control {

inline constexpr int kTemplate = 15134;

// The map.
inline constexpr int kMapScaleHead = 29192;
inline constexpr int kMapScale = 1259;
inline constexpr int kMapScaleUnit = 29193;
inline constexpr int kMapWidth = 1260;
inline constexpr int kMapHeight = 1264;
inline constexpr int kMapLandscape = 1262;
inline constexpr int kMapPortrait = 1261;

// The printer and its page.
inline constexpr int kPageWidth = 29293;
inline constexpr int kPageHeight = 29294;
inline constexpr int kPrinterName = 29305;
inline constexpr int kChangePrinter = 29296;
inline constexpr int kForm = 29298;
inline constexpr int kPrintScaleHead = 29194;
inline constexpr int kPrintScale = 29304;
inline constexpr int kPrintScaleUnit = 29195;
inline constexpr int kPrinterLandscape = 1263;
inline constexpr int kPrinterPortrait = 1265;

// Text and color.
inline constexpr int kStrokeFont = 1370;
inline constexpr int kTrueTypeFont = 1371;
inline constexpr int kMinimalFontSize = 29303;
inline constexpr int kColor = 1372;
inline constexpr int kBlackAndWhite = 1373;
inline constexpr int kGrayscale = 29295;

}  // namespace kv::print_control
