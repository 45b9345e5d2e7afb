#include <array>

#include "adaptors/adaptor.h"
#include "controls/file_pick_ctrl.h"
#include "controls/file_pick_ids.h"

namespace adaptors {

namespace {

void RunFilePick(Run& run) {
    CFilePickCtrl dialog;
    dialog.SetStartPath(run.Get<std::string>("start", "").c_str());
    dialog.SetDirOnly(run.Get("folder", false));
    dialog.SetShowPath(run.Get("path_box", true));
    dialog.SetSaveFileFlag(run.Get("save", false));
    dialog.SetCustomFileExt(run.Get("masks_only", false));
    dialog.SetLargeDriveIcons(run.Get("large_drives", false));
    dialog.SetLargeFilesIcons(run.Get("large_files", false));
    for (const std::string& mask : run.Get("masks", std::vector<std::string>())) {
        if (!dialog.AddFilemask(mask.c_str()))
            throw BadInput("This is no mask with its pattern in brackets: " + mask, "masks");
    }
    run.result = dialog.DoModal(run.Get<std::string>("caption", "Choose File").c_str());
    std::array<char, kv::file_pick::kPathSize> selected{};
    dialog.GetSelectedItem(selected.data());
    std::vector<std::string> several;
    dialog.GetMultipleSelectedItem(several);
    run.outcome = {{"selected", selected.data()}, {"several", several}};
}

const Register kRegistered({
    "CFilePickCtrl",
    "Controls",
    "File Picker",
    "Choose a file",
    kv::file_pick::kTemplate,
    {
        {"caption", "text", "the window's caption", "Choose File"},
        {"start", "text", "the folder to begin with; \"C:\\\" by itself", nullptr},
        {"masks",
         "list of texts",
         "type lines, each with its pattern in brackets",
         {"Text Files (*.txt)", "All Files (*.*)"}},
        {"masks_only", "flag", "whether the type line of the dialog itself is left out", nullptr},
        {"folder", "flag", "whether a folder is picked; takes no masks", nullptr},
        {"save", "flag", "whether a name to save under is typed", nullptr},
        {"path_box", "flag", "whether the folder is shown; true by itself", nullptr},
        {"large_drives", "flag", "whether drives have large images", nullptr},
        {"large_files", "flag", "whether files have large images", nullptr},
    },
    "selected (a file, or a folder with a backslash at its end), several (the full path of each "
    "picked file)",
    RunFilePick,
});

}  // namespace

}  // namespace adaptors
