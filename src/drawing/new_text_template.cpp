#include "drawing/new_text_ids.h"
#include "window/templates/resources.h"

namespace kv::new_text {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Text", {7, 9, 46, 8}},
    {kContent, kEdit, "", {55, 7, 189, 12}},
    {IDC_STATIC, kLabel, "Height (In.)", {7, 28, 46, 8}},
    {kHeight, kEdit, "", {55, 26, 48, 12}},
    {kHeightSpin, kSpin, "", {103, 26, 10, 12}},
    {IDC_STATIC, kLabel, "Weight", {132, 28, 40, 8}},
    {kWeight, kOwnerDrawButton, "", {174, 25, 70, 14}},
    {IDC_STATIC, kLabel, "Angle", {7, 47, 46, 8}},
    {kAngle, kEdit, "", {55, 45, 48, 12}},
    {kAngleSpin, kSpin, "", {103, 45, 10, 12}},
    {IDC_STATIC, kLabel, "Color", {132, 47, 40, 8}},
    {kColor, kOwnerDrawButton, "", {174, 44, 70, 14}},

    {IDC_STATIC, kGroupBox, "Text Justification:", {7, 63, 237, 31}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Vertical", {14, 79, 39, 8}},
    {kVertical, kDropList, "", {55, 77, 58, 12}},
    {IDC_STATIC, kLabel, "Horizontal", {132, 79, 40, 8}},
    {kHorizontal, kDropList, "", {174, 77, 63, 12}},

    {IDOK, kDefaultButton, "OK", {140, 101, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {194, 101, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Text Property", 251, 122, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::new_text
