#include "blocks/import_config_dlg.h"

#include "blocks/import_config_ids.h"

using namespace kv::import_config;

namespace {

struct AreaChoice {
    int id;
    const char* column;
};
constexpr AreaChoice kAreaChoices[] = {
    {kAreaNames, "areaname"}, {kAreaCodes, "stcode"}, {kMmsCodes, "area_abbr"}};

}  // namespace

CKvImportConfigDlg::CKvImportConfigDlg(CWnd* parent) : CDialog(kTemplate, parent) {}

std::string CKvImportConfigDlg::GetColumnDelimiter() const {
    return m_bTab ? "\t" : m_sColumnDelimiter;
}

std::string CKvImportConfigDlg::GetExtDelimiter() const {
    return m_bHasExtDelimiter ? m_sExtDelimiter : "";
}

BOOL CKvImportConfigDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    for (const auto& [id, column] : kAreaChoices)
        CheckDlgButton(id, m_sAreaType == column);
    CheckDlgButton(kBlockFirst, m_bBlockFirst);
    CheckDlgButton(kExtFirst, !m_bBlockFirst);
    CheckDlgButton(kHasExtDelimiter, m_bHasExtDelimiter);
    CheckDlgButton(kNoExtDelimiter, !m_bHasExtDelimiter);
    CheckDlgButton(kTab, m_bTab);
    SetDlgItemText(kExtDelimiter, m_sExtDelimiter.c_str());
    SetDlgItemText(kColumnDelimiter, m_sColumnDelimiter.c_str());
    EnableEdits();
    return TRUE;
}

void CKvImportConfigDlg::OnOK() {
    m_sExtDelimiter = DlgItemText(kExtDelimiter);
    m_sColumnDelimiter = DlgItemText(kColumnDelimiter);
    m_bHasExtDelimiter = IsDlgButtonChecked(kHasExtDelimiter);
    m_bBlockFirst = IsDlgButtonChecked(kBlockFirst);
    m_bTab = IsDlgButtonChecked(kTab);
    for (const auto& [id, column] : kAreaChoices) {
        if (IsDlgButtonChecked(id)) m_sAreaType = column;
    }
    CDialog::OnOK();
}

void CKvImportConfigDlg::EnableEdits() {
    const BOOL hasExtDelimiter = IsDlgButtonChecked(kHasExtDelimiter) != 0;
    const BOOL hasColumnDelimiter = IsDlgButtonChecked(kTab) == 0;
    GetDlgItem(kExtDelimiter)->EnableWindow(hasExtDelimiter);
    GetDlgItem(kColumnDelimiterLabel)->EnableWindow(hasColumnDelimiter);
    GetDlgItem(kColumnDelimiter)->EnableWindow(hasColumnDelimiter);
}

const kv::MessageMap& CKvImportConfigDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvImportConfigDlg::OnDelimiterChoice>(kHasExtDelimiter),
        kv::OnClicked<&CKvImportConfigDlg::OnDelimiterChoice>(kNoExtDelimiter),
        kv::OnClicked<&CKvImportConfigDlg::OnTabCheck>(kTab),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
