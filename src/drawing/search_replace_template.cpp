#include "drawing/search_replace_ids.h"
#include "window/templates/resources.h"

namespace kv::search_replace {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Layer", {7, 9, 48, 8}},
    {kLayer, kDropList, "", {59, 7, 134, 12}, kSortedCombo},
    {IDC_STATIC, kLabel, "Search for", {7, 27, 48, 8}},
    {kSearch, kEdit, "", {59, 25, 134, 12}, kUpperCase},
    {IDC_STATIC, kLabel, "Replace With", {7, 45, 48, 8}},
    {kReplace, kEdit, "", {59, 43, 134, 12}, kUpperCase},
    {IDOK, kDefaultButton, "Replace", {89, 62, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {143, 62, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Search And Replace", 200, 83, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::search_replace
