#include "mapbuild/builders/map_rpt_proj_chooser_ids.h"
#include "window/templates/resources.h"

namespace kv::rpt_proj {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Please choose the projection for map report", {7, 7, 180, 8}},
    {kMapProjection, kRadio, "Map Projection", {14, 22, 80, 10}, kFirstOfGroup},
    {kBaseProjection, kRadio, "Base Projection", {14, 36, 80, 10}},
    {IDOK, kDefaultButton, "OK", {137, 53, 50, 14}, kFirstOfGroup},
};

constexpr DialogTemplate kDialog{kTemplate, "Choose Projection", 194, 74, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::rpt_proj
