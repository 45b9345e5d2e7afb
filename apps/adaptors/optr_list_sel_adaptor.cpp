#include "adaptors/callers_combo.h"
#include "adaptors/list_file_inputs.h"
#include "qualifiers/list_sel_ids.h"
#include "qualifiers/optr_list_sel.h"

namespace adaptors {

namespace {

void RunOptrListSel(Run& run) {
    Caller caller(run);
    CKvGuiOptrListSel dialog(
        run.Get<std::string>("column", ""), run.Get<std::string>("keyColumn", ""),
        run.Get<std::string>("table", ""), run.Get<std::string>("condition", ""), &caller.combo,
        caller.values, kv::list_sel::kTemplate, nullptr);
    SetUpListSel(run, dialog);
    run.result = dialog.DoModal();
    TellListSel(run, dialog);
    caller.Tell(run);
}

const Register kRegistered({
    "CKvGuiOptrListSel",
    "Qualifiers",
    "Multiple Selections Dialog (operators)",
    "Match operators",
    kv::list_sel::kTemplate,
    Joined({{"column", "text", "column with the operator", "operator"},
            {"keyColumn", "text", "column of the key", "areacode"},
            {"table", "text", "operator table", "NORVADON.gulf_mexico_operator"},
            {"condition", "text", "what follows \"in\": a list or a subquery in brackets",
             "(select stcode from NORVADON.gulf_mexico_connam2 where area_abbr = 'VR')"}},
           Joined(ListSelInputs(), CallerInputs())),
    "values (the caller's vector), text (of its control), listFile (its path), useListFile "
    "(whether "
    "it is in use)",
    RunOptrListSel,
});

}  // namespace

}  // namespace adaptors
