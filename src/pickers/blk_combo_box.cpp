#include "pickers/blk_combo_box.h"

#include "frame/kvdbkvn/db_dataset_set.h"

namespace catalogue = kv::catalogue;

void CKvBlkComboBox::EnsureTables() {
    const std::string dataset =
        CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset();
    if (m_sAreaTable.empty()) m_sAreaTable = dataset + catalogue::kAreaTable;
    if (m_sBlockTable.empty()) m_sBlockTable = dataset + catalogue::kBlockTable;
}

void CKvBlkComboBox::V_InitializeCombo() {
    EnsureTables();
    std::string query = m_bIncludeAll ? catalogue::kSelectAllBlocks : "";
    query += catalogue::BlockLabelExpression() + "lbnum||lbext), lbnum from " + m_sBlockTable;

    const auto areaCodes = [this](const char* column) {
        return std::string("(select ") + catalogue::kColumnAreaCode + " from " + m_sAreaTable +
               " where " + column + " = '" + m_sArea + "')";
    };
    switch (m_nMode) {
        case catalogue::kAreaName:
            // A name stands for one area code.
            query += " where areacode = " + areaCodes(catalogue::kColumnAreaName) + "order by\t2";
            break;
        case catalogue::kAreaCode:
            query += " where areacode = '" + m_sArea + "'" + "order by 2";
            break;
        default:
            // An MMS code may stand for several.
            query += " where areacode in " + areaCodes(catalogue::kColumnMmsCode) + "order by 2";
            break;
    }
    FillFromQuery(query, true);
}

std::string CKvBlkComboBox::GetBlk(bool bStripSuffix) const {
    const std::string text = WindowText();
    return bStripSuffix ? catalogue::StripWaterSuffix(text) : text;
}
