#include "qualifiers/list_sel.h"

#include "base/text.h"
#include "frame/catalogue.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "qualifiers/list_rows.h"
#include "qualifiers/list_sel_ids.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/controls/list_box.h"

using namespace kv::list_sel;

CKvGuiListSel::CKvGuiListSel(CWnd* parent) : CDialog(kTemplate, parent) {}

CKvGuiListSel::CKvGuiListSel(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

CKvGuiListSel::CKvGuiListSel(const std::string& column, const std::string& table, CComboBox* combo,
                             std::vector<std::string>& values, UINT templateId, CWnd* parent)
    : CDialog(templateId, parent),
      m_sColumn(column),
      m_sTable(table),
      m_pValues(&values),
      m_pCombo(combo) {}

CKvGuiListSel::CKvGuiListSel(const std::string& column1, const std::string& column2,
                             const std::string& table, bool twoColumns, CComboBox* combo,
                             std::vector<std::string>& values, UINT templateId, CWnd* parent)
    : CDialog(templateId, parent),
      m_sColumn1(column1),
      m_sColumn2(column2),
      m_sTable(table),
      m_bTwoColumns(twoColumns),
      m_pValues(&values),
      m_pCombo(combo) {}

CKvGuiListSel::CKvGuiListSel(const std::string& column, const std::string& table, CEdit* edit,
                             std::vector<std::string>& values, CWnd* parent)
    : CDialog(kTemplate, parent),
      m_sColumn(column),
      m_sTable(table),
      m_pValues(&values),
      m_pEdit(edit) {}

CKvGuiListSel::CKvGuiListSel(const std::string& column1, const std::string& column2,
                             const std::string& table, bool twoColumns, CEdit* edit,
                             std::vector<std::string>& values, CWnd* parent)
    : CDialog(kTemplate, parent),
      m_sColumn1(column1),
      m_sColumn2(column2),
      m_sTable(table),
      m_bTwoColumns(twoColumns),
      m_pValues(&values),
      m_pEdit(edit) {}

void CKvGuiListSel::MakeComboType(CComboBox* combo, std::vector<std::string>& values) {
    m_pCombo = combo;
    m_pEdit = nullptr;
    m_pValues = &values;
}

void CKvGuiListSel::MakeEditType(CEdit* edit, std::vector<std::string>& values) {
    m_pEdit = edit;
    m_pCombo = nullptr;
    m_pValues = &values;
}

CListBox& CKvGuiListSel::Available() const {
    return Control<CListBox>(kAvailable);
}

CListBox& CKvGuiListSel::Selected() const {
    return Control<CListBox>(kSelected);
}

std::string CKvGuiListSel::FindText() const {
    return kv::ToUpper(DlgItemText(kFind));
}

CWnd* CKvGuiListSel::CallersControl() const {
    return m_pCombo ? static_cast<CWnd*>(m_pCombo) : static_cast<CWnd*>(m_pEdit);
}

BOOL CKvGuiListSel::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckDlgButton(kSearchMode, BST_CHECKED);

    const std::string shown =
        CallersControl() ? kv::Trim(CallersControl()->WindowText()) : std::string();
    if (shown.empty()) {
        m_pValues->clear();
        m_bListFile = false;
    } else if (shown != kv::catalogue::kListMarker) {
        Selected().AddString(shown.c_str());
        m_pValues->clear();
    }

    CheckDlgButton(kContain, BST_CHECKED);
    ParseSelectedItems();
    UpdateActionButtons();

    if (!m_bEnableFileButton) {
        CheckDlgButton(kListFileCheck, BST_UNCHECKED);
        Control<CWnd>(kListFileCheck).EnableWindow(FALSE);
        Control<CWnd>(kListFileButton).EnableWindow(FALSE);
    } else {
        CheckDlgButton(kListFileCheck, !m_sListFile.empty() && m_bListFile);
    }
    return TRUE;
}

void CKvGuiListSel::ParseSelectedItems() {
    for (const std::string& value : *m_pValues)
        Selected().AddString(value.c_str());
}

void CKvGuiListSel::UpdateActionButtons() {
    const auto hasCurrentRow = [](const CListBox& list) {
        return list.GetCount() > 0 && list.GetCurSel() != LB_ERR;
    };
    Control<CWnd>(kSearch).EnableWindow(TRUE);
    Control<CWnd>(kClear).EnableWindow(Selected().GetCount() > 0);
    Control<CWnd>(kAdd).EnableWindow(hasCurrentRow(Available()));
    Control<CWnd>(kRemove).EnableWindow(hasCurrentRow(Selected()));
    if (IsDlgButtonChecked(kSearchMode)) {
        OnRadioSearch();
    } else {
        OnRadioInsert();
    }
}

void CKvGuiListSel::OnRadioSearch() {
    SetDlgItemText(kSearch, "Search...");
    SetDlgItemText(kFindLabel, "Find");
}

void CKvGuiListSel::OnRadioInsert() {
    SetDlgItemText(kSearch, "Insert...");
    SetDlgItemText(kFindLabel, "Insert");
}

void CKvGuiListSel::OnSelchangeAvailList() {
    UpdateActionButtons();
}

void CKvGuiListSel::OnSelchangeSelectList() {
    UpdateActionButtons();
}

void CKvGuiListSel::OnChangeFindEdit() {
    m_bFindMatch = Available().FindString(-1, DlgItemText(kFind).c_str()) != LB_ERR;
    UpdateActionButtons();
}

void CKvGuiListSel::OnSearchButton() {
    if (IsDlgButtonChecked(kSearchMode)) {
        Search();
    } else {
        Insert();
    }
}

void CKvGuiListSel::Search() {
    CKvDbAbsDataMgr manager(1);
    bool searched = false;
    try {
        manager.Connect();
        const std::string sql = V_SqlQuery();
        if (!sql.empty()) {
            manager.Select(sql);
            ShowFound(manager);
            searched = true;
        }
    } catch (const CKvException& e) {
        kv::db::TellFailure(e, Available());
    }
    manager.FreeData();
    manager.Disconnect();
    // What failed was told, and leaves the selection as it was. A text that no row begins with
    // gives the index -1, which selects every row.
    if (searched) Available().SetSel(Available().FindString(-1, FindText().c_str()), TRUE);
    UpdateActionButtons();
}

void CKvGuiListSel::ShowFound(const CKvDbAbsDataMgr& found) {
    CListBox& available = Available();
    const int rows = found.NumberOfRows();
    if (rows == 0) AfxMessageBox("No Matches found!", 0, 0);
    available.ResetContent();
    kv::db::ShowAskedAnew(available);
    RowBeginnings selected(Selected());
    for (int row = 0; row < rows; ++row) {
        // A row that some row of Selected merely begins with is held back, too.
        const char* text = found.GetItem(row, 0);
        if (!selected.AnyBeginsWith(text)) available.AddString(text);
    }
}

void CKvGuiListSel::Insert() {
    const std::string text = FindText();
    if (text.empty()) {
        AfxMessageBox("Error! The string is blank!!", 0, 0);
    } else if (Selected().FindStringExact(-1, text.c_str()) != LB_ERR) {
        AfxMessageBox("The string has already been added!!", 0, 0);
    } else {
        Selected().AddString(text.c_str());
        UpdateActionButtons();
    }
    Control<CEdit>(kFind).SetSel(0, -1);
}

void CKvGuiListSel::OnAdd() {
    MoveSelectedRows(Available(), Selected(), true);
    Selected().SetSel(-1, FALSE);
    Selected().SetSel(Selected().GetCount() - 1, TRUE);
    UpdateActionButtons();
}

void CKvGuiListSel::OnRemove() {
    MoveSelectedRows(Selected(), Available(), false);
    UpdateActionButtons();
}

void CKvGuiListSel::RemoveAll() {
    while (Selected().GetCount() > 0) {
        const int before = Selected().GetCount();
        Selected().SetSel(0, TRUE);
        CKvGuiListSel::OnRemove();
        if (Selected().GetCount() == before) break;
    }
}

void CKvGuiListSel::OnClearButton() {
    RemoveAll();
}

std::string CKvGuiListSel::CallersText() const {
    if (m_bListFile || m_pValues->size() > 1) return kv::catalogue::kListMarker;
    return m_pValues->empty() ? std::string() : m_pValues->front();
}

void CKvGuiListSel::OnOK() {
    *m_pValues = RowsOf(Selected());
    if (HasDlgItem(kListFileCheck)) m_bListFile = IsDlgButtonChecked(kListFileCheck) != 0;
    if (CWnd* control = CallersControl()) control->SetWindowText(CallersText().c_str());
    CDialog::OnOK();
}

const kv::MessageMap& CKvGuiListSel::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvGuiListSel::OnRadioSearch>(kSearchMode),
        kv::OnClicked<&CKvGuiListSel::OnRadioInsert>(kInsertMode),
        kv::OnClicked<&CKvGuiListSel::OnAdd>(kAdd),
        kv::OnClicked<&CKvGuiListSel::OnRemove>(kRemove),
        kv::OnControl<&CKvGuiListSel::OnSelchangeAvailList>(LBN_SELCHANGE, kAvailable),
        kv::OnControl<&CKvGuiListSel::OnSelchangeSelectList>(LBN_SELCHANGE, kSelected),
        kv::OnControl<&CKvGuiListSel::OnChangeFindEdit>(EN_CHANGE, kFind),
        kv::OnClicked<&CKvGuiListSel::OnClearButton>(kClear),
        kv::OnClicked<&CKvGuiListSel::OnSearchClicked>(kSearch),
        kv::OnClicked<&CKvGuiListSel::OnImportButton>(kImport),
        kv::OnClicked<&CKvGuiListSel::OnExportButton>(kExport),
        kv::OnClicked<&CKvGuiListSel::OnButtonListFile>(kListFileButton),
        kv::OnClicked<&CKvGuiListSel::OnCheckListFile>(kListFileCheck),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
