#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/cstring.h"
#include "base/export.h"
#include "blocks/selection.h"
#include "frame/kvcom/disp_point.h"

class CKvDbAbsDataMgr;

/// Widens a block selection by the blocks that touch it.
///
/// The selection and the relation are the caller's, are worked on in place, and must outlive the
/// object; a copy works on the same ones.
class KVGUICTL_API CNeighborBlocks {
public:
    /// `type` says what the areas of the selection are: 0 area names, 1 area codes, anything else
    /// MMS codes. An empty owner stands for that of the application's own tables.
    CNeighborBlocks(kv::blocks::Selection& selection, kv::blocks::NeighborRelation& relation,
                    int type, std::string owner);
    CNeighborBlocks(const CNeighborBlocks&) = default;
    virtual ~CNeighborBlocks() = default;

    /// Adds to the selection each block that touches one of those selected, and makes the relation
    /// anew. Shows how far it has come and can be cancelled there. What cannot be searched is told
    /// in a message box, and the search goes on. False when the database failed, which is shown;
    /// the selection and the relation then keep what was found.
    bool PopulateNeighbor();

    /// Writes the relation into the temporary table, in place of this machine's earlier rows, but
    /// for neighbors that are themselves selected on this or any other machine. A failure is shown,
    /// ends it, and leaves the table as it was.
    void InsertMapToTable(kv::blocks::NeighborRelation& relation);

    /// Deletes this machine's rows from the table, whose name is taken as it stands. A failure is
    /// shown, and leaves the table as it was.
    void DeleteFromABE2(CString table);

protected:
    /// The statement that finds the blocks near one: those with a corner in its bounds, widened on
    /// each side by a fifth. The margin changes nothing.
    CString BuildQuery(CString area, CString block, int margin);

    int m_nAreaType;
    kv::blocks::Selection& m_pSelection;
    kv::blocks::NeighborRelation& m_pNeighborRel;
    /// Tables with their owner, by their bare names.
    std::map<CString, CString> m_mapTables;

private:
    std::size_t Entries() const;
    void Search(CKvDbAbsDataMgr& candidates, CKvDbAbsDataMgr& outlines);
    void SearchAround(const kv::blocks::Place& place, CKvDbAbsDataMgr& candidates,
                      CKvDbAbsDataMgr& outlines);
    void InsertRows(CKvDbAbsDataMgr& db, const kv::blocks::NeighborRelation& relation);
    bool AreTheyConnected(CKvDbAbsDataMgr& db, std::string area1, std::string block1,
                          std::string area2, std::string block2);
    const std::vector<CKvDispPoint>& OutlineOf(CKvDbAbsDataMgr& db, const kv::blocks::Place& place);
    void InsertToVectors(const std::string& area, const std::string& block);
    void InsertToMap(const std::string& area, const std::string& block,
                     const std::string& neighborArea, const std::string& neighborBlock);

    /// While a search runs.
    std::optional<kv::blocks::IndexedSelection> index_;
    std::size_t indexedEntries_ = 0;
    /// Likewise: those that were read, since a block is a candidate of each of its neighbors.
    std::map<kv::blocks::Place, std::vector<CKvDispPoint>> outlines_;
};
