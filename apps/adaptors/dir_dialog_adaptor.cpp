#include "adaptors/adaptor.h"
#include "controls/dir_dialog.h"
#include "controls/dir_dialog_ids.h"

namespace adaptors {

namespace {

void RunDirDialog(Run& run) {
    const auto filter = run.Get<std::string>("filter", "");
    CDirDialog dialog(run.Get<std::string>("folder", "").c_str(), filter.c_str(), nullptr,
                      run.Get("export", false));
    run.result = dialog.DoModal();
    run.outcome = {{"folder", dialog.GetPath().str()}, {"export", dialog.GetOpenExportDir()}};
}

const Register kRegistered({
    "CDirDialog",
    "Controls",
    "Choose Folder",
    "Choose a folder",
    kv::file_dialog::kTemplate,
    {
        {"folder", "text", "the folder to begin with; the current one by itself", nullptr},
        {"filter", "text", "type lines behind the dialog's own, as \"Text|*.txt||\"", nullptr},
        {"export", "flag", "whether a folder that holds anything is asked about", true},
    },
    "folder (with a backslash at its end), export",
    RunDirDialog,
    {},
    {},
    {{kv::file_dialog::kName, {kv::dir_dialog::kFolderEdit, kv::ControlKind::kEdit, "", {}}},
     {IDOK, {kv::dir_dialog::kOpen, kv::ControlKind::kDefaultButton, "Open", {}}}},
});

}  // namespace

}  // namespace adaptors
