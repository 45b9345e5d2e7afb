#include "pickers/abe_bar_ids.h"
#include "window/templates/resources.h"

namespace kv::abe_bar {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Area", {7, 5, 18, 8}},
    {kArea, kDropDown, "", {27, 3, 104, 12}, kSortedCombo},
    {IDC_STATIC, kLabel, "Blk/Ext", {139, 5, 26, 8}},
    {kBlock, kDropDown, "", {167, 3, 54, 12}},
    {IDC_STATIC, kLabel, "Layer", {229, 5, 20, 8}},
    {kLayer, kDropList, "", {251, 3, 64, 12}},
    {kMap, kRadio, "Map", {321, 4, 27, 10}, kFirstOfGroup},
    {kReport, kRadio, "Report", {350, 4, 34, 10}},
    {kRun, kPushButton, "Run", {388, 2, 37, 15}, kFirstOfGroup},
};

constexpr DialogTemplate kBar{kTemplate, "", 428, 19, kRows};

const RegisterTemplate kRegistered(kBar);

}  // namespace

}  // namespace kv::abe_bar
