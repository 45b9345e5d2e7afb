#include "mapbuild/db_bounds_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::db_bounds_dlg {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kFrom, kEdit, "", {7, 7, 70, 12}, {}, "From"},
    {IDC_STATIC, kLabel, "To", {81, 9, 10, 8}},
    {kTo, kEdit, "", {95, 7, 70, 12}},
    {kMeters, kRadio, "Meters", {7, 24, 40, 10}, kFirstOfGroup},
    {kFeet, kRadio, "Feet", {51, 24, 34, 10}},
    {IDOK, kDefaultButton, "OK", {61, 41, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {115, 41, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Dialog", 172, 62, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::db_bounds_dlg
