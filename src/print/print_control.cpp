#include "print/print_control.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "print/cut_dialog.h"
#include "print/map_scale.h"
#include "print/print_control_ids.h"
#include "print/scale_box.h"

using namespace kv::print_control;
using kv::print::Extent;
using kv::print::ExtentOf;

namespace {

constexpr double kInchesPerTenthMm = 0.00394;
constexpr int kFirstFontSize = 10;
constexpr const char* kNoFontSize = "NA";

float ToInches(int tenthMm) {
    return static_cast<float>(tenthMm * kInchesPerTenthMm);
}

void ShowNumber(CWnd& dialog, int id, double number) {
    dialog.SetDlgItemText(id, kv::FormatStream(number).c_str());
}

}  // namespace

bool CKvGuiPrintControl::m_bTTFont = true;
bool CKvGuiPrintControl::m_bColor = true;
bool CKvGuiPrintControl::m_bFresh = true;
float CKvGuiPrintControl::m_fMargin = 1.0F;
float CKvGuiPrintControl::m_fPrintBoundWidth = 36.0F;
float CKvGuiPrintControl::m_fPrintBoundHeight = 36.0F;
bool CKvGuiPrintControl::m_bLandscape = false;
bool CKvGuiPrintControl::m_bGray = false;
bool CKvGuiPrintControl::m_bIsCGM = false;
bool CKvGuiPrintControl::m_bPrintLandscape = false;
int CKvGuiPrintControl::m_nMapScale = 0;
int CKvGuiPrintControl::m_nOrigScale = 0;
int CKvGuiPrintControl::m_nPrintScale = 0;

CKvGuiPrintControl::CKvGuiPrintControl(DEVMODE* pDevMode, CWnd* pParent)
    : CDialog(kTemplate, pParent), m_pDevMode(pDevMode) {}

int& CKvGuiPrintControl::ScaleOfUnit() {
    return m_nUnit == kv::print::kMeters ? m_nMeterScale : m_nFeetScale;
}

void CKvGuiPrintControl::SetScale(int nScale) {
    m_nMapScale = nScale;
    ScaleOfUnit() = nScale;
}

int CKvGuiPrintControl::CalculateScaleClosed() {
    const int smaller = kv::print::SmallerSideInFeet(ExtentOf(m_bounds), m_nUnit);
    const float feetPerInch = static_cast<float>(smaller) / m_fPrintBoundHeight;
    const int closed = kv::print::ClosedMapScale(kv::ToInt(feetPerInch), m_nUnit);
    SetScale(closed != 0 ? closed : m_nMapScale);
    return m_nMapScale;
}

BOOL CKvGuiPrintControl::OnInitDialog() {
    CDialog::OnInitDialog();
    m_bEditWidth = m_bEditHeight = m_bInitialized = false;
    kv::print::FillScales(Control<CComboBox>(kMapScale), kv::print::MapScales(m_nUnit));
    PopulatePrintingScale();
    if (m_nMapScale == 0 || ScaleOfUnit() == 0) CalculateScaleClosed();
    SelectMapScale(m_nMapScale, m_nUnit);
    RefreshMapWidthHeight();
    m_nOrigScale = m_nMapScale;
    CheckDlgButton(kTrueTypeFont, BST_CHECKED);
    CheckDlgButton(kColor, BST_CHECKED);
    CheckDlgButton(kGrayscale, BST_UNCHECKED);
    if (!m_bIsCGM) {
        kv::print::CutDialog(*this, {kMapLandscape, kMapPortrait}, kMapLandscape, kPageWidth);
    }
    ShowPrinterConfiguration();
    SetScaleToFit(0.0F);
    m_bInitialized = true;
    return TRUE;
}

// The map.

void CKvGuiPrintControl::SelectMapScale(int, int) {
    kv::print::ShowScale(Control<CComboBox>(kMapScale), ScaleOfUnit());
    m_bLandscape = IsDlgButtonChecked(kMapLandscape) > 0;
}

void CKvGuiPrintControl::RefreshMapWidthHeight() {
    if (SetMapSize()) SetOrientation();
}

bool CKvGuiPrintControl::SetMapSize() {
    if (m_nMapScale == 0) {
        AfxMessageBox("Unknown map scale", 0, 0);
        return false;
    }
    const Extent size = kv::print::SizeOnPaper(ExtentOf(m_bounds), m_nMapScale, m_nUnit);
    m_fMapWidth = static_cast<float>(size.x);
    m_fMapHeight = static_cast<float>(size.y);
    return true;
}

void CKvGuiPrintControl::SetOrientation() {
    const Extent map = ExtentOf(m_bounds);
    if (map.y <= map.x) {
        OnLandRadio();
    } else {
        OnPortRadio();
    }
}

void CKvGuiPrintControl::ShowMapSize(bool landscape) {
    m_bLandscape = landscape;
    CheckDlgButton(kMapLandscape, landscape ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kMapPortrait, landscape ? BST_UNCHECKED : BST_CHECKED);
    const auto [smaller, larger] = std::minmax(m_fMapWidth, m_fMapHeight);
    ShowNumber(*this, kMapWidth, landscape ? larger : smaller);
    ShowNumber(*this, kMapHeight, landscape ? smaller : larger);
}

void CKvGuiPrintControl::OnLandRadio() {
    ShowMapSize(true);
}

void CKvGuiPrintControl::OnPortRadio() {
    ShowMapSize(false);
}

void CKvGuiPrintControl::OnEditchangeScaleCombo() {
    const auto& box = Control<CComboBox>(kMapScale);
    SetScale(kv::print::ScaleIn(box));
    // Emptied, it is about to be typed anew.
    if (box.GetWindowTextLength() > 0) RefreshMapWidthHeight();
}

void CKvGuiPrintControl::OnSelchangeScaleCombo() {
    SetScale(kv::print::ScaleIn(Control<CComboBox>(kMapScale)));
    RefreshMapWidthHeight();
}

// The printer and its page.

bool CKvGuiPrintControl::GivesPaper() const {
    return m_pDevMode && m_pDevMode->dmPaperLength > 0 && m_pDevMode->dmPaperWidth > 0;
}

std::optional<kv::PrinterSettings> CKvGuiPrintControl::Printer() const {
    return GivesPaper() ? kv::FromDevMode(*m_pDevMode) : kv::CurrentPrinter();
}

void CKvGuiPrintControl::ShowPrinterConfiguration() {
    const auto printer = Printer();
    if (!printer) {
        AfxMessageBox("Unable to communicate with the printer", 0, 0);
        return;
    }
    m_strDeviceName = printer->device;
    m_strFormName = kv::FormName(*printer);
    m_bPrintLandscape = m_bPrinterLandscape = printer->landscape;
    m_fPrintBoundWidth = ToInches(printer->widthTenthMm);
    m_fPrintBoundHeight = ToInches(printer->heightTenthMm);
    if (printer->landscape) std::swap(m_fPrintBoundWidth, m_fPrintBoundHeight);
    TurnPage(printer->landscape);
    SetPrintPageSize(m_fPrintBoundWidth, m_fPrintBoundHeight);
    if (m_bPrintMode) {
        SetDlgItemInt(kMinimalFontSize, kFirstFontSize);
    } else {
        SetDlgItemText(kMinimalFontSize, kNoFontSize);
        Control<CWnd>(kMinimalFontSize).EnableWindow(FALSE);
    }
    SetDlgItemText(kForm, m_strFormName);
    SetDlgItemText(kPrinterName, m_strDeviceName);
}

void CKvGuiPrintControl::PopulatePrintingScale() {
    kv::print::FillScales(Control<CComboBox>(kPrintScale), kv::print::PrintScales(m_nUnit));
    if (m_nUnit != kv::print::kMeters) return;
    SetDlgItemText(kMapScaleHead, "1");
    SetDlgItemText(kMapScaleUnit, "Meters");
}

void CKvGuiPrintControl::SetScaleToFit(float) {
    if (m_bInitialized) PopulatePrintingScale();
    Extent room{m_fPrintBoundWidth - m_fMargin, m_fPrintBoundHeight - m_fMargin};
    if (m_bPrintLandscape && !m_bPrinterLandscape) std::swap(room.x, room.y);
    Extent map = ExtentOf(m_bounds);
    if (m_nUnit == kv::print::kMeters) {
        map = {map.x * kv::print::kFeetPerMeter, map.y * kv::print::kFeetPerMeter};
    }
    const kv::print::Fit fit = kv::print::FitScale(map, room, m_bPrintLandscape);
    for (const int scale : fit.passed)
        AddNewPrintScale(scale);
    SetPrintScale(fit.scale, true);
    SetPrintPageSize(static_cast<float>(fit.page.x), static_cast<float>(fit.page.y));
}

bool CKvGuiPrintControl::AddNewPrintScale(double fScale) {
    return kv::print::AddScale(Control<CComboBox>(kPrintScale), fScale);
}

void CKvGuiPrintControl::SetPrintScale(int nScale, bool bShow) {
    m_nPrintScale = nScale;
    if (!bShow) return;
    auto& box = Control<CComboBox>(kPrintScale);
    box.SetWindowText(std::to_string(nScale).c_str());
    if (AddNewPrintScale(nScale)) kv::print::SelectAddedScale(box, nScale);
}

bool CKvGuiPrintControl::SelectPrintScale(int nScale, int nUnit) {
    const int listed = kv::print::ListedPrintScale(nScale, nUnit);
    kv::print::ShowScale(Control<CComboBox>(kPrintScale), listed != 0 ? listed : nScale);
    return listed != 0;
}

void CKvGuiPrintControl::ShowPageSize(double width, double height) {
    m_bShowingPage = true;
    ShowNumber(*this, kPageWidth, width);
    ShowNumber(*this, kPageHeight, height);
    m_bShowingPage = false;
}

void CKvGuiPrintControl::SetPrintPageSize(float fWidth, float fHeight) {
    m_fPaperWidth = fWidth;
    m_fPaperHeight = fHeight;
    ShowPageSize(fWidth, fHeight);
}

/// In meters it goes by the map's size, whatever the print scale.
void CKvGuiPrintControl::RefreshPrintWidthHeight() {
    Extent size = kv::print::SizeOnPaper(ExtentOf(m_bounds), m_nPrintScale, kv::print::kFeet);
    if (m_nUnit == kv::print::kMeters) {
        size = kv::print::SizeOnPaper({m_fMapWidth, m_fMapHeight}, 1, m_nUnit);
    }
    SetPrintPageSize(static_cast<float>(size.x), static_cast<float>(size.y));
}

void CKvGuiPrintControl::OnSelchangePrintScaleCombo() {
    const auto& box = Control<CComboBox>(kPrintScale);
    if (box.GetCurSel() < 0) return;
    SetPrintScale(kv::print::ScaleIn(box), true);
    RefreshPrintWidthHeight();
}

void CKvGuiPrintControl::OnEditchangeComboPrinterScale() {
    SetPrintScale(kv::print::ScaleIn(Control<CComboBox>(kPrintScale)), false);
    RefreshPrintWidthHeight();
}

void CKvGuiPrintControl::TurnPage(bool landscape) {
    m_bPrintLandscape = landscape;
    CheckDlgButton(kPrinterLandscape, landscape ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(kPrinterPortrait, landscape ? BST_UNCHECKED : BST_CHECKED);
}

void CKvGuiPrintControl::OnPrinterLandRadio() {
    TurnPage(true);
    if (m_bInitialized) SetScaleToFit(0.0F);
    ShowPageSize(m_fPaperWidth, m_fPaperHeight);
}

void CKvGuiPrintControl::OnPrinterPortRadio() {
    TurnPage(false);
    if (m_bInitialized) SetScaleToFit(0.0F);
    ShowPageSize(m_fPaperWidth, m_fPaperHeight);
}

void CKvGuiPrintControl::OnChangeEditPageWidth() {
    const std::string text = DlgItemText(kPageWidth);
    if (m_bShowingPage || !m_bEditWidth || text.empty()) return;
    m_fPaperWidth = static_cast<float>(kv::Atof(text));
    m_fPaperHeight = m_fPaperWidth / m_fRatio;
    if (m_fPaperHeight >= 1.0F) ShowNumber(*this, kPageHeight, m_fPaperHeight);
}

void CKvGuiPrintControl::OnChangeEditPageHeight() {
    const std::string text = DlgItemText(kPageHeight);
    if (m_bShowingPage || !m_bEditHeight || text.empty()) return;
    m_fPaperHeight = static_cast<float>(kv::Atof(text));
    m_fPaperWidth = m_fPaperHeight * m_fRatio;
    if (m_fPaperWidth >= 1.0F) ShowNumber(*this, kPageWidth, m_fPaperWidth);
}

void CKvGuiPrintControl::OnSetfocusEditPageWidth() {
    m_bEditWidth = true;
    m_bEditHeight = false;
}

void CKvGuiPrintControl::OnSetfocusEditPageHeight() {
    m_bEditHeight = true;
    m_bEditWidth = false;
}

void CKvGuiPrintControl::OnButtonPrintSetup() {
    CPrintDialog setup(
        FALSE,
        PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE | PD_NOSELECTION,
        this);
    if (setup.DoModal() != IDOK) return;
    m_bPrinterSetup = true;
    if (GivesPaper()) *m_pDevMode = *setup.GetDevMode();
    ShowPrinterConfiguration();
    if (m_bPrintLandscape) {
        OnPrinterLandRadio();
    } else {
        OnPrinterPortRadio();
    }
}

// Text and color.

void CKvGuiPrintControl::OnStrokeFont() {
    Control<CWnd>(kMinimalFontSize).EnableWindow(FALSE);
}

void CKvGuiPrintControl::OnTruetypeFont() {
    Control<CWnd>(kMinimalFontSize).EnableWindow(TRUE);
}

void CKvGuiPrintControl::OnBwMode() {
    m_bBW = IsDlgButtonChecked(kBlackAndWhite) > 0;
}

void CKvGuiPrintControl::OnColorMode() {
    m_bBW = IsDlgButtonChecked(kBlackAndWhite) > 0;
}

void CKvGuiPrintControl::OnChangeEditMinimalFontSize() {
    UpdateData(TRUE);
}

/// A size that is not asked for, or is about to be typed anew, is no number to check.
void CKvGuiPrintControl::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    const std::string text = DlgItemText(kMinimalFontSize);
    if (!exchange->m_bSaveAndValidate || text.empty() || text == kNoFontSize) return;
    DDX_Text(exchange, kMinimalFontSize, m_nMinimalFontSize);
}

void CKvGuiPrintControl::OnOK() {
    if (!UpdateData(TRUE)) return;
    m_bLandscape = IsDlgButtonChecked(kMapLandscape) > 0;
    m_bTTFont = IsDlgButtonChecked(kTrueTypeFont) > 0;
    m_bColor = IsDlgButtonChecked(kColor) > 0;
    m_bGray = IsDlgButtonChecked(kGrayscale) > 0;
    CDialog::OnOK();
}

void CKvGuiPrintControl::OnCancel() {
    m_nMapScale = m_nOrigScale;
    CDialog::OnCancel();
}

const kv::MessageMap& CKvGuiPrintControl::Messages() {
    using Self = CKvGuiPrintControl;
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&Self::OnEditchangeScaleCombo>(CBN_EDITCHANGE, kMapScale),
        kv::OnControl<&Self::OnSelchangeScaleCombo>(CBN_SELCHANGE, kMapScale),
        kv::OnClicked<&Self::OnLandRadio>(kMapLandscape),
        kv::OnClicked<&Self::OnPortRadio>(kMapPortrait),
        kv::OnControl<&Self::OnChangeEditPageWidth>(EN_CHANGE, kPageWidth),
        kv::OnControl<&Self::OnChangeEditPageHeight>(EN_CHANGE, kPageHeight),
        kv::OnControl<&Self::OnSetfocusEditPageWidth>(EN_SETFOCUS, kPageWidth),
        kv::OnControl<&Self::OnSetfocusEditPageHeight>(EN_SETFOCUS, kPageHeight),
        kv::OnClicked<&Self::OnStrokeFont>(kStrokeFont),
        kv::OnClicked<&Self::OnTruetypeFont>(kTrueTypeFont),
        kv::OnClicked<&Self::OnGrayscaleCheck>(kGrayscale),
        kv::OnClicked<&Self::OnBwMode>(kBlackAndWhite),
        kv::OnClicked<&Self::OnColorMode>(kColor),
        kv::OnClicked<&Self::OnButtonPrintSetup>(kChangePrinter),
        kv::OnControl<&Self::OnChangeEditMinimalFontSize>(EN_CHANGE, kMinimalFontSize),
        kv::OnClicked<&Self::OnPrinterLandRadio>(kPrinterLandscape),
        kv::OnClicked<&Self::OnPrinterPortRadio>(kPrinterPortrait),
        kv::OnControl<&Self::OnSelchangePrintScaleCombo>(CBN_SELCHANGE, kPrintScale),
        kv::OnControl<&Self::OnEditchangeComboPrinterScale>(CBN_EDITCHANGE, kPrintScale),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
