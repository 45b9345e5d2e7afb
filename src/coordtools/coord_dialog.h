#pragma once

#include <memory>
#include <string>

#include "base/cstring.h"
#include "coordtools/event_mode.h"
#include "mapbuild/dms_ctrl.h"
#include "mapbuild/proj_ctrl.h"
#include "window/dialogs/dialog.h"

/// A modeless readout of a position on the host's map: as X and Y in a projection and unit that the
/// user picks, and as latitude and longitude.
///
/// The host creates it on its template, calls `SetModePtr` and `ResetToDefault`, and feeds it
/// positions. What the user has picked outlives each of them. A box is empty where there is nothing
/// to show: ahead of the first position, and where the coordinate driver has no answer.
///
/// OK, Escape and the window's button hide it and tell the host; it lives on, can be fed while it
/// is hidden, and is shown again by `ShowWindow`. Straight Mercator is about the driver's
/// rectifying point, which the host sets ahead of feeds and of the user's picks.
class KVGUICTL_API CKvCoordDialog : public CDialog {
public:
    /// `pOpenFlag` becomes 0 when the readout is closed. It may be null, is not owned, and outlives
    /// the readout.
    explicit CKvCoordDialog(int* pOpenFlag, CWnd* pParent = nullptr);
    ~CKvCoordDialog() override;

    /// The host's mode, which becomes 3 when the readout is closed; null for none. Not owned.
    void SetModePtr(KVEventMode* pMode) { m_pMode = pMode; }
    /// A position of the map: X and Y in a unit, "feet" or "meter", and the code of their
    /// projection. The first one gives its projection to the user's, if that is -1. The window
    /// comes in front of others, unless it is hidden, and leaves the keyboard where it is. At most
    /// two calls of the coordinate driver. Does nothing ahead of `Create` and behind `CloseDlg`.
    void DialogUpdateText(double dX, double dY, int nProj, std::string strUnit);
    /// Empties it and begins with another map, whose projection and unit the user's become.
    void ResetToDefault(int nProj, CString strUnit);
    /// Lets the controls go. The host calls it before it destroys the window.
    void CloseDlg();

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnSelchangeComboCoordFormat();
    void OnSelchangeComboCoordUnit();
    void OnSelchangeComboCoordProj();

    /// The map's unit, which X and Y of both frames are held in.
    std::string m_strMapUnit = "feet";
    int* m_pOpenFlag;
    int m_nUserProj = -1;
    int m_nMapProj = -1;
    double m_dUserX = 0.0;
    double m_dMapX = 0.0;
    double m_dUserY = 0.0;
    double m_dMapY = 0.0;
    double m_dLat = CKvGuiDMSCtrl::kNoValue;
    double m_dLon = CKvGuiDMSCtrl::kNoValue;
    std::string m_strUnit;
    std::string m_strSpare;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLatCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pLonCtrl;
    KVEventMode* m_pMode = nullptr;

private:
    /// Whether there are a window and its controls.
    bool IsOpen() const { return m_hWnd && m_pProjCtrl; }
    void ShowPlane(int box, double value);

    /// The format that the angles have been told.
    bool m_bDecimal = false;
};
