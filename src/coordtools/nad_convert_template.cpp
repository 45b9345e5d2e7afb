#include "coordtools/angle_rows.h"
#include "coordtools/nad_convert_ids.h"
#include "window/templates/resources.h"

namespace kv::nad_convert {

namespace {

using enum ControlKind;
using coordtools::AngleRows;

constexpr int kFrameWidth = coordtools::kAngleRowWidth + 2 * 7;
constexpr int kWidth = kFrameWidth + 2 * 7;

constexpr std::array kDirectionRows{
    ControlRow{IDC_STATIC, kGroupBox, "Convert From", {7, 7, kFrameWidth, 28}},
    ControlRow{k27To83, kRadio, "Nad27 to Nad83", {14, 20, 92, 10}, kFirstOfGroup},
    ControlRow{k83To27, kRadio, "Nad83 to Nad27", {116, 20, 92, 10}},
};

/// Frame and format of a panel; its angles come behind them.
constexpr std::array<ControlRow, 3> PanelRows(int format, const char* caption, int top) {
    return {{
        {IDC_STATIC, kGroupBox, caption, {7, top, kFrameWidth, 64}, kFirstOfGroup},
        {IDC_STATIC, kLabel, "Format", {14, top + 15, 40, 8}},
        {format, kDropList, "", {58, top + 13, 60, 12}, kSortedCombo},
    }};
}

constexpr int k27Top = 42;
constexpr int k83Top = 134;

constexpr std::array kConvertRow{
    ControlRow{kConvert, kDefaultButton, "Convert", {60, 113, 110, 14}},
};
constexpr std::array kClosingRows{
    ControlRow{IDOK, kPushButton, "OK", {173, 205, 50, 14}},
    ControlRow{IDCANCEL, kPushButton, "Cancel", {119, 205, 50, 14}, kHidden},
};

constexpr auto kRows = JoinRows(
    kDirectionRows, PanelRows(kFormat27, "Nad27", k27Top),
    AngleRows(kLatitude27, "Latitude", 14, k27Top + 29),
    AngleRows(kLongitude27, "Longitude", 14, k27Top + 45), kConvertRow,
    PanelRows(kFormat83, "Nad83", k83Top), AngleRows(kLatitude83, "Latitude", 14, k83Top + 29),
    AngleRows(kLongitude83, "Longitude", 14, k83Top + 45), kClosingRows);

constexpr DialogTemplate kDialog{kTemplate, "Nad27 and Nad83 Converter", kWidth, 226, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::nad_convert
