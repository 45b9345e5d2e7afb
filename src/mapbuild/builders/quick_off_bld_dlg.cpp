#include "mapbuild/builders/quick_off_bld_dlg.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/catalogue.h"
#include "frame/kvcom/cancelled.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "mapbuild/builders/snap_range_dlg.h"
#include "print/sizing_dlg.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/dialogs/message_box.h"

using namespace kv::quick_bld;

namespace {

constexpr int kLeastSize = 1;
constexpr int kMostSize = 50;
constexpr int kMostPercentOfBox = 100;

constexpr const char* kSizes[] = {"1", "2", "3",  "4",  "5",  "6",  "7",
                                  "8", "9", "10", "20", "30", "40", "50"};
constexpr const char* kPercents[] = {"0", "10", "15", "30", "50", "75", "100"};

/// Of the upper right corner. Nothing is told when they are left: its degrees do it for them.
constexpr int kQuietBoxes[] = {kLatMaxMin, kLatMaxSec, kLonMaxMin, kLonMaxSec};

}  // namespace

int CKvGuiQuickOffBldDlg::m_nDefHeight = 0;
int CKvGuiQuickOffBldDlg::m_nDefWidth = 0;

CKvGuiQuickOffBldDlg::CKvGuiQuickOffBldDlg(CWnd* pParent)
    : CKvGuiQuickOffBldDlg(kTemplate, pParent) {}

CKvGuiQuickOffBldDlg::CKvGuiQuickOffBldDlg(UINT nTemplate, CWnd* pParent)
    : CDialog(nTemplate, pParent) {}

CKvGuiQuickOffBldDlg::~CKvGuiQuickOffBldDlg() = default;

void CKvGuiQuickOffBldDlg::SetArea(std::string area) {
    m_vAreas.push_back(std::move(area));
}

void CKvGuiQuickOffBldDlg::SetBlock(std::string block) {
    m_vBlocks.push_back(std::move(block));
}

void CKvGuiQuickOffBldDlg::SetExt(std::string ext) {
    m_vExts.push_back(std::move(ext));
}

void CKvGuiQuickOffBldDlg::ResetABEVec() {
    m_vAreas.clear();
    m_vBlocks.clear();
    m_vExts.clear();
}

void CKvGuiQuickOffBldDlg::SetMode(int nBlock, int nArea, int nAll) {
    m_nModeBlock = nBlock;
    m_nModeArea = nArea;
    m_nModeAll = nAll;
}

void CKvGuiQuickOffBldDlg::SetScale(int nScale) {
    m_nScale = nScale;
    m_bScaleSet = true;
}

CMinMax2Dd_t CKvGuiQuickOffBldDlg::GetXYMapBounds() const {
    return {m_tBounds.GetXMin(), m_tBounds.GetXMax(), m_tBounds.GetYMin(), m_tBounds.GetYMax()};
}

CMinMax2Dd_t CKvGuiQuickOffBldDlg::GetLLMapBounds() const {
    return {m_tBounds.GetLonMin(), m_tBounds.GetLonMax(), m_tBounds.GetLatMin(),
            m_tBounds.GetLatMax()};
}

bool CKvGuiQuickOffBldDlg::GetTermination() {
    m_pProjCtrl.reset();
    return m_bTermination;
}

// Words.

void CKvGuiQuickOffBldDlg::Tell(const std::string& text) {
    m_bTelling = true;
    AfxMessageBox(text.c_str(), 0, 0);
    m_bTelling = false;
}

void CKvGuiQuickOffBldDlg::Ask(const std::function<void()>& ask) {
    try {
        const kv::db::LookUpsThrow failures;
        ask();
    } catch (const CKvCancelled&) {
        // The person knows, and what was asked for stays as it was.
    } catch (const CKvException& e) {
        Tell(e.GetErrorMessage(true, true));
    }
}

void CKvGuiQuickOffBldDlg::Refuse(int id, const char* text) {
    Tell(text);
    Control<CWnd>(id).SetFocus();
}

// The start.

BOOL CKvGuiQuickOffBldDlg::OnInitDialog() {
    m_bInInit = true;
    if (!m_bMapPropMode) {
        m_nDefHeight = m_nDefWidth = m_eTemplateType == KV_TEMPLATE_ONSHORE ? 1 : 3;
    }
    CDialog::OnInitDialog();
    CheckDlgButton(kFeet, m_tBounds.GetFeet() ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kMeters, m_tBounds.GetFeet() ? BST_UNCHECKED : BST_CHECKED);
    TakeAllMode();
    FillSizeCombo(kWidth, m_nDefWidth, m_strMapWidth);
    FillSizeCombo(kHeight, m_nDefHeight, m_strMapHeight);
    EnableSizes();
    if ((m_nModeBlock == 1 && !m_bBlockMapKnown) || (m_nModeArea == 1 && !m_bAreaMapKnown)) {
        PopulatePojection();
    }
    MakeProjCtrl();
    EditBoxSetReadOnly();
    InitBounds();
    ShowBoundsType();
    FillPercent();
    if (!m_bMapPropMode) ComputeALL();
    UpdateCoordinates();
    if (m_strMapName.empty()) PopulateMapName();
    SetDlgItemText(kMapName, m_strMapName.c_str());
    if (m_eTemplateType == KV_TEMPLATE_ONSHORE) SetWindowText("Quick Onshore Map Builder");
    m_bInInit = false;
    return TRUE;
}

void CKvGuiQuickOffBldDlg::TakeAllMode() {
    const auto all = std::find(m_vBlocks.begin(), m_vBlocks.end(), kv::catalogue::kAllBlocks);
    if (all == m_vBlocks.end()) return;
    SetMode(0, 0, 1);
    if (m_vAreas.empty()) return;
    Ask([this] {
        m_nProjection = CKvDbUtil::S_GetProjectionByArea(m_vAreas.front(), m_strDataset);
    });
}

void CKvGuiQuickOffBldDlg::FillSizeCombo(int id, int remembered, const std::string& known) {
    auto& combo = Control<CComboBox>(id);
    combo.EnableWindow(FALSE);
    for (const char* size : kSizes)
        combo.AddString(size);
    if (m_nModeBlock != 1) return;
    combo.SetWindowText(m_bBlockMapKnown ? known.c_str() : std::to_string(remembered).c_str());
}

void CKvGuiQuickOffBldDlg::EnableSizes() {
    if (m_nModeBlock != 0) {
        for (const int id : {kHeight, kWidth, kPercent})
            Control<CWnd>(id).EnableWindow(TRUE);
    }
    if (m_nModeArea != 0) Control<CWnd>(kPercent).EnableWindow(TRUE);
}

void CKvGuiQuickOffBldDlg::MakeProjCtrl() {
    m_pProjCtrl = std::make_unique<CKvGuiProjCtrl>();
    m_pProjCtrl->Initialize(this, kProjection, m_nProjection, m_tBounds.GetProjZoneCode(),
                            m_tBounds.GetRectSpec(), m_tBounds.GetRectifyingLat(),
                            m_tBounds.GetRectifyingLon());
    m_pProjCtrl->IsXYBounded(IsXYBounded());
}

void CKvGuiQuickOffBldDlg::InitBounds() {
    kv::mapbuild::UseRectifyingPoint(m_tBounds);
    if (!m_bMapPropMode) {
        ComputeBounds(m_tBounds);
        m_tOrigBounds = m_tBounds;
        return;
    }
    m_tOrigBounds = m_tBounds;
    if (HasPicks()) {
        ComputeBounds(m_tOrigBounds);
    } else if (IsXYBounded()) {
        GetOriginalXYBounds();
    } else {
        GetOriginalLLBounds();
    }
}

void CKvGuiQuickOffBldDlg::ShowBoundsType() {
    CheckDlgButton(kXYBounded, IsXYBounded() ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kLatLonBounded, IsXYBounded() ? BST_UNCHECKED : BST_CHECKED);
    Control<CWnd>(kSnapBounds).EnableWindow(IsXYBounded());
}

void CKvGuiQuickOffBldDlg::FillPercent() {
    auto& combo = Control<CComboBox>(kPercent);
    for (const char* percent : kPercents)
        combo.AddString(percent);
    combo.SetWindowText(m_strMapPercent.c_str());
}

bool CKvGuiQuickOffBldDlg::EditBoxSetReadOnly() {
    for (const int id : kXYBoxes)
        Control<CEdit>(id).SetReadOnly(TRUE);
    for (const int id : kAngleBoxes)
        Control<CEdit>(id).SetReadOnly(TRUE);
    return true;
}

// What the boxes show.

std::string CKvGuiQuickOffBldDlg::GetComboSelValue(int nId) const {
    if (!HasDlgItem(nId)) return "";
    const auto& combo = Control<CComboBox>(nId);
    const int line = combo.GetCurSel();
    if (line == CB_ERR) return combo.WindowText();
    CString text;
    combo.GetLBText(line, text);
    return text.str();
}

void CKvGuiQuickOffBldDlg::ShowText(int id, const std::string& text) {
    m_tShown[id] = text;
    SetDlgItemText(id, text.c_str());
}

void CKvGuiQuickOffBldDlg::ShowNumber(int id, double value) {
    constexpr int kDecimals = 2;
    ShowText(id, value == CKvUtilLLdrv::kNoXY ? "" : kv::FormatFixed(value, kDecimals));
}

void CKvGuiQuickOffBldDlg::UpdateCoordinates() {
    kv::mapbuild::UseRectifyingPoint(m_tBounds);
    ShowNumber(kYMin, m_tBounds.GetYMin());
    ShowNumber(kYMax, m_tBounds.GetYMax());
    ShowNumber(kXMin, m_tBounds.GetXMin());
    ShowNumber(kXMax, m_tBounds.GetXMax());
    // Of the angles alone, since a record knows what was typed for them.
    CKvMapBounds angles;
    angles.SetLatMin(m_tBounds.GetLatMin());
    angles.SetLatMax(m_tBounds.GetLatMax());
    angles.SetLonMin(m_tBounds.GetLonMin());
    angles.SetLonMax(m_tBounds.GetLonMax());
    std::string deg[2];
    std::string min[2];
    std::string sec[2];
    angles.GetMinLL(deg[0], min[0], sec[0], deg[1], min[1], sec[1]);
    const auto show = [&](int which, int degId, int minId, int secId) {
        ShowText(degId, deg[which]);
        ShowText(minId, min[which]);
        ShowText(secId, sec[which]);
    };
    show(0, kLatMinDeg, kLatMinMin, kLatMinSec);
    show(1, kLonMinDeg, kLonMinMin, kLonMinSec);
    angles.GetMaxLL(deg[0], min[0], sec[0], deg[1], min[1], sec[1]);
    show(0, kLatMaxDeg, kLatMaxMin, kLatMaxSec);
    show(1, kLonMaxDeg, kLonMaxMin, kLonMaxSec);
}

// What the person does.

void CKvGuiQuickOffBldDlg::OnXyboundRadio() {
    SetXYBounded(true);
    ComputeALL();
    Control<CWnd>(kSnapBounds).EnableWindow(TRUE);
}

void CKvGuiQuickOffBldDlg::OnLlboundRadio() {
    SetXYBounded(false);
    ComputeALL();
    Control<CWnd>(kSnapBounds).EnableWindow(FALSE);
}

void CKvGuiQuickOffBldDlg::CheckPair(int on, int off) {
    const bool checked = IsDlgButtonChecked(on) == BST_CHECKED;
    CheckDlgButton(on, checked ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(off, checked ? BST_UNCHECKED : BST_CHECKED);
}

void CKvGuiQuickOffBldDlg::OnRadioFeet() {
    CheckPair(kFeet, kMeters);
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnRadioMeters() {
    CheckPair(kMeters, kFeet);
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnEditchangeWidthCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnSelchangeWidthCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnEditchangeHeightCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnSelchangeHeightCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnEditchangePerCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnSelchangePerCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::OnSelchangeProjCombo() {
    ComputeALL();
}

void CKvGuiQuickOffBldDlg::CheckRange(int id, const char* text) {
    const int size = kv::Atoi(GetComboSelValue(id));
    if (!m_bTelling && (size < kLeastSize || size > kMostSize)) Refuse(id, text);
}

void CKvGuiQuickOffBldDlg::OnKillfocusWidthCombo() {
    CheckRange(kWidth, "The width is out of range (1 - 50).");
}

void CKvGuiQuickOffBldDlg::OnKillfocusHeightCombo() {
    CheckRange(kHeight, "The height is out of range (1 - 50).");
}

void CKvGuiQuickOffBldDlg::OnKillfocusPerCombo() {
    if (m_bTelling) return;
    const std::string text = GetComboSelValue(kPercent);
    const int percent = kv::Atoi(text);
    if (percent < 0 || percent > kMostPercentOfBox) {
        Refuse(kPercent, "The percent is out of range (0-100).");
    } else if (!std::all_of(text.begin(), text.end(), kv::IsDigit)) {
        Refuse(kPercent, "The percent is not valid.  Please re-enter a valid number!");
    }
}

bool CKvGuiQuickOffBldDlg::IsTyped(UINT id) {
    const int box = static_cast<int>(id);
    const bool readOnly = (Control<CEdit>(box).GetStyle() & ES_READONLY) != 0;
    return !readOnly && DlgItemText(box) != m_tShown[box];
}

void CKvGuiQuickOffBldDlg::OnKillFocusXYCoord(UINT nId) {
    if (!IsTyped(nId)) return;
    m_tBounds.SetXMin(kv::Atof(DlgItemText(kXMin)));
    m_tBounds.SetXMax(kv::Atof(DlgItemText(kXMax)));
    m_tBounds.SetYMin(kv::Atof(DlgItemText(kYMin)));
    m_tBounds.SetYMax(kv::Atof(DlgItemText(kYMax)));
    kv::mapbuild::ProjectToAngles(m_tBounds, CornerPlane());
    UpdateCoordinates();
}

void CKvGuiQuickOffBldDlg::ReadAngles() {
    const auto text = [this](int id) { return DlgItemText(id); };
    m_tBounds.SetMinLL(text(kLatMinDeg), text(kLatMinMin), text(kLatMinSec), text(kLonMinDeg),
                       text(kLonMinMin), text(kLonMinSec));
    m_tBounds.SetMaxLL(text(kLatMaxDeg), text(kLatMaxMin), text(kLatMaxSec), text(kLonMaxDeg),
                       text(kLonMaxMin), text(kLonMaxSec));
    const auto angle = [&text](int deg, int min, int sec) {
        const std::string degrees = text(deg);
        // As a double, since -0 has a sign that counts.
        const double whole = kv::TrimSpace(degrees).starts_with('-')
                                 ? -std::abs(static_cast<double>(kv::Atoi(degrees)))
                                 : kv::Atoi(degrees);
        double joined = 0.0;
        CKvUtilLLdrv::GetDegDeg(joined, whole, kv::Atoi(text(min)), kv::Atof(text(sec)));
        return joined;
    };
    m_tBounds.SetLatMin(angle(kLatMinDeg, kLatMinMin, kLatMinSec));
    m_tBounds.SetLatMax(angle(kLatMaxDeg, kLatMaxMin, kLatMaxSec));
    m_tBounds.SetLonMin(angle(kLonMinDeg, kLonMinMin, kLonMinSec));
    m_tBounds.SetLonMax(angle(kLonMaxDeg, kLonMaxMin, kLonMaxSec));
}

void CKvGuiQuickOffBldDlg::OnKillFocusLLCoord(UINT nId) {
    const bool forOthers = nId == kLatMaxDeg || nId == kLonMaxDeg;
    const auto typed = [this](int id) { return IsTyped(static_cast<UINT>(id)); };
    if (!IsTyped(nId) && !(forOthers && std::ranges::any_of(kQuietBoxes, typed))) return;
    ReadAngles();
    kv::mapbuild::ProjectToXY(m_tBounds, CornerPlane());
    UpdateCoordinates();
}

void CKvGuiQuickOffBldDlg::GiveBounds(CKvGuiSizingDlg& sizing) const {
    sizing.SetBounds(GetXYMapBounds());
}

void CKvGuiQuickOffBldDlg::OnScaleRadio() {
    CKvGuiSizingDlg sizing(this);
    GiveBounds(sizing);
    if (!m_bScaleSet) {
        // Ahead of the unit, so that the scale that is proposed is one of feet.
        SetScale(sizing.CalculateScaleClosed());
        m_tBounds.SetScale(m_nScale);
    }
    const bool meters = IsDlgButtonChecked(kFeet) != BST_CHECKED;
    sizing.SetUnit(meters);
    sizing.SetScale(m_tBounds.GetScale());
    sizing.DoModal();
    m_nScale = sizing.GetScale();
    m_tBounds.SetScale(m_nScale);
    (meters ? m_nMeterScale : m_nFeetScale) = m_nScale;
    m_bScaleSet = true;
}

void CKvGuiQuickOffBldDlg::OnButtonSnapBounds() {
    CKvGuiSnapRangeDlg dialog(this);
    dialog.SetRange(m_nSnapRange);
    if (dialog.DoModal() == IDOK) m_nSnapRange = dialog.GetRange();
    ComputeALL();
}

// The end.

void CKvGuiQuickOffBldDlg::StorePicks() {
    m_tBounds.ResetABEVec();
    if (m_nModeBlock == 1) {
        if (!m_vAreas.empty()) m_tBounds.SetPickArea(m_vAreas.front());
        if (!m_vBlocks.empty() && !IsFirstBlockAll()) m_tBounds.SetPickBlock(m_vBlocks.front());
        if (!m_vExts.empty()) m_tBounds.SetPickExt(m_vExts.front());
        m_tBounds.SetPickMapWidth(GetComboSelValue(kWidth));
        m_tBounds.SetPickMapHeight(GetComboSelValue(kHeight));
    } else if (m_nModeArea == 1) {
        for (const std::string& area : m_vAreas)
            m_tBounds.SetPickArea(area);
        for (const std::string& block : m_vBlocks)
            m_tBounds.SetPickBlock(block);
        for (const std::string& ext : m_vExts)
            m_tBounds.SetPickExt(ext);
    } else if (m_nModeAll != 1) {
        return;
    }
    m_tBounds.SetPickMapPercent(GetComboSelValue(kPercent));
}

void CKvGuiQuickOffBldDlg::OnOK() {
    m_tBounds.SetPickOneFlag(m_nModeBlock != 0);
    m_tBounds.SetPickMultFlag(m_nModeArea != 0);
    m_tBounds.SetPickWinFlag(m_nModeAll != 0);
    m_tBounds.SetCustomMapFlag(m_nCustomMap != 0);
    m_tBounds.SetSnapBoundsRange(m_nSnapRange);
    StorePicks();
    m_tBounds.SetFeet(IsDlgButtonChecked(kFeet) == BST_CHECKED);
    SetMapName(DlgItemText(kMapName));
    if (!m_bScaleSet) {
        CKvGuiSizingDlg sizing(this);
        GiveBounds(sizing);
        sizing.SetUnit(!m_tBounds.GetFeet());
        SetScale(sizing.CalculateScaleClosed());
    }
    m_bTermination = true;
    m_tBounds.SetPrimeProj(m_nProjection);
    m_tBounds.SetXYBounded(IsXYBounded());
    CDialog::OnOK();
}

void CKvGuiQuickOffBldDlg::OnCancel() {
    m_bTermination = false;
    CDialog::OnCancel();
}

const kv::MessageMap& CKvGuiQuickOffBldDlg::Messages() {
    using Self = CKvGuiQuickOffBldDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnXyboundRadio>(kXYBounded),
        kv::OnClicked<&Self::OnLlboundRadio>(kLatLonBounded),
        kv::OnClicked<&Self::OnRadioFeet>(kFeet),
        kv::OnClicked<&Self::OnRadioMeters>(kMeters),
        kv::OnControl<&Self::OnEditchangeWidthCombo>(CBN_EDITCHANGE, kWidth),
        kv::OnControl<&Self::OnSelchangeWidthCombo>(CBN_SELCHANGE, kWidth),
        kv::OnControl<&Self::OnKillfocusWidthCombo>(CBN_KILLFOCUS, kWidth),
        kv::OnControl<&Self::OnEditchangeHeightCombo>(CBN_EDITCHANGE, kHeight),
        kv::OnControl<&Self::OnSelchangeHeightCombo>(CBN_SELCHANGE, kHeight),
        kv::OnControl<&Self::OnKillfocusHeightCombo>(CBN_KILLFOCUS, kHeight),
        kv::OnControl<&Self::OnEditchangePerCombo>(CBN_EDITCHANGE, kPercent),
        kv::OnControl<&Self::OnSelchangePerCombo>(CBN_SELCHANGE, kPercent),
        kv::OnControl<&Self::OnKillfocusPerCombo>(CBN_KILLFOCUS, kPercent),
        kv::OnControl<&Self::OnSelchangeProjCombo>(CBN_SELCHANGE, kProjection),
        kv::OnControl<&Self::OnKillFocusXYCoord>(EN_KILLFOCUS, kXMin),
        kv::OnControl<&Self::OnKillFocusXYCoord>(EN_KILLFOCUS, kXMax),
        kv::OnControl<&Self::OnKillFocusXYCoord>(EN_KILLFOCUS, kYMin),
        kv::OnControl<&Self::OnKillFocusXYCoord>(EN_KILLFOCUS, kYMax),
        kv::OnControlRange<&Self::OnKillFocusLLCoord>(EN_KILLFOCUS, kLatMinDeg, kLonMinSec),
        // Of the upper right corner only the degrees.
        kv::OnControl<&Self::OnKillFocusLLCoord>(EN_KILLFOCUS, kLatMaxDeg),
        kv::OnControl<&Self::OnKillFocusLLCoord>(EN_KILLFOCUS, kLonMaxDeg),
        kv::OnClicked<&Self::OnScaleRadio>(kSizingOptions),
        kv::OnClicked<&Self::OnButtonSnapBounds>(kSnapBounds),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
