#pragma once

#include <memory>

#include "controls/num_edit.h"
#include "window/dialogs/dialog.h"

class CButton;

/// Asks for the UTM zone on a spheroid, or, for the zone 99, for the rectifying point of Straight
/// Mercator. A zone that is none is told while it is typed, and taken all the same.
class KVGUICTL_API CKvGuiUTMZoneDlg : public CDialog {
public:
    explicit CKvGuiUTMZoneDlg(CWnd* pParent);
    ~CKvGuiUTMZoneDlg() override;

    void SetZone(int nZone) { m_nZone = nZone; }
    int GetZone() const { return m_nZone; }
    /// Whether the rectifying point is the user's, and not the center of the map.
    void SetRectSpec(bool bRectSpec) { m_bRectSpec = bRectSpec; }
    bool GetRectSpec() const { return m_bRectSpec; }
    /// Whole degrees.
    void SetRectLatLon(int nLat, int nLon) {
        m_nRectLat = nLat;
        m_nRectLon = nLon;
    }
    int GetRectLat() const { return m_nRectLat; }
    int GetRectLon() const { return m_nRectLon; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnCenterRadio();
    void OnUserRadio();
    void OnChangeZone();

    std::unique_ptr<CNumEdit> m_pZoneEdit;
    std::unique_ptr<CNumEdit> m_pLatEdit;
    std::unique_ptr<CNumEdit> m_pLonEdit;
    /// Not owned.
    CButton* m_pCenterRadio = nullptr;
    CButton* m_pUserRadio = nullptr;
    int m_nZone = 0;
    int m_nRectLat = 0;
    int m_nRectLon = 0;
    bool m_bRectSpec = false;

private:
    std::unique_ptr<CNumEdit> MakeEdit(int id, double min, double max);
    void TakeRectSpec(bool userSpecified);
    void EnableCoordinates(bool on);
    void CheckZone();
};
