#pragma once

/// Templates and controls of the palettes, and the images of symbols.
namespace kv::palettes {

inline constexpr int kColors = 2000;
inline constexpr int kColorFillPalette = 12004;
inline constexpr int kLineWidths = 12005;
inline constexpr int kLineTypes = 12006;
inline constexpr int kPointSymbols = 13006;
inline constexpr int kNumberSymbols = 13059;
inline constexpr int kStyle = 15116;

/// The first cell of the 16 colours, of line widths and of line types.
inline constexpr int kFirstCell = 2003;
inline constexpr int kColorCells = 16;
inline constexpr int kWidthCells = 10;
inline constexpr int kTypeCells = 5;

inline constexpr int kFirstNumberCell = 13079;
inline constexpr int kFirstNumberImage = 13047;
inline constexpr int kNumbers = 8;

inline constexpr int kFirstPointCell = 13060;
inline constexpr int kFirstPointImage = 13023;
inline constexpr int kDefaultPointImage = 13024;
inline constexpr int kPoints = 19;

inline constexpr int kStyles = 29146;

// The palette of 40 colours, and behind "More..." of all 256.
inline constexpr int kFirstShortCell = 12036;
inline constexpr int kFirstShortLabel = 29196;
inline constexpr int kShortCells = 40;
inline constexpr int kMore = 29194;
inline constexpr int kHeader = 29236;
/// Hidden: where the grid of all colours begins.
inline constexpr int kGridOrigin = 29237;
inline constexpr int kGridCell = 17408;
inline constexpr int kGridLabel = 17664;
inline constexpr int kGridCells = 256;

/// Cells in a row of each palette.
inline constexpr int kColorsAcross = 8;
inline constexpr int kShortAcross = 10;
inline constexpr int kGridAcross = 16;
inline constexpr int kNumbersAcross = 4;
inline constexpr int kPointsAcross = 5;

}  // namespace kv::palettes
