#include "coordtools/angle_rows.h"
#include "coordtools/distance_ids.h"
#include "window/templates/resources.h"

namespace kv::distance_dialog {

namespace {

using enum ControlKind;
using coordtools::AngleRows;

constexpr int kWidth = 310;
constexpr int kFrameWidth = kWidth - 2 * 7;
/// Two columns, each of labels and boxes.
constexpr int kLabels = 14;
constexpr int kLabelWidth = 60;
constexpr int kBoxes = kLabels + kLabelWidth;
constexpr int kRightLabels = 160;
constexpr int kRightBoxes = kRightLabels + kLabelWidth;
constexpr int kBoxWidth = kWidth - 14 - kRightBoxes;

constexpr DialogUnits LeftLabel(int y) {
    return {kLabels, y + 2, kLabelWidth - 4, 8};
}
constexpr DialogUnits LeftBox(int y) {
    return {kBoxes, y, kBoxWidth, 12};
}
constexpr DialogUnits RightLabel(int y) {
    return {kRightLabels, y + 2, kLabelWidth - 4, 8};
}
constexpr DialogUnits RightBox(int y) {
    return {kRightBoxes, y, kBoxWidth, 12};
}

constexpr std::array kLengthRows{
    ControlRow{IDC_STATIC, kLabel, "Distance", LeftLabel(7)},
    ControlRow{kDistance, kEdit, "", LeftBox(7), kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "Unit", RightLabel(7)},
    ControlRow{kUnit, kDropList, "", RightBox(7), kSortedCombo},
    ControlRow{IDC_STATIC, kLabel, "Offset X", LeftLabel(23)},
    ControlRow{kOffsetX, kEdit, "", LeftBox(23), kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "Offset Y", RightLabel(23)},
    ControlRow{kOffsetY, kEdit, "", RightBox(23), kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "Map Projection", LeftLabel(39)},
    ControlRow{kMapProjection, kEdit, "", {kBoxes, 39, 40, 12}, kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "Format", RightLabel(39)},
    ControlRow{kFormat, kDropList, "", RightBox(39), kSortedCombo},
    ControlRow{IDC_STATIC, kLabel, "User Projection", LeftLabel(55)},
    ControlRow{kUserProjection, kDropDown, "", {kBoxes, 55, kWidth - 14 - kBoxes, 12}},
};

/// An end of the line: a frame without a caption, X and Y in it; its angles come behind them.
constexpr std::array<ControlRow, 5> EndRows(const char* xLabel, int x, const char* yLabel, int y,
                                            int top) {
    return {{
        {IDC_STATIC, kGroupBox, "", {7, top, kFrameWidth, 58}},
        {IDC_STATIC, kLabel, xLabel, LeftLabel(top + 7)},
        {x, kEdit, "", LeftBox(top + 7), kReadOnly},
        {IDC_STATIC, kLabel, yLabel, RightLabel(top + 7)},
        {y, kEdit, "", RightBox(top + 7), kReadOnly},
    }};
}

constexpr int kStartTop = 73;
constexpr int kEndTop = 135;
constexpr int kAngleLabelWidth = 88;

constexpr std::array kClosingRows{
    ControlRow{kUnused[0], kEdit, "", {7, 202, 30, 12}, kHidden},
    ControlRow{kUnused[1], kEdit, "", {41, 202, 30, 12}, kHidden},
    ControlRow{kUnused[2], kEdit, "", {75, 202, 30, 12}, kHidden},
    ControlRow{kUnused[3], kEdit, "", {109, 202, 30, 12}, kHidden},
    ControlRow{IDOK, kDefaultButton, "OK", {kWidth - 57, 200, 50, 14}},
    ControlRow{IDCANCEL, kPushButton, "Cancel", {kWidth - 111, 200, 50, 14}, kHidden},
};

constexpr auto kRows = JoinRows(
    kLengthRows, EndRows("Start Point  X", kStartX, "Start Point Y", kStartY, kStartTop),
    AngleRows(kStartLatitude, "Start Point Latitude", 14, kStartTop + 23, kAngleLabelWidth),
    AngleRows(kStartLongitude, "Start Point Longitude", 14, kStartTop + 39, kAngleLabelWidth),
    EndRows("End Point X", kEndX, "End Point Y", kEndY, kEndTop),
    AngleRows(kEndLatitude, "End Point Latitude", 14, kEndTop + 23, kAngleLabelWidth),
    AngleRows(kEndLongitude, "End Point Longitude", 14, kEndTop + 39, kAngleLabelWidth),
    kClosingRows);

constexpr DialogTemplate kDialog{kTemplate, "Check Distance", kWidth, 221, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::distance_dialog
