#pragma once

#include <optional>

#include "base/cstring.h"
#include "frame/kvcom/min_max_2dd.h"
#include "window/desktop.h"
#include "window/dialogs/dialog.h"
#include "window/dialogs/print_dialog.h"

/// Asks for scale and paper ahead of printing, previewing or exporting a map. It proposes a map
/// scale, which says how large the map is as built, and a print scale, which says how large it
/// comes out on the printer's page. Unless the output goes to a CGM file, only the map scale is
/// asked for.
///
/// Bounds are in feet (unit 0) or meters (unit 1); the unit is set ahead of the scale. In feet a
/// scale is feet per inch. In meters a map scale is a ratio; the print scale that is proposed is
/// feet per inch, those that the list offers are ratios, and the size that is shown for a picked
/// one is not its own. A host that prints hands its bounds in feet.
class KVGUICTL_API CKvGuiPrintControl : public CDialog {
public:
    /// `pDevMode`, which stays the caller's, may give a paper of the caller's own: where its paper
    /// has a length and a width, no printer is asked, and "Change Printer ..." changes the record.
    /// Otherwise it is not looked at.
    explicit CKvGuiPrintControl(DEVMODE* pDevMode = nullptr, CWnd* pParent = nullptr);

    // Ahead of the run.

    void SetBounds(CMinMax2Dd_t bounds) { m_bounds = bounds; }
    void SetUnit(int nUnit) { m_nUnit = nUnit; }
    /// The map scale, which is remembered for the unit as well.
    void SetScale(int nScale);
    /// Whether a minimal font size is asked for.
    void SetPrintMode(bool bPrintMode) { m_bPrintMode = bPrintMode; }
    /// Whether the output goes to a CGM file; it holds for later dialogs, too.
    void IsCGM(bool bIsCGM) { m_bIsCGM = bIsCGM; }
    /// The page in inches, for all dialogs, until a printer tells its own.
    void SetDefaultPaperWidth(float fWidth) { m_fPrintBoundWidth = fWidth; }
    void SetDefaultPaperHeight(float fHeight) { m_fPrintBoundHeight = fHeight; }

    // The outcome.

    /// The print scale. 0 where a text that is no number was left in its box.
    int GetScale() const { return m_nPrintScale; }
    /// In inches: of the map as built, with `bPaper` as it comes out on the page.
    float GetPaperWidth(bool, bool bPaper) const { return bPaper ? m_fPaperWidth : m_fMapWidth; }
    float GetPaperHeight(bool, bool bPaper) const { return bPaper ? m_fPaperHeight : m_fMapHeight; }
    /// Whether another printer, or paper, was chosen.
    bool IsPrinterSetup() const { return m_bPrinterSetup; }
    /// In points.
    int GetMinimalFontSize() const { return m_nMinimalFontSize; }
    bool GetTrueTypeFont() const { return m_bTTFont; }
    bool GetColorMode() const { return m_bColor; }
    /// The orientation of the page.
    bool GetLandScapeMode() const { return m_bPrintLandscape; }
    bool GetGrayMode() const { return m_bGray; }
    bool GetBWMode() const { return m_bBW; }

    /// Sets the listed map scale at which the smaller side just fits the height of the printer's
    /// page, and returns it. Bounds without a whole foot on each inch leave the scale as it is.
    /// Needs no window.
    int CalculateScaleClosed();
    /// Shows the map scale of the unit, whatever the arguments.
    void SelectMapScale(int, int);
    /// Selects the largest listed print scale up to that one. False, and the number is written into
    /// the box, where there is none.
    bool SelectPrintScale(int nScale, int nUnit);
    /// Turns the map as its bounds lie. A square is landscape.
    void SetOrientation();

    BOOL OnInitDialog() override;
    void OnOK() override;
    /// Gives the map scale back that the dialog opened with, but neither that of the unit nor the
    /// print scale.
    void OnCancel() override;
    void DoDataExchange(CDataExchange* exchange) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    // What later dialogs begin with.

    static bool m_bTTFont;
    static bool m_bColor;
    static bool m_bFresh;
    /// Subtracted from the page across and up, in inches.
    static float m_fMargin;
    /// The printer's page in inches.
    static float m_fPrintBoundWidth;
    static float m_fPrintBoundHeight;
    static bool m_bLandscape;  ///< of the map
    static bool m_bGray;
    static bool m_bIsCGM;
    static bool m_bPrintLandscape;  ///< of the page
    static int m_nMapScale;
    static int m_nOrigScale;  ///< the map scale as the dialog opened
    static int m_nPrintScale;

protected:
    void OnEditchangeScaleCombo();
    void OnSelchangeScaleCombo();
    void OnLandRadio();
    void OnPortRadio();
    void OnChangeEditPageWidth();
    void OnChangeEditPageHeight();
    void OnSetfocusEditPageWidth();
    void OnSetfocusEditPageHeight();
    void OnStrokeFont();
    void OnTruetypeFont();
    void OnGrayscaleCheck() {}
    void OnBwMode();
    void OnColorMode();
    void OnButtonPrintSetup();
    void OnChangeEditMinimalFontSize();
    void OnPrinterLandRadio();
    void OnPrinterPortRadio();
    void OnSelchangePrintScaleCombo();
    void OnEditchangeComboPrinterScale();

    void RefreshMapWidthHeight();
    /// Tells of a map scale of 0, and leaves the size then as it is: false.
    bool SetMapSize();
    /// Shows the printer's name, paper and page. Without a printer it says so, and all stays.
    void ShowPrinterConfiguration();
    void PopulatePrintingScale();
    /// Chooses the print scale at which the map just fits the page, whatever the argument.
    void SetScaleToFit(float fScale);
    bool AddNewPrintScale(double fScale);
    void SetPrintScale(int nScale, bool bShow);
    void SetPrintPageSize(float fWidth, float fHeight);
    void RefreshPrintWidthHeight();

    CMinMax2Dd_t m_bounds;
    bool m_bPrinterLandscape = false;  ///< as the printer reported it
    /// Which page box has the focus, or had it last.
    bool m_bEditWidth = false;
    bool m_bEditHeight = false;
    bool m_bPrintMode = false;
    bool m_bInitialized = false;
    float m_fMapWidth = 36.0F;
    float m_fMapHeight = 36.0F;
    float m_fRatio = 1.0F;
    bool m_bBW = false;
    float m_fPaperWidth = 36.0F;
    float m_fPaperHeight = 36.0F;
    int m_nMinimalFontSize = 0;
    bool m_bPrinterSetup = false;
    DEVMODE* m_pDevMode;
    CString m_strDeviceName;
    CString m_strFormName;
    int m_nUnit = 0;
    int m_nFeetScale = 0;
    int m_nMeterScale = 0;

private:
    bool GivesPaper() const;
    std::optional<kv::PrinterSettings> Printer() const;
    int& ScaleOfUnit();
    void ShowMeters();
    void ShowMapSize(bool landscape);
    void ShowPageSize(double width, double height);
    void TurnPage(bool landscape);

    /// The dialog writes into the page boxes itself, which is no typing.
    bool m_bShowingPage = false;
};
