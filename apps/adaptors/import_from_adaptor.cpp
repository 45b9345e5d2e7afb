#include "adaptors/adaptor.h"
#include "records/import_from_dlg.h"
#include "records/import_from_dlg_ids.h"

namespace adaptors {

namespace {

void RunImportFrom(Run& run) {
    CKvImportFromDlg dialog;
    run.result = dialog.DoModal();
    run.outcome = {{"userFolder", dialog.IsUserFolder()},
                   {"sameFolder", dialog.IsUserFolderSameAsSysFolder()}};
}

const Register kRegistered({
    "CKvImportFromDlg",
    "Record tools",
    "Folder",
    "Which folder to load from",
    kv::import_from::kTemplate,
    {},
    "userFolder (whether the user's folder is wanted, and not the system's), sameFolder (whether "
    "both are one)",
    RunImportFrom,
});

}  // namespace

}  // namespace adaptors
