#pragma once

#include "frame/kvcom/min_max_2dd.h"
#include "window/dialogs/dialog.h"

/// Asks for the scale and the orientation of a map that is to be built. Unless the output goes to a
/// CGM file, only scale and size are asked for.
///
/// Bounds are in feet (unit 0) or meters (unit 1); the unit is set ahead of the scale. In feet a
/// scale is feet per inch, in meters a ratio. The scale that was set last is remembered for each
/// unit, over all dialogs of the program; a dialog that has no scale, or whose unit has none
/// remembered, proposes one.
class KVGUICTL_API CKvGuiSizingDlg : public CDialog {
public:
    explicit CKvGuiSizingDlg(CWnd* pParent = nullptr);

    void SetBounds(CMinMax2Dd_t bounds) { m_bounds = bounds; }
    void SetScale(int nScale);
    void SetUnit(int nUnit) { m_nUnit = nUnit; }
    /// Whether the output goes to a CGM file.
    void IsCGM(bool bIsCGM) { m_bIsCGM = bIsCGM; }

    /// Sets the listed scale at which the smaller side just fits the paper's width, and returns it.
    /// Bounds without a whole foot on each inch leave the scale as it is. Needs no window.
    int CalculateScaleClosed();

    // The outcome. After Cancel, the scale is that which the dialog opened with.
    int GetScale() const { return m_nScale; }
    bool GetTrueTypeFont() const { return m_bTTFont; }
    bool GetColorMode() const { return m_bColor; }
    bool GetLandScapeMode() const { return m_bLandscape; }
    bool GetGrayMode() const { return m_bGray; }
    /// Size of the map in inches, as it was computed last.
    float GetPageWidthSize() const { return m_fPageWidth; }
    float GetPageHeightSize() const { return m_fPageHeight; }

    /// Shows the scale that is remembered for the unit.
    void SelectScale();
    /// Computes the size of the map and shows it. At a scale of 0 it is endless.
    void RefreshWidthHeight();
    /// Checks the orientation that the map has. A square is landscape.
    void SetOrientation();

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnScaleCheck();
    void OnSettingsCheck();
    void OnEditchangeScaleCombo();
    void OnSelchangeScaleCombo();
    void OnLandRadio();
    void OnPortRadio();

    int m_nScale = 0;
    int m_nOrigScale = 0;
    int m_nPaperWidth = 36;  ///< inches
    CMinMax2Dd_t m_bounds;
    bool m_bLandscape = false;
    bool m_bTTFont = false;
    bool m_bColor = true;
    bool m_bGray = true;
    bool m_bIsCGM = false;
    float m_fPageWidth = 0.0F;
    float m_fPageHeight = 0.0F;
    int m_nUnit = 0;

private:
    void CheckOrientation(bool landscape);
    void ShowTurned(bool landscape);
    void MakeSizeReadOnly(bool readOnly);
};
