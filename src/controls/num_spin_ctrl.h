#pragma once

#include "controls/num_edit.h"
#include "window/controls/spin_button_ctrl.h"
#include "window/message_handlers.h"
#include "window/runtime_class.h"

/// A spin button beside a `CNumEdit`, which holds range, step and value: it steps the number
/// however far that goes, and so do the up and down keys in the edit. Without such a buddy values
/// are 0.0 and setting them does nothing.
class KVGUICTL_API CNumSpinCtrl : public CSpinButtonCtrl {
public:
    CNumSpinCtrl() = default;

    virtual void SetDelta(double dDelta);
    virtual double GetDelta();
    /// The edit is not owned; null takes it away.
    virtual void SetBuddy(CNumEdit* pEdit);
    /// Null for a buddy that is no `CNumEdit`.
    virtual CNumEdit* GetBuddy() const;
    virtual void GetRange(double& dMin, double& dMax) const;
    virtual void SetRange(double dMin, double dMax);
    virtual double GetPos();
    virtual void SetPos(double dPos);

    static const CRuntimeClass classCNumSpinCtrl;
    const CRuntimeClass* GetRuntimeClass() const override { return &classCNumSpinCtrl; }

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void PreSubclassWindow() override;
    void OnDeltapos(NMHDR* pNMHDR, LRESULT* pResult);
};
