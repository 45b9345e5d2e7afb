#pragma once

#include <memory>
#include <string>

#include "base/cstring.h"
#include "coordtools/event_mode.h"
#include "mapbuild/dms_ctrl.h"
#include "mapbuild/proj_ctrl.h"
#include "window/dialogs/dialog.h"

/// A modeless readout of a line on the host's map: its length and its offsets along X and Y, and
/// both ends as X and Y and as latitude and longitude. Lengths are those of the plane of the
/// projection that the user picks, so that another projection gives another one.
///
/// The host creates it on its template, calls `SetModePtr` and `ResetToDefault`, and feeds it
/// lines. What the user has picked outlives each of them. A box is empty where there is nothing to
/// show: ahead of the first line, and where the coordinate driver has no answer.
///
/// OK, Escape and the window's button hide it and tell the host; it lives on, can be fed while it
/// is hidden, and is shown again by `ShowWindow`. Straight Mercator is about the driver's
/// rectifying point, which the host sets ahead of feeds and of the user's picks.
class KVGUICTL_API CKvDistanceDialog : public CDialog {
public:
    /// When the tool is closed, `*pMode2`, a second mode of the host's, becomes 3, and `*pOpenFlag`
    /// 0; neither where one of the two is null. They are not owned, and outlive the tool.
    CKvDistanceDialog(int* pMode2, int* pOpenFlag, CWnd* pParent = nullptr);
    ~CKvDistanceDialog() override;

    /// The host's mode, which becomes 3 when the tool is closed; null for none. Not owned.
    void SetModePtr(KVEventMode* pMode) { m_pMode = pMode; }
    /// A line of the map: X and Y of both ends in a unit, "feet" or "meter", and the code of their
    /// projection. An end of 0 and 0 says that there is no second end yet. A user's projection of
    /// -1 or 0 becomes the map's. The window comes in front of others, unless it is hidden, and
    /// leaves the keyboard where it is. At most four calls of the coordinate driver. Does nothing
    /// ahead of `Create` and behind `CloseDlg`.
    void DialogUpdateText(double dX1, double dY1, double dX2, double dY2, int nProj,
                          std::string strUnit);
    /// Empties it and begins with another map, whose projection and unit the user's become.
    void ResetToDefault(int nProj, CString strUnit);
    /// An angle as 29, the degree sign in the single byte of Western systems, 30'45.00". Seconds
    /// that round up to 60 are written so.
    std::string FormatToDMS(double dValue);
    /// Lets the controls go. The host calls it before it destroys the window.
    void CloseDlg();

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnSelchangeComboDistUnit();
    void OnSelchangeComboDistFormat();
    void OnSelchangeComboDistProjection();

    int m_nUserProj = -1;
    int m_nMapProj = -1;
    int* m_pMode2;
    int* m_pOpenFlag;
    std::string m_strUnit = "feet";
    std::string m_strSpare;
    double m_dUserDist = 0.0;
    double m_dMapDist = 0.0;
    double m_dUserOffX = 0.0;
    double m_dUserOffY = 0.0;
    double m_dMapOffX = 0.0;
    double m_dMapOffY = 0.0;
    double m_dStartLat = CKvGuiDMSCtrl::kNoValue;
    double m_dStartLon = CKvGuiDMSCtrl::kNoValue;
    double m_dEndLat = CKvGuiDMSCtrl::kNoValue;
    double m_dEndLon = CKvGuiDMSCtrl::kNoValue;
    double m_dUserStartX = 0.0;
    double m_dUserStartY = 0.0;
    double m_dUserEndX = 0.0;
    double m_dUserEndY = 0.0;
    double m_dMapStartX = 0.0;
    double m_dMapStartY = 0.0;
    double m_dMapEndX = 0.0;
    double m_dMapEndY = 0.0;
    std::unique_ptr<CKvGuiProjCtrl> m_pProjCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pStartLatCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pStartLonCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pEndLatCtrl;
    std::unique_ptr<CKvGuiDMSCtrl> m_pEndLonCtrl;
    KVEventMode* m_pMode = nullptr;
    /// The map's unit, which all lengths are held in.
    std::string m_strMapUnit = "feet";

private:
    /// Whether there are a window and its controls.
    bool IsOpen() const { return m_hWnd && m_pProjCtrl; }
    void TakeMapFrame();
    void ProjectEnds();

    /// The format that the angles have been told.
    bool m_bDecimal = false;
};
