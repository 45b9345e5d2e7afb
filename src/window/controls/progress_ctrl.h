#pragma once

#include "base/export.h"
#include "window/controls/progress_node.h"
#include "window/wnd.h"

/// A handle on a progress bar. Positions outside the range are brought into it.
class KVGUICTL_API CProgressCtrl : public CWnd {
public:
    static constexpr CRuntimeClass classCProgressCtrl{"CProgressCtrl"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCProgressCtrl; }

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
        return CreateNode(kv::NodeClass::kProgress, "", style, rect, parent, static_cast<int>(id));
    }
    void SetRange(int lower, int upper) { SetRange32(lower, upper); }
    void SetRange32(int lower, int upper) {
        SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(lower), upper);
    }
    void GetRange(int& lower, int& upper) const {
        PBRANGE range;
        SendMessage(PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
        lower = range.iLow;
        upper = range.iHigh;
    }
    /// Each of these returns the former position, or step.
    int SetPos(int position) { return Ask(PBM_SETPOS, position); }
    int OffsetPos(int by) { return Ask(PBM_DELTAPOS, by); }
    int SetStep(int step) { return Ask(PBM_SETSTEP, step); }
    /// Past the upper limit the bar begins anew.
    int StepIt() { return Ask(PBM_STEPIT, 0); }
    int GetPos() const { return Ask(PBM_GETPOS, 0); }

private:
    int Ask(UINT message, int value) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(value)));
    }
};
