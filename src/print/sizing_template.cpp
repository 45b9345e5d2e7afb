#include "print/sizing_ids.h"
#include "window/templates/resources.h"

namespace kv::sizing {

namespace {

using enum ControlKind;

// The dialog is cut in the middle between the bottom of the orientation, at 99, and the top of the
// paper's width, at 125: on the upper edge of the plotter's frame.
constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Scale", {7, 7, 224, 30}},
    {kScaleMode, kCheckBox, "", {14, 20, 12, 10}, kHidden},
    {kScaleHead, kLabel, "1 Inch =", {14, 21, 30, 8}},
    {kScale, kDropDown, "", {48, 19, 72, 12}},
    {kScaleUnit, kLabel, "Feet", {124, 21, 30, 8}},

    {IDC_STATIC, kGroupBox, "Map Settings", {7, 42, 224, 30}},
    {kSettingsMode, kCheckBox, "", {14, 55, 12, 10}, kHidden},
    {IDC_STATIC, kLabel, "Width", {14, 56, 30, 8}},
    {kWidth, kEdit, "", {48, 54, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {96, 56, 22, 8}},
    {IDC_STATIC, kLabel, "Height", {126, 56, 22, 8}},
    {kHeight, kEdit, "", {150, 54, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {198, 56, 22, 8}},

    {kOrientation, kGroupBox, "Orientation", {7, 77, 224, 28}, kFirstOfGroup},
    {kLandscape, kRadio, "Landscape", {48, 89, 52, 10}, kFirstOfGroup},
    {kPortrait, kRadio, "Portrait", {104, 89, 46, 10}},

    {IDC_STATIC, kGroupBox, "Plotter", {7, 112, 224, 31}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Paper Width", {14, 127, 44, 8}},
    {kPaperWidth, kEdit, "", {60, 125, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {100, 127, 22, 8}},

    {IDC_STATIC, kGroupBox, "Text", {7, 150, 224, 28}, kFirstOfGroup},
    {kStrokeFont, kRadio, "Stroke Font", {14, 163, 54, 10}, kFirstOfGroup},
    {kTrueTypeFont, kRadio, "True Type Font", {72, 163, 66, 10}},

    {IDC_STATIC, kGroupBox, "Color Option", {7, 185, 224, 28}, kFirstOfGroup},
    {kColor, kRadio, "Color", {14, 198, 34, 10}, kFirstOfGroup},
    {kBlackAndWhite, kRadio, "Black && White", {52, 198, 62, 10}},
    {kGray, kCheckBox, "Display Dark Color in Gray", {120, 198, 104, 10}, kFirstOfGroup},

    {IDOK, kDefaultButton, "OK", {238, 181, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {238, 199, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Map Sizing Dialog", 295, 220, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::sizing
