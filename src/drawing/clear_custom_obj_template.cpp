#include "drawing/clear_custom_obj_ids.h"
#include "window/templates/resources.h"

namespace kv::clear_custom_obj {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Please select the object(s) you would like to clear:", {7, 7, 186, 8}},
    {IDC_STATIC, kGroupBox, "Customized Graphics", {7, 20, 186, 56}},
    {kTexts, kCheckBox, "Texts", {14, 33, 172, 10}},
    {kPolygons, kCheckBox, "Lines and Polygons", {14, 47, 172, 10}},
    {kColorFills, kCheckBox, "Color-filled Lease blocks", {14, 61, 172, 10}},
    {IDC_STATIC, kLabel, "Please be aware that this cannot be undone!", {7, 82, 186, 8}},
    {IDOK, kDefaultButton, "OK", {89, 97, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {143, 97, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Clear Customized Graphics", 200, 118, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::clear_custom_obj
