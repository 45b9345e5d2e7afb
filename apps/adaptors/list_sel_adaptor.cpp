#include "adaptors/callers_combo.h"
#include "adaptors/list_file_inputs.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"

namespace adaptors {

namespace {

void RunListSel(Run& run) {
    Caller caller(run);
    const auto table = run.Get<std::string>("table", "");
    const auto column2 = run.Get<std::string>("column2", "");
    const auto open = [&](CKvGuiListSel& dialog) {
        SetUpListSel(run, dialog);
        run.result = dialog.DoModal();
        TellListSel(run, dialog);
    };
    if (column2.empty()) {
        CKvGuiListSel dialog(run.Get<std::string>("column", ""), table, &caller.combo,
                             caller.values, kv::list_sel::kTemplate, nullptr);
        open(dialog);
    } else {
        CKvGuiListSel dialog(run.Get<std::string>("column", ""), column2, table, true,
                             &caller.combo, caller.values, kv::list_sel::kTemplate, nullptr);
        open(dialog);
    }
    caller.Tell(run);
}

const Register kRegistered({
    "CKvGuiListSel",
    "Qualifiers",
    "Multiple Selections Dialog",
    "Match values of a column",
    kv::list_sel::kTemplate,
    Joined({{"column", "text", "column to search", "lessee"},
            {"column2", "text", "second column, searched together with the first", nullptr},
            {"table", "text", "table, or several with \";\" between them",
             "NORVADON.gulf_mexico_lease"}},
           Joined(ListSelInputs(), CallerInputs())),
    "values (the caller's vector), text (of its control), listFile (its path), useListFile "
    "(whether "
    "it is in use)",
    RunListSel,
});

}  // namespace

}  // namespace adaptors
