#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>

#include "controls/input_validation_edit.h"
#include "frame/kvcom/map_bounds.h"
#include "mapbuild/proj_ctrl.h"
#include "window/dialogs/dialog.h"

class CKvGuiSizingDlg;

/// Makes the bounds of a map from an origin and a far side that the person types: each as X/Y or as
/// latitude/longitude, the far side as the upper right corner or as a width and height. What is
/// entered is converted when a choice changes, and at OK.
class KVGUICTL_API CKvGuiCustomDlg : public CDialog {
public:
    explicit CKvGuiCustomDlg(CWnd* pParent);
    ~CKvGuiCustomDlg() override;

    const CKvMapBounds& GetBounds() const { return m_tBounds; }
    int GetScale() const { return m_nScale; }
    void SetXYBounded(bool bXYBounded) { m_tBounds.SetXYBounded(bXYBounded); }
    bool GetXYBounded() const { return m_tBounds.GetXYBounded(); }
    /// The dialog begins with a name from the clock, whatever was set.
    void SetMapName(std::string name) { m_strMapName = std::move(name); }
    std::string GetMapName() const { return m_strMapName; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnWidthHeightRadio();
    void OnOppcorRadio();
    void OnLlboundRadio();
    void OnXyboundRadio();
    void OnOrignXy();
    void OnLatLonOrig();
    void OnSelchangeComboLatLon();
    void OnScaleRadio();
    void OnSelchangePrimprojCombo();
    void OnDropdownPrimprojCombo();
    void OnRadioFeet();
    void OnRadioMeters();

    // Showing and hiding; with 1 for `bFill` from the record.
    void ShowLowerLeft(int nShow, int bFill);
    void ShowUpperRight(int nShow, int bFill);
    void ShowLatLon(int nShow, int bFill);
    /// Shown, the boxes are filled.
    void ShowXY(int nShow);
    /// These two empty the boxes.
    void ShowLatLonValues();
    void ShowXYValues();
    void ShowWidthHeight();
    void ShowRightCorner();

    bool IsValidXY() const;
    bool IsValidLatLon() const;

    // From the boxes to the record, where they are filled.
    void UpdateLL();
    void UpdateUR();
    void UpdateLLMax();
    void OnChangeYminEdit();
    void OnChangeXminEdit3();

    /// All boxes to the record, and the scale unless one was chosen. False, with a message, where
    /// they are not filled, and where the projection has no answer for them.
    bool UpdateBoundsScale();
    /// The box of latitude and longitude around the whole rectangle of X/Y. Where a corner is no
    /// place, it stays as it was.
    void PopulateIsbLL(CKvMapBounds& tBounds) const;

    CInputValidationEdit m_tLatDegEdit;
    CInputValidationEdit m_tLonDegEdit;
    CInputValidationEdit m_tLatDegMaxEdit;
    CInputValidationEdit m_tLonDegMaxEdit;
    CInputValidationEdit m_tXMinEdit;
    CInputValidationEdit m_tYMinEdit;
    CInputValidationEdit m_tXMaxEdit;
    CInputValidationEdit m_tYMaxEdit;
    int m_nProjection = 1;
    int m_nScale = 0;
    CKvMapBounds m_tBounds;
    bool m_bScaleSet = false;
    bool m_bWidthHeight = false;
    std::string m_strMapName;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjCtrl;

private:
    using Texts = std::array<std::string, 6>;
    using Boxes = std::array<int, 6>;
    enum class Reading { kGood, kNotFilled, kNoAnswer };

    void SetScale(int nScale) { m_nScale = nScale; }
    bool IsChecked(int id) const { return IsDlgButtonChecked(id) == BST_CHECKED; }
    void CheckOrigin(bool xy);
    void ShowFar();
    void ShowTexts(const Boxes& boxes, const Texts& texts);
    /// The texts of the boxes, "0" for an empty one of minutes or seconds, also on the screen; none
    /// where a box of degrees is empty.
    bool ReadTexts(const Boxes& boxes, Texts& texts);
    /// The origin and the far side, as the boxes of angles tell them.
    void ReadLatLon();
    Reading ReadBoxes();
    void RefuseOrigin();
    void ChangeUnit();
    void GiveBounds(CKvGuiSizingDlg& sizing) const;

    /// Whether the boxes of X/Y are those that are seen.
    bool m_bXYShown = true;
};
