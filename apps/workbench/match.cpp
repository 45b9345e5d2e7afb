#include "workbench/match.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

#include "base/foreign_text.h"
#include "qualifiers/qualifier_file.h"
#include "window/dialogs/dialog.h"

namespace workbench {

namespace {

using adaptors::Json;
using adaptors::Run;
using Values = std::vector<std::string>;

/// Some databases take no more in one list.
constexpr std::size_t kLongestList = 1000;

std::string Joined(const Values& parts, const std::string& between) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : between) + part;
    return text;
}

std::string AnyOf(const Values& conditions) {
    return conditions.size() == 1 ? conditions.front() : "(" + Joined(conditions, " or ") + ")";
}

std::string In(const std::string& column, const Values& values) {
    Values lists;
    for (std::size_t begin = 0; begin < values.size(); begin += kLongestList) {
        Values literals;
        const std::size_t end = std::min(values.size(), begin + kLongestList);
        for (std::size_t i = begin; i < end; ++i)
            literals.push_back(Quoted(values[i]));
        lists.push_back(column + " in (" + Joined(literals, ", ") + ")");
    }
    return AnyOf(lists);
}

/// Of the leases that another table has under a condition.
std::string LeaseIn(const std::string& table, const std::string& condition) {
    return "t.lease_no in (select lease_no from " + TableName(table) + " where " + condition + ")";
}

std::string OfColumn(const Run& run, const Values& values) {
    return In("t." + run.Get<std::string>("column", ""), values);
}

std::string OfOperators(const Run& run, const Values& values) {
    return OfColumn(run, values) + " and t." + run.Get<std::string>("keyColumn", "") + " in " +
           run.Get<std::string>("condition", "");
}

std::string OfStatus(const Run&, const Values& values) {
    return In("t.status", values);
}

std::string OfProduct(const Run&, const Values& values) {
    return In("t.product", values);
}

/// The owners that count, each with an interest in its range where ranges are given.
std::string Owners(const Run& run, const Values& values) {
    if (!run.outcome.at("specifyPercent")) return In("company", values);
    std::map<std::pair<int, int>, Values> companiesOf;
    for (const Json& each : run.outcome.at("percents"))
        companiesOf[{each.at("min"), each.at("max")}].push_back(each.at("company"));
    Values conditions;
    for (const auto& [range, companies] : companiesOf) {
        conditions.push_back(In("company", companies) + " and percent between " +
                             std::to_string(range.first) + " and " + std::to_string(range.second));
    }
    return AnyOf(conditions);
}

std::string OfLessees(const Run& run, const Values& values) {
    // The lessee of a lease is the owner with the highest interest.
    if (run.outcome.at("high")) return In("t.lessee", values);
    std::string owners = Owners(run, values);
    if (run.outcome.at("and")) {
        Values companies = values;
        std::ranges::sort(companies);
        companies.erase(std::ranges::unique(companies).begin(), companies.end());
        owners += " group by lease_no having count(distinct company) = " +
                  std::to_string(companies.size());
    }
    return LeaseIn("_lease_owner", owners);
}

std::string OfCompanies(const Run& run, const Values& values) {
    const auto counts = [&](const char* role) { return run.outcome.at(role).get<bool>(); };
    Values conditions;
    if (counts("operator")) conditions.push_back(In("t.operator", values));
    if (counts("lessee")) conditions.push_back(LeaseIn("_lease_owner", In("company", values)));
    if (counts("bid")) conditions.push_back(LeaseIn("_bid", In("company", values)));
    if (conditions.empty()) {
        throw std::runtime_error(
            "The dataset tells of companies only as operators, as lessees and in bids.");
    }
    return AnyOf(conditions);
}

struct Kind {
    std::string_view className;
    E_Layer layer;
    std::string (*condition)(const Run&, const Values&);
};

constexpr Kind kKinds[] = {
    {"CKvGuiListSel", KV_LAYER_LEASES, OfColumn},
    {"CKvGuiLeaseListSel", KV_LAYER_LEASES, OfColumn},
    {"CKvGuiLesseeListSel", KV_LAYER_LEASES, OfLessees},
    {"CKvGuiCompanyListSel", KV_LAYER_LEASES, OfCompanies},
    {"CKvGuiOptrListSel", KV_LAYER_WELLS, OfOperators},
    {"CKvGuiLeaseStatusDlg", KV_LAYER_LEASES, OfStatus},
    {"CKvGuiPipeStatusDlg", KV_LAYER_PIPELINES, OfStatus},
    {"CKvGuiPipeProductDlg", KV_LAYER_PIPELINES, OfProduct},
};

struct List {
    Values values;
    /// Words for the user where lines of its file were cut.
    std::string cut = {};
};

/// The list that was built, or the one in the file that stands for it.
List ListOf(const Run& run) {
    if (!run.outcome.value("useListFile", false)) return {run.outcome.at("values").get<Values>()};
    const std::string path = run.outcome.at("listFile");
    const auto text = kv::ReadForeignText(path);
    if (!text) throw std::runtime_error("The list file " + path + " cannot be read.");
    if (!kv::IsText(*text)) throw std::runtime_error("The list file " + path + " is not text.");
    int cut = 0;
    List list{kv::ParseQualifiers(*text, &cut)};
    if (cut > 0) list.cut = kv::WordsOfCut(path, cut);
    return list;
}

}  // namespace

std::optional<Match> MatchOf(const adaptors::Adaptor& adaptor, const Run& run) {
    const auto* kind = std::ranges::find(kKinds, adaptor.className, &Kind::className);
    if (kind == std::end(kKinds) || run.result != IDOK) return {};
    const List list = ListOf(run);
    if (list.values.empty()) return {};
    return Match{FindReportLayer(kind->layer), kind->condition(run, list.values), list.cut};
}

}  // namespace workbench
