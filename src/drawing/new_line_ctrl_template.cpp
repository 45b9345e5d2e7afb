#include "drawing/new_line_ctrl_ids.h"
#include "window/templates/resources.h"

namespace kv::new_line_ctrl {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Line Attribute", {7, 7, 106, 72}},
    {IDC_STATIC, kLabel, "Weight:", {14, 23, 32, 8}},
    {kWidth, kOwnerDrawButton, "", {48, 20, 58, 14}},
    {IDC_STATIC, kLabel, "Type:", {14, 42, 32, 8}},
    {kType, kOwnerDrawButton, "", {48, 39, 58, 14}},
    {IDC_STATIC, kLabel, "Color:", {14, 61, 32, 8}},
    {kColor, kOwnerDrawButton, "", {48, 58, 58, 14}},

    {IDC_STATIC, kGroupBox, "Vertices Attribute", {120, 7, 106, 72}, kFirstOfGroup},
    {kClose, kCheckBox, "Close Vertices", {127, 22, 92, 10}},
    {kFill, kCheckBox, "Fill", {127, 41, 40, 10}, kDisabled},
    {kFillColor, kOwnerDrawButton, "", {171, 39, 48, 14}},
    {kVertices, kPushButton, "New Vertices...", {127, 58, 92, 14}},

    {kRubberBand, kCheckBox, "Rubber Band", {7, 88, 64, 10}, kHidden},
    {IDOK, kDefaultButton, "OK", {122, 86, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {176, 86, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Polyline Dialog", 233, 107, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::new_line_ctrl
