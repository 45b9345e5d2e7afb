#include "pickers/order_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::order_dlg {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kOrderBy, kGroupBox, "Order By", {7, 7, 142, 45}, kFirstOfGroup},
    {kCustom, kRadio, "Custom", {14, 21, 56, 10}, kFirstOfGroup},
    {kAreaName, kRadio, "Area Name", {14, 36, 56, 10}},
    {kCustomize, kPushButton, "&Customize...", {78, 19, 64, 14}, kFirstOfGroup},
    {IDOK, kDefaultButton, "&OK", {45, 59, 50, 14}},
    {IDCANCEL, kPushButton, "&Cancel", {99, 59, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Order By", 156, 80, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::order_dlg
