// The quick map builder, the same controls for the boundary of picks, and the dialog for the grid.

#include "mapbuild/builders/quick_off_bld_ids.h"
#include "window/templates/resources.h"

namespace kv {

namespace {

using enum ControlKind;

namespace quick {

using namespace quick_bld;

constexpr ControlRow kRows[] = {
    {kMapBasics, kGroupBox, "Map Basics", {7, 7, 410, 46}},
    {kMapNameLabel, kLabel, "Map Name", {14, 22, 40, 8}},
    {kMapName, kEdit, "", {58, 20, 351, 12}},
    {kXYBounded, kRadio, "X/Y Bounded", {58, 37, 60, 10}, kFirstOfGroup},
    {kLatLonBounded, kRadio, "Lat/Lon Bounded", {122, 37, 76, 10}},
    {kFeet, kRadio, "Feet", {266, 37, 36, 10}, kFirstOfGroup},
    {kMeters, kRadio, "Meters", {306, 37, 44, 10}},

    {IDC_STATIC, kGroupBox, "Width by Height Boundary", {7, 58, 202, 31}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Width", {14, 73, 26, 8}},
    {kWidth, kDropDown, "", {42, 71, 52, 12}},
    {IDC_STATIC, kLabel, "Height", {110, 73, 28, 8}},
    {kHeight, kDropDown, "", {140, 71, 52, 12}},
    {IDC_STATIC, kGroupBox, "Percentage Boundary", {215, 58, 202, 31}},
    {IDC_STATIC, kLabel, "Percent", {222, 73, 36, 8}},
    {kPercent, kDropDown, "", {260, 71, 52, 12}},

    {IDC_STATIC, kGroupBox, "Origin (Lower Left Corner)", {7, 94, 202, 80}},
    {IDC_STATIC, kLabel, "Latitude Coordinates", {14, 109, 82, 8}},
    {kLatMinDeg, kEdit, "", {98, 107, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {124, 109, 7, 8}},
    {kLatMinMin, kEdit, "", {131, 107, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {151, 109, 8, 8}},
    {kLatMinSec, kEdit, "", {159, 107, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {197, 109, 7, 8}},
    {IDC_STATIC, kLabel, "Longitude Coordinates", {14, 125, 82, 8}},
    {kLonMinDeg, kEdit, "", {98, 123, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {124, 125, 7, 8}},
    {kLonMinMin, kEdit, "", {131, 123, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {151, 125, 8, 8}},
    {kLonMinSec, kEdit, "", {159, 123, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {197, 125, 7, 8}},
    {kXMinLabel, kLabel, "X Coordinates", {14, 141, 82, 8}},
    {kXMin, kEdit, "", {98, 139, 97, 12}, kReadOnly},
    {kYMinLabel, kLabel, "Y Coordinates", {14, 157, 82, 8}},
    {kYMin, kEdit, "", {98, 155, 97, 12}, kReadOnly},

    {IDC_STATIC, kGroupBox, "Opposite (Upper Right Corner)", {215, 94, 202, 80}},
    {IDC_STATIC, kLabel, "Latitude Coordinates", {222, 109, 82, 8}},
    {kLatMaxDeg, kEdit, "", {306, 107, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {332, 109, 7, 8}},
    {kLatMaxMin, kEdit, "", {339, 107, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {359, 109, 8, 8}},
    {kLatMaxSec, kEdit, "", {367, 107, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {405, 109, 7, 8}},
    {IDC_STATIC, kLabel, "Longitude Coordinates", {222, 125, 82, 8}},
    {kLonMaxDeg, kEdit, "", {306, 123, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {332, 125, 7, 8}},
    {kLonMaxMin, kEdit, "", {339, 123, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {359, 125, 8, 8}},
    {kLonMaxSec, kEdit, "", {367, 123, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {405, 125, 7, 8}},
    {kXMaxLabel, kLabel, "X Coordinates", {222, 141, 82, 8}},
    {kXMax, kEdit, "", {306, 139, 97, 12}, kReadOnly},
    {kYMaxLabel, kLabel, "Y Coordinates", {222, 157, 82, 8}},
    {kYMax, kEdit, "", {306, 155, 97, 12}, kReadOnly},

    {IDC_STATIC, kLabel, "Projection", {7, 183, 42, 8}},
    {kProjection, kDropList, "", {53, 181, 156, 12}},
    {kSizingOptions, kPushButton, "Sizing Options...", {215, 180, 76, 14}},
    {kSnapBounds, kPushButton, "Snap Bounds", {297, 180, 60, 14}},

    {IDOK, kDefaultButton, "OK", {313, 201, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {367, 201, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Quick Offshore Map Builder", 424, 222, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace quick

namespace boundary {

using namespace quick_bld;

// What a boundary has no use for stands, hidden, where the dialog has room.
constexpr ControlRow kRows[] = {
    {kMapBasics, kGroupBox, "Map Basics", {7, 7, 410, 46}, kHidden},
    {kMapNameLabel, kLabel, "Map Name", {14, 22, 40, 8}, kHidden},
    {kMapName, kEdit, "", {58, 20, 351, 12}, kHidden},
    {kXYBounded, kRadio, "X/Y Bounded", {58, 37, 60, 10}, kFirstOfGroup | kHidden},
    {kLatLonBounded, kRadio, "Lat/Lon Bounded", {122, 37, 76, 10}, kHidden},
    {kFeet, kRadio, "Feet", {266, 37, 36, 10}, kFirstOfGroup | kHidden},
    {kMeters, kRadio, "Meters", {306, 37, 44, 10}, kHidden},

    {IDC_STATIC, kGroupBox, "Width by Height Boundary", {7, 7, 202, 31}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Width", {14, 22, 26, 8}},
    {kWidth, kDropDown, "", {42, 20, 52, 12}},
    {IDC_STATIC, kLabel, "Height", {110, 22, 28, 8}},
    {kHeight, kDropDown, "", {140, 20, 52, 12}},
    {IDC_STATIC, kGroupBox, "Percentage Boundary", {215, 7, 202, 31}},
    {IDC_STATIC, kLabel, "Percent", {222, 22, 36, 8}},
    {kPercent, kDropDown, "", {260, 20, 52, 12}},

    {IDC_STATIC, kGroupBox, "Origin (Lower Left Corner)", {7, 43, 202, 48}},
    {IDC_STATIC, kLabel, "Latitude Coordinates", {14, 58, 82, 8}},
    {kLatMinDeg, kEdit, "", {98, 56, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {124, 58, 7, 8}},
    {kLatMinMin, kEdit, "", {131, 56, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {151, 58, 8, 8}},
    {kLatMinSec, kEdit, "", {159, 56, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {197, 58, 7, 8}},
    {IDC_STATIC, kLabel, "Longitude Coordinates", {14, 74, 82, 8}},
    {kLonMinDeg, kEdit, "", {98, 72, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {124, 74, 7, 8}},
    {kLonMinMin, kEdit, "", {131, 72, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {151, 74, 8, 8}},
    {kLonMinSec, kEdit, "", {159, 72, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {197, 74, 7, 8}},
    {kXMinLabel, kLabel, "X Coordinates", {14, 74, 82, 8}, kHidden},
    {kXMin, kEdit, "", {98, 72, 97, 12}, kReadOnly | kHidden},
    {kYMinLabel, kLabel, "Y Coordinates", {14, 74, 82, 8}, kHidden},
    {kYMin, kEdit, "", {98, 72, 97, 12}, kReadOnly | kHidden},

    {IDC_STATIC, kGroupBox, "Opposite (Upper Right Corner)", {215, 43, 202, 48}},
    {IDC_STATIC, kLabel, "Latitude Coordinates", {222, 58, 82, 8}},
    {kLatMaxDeg, kEdit, "", {306, 56, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {332, 58, 7, 8}},
    {kLatMaxMin, kEdit, "", {339, 56, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {359, 58, 8, 8}},
    {kLatMaxSec, kEdit, "", {367, 56, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {405, 58, 7, 8}},
    {IDC_STATIC, kLabel, "Longitude Coordinates", {222, 74, 82, 8}},
    {kLonMaxDeg, kEdit, "", {306, 72, 24, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "D", {332, 74, 7, 8}},
    {kLonMaxMin, kEdit, "", {339, 72, 18, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "M", {359, 74, 8, 8}},
    {kLonMaxSec, kEdit, "", {367, 72, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "S", {405, 74, 7, 8}},
    {kXMaxLabel, kLabel, "X Coordinates", {222, 74, 82, 8}, kHidden},
    {kXMax, kEdit, "", {306, 72, 97, 12}, kReadOnly | kHidden},
    {kYMaxLabel, kLabel, "Y Coordinates", {222, 74, 82, 8}, kHidden},
    {kYMax, kEdit, "", {306, 72, 97, 12}, kReadOnly | kHidden},

    {IDC_STATIC, kLabel, "Projection", {7, 100, 42, 8}},
    {kProjection, kDropList, "", {53, 98, 156, 12}},
    {kSizingOptions, kPushButton, "Sizing Options...", {215, 97, 76, 14}, kHidden},
    {kSnapBounds, kPushButton, "Snap Bounds", {297, 97, 60, 14}, kHidden},

    {IDOK, kDefaultButton, "OK", {313, 97, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {367, 97, 50, 14}},
};

constexpr DialogTemplate kDialog{kBoundaryTemplate, "Export Pick Boundary Dialog", 424, 118, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace boundary

namespace range {

using namespace snap_range;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Snap Bounds", {7, 9, 54, 8}},
    {kRange, kDropDown, "", {65, 7, 86, 12}},
    {IDOK, kDefaultButton, "OK", {47, 30, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {101, 30, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Map Bounds", 158, 51, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace range

}  // namespace

}  // namespace kv
