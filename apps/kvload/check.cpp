#include "kvload/check.h"

#include <charconv>
#include <cmath>
#include <map>
#include <set>
#include <stdexcept>

#include "base/text.h"
#include "kvload/outline.h"
#include "kvload/source.h"
#include "sampledata/areas.h"

namespace kvload {
namespace {

using kv::sample::Row;

/// A query whose rows are faults: the cells of a row, joined, name one. "{x}" stands for the table
/// gulf_mexico_x.
struct Question {
    const char* what;
    const char* sql;
};

constexpr Question kQuestions[] = {
    {"Areas without a name or a code",
     "select areaname, stcode from {connam2} where areaname is null or stcode is null"},
    {"Names that two areas share",
     "select areaname from {connam2} where areaname is not null group by areaname "
     "having count(*) > 1 order by 1"},
    {"Area codes that two areas share",
     "select stcode from {connam2} where stcode is not null group by stcode having count(*) > 1 "
     "order by 1"},
    {"Areas without a block",
     "select areaname, stcode from {connam2} a where stcode is not null and not exists "
     "(select 1 from {lbi} b where b.areacode = a.stcode) order by 2"},
    {"Areas without a projection",
     "select areaname, stcode from {connam2} a where stcode is not null and not exists "
     "(select 1 from {area_projection} p where p.areacode = a.stcode) order by 2"},
    {"Area names in small letters, which no search finds",
     "select areaname from {connam2} where areaname <> upper(areaname) order by 1"},
    {"Blocks of an area that is not there",
     "select areacode, count(*), 'blocks' from {lbi} b where not exists "
     "(select 1 from {connam2} a where a.stcode = b.areacode) group by areacode order by 1"},
    {"Blocks without a number",
     "select areacode, refnum from {lbi} where lbnum is null order by refnum"},
    {"Labels with a hyphen, behind which they are cut",
     "select areacode, coalesce(lbnum, '') || coalesce(lbext, '') from {lbi} where "
     "coalesce(lbnum, '') || coalesce(lbext, '') like '%-%' order by refnum"},
    {"Labels that two blocks share",
     "select areacode, coalesce(lbnum, '') || coalesce(lbext, '') from {lbi} group by 1, 2 "
     "having count(*) > 1 order by 1, 2"},
    {"Blocks without an outline",
     "select areacode, coalesce(lbnum, '') || coalesce(lbext, '') from {lbi} b where not exists "
     "(select 1 from {lbv} v where v.refnum = b.refnum) order by refnum"},
    {"Outlines of no block",
     "select distinct refnum from {lbv} v where not exists "
     "(select 1 from {lbi} b where b.refnum = v.refnum) order by 1"},
    {"Leases on a block that is not there",
     "select lease_no, areacode, coalesce(lbnum, '') || coalesce(lbext, '') from {lease} t where "
     "not exists (select 1 from {lbi} b where b.areacode = t.areacode and b.lbnum = t.lbnum and "
     "coalesce(b.lbext, '') = coalesce(t.lbext, '')) order by 1, 2, 3"},
    {"Wells in a block that is not there",
     "select api_no, areacode, coalesce(lbnum, '') || coalesce(lbext, '') from {well_hdr} t where "
     "not exists (select 1 from {lbi} b where b.areacode = t.areacode and b.lbnum = t.lbnum and "
     "coalesce(b.lbext, '') = coalesce(t.lbext, '')) order by 1"},
    {"Platforms in a block that is not there",
     "select complex_id, areacode, coalesce(lbnum, '') || coalesce(lbext, '') from {platform} t "
     "where not exists (select 1 from {lbi} b where b.areacode = t.areacode and b.lbnum = t.lbnum "
     "and coalesce(b.lbext, '') = coalesce(t.lbext, '')) order by 1"},
    {"Wells without a place",
     "select api_no from {well_hdr} where surf_lat is null or surf_lon is null order by 1"},
    {"Platforms without a place",
     "select complex_id from {platform} where lat is null or lon is null order by 1"},
    {"Pipelines without a line",
     "select segment_no from {pipeline} p where not exists "
     "(select 1 from {pipeline_pt} v where v.segment_no = p.segment_no) order by 1"},
};

std::string WithNames(std::string_view sql, const Store& store) {
    std::string text;
    for (size_t open; (open = sql.find('{')) != std::string_view::npos;) {
        const size_t close = sql.find('}', open);
        const std::string table =
            "gulf_mexico_" + std::string(sql.substr(open + 1, close - open - 1));
        text.append(sql.substr(0, open)).append(store.Named(table));
        sql.remove_prefix(close + 1);
    }
    return text.append(sql);
}

std::string Words(const Row& row) {
    std::string text;
    for (const std::string& cell : row)
        text.append(text.empty() ? "" : " ").append(cell.empty() ? "(none)" : cell);
    return text;
}

void NeedTables(Store& store) {
    std::string missing;
    for (const char* name :
         {"gulf_mexico_connam2", "gulf_mexico_area_projection", "gulf_mexico_lbi",
          "gulf_mexico_lbv", "gulf_mexico_lease", "gulf_mexico_well_hdr", "gulf_mexico_platform",
          "gulf_mexico_pipeline", "gulf_mexico_pipeline_pt"})
        if (!store.Has(kv::sample::TableNamed(name))) missing.append(" ").append(name);
    if (!missing.empty()) throw std::runtime_error("The database lacks the tables" + missing);
}

/// A coordinate of the database; none is no number.
double Number(const std::string& text) {
    double value = NAN;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

bool IsPlace(const Spot& spot) {
    return std::abs(spot.y) <= 90.0 && std::abs(spot.x) <= 180.0;
}

/// What the corners of outlines tell.
class OutlineFaults {
public:
    Fault noPlace{"Outlines with a corner that is no place on earth", {}};
    Fault flat{"Outlines without an area", {}};
    Fault crossed{"Outlines that cross themselves", {}};

    void Look(const std::string& block, const Spots& outline) {
        for (const Spot& corner : outline) {
            if (IsPlace(corner)) continue;
            noPlace.which.push_back(block);
            return;
        }
        if (Tidied(outline).empty()) {
            flat.which.push_back(block);
        } else if (const auto spot = Crossing(outline)) {
            crossed.which.push_back(block + kv::FormatText(" near %.6f, %.6f", spot->y, spot->x));
        }
    }
};

void LookAtOutlines(Store& store, std::vector<Fault>& faults) {
    const auto corners = store.Query(WithNames(
        "select b.areacode, coalesce(b.lbnum, '') || coalesce(b.lbext, ''), v.refnum, v.lat, v.lon "
        "from {lbi} b, {lbv} v where v.refnum = b.refnum order by v.refnum, v.ptnum",
        store));
    OutlineFaults found;
    for (size_t from = 0; from < corners.size();) {
        Spots outline;
        size_t to = from;
        for (; to < corners.size() && corners[to][2] == corners[from][2]; ++to)
            outline.push_back({Number(corners[to][4]), Number(corners[to][3])});
        found.Look(corners[from][0] + " " + corners[from][1], outline);
        from = to;
    }
    for (Fault* fault : {&found.noPlace, &found.flat, &found.crossed})
        faults.push_back(std::move(*fault));
}

/// An MMS code and a block's label, as the pickers show it, lead to one area code.
void LookAtSharedMmsCodes(Store& store, std::vector<Fault>& faults) {
    const auto blocks = store.Query(WithNames(
        "select a.area_abbr, b.areacode, coalesce(b.lbnum, '') || coalesce(b.lbext, '') from {lbi} "
        "b, {connam2} a where a.stcode = b.areacode and a.area_abbr is not null order by 1, 2, 3",
        store));
    std::map<std::string, std::set<std::string>> areas;
    for (const Row& block : blocks)
        areas[block[0] + " " + block[2] + std::string(kv::sample::WaterSuffix(block[1]))].insert(
            block[1]);
    Fault fault{"Labels that one MMS code has in several areas", {}};
    for (const auto& [label, codes] : areas) {
        if (codes.size() < 2) continue;
        fault.which.push_back(label + " in " + Words({codes.begin(), codes.end()}));
    }
    faults.push_back(std::move(fault));
}

}  // namespace

std::vector<Fault> CheckDataset(Store& store) {
    NeedTables(store);
    std::vector<Fault> faults;
    for (const Question& question : kQuestions) {
        Fault& fault = faults.emplace_back(Fault{question.what, {}});
        for (const Row& row : store.Query(WithNames(question.sql, store)))
            fault.which.push_back(Words(row));
    }
    LookAtOutlines(store, faults);
    LookAtSharedMmsCodes(store, faults);
    std::erase_if(faults, [](const Fault& fault) { return fault.which.empty(); });
    return faults;
}

}  // namespace kvload
