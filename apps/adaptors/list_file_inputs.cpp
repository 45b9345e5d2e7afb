#include "adaptors/list_file_inputs.h"

namespace adaptors {

std::vector<Input> ListSelInputs() {
    return {
        {"specialOrder", "flag", "order the result as lease numbers are ordered", nullptr},
        {"listFile", "text", "path of the list file", nullptr},
        {"useListFile", "flag", "whether the list file is in use", nullptr},
        {"enableFile", "flag", "whether the list file may be used; true by default", nullptr},
    };
}

void SetUpListSel(const Run& run, CKvGuiListSel& dialog) {
    dialog.SetSpecialOrderByFlag(run.Get("specialOrder", false));
    dialog.SetListFileName(run.Get<std::string>("listFile", ""));
    dialog.SetListFileFlag(run.Get("useListFile", false));
    dialog.SetEnableFileButtonFlag(run.Get("enableFile", true));
}

void TellListSel(Run& run, const CKvGuiListSel& dialog) {
    run.outcome["listFile"] = dialog.GetListFileName();
    run.outcome["useListFile"] = dialog.GetListFileFlag();
}

std::vector<Input> Joined(std::vector<Input> first, const std::vector<Input>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

}  // namespace adaptors
