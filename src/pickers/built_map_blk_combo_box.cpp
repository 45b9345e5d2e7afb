#include "pickers/built_map_blk_combo_box.h"

#include "frame/kvdbkvn/db_dataset_set.h"
#include "pickers/inside_map.h"

std::string CKvBuiltMapBlkComboBox::BlockQuery() const {
    const std::string vertices = CKvDbDatasetSet::S_GetGlobalOwner() + "." +
                                 CKvDbDatasetSet::S_GetGlobalDataset() +
                                 kv::catalogue::kVertexTable;
    return BlockQuery(
        "select distinct decode(", m_sBlockTable + " I, " + vertices + " V ", m_sArea,
        " and (I.refnum = V.refnum)" +
            kv::pickers::InsideMap(GetMinLat(), GetMaxLat(), GetMinLon(), GetMaxLon()));
}
