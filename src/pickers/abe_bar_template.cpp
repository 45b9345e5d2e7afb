#include "pickers/abe_bar_ids.h"
#include "window/resources.h"

namespace kv::abe_bar {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Area", {7, 5, 18, 8}},
    {kArea, kDropDown, "", {27, 3, 110, 12}, kSortedCombo},
    {IDC_STATIC, kLabel, "Blk/Ext", {145, 5, 26, 8}},
    {kBlock, kDropDown, "", {173, 3, 58, 12}},
    {IDC_STATIC, kLabel, "Layer", {239, 5, 20, 8}},
    {kLayer, kDropList, "", {261, 3, 66, 12}},
    {kMap, kRadio, "Map", {333, 4, 27, 10}, kFirstOfGroup},
    {kReport, kRadio, "Report", {360, 4, 34, 10}},
    {kRun, kPushButton, "Run", {397, 2, 28, 15}, kFirstOfGroup | kWithIcon},
};

constexpr DialogTemplate kBar{kTemplate, "", 428, 19, kRows};

const RegisterTemplate kRegistered(kBar);

}  // namespace

}  // namespace kv::abe_bar
