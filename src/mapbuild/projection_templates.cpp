// The projection selection dialog, the UTM zone dialog, and the dialog with a projection alone.

#include "mapbuild/proj_sel_ids.h"
#include "window/templates/resources.h"

namespace kv {

namespace {

using enum ControlKind;

namespace selection {

using namespace proj_sel;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Projection Type", {7, 7, 246, 68}},
    {kStateLambert, kRadio, "State Standard Lambert", {14, 20, 112, 10}, kFirstOfGroup},
    {kStateTransverseMercator, kRadio, "State Transverse Mercator", {14, 33, 112, 10}},
    {kMiscLambert, kRadio, "Miscellaneous Lambert", {14, 46, 112, 10}},
    {kMiscTransverseMercator, kRadio, "Misc Transverse Mercator", {14, 59, 112, 10}},
    {kUtmSpheroids, kRadio, "UTM - Various Spheroids", {132, 20, 114, 10}},
    {kMiscOther, kRadio, "Miscellaneous Other", {132, 33, 114, 10}},
    {kStatePlane, kRadio, "State Plane", {132, 46, 114, 10}},
    {kStraightMercator, kRadio, "Straight Mercator", {132, 59, 114, 10}},
    {kMiscCassini, kRadio, "Miscellaneous Cassini", {132, 59, 114, 10}, kHidden},
    {kMiscBonne, kRadio, "Miscellaneous Bonne", {132, 59, 114, 10}, kHidden},
    {kList,
     kListBox,
     "",
     {7, 82, 246, 118},
     kFirstOfGroup,
     "Pick a type above to list its projections"},
    {IDOK, kDefaultButton, "OK", {149, 207, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {203, 207, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Projection Selection Dialog", 260, 228, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace selection

namespace zone {

using namespace utm_zone;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Zone Code", {7, 9, 44, 8}},
    {kZone, kEdit, "", {55, 7, 40, 12}},
    {kStraightMercatorGroup, kGroupBox, "Straight Mercator", {7, 26, 174, 63}},
    {kRectifyingLabel, kLabel, "Rectifying Lat-Lon", {14, 39, 84, 8}},
    {kCenterOfMap, kRadio, "Center of map", {14, 52, 72, 10}, kFirstOfGroup},
    {kUserSpecified, kRadio, "User-specified", {92, 52, 72, 10}},
    {IDC_STATIC, kLabel, "Lat", {14, 72, 18, 8}},
    {kLat, kEdit, "", {36, 70, 50, 12}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Lon", {96, 72, 18, 8}},
    {kLon, kEdit, "", {118, 70, 50, 12}},
    {IDOK, kDefaultButton, "OK", {77, 96, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {131, 96, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "UTM Zone Code", 188, 117, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace zone

namespace alone {

using namespace projection_dialog;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Projection", {7, 9, 40, 8}},
    {kProjection, kDropDown, "", {51, 7, 150, 12}},
    {IDOK, kDefaultButton, "OK", {97, 30, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {151, 30, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Projection", 208, 51, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace alone

}  // namespace

}  // namespace kv
