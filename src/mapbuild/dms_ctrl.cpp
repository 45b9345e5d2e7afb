#include "mapbuild/dms_ctrl.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/kvcom/util_lldrv.h"
#include "window/desktop.h"
#include "window/window_system.h"

namespace {

constexpr int kDegreePrecision = 6;
/// Decimals of seconds as the boxes show them of themselves, and as `SetDMS` writes them.
constexpr int kBoxDecimals = 3;
constexpr int kWrittenDecimals = 2;
constexpr double kMostMinutes = 60.0;

constexpr double kTurn = 360.0;

bool IsEmpty(const CWnd& edit) {
    return edit.GetWindowTextLength() == 0;
}

std::string DegreesText(const kv::AngleParts& parts) {
    return (parts.negative ? "-" : "") + std::to_string(parts.degrees);
}

/// Gives the part of an angle between -1 and 0 that has the minus to the degrees.
kv::AngleParts PartsOf(int nDeg, int nMin, double dSec) {
    const bool below = nDeg == 0 && (nMin < 0 || (nMin == 0 && dSec < 0.0));
    if (!below) return {nDeg < 0, std::abs(nDeg), nMin, dSec};
    return {true, 0, -nMin, nMin < 0 ? dSec : -dSec};
}

/// Without a mark of minutes or seconds at its end, where it has one.
std::string WithoutMark(const std::string& text) {
    const std::string trimmed = kv::TrimSpace(text);
    for (const std::string_view mark :
         {"''", "'", "\"", "m", "s", "\xE2\x80\xB2", "\xE2\x80\xB3"}) {
        if (trimmed.ends_with(mark))
            return kv::TrimSpace(trimmed.substr(0, trimmed.size() - mark.size()));
    }
    return text;
}

}  // namespace

/// One of the boxes, which lets its group look at what is pasted.
class CKvGuiDMSCtrl::AngleEdit : public CNumEdit {
public:
    explicit AngleEdit(CKvGuiDMSCtrl& group) : m_group(group) {}

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnMessage<&AngleEdit::OnPaste>(WM_PASTE),
        };
        static const kv::MessageMap kMap{&CNumEdit::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    LRESULT OnPaste(WPARAM, LPARAM) {
        const std::string text = kv::WindowSystem::Get().GetDesktop().ClipboardText();
        return m_group.Paste(*this, text) ? 0 : Default();
    }

    CKvGuiDMSCtrl& m_group;
};

CKvGuiDMSCtrl::~CKvGuiDMSCtrl() {
    SetPartner(nullptr);
}

void CKvGuiDMSCtrl::LetBoxesGo() {
    m_pDegEdit.reset();
    m_pDegSpin.reset();
    m_pMinEdit.reset();
    m_pMinSpin.reset();
    m_pSecEdit.reset();
    m_pSecSpin.reset();
}

void CKvGuiDMSCtrl::Initialize(CDialog* pParent, int degEdit, int degSpin, int minEdit, int minSpin,
                               int secEdit, int secSpin, double dValue, bool bLat) {
    m_nDegEditId = degEdit;
    m_nDegSpinId = degSpin;
    m_nMinEditId = minEdit;
    m_nMinSpinId = minSpin;
    m_nSecEditId = secEdit;
    m_nSecSpinId = secSpin;
    m_pParent = pParent;
    m_dDMS = dValue;
    m_bLat = bLat;

    // Ahead of others on the same boxes.
    LetBoxesGo();
    m_pDegEdit = MakeEdit(degEdit);
    m_pDegEdit->SetPrecision(kDegreePrecision);
    m_pDegSpin = MakeSpin(degSpin, *m_pDegEdit, -Limit(), Limit(), 1.0);
    m_pMinEdit = MakeEdit(minEdit);
    m_pMinSpin = MakeSpin(minSpin, *m_pMinEdit, 0.0, kMostMinutes, 1.0);
    m_pSecEdit = MakeEdit(secEdit);
    m_pSecSpin = MakeSpin(secSpin, *m_pSecEdit, 0.0, kMostMinutes, 0.05);

    if (std::abs(dValue) <= Limit()) SetBoxes();
}

std::unique_ptr<CNumEdit> CKvGuiDMSCtrl::MakeEdit(int id) {
    auto edit = std::make_unique<AngleEdit>(*this);
    edit->SubclassDlgItem(static_cast<UINT>(id), m_pParent);
    return edit;
}

std::unique_ptr<CNumSpinCtrl> CKvGuiDMSCtrl::MakeSpin(int id, CNumEdit& edit, double dMin,
                                                      double dMax, double dDelta) const {
    auto spin = std::make_unique<CNumSpinCtrl>();
    spin->SubclassDlgItem(static_cast<UINT>(id), m_pParent);
    spin->SetBuddy(&edit);
    spin->SetRange(dMin, dMax);
    spin->SetDelta(dDelta);
    return spin;
}

// The angle.

void CKvGuiDMSCtrl::SetBoxes() {
    CKvUtilLLdrv::GetDegMinSec(m_dDMS, m_nDeg, m_nMin, m_dSec);
    if (m_bDecimal) {
        m_pDegSpin->SetPos(m_dDMS);
    } else {
        SetPositions(kv::SplitAngle(m_dDMS, kBoxDecimals));
    }
}

void CKvGuiDMSCtrl::SetPositions(const kv::AngleParts& parts) {
    const double degrees = parts.degrees;
    m_pDegSpin->SetPos(parts.negative ? -degrees : degrees);
    m_pMinSpin->SetPos(parts.minutes);
    m_pSecSpin->SetPos(parts.seconds);
}

/// Seconds that their box would round up to 60 are carried over, unless a box could not show what
/// comes of it.
kv::AngleParts CKvGuiDMSCtrl::Carried(const kv::AngleParts& parts) const {
    constexpr double kRoundedUp = 59.9995;
    const bool up = parts.seconds >= kRoundedUp && parts.seconds < kMostMinutes;
    if (!up || parts.minutes < 0 || parts.minutes > kMostMinutes) return parts;
    const kv::AngleParts carried = kv::SplitAngle(kv::JoinAngle(parts), kBoxDecimals);
    return carried.degrees <= Limit() ? carried : parts;
}

/// Nothing like it is done for a longitude above 180.
double CKvGuiDMSCtrl::Wrapped(double dValue) const {
    const bool wraps = !m_bLat && dValue < -Limit() && dValue >= -kTurn;
    return wraps ? dValue + kTurn : dValue;
}

bool CKvGuiDMSCtrl::Takes(double dValue) const {
    return std::abs(Wrapped(dValue)) <= Limit();
}

bool CKvGuiDMSCtrl::SetDMS(double dValue) {
    m_dDMS = Wrapped(dValue);
    if (m_dDMS == kNoValue || !Takes(m_dDMS)) {
        ClearDMS();
        return m_dDMS == kNoValue;
    }
    if (m_bDecimal) {
        m_pParent->SetDlgItemText(m_nDegEditId, kv::FormatFixed(m_dDMS, kDegreePrecision).c_str());
        return true;
    }
    const kv::AngleParts parts = kv::SplitAngle(m_dDMS, kWrittenDecimals);
    m_pParent->SetDlgItemText(m_nDegEditId, DegreesText(parts).c_str());
    m_pParent->SetDlgItemText(m_nMinEditId, std::to_string(parts.minutes).c_str());
    m_pParent->SetDlgItemText(m_nSecEditId,
                              kv::FormatFixed(parts.seconds, kWrittenDecimals).c_str());
    return true;
}

void CKvGuiDMSCtrl::SetDMS(int nDeg, int nMin, double dSec) {
    m_nDeg = nDeg;
    m_nMin = nMin;
    m_dSec = dSec;
    SetPositions(Carried(PartsOf(nDeg, nMin, dSec)));
}

double CKvGuiDMSCtrl::GetDMS() {
    const bool degrees = !IsEmpty(*m_pDegEdit);
    if (m_bDecimal) {
        m_dDMS = degrees ? m_pDegSpin->GetPos() : kNoValue;
        return m_dDMS;
    }
    const bool minutes = !IsEmpty(*m_pMinEdit);
    const bool seconds = !IsEmpty(*m_pSecEdit);
    if (!degrees && !minutes && !seconds) {
        m_dDMS = kNoValue;
        return m_dDMS;
    }
    // As a double, since -0 has a sign that counts.
    const double dDeg = degrees ? std::trunc(m_pDegSpin->GetPos()) : 0.0;
    const int nMin = minutes ? kv::ToInt(m_pMinSpin->GetPos()) : 0;
    const double dSec = seconds ? std::abs(m_pSecSpin->GetPos()) : 0.0;
    CKvUtilLLdrv::GetDegDeg(m_dDMS, dDeg, nMin, dSec);
    return m_dDMS;
}

void CKvGuiDMSCtrl::GetDMS(int& nDeg, int& nMin, double& dSec) {
    const double degrees = m_pDegSpin->GetPos();
    nDeg = kv::ToInt(degrees);
    nMin = kv::ToInt(m_pMinSpin->GetPos());
    dSec = m_pSecSpin->GetPos();
    if (nDeg != 0 || !std::signbit(degrees)) return;
    if (nMin != 0) {
        nMin = -nMin;
    } else {
        dSec = -dSec;
    }
}

void CKvGuiDMSCtrl::ClearDMS() {
    for (CNumEdit* edit : {m_pDegEdit.get(), m_pMinEdit.get(), m_pSecEdit.get()}) {
        edit->SetWindowText("");
    }
}

void CKvGuiDMSCtrl::SetDMSReadOnly(bool bReadOnly) {
    for (CNumEdit* edit : {m_pDegEdit.get(), m_pMinEdit.get(), m_pSecEdit.get()}) {
        edit->SetReadOnly(bReadOnly);
    }
    for (CNumSpinCtrl* spin : {m_pDegSpin.get(), m_pMinSpin.get(), m_pSecSpin.get()}) {
        spin->EnableWindow(!bReadOnly);
    }
}

// The format.

CRect CKvGuiDMSCtrl::RectInHost(int id) const {
    CRect rect;
    if (const CWnd* control = m_pParent->GetDlgItem(id)) {
        control->GetWindowRect(&rect);
        m_pParent->ScreenToClient(&rect);
    }
    return rect;
}

void CKvGuiDMSCtrl::Place(int id, const CRect& rect) const {
    if (CWnd* control = m_pParent->GetDlgItem(id)) control->MoveWindow(rect);
}

void CKvGuiDMSCtrl::SetLabel(int id, const char* text) const {
    if (CWnd* label = m_pParent->GetDlgItem(id)) label->SetWindowText(text);
}

void CKvGuiDMSCtrl::SetCtrl(int, int, int degLabel, int, int, int minLabel, int, int,
                            int secLabel) {
    m_nDegLabelId = degLabel;
    m_nMinLabelId = minLabel;
    m_nSecLabelId = secLabel;
    m_rcDegEdit = RectInHost(m_nDegEditId);
    m_rcDegSpin = RectInHost(m_nDegSpinId);
    m_rcDegLabel = RectInHost(m_nDegLabelId);
}

void CKvGuiDMSCtrl::SetFormat(bool bDecimal) {
    m_bDecimal = bDecimal;
    SetLabel(m_nDegLabelId, bDecimal ? "Degree.Degree" : "D");
    for (const int id :
         {m_nMinEditId, m_nMinSpinId, m_nMinLabelId, m_nSecEditId, m_nSecSpinId, m_nSecLabelId}) {
        if (CWnd* control = m_pParent->GetDlgItem(id)) {
            control->ShowWindow(bDecimal ? SW_HIDE : SW_SHOW);
        }
    }
    CRect edit = m_rcDegEdit;
    CRect spin = m_rcDegSpin;
    CRect label = m_rcDegLabel;
    if (bDecimal) {
        const int width = m_rcDegEdit.Width();
        edit.right = edit.left + 2 * width;
        spin.OffsetRect(width, 0);
        label.OffsetRect(width, 0);
        label.right = label.left + 8 * m_rcDegLabel.Width();
    }
    Place(m_nDegEditId, edit);
    Place(m_nDegSpinId, spin);
    Place(m_nDegLabelId, label);
}

// Pasting.

void CKvGuiDMSCtrl::SetPartner(CKvGuiDMSCtrl* pPartner) {
    if (m_pPartner) m_pPartner->m_pPartner = nullptr;
    m_pPartner = pPartner;
    if (!pPartner) return;
    if (pPartner->m_pPartner) pPartner->m_pPartner->m_pPartner = nullptr;
    pPartner->m_pPartner = this;
}

/// The text of a single number that is the box's own, without the mark of minutes or seconds that
/// may stand behind it in a box of those: a small s is no south there. Only a fraction of degrees
/// belongs to those boxes, where they are shown.
std::optional<std::string> CKvGuiDMSCtrl::OwnNumber(const CNumEdit& box,
                                                    const std::string& text) const {
    const bool degrees = &box == m_pDegEdit.get();
    const std::string bare = degrees ? text : WithoutMark(text);
    const auto number = kv::ScanLoneNumber(bare);
    if (!number) return std::nullopt;
    const bool own = !degrees || m_bDecimal || *number == std::trunc(*number);
    return own ? std::optional(bare) : std::nullopt;
}

std::optional<double> CKvGuiDMSCtrl::Own(const kv::Coordinate& coordinate) const {
    const auto& told = m_bLat ? coordinate.latitude : coordinate.longitude;
    const auto& angle = told ? told : coordinate.angle;
    return angle && Takes(*angle) ? angle : std::nullopt;
}

bool CKvGuiDMSCtrl::CanFill() const {
    return m_pDegEdit && m_pDegEdit->IsWindowEnabled() &&
           !m_pDegEdit->m_hWnd->HasStyle(ES_READONLY);
}

/// False where the box is to take the text as it stands.
bool CKvGuiDMSCtrl::Paste(CNumEdit& box, const std::string& text) {
    if (!CanFill()) return false;
    if (const auto number = OwnNumber(box, text)) {
        if (*number == text) return false;
        box.ReplaceSel(number->c_str(), TRUE);
        return true;
    }
    const auto coordinate = kv::ParseCoordinate(text);
    const auto own = coordinate ? Own(*coordinate) : std::nullopt;
    if (!own) return false;
    const bool both = coordinate->latitude && coordinate->longitude;
    if (!both || !m_pPartner || m_pPartner->m_bLat == m_bLat || !m_pPartner->CanFill()) {
        Fill(*own);
        return true;
    }
    const auto other = m_pPartner->Own(*coordinate);
    if (!other) return false;
    Fill(*own);
    m_pPartner->Fill(*other);
    return true;
}

/// As typed in place of what the boxes hold, so that each can take it back. Seconds have three
/// decimals where two would lose something.
void CKvGuiDMSCtrl::Fill(double dValue) {
    m_dDMS = Wrapped(dValue);
    const auto type = [](CNumEdit& edit, const std::string& text) {
        if (edit.WindowText() == text) return;
        edit.SetSel(0, -1);
        edit.ReplaceSel(text.c_str(), TRUE);
    };
    if (m_bDecimal) {
        type(*m_pDegEdit, kv::FormatFixed(m_dDMS, kDegreePrecision));
        return;
    }
    const kv::AngleParts parts = kv::SplitAngle(m_dDMS, kBoxDecimals);
    std::string seconds = kv::FormatFixed(parts.seconds, kBoxDecimals);
    if (seconds.ends_with('0')) seconds.pop_back();
    type(*m_pDegEdit, DegreesText(parts));
    type(*m_pMinEdit, std::to_string(parts.minutes));
    type(*m_pSecEdit, seconds);
}
