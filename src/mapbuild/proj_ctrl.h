#pragma once

#include <map>
#include <string>

#include "base/export.h"

class CComboBox;
class CDialog;

/// Lets the user pick a projection from a combo box of the host: seven favourites, "More..." with
/// the full selection, and a ninth line with what was picked there.
///
/// A projection is one number, its code:
/// - below 100, and 5000 and up: a zone of the table `gulf_mexico_zone_code`;
/// - 100 to 4999: a spheroid, a multiple of 100, and a UTM zone on it, 99 being Straight Mercator;
/// - below -1: a state plane zone, its number negated;
/// - -1: none.
///
/// A zone that the table calls otherwise than the coordinate driver does
/// (`CKvUtilLLdrv::BuiltInName`) is told to the log when the table is read.
///
/// It owns neither the host nor the combo box. `Initialize` comes first.
class KVGUICTL_API CKvGuiProjCtrl {
public:
    virtual ~CKvGuiProjCtrl() = default;
    CKvGuiProjCtrl() = default;
    CKvGuiProjCtrl(const CKvGuiProjCtrl&) = default;
    CKvGuiProjCtrl& operator=(const CKvGuiProjCtrl&) = default;

    /// Called once, in the host's `OnInitDialog`: fills the combo box and shows a code, unless that
    /// is -1. The rectifying point is in decimal degrees.
    void Initialize(CDialog* pParent, int nComboId, int nProjection, int nUTMZone, bool bRectSpec,
                    double dRectLat, double dRectLon);

    /// The code of the current line. The host calls it when the selection has changed; on "More..."
    /// it runs the selection dialog. A cancelled one, and a refused pick, give the code of the last
    /// `Initialize` of the process, which may be another control's.
    int GetProjection();
    /// Makes the code's line the current one; a code that is no favourite becomes the ninth line.
    void SetProjection(int nCode);
    /// Runs the selection dialog and takes its outcome.
    void GetMoreProjection();
    /// Tells whether the host's map is bounded by X/Y, for which Straight Mercator is refused.
    void IsXYBounded(bool bXYBounded) { m_bXYBounded = bXYBounded; }

    /// What reports and titles call a code; empty for an unknown one.
    static std::string S_GetProjDesc(int nCode);

    /// Whether the user gave the rectifying point, and the point in decimal degrees.
    bool m_bRectSpec = false;
    double m_dRectLat = 0.0;
    double m_dRectLon = 0.0;
    /// The UTM zone of the last pick, 99 for Straight Mercator.
    int m_nUTMZone = 0;

protected:
    bool m_bXYBounded = false;
    int m_nComboId = 0;
    int m_nProjection = -1;
    /// Looked up again before each use.
    CComboBox* m_pCombo = nullptr;
    CDialog* m_pParent = nullptr;
    /// The code of the ninth line.
    int m_nMoreCode = -1;

    /// Descriptions of codes, filled once in the life of the process.
    static std::map<int, std::string> m_tMapDesc;
    static bool m_bMapDescHasData;
    /// The code of the last `Initialize`, of any control.
    static int s_nLastInitCode;

private:
    static void BuildCodeDescMap();
    /// A code that is entered already keeps its description.
    static void Enter(int nCode, const std::string& name, const std::string& description);
    static void FillCatalogue();
    /// An unknown code gets an empty description, and stays once the catalogue is read.
    static const std::string& Description(int nCode);

    void LookUpCombo();
    void TakeMoreCode(int nCode);
};
