#include "frame/kvdbkvn/db_util.h"

#include <algorithm>
#include <exception>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/catalogue.h"
#include "frame/kvcom/cancelled.h"
#include "frame/kvcom/projected_bounds.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/sql_literal.h"
#include "frame/kvdbkvn/table_owner.h"
#include "frame/kvlogs/log.h"

namespace {

using kv::catalogue::kAllBlocks;
using kv::catalogue::kAreaTable;
using kv::catalogue::kBlockTable;
using kv::catalogue::kVertexTable;
using kv::db::SqlLiteral;

constexpr int kLogLevel = 101;
/// Units of X and Y, as the coordinate driver has them.
constexpr int kFeet = 0;
constexpr int kMeters = 1;
constexpr const char* kProjectionTable = "_area_projection";
constexpr const char* kCountyTable = ".nvd2000_county";

constexpr const char* kCancelled =
    "The person cancelled a look-up, which answers as for a place that is not there.";

/// How many `LookUpsThrow` and `CancelledLookUpsThrow` live.
int s_nThrowing = 0;
int s_nCancelledThrowing = 0;

/// Runs `work` with a connected manager. Its answer, or, when the database fails or the person
/// cancels, which goes to the log unless somebody wants to hear of it, `otherwise`.
template <class Answer, class Work>
Answer LookUp(Answer otherwise, const Work& work) {
    CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
    std::exception_ptr thrown;
    std::string words;
    bool isHeard = s_nThrowing > 0;
    try {
        manager.Connect();
        otherwise = work(manager);
    } catch (const CKvCancelled&) {
        thrown = std::current_exception();
        words = kCancelled;
        isHeard = isHeard || s_nCancelledThrowing > 0;
    } catch (const CKvException& failure) {
        thrown = std::current_exception();
        words = failure.GetErrorMessage(true, true);
    }
    manager.FreeData();
    manager.Disconnect();
    if (thrown && isHeard) std::rethrow_exception(thrown);
    if (thrown) CKvLog::Output(words, kLogLevel, false);
    return otherwise;
}

/// Bracketed, for "in"; the list is not empty.
std::string QuotedList(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "(" : ",") + SqlLiteral(text);
    return list + ")";
}

/// The dataset, the registered one for an empty name, with its owner, unless it names one.
std::string WithOwner(const std::string& dataset) {
    const std::string stem = dataset.empty() ? CKvDbDatasetSet::S_GetGlobalDataset() : dataset;
    if (stem.find('.') != std::string::npos) return stem;
    return CKvDbDatasetSet::S_GetGlobalOwner() + "." + stem;
}

std::string TableOf(const std::string& dataset, const char* suffix) {
    return WithOwner(dataset) + suffix;
}

/// Column 0 of every row.
std::vector<std::string> ColumnOf(CKvDbAbsDataMgr& manager, const std::string& sql) {
    manager.Select(sql);
    std::vector<std::string> cells;
    for (int row = 0; row < manager.NumberOfRows(); ++row)
        cells.emplace_back(manager.GetItem(row, 0));
    return cells;
}

std::string FirstOf(const std::vector<std::string>& cells) {
    return cells.empty() ? std::string() : cells.front();
}

/// One column of the area table where another has that value.
std::vector<std::string> AreaCells(CKvDbAbsDataMgr& manager, const std::string& dataset,
                                   const char* wanted, const char* known,
                                   const std::string& value) {
    return ColumnOf(manager, std::string("select ") + wanted + " from " +
                                 TableOf(dataset, kAreaTable) + " where " + known + " = " +
                                 SqlLiteral(value) + " order by " + wanted);
}

/// The area codes that an area code, an MMS code or an area name stands for.
std::vector<std::string> AreaCodesOf(CKvDbAbsDataMgr& manager, const std::string& dataset,
                                     const std::string& area) {
    using namespace kv::catalogue;
    for (const char* column : {kColumnAreaCode, kColumnMmsCode, kColumnAreaName}) {
        const std::vector<std::string> codes =
            AreaCells(manager, dataset, kColumnAreaCode, column, area);
        if (!codes.empty()) return codes;
    }
    return {};
}

/// A block where it was found.
struct Found {
    std::string label;
    std::string areaCode;
    std::string refnum;
};

/// The blocks of those numbers and extensions in these areas, whatever their water.
std::vector<Found> BlocksIn(CKvDbAbsDataMgr& manager, const std::string& dataset,
                            const std::vector<std::string>& areaCodes,
                            const std::vector<std::string>& labels) {
    if (areaCodes.empty() || labels.empty()) return {};
    std::vector<std::string> bare;
    for (const std::string& label : labels)
        bare.push_back(kv::catalogue::StripWaterSuffix(label));
    manager.Select(kv::catalogue::BlockLabelExpression() + "lbnum||lbext), areacode, refnum from " +
                   TableOf(dataset, kBlockTable) + " where areacode in " + QuotedList(areaCodes) +
                   " and lbnum||lbext in " + QuotedList(bare) + " order by areacode, refnum");
    std::vector<Found> blocks;
    for (int row = 0; row < manager.NumberOfRows(); ++row) {
        blocks.push_back(
            {manager.GetItem(row, 0), manager.GetItem(row, 1), manager.GetItem(row, 2)});
    }
    return blocks;
}

/// The one whose label it is, null where there is none.
const Found* WithLabel(const std::vector<Found>& blocks, const std::string& label) {
    for (const Found& block : blocks) {
        if (block.label == label) return &block;
    }
    return nullptr;
}

/// The one that is meant: a label without a suffix may stand for a block in any water.
const Found* Meant(const std::vector<Found>& blocks, const std::string& label) {
    if (const Found* exact = WithLabel(blocks, label)) return exact;
    const bool anyWater = kv::catalogue::StripWaterSuffix(label) == label;
    return anyWater && !blocks.empty() ? &blocks.front() : nullptr;
}

/// The query's first row as bounds: least and greatest latitude, least and greatest longitude.
bool ReadBounds(CKvDbAbsDataMgr& manager, const std::string& sql, CMinMax2Dd_t& out) {
    manager.Select(sql);
    if (manager.NumberOfRows() == 0 || !*manager.GetItem(0, 0)) return false;
    out = {kv::Atof(manager.GetItem(0, 0)), kv::Atof(manager.GetItem(0, 1)),
           kv::Atof(manager.GetItem(0, 2)), kv::Atof(manager.GetItem(0, 3))};
    return true;
}

std::string LabelOf(const std::string& block, const std::string& ext) {
    return kv::Trim(block) + kv::Trim(ext);
}

/// What picks the corners of all blocks of these areas out of the vertex table.
std::string OfAreas(const std::string& dataset, const std::vector<std::string>& areaCodes) {
    return "refnum in (select refnum from " + TableOf(dataset, kBlockTable) +
           " where areacode in " + QuotedList(areaCodes) + ")";
}

/// What picks the corners of a place out of the vertex table; empty where there is no such place.
std::string CornersOf(CKvDbAbsDataMgr& manager, const std::string& dataset, const std::string& area,
                      const std::string& block, const std::string& ext) {
    const std::vector<std::string> areaCodes = AreaCodesOf(manager, dataset, area);
    if (areaCodes.empty()) return "";
    if (block == kAllBlocks) return OfAreas(dataset, areaCodes);
    const std::string label = LabelOf(block, ext);
    const std::vector<Found> blocks = BlocksIn(manager, dataset, areaCodes, {label});
    const Found* found = Meant(blocks, label);
    return found ? "refnum = " + found->refnum : "";
}

std::string FromCorners(const char* columns, const std::string& dataset,
                        const std::string& condition) {
    return std::string("select ") + columns + " from " + TableOf(dataset, kVertexTable) +
           " where " + condition;
}

using Outline = std::vector<CKvDispPoint>;

/// The outlines of picks, read in a few statements, however many there are.
class OutlineReader {
public:
    OutlineReader(CKvDbAbsDataMgr& manager, const std::string& dataset)
        : manager_(manager), dataset_(WithOwner(dataset)) {}

    std::vector<Outline> Read(const std::vector<CKvDbUtil::Pick>& picks) {
        outlines_.assign(picks.size(), {});
        std::map<std::string, std::vector<std::size_t>> byArea;
        for (std::size_t i = 0; i < picks.size(); ++i)
            byArea[picks[i].area].push_back(i);
        for (const auto& [area, members] : byArea)
            ReadArea(picks, members, AreaCodesOf(manager_, dataset_, area));
        ReadCorners();
        return std::move(outlines_);
    }

private:
    /// A statement names no more than this, since servers have a limit.
    static constexpr std::size_t kMostNames = 500;

    static std::vector<std::vector<std::string>> InParts(const std::vector<std::string>& names) {
        std::vector<std::vector<std::string>> parts;
        for (std::size_t begin = 0; begin < names.size(); begin += kMostNames) {
            const std::size_t end = std::min(begin + kMostNames, names.size());
            parts.emplace_back(names.begin() + begin, names.begin() + end);
        }
        return parts;
    }

    void ReadArea(const std::vector<CKvDbUtil::Pick>& picks,
                  const std::vector<std::size_t>& members,
                  const std::vector<std::string>& areaCodes) {
        if (areaCodes.empty()) return;
        std::vector<std::size_t> whole;
        std::vector<std::size_t> single;
        std::vector<std::string> labels;
        for (const std::size_t i : members) {
            if (picks[i].block == kAllBlocks) {
                whole.push_back(i);
                continue;
            }
            single.push_back(i);
            labels.push_back(LabelOf(picks[i].block, picks[i].ext));
        }
        if (!whole.empty()) ReadWholeAreas(whole, areaCodes);
        const BlocksByNumber found = FindBlocks(areaCodes, labels);
        for (std::size_t n = 0; n < single.size(); ++n) {
            const auto blocks = found.find(kv::catalogue::StripWaterSuffix(labels[n]));
            if (blocks == found.end()) continue;
            if (const Found* meant = Meant(blocks->second, labels[n])) Want(*meant, single[n]);
        }
    }

    /// Blocks whose labels differ in their water alone have one number.
    using BlocksByNumber = std::unordered_map<std::string, std::vector<Found>>;

    BlocksByNumber FindBlocks(const std::vector<std::string>& areaCodes,
                              const std::vector<std::string>& labels) {
        BlocksByNumber blocks;
        for (const std::vector<std::string>& part : InParts(labels)) {
            for (Found& each : BlocksIn(manager_, dataset_, areaCodes, part))
                blocks[kv::catalogue::StripWaterSuffix(each.label)].push_back(std::move(each));
        }
        return blocks;
    }

    void Want(const Found& block, std::size_t pick) {
        std::vector<std::size_t>& picks = wanted_[block.refnum];
        if (picks.empty()) refnums_.push_back(block.refnum);
        picks.push_back(pick);
    }

    CKvDispPoint Corner(int row, int column) const {
        return {kv::Atof(manager_.GetItem(row, column)),
                kv::Atof(manager_.GetItem(row, column + 1))};
    }

    void ReadWholeAreas(const std::vector<std::size_t>& members,
                        const std::vector<std::string>& areaCodes) {
        manager_.Select(FromCorners("lat, lon", dataset_, OfAreas(dataset_, areaCodes)));
        Outline corners;
        for (int row = 0; row < manager_.NumberOfRows(); ++row)
            corners.push_back(Corner(row, 0));
        for (const std::size_t i : members)
            outlines_[i] = corners;
    }

    void ReadCorners() {
        for (const std::vector<std::string>& part : InParts(refnums_)) {
            std::string list;
            for (const std::string& refnum : part)
                list += (list.empty() ? "(" : ",") + refnum;
            manager_.Select(FromCorners("refnum, lat, lon", dataset_, "refnum in " + list + ")") +
                            " order by refnum, ptnum");
            KeepCorners();
        }
    }

    /// From rows that are sorted by block.
    void KeepCorners() {
        Outline corners;
        for (int row = 0; row < manager_.NumberOfRows();) {
            const std::string refnum = manager_.GetItem(row, 0);
            corners.clear();
            for (; row < manager_.NumberOfRows() && refnum == manager_.GetItem(row, 0); ++row)
                corners.push_back(Corner(row, 1));
            for (const std::size_t i : wanted_[refnum])
                outlines_[i] = corners;
        }
    }

    CKvDbAbsDataMgr& manager_;
    std::string dataset_;
    std::vector<Outline> outlines_;
    /// The blocks to read, and the picks that each is the outline of.
    std::vector<std::string> refnums_;
    std::unordered_map<std::string, std::vector<std::size_t>> wanted_;
};

/// A county's row: the columns, and the condition that finds it.
std::string CountyQuery(const char* columns, const std::string& county) {
    return std::string("select ") + columns + " from " +
           CKvTableOwner().GetTableOwner().GetString() + kCountyTable +
           " where county_id = " + SqlLiteral(county);
}

}  // namespace

kv::db::LookUpsThrow::LookUpsThrow() {
    ++s_nThrowing;
}

kv::db::LookUpsThrow::~LookUpsThrow() {
    --s_nThrowing;
}

kv::db::CancelledLookUpsThrow::CancelledLookUpsThrow() {
    ++s_nCancelledThrowing;
}

kv::db::CancelledLookUpsThrow::~CancelledLookUpsThrow() {
    --s_nCancelledThrowing;
}

std::string CKvDbUtil::S_GetArea(const std::string& areaName, bool abbreviated) {
    using namespace kv::catalogue;
    return LookUp(std::string(), [&](CKvDbAbsDataMgr& manager) {
        return FirstOf(AreaCells(manager, "", abbreviated ? kColumnMmsCode : kColumnAreaCode,
                                 kColumnAreaName, areaName));
    });
}

std::string CKvDbUtil::S_GetAreaName(const std::string& areaCode, bool abbreviated) {
    using namespace kv::catalogue;
    return LookUp(std::string(), [&](CKvDbAbsDataMgr& manager) {
        return FirstOf(AreaCells(manager, "", abbreviated ? kColumnMmsCode : kColumnAreaName,
                                 kColumnAreaCode, areaCode));
    });
}

std::vector<std::string> CKvDbUtil::S_GetAreacodesFromMMS(const std::string& mmsCode) {
    using namespace kv::catalogue;
    return LookUp(std::vector<std::string>(), [&](CKvDbAbsDataMgr& manager) {
        return AreaCells(manager, "", kColumnAreaCode, kColumnMmsCode, mmsCode);
    });
}

std::string CKvDbUtil::S_GetAreacodeFromMMSandBlk(const std::string& mmsCode,
                                                  const std::string& block) {
    using namespace kv::catalogue;
    return LookUp(std::string(), [&](CKvDbAbsDataMgr& manager) {
        const std::vector<Found> blocks = BlocksIn(
            manager, "", AreaCells(manager, "", kColumnAreaCode, kColumnMmsCode, mmsCode), {block});
        const Found* found = WithLabel(blocks, block);
        return found ? found->areaCode : std::string();
    });
}

bool CKvDbUtil::S_GetLLBounds(std::string area, std::string block, std::string ext,
                              CMinMax2Dd_t& out, std::string dataset) {
    return LookUp(false, [&](CKvDbAbsDataMgr& manager) {
        const std::string corners = CornersOf(manager, dataset, area, block, ext);
        constexpr const char* kBounds = "min(lat), max(lat), min(lon), max(lon)";
        return !corners.empty() && ReadBounds(manager, FromCorners(kBounds, dataset, corners), out);
    });
}

bool CKvDbUtil::S_GetXYBounds(std::string area, std::string block, std::string ext,
                              CMinMax2Dd_t& out, int nProjection, std::string dataset, int nUnits) {
    return LookUp(false, [&](CKvDbAbsDataMgr& manager) {
        const std::string corners = CornersOf(manager, dataset, area, block, ext);
        if (corners.empty()) return false;
        manager.Select(FromCorners("lat, lon", dataset, corners));
        kv::ProjectedBounds bounds(nProjection, nUnits);
        for (int row = 0; row < manager.NumberOfRows(); ++row)
            bounds.Add(kv::Atof(manager.GetItem(row, 0)), kv::Atof(manager.GetItem(row, 1)));
        return bounds.Take(out);
    });
}

bool CKvDbUtil::S_GetLLBoundsOnshore(std::string county, CMinMax2Dd_t& out) {
    return LookUp(false, [&](CKvDbAbsDataMgr& manager) {
        return ReadBounds(manager, CountyQuery("min_lat, max_lat, min_lon, max_lon", county), out);
    });
}

bool CKvDbUtil::S_GetXYBoundsOnshore(std::string county, CMinMax2Dd_t& out, int nProjection,
                                     bool bFeet) {
    CMinMax2Dd_t angles;
    if (!S_GetLLBoundsOnshore(county, angles)) return false;
    kv::ProjectedBounds bounds(nProjection, bFeet ? kFeet : kMeters);
    bounds.AddBox(angles);
    return bounds.Take(out);
}

std::vector<Outline> CKvDbUtil::S_GetOutlines(const std::vector<Pick>& picks,
                                              const std::string& dataset) {
    return LookUp(std::vector<Outline>(picks.size()), [&](CKvDbAbsDataMgr& manager) {
        return OutlineReader(manager, dataset).Read(picks);
    });
}

int CKvDbUtil::S_GetProjectionByArea(std::string area, std::string dataset) {
    constexpr int kNone = -1;
    return LookUp(kNone, [&](CKvDbAbsDataMgr& manager) {
        const std::vector<std::string> areaCodes = AreaCodesOf(manager, dataset, area);
        if (areaCodes.empty()) return kNone;
        const std::vector<std::string> projections = ColumnOf(
            manager, "select projection from " + TableOf(dataset, kProjectionTable) +
                         " where areacode in " + QuotedList(areaCodes) + " order by areacode");
        return projections.empty() ? kNone : kv::Atoi(projections.front());
    });
}

void CKvDbUtil::S_GetCountyInfo(std::string county, std::string& state, std::string& name,
                                double& minLat, double& maxLat, double& minLon, double& maxLon,
                                int& projection, int& number, bool upperCase) {
    struct Record {
        std::string state;
        std::string name;
        CMinMax2Dd_t bounds;
        int projection = -1;
        int number = 0;
    };
    const Record record = LookUp(Record(), [&](CKvDbAbsDataMgr& manager) {
        Record read;
        if (!ReadBounds(manager,
                        CountyQuery("min_lat, max_lat, min_lon, max_lon, state, county_name, "
                                    "projection, county_no",
                                    county),
                        read.bounds)) {
            return read;
        }
        read.state = manager.GetItem(0, 4);
        read.name = manager.GetItem(0, 5);
        read.projection = kv::Atoi(manager.GetItem(0, 6));
        read.number = kv::Atoi(manager.GetItem(0, 7));
        return read;
    });
    state = record.state;
    name = upperCase ? kv::ToUpper(record.name) : record.name;
    minLat = record.bounds.minX;
    maxLat = record.bounds.maxX;
    minLon = record.bounds.minY;
    maxLon = record.bounds.maxY;
    projection = record.projection;
    number = record.number;
}
