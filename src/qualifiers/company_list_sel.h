#pragma once

#include "qualifiers/list_sel.h"

/// Selects companies, and the roles in which they count.
class KVGUICTL_API CKvGuiCompanyListSel : public CKvGuiListSel {
public:
    explicit CKvGuiCompanyListSel(CWnd* parent = nullptr);
    /// The flags are the caller's, in and out: written at OK.
    CKvGuiCompanyListSel(const std::string& column, const std::string& table, CComboBox* combo,
                         std::vector<std::string>& values, bool& isOperator, bool& isLessee,
                         bool& isBid, bool& hasOperatingRights, bool& isDesignatedOperator,
                         UINT templateId, CWnd* parent);

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    bool* m_pDesignatedOperator = nullptr;
    bool* m_pOperatingRights = nullptr;
    bool* m_pBid = nullptr;
    bool* m_pLessee = nullptr;
    bool* m_pOperator = nullptr;

private:
    struct Role {
        int id;
        bool* CKvGuiCompanyListSel::*flag;
    };
    static const Role kRoles[5];
};
