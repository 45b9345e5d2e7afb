#include "adaptors/callers_combo.h"
#include "adaptors/list_file_inputs.h"
#include "qualifiers/lessee_list_sel.h"
#include "qualifiers/list_sel_ids.h"

namespace adaptors {

namespace {

std::vector<T_KV_LESSEE_PER_STRUCT> PercentsFrom(const Run& run) {
    std::vector<T_KV_LESSEE_PER_STRUCT> percents;
    for (const Json& each : run.Get("percents", Json::array())) {
        try {
            percents.push_back({each.at("company"), each.value("min", 0), each.value("max", 100)});
        } catch (const nlohmann::json::exception&) {
            throw BadInput(
                "\"percents\" takes objects with company, min and max, and not " + each.dump(),
                "percents");
        }
    }
    return percents;
}

Json PercentsAsJson(const std::vector<T_KV_LESSEE_PER_STRUCT>& percents) {
    Json list = Json::array();
    for (const T_KV_LESSEE_PER_STRUCT& each : percents) {
        list.push_back(
            {{"company", each.sCompany}, {"min", each.nMinPercent}, {"max", each.nMaxPercent}});
    }
    return list;
}

void RunLesseeListSel(Run& run) {
    Caller caller(run);
    bool high = run.Get("high", true);
    bool any = run.Get("any", false);
    bool orFlag = run.Get("or", true);
    bool andFlag = run.Get("and", false);
    bool specify = run.Get("specifyPercent", false);
    auto percents = PercentsFrom(run);
    CKvGuiLesseeListSel dialog(run.Get<std::string>("column", ""),
                               run.Get<std::string>("table", ""), &caller.combo, caller.values,
                               high, any, orFlag, andFlag, specify, percents,
                               kv::list_sel::kLesseeTemplate, nullptr);
    SetUpListSel(run, dialog);
    run.result = dialog.DoModal();
    TellListSel(run, dialog);
    caller.Tell(run);
    run.outcome["high"] = high;
    run.outcome["any"] = any;
    run.outcome["or"] = orFlag;
    run.outcome["and"] = andFlag;
    run.outcome["specifyPercent"] = specify;
    run.outcome["percents"] = PercentsAsJson(percents);
}

const Register kRegistered({
    "CKvGuiLesseeListSel",
    "Qualifiers",
    "Lessee Match",
    "Match lessees",
    kv::list_sel::kLesseeTemplate,
    Joined({{"column", "text", "column with the company", "company"},
            {"table", "text", "table of lease owners", "NORVADON.gulf_mexico_lease_owner"},
            {"high", "flag", "highest percentage lessee; true by default", nullptr},
            {"any", "flag", "any percent lessee", nullptr},
            {"or", "flag", "any of the lessees; true by default", nullptr},
            {"and", "flag", "all of the lessees", nullptr},
            {"specifyPercent", "flag", "whether interest ranges are specified", nullptr},
            {"percents", "list of {company, min, max}", "interest ranges in percent", nullptr}},
           Joined(ListSelInputs(), CallerInputs())),
    "values (the caller's vector), text (of its control), listFile (its path), useListFile "
    "(whether "
    "it is in use), high, any, or, and, specifyPercent (the flags), percents (list of company, "
    "min, "
    "max)",
    RunLesseeListSel,
});

}  // namespace

}  // namespace adaptors
