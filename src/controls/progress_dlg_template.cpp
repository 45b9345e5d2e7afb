#include "controls/progress_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::progress_dlg {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kStatus, kLabel, "", {7, 7, 206, 8}},
    {kBar, kProgress, "", {7, 19, 180, 12}},
    {kPercent, kRightLabel, " 0 %", {191, 21, 22, 8}},
    {IDCANCEL, kPushButton, "Cancel", {163, 38, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Progress", 220, 59, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::progress_dlg
