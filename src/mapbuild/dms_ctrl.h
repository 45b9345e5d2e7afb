#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/export.h"
#include "controls/num_edit.h"
#include "controls/num_spin_ctrl.h"
#include "frame/coordinate_text.h"
#include "frame/kvcom/angle.h"
#include "window/dialogs/dialog.h"

/// One latitude or longitude in a dialog's boxes: three edits for degrees, minutes and seconds,
/// each with its spin button and label, or the first of them alone for decimal degrees.
///
/// Angles are decimal degrees, north and east positive; 1000.0 stands for no value. Degrees of an
/// angle between -1 and 0 are shown, and read, as -0.
///
/// A coordinate that is pasted into any of the boxes (see `kv::ParseCoordinate`) fills all of them,
/// and those of the partner where it tells both angles. A bare number is pasted into the one box as
/// it is; but decimal degrees fill the boxes of minutes and seconds, too, where these are shown.
class KVGUICTL_API CKvGuiDMSCtrl {
public:
    static constexpr double kNoValue = 1000.0;

    CKvGuiDMSCtrl() = default;
    virtual ~CKvGuiDMSCtrl();
    CKvGuiDMSCtrl(const CKvGuiDMSCtrl&) = delete;
    CKvGuiDMSCtrl& operator=(const CKvGuiDMSCtrl&) = delete;

    /// Takes over the boxes of a dialog, which is not owned, in its `OnInitDialog`. They show the
    /// angle, or stay as the template has them where it lies outside of -90 to 90, of a longitude
    /// -180 to 180. Nothing else may be called ahead of this. A further call takes over anew.
    void Initialize(CDialog* pParent, int degEdit, int degSpin, int minEdit, int minSpin,
                    int secEdit, int secSpin, double dValue, bool bLat);
    /// Shows an angle in the present format, or empties the boxes for 1000.0. A longitude from -360
    /// to -180 has 360 added. False, and the boxes are empty, for one out of range.
    bool SetDMS(double dValue);
    /// Shows three parts. A box whose part is out of its range stays as it is. Of an angle between
    /// -1 and 0 the first part that is not 0 may have the minus.
    void SetDMS(int nDeg, int nMin, double dSec);
    /// The angle, 1000.0 where the boxes are empty. A box whose text is not valid counts as the
    /// lower end of its range.
    double GetDMS();
    /// The parts as the boxes have them; the lower end of its range for one that is empty or not
    /// valid. With -0 degrees the next part that is not 0 has the minus.
    void GetDMS(int& nDeg, int& nMin, double& dSec);
    /// Names the labels, and keeps in mind where edit, spin and label of the degrees lie. The ids
    /// of edits and spins are those of `Initialize`. Called ahead of the first `SetFormat`.
    void SetCtrl(int degEdit, int degSpin, int degLabel, int minEdit, int minSpin, int minLabel,
                 int secEdit, int secSpin, int secLabel);
    /// Decimal degrees, or degrees, minutes and seconds. It moves and shows controls and writes no
    /// value: call `SetDMS` behind it.
    void SetFormat(bool bDecimal);
    void SetDMSReadOnly(bool bReadOnly);
    void ClearDMS();

    /// Binds the latitude to the longitude of one position, both ways, until one of them goes. Null
    /// takes the bond away.
    void SetPartner(CKvGuiDMSCtrl* pPartner);

private:
    class AngleEdit;

    void LetBoxesGo();
    std::unique_ptr<CNumEdit> MakeEdit(int id);
    std::unique_ptr<CNumSpinCtrl> MakeSpin(int id, CNumEdit& edit, double dMin, double dMax,
                                           double dDelta) const;
    double Limit() const { return m_bLat ? 90.0 : 180.0; }
    double Wrapped(double dValue) const;
    bool Takes(double dValue) const;
    void SetBoxes();
    void SetPositions(const kv::AngleParts& parts);
    kv::AngleParts Carried(const kv::AngleParts& parts) const;
    CRect RectInHost(int id) const;
    void Place(int id, const CRect& rect) const;
    void SetLabel(int id, const char* text) const;

    bool Paste(CNumEdit& box, const std::string& text);
    std::optional<std::string> OwnNumber(const CNumEdit& box, const std::string& text) const;
    std::optional<double> Own(const kv::Coordinate& coordinate) const;
    bool CanFill() const;
    void Fill(double dValue);

    bool m_bLat = false;
    double m_dSec = 0.0;
    int m_nMin = 0;
    int m_nDeg = 0;
    CDialog* m_pParent = nullptr;
    double m_dDMS = kNoValue;
    std::unique_ptr<CNumSpinCtrl> m_pSecSpin;
    std::unique_ptr<CNumSpinCtrl> m_pMinSpin;
    std::unique_ptr<CNumSpinCtrl> m_pDegSpin;
    std::unique_ptr<CNumEdit> m_pSecEdit;
    std::unique_ptr<CNumEdit> m_pMinEdit;
    std::unique_ptr<CNumEdit> m_pDegEdit;
    bool m_bDecimal = false;
    int m_nDegEditId = 0;
    int m_nDegSpinId = 0;
    int m_nDegLabelId = 0;
    int m_nMinEditId = 0;
    int m_nMinSpinId = 0;
    int m_nMinLabelId = 0;
    int m_nSecEditId = 0;
    int m_nSecSpinId = 0;
    int m_nSecLabelId = 0;
    CRect m_rcDegEdit;
    CRect m_rcDegSpin;
    CRect m_rcDegLabel;
    /// Not owned.
    CKvGuiDMSCtrl* m_pPartner = nullptr;
};
