#include "mapbuild/builders/custom_dlg.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "base/numbers.h"
#include "frame/kvcom/util_geo.h"
#include "frame/kvcom/util_lldrv.h"
#include "mapbuild/builders/clock_name.h"
#include "mapbuild/builders/custom_ids.h"
#include "print/sizing_dlg.h"
#include "window/controls/combo_box.h"
#include "window/dialogs/message_box.h"

using namespace kv::custom_bld;

namespace {

constexpr const char* kInvalid = "Invalid values";
constexpr int kPickedLine = 8;

constexpr std::array kLowerLeft{kLat, kLatMin, kLatSec, kLon, kLonMin, kLonSec};
constexpr std::array kUpperRightBoxes{kFarLat, kFarLatMin, kFarLatSec,
                                      kFarLon, kFarLonMin, kFarLonSec};
constexpr std::array kLowerLeftLabels{kLatLabel, kLatDegLabel, kLatMinLabel, kLatSecLabel,
                                      kLonLabel, kLonDegLabel, kLonMinLabel, kLonSecLabel};
constexpr std::array kUpperRightLabels{kFarLatLabel,    kFarLatDegLabel, kFarLatMinLabel,
                                       kFarLatSecLabel, kFarLonLabel,    kFarLonDegLabel,
                                       kFarLonMinLabel, kFarLonSecLabel};
constexpr std::array kXYBoxes{kX, kY, kFarX, kFarY};
constexpr std::array kXYLabels{kXLabel, kYLabel, kFarXLabel, kFarYLabel};

/// A height and width alike, on the lines of the predefined sizes.
struct PredefinedSize {
    const char* text;
    const char* degrees;
    const char* minutes;
    const char* seconds;
};
constexpr PredefinedSize kSizes[] = {
    {"7.5 Minutes", "0", "7", "30"}, {"15  Minutes", "0", "15", "0"},
    {"30  Minutes", "0", "30", "0"}, {"1   Degree", "1", "0", "0"},
    {"2   Degrees", "2", "0", "0"},  {"User Defined", "0", "0", "0"},
};
constexpr int kUserDefined = static_cast<int>(std::size(kSizes)) - 1;

template <typename Ids>
void Show(const CWnd& dialog, const Ids& ids, bool show) {
    for (const int id : ids)
        dialog.Control<CWnd>(id).ShowWindow(show ? SW_SHOW : SW_HIDE);
}

}  // namespace

CKvGuiCustomDlg::CKvGuiCustomDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {
    m_tBounds.SetPrimeProj(m_nProjection);
}

CKvGuiCustomDlg::~CKvGuiCustomDlg() = default;

BOOL CKvGuiCustomDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CheckDlgButton(kFeet, BST_CHECKED);
    const std::pair<CInputValidationEdit&, int> filters[] = {
        {m_tLatDegEdit, kLat},       {m_tLonDegEdit, kLon}, {m_tLatDegMaxEdit, kFarLat},
        {m_tLonDegMaxEdit, kFarLon}, {m_tXMinEdit, kX},     {m_tYMinEdit, kY},
        {m_tXMaxEdit, kFarX},        {m_tYMaxEdit, kFarY},
    };
    for (const auto& [edit, id] : filters)
        edit.SubclassDlgItem(static_cast<UINT>(id), this);
    for (const PredefinedSize& size : kSizes)
        Control<CComboBox>(kSize).AddString(size.text);
    m_pProjCtrl = std::make_unique<CKvGuiProjCtrl>();
    m_pProjCtrl->Initialize(this, kProjection, m_nProjection, m_tBounds.GetProjZoneCode(),
                            m_tBounds.GetRectSpec(), m_tBounds.GetRectifyingLat(),
                            m_tBounds.GetRectifyingLon());
    m_pProjCtrl->IsXYBounded(IsChecked(kOriginXY));
    CheckDlgButton(kXYBounded, BST_CHECKED);
    SetXYBounded(true);
    ShowLatLon(0, 0);
    ShowLatLonValues();
    CheckOrigin(true);
    CheckDlgButton(kUpperRight, BST_CHECKED);
    m_bWidthHeight = false;
    m_bXYShown = true;
    ShowRightCorner();
    m_strMapName = kv::mapbuild::ClockName();
    SetDlgItemText(kMapName, m_strMapName.c_str());
    return TRUE;
}

void CKvGuiCustomDlg::CheckOrigin(bool xy) {
    CheckDlgButton(kOriginXY, xy ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kOriginLatLon, xy ? BST_UNCHECKED : BST_CHECKED);
}

// Showing and hiding.

void CKvGuiCustomDlg::ShowTexts(const Boxes& boxes, const Texts& texts) {
    for (std::size_t i = 0; i < boxes.size(); ++i)
        SetDlgItemText(boxes[i], texts[i].c_str());
}

void CKvGuiCustomDlg::ShowLowerLeft(int nShow, int bFill) {
    Show(*this, kLowerLeft, nShow != 0);
    Show(*this, kLowerLeftLabels, nShow != 0);
    if (bFill != 1) return;
    Texts t;
    m_tBounds.GetMinLL(t[0], t[1], t[2], t[3], t[4], t[5]);
    ShowTexts(kLowerLeft, t);
}

void CKvGuiCustomDlg::ShowUpperRight(int nShow, int bFill) {
    Show(*this, kUpperRightBoxes, nShow != 0);
    Show(*this, kUpperRightLabels, nShow != 0);
    if (bFill != 1) return;
    Texts t;
    if (IsChecked(kWidthAndHeight)) {
        m_tBounds.GetWidthHeightLL(t[0], t[1], t[2], t[3], t[4], t[5]);
    } else {
        m_tBounds.GetMaxLL(t[0], t[1], t[2], t[3], t[4], t[5]);
    }
    ShowTexts(kUpperRightBoxes, t);
}

void CKvGuiCustomDlg::ShowLatLon(int nShow, int bFill) {
    ShowLowerLeft(nShow, bFill);
    ShowUpperRight(nShow, bFill);
}

void CKvGuiCustomDlg::ShowXY(int nShow) {
    constexpr int kDecimals = 2;
    m_bXYShown = nShow != 0;
    Show(*this, kXYBoxes, m_bXYShown);
    Show(*this, kXYLabels, m_bXYShown);
    if (nShow != 1) return;
    const auto show = [this](int id, double value) {
        SetDlgItemText(id, kv::FormatFixed(value, kDecimals).c_str());
    };
    const bool size = IsChecked(kWidthAndHeight);
    show(kX, m_tBounds.GetXMin());
    show(kY, m_tBounds.GetYMin());
    show(kFarY, size ? m_tBounds.GetYMax() - m_tBounds.GetYMin() : m_tBounds.GetYMax());
    show(kFarX, size ? m_tBounds.GetXMax() - m_tBounds.GetXMin() : m_tBounds.GetXMax());
}

void CKvGuiCustomDlg::ShowLatLonValues() {
    ShowTexts(kLowerLeft, {});
    ShowTexts(kUpperRightBoxes, {});
}

void CKvGuiCustomDlg::ShowXYValues() {
    for (const int id : kXYBoxes)
        SetDlgItemText(id, "");
}

void CKvGuiCustomDlg::ShowWidthHeight() {
    Show(*this, std::array{kSize, kSizeLabel}, !IsChecked(kOriginXY));
    Show(*this, std::array{kFarLatPlus, kFarLonPlus}, true);
    SetDlgItemText(kFarGroup, "Height/Width");
}

void CKvGuiCustomDlg::ShowRightCorner() {
    Show(*this, std::array{kSize, kSizeLabel, kFarLatPlus, kFarLonPlus}, false);
    SetDlgItemText(kFarGroup, "Opposite (Upper Right Corner)");
}

void CKvGuiCustomDlg::ShowFar() {
    if (IsChecked(kWidthAndHeight)) {
        ShowWidthHeight();
    } else {
        ShowRightCorner();
    }
}

// What is entered.

bool CKvGuiCustomDlg::IsValidXY() const {
    return std::none_of(kXYBoxes.begin(), kXYBoxes.end(),
                        [this](int id) { return DlgItemText(id).empty(); });
}

bool CKvGuiCustomDlg::IsValidLatLon() const {
    constexpr std::array kDegrees{kLat, kLon, kFarLat, kFarLon};
    return std::none_of(kDegrees.begin(), kDegrees.end(), [this](int id) {
        const std::string text = DlgItemText(id);
        return text.empty() || text == "-" || text == "+" || text == ".";
    });
}

bool CKvGuiCustomDlg::ReadTexts(const Boxes& boxes, Texts& texts) {
    constexpr std::size_t kLonDegrees = 3;
    if (DlgItemText(boxes[0]).empty() || DlgItemText(boxes[kLonDegrees]).empty()) return false;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (DlgItemText(boxes[i]).empty()) SetDlgItemText(boxes[i], "0");
        texts[i] = DlgItemText(boxes[i]);
    }
    return true;
}

void CKvGuiCustomDlg::UpdateLL() {
    Texts t;
    if (ReadTexts(kLowerLeft, t)) m_tBounds.SetMinLL(t[0], t[1], t[2], t[3], t[4], t[5]);
}

void CKvGuiCustomDlg::UpdateUR() {
    Texts t;
    if (ReadTexts(kUpperRightBoxes, t)) m_tBounds.SetMaxLL(t[0], t[1], t[2], t[3], t[4], t[5]);
}

void CKvGuiCustomDlg::UpdateLLMax() {
    Texts t;
    if (ReadTexts(kUpperRightBoxes, t)) m_tBounds.UpdateLLMax(t[0], t[1], t[2], t[3], t[4], t[5]);
}

void CKvGuiCustomDlg::ReadLatLon() {
    UpdateLL();
    if (IsChecked(kWidthAndHeight)) {
        UpdateLLMax();
    } else {
        UpdateUR();
    }
}

void CKvGuiCustomDlg::OnChangeYminEdit() {
    const std::string x = DlgItemText(kX);
    const std::string y = DlgItemText(kY);
    if (x.empty() || y.empty()) return;
    m_tBounds.SetXMin(kv::Atof(x));
    m_tBounds.SetYMin(kv::Atof(y));
}

void CKvGuiCustomDlg::OnChangeXminEdit3() {
    const std::string x = DlgItemText(kFarX);
    const std::string y = DlgItemText(kFarY);
    if (x.empty() || y.empty()) return;
    if (IsChecked(kUpperRight)) {
        m_tBounds.SetXMax(kv::Atof(x));
        m_tBounds.SetYMax(kv::Atof(y));
    } else {
        m_tBounds.UpdateXYMax(x, y);
    }
}

// The three choices that make the screen.

void CKvGuiCustomDlg::OnXyboundRadio() {
    const bool latLon = IsChecked(kOriginLatLon);
    CheckOrigin(true);
    SetXYBounded(true);
    if (latLon) OnOrignXy();
}

void CKvGuiCustomDlg::OnLlboundRadio() {
    const bool latLon = IsChecked(kOriginLatLon);
    CheckOrigin(false);
    SetXYBounded(false);
    if (!latLon) OnLatLonOrig();
}

/// The projection has no answer for what was entered: the boxes stay as they are, and the origin
/// is that of those which are seen.
void CKvGuiCustomDlg::RefuseOrigin() {
    AfxMessageBox(kInvalid, 0, 0);
    CheckOrigin(m_bXYShown);
}

void CKvGuiCustomDlg::OnOrignXy() {
    if (m_bXYShown) {
        OnChangeYminEdit();
        OnChangeXminEdit3();
    } else if (IsValidLatLon()) {
        ReadLatLon();
        if (!m_tBounds.PopulateXY()) {
            RefuseOrigin();
            return;
        }
        ShowLatLon(0, 0);
        ShowXY(1);
    } else {
        ShowLatLon(0, 0);
        ShowLatLonValues();
        ShowXY(1);
        ShowXYValues();
    }
    ShowFar();
}

void CKvGuiCustomDlg::OnLatLonOrig() {
    OnChangeYminEdit();
    OnChangeXminEdit3();
    if (IsValidXY()) {
        if (!m_tBounds.PopulateLL()) {
            RefuseOrigin();
            return;
        }
        ShowXY(0);
        ShowLatLon(1, 1);
    } else if (m_bXYShown) {
        ShowXY(0);
        ShowXYValues();
        ShowLatLon(1, 0);
        ShowLatLonValues();
    }
    ShowFar();
}

void CKvGuiCustomDlg::OnWidthHeightRadio() {
    if (m_bWidthHeight) return;
    const bool validLatLon = IsValidLatLon();
    const bool validXY = IsValidXY();
    m_bWidthHeight = true;
    const auto value = [this](int id) { return kv::Atof(DlgItemText(id)); };
    const double width = value(kFarX) - value(kX);
    const double height = value(kFarY) - value(kY);
    SetDlgItemText(kFarX, kv::FormatStream(width).c_str());
    SetDlgItemText(kFarY, kv::FormatStream(height).c_str());
    if (IsChecked(kOriginXY)) {
        OnChangeYminEdit();
        OnChangeXminEdit3();
        ShowLatLon(0, 0);
        m_tBounds.PopulateLL();
        ShowXY(1);
        if (!validXY) ShowXYValues();
        ShowWidthHeight();
    } else {
        UpdateLL();
        UpdateUR();
        m_tBounds.PopulateXY();
        ShowWidthHeight();
        ShowLatLon(1, validLatLon);
    }
}

void CKvGuiCustomDlg::OnOppcorRadio() {
    if (!m_bWidthHeight) return;
    m_bWidthHeight = false;
    if (IsChecked(kOriginXY)) {
        OnChangeYminEdit();
        ShowRightCorner();
        const std::string width = DlgItemText(kFarX);
        const std::string height = DlgItemText(kFarY);
        if (width.empty() || height.empty()) return;
        m_tBounds.UpdateXYMax(width, height);
        ShowXY(0);
        m_tBounds.PopulateLL();
        ShowLatLon(0, 0);
        ShowXY(1);
    } else {
        const bool valid = IsValidLatLon();
        UpdateLL();
        UpdateLLMax();
        m_tBounds.PopulateXY();
        ShowRightCorner();
        ShowLatLon(1, valid);
    }
}

void CKvGuiCustomDlg::OnSelchangeComboLatLon() {
    const int line = Control<CComboBox>(kSize).GetCurSel();
    if (line < 0 || line > kUserDefined) return;
    const PredefinedSize& size = kSizes[line];
    ShowTexts(kUpperRightBoxes,
              {size.degrees, size.minutes, size.seconds, size.degrees, size.minutes, size.seconds});
    if (line == kUserDefined) return;
    UpdateLL();
    m_tBounds.PopulateXY();
    ShowXY(0);
    UpdateLLMax();
    ShowLatLon(1, 0);
}

// The whole.

CKvGuiCustomDlg::Reading CKvGuiCustomDlg::ReadBoxes() {
    bool answered = false;
    if (IsChecked(kOriginXY)) {
        if (!IsValidXY()) return Reading::kNotFilled;
        OnChangeYminEdit();
        OnChangeXminEdit3();
        answered = m_tBounds.PopulateLL();
    } else {
        if (!IsValidLatLon()) return Reading::kNotFilled;
        ReadLatLon();
        answered = m_tBounds.PopulateXY();
    }
    return answered ? Reading::kGood : Reading::kNoAnswer;
}

void CKvGuiCustomDlg::GiveBounds(CKvGuiSizingDlg& sizing) const {
    sizing.SetBounds(
        {m_tBounds.GetXMin(), m_tBounds.GetXMax(), m_tBounds.GetYMin(), m_tBounds.GetYMax()});
}

bool CKvGuiCustomDlg::UpdateBoundsScale() {
    if (ReadBoxes() != Reading::kGood) {
        AfxMessageBox(kInvalid, 0, 0);
        return false;
    }
    if (m_bScaleSet) return true;
    CKvGuiSizingDlg sizing(this);
    GiveBounds(sizing);
    sizing.SetUnit(!m_tBounds.GetFeet());
    SetScale(sizing.CalculateScaleClosed());
    m_tBounds.SetScale(m_nScale);
    return true;
}

void CKvGuiCustomDlg::OnScaleRadio() {
    m_bScaleSet = true;
    if (!UpdateBoundsScale()) {
        m_bScaleSet = false;
        return;
    }
    CKvGuiSizingDlg sizing(this);
    GiveBounds(sizing);
    sizing.SetUnit(!IsChecked(kFeet));
    sizing.SetScale(m_nScale);
    sizing.DoModal();
    SetScale(sizing.GetScale());
}

void CKvGuiCustomDlg::OnSelchangePrimprojCombo() {
    m_nProjection = m_pProjCtrl->GetProjection();
    m_tBounds.SetProjZoneCode(m_pProjCtrl->m_nUTMZone);
    m_tBounds.SetRectSpec(m_pProjCtrl->m_bRectSpec);
    m_tBounds.SetRectifyingLat(m_pProjCtrl->m_dRectLat);
    m_tBounds.SetRectifyingLon(m_pProjCtrl->m_dRectLon);
    if (!m_tBounds.GetRectSpec()) {
        // That the projection before this one had no answer is no matter any more.
        if (ReadBoxes() == Reading::kNotFilled) AfxMessageBox(kInvalid, 0, 0);
        m_tBounds.SetRectifyingLat((m_tBounds.GetLatMin() + m_tBounds.GetLatMax()) * 0.5);
        m_tBounds.SetRectifyingLon((m_tBounds.GetLonMin() + m_tBounds.GetLonMax()) * 0.5);
    }
    CKvUtilLLdrv::SetRectLat(m_tBounds.GetRectifyingLat());
    CKvUtilLLdrv::SetRectLon(m_tBounds.GetRectifyingLon());
    m_tBounds.SetPrimeProj(m_nProjection);
}

void CKvGuiCustomDlg::OnDropdownPrimprojCombo() {
    auto& combo = Control<CComboBox>(kProjection);
    const std::string text = combo.WindowText();
    if (combo.GetCount() > kPickedLine) combo.DeleteString(kPickedLine);
    combo.SetWindowText(text.c_str());
}

void CKvGuiCustomDlg::ChangeUnit() {
    if (IsChecked(kOriginXY)) {
        OnOrignXy();
    } else if (!GetXYBounded()) {
        OnLatLonOrig();
    }
}

void CKvGuiCustomDlg::OnRadioFeet() {
    m_tBounds.SetFeet(IsChecked(kFeet));
    ChangeUnit();
}

void CKvGuiCustomDlg::OnRadioMeters() {
    m_tBounds.SetFeet(!IsChecked(kMeters));
    ChangeUnit();
}

void CKvGuiCustomDlg::OnOK() {
    if (!UpdateBoundsScale()) return;
    m_tBounds.SetFeet(IsChecked(kFeet));
    m_strMapName = DlgItemText(kMapName);
    m_tBounds.SetCustomMapFlag(true);
    CDialog::OnOK();
}

void CKvGuiCustomDlg::PopulateIsbLL(CKvMapBounds& tBounds) const {
    std::vector<CKvDispPoint> corners;
    for (const double x : {tBounds.GetXMin(), tBounds.GetXMax()}) {
        for (const double y : {tBounds.GetYMin(), tBounds.GetYMax()}) {
            double lat = 0.0;
            double lon = 0.0;
            CKvUtilLLdrv::XYdrv(x, y, &lat, &lon, m_nProjection, IsChecked(kFeet) ? 0 : 1, 1, 100.0,
                                0.0, 0.0);
            if (!std::isfinite(lat)) return;
            corners.emplace_back(lat, lon);
        }
    }
    const CMinMax2Dd_t box = CKvUtilGeo::PolyLineGetMinMax(corners);
    tBounds.SetLatMin(box.minX);
    tBounds.SetLatMax(box.maxX);
    tBounds.SetLonMin(box.minY);
    tBounds.SetLonMax(box.maxY);
}

const kv::MessageMap& CKvGuiCustomDlg::Messages() {
    using Self = CKvGuiCustomDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnWidthHeightRadio>(kWidthAndHeight),
        kv::OnClicked<&Self::OnOppcorRadio>(kUpperRight),
        kv::OnClicked<&Self::OnLlboundRadio>(kLatLonBounded),
        kv::OnClicked<&Self::OnXyboundRadio>(kXYBounded),
        kv::OnClicked<&Self::OnOrignXy>(kOriginXY),
        kv::OnClicked<&Self::OnLatLonOrig>(kOriginLatLon),
        kv::OnControl<&Self::OnSelchangeComboLatLon>(CBN_SELCHANGE, kSize),
        kv::OnClicked<&Self::OnScaleRadio>(kSizingOptions),
        kv::OnControl<&Self::OnSelchangePrimprojCombo>(CBN_SELCHANGE, kProjection),
        kv::OnControl<&Self::OnDropdownPrimprojCombo>(CBN_DROPDOWN, kProjection),
        kv::OnClicked<&Self::OnRadioFeet>(kFeet),
        kv::OnClicked<&Self::OnRadioMeters>(kMeters),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
