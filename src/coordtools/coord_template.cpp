#include "coordtools/angle_rows.h"
#include "coordtools/coord_ids.h"
#include "window/templates/resources.h"

namespace kv::coord_dialog {

namespace {

using enum ControlKind;
using coordtools::AngleRows;

constexpr int kWidth = 264;
constexpr int kLabelWidth = 60;
constexpr int kBoxes = 7 + kLabelWidth;
/// Where the right column has its labels, and its boxes.
constexpr int kRightLabels = 161;
constexpr int kRightBoxes = 191;
constexpr int kRightWidth = kWidth - 7 - kRightBoxes;

constexpr std::array kPlaneRows{
    ControlRow{IDC_STATIC, kLabel, "x Coordinate", {7, 9, kLabelWidth - 4, 8}},
    ControlRow{kX, kEdit, "", {kBoxes, 7, 86, 12}, kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "Unit", {kRightLabels, 9, 26, 8}},
    ControlRow{kUnit, kDropList, "", {kRightBoxes, 7, kRightWidth, 12}, kSortedCombo},
    ControlRow{IDC_STATIC, kLabel, "y Coordinate", {7, 25, kLabelWidth - 4, 8}},
    ControlRow{kY, kEdit, "", {kBoxes, 23, 86, 12}, kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "Format", {kRightLabels, 25, 26, 8}},
    ControlRow{kFormat, kDropList, "", {kRightBoxes, 23, kRightWidth, 12}, kSortedCombo},
    ControlRow{IDC_STATIC, kLabel, "Map Projection", {7, 41, kLabelWidth - 4, 8}},
    ControlRow{kMapProjection, kEdit, "", {kBoxes, 39, 40, 12}, kReadOnly},
    ControlRow{IDC_STATIC, kLabel, "User Projection", {7, 57, kLabelWidth - 4, 8}},
    ControlRow{kUserProjection, kDropDown, "", {kBoxes, 55, kWidth - 7 - kBoxes, 12}},
};
constexpr std::array kClosingRows{
    ControlRow{kUnused[0], kEdit, "", {7, 111, 40, 12}, kHidden},
    ControlRow{kUnused[1], kEdit, "", {51, 111, 40, 12}, kHidden},
    ControlRow{IDOK, kDefaultButton, "OK", {kWidth - 57, 109, 50, 14}},
    ControlRow{IDCANCEL, kPushButton, "Cancel", {kWidth - 111, 109, 50, 14}, kHidden},
};

constexpr auto kRows =
    JoinRows(kPlaneRows, AngleRows(kLatitude, "Latitude", 7, 73, kLabelWidth),
             AngleRows(kLongitude, "Longitude", 7, 89, kLabelWidth), kClosingRows);

constexpr DialogTemplate kDialog{kTemplate, "Coordinate and Projection", kWidth, 130, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::coord_dialog
