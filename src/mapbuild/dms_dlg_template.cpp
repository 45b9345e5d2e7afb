#include "mapbuild/dms_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::dms_dlg {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kMaxLabel, kLabel, "Maximum", {7, 9, 48, 8}},
    {kMaxDegEdit, kEdit, "", {59, 7, 30, 12}},
    {kMaxDegSpin, kSpin, "", {89, 7, 10, 12}},
    {kMaxDegLabel, kLabel, "Degrees", {103, 9, 30, 8}},
    {kMaxMinEdit, kEdit, "", {137, 7, 24, 12}},
    {kMaxMinSpin, kSpin, "", {161, 7, 10, 12}},
    {kMaxMinLabel, kLabel, "Minutes", {175, 9, 30, 8}},
    {kMaxSecEdit, kEdit, "", {209, 7, 34, 12}},
    {kMaxSecSpin, kSpin, "", {243, 7, 10, 12}},
    {kMaxSecLabel, kLabel, "Seconds", {257, 9, 32, 8}},
    {kMinLabel, kLabel, "Minimum", {7, 25, 48, 8}},
    {kMinDegEdit, kEdit, "", {59, 23, 30, 12}},
    {kMinDegSpin, kSpin, "", {89, 23, 10, 12}},
    {kMinDegLabel, kLabel, "Degrees", {103, 25, 30, 8}},
    {kMinMinEdit, kEdit, "", {137, 23, 24, 12}},
    {kMinMinSpin, kSpin, "", {161, 23, 10, 12}},
    {kMinMinLabel, kLabel, "Minutes", {175, 25, 30, 8}},
    {kMinSecEdit, kEdit, "", {209, 23, 34, 12}},
    {kMinSecSpin, kSpin, "", {243, 23, 10, 12}},
    {kMinSecLabel, kLabel, "Seconds", {257, 25, 32, 8}},
    {IDOK, kDefaultButton, "OK", {185, 42, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {239, 42, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "DMS Dialog", 296, 63, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::dms_dlg
