#include "print/sizing_dlg.h"

#include <algorithm>

#include "base/numbers.h"
#include "print/cut_dialog.h"
#include "print/map_scale.h"
#include "print/scale_box.h"
#include "print/sizing_ids.h"
#include "window/controls/edit.h"

using namespace kv::sizing;
using kv::print::Extent;
using kv::print::ExtentOf;

namespace {

int s_nFeetScale = 0;
int s_nMeterScale = 0;

int& Remembered(int unit) {
    return unit == kv::print::kMeters ? s_nMeterScale : s_nFeetScale;
}

}  // namespace

CKvGuiSizingDlg::CKvGuiSizingDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

void CKvGuiSizingDlg::SetScale(int nScale) {
    m_nScale = nScale;
    Remembered(m_nUnit) = nScale;
}

int CKvGuiSizingDlg::CalculateScaleClosed() {
    const int smaller = kv::print::SmallerSideInFeet(ExtentOf(m_bounds), m_nUnit);
    // Of two integers this is their quotient in integers, and no fault where the width is 0.
    const int feetPerInch = kv::ToInt(static_cast<double>(smaller) / m_nPaperWidth);
    const int closed = kv::print::ClosedMapScale(feetPerInch, m_nUnit);
    SetScale(closed != 0 ? closed : m_nScale);
    return m_nScale;
}

BOOL CKvGuiSizingDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetDlgItemInt(kPaperWidth, static_cast<UINT>(m_nPaperWidth));
    CheckDlgButton(kScaleMode, BST_CHECKED);
    kv::print::FillScales(Control<CComboBox>(kScale), kv::print::MapScales(m_nUnit));
    if (m_nUnit == kv::print::kMeters) {
        SetDlgItemText(kScaleHead, "1");
        SetDlgItemText(kScaleUnit, "Meters");
    }
    if (m_nScale == 0 || Remembered(m_nUnit) == 0) CalculateScaleClosed();
    SelectScale();
    RefreshWidthHeight();
    SetOrientation();
    m_nOrigScale = m_nScale;
    for (const int id : {kTrueTypeFont, kColor, kGray})
        CheckDlgButton(id, BST_CHECKED);
    if (!m_bIsCGM) {
        kv::print::CutDialog(*this, {kLandscape, kPortrait, kOrientation}, kLandscape, kPaperWidth);
    }
    return TRUE;
}

void CKvGuiSizingDlg::SelectScale() {
    kv::print::ShowScale(Control<CComboBox>(kScale), Remembered(m_nUnit));
}

void CKvGuiSizingDlg::RefreshWidthHeight() {
    const Extent size = kv::print::SizeOnPaper(ExtentOf(m_bounds), m_nScale, m_nUnit);
    SetDlgItemText(kWidth, kv::FormatStream(size.x).c_str());
    SetDlgItemText(kHeight, kv::FormatStream(size.y).c_str());
    m_fPageWidth = static_cast<float>(size.x);
    m_fPageHeight = static_cast<float>(size.y);
}

void CKvGuiSizingDlg::CheckOrientation(bool landscape) {
    CheckDlgButton(kLandscape, landscape ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kPortrait, landscape ? BST_UNCHECKED : BST_CHECKED);
}

void CKvGuiSizingDlg::SetOrientation() {
    const Extent map = ExtentOf(m_bounds);
    CheckOrientation(map.y <= map.x);
}

/// In the map's own unit: what is shown of meters is no inches.
void CKvGuiSizingDlg::ShowTurned(bool landscape) {
    CheckOrientation(landscape);
    const Extent size = kv::print::SizeOnPaper(ExtentOf(m_bounds), m_nScale, kv::print::kFeet);
    const auto [smaller, larger] = std::minmax(size.x, size.y);
    SetDlgItemText(kWidth, kv::FormatStream(landscape ? larger : smaller).c_str());
    SetDlgItemText(kHeight, kv::FormatStream(landscape ? smaller : larger).c_str());
}

void CKvGuiSizingDlg::OnLandRadio() {
    ShowTurned(true);
}

void CKvGuiSizingDlg::OnPortRadio() {
    ShowTurned(false);
}

void CKvGuiSizingDlg::OnEditchangeScaleCombo() {
    SetScale(kv::print::ScaleIn(Control<CComboBox>(kScale)));
    RefreshWidthHeight();
}

void CKvGuiSizingDlg::OnSelchangeScaleCombo() {
    SetScale(kv::print::ScaleIn(Control<CComboBox>(kScale)));
    RefreshWidthHeight();
}

void CKvGuiSizingDlg::MakeSizeReadOnly(bool readOnly) {
    for (const int id : {kWidth, kHeight})
        Control<CEdit>(id).SetReadOnly(readOnly);
}

void CKvGuiSizingDlg::OnScaleCheck() {
    Control<CWnd>(kScale).EnableWindow(TRUE);
    CheckDlgButton(kSettingsMode, BST_UNCHECKED);
    MakeSizeReadOnly(true);
}

void CKvGuiSizingDlg::OnSettingsCheck() {
    MakeSizeReadOnly(false);
    CheckDlgButton(kScaleMode, BST_UNCHECKED);
    Control<CWnd>(kScale).EnableWindow(FALSE);
}

void CKvGuiSizingDlg::OnOK() {
    m_bLandscape = IsDlgButtonChecked(kLandscape) > 0;
    m_bTTFont = IsDlgButtonChecked(kTrueTypeFont) > 0;
    m_bColor = IsDlgButtonChecked(kColor) > 0;
    m_bGray = IsDlgButtonChecked(kGray) > 0;
    CDialog::OnOK();
}

void CKvGuiSizingDlg::OnCancel() {
    m_nScale = m_nOrigScale;
    CDialog::OnCancel();
}

const kv::MessageMap& CKvGuiSizingDlg::Messages() {
    using Self = CKvGuiSizingDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnScaleCheck>(kScaleMode),
        kv::OnClicked<&Self::OnSettingsCheck>(kSettingsMode),
        kv::OnControl<&Self::OnEditchangeScaleCombo>(CBN_EDITCHANGE, kScale),
        kv::OnControl<&Self::OnSelchangeScaleCombo>(CBN_SELCHANGE, kScale),
        kv::OnClicked<&Self::OnLandRadio>(kLandscape),
        kv::OnClicked<&Self::OnPortRadio>(kPortrait),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
