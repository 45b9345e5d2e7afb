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
    kv::list_sel::kCompanyTemplate,
    Joined({{"column", "text", "column with the company", "company"},
            {"table", "text", "company table", "NORVADON.gulf_mexico_company"},
            {"operator", "flag", "role in which the companies count", true},
            {"lessee", "flag", "as above", true},
            {"bid", "flag", "as above", nullptr},
            {"operatingRights", "flag", "as above", nullptr},
            {"designatedOperator", "flag", "as above", nullptr}},
           Joined(ListSelInputs(), CallerInputs())),
    "values (the caller's vector), text (of its control), the five roles, listFile, useListFile",
    RunCompanyListSel,
});

}  // namespace

}  // namespace adaptors
