#include "pickers/blk_combo_box.h"

#include <utility>

#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/sql_literal.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "window/dialog_keys.h"

namespace catalogue = kv::catalogue;

namespace {

CKvDbInfo ConnectionInForce() {
    std::string user;
    std::string password;
    std::string server;
    CKvMisc::GetParsedConnectString(user, password, server, true);
    return {user.c_str(), password.c_str(), server.c_str()};
}

}  // namespace

void CKvBlkComboBox::EnsureTables() {
    const std::string dataset =
        CKvDbDatasetSet::S_GetGlobalOwner() + "." + CKvDbDatasetSet::S_GetGlobalDataset();
    if (m_sAreaTable.empty()) m_sAreaTable = dataset + catalogue::kAreaTable;
    if (m_sBlockTable.empty()) m_sBlockTable = dataset + catalogue::kBlockTable;
}

std::string CKvBlkComboBox::BlockQuery() const {
    return BlockQuery("select decode(", m_sBlockTable, m_sArea, "");
}

std::string CKvBlkComboBox::BlockQuery(std::string_view select, const std::string& tables,
                                       const std::string& area,
                                       const std::string& condition) const {
    std::string query = m_bIncludeAll ? catalogue::kSelectAllBlocks : "";
    query += catalogue::BlockLabelExpression(select) + "lbnum||lbext), lbnum from " + tables;

    const auto areaCodes = [&](const char* column) {
        return std::string("(select ") + catalogue::kColumnAreaCode + " from " + m_sAreaTable +
               " where " + column + " = " + kv::db::SqlLiteral(area) + ")";
    };
    switch (m_nMode) {
        case catalogue::kAreaName:
            // A name stands for one area code.
            return query + " where areacode = " + areaCodes(catalogue::kColumnAreaName) +
                   condition + "order by\t2";
        case catalogue::kAreaCode:
            return query + " where areacode = " + kv::db::SqlLiteral(area) + condition +
                   "order by 2";
        default:
            // An MMS code may stand for several.
            return query + " where areacode in " + areaCodes(catalogue::kColumnMmsCode) +
                   condition + "order by 2";
    }
}

void CKvBlkComboBox::V_InitializeCombo() {
    EnsureTables();
    const std::string query = BlockQuery();
    m_filling.reset();
    // One that was cancelled is asked anew by dropping the list, and not by passing by.
    if (FillFromQuery(query, true) || kv::db::SaysCancelled(*this))
        m_filling = Filling{query, ConnectionInForce(), GetCount()};
}

bool CKvBlkComboBox::IsFilled() const {
    return m_filling && m_filling->statement == BlockQuery() && m_filling->rows == GetCount() &&
           m_filling->connection == ConnectionInForce();
}

void CKvBlkComboBox::SetFocusBehindTyping() {
    m_bCameByTyping = true;
    SetFocus();
}

BOOL CKvBlkComboBox::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN || message->message == WM_LBUTTONDOWN) {
        const bool behindTyping = std::exchange(m_bCameByTyping, false);
        const bool tab = message->message == WM_KEYDOWN && message->wParam == VK_TAB;
        if (behindTyping && tab && !kv::CurrentModifiers().shift) return TRUE;
    }
    return CKvDbComboBox::PreTranslateMessage(message);
}

std::string CKvBlkComboBox::GetBlk(bool bStripSuffix) const {
    const std::string text = WindowText();
    return bStripSuffix ? catalogue::StripWaterSuffix(text) : text;
}
