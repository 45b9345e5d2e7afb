#include "blocks/neighbor_blocks.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "controls/progress_dlg.h"
#include "frame/kvcom/exception.h"
#include "frame/kvcom/misc.h"
#include "frame/kvcom/util_geo.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/table_owner.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "window/dialogs/message_box.h"

using kv::blocks::NeighborRelation;
using kv::blocks::Place;
using kv::blocks::Selection;

namespace {

constexpr const char* kBlockTable = "gulf_mexico_lbi";
constexpr const char* kVertexTable = "gulf_mexico_lbv";
constexpr const char* kAreaTable = "gulf_mexico_connam2";
constexpr const char* kWorkTable = "nvd2000_tmp_abe2";

constexpr int kMargin = 10;
/// One statement inserts the rows of so many keys.
constexpr int kKeysPerInsert = 10;
/// More outlines are not kept; those of blocks far back are of no use.
constexpr std::size_t kMostOutlines = 10000;

/// How each kind of area is looked up, and what tells it in the work table.
struct AreaKind {
    const char* column;
    bool isNamed;
    const char* letter;
};

const AreaKind& KindOf(int type) {
    static constexpr AreaKind kNames{"areaname", true, "N"};
    static constexpr AreaKind kCodes{"areacode", false, "C"};
    static constexpr AreaKind kMmsCodes{"area_abbr", true, "M"};
    switch (type) {
        case 0:
            return kNames;
        case 1:
            return kCodes;
        default:
            return kMmsCodes;
    }
}

using Tables = std::map<CString, CString>;

std::string TablesOf(const AreaKind& kind, const Tables& tables) {
    const std::string areas = kind.isNamed ? ", " + tables.at(kAreaTable).str() + " c " : "";
    return tables.at(kBlockTable).str() + " i, " + tables.at(kVertexTable).str() + " v" +
           (areas.empty() ? " " : areas);
}

void Show(const std::string& words) {
    AfxMessageBox(words.c_str(), 0, 0);
}

void Close(CKvDbAbsDataMgr& db) {
    db.FreeData();
    db.Disconnect();
}

/// Lets `change` work on a connection, and keeps all that it changed or, on a failure, which is
/// shown, nothing.
template <typename Change>
void ChangeWhole(const Change& change) {
    CKvDbAbsDataMgr db(1);
    try {
        db.Connect();
        change(db);
        db.Commit();
    } catch (const CKvException& failure) {
        // Ahead of the box, which may stand for long: others wait for what is locked.
        db.Rollback();
        kv::db::TellFailure(failure);
    }
    Close(db);
}

std::string DeleteOfMachine(const std::string& table) {
    return "delete from " + table + " where machine_ID = '" + CKvMisc::GetMachineID(true).str() +
           "'";
}

/// The rows that are held.
std::vector<CKvDispPoint> CornersIn(const CKvDbAbsDataMgr& db) {
    std::vector<CKvDispPoint> outline;
    outline.reserve(static_cast<std::size_t>(db.NumberOfRows()));
    for (int row = 0; row < db.NumberOfRows(); ++row)
        outline.emplace_back(db.GetItem(row, 0), db.GetItem(row, 1), "0", true);
    return outline;
}

}  // namespace

CNeighborBlocks::CNeighborBlocks(Selection& selection, NeighborRelation& relation, int type,
                                 std::string owner)
    : m_nAreaType(type), m_pSelection(selection), m_pNeighborRel(relation) {
    if (owner.empty()) owner = CKvTableOwner().GetTableOwner().str();
    for (const char* table : {kBlockTable, kVertexTable, kAreaTable, kWorkTable})
        m_mapTables[table] = owner + "." + table;
}

CString CNeighborBlocks::BuildQuery(CString area, CString block, int /*margin*/) {
    static constexpr const char* kAxes[] = {"lat", "lat", "lon", "lon"};
    static constexpr const char* kBounds[] = {"max", "min", "max", "min"};
    static constexpr const char kComparisons[] = "<><>";
    static constexpr const char kSigns[] = "+-+-";

    const AreaKind& kind = KindOf(m_nAreaType);
    const std::string column = kind.column;
    const std::string from = TablesOf(kind, m_mapTables) + "where i.refnum = v.refnum " +
                             (kind.isNamed ? "and c.stcode = i.areacode " : "");
    std::string query = "select distinct " + column + ", lbnum||lbext from " + from;
    for (std::size_t i = 0; i < std::size(kAxes); ++i) {
        const std::string axis = kAxes[i];
        query += " and " + axis + " " + kComparisons[i] + " (select " + kBounds[i] + "(" + axis +
                 ") " + kSigns[i] + " (max(" + axis + ") - min(" + axis + "))/5 from " + from +
                 "and " + column + "='" + area.str() + "' and lbnum||lbext = '" + block.str() +
                 "')";
    }
    return query;
}

bool CNeighborBlocks::PopulateNeighbor() {
    CKvDbAbsDataMgr candidates(1);
    CKvDbAbsDataMgr outlines(1);
    bool isWhole = true;
    try {
        candidates.Connect();
        outlines.Connect();
        Search(candidates, outlines);
    } catch (const CKvException& failure) {
        kv::db::TellFailure(failure);
        isWhole = false;
    }
    index_.reset();
    outlines_.clear();
    Close(candidates);
    Close(outlines);
    return isWhole;
}

std::size_t CNeighborBlocks::Entries() const {
    return std::min(m_pSelection.first.size(), m_pSelection.second.size());
}

void CNeighborBlocks::Search(CKvDbAbsDataMgr& candidates, CKvDbAbsDataMgr& outlines) {
    // Those that are added are not searched themselves.
    const std::size_t count = Entries();
    m_pNeighborRel.clear();
    if (count == 0) return;
    CKvGuiProgressDlg progress(0);
    progress.SetRange(0, static_cast<int>(count));
    progress.SetStep(1);
    progress.Create(CWnd::GetActiveWindow());
    for (std::size_t i = 0; i < count; ++i) {
        if (progress.CheckCancelButton() || i >= Entries()) break;
        SearchAround({m_pSelection.first[i], m_pSelection.second[i]}, candidates, outlines);
        progress.StepIt();
        candidates.FreeData();
    }
}

void CNeighborBlocks::SearchAround(const Place& place, CKvDbAbsDataMgr& candidates,
                                   CKvDbAbsDataMgr& outlines) {
    const auto& [area, block] = place;
    if (outlines_.size() > kMostOutlines) outlines_.clear();
    candidates.Select(BuildQuery(area, block, kMargin).str());
    if (candidates.NumberOfRows() == 0) {
        Show(block.empty() ? "Operation skipped for area " + area + "\nPlease provide block number"
                           : "No Matches found for area " + area + " block " + block);
    }
    for (int row = 0; row < candidates.NumberOfRows(); ++row) {
        const std::string nearArea = candidates.GetItem(row, 0);
        const std::string nearBlock = candidates.GetItem(row, 1);
        if (nearArea.empty()) {
            Show("The area is blank for the block " + nearBlock);
        } else if (AreTheyConnected(outlines, area, block, nearArea, nearBlock)) {
            InsertToVectors(nearArea, nearBlock);
            InsertToMap(area, block, nearArea, nearBlock);
        }
    }
}

bool CNeighborBlocks::AreTheyConnected(CKvDbAbsDataMgr& db, std::string area1, std::string block1,
                                       std::string area2, std::string block2) {
    const std::vector<CKvDispPoint>& first = OutlineOf(db, {area1, block1});
    const std::vector<CKvDispPoint>& second = OutlineOf(db, {area2, block2});
    const CKvUtilGeo geo;
    return geo.AreTheyAdjacent(first, second) || geo.AreTheyAdjoining(first, second);
}

const std::vector<CKvDispPoint>& CNeighborBlocks::OutlineOf(CKvDbAbsDataMgr& db,
                                                            const Place& place) {
    if (const auto known = outlines_.find(place); known != outlines_.end()) return known->second;
    const AreaKind& kind = KindOf(m_nAreaType);
    const auto& [area, block] = place;
    db.FreeData();
    db.Select("select lat, lon from " + m_mapTables.at(kBlockTable).str() + " i, " +
              m_mapTables.at(kVertexTable).str() + " v " +
              (kind.isNamed ? ", " + m_mapTables.at(kAreaTable).str() + " c " : "") +
              "where i.refnum = v.refnum " + (kind.isNamed ? " and c.stcode = i.areacode " : "") +
              " and " + kind.column + " = '" + area + "' and lbnum||lbext = '" + block +
              "' order by ptnum");
    return outlines_[place] = CornersIn(db);
}

void CNeighborBlocks::InsertToVectors(const std::string& area, const std::string& block) {
    if (!index_ || m_pSelection.first.size() != indexedEntries_ ||
        m_pSelection.second.size() != indexedEntries_) {
        index_.emplace(m_pSelection);
    }
    index_->Add(area, block);
    indexedEntries_ = m_pSelection.first.size();
}

void CNeighborBlocks::InsertToMap(const std::string& area, const std::string& block,
                                  const std::string& neighborArea,
                                  const std::string& neighborBlock) {
    m_pNeighborRel[{area, block}].emplace_back(neighborArea, neighborBlock);
}

void CNeighborBlocks::InsertMapToTable(NeighborRelation& relation) {
    const std::string table = m_mapTables.at(kWorkTable).str();
    ChangeWhole([&](CKvDbAbsDataMgr& db) {
        db.Delete(DeleteOfMachine(table));
        InsertRows(db, relation);
        db.Delete("delete from " + table +
                  " where (n_area, n_bext) in (select o_area, o_bext from " + table + ")");
    });
}

void CNeighborBlocks::InsertRows(CKvDbAbsDataMgr& db, const NeighborRelation& relation) {
    const std::string head = "(select '" + CKvMisc::GetMachineID(true).str() + "','";
    const std::string type = KindOf(m_nAreaType).letter;
    const std::string start = "insert into " + m_mapTables.at(kWorkTable).str();
    std::string statement = start;
    int keys = 0;
    // A key without neighbors has no row.
    const auto insert = [&] {
        if (statement.size() > start.size()) db.Insert(statement);
        statement = start;
    };
    for (const auto& [place, neighbors] : relation) {
        for (const auto& [area, block] : neighbors) {
            if (statement.size() > start.size()) statement += " union ";
            statement += head + place.first + "','" + place.second + "','" + area + "','" + block +
                         "','" + type + "' from dual) ";
        }
        if (++keys % kKeysPerInsert == 0) insert();
    }
    insert();
}

void CNeighborBlocks::DeleteFromABE2(CString table) {
    ChangeWhole([&](CKvDbAbsDataMgr& db) { db.Delete(DeleteOfMachine(table.str())); });
}
