#include "records/well_search.h"

#include "frame/kvdbkvn/tell_failure.h"
#include "records/well_search_ids.h"
#include "window/controls/combo_box.h"

using namespace kv::well_search;

namespace {

template <typename Box>
void SetBounds(Box& box, const std::pair<double, double>& min,
               const std::pair<double, double>& max) {
    box.SetMinLat(min.second);
    box.SetMaxLat(max.second);
    box.SetMinLon(min.first);
    box.SetMaxLon(max.first);
}

/// A part of the search string.
std::string Part(const std::string& text) {
    return (text.empty() ? "_" : text) + "#";
}

}  // namespace

CKvGuiWellSearch::CKvGuiWellSearch(CWnd* parent) : CDialog(kTemplate, parent) {}

void CKvGuiWellSearch::SetMode(int mode) {
    m_comboArea.SetMode(mode);
    m_comboBlock.SetMode(mode);
}

BOOL CKvGuiWellSearch::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckRadioButton(kByApi, kByArea, m_bSearchByAPI ? kByApi : kByArea);
    PopulateApiNum();
    m_comboArea.SubclassDlgItem(kArea, this);
    m_comboBlock.SubclassDlgItem(kBlock, this);
    m_comboArea.SetBlkCombo(&m_comboBlock);
    SetBounds(m_comboArea, m_MinLatLon, m_MaxLatLon);
    SetBounds(m_comboBlock, m_MinLatLon, m_MaxLatLon);
    m_comboBlock.SetIncludeAll(false);
    FillAreas();
    m_comboArea.SetArea(m_sAreaCode);
    CString block(m_sBlockNumber + m_sExtension);
    block.TrimRight();
    m_comboBlock.SetWindowText(block);
    // The area box has enabled the block box.
    EnableBoxes();
    m_comboArea.SetFocus();
    m_comboArea.SetEditSel(0, -1);
    return TRUE;
}

void CKvGuiWellSearch::FillAreas() {
    try {
        m_comboArea.V_InitializeCombo();
    } catch (const CKvException& failure) {
        kv::db::TellFailure(failure);
    }
}

void CKvGuiWellSearch::PopulateApiNum() {
    CComboBox& numbers = Control<CComboBox>(kApi);
    for (const auto& [key, number] : m_mapApiNum)
        numbers.AddString(number.c_str());
    if (!m_mapApiNum.empty()) numbers.SetCurSel(0);
}

void CKvGuiWellSearch::EnableBoxes() {
    for (const int id : {kApiLabel, kApi})
        Control<CWnd>(id).EnableWindow(m_bSearchByAPI);
    for (const int id : {kAreaLabel, kArea, kBlock, kWellLabel, kWell})
        Control<CWnd>(id).EnableWindow(!m_bSearchByAPI);
}

void CKvGuiWellSearch::OnRadioSearchWellAbe() {
    if (!IsDlgButtonChecked(kByArea)) return;
    SearchByAPI(false);
    EnableBoxes();
}

void CKvGuiWellSearch::OnRadioWellsearchApi() {
    if (!IsDlgButtonChecked(kByApi)) return;
    SearchByAPI(true);
    EnableBoxes();
}

void CKvGuiWellSearch::OnEditchangeCombo3dAbeMms() {
    m_comboArea.V_SelChanged(true);
    m_comboBlock.EnableWindow(m_comboArea.EnableBlkCombo());
}

void CKvGuiWellSearch::OnSelchangeCombo3dAbeMms() {
    m_comboArea.V_SelChanged(true);
    m_comboBlock.EnableWindow(m_comboArea.EnableBlkCombo());
}

bool CKvGuiWellSearch::Refuse(const char* words, int box) {
    AfxMessageBox(words, 0, 0);
    GotoDlgCtrl(GetDlgItem(box));
    return false;
}

bool CKvGuiWellSearch::CheckForValidEntry() {
    if (IsDlgButtonChecked(kByApi)) {
        return !DlgItemText(kApi).empty() ||
               Refuse(
                   "Invalid! Please enter a valid API number.\n If you do not want to search, "
                   "please click Cancel!",
                   kApi);
    }
    if (!IsDlgButtonChecked(kByArea)) return false;
    if (DlgItemText(kWell).empty()) {
        return Refuse(
            "Invalid! Please enter a valid Well number.\n If you do not want to search, please "
            "click Cancel!",
            kWell);
    }
    if (DlgItemText(kArea).empty() && !DlgItemText(kBlock).empty())
        return Refuse("Invalid! Please specify the area associating with this block!", kArea);
    return true;
}

void CKvGuiWellSearch::OnOK() {
    if (!CheckForValidEntry()) return;
    m_sSearchString =
        IsDlgButtonChecked(kByApi)
            ? DlgItemText(kApi)
            : Part(DlgItemText(kArea)) + Part(DlgItemText(kBlock)) + DlgItemText(kWell);
    m_bTermination = true;
    CDialog::OnOK();
}

void CKvGuiWellSearch::OnCancel() {
    m_bTermination = false;
    CDialog::OnCancel();
}

const kv::MessageMap& CKvGuiWellSearch::Messages() {
    using Self = CKvGuiWellSearch;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnRadioWellsearchApi>(kByApi),
        kv::OnClicked<&Self::OnRadioSearchWellAbe>(kByArea),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
