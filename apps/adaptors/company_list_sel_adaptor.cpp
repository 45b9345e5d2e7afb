#include "adaptors/callers_combo.h"
#include "adaptors/list_file_inputs.h"
#include "qualifiers/company_list_sel.h"
#include "qualifiers/list_sel_ids.h"

namespace adaptors {

namespace {

void RunCompanyListSel(Run& run) {
    Caller caller(run);
    bool isOperator = run.Get("operator", false);
    bool isLessee = run.Get("lessee", false);
    bool isBid = run.Get("bid", false);
    bool hasOperatingRights = run.Get("operatingRights", false);
    bool isDesignatedOperator = run.Get("designatedOperator", false);
    CKvGuiCompanyListSel dialog(run.Get<std::string>("column", ""),
                                run.Get<std::string>("table", ""), &caller.combo, caller.values,
                                isOperator, isLessee, isBid, hasOperatingRights,
                                isDesignatedOperator, kv::list_sel::kCompanyTemplate, nullptr);
    SetUpListSel(run, dialog);
    run.result = dialog.DoModal();
    TellListSel(run, dialog);
    caller.Tell(run);
    run.outcome["operator"] = isOperator;
    run.outcome["lessee"] = isLessee;
    run.outcome["bid"] = isBid;
    run.outcome["operatingRights"] = hasOperatingRights;
    run.outcome["designatedOperator"] = isDesignatedOperator;
}

const Register kRegistered({
    "CKvGuiCompanyListSel",
    "Qualifiers",
    "Company Match Dialog",
    "Match companies",
    kv::list_sel::kCompanyTemplate,
    Joined({{"column", "text", "column with the company", "company"},
            {"table", "text", "company table", "NORVADON.gulf_mexico_company"},
            {"operator", "flag", "a role in which companies count: who operates", true},
            {"lessee", "flag", "who holds a lease", true},
            {"bid", "flag", "who bid on a lease", nullptr},
            {"operatingRights", "flag", "who holds operating rights", nullptr},
            {"designatedOperator", "flag", "who is designated to operate", nullptr}},
           Joined(ListSelInputs(), CallerInputs())),
    "values (the caller's vector), text (of its control), listFile (its path), useListFile "
    "(whether "
    "it is in use), operator, lessee, bid, operatingRights, designatedOperator (the roles)",
    RunCompanyListSel,
});

}  // namespace

}  // namespace adaptors
