#pragma once

#include <string>

#include "frame/kvdbkvn/db_info.h"
#include "window/controls/combo_box.h"
#include "window/dialogs/dialog.h"

/// Makes the table of the users' comments on the wells of a dataset, dataset + "_WELL_COMMENT" of
/// the owner NORVADON, with a login of the user's own, and lets everybody change its rows. It
/// grants nobody to read them.
///
/// The login becomes the connection record in force, at the start the one that is shown and at OK
/// the one that was typed; a host that wants its own back saves it. The connection that made a
/// table stays open until the next one is made.
class KVGUICTL_API CKvCreateUserTable : public CDialog {
public:
    explicit CKvCreateUserTable(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* exchange) override;

protected:
    /// Shows the login in force, the datasets that have wells, and the kinds of tables.
    void PopulateTableName();
    /// What fails is shown. The answer says nothing where the statements were sent.
    bool Create_Comment_Table();
    /// Whether the login sees that table. A failure is shown, and then it does not.
    bool IsTableExisted(std::string table);

    CComboBox m_comboTable;
    CComboBox m_comboDataset;

private:
    CKvDbInfo Login() const;

    /// The server, and what is shown of it.
    std::string m_sServer;
    std::string m_sAlias;
};
