#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "window/dialogs/dialog.h"

class CListBox;

/// The full choice of projections: a type, then a row of the zone table, then, for a spheroid, the
/// UTM zone on it or the rectifying point of Straight Mercator.
///
/// After IDOK `m_nProjection` is the code and `m_sDescription` its text. The point is in decimal
/// degrees; the dialog keeps its whole degrees only.
class KVGUICTL_API CKvGuiProjSel : public CDialog {
public:
    /// `nCode` is the caller's code, from which the UTM zone is taken where it lies on the picked
    /// spheroid.
    CKvGuiProjSel(int nCode, CWnd* pParent);

    void SetUTMZone(int nZone) { m_nUTMZone = nZone; }
    int GetUTMZone() const { return m_nUTMZone; }
    void SetRectSpec(bool bRectSpec) { m_bRectSpec = bRectSpec; }
    bool GetRectSpec() const { return m_bRectSpec; }
    void SetRectSpecLat(double dLat) { m_dRectSpecLat = dLat; }
    double GetRectSpecLat() const { return m_dRectSpecLat; }
    void SetRectSpecLon(double dLon) { m_dRectSpecLon = dLon; }
    double GetRectSpecLon() const { return m_dRectSpecLon; }
    void SetStraightMercatorFlag(bool bStraight) { m_bStraightMercator = bStraight; }
    bool GetStraightMercatorFlag() const { return m_bStraightMercator; }

    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    int m_nProjection = 1;
    std::ostringstream m_sDescription;

protected:
    void OnStastalamRadio();
    void OnStatramerRadio();
    void OnMislamRadio();
    void OnMistramerRadio();
    void OnUtmsphRadio();
    void OnMisothRadio();
    void OnStaplaRadio();
    void OnStraigthMercatorRadio();

    /// Fills the list with the zones of a category, or of several, as they stand in an SQL list.
    void PopulateListBox(CString& strCategory);

    int m_nInitCode;
    CString m_strCategory;
    /// A code for each row of the list.
    std::vector<int> m_vCodes;
    bool m_bRectSpec = false;
    double m_dRectSpecLat = 0.0;
    double m_dRectSpecLon = 0.0;
    int m_nUTMZone = 0;
    bool m_bStraightMercator = false;

private:
    CListBox& List() const;
    void ShowCategory(const char* category, bool straightMercator);
    /// Rows and codes from the two columns of a statement's result; the codes are multiplied by
    /// `sign`.
    void FillList(const std::string& sql, int sign);
    void Describe(const std::string& text);
    /// Makes the zone of a spheroid's code; false when the user cancelled.
    bool AskForZone();
};
