#include "pickers/custom_order_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::custom_order_dlg {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kHeading, kLabel, "Order by Areanames in This Order", {7, 7, 160, 8}},
    {kAreas, kListBox, "", {7, 18, 160, 150}},
    {kTop, kPushButton, "&Top", {174, 18, 58, 14}},
    {kMoveUp, kPushButton, "Move &Up", {174, 36, 58, 14}},
    {kMoveDown, kPushButton, "Move &Down", {174, 54, 58, 14}},
    {kBottom, kPushButton, "&Bottom", {174, 72, 58, 14}},
    {kReset, kPushButton, "&Reset...", {174, 97, 58, 14}},
    {IDOK, kDefaultButton, "&OK", {128, 175, 50, 14}},
    {IDCANCEL, kPushButton, "&Cancel", {182, 175, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Customize Area Name Order", 239, 196, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::custom_order_dlg
