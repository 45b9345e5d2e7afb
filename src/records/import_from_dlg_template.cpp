#include "records/import_from_dlg_ids.h"
#include "window/templates/resources.h"

namespace kv::import_from {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Load File From", {7, 7, 150, 43}, kFirstOfGroup},
    {kUserFolder, kRadio, "User Folder (Saved Files)", {14, 20, 136, 10}, kFirstOfGroup},
    {kSystemFolder, kRadio, "System Folder (Template Files)", {14, 34, 136, 10}},
    {IDOK, kDefaultButton, "OK", {107, 57, 50, 14}, kFirstOfGroup},
};

constexpr DialogTemplate kDialog{kTemplate, "Folder", 164, 78, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::import_from
