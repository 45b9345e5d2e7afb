#include "services/kvdbkvn/engines/wait_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::wait_dlg {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kTime, kLabel, "Running for 0 s", {7, 10, 95, 8}},
    {IDCANCEL, kPushButton, "Cancel", {106, 7, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Waiting for the Database", 163, 28, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::wait_dlg
