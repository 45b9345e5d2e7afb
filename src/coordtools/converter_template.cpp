#include "coordtools/angle_rows.h"
#include "coordtools/converter_ids.h"
#include "window/templates/resources.h"

namespace kv::converter {

namespace {

using enum ControlKind;
using coordtools::AngleRows;

constexpr int kWidth = 466;
constexpr int kHeight = 256;
constexpr int kFrameWidth = kWidth - 2 * 7;

constexpr std::array kDirectionRows{
    ControlRow{
        IDC_STATIC, kGroupBox, " X/Y to Lat/Lon   Or   Lat/Lon to X/Y", {7, 7, kFrameWidth, 114}},
    ControlRow{IDC_STATIC, kGroupBox, "Convert From", {14, 20, 180, 28}},
    ControlRow{kToXY, kRadio, "Lat, Lon to X, Y", {21, 33, 80, 10}, kFirstOfGroup},
    ControlRow{kToLatLon, kRadio, "X, Y to Lat, Lon", {107, 33, 80, 10}},
    ControlRow{
        IDC_STATIC, kGroupBox, "NAD coordinates", {272, 20, 180, 28}, kFirstOfGroup | kHidden},
    ControlRow{kNad27, kRadio, "NAD 27", {279, 33, 60, 10}, kFirstOfGroup | kHidden},
    ControlRow{kNad83, kRadio, "NAD 83", {345, 33, 60, 10}, kHidden},
};

constexpr std::array kXYRows{
    ControlRow{IDC_STATIC, kLabel, "Projection", {14, 56, 48, 8}, kFirstOfGroup},
    ControlRow{kProjection, kDropDown, "", {66, 54, 112, 12}},
    ControlRow{IDC_STATIC, kLabel, "Unit", {14, 72, 48, 8}},
    ControlRow{kUnit, kDropList, "", {66, 70, 60, 12}, kSortedCombo},
    ControlRow{IDC_STATIC, kLabel, "x Coordinate", {14, 88, 48, 8}},
    ControlRow{kX, kEdit, "", {66, 86, 112, 12}},
    ControlRow{IDC_STATIC, kLabel, "y Coordinate", {14, 104, 48, 8}},
    ControlRow{kY, kEdit, "", {66, 102, 112, 12}},
    ControlRow{kConvert, kDefaultButton, "Convert", {185, 93, 58, 14}},
    ControlRow{IDC_STATIC, kLabel, "Format", {250, 72, 40, 8}},
    ControlRow{kFormat, kDropList, "", {294, 70, 60, 12}, kSortedCombo},
};

struct SideIds {
    int projection;
    int unit;
    int x;
    int y;
};

/// What X/Y stand in on one side of the lower converter.
constexpr std::array<ControlRow, 9> SideRows(const SideIds& ids, const char* caption, int x,
                                             RowStyle edits) {
    const int labels = x + 7;
    const int boxes = x + 55;
    return {{
        {IDC_STATIC, kGroupBox, caption, {x, 141, 184, 80}},
        {IDC_STATIC, kLabel, "Projection", {labels, 156, 44, 8}},
        {ids.projection, kDropDown, "", {boxes, 154, 122, 12}},
        {IDC_STATIC, kLabel, "Unit", {labels, 172, 44, 8}},
        {ids.unit, kDropList, "", {boxes, 170, 60, 12}, kSortedCombo},
        {IDC_STATIC, kLabel, "X", {labels, 188, 44, 8}},
        {ids.x, kEdit, "", {boxes, 186, 122, 12}, edits},
        {IDC_STATIC, kLabel, "Y", {labels, 204, 44, 8}},
        {ids.y, kEdit, "", {boxes, 202, 122, 12}, edits},
    }};
}

constexpr std::array kLowerFrame{
    ControlRow{IDC_STATIC, kGroupBox, "X/Y to X/Y", {7, 128, kFrameWidth, 100}},
};
constexpr std::array kConvertXYRow{
    ControlRow{kConvertXY, kPushButton, "Convert", {204, 174, 58, 14}},
};
constexpr std::array kOkRow{
    ControlRow{IDOK, kPushButton, "OK", {409, 235, 50, 14}},
};

constexpr auto kRows =
    JoinRows(kDirectionRows, kXYRows, AngleRows(kLatitude, "Latitude", 250, 86),
             AngleRows(kLongitude, "Longitude", 250, 102), kLowerFrame,
             SideRows({kFromProjection, kFromUnit, kFromX, kFromY}, "From:", 14, {}), kConvertXYRow,
             SideRows({kToProjection, kToUnit, kToX, kToY}, "To:", 268, kReadOnly), kOkRow);

constexpr DialogTemplate kDialog{kTemplate, "LatLon and XY Converter", kWidth, kHeight, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::converter
