#include "print/sizing_ids.h"
#include "window/templates/resources.h"

namespace kv::sizing {

namespace {

using enum ControlKind;

// The dialog is cut in the middle between the bottom of the orientation, at 103, and the top of the
// paper's width, at 129: on the upper edge of the plotter's frame.
constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Scale", {7, 7, 224, 30}},
    {kScaleMode, kCheckBox, "", {14, 20, 12, 10}, kHidden},
    {kScaleHead, kLabel, "1 Inch =", {14, 21, 30, 8}},
    {kScale, kDropDown, "", {48, 19, 72, 12}},
    {kScaleUnit, kLabel, "Feet", {124, 21, 30, 8}},

    {IDC_STATIC, kGroupBox, "Map Settings", {7, 44, 224, 30}},
    {kSettingsMode, kCheckBox, "", {14, 57, 12, 10}, kHidden},
    {IDC_STATIC, kLabel, "Width", {14, 58, 30, 8}},
    {kWidth, kEdit, "", {48, 56, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {96, 58, 22, 8}},
    {IDC_STATIC, kLabel, "Height", {126, 58, 22, 8}},
    {kHeight, kEdit, "", {152, 56, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {200, 58, 22, 8}},

    {kOrientation, kGroupBox, "Orientation", {7, 81, 224, 28}, kFirstOfGroup},
    {kLandscape, kRadio, "Landscape", {48, 93, 52, 10}, kFirstOfGroup},
    {kPortrait, kRadio, "Portrait", {104, 93, 46, 10}},

    {IDC_STATIC, kGroupBox, "Plotter", {7, 116, 224, 31}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Paper Width", {14, 131, 44, 8}},
    {kPaperWidth, kEdit, "", {60, 129, 36, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {100, 131, 22, 8}},

    {IDC_STATIC, kGroupBox, "Text", {7, 154, 224, 28}, kFirstOfGroup},
    {kStrokeFont, kRadio, "Stroke Font", {14, 167, 54, 10}, kFirstOfGroup},
    {kTrueTypeFont, kRadio, "True Type Font", {72, 167, 66, 10}},

    {IDC_STATIC, kGroupBox, "Color Option", {7, 189, 224, 28}, kFirstOfGroup},
    {kColor, kRadio, "Color", {14, 202, 34, 10}, kFirstOfGroup},
    {kBlackAndWhite, kRadio, "Black && White", {52, 202, 62, 10}},
    {kGray, kCheckBox, "Display Dark Color in Gray", {120, 202, 104, 10}, kFirstOfGroup},

    {IDOK, kDefaultButton, "OK", {238, 185, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {238, 203, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Map Sizing Dialog", 295, 224, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::sizing
