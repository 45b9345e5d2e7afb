#include "drawing/swatches/color_fill_ctrl_ids.h"
#include "window/templates/resources.h"

namespace kv::color_fill_ctrl {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Color:", {7, 10, 30, 8}},
    {kColor, kOwnerDrawButton, "", {39, 7, 40, 14}},
    {IDOK, kDefaultButton, "OK", {29, 30, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {83, 30, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Color Fill Options", 140, 51, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::color_fill_ctrl
