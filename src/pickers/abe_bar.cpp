#include "pickers/abe_bar.h"

#include "pickers/abe_bar_ids.h"
#include "window/controls/button.h"
#include "window/dialog_keys.h"
#include "window/frames/frame_wnd.h"

using namespace kv::abe_bar;

namespace {

/// The layers on offer. The catalogue knows two more titles, which the host asks for by itself.
constexpr const char* kLayerTitles[] = {"Wells",     "Leases",    "APDs",   "Platforms",    "Plans",
                                        "Pipelines", "Prospects", "Fields", "2D Shotpoints"};

}  // namespace

BOOL CKvABEBar::Create(CWnd* parent, UINT, UINT style, UINT id) {
    if (!CDialogBar::Create(parent, id, style, id)) return FALSE;
    m_areaCombo.SubclassDlgItem(kArea, this);
    m_blkCombo.SubclassDlgItem(kBlock, this);
    m_areaCombo.SetBlkCombo(&m_blkCombo);
    // A bar may be made again, and is then a new one.
    m_bFirstUse = true;
    m_eLayer = KV_LAYER_NONE;

    PopulateLayerCombo();
    Control<CComboBox>(kLayer).SetCurSel(0);

    CheckDlgButton(kReport, BST_CHECKED);
    auto& run = Control<CButton>(kRun);
    run.EnableWindow(TRUE);
    run.SetIcon(kRunIcon);

    m_areaCombo.SetFocus();
    SetRadioState(false);
    return TRUE;
}

void CKvABEBar::PopulateLayerCombo() {
    auto& layers = Control<CComboBox>(kLayer);
    for (const char* title : kLayerTitles)
        layers.AddString(title);
}

E_Layer CKvABEBar::GetLayer() {
    SetLayerFromTitle(DlgItemText(kLayer));
    return m_eLayer;
}

void CKvABEBar::SetLayerFromTitle(const std::string& title) {
    m_eLayer = kv::catalogue::LayerFromTitle(title);
}

bool CKvABEBar::IsMapSelected() const {
    return IsDlgButtonChecked(kMap) == BST_CHECKED;
}

void CKvABEBar::SetRadioState(bool bReport) {
    CheckDlgButton(kReport, bReport ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kMap, bReport ? BST_UNCHECKED : BST_CHECKED);
}

void CKvABEBar::FillAreasOnce() {
    if (!m_bFirstUse || !m_areaCombo.m_hWnd) return;
    m_bFirstUse = false;
    // The key that made it the first use is in the box already, and filling may empty it.
    const std::string typed = m_areaCombo.WindowText();
    const DWORD selection = m_areaCombo.GetEditSel();
    m_areaCombo.V_InitializeCombo();
    if (typed.empty() || m_areaCombo.WindowText() == typed) return;
    m_areaCombo.SetWindowText(typed.c_str());
    m_areaCombo.SetEditSel(LOWORD(selection), HIWORD(selection));
}

void CKvABEBar::SetArea(const std::string& areacode) {
    FillAreasOnce();
    m_areaCombo.SetArea(areacode);
}

BOOL CKvABEBar::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    if (id == kArea) {
        const bool touched = code == CBN_EDITCHANGE || code == CBN_DROPDOWN || code == CBN_SETFOCUS;
        if (touched) FillAreasOnce();
        const bool picked = code == CBN_SELCHANGE && !m_areaCombo.IsLookingAtRow();
        if (code == CBN_EDITCHANGE || picked) m_areaCombo.V_SelChanged(true);
    }
    return CDialogBar::OnCmdMsg(id, code, extra, info);
}

BOOL CKvABEBar::PreTranslateMessage(MSG* message) {
    if (IsEnterInBlockBox(*message) && Run()) return TRUE;
    return CDialogBar::PreTranslateMessage(message);
}

/// Where the list is open, Enter is the list's.
bool CKvABEBar::IsEnterInBlockBox(const MSG& message) const {
    return message.message == WM_KEYDOWN && message.wParam == VK_RETURN && m_blkCombo.m_hWnd &&
           message.hwnd->IsSelfOrDescendantOf(*m_blkCombo.m_hWnd) && !m_blkCombo.GetDroppedState();
}

bool CKvABEBar::Run() {
    const auto& run = Control<CButton>(kRun);
    if (!run.IsWindowEnabled()) return false;
    run.SendMessage(BM_CLICK);
    return true;
}

void CKvABEBar::GoToArea() {
    if (m_areaCombo.m_hWnd) kv::FocusByTab(*m_areaCombo.m_hWnd);
}

void CKvABEBar::OnABERun() {
    if (CWnd* mainWindow = AfxGetMainWnd()) mainWindow->SendMessage(kRunMessage, 0, 0);
}

void CKvABEBar::OnSelchangeComboLayer() {
    SetLayerFromTitle(DlgItemText(kLayer));
}

bool CKvABEBar::IsComplete() const {
    return !m_blkCombo.WindowText().empty() && !m_areaCombo.WindowText().empty();
}

void CKvABEBar::OnUpdateButton(CCmdUI* update) {
    update->Enable(IsComplete());
}

void CKvABEBar::OnUpdateRunButton(CCmdUI* update) {
    update->Enable(IsComplete());
}

void CKvABEBar::OnUpdateMapRadio(CCmdUI* update) {
    OnUpdateButton(update);
}

void CKvABEBar::OnUpdateRepRadio(CCmdUI* update) {
    update->Enable(IsComplete() && m_eLayer != KV_LAYER_2D_SHOTPOINTS);
}

void CKvABEBar::OnUpdateLayerCombo(CCmdUI* update) {
    if (IsMapSelected()) {
        update->Enable(FALSE);
    } else {
        OnUpdateRunButton(update);
    }
}

void CKvABEBar::OnUpdateBlkCombo(CCmdUI* update) {
    update->Enable(m_areaCombo.EnableBlkCombo());
}

void CKvABEBar::OnUpdateAreaCombo(CCmdUI* update) {
    update->Enable(m_bEnableABE);
    if (!m_bEnableABE && !m_areaCombo.WindowText().empty()) m_areaCombo.SetWindowText("");
}

const kv::MessageMap& CKvABEBar::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CKvABEBar::OnABERun>(kRun),
        kv::OnUpdate<&CKvABEBar::OnUpdateRunButton>(kRun),
        kv::OnUpdate<&CKvABEBar::OnUpdateMapRadio>(kMap),
        kv::OnUpdate<&CKvABEBar::OnUpdateRepRadio>(kReport),
        kv::OnUpdate<&CKvABEBar::OnUpdateLayerCombo>(kLayer),
        kv::OnControl<&CKvABEBar::OnSelchangeComboLayer>(CBN_SELCHANGE, kLayer),
        kv::OnUpdate<&CKvABEBar::OnUpdateBlkCombo>(kBlock),
        kv::OnUpdate<&CKvABEBar::OnUpdateAreaCombo>(kArea),
    };
    static const kv::MessageMap kMap{&CDialogBar::Messages(), kEntries};
    return kMap;
}

const kv::MessageMap& CVZABEBar::Messages() {
    static const kv::MessageMap kMap{&CKvABEBar::Messages(), {}};
    return kMap;
}
