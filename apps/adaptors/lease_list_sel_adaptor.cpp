#include "adaptors/callers_combo.h"
#include "adaptors/list_file_inputs.h"
#include "qualifiers/lease_list_sel.h"
#include "qualifiers/list_sel_ids.h"

namespace adaptors {

namespace {

void RunLeaseListSel(Run& run) {
    Caller caller(run);
    CKvGuiLeaseListSel dialog(run.Get<std::string>("column", ""), run.Get<std::string>("table", ""),
                              &caller.combo, caller.values, kv::list_sel::kLeaseTemplate, nullptr);
    SetUpListSel(run, dialog);
    run.result = dialog.DoModal();
    TellListSel(run, dialog);
    caller.Tell(run);
}

const Register kRegistered({
    "CKvGuiLeaseListSel",
    "Qualifiers",
    "Lease Match",
    "Match leases",
    kv::list_sel::kLeaseTemplate,
    Joined({{"column", "text", "column with the lease number", "lease_no"},
            {"table", "text", "lease table, with the column lplana", "NORVADON.gulf_mexico_lease"}},
           Joined(ListSelInputs(), CallerInputs())),
    "values (the caller's vector), text (of its control), listFile (its path), useListFile "
    "(whether "
    "it is in use)",
    RunLeaseListSel,
});

}  // namespace

}  // namespace adaptors
