#include "records/well_search_ids.h"
#include "window/templates/resources.h"

namespace kv::well_search {

namespace {

using enum ControlKind;

// The area comes first in the tab order, since a search by area begins there.
constexpr ControlRow kRows[] = {
    {kAreaLabel, kLabel, "Areaname/Block", {7, 9, 62, 8}},
    {kArea, kDropDown, "", {7, 20, 150, 12}, kSortedCombo},
    {kBlock, kDropDown, "", {165, 20, 93, 12}, {}, "Block"},
    {kWellLabel, kLabel, "Well Number", {7, 42, 62, 8}},
    {kWell, kEdit, "", {7, 53, 150, 12}},
    {kApiLabel, kLabel, "API Number", {7, 75, 62, 8}},
    {kApi, kDropDown, "", {7, 86, 150, 12}},
    {kByApi, kRadio, "By API Number", {7, 106, 140, 10}, kFirstOfGroup},
    {kByArea, kRadio, "By Area/Block/Well Number", {7, 119, 140, 10}},
    {kAreaList, kPushButton, "List...", {165, 52, 44, 14}, kFirstOfGroup | kHidden},
    {kBlockList, kPushButton, "List...", {214, 52, 44, 14}, kHidden},
    {kFirstCheck, kCheckBox, "", {165, 88, 12, 10}, kHidden},
    {kFirstCheck + 1, kCheckBox, "", {181, 88, 12, 10}, kHidden},
    {kFirstCheck + 2, kCheckBox, "", {197, 88, 12, 10}, kHidden},
    {kFirstCheck + 3, kCheckBox, "", {213, 88, 12, 10}, kHidden},
    {IDOK, kDefaultButton, "OK", {154, 134, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {208, 134, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Wells Search", 265, 155, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::well_search
