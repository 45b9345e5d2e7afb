#include "adaptors/adaptor.h"
#include "mapbuild/db_bounds_dlg.h"
#include "mapbuild/db_bounds_dlg_ids.h"

namespace adaptors {

namespace {

void RunDbBoundsDlg(Run& run) {
    CKvDbBoundsDlg dialog;
    CString from(run.Get<std::string>("from", ""));
    CString to(run.Get<std::string>("to", ""));
    dialog.SetBounds(from, to);
    run.result = dialog.DoModal();
    run.outcome = {
        {"from", dialog.m_strFrom.str()}, {"to", dialog.m_strTo.str()}, {"ok", dialog.m_bOK != 0}};
}

const Register kRegistered({
    "CKvDbBoundsDlg",
    "Map building",
    "Dialog",
    "Bounds",
    kv::db_bounds_dlg::kTemplate,
    {
        {"from", "text", "the first bound, any text", "1000"},
        {"to", "text", "the second bound, any text", "2000"},
    },
    "from, to (the texts as they were entered), ok (whether the dialog was left by OK)",
    RunDbBoundsDlg,
});

}  // namespace

}  // namespace adaptors
