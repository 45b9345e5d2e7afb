#include "records/create_user_table.h"

#include <memory>

#include "base/text.h"
#include "frame/kvcom/misc.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/sql_literal.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "records/create_user_table_ids.h"

using namespace kv::create_user_table;

namespace {

constexpr const char* kTableKind = "WELL_COMMENT";
/// How long the end of a table of wells is, "_WELL_HDR".
constexpr std::size_t kWellTableEnd = 9;

void Show(const std::string& words) {
    AfxMessageBox(words.c_str(), 0, 0);
}

void UseLogin(CKvDbInfo login) {
    CKvDbAbsDataMgr(1).SetDbInfo(login);
}

/// Lets `read` look at the rows of a query. A failure is shown.
template <typename ReadRows>
void Ask(const std::string& sql, const ReadRows& read) {
    CKvDbAbsDataMgr manager(1);
    try {
        manager.Connect();
        manager.Select(sql);
        read(manager);
    } catch (const CKvException& failure) {
        kv::db::TellFailure(failure);
    }
    manager.FreeData();
    manager.Disconnect();
}

}  // namespace

CKvCreateUserTable::CKvCreateUserTable(CWnd* parent) : CDialog(kTemplate, parent) {}

void CKvCreateUserTable::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
}

BOOL CKvCreateUserTable::OnInitDialog() {
    CDialog::OnInitDialog();
    m_comboTable.SubclassDlgItem(kTable, this);
    m_comboDataset.SubclassDlgItem(kDataset, this);
    PopulateTableName();
    return TRUE;
}

void CKvCreateUserTable::PopulateTableName() {
    std::string user;
    std::string password;
    CKvMisc::GetParsedConnectString(user, password, m_sAlias, false);
    CKvMisc::GetParsedConnectString(user, password, m_sServer, true);
    SetDlgItemText(kUser, user.c_str());
    SetDlgItemText(kPasswordEdit, password.c_str());
    SetDlgItemText(kAlias, m_sAlias.c_str());
    UseLogin(Login());

    m_comboDataset.ResetContent();
    Ask("select table_name from all_tables where table_name like '%WELL_HDR' and owner='NORVADON'",
        [this](const CKvDbAbsDataMgr& tables) {
            for (int row = 0; row < tables.NumberOfRows(); ++row) {
                const std::string table = tables.GetItem(row, 0);
                if (table.size() <= kWellTableEnd) continue;
                m_comboDataset.AddString(table.substr(0, table.size() - kWellTableEnd).c_str());
            }
        });
    m_comboDataset.SetCurSel(0);
    m_comboTable.ResetContent();
    m_comboTable.SetCurSel(m_comboTable.AddString(kTableKind));
}

CKvDbInfo CKvCreateUserTable::Login() const {
    const std::string shown = DlgItemText(kAlias);
    // What is secret of a server's text is not shown.
    const std::string& server = shown == m_sAlias ? m_sServer : shown;
    return {DlgItemText(kUser).c_str(), DlgItemText(kPasswordEdit).c_str(), server.c_str()};
}

bool CKvCreateUserTable::IsTableExisted(std::string table) {
    UseLogin(Login());
    bool exists = false;
    Ask("select table_name from all_tables where table_name = " + kv::db::SqlLiteral(table) +
            " and owner='NORVADON'",
        [&](const CKvDbAbsDataMgr& tables) { exists = tables.NumberOfRows() > 0; });
    return exists;
}

bool CKvCreateUserTable::Create_Comment_Table() {
    const std::string dataset = m_comboDataset.WindowText();
    if (dataset.empty()) {
        Show("There is no dataset with wells to make a table of comments for.");
        return false;
    }
    const std::string table = dataset + "_" + kTableKind;
    if (IsTableExisted(table)) {
        Show(table + " - Table already existed");
        return false;
    }

    UseLogin(Login());
    // One for the process.
    static std::unique_ptr<CKvDbAbsDataMgr> manager;
    manager = std::make_unique<CKvDbAbsDataMgr>(1);
    try {
        manager->Connect();
        if (!manager->IsConnected()) {
            Show("CKvCreateUserTable::Create_Comment_Table - connect to database failed ");
            return false;
        }
        manager->ExecuteDDL("Create table NORVADON." + table +
                            "(ID VARCHAR2(20) NOT NULL ENABLE,REC_SEQ NUMBER NOT NULL ENABLE,"
                            "COMMENTS VARCHAR2(80),USER_ID VARCHAR2(20),REVISION_DATE DATE, "
                            "PRIMARY KEY (ID, REC_SEQ))");
        for (const char* right : {"ALTER", "DELETE", "INDEX", "INSERT", "UPDATE", "REFERENCES"})
            manager->ExecuteDML(std::string(" GRANT ") + right + " ON " + table + " TO PUBLIC;");
        manager->ExecuteDML(" Commit;");
        manager->Commit();
    } catch (const CKvException& failure) {
        manager->Rollback();
        kv::db::TellFailure(failure);
        return false;
    }
    return true;
}

void CKvCreateUserTable::OnOK() {
    Create_Comment_Table();
    CDialog::OnOK();
}
