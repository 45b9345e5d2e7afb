#include "controls/num_spin_ctrl.h"

#include <cstdlib>

namespace {

/// The button's own range, which has no meaning: its position is kept away from both ends.
constexpr int kOwnEnd = 1000;
constexpr int kOwnMiddle = 500;

}  // namespace

const CRuntimeClass CNumSpinCtrl::classCNumSpinCtrl{
    "CNumSpinCtrl", [] { return std::unique_ptr<CWnd>(std::make_unique<CNumSpinCtrl>()); }};

void CNumSpinCtrl::PreSubclassWindow() {
    ModifyStyle(0, UDS_ARROWKEYS);
}

void CNumSpinCtrl::SetBuddy(CNumEdit* pEdit) {
    CSpinButtonCtrl::SetBuddy(pEdit);
}

CNumEdit* CNumSpinCtrl::GetBuddy() const {
    return dynamic_cast<CNumEdit*>(CSpinButtonCtrl::GetBuddy());
}

void CNumSpinCtrl::SetDelta(double dDelta) {
    if (CNumEdit* edit = GetBuddy()) edit->SetDelta(dDelta);
}

double CNumSpinCtrl::GetDelta() {
    CNumEdit* edit = GetBuddy();
    return edit ? edit->GetDelta() : 0.0;
}

void CNumSpinCtrl::SetRange(double dMin, double dMax) {
    CSpinButtonCtrl::SetRange(0, kOwnEnd);
    if (CNumEdit* edit = GetBuddy()) edit->SetRange(dMin, dMax);
}

void CNumSpinCtrl::GetRange(double& dMin, double& dMax) const {
    dMin = dMax = 0.0;
    if (const CNumEdit* edit = GetBuddy()) edit->GetRange(dMin, dMax);
}

void CNumSpinCtrl::SetPos(double dPos) {
    CSpinButtonCtrl::SetPos(kOwnMiddle);
    if (CNumEdit* edit = GetBuddy()) edit->SetValue(dPos);
}

double CNumSpinCtrl::GetPos() {
    const CNumEdit* edit = GetBuddy();
    return edit ? edit->GetValue() : 0.0;
}

void CNumSpinCtrl::OnDeltapos(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto& notice = *reinterpret_cast<const NMUPDOWN*>(pNMHDR);
    const int step = std::abs(notice.iDelta);
    if (notice.iPos <= step || notice.iPos >= kOwnEnd - step) CSpinButtonCtrl::SetPos(kOwnMiddle);
    if (CNumEdit* edit = GetBuddy()) edit->ChangeAmount(notice.iDelta);
    *pResult = 0;
}

const kv::MessageMap& CNumSpinCtrl::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnReflectedNotify<&CNumSpinCtrl::OnDeltapos>(UDN_DELTAPOS),
    };
    static const kv::MessageMap kMap{&CSpinButtonCtrl::Messages(), kEntries};
    return kMap;
}
