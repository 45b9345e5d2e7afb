#pragma once

#include <memory>
#include <string>

#include "mapbuild/dms_ctrl.h"
#include "mapbuild/proj_ctrl.h"
#include "window/dialogs/dialog.h"

/// A modeless tool with two converters: one between latitude and longitude and projected X/Y, one
/// that brings X/Y from one projection and unit to another.
///
/// The host creates it on its template, and shows it again after OK, which only hides it; its
/// values live on. Where the boxes are to be read in feet from the start, `ResetToDefault` comes
/// behind `Create`. Lengths are held in feet, angles in decimal degrees.
class KVGUICTL_API CKvConverterDialog : public CDialog {
public:
    explicit CKvConverterDialog(CWnd* pParent);
    ~CKvConverterDialog() override;

    /// Lets the controls go. The host calls it before it destroys the window, and nothing of this
    /// class behind it.
    void CloseDlg();
    /// Empties the upper converter, in feet under the projection 115. The lower one stays.
    void ResetToDefault();
    /// Writes the state of the upper converter into its boxes.
    void UpdateOutputBoxes();
    /// Shows a position, as from a click on a map, in both forms in the upper converter.
    void SetPosition(double dLat, double dLon);

    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL PreTranslateMessage(MSG* message) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnButtonConvert();
    void OnButtonConvertXY();
    void OnRadioConvertLlxy();
    void OnRadioConvertXyll();
    void OnSelchangeComboConvertFormat();
    void OnSelchangeComboConvertProj();
    void OnSelchangeComboConvertUnit();
    // X and Y are read when they are converted, and not when they are left.
    void OnKillfocusEditConvertX() {}
    void OnKillfocusEditConvertY() {}
    void OnSelchangeComboConvertProjFrom();
    void OnSelchangeComboConvertProjTo();
    void OnSelchangeComboConvertUnitFrom();
    void OnSelchangeComboConvertUnitTo();

    std::string m_strX;
    std::string m_strY;
    std::string m_strProj;
    double m_dX = 0.0;
    double m_dY = 0.0;
    double m_dLat = 0.0;
    double m_dLon = 0.0;
    int m_nProj = 0;
    int m_nProjFrom = 0;
    int m_nProjTo = 0;
    std::string m_strSpare;
    /// The unit that X and Y are shown in, which is the one that they are read in. Empty until
    /// they are shown for the first time.
    std::string m_strUnit;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLatCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLonCtrl;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjCtrl;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjFromCtrl;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjToCtrl;

private:
    void SetDefaults();
    std::unique_ptr<CKvGuiProjCtrl> MakeProjection(int comboId, int code);
    void ShowDirection();
    void MarkDefaultButton();
    void ConvertToXY();
    void ConvertToLatLon();
    void SetReferencePoint();
};
