#include "blocks/blk_ext_dlg.h"

#include <algorithm>
#include <functional>
#include <new>
#include <utility>

#include "base/text.h"
#include "blocks/blk_ext_ids.h"
#include "blocks/block_file.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/db_dataset_set.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "window/controls/edit.h"
#include "window/dialog_keys.h"

using namespace kv::blk_ext;
using kv::blocks::IndexedSelection;

namespace {

std::vector<std::string> SelectedTexts(const CListBox& list) {
    std::vector<int> rows(static_cast<std::size_t>(std::max(list.GetSelCount(), 0)));
    if (!rows.empty()) list.GetSelItems(static_cast<int>(rows.size()), rows.data());
    std::vector<std::string> texts;
    texts.reserve(rows.size());
    CString text;
    for (const int row : rows) {
        list.GetText(row, text);
        texts.push_back(text.str());
    }
    return texts;
}

/// Deletes the row of each text, and selects the one that took the place of the last of them.
void DeleteRows(CListBox& list, const std::vector<std::string>& texts) {
    int last = LB_ERR;
    for (const std::string& text : texts) {
        const int row = list.FindStringExact(-1, text.c_str());
        if (row == LB_ERR) continue;
        list.DeleteString(static_cast<UINT>(row));
        last = row;
    }
    if (last != LB_ERR && list.GetCount() > 0) {
        list.SetSel(std::min(last, list.GetCount() - 1), TRUE);
    }
}

/// Runs a statement and fills a list with its first column, but for what is held back. False when
/// the database failed, which is told.
bool FillList(CListBox& list, const std::string& sql,
              const std::function<bool(const char*)>& isHeldBack) {
    CKvDbAbsDataMgr manager(1);
    bool filled = false;
    try {
        manager.Connect();
        manager.Select(sql);
        const int rows = manager.NumberOfRows();
        if (rows == 0) AfxMessageBox("No Matches found!", 0, 0);
        list.ResetContent();
        kv::db::ShowAskedAnew(list);
        for (int row = 0; row < rows; ++row) {
            const char* text = manager.GetItem(row, 0);
            if (!isHeldBack(text)) list.AddString(text);
        }
        filled = true;
    } catch (const CKvException& e) {
        kv::db::TellFailure(e, list);
    }
    manager.FreeData();
    manager.Disconnect();
    return filled;
}

std::vector<int> SelectedRows(const CListCtrl& list) {
    std::vector<int> rows;
    for (int row = list.GetNextItem(-1, LVNI_SELECTED); row >= 0;
         row = list.GetNextItem(row, LVNI_SELECTED)) {
        rows.push_back(row);
    }
    return rows;
}

}  // namespace

CKvGuiBlkExtDlg::CKvGuiBlkExtDlg(CWnd* parent) : CDialog(kTemplate, parent) {}

CKvGuiBlkExtDlg::CKvGuiBlkExtDlg(UINT templateId, CWnd* parent) : CDialog(templateId, parent) {}

CKvGuiBlkExtDlg::~CKvGuiBlkExtDlg() = default;

void CKvGuiBlkExtDlg::SetType(kv::blocks::Selection& selection, std::string owner) {
    m_pSelection = &selection;
    m_sOwner = owner.empty() ? CKvDbDatasetSet::S_GetGlobalOwner() : std::move(owner);
}

void CKvGuiBlkExtDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
}

BOOL CKvGuiBlkExtDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckDlgButton(kSearchMode, BST_CHECKED);
    UpdateActionButtons();

    m_listAvail.SubclassDlgItem(kAvailable, this);
    m_listExt.SubclassDlgItem(kBlocks, this);
    m_listSelected.SubclassDlgItem(kSelected, this);
    V_PopulateSelectedListBoxColumns();
    OnChangeAreatype();
    RefreshSelectedListBox();

    const auto& [areas, blocks] = *m_pSelection;
    if (areas.size() < 2 && blocks.size() < 2) m_mapNeighborRel.clear();
    CheckDlgButton(kContain, BST_CHECKED);
    m_mapNeighborSaved = m_mapNeighborRel;
    if (HasDlgItem(kListFileCheck)) CheckDlgButton(kListFileCheck, m_bListFile);
    return TRUE;
}

void CKvGuiBlkExtDlg::V_PopulateSelectedListBoxColumns() {
    InsertSelectedColumns(200, 120);
}

void CKvGuiBlkExtDlg::InsertSelectedColumns(int areaWidth, int blockWidth) {
    m_listSelected.InsertColumn(0, "Selected Area", LVCFMT_LEFT, areaWidth);
    m_listSelected.InsertColumn(1, "Block/Extension", LVCFMT_LEFT, blockWidth);
}

void CKvGuiBlkExtDlg::OnChangeAreatype() {
    const int type = static_cast<int>(kv::blocks::VocabularyOf(m_sFieldString));
    m_pNeighborBlocks.reset();
    m_pNeighborBlocks.reset(new (std::nothrow)
                                CNeighborBlocks(*m_pSelection, m_mapNeighborRel, type, m_sOwner));
}

// The selection.

bool CKvGuiBlkExtDlg::AddSelectedExts(const std::string& area, const std::string& block) {
    return IndexedSelection(*m_pSelection).Add(area, block);
}

void CKvGuiBlkExtDlg::RefreshSelectedListBox() {
    m_listSelected.DeleteAllItems();
    const auto& [areas, blocks] = *m_pSelection;
    for (std::size_t entry = 0; entry < kv::blocks::EntryCount(*m_pSelection); ++entry) {
        const int row = m_listSelected.AddItem(static_cast<int>(entry), 0, areas[entry].c_str());
        m_listSelected.AddItem(row, 1, blocks[entry].c_str());
    }
    m_nSelectedRows = m_listSelected.GetItemCount();
    UpdateActionButtons();
}

void CKvGuiBlkExtDlg::UpdateActionButtons() {
    m_bFound = 1;
    Control<CWnd>(kSearch).EnableWindow(m_bFound);
    Control<CWnd>(kClear).EnableWindow(!m_pSelection->first.empty());
    Control<CWnd>(kAdd).EnableWindow(m_listAvail.GetCount() > 0 &&
                                     m_listAvail.GetCurSel() != LB_ERR);
    // Rows that are there can be removed only once one was clicked.
    Control<CWnd>(kRemove).EnableWindow(FALSE);
    if (IsDlgButtonChecked(kSearchMode)) {
        OnRadioSearch();
    } else {
        OnRadioInsert();
    }
}

void CKvGuiBlkExtDlg::OnAddButton() {
    const std::vector<std::string> areas = SelectedTexts(m_listAvail);
    if (areas.empty()) return;
    const std::vector<std::string> blocks = SelectedTexts(m_listExt);
    IndexedSelection selection(*m_pSelection);
    std::vector<std::string> addedAreas;
    std::vector<std::string> addedBlocks;
    for (const std::string& block : blocks) {
        if (selection.Add(areas.front(), block)) addedBlocks.push_back(block);
    }
    if (blocks.empty()) {
        for (const std::string& area : areas) {
            if (selection.Add(area, "")) addedAreas.push_back(area);
        }
    } else if (static_cast<int>(blocks.size()) == m_listExt.GetCount()) {
        addedAreas.push_back(areas.front());
    }
    DeleteRows(m_listExt, addedBlocks);
    DeleteRows(m_listAvail, addedAreas);
    RefreshSelectedListBox();
    // With nothing left to add the button is disabled, and what comes next is another search.
    const CWnd& add = Control<CWnd>(kAdd);
    CWnd* find = GetDlgItem(kFind);
    if (find && GetFocus() == &add && !add.IsWindowEnabled()) kv::FocusByTab(*find->m_hWnd);
}

void CKvGuiBlkExtDlg::OnRemoveButton() {
    const std::vector<int> rows = SelectedRows(m_listSelected);
    if (rows.empty()) return;
    std::vector<kv::blocks::Place> places;
    places.reserve(rows.size());
    for (const int row : rows) {
        places.emplace_back(m_listSelected.GetItemText(row, 0), m_listSelected.GetItemText(row, 1));
    }
    kv::blocks::RemoveEntries(*m_pSelection, places);
    RefreshSelectedListBox();

    const int count = m_listSelected.GetItemCount();
    if (count == 0) return;
    const int selected = std::min(rows.front(), count - 1);
    m_listSelected.SetItemState(selected, LVIS_SELECTED, LVIS_SELECTED);
    m_listSelected.SetItemState(std::min(rows.back(), count - 1), LVIS_FOCUSED, LVIS_FOCUSED);
    m_listSelected.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    m_listSelected.EnsureVisible(selected, FALSE);
    m_listSelected.SetFocus();
    Control<CWnd>(kRemove).EnableWindow(TRUE);
}

void CKvGuiBlkExtDlg::OnClickList1(NMHDR*, LRESULT* result) {
    Control<CWnd>(kRemove).EnableWindow(TRUE);
    m_listSelected.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    *result = 0;
}

void CKvGuiBlkExtDlg::OnKeydownList1(NMHDR* notification, LRESULT* result) {
    *result = 0;
    const auto* key = reinterpret_cast<const NMLVKEYDOWN*>(notification);
    if (key->wVKey == VK_SPACE) OnClickList1(notification, result);
}

void CKvGuiBlkExtDlg::OnClearButton() {
    m_pSelection->first.clear();
    m_pSelection->second.clear();
    m_mapNeighborRel.clear();
    RefreshSelectedListBox();
}

void CKvGuiBlkExtDlg::OnButtonNeighbor() {
    if (m_pNeighborBlocks) m_pNeighborBlocks->PopulateNeighbor();
    RefreshSelectedListBox();
}

int CKvGuiBlkExtDlg::MinVal(const int* values, int count) {
    int smallest = -1;
    for (int i = 0; i < count; ++i)
        smallest = std::min(smallest, values[i]);
    return smallest;
}

// Search and insert.

void CKvGuiBlkExtDlg::OnRadioSearch() {
    SetDlgItemText(kSearch, "Search...");
    SetDlgItemText(kFindLabel, "Find");
    for (const int id : {kContain, kStartWith, kEndWith})
        Control<CWnd>(id).EnableWindow(TRUE);
}

void CKvGuiBlkExtDlg::OnRadioInsert() {
    SetDlgItemText(kSearch, "Insert...");
    SetDlgItemText(kFindLabel, "Insert");
    for (const int id : {kContain, kStartWith, kEndWith})
        Control<CWnd>(id).EnableWindow(FALSE);
}

void CKvGuiBlkExtDlg::OnChangeFindEdit() {
    m_bFound = m_listAvail.FindString(-1, DlgItemText(kFind).c_str()) != LB_ERR;
    UpdateActionButtons();
}

void CKvGuiBlkExtDlg::OnSearchButton() {
    if (IsDlgButtonChecked(kSearchMode)) {
        Search();
    } else {
        Insert();
    }
}

std::string CKvGuiBlkExtDlg::SearchPattern() const {
    const std::string text = kv::ToUpper(DlgItemText(kFind));
    if (IsDlgButtonChecked(kContain)) return "%" + text + "%";
    if (IsDlgButtonChecked(kStartWith)) return text + "%";
    return "%" + text;
}

void CKvGuiBlkExtDlg::Search() {
    const std::string pattern = SearchPattern();
    const IndexedSelection selection(*m_pSelection);
    const bool searched =
        FillList(m_listAvail, GetAreaQuery(pattern),
                 [&selection](const char* area) { return selection.Has(area, ""); });
    if (!searched) return;
    // No area begins with a percent sign; the index -1 selects every row.
    m_listAvail.SetSel(m_listAvail.FindString(-1, pattern.c_str()), TRUE);
    UpdateActionButtons();
}

void CKvGuiBlkExtDlg::Insert() {
    const std::string text = kv::ToUpper(DlgItemText(kFind));
    if (text.empty()) AfxMessageBox("Error! The string is blank!!", 0, 0);
    bool isLastEntry = false;
    const auto& [areas, blocks] = *m_pSelection;
    for (std::size_t entry = 0; entry < kv::blocks::EntryCount(*m_pSelection); ++entry) {
        isLastEntry = blocks[entry].empty() && areas[entry] == text;
        if (isLastEntry) AfxMessageBox("The string has already been added!!", 0, 0);
    }
    if (!text.empty() && !isLastEntry) {
        AddSelectedExts(text, "");
        RefreshSelectedListBox();
    }
    Control<CEdit>(kFind).SetSel(0, -1);
}

BOOL CKvGuiBlkExtDlg::PreTranslateMessage(MSG* message) {
    const kv::Modifiers keys = kv::CurrentModifiers();
    m_bSpace = message->message == WM_KEYDOWN && message->wParam == VK_SPACE && !keys.shift &&
               !keys.ctrl && !keys.alt;
    return CDialog::PreTranslateMessage(message);
}

void CKvGuiBlkExtDlg::OnSelchangeAvailList() {
    m_listExt.ResetContent();
    // Space does what a double click does.
    if (std::exchange(m_bSpace, false)) m_listAvail.m_hWnd->Notify(LBN_DBLCLK);
}

void CKvGuiBlkExtDlg::OnDblclkAvailList() {
    const int row = m_listAvail.GetCurSel();
    if (row == LB_ERR) return;
    CString area;
    m_listAvail.GetText(row, area);
    m_listExt.ResetContent();
    listExt(area.str());
}

void CKvGuiBlkExtDlg::listExt(const std::string& area) {
    const IndexedSelection selection(*m_pSelection);
    const bool listed = FillList(m_listExt, GetBlkExtQuery(area),
                                 [&](const char* block) { return selection.Has(area, block); });
    if (listed) m_listAvail.SetSel(m_listAvail.FindString(-1, area.c_str()), TRUE);
    UpdateActionButtons();
}

// The end.

void CKvGuiBlkExtDlg::OnOK() {
    if (HasDlgItem(kListFileCheck)) m_bListFile = IsDlgButtonChecked(kListFileCheck) != 0;
    CDialog::OnOK();
}

void CKvGuiBlkExtDlg::OnCancel() {
    m_mapNeighborRel = m_mapNeighborSaved;
    CDialog::OnCancel();
}

const kv::MessageMap& CKvGuiBlkExtDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvGuiBlkExtDlg::OnAddButton>(kAdd),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnRemoveButton>(kRemove),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnClearButton>(kClear),
        kv::OnControl<&CKvGuiBlkExtDlg::OnChangeFindEdit>(EN_CHANGE, kFind),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnSearchButton>(kSearch),
        kv::OnControl<&CKvGuiBlkExtDlg::OnSelchangeAvailList>(LBN_SELCHANGE, kAvailable),
        kv::OnControl<&CKvGuiBlkExtDlg::OnDblclkAvailList>(LBN_DBLCLK, kAvailable),
        kv::OnNotify<&CKvGuiBlkExtDlg::OnClickList1>(NM_CLICK, kSelected),
        kv::OnNotify<&CKvGuiBlkExtDlg::OnKeydownList1>(LVN_KEYDOWN, kSelected),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnButtonImport>(kImport),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnButtonImportmap>(kFromMap),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnButtonNeighbor>(kNeighbors),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnButtonExport>(kExport),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnRadioSearch>(kSearchMode),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnRadioInsert>(kInsertMode),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnButtonListFile>(kListFileButton),
        kv::OnClicked<&CKvGuiBlkExtDlg::OnCheckListFile>(kListFileCheck),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
