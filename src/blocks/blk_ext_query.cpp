// The statements that fill the lists of areas and of blocks.

#include "blocks/blk_ext_dlg.h"
#include "blocks/dyn_blk_ext_dlg.h"
#include "frame/catalogue.h"
#include "frame/kvdbkvn/db_dataset_set.h"

using kv::catalogue::kColumnAreaCode;
using kv::catalogue::kColumnAreaName;
using kv::catalogue::kColumnMmsCode;

namespace {

const std::string kStcode = kColumnAreaCode;

/// The text before the first "||", if there is any.
std::string NumberPart(const std::string& block) {
    const std::string number = block.substr(0, block.find("||"));
    return number.empty() ? block : number;
}

}  // namespace

std::string CKvGuiBlkExtDlg::GetAreaQuery(const std::string& pattern) {
    return "select distinct " + m_sFieldString + " from " + m_sTableName + " where " +
           m_sFieldString + " like '" + pattern + "'";
}

std::string CKvGuiBlkExtDlg::GetBlkExtQuery(const std::string& area) {
    const std::string stem = m_sOwner + "." + CKvDbDatasetSet::S_GetGlobalDataset();
    const std::string blocks = kv::catalogue::BlockLabelExpression() + "lbnum||lbext) from " +
                               stem + kv::catalogue::kBlockTable + " where areacode ";
    const std::string codes = "(select stcode from " + stem + kv::catalogue::kAreaTable + " where ";
    if (m_sFieldString == kColumnAreaName) {
        return blocks + "= " + codes + "areaname = '" + area + "')order by\tto_number(lbnum)";
    }
    if (m_sFieldString == kColumnAreaCode) {
        return blocks + "= '" + area + "'order by to_number(lbnum)";
    }
    return blocks + "in " + codes + "area_abbr = '" + area + "')order by to_number(lbnum)";
}

// Of a table that the caller names.

std::string CKvGuiDynBlkExtDlg::GetAreaQuery(const std::string& pattern) {
    const bool byCode = m_sFieldString == kColumnAreaCode;
    const bool byName = m_sFieldString == kColumnAreaName;
    std::string match = kStcode + " = abe." + m_first.area;
    if (!m_bSingle) {
        // Only area codes have a blank behind the second equals sign.
        match =
            "(" + match + " or " + kStcode + (byCode ? " = abe." : " =abe.") + m_second.area + ")";
    }
    const std::string searched = byCode   ? kColumnAreaCode
                                 : byName ? kColumnAreaName
                                          : kColumnMmsCode;
    return "select distinct " + m_sFieldString + " from " + m_sTableName + " c, " + m_sAbeTable +
           " abe where " + match + " and c." + searched + " like '" + pattern + "%'";
}

std::string CKvGuiDynBlkExtDlg::BlocksBy(const Columns& columns, const std::string& area) const {
    const bool byCode = m_sFieldString == kColumnAreaCode;
    const std::string select =
        std::string(byCode ? "select decode(substr(" : "select decode(substr(a.") + columns.area +
        ", 1, 3), '426', " + columns.block + "|| '-S'," +
        kv::catalogue::WaterBranches(columns.block) + columns.block + ")," +
        NumberPart(columns.block) + " from " + m_sAbeTable;
    if (byCode) return select + " where " + columns.area + " = '" + area + "'";
    return select + " a, " + m_sTableName + " c where c." + kStcode + " = a." + columns.area +
           " and " + m_sFieldString + " = '" + area + "'";
}

std::string CKvGuiDynBlkExtDlg::GetBlkExtQuery(const std::string& area) {
    std::string query = BlocksBy(m_first, area);
    if (!m_bSingle) query += " union " + BlocksBy(m_second, area);
    return query + " order by 2";
}
