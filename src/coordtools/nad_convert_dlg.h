#pragma once

#include <memory>

#include "mapbuild/dms_ctrl.h"
#include "window/dialogs/dialog.h"

class CComboBox;

/// A modeless tool that converts a latitude and longitude between the datums NAD27 and NAD83: one
/// panel is the input, the other the result.
///
/// The host creates it on its template, and shows it again after OK, which only hides it. Angles
/// are decimal degrees, 1000.0 standing for none.
class KVGUICTL_API CKvNadConvertDlg : public CDialog {
public:
    explicit CKvNadConvertDlg(CWnd* pParent);
    ~CKvNadConvertDlg() override;

    /// Lets the controls go. The host calls it before it destroys the window, and nothing of this
    /// class behind it.
    void CloseDlg();
    /// Empties both panels.
    void ResetToDefault();
    /// Takes a position, as from a click on a map, into the panel that is the input, and converts
    /// it.
    void SetPosition(double dLat, double dLon);

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnSelchangeComboNad27Format();
    void OnSelchangeComboNad83Format();
    void OnRadioNad27to83();
    void OnRadioNad83to27();
    void OnButtonNad();

    std::unique_ptr<CKvGuiDMSCtrl> m_pLat27Ctrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLon27Ctrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLat83Ctrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLon83Ctrl;
    double m_dLat27 = 0.0;
    double m_dLat83 = 0.0;
    double m_dLon27 = 0.0;
    double m_dLon83 = 0.0;

private:
    /// The controls and the values of one datum.
    struct Panel {
        CKvGuiDMSCtrl& latCtrl;
        CKvGuiDMSCtrl& lonCtrl;
        double& lat;
        double& lon;

        void Read();
        void Show();
        void SetReadOnly(bool readOnly);
    };
    using Shift = int (*)(double lon, double lat, double& lonOut, double& latOut);

    Panel Nad27();
    Panel Nad83();
    bool Is27To83() const;
    void ShowDirection();
    static void ChangeFormat(Panel panel, const CComboBox& format);
    static void Convert(Panel from, Panel to, Shift shift);
};
