#include <array>

#include "drawing/swatches/palette_ids.h"
#include "window/templates/resources.h"
#include "window/templates/template_rows.h"

namespace kv::palettes {

namespace {

using enum ControlKind;

/// Cells with ids one behind the other, in rows from the left.
template <std::size_t count>
constexpr std::array<ControlRow, count> CellRows(int firstId, int across, DialogUnits first,
                                                 int pitchX, int pitchY) {
    std::array<ControlRow, count> rows{};
    for (std::size_t i = 0; i < count; ++i) {
        const int column = static_cast<int>(i) % across;
        const int line = static_cast<int>(i) / across;
        rows[i] = {firstId + static_cast<int>(i), kOwnerDrawButton, "",
                   DialogUnits{first.x + column * pitchX, first.y + line * pitchY, first.width,
                               first.height},
                   i == 0 ? kFirstOfGroup : RowStyle{}};
    }
    return rows;
}

constexpr auto kColorRows =
    CellRows<kColorCells>(kFirstCell, kColorsAcross, {7, 7, 16, 13}, 18, 15);
constexpr DialogTemplate kColorsDialog{kColors, "Colors", 156, 42, kColorRows};
const RegisterTemplate kColorsRegistered(kColorsDialog);

constexpr auto kWidthRows = CellRows<kWidthCells>(kFirstCell, 1, {7, 7, 70, 13}, 0, 15);
constexpr DialogTemplate kWidthsDialog{kLineWidths, "Line Widths", 84, 162, kWidthRows};
const RegisterTemplate kWidthsRegistered(kWidthsDialog);

constexpr auto kTypeRows = CellRows<kTypeCells>(kFirstCell, 1, {7, 7, 70, 13}, 0, 15);
constexpr DialogTemplate kTypesDialog{kLineTypes, "Line Types", 84, 87, kTypeRows};
const RegisterTemplate kTypesRegistered(kTypesDialog);

constexpr auto kNumberRows =
    CellRows<kNumbers>(kFirstNumberCell, kNumbersAcross, {7, 7, 26, 16}, 28, 18);
constexpr DialogTemplate kNumbersDialog{kNumberSymbols, "Number Symbols", 124, 48, kNumberRows};
const RegisterTemplate kNumbersRegistered(kNumbersDialog);

constexpr auto kPointRows =
    CellRows<kPoints>(kFirstPointCell, kPointsAcross, {7, 7, 17, 12}, 20, 15);
constexpr DialogTemplate kPointsDialog{kPointSymbols, "Point Symbols", 111, 71, kPointRows};
const RegisterTemplate kPointsRegistered(kPointsDialog);

constexpr ControlRow kStyleRows[] = {{kStyles, kListBox, "", {7, 7, 70, 36}}};
constexpr DialogTemplate kStyleDialog{kStyle, "Style", 84, 50, kStyleRows};
const RegisterTemplate kStyleRegistered(kStyleDialog);

constexpr int kShortPitchX = 20;
constexpr int kShortPitchY = 26;
constexpr DialogUnits kFirstShort{7, 20, 17, 13};

constexpr std::array<ControlRow, kShortCells> ShortLabels() {
    std::array<ControlRow, kShortCells> rows{};
    for (int i = 0; i < kShortCells; ++i) {
        rows[static_cast<std::size_t>(i)] = {
            kFirstShortLabel + i, kCenterLabel, "",
            DialogUnits{kFirstShort.x + i % kShortAcross * kShortPitchX,
                        kFirstShort.y + kFirstShort.height + i / kShortAcross * kShortPitchY,
                        kFirstShort.width, 8}};
    }
    return rows;
}

constexpr std::array<ControlRow, 2> kHeadRows{{
    {kHeader, kLabel, "", {7, 7, 197, 8}},
    {kGridOrigin, kLabel, "", {7, 20, 4, 8}, kHidden},
}};
constexpr std::array<ControlRow, 1> kMoreRow{
    {{kMore, kPushButton, "More...", {154, 126, 50, 14}, kFirstOfGroup}}};
constexpr auto kFillRows = JoinRows(
    kHeadRows,
    CellRows<kShortCells>(kFirstShortCell, kShortAcross, kFirstShort, kShortPitchX, kShortPitchY),
    ShortLabels(), kMoreRow);
constexpr DialogTemplate kFillDialog{kColorFillPalette, "Color Fill Palette", 211, 147, kFillRows};
const RegisterTemplate kFillRegistered(kFillDialog);

}  // namespace

}  // namespace kv::palettes
