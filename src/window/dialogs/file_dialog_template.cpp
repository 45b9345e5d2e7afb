#include "window/dialogs/file_dialog.h"
#include "window/templates/resources.h"

namespace kv::file_dialog {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {kFolderLabel, kLabel, "Look &in:", {7, 9, 48, 8}},
    {kFolder, kEdit, "", {59, 7, 214, 12}, kReadOnly},
    {kFiles, kListBox, "", {7, 23, 266, 90}},
    {kNameLabel, kLabel, "File &name:", {7, 119, 48, 8}},
    {kName, kEdit, "", {59, 117, 160, 12}},
    {IDOK, kDefaultButton, "&Open", {223, 116, 50, 14}},
    {kTypeLabel, kLabel, "Files of &type:", {7, 137, 48, 8}},
    {kTypes, kDropList, "", {59, 135, 160, 12}},
    {IDCANCEL, kPushButton, "Cancel", {223, 134, 50, 14}},
};

constexpr DialogTemplate kFileDialog{kTemplate, "Open", 280, 155, kRows};

const RegisterTemplate kRegistered(kFileDialog);

}  // namespace

}  // namespace kv::file_dialog
