#include "drawing/vertice_builder_ids.h"
#include "window/templates/resources.h"

namespace kv::vertice_builder {

namespace {

using enum ControlKind;

/// X and Y, and latitude and longitude, take turns in one place.
constexpr RowStyle kXy = Alternate(1);
constexpr RowStyle kLatLon = Alternate(1) | kHidden;

constexpr ControlRow kTable[] = {
    {IDC_STATIC, kLabel, "Mode to Edit, Load File, or Save File", {7, 8, 132, 8}},
    {kXyMode, kRadio, "X-Y ", {146, 7, 40, 10}, kFirstOfGroup},
    {kLatLonMode, kRadio, "Lat / Lon", {190, 7, 50, 10}},
    {kFormat, kLabel, "Format for Lat / Lon value", {7, 22, 132, 8}, kFirstOfGroup | kHidden},
    {kDecimal, kRadio, "Deg.Deg", {146, 21, 42, 10}, kFirstOfGroup | kHidden},
    {kDms, kRadio, "DMS", {190, 21, 50, 10}, kHidden},

    {IDC_STATIC, kGroupBox, "Vertice", {7, 36, 240, 167}, kFirstOfGroup},
    {kXLabel, kLabel, "X", {14, 60, 18, 8}, kXy},
    {kX, kEdit, "", {34, 58, 120, 12}, kXy},
    {kYLabel, kLabel, "Y", {14, 76, 18, 8}, kXy},
    {kY, kEdit, "", {34, 74, 120, 12}, kXy},
    {kDegreeLabel, kLabel, "Degree", {34, 48, 68, 8}, kLatLon},
    {kMinuteLabel, kLabel, "Minute", {106, 48, 38, 8}, kLatLon},
    {kSecondLabel, kLabel, "Second", {148, 48, 60, 8}, kLatLon},
    {kLatLabel, kLabel, "Lat", {14, 60, 18, 8}, kLatLon},
    {kLatDegree, kEdit, "", {34, 58, 68, 12}, kLatLon},
    {kLatMinute, kEdit, "", {106, 58, 38, 12}, kLatLon},
    {kLatSecond, kEdit, "", {148, 58, 60, 12}, kLatLon},
    {kLonLabel, kLabel, "Lon", {14, 76, 18, 8}, kLatLon},
    {kLonDegree, kEdit, "", {34, 74, 68, 12}, kLatLon},
    {kLonMinute, kEdit, "", {106, 74, 38, 12}, kLatLon},
    {kLonSecond, kEdit, "", {148, 74, 60, 12}, kLatLon},

    {kRows, kListBox, "", {14, 92, 168, 104}},
    {kAdd, kPushButton, "Add", {190, 92, 50, 14}},
    {kInsert, kPushButton, "Insert", {190, 110, 50, 14}},
    {kEditRow, kPushButton, "Edit", {190, 128, 50, 14}},
    {kDelete, kPushButton, "Delete", {190, 146, 50, 14}},
    {kMoveUp, kPushButton, "Move Up", {190, 164, 50, 14}},
    {kMoveDown, kPushButton, "Move Down", {190, 182, 50, 14}},

    {kLoad, kPushButton, "Load File...", {254, 39, 54, 14}, kFirstOfGroup},
    {kSave, kPushButton, "Save File...", {254, 57, 54, 14}},
    {kAccept, kPushButton, "Accept", {254, 171, 54, 14}},
    {IDCANCEL, kPushButton, "Exit", {254, 189, 54, 14}},
    {IDOK, kDefaultButton, "OK", {254, 150, 54, 14}, kHidden},
};

constexpr DialogTemplate kDialog{kTemplate, "Vertices Builder", 315, 210, kTable};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::vertice_builder
