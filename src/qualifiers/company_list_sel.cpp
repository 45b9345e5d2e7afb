#include "qualifiers/company_list_sel.h"

#include "qualifiers/list_sel_ids.h"

using namespace kv::list_sel;

const CKvGuiCompanyListSel::Role CKvGuiCompanyListSel::kRoles[5] = {
    {kOperator, &CKvGuiCompanyListSel::m_pOperator},
    {kLessee, &CKvGuiCompanyListSel::m_pLessee},
    {kBid, &CKvGuiCompanyListSel::m_pBid},
    {kOperatingRights, &CKvGuiCompanyListSel::m_pOperatingRights},
    {kDesignatedOperator, &CKvGuiCompanyListSel::m_pDesignatedOperator},
};

CKvGuiCompanyListSel::CKvGuiCompanyListSel(CWnd* parent)
    : CKvGuiListSel(kCompanyTemplate, parent) {}

CKvGuiCompanyListSel::CKvGuiCompanyListSel(const std::string& column, const std::string& table,
                                           CComboBox* combo, std::vector<std::string>& values,
                                           bool& isOperator, bool& isLessee, bool& isBid,
                                           bool& hasOperatingRights, bool& isDesignatedOperator,
                                           UINT templateId, CWnd* parent)
    : CKvGuiListSel(column, table, combo, values, templateId, parent),
      m_pDesignatedOperator(&isDesignatedOperator),
      m_pOperatingRights(&hasOperatingRights),
      m_pBid(&isBid),
      m_pLessee(&isLessee),
      m_pOperator(&isOperator) {}

BOOL CKvGuiCompanyListSel::OnInitDialog() {
    for (const Role& role : kRoles) {
        const bool* flag = this->*role.flag;
        if (flag && *flag) CheckDlgButton(role.id, BST_CHECKED);
    }
    return CKvGuiListSel::OnInitDialog();
}

void CKvGuiCompanyListSel::OnOK() {
    for (const Role& role : kRoles) {
        if (bool* flag = this->*role.flag) *flag = IsDlgButtonChecked(role.id) != 0;
    }
    CKvGuiListSel::OnOK();
}

const kv::MessageMap& CKvGuiCompanyListSel::Messages() {
    static const kv::MessageMap kMap{&CKvGuiListSel::Messages(), {}};
    return kMap;
}
