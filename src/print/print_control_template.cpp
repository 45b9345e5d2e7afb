#include "print/print_control_ids.h"
#include "window/templates/resources.h"

namespace kv::print_control {

namespace {

using enum ControlKind;

// The dialog is cut in the middle between the bottom of the map's orientation, at 62, and the top
// of the page's size, at 88: on the upper edge of the printer's frame.
constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Map", {7, 7, 224, 61}},
    {kMapScaleHead, kLabel, "1 Inch =", {14, 22, 30, 8}},
    {kMapScale, kDropDown, "", {48, 20, 72, 12}},
    {kMapScaleUnit, kLabel, "Feet", {124, 22, 30, 8}},
    {IDC_STATIC, kLabel, "Width", {14, 38, 30, 8}},
    {kMapWidth, kEdit, "", {48, 36, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {96, 38, 22, 8}},
    {IDC_STATIC, kLabel, "Height", {126, 38, 22, 8}},
    {kMapHeight, kEdit, "", {152, 36, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {200, 38, 22, 8}},
    {kMapLandscape, kRadio, "Landscape", {48, 52, 52, 10}, kFirstOfGroup | kHidden},
    {kMapPortrait, kRadio, "Portrait", {104, 52, 46, 10}, kHidden},

    {IDC_STATIC, kGroupBox, "Printer", {7, 75, 224, 93}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Width", {14, 90, 30, 8}},
    {kPageWidth, kEdit, "", {48, 88, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {96, 90, 22, 8}},
    {IDC_STATIC, kLabel, "Height", {126, 90, 22, 8}},
    {kPageHeight, kEdit, "", {152, 88, 44, 12}, kReadOnly},
    {IDC_STATIC, kLabel, "Inches", {200, 90, 22, 8}},
    {kPrinterName, kLabel, "", {14, 107, 138, 8}, {SS_NOPREFIX, 0}},
    {kChangePrinter, kPushButton, "Change Printer ...", {156, 104, 68, 14}},
    {IDC_STATIC, kLabel, "Size", {14, 124, 30, 8}},
    {kForm, kEdit, "", {48, 122, 104, 12}, kReadOnly},
    {kPrintScaleHead, kLabel, "1 Inch =", {14, 140, 30, 8}},
    {kPrintScale, kDropDown, "", {48, 138, 72, 12}},
    {kPrintScaleUnit, kLabel, "Feet", {124, 140, 30, 8}},
    {kPrinterLandscape, kRadio, "Landscape", {48, 154, 52, 10}, kFirstOfGroup},
    {kPrinterPortrait, kRadio, "Portrait", {104, 154, 46, 10}},

    {IDC_STATIC, kGroupBox, "Text", {7, 175, 224, 30}, kFirstOfGroup},
    {kStrokeFont, kRadio, "Stroke Font", {14, 188, 54, 10}, kFirstOfGroup},
    {kTrueTypeFont, kRadio, "True Type Font", {70, 188, 64, 10}},
    {IDC_STATIC, kLabel, "Minimal Font Size", {138, 189, 58, 8}, kFirstOfGroup},
    {kMinimalFontSize, kEdit, "", {200, 187, 24, 12}, kDigitsOnly},

    {IDC_STATIC, kGroupBox, "Color Option", {7, 212, 224, 28}, kFirstOfGroup},
    {kColor, kRadio, "Color", {14, 225, 34, 10}, kFirstOfGroup},
    {kBlackAndWhite, kRadio, "Black && White", {52, 225, 64, 10}},
    {kGrayscale, kCheckBox, "Print in Grayscale", {138, 225, 86, 10}, kFirstOfGroup},

    {IDOK, kDefaultButton, "OK", {238, 208, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {238, 226, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Print / Preview Dialog", 295, 247, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::print_control
