#include "mapbuild/builders/custom_ids.h"
#include "window/templates/resources.h"

namespace kv::custom_bld {

namespace {

using enum ControlKind;

// X/Y and angles of a corner take turns in one place.
constexpr RowStyle kOriginTurn = Alternate(1);
constexpr RowStyle kHiddenOriginTurn = kOriginTurn | kHidden;
constexpr RowStyle kFarTurn = Alternate(2);
constexpr RowStyle kHiddenFarTurn = kFarTurn | kHidden;
// What only a width and height has.
constexpr RowStyle kOfSize = Alternate(3) | kHidden;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Map Name", {7, 9, 40, 8}},
    {kMapName, kEdit, "", {51, 7, 394, 12}},

    {IDC_STATIC, kGroupBox, "Map Units", {7, 25, 202, 28}, kFirstOfGroup},
    {kFeet, kRadio, "Feet", {14, 38, 60, 10}, kFirstOfGroup},
    {kMeters, kRadio, "Meters", {108, 38, 60, 10}},
    {IDC_STATIC, kGroupBox, "Map Bounds Type", {215, 25, 230, 28}, kFirstOfGroup},
    {kXYBounded, kRadio, "X/Y Bounded", {222, 38, 76, 10}, kFirstOfGroup},
    {kLatLonBounded, kRadio, "Lat/Lon Bounded", {340, 38, 84, 10}},

    {IDC_STATIC, kGroupBox, "Origin Definition", {7, 58, 202, 28}, kFirstOfGroup},
    {kOriginXY, kRadio, "Origin as X/Y", {14, 71, 76, 10}, kFirstOfGroup},
    {kOriginLatLon, kRadio, "Origin as Lat/Lon", {108, 71, 90, 10}},
    {IDC_STATIC, kGroupBox, "Width and Height", {215, 58, 230, 28}, kFirstOfGroup},
    {kWidthAndHeight, kRadio, "Width and Height", {222, 71, 90, 10}, kFirstOfGroup},
    {kUpperRight, kRadio, "Upper Right Corner", {340, 71, 98, 10}},

    {IDC_STATIC, kGroupBox, "Origin (Lower Left Corner)", {7, 91, 202, 64}, kFirstOfGroup},
    {kLatLabel, kLabel, "Latitude Coordinates", {14, 106, 82, 8}, kHiddenOriginTurn},
    {kLat, kEdit, "", {98, 104, 24, 12}, kHiddenOriginTurn},
    {kLatDegLabel, kLabel, "D", {124, 106, 7, 8}, kHiddenOriginTurn},
    {kLatMin, kEdit, "", {131, 104, 18, 12}, kHiddenOriginTurn},
    {kLatMinLabel, kLabel, "M", {151, 106, 8, 8}, kHiddenOriginTurn},
    {kLatSec, kEdit, "", {159, 104, 36, 12}, kHiddenOriginTurn},
    {kLatSecLabel, kLabel, "S", {197, 106, 7, 8}, kHiddenOriginTurn},
    {kLonLabel, kLabel, "Longitude Coordinates", {14, 122, 82, 8}, kHiddenOriginTurn},
    {kLon, kEdit, "", {98, 120, 24, 12}, kHiddenOriginTurn},
    {kLonDegLabel, kLabel, "D", {124, 122, 7, 8}, kHiddenOriginTurn},
    {kLonMin, kEdit, "", {131, 120, 18, 12}, kHiddenOriginTurn},
    {kLonMinLabel, kLabel, "M", {151, 122, 8, 8}, kHiddenOriginTurn},
    {kLonSec, kEdit, "", {159, 120, 36, 12}, kHiddenOriginTurn},
    {kLonSecLabel, kLabel, "S", {197, 122, 7, 8}, kHiddenOriginTurn},
    {kXLabel, kLabel, "X Coordinates", {14, 106, 82, 8}, kOriginTurn},
    {kX, kEdit, "", {98, 104, 97, 12}, kOriginTurn},
    {kYLabel, kLabel, "Y Coordinates", {14, 122, 82, 8}, kOriginTurn},
    {kY, kEdit, "", {98, 120, 97, 12}, kOriginTurn},

    {kFarGroup, kGroupBox, "Opposite (Upper Right Corner)", {215, 91, 230, 64}, kFirstOfGroup},
    {kFarLatPlus, kLabel, "Origin +", {302, 106, 31, 8}, kOfSize},
    {kFarLonPlus, kLabel, "Origin +", {302, 122, 31, 8}, kOfSize},
    {kFarLatLabel, kLabel, "Latitude Coordinates", {222, 106, 79, 8}, kHiddenFarTurn},
    {kFarLat, kEdit, "", {334, 104, 24, 12}, kHiddenFarTurn},
    {kFarLatDegLabel, kLabel, "D", {360, 106, 7, 8}, kHiddenFarTurn},
    {kFarLatMin, kEdit, "", {367, 104, 18, 12}, kHiddenFarTurn},
    {kFarLatMinLabel, kLabel, "M", {387, 106, 8, 8}, kHiddenFarTurn},
    {kFarLatSec, kEdit, "", {395, 104, 36, 12}, kHiddenFarTurn},
    {kFarLatSecLabel, kLabel, "S", {433, 106, 7, 8}, kHiddenFarTurn},
    {kFarLonLabel, kLabel, "Longitude Coordinates", {222, 122, 79, 8}, kHiddenFarTurn},
    {kFarLon, kEdit, "", {334, 120, 24, 12}, kHiddenFarTurn},
    {kFarLonDegLabel, kLabel, "D", {360, 122, 7, 8}, kHiddenFarTurn},
    {kFarLonMin, kEdit, "", {367, 120, 18, 12}, kHiddenFarTurn},
    {kFarLonMinLabel, kLabel, "M", {387, 122, 8, 8}, kHiddenFarTurn},
    {kFarLonSec, kEdit, "", {395, 120, 36, 12}, kHiddenFarTurn},
    {kFarLonSecLabel, kLabel, "S", {433, 122, 7, 8}, kHiddenFarTurn},
    {kFarXLabel, kLabel, "X Coordinates", {222, 106, 79, 8}, kFarTurn},
    {kFarX, kEdit, "", {334, 104, 97, 12}, kFarTurn},
    {kFarYLabel, kLabel, "Y Coordinates", {222, 122, 79, 8}, kFarTurn},
    {kFarY, kEdit, "", {334, 120, 97, 12}, kFarTurn},
    {kSizeLabel, kLabel, "Predefined sizes", {222, 139, 79, 8}, kOfSize},
    {kSize, kDropList, "", {334, 137, 97, 12}, kOfSize},

    {IDC_STATIC, kLabel, "Primary Projection", {7, 164, 70, 8}, kFirstOfGroup},
    {kProjection, kDropDown, "", {81, 162, 128, 12}},
    {IDC_STATIC, kLabel, "Secondary Projection", {7, 164, 70, 8}, kHidden},
    {kSecondaryProjection, kDropDown, "", {81, 162, 128, 12}, kHidden},
    {kSizingOptions, kPushButton, "Sizing Options...", {215, 161, 76, 14}},

    {IDOK, kDefaultButton, "OK", {341, 182, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {395, 182, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Custom Map Builder Dialog", 452, 203, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::custom_bld
