#pragma once

#include "base/export.h"
#include "window/controls/spin_node.h"
#include "window/wnd.h"

/// A handle on a spin button.
class KVGUICTL_API CSpinButtonCtrl : public CWnd {
public:
    static constexpr CRuntimeClass classCSpinButtonCtrl{"CSpinButtonCtrl"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCSpinButtonCtrl; }

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
        return CreateNode(kv::NodeClass::kSpin, "", style, rect, parent, static_cast<int>(id));
    }
    void SetRange(int lower, int upper) {
        SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(lower), upper);
    }
    void GetRange(int& lower, int& upper) const {
        lower = upper = 0;
        SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower),
                    reinterpret_cast<LPARAM>(&upper));
    }
    /// Returns the former position.
    int SetPos(int position) { return static_cast<int>(SendMessage(UDM_SETPOS32, 0, position)); }
    /// The position; of a buddy that shows it, what it shows. `error`, if given, becomes true where
    /// that is no number in the range.
    int GetPos(BOOL* error = nullptr) const {
        return static_cast<int>(SendMessage(UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(error)));
    }
    /// Returns the former buddy. Null takes it away.
    CWnd* SetBuddy(CWnd* buddy) {
        const WPARAM window = reinterpret_cast<WPARAM>(buddy ? buddy->m_hWnd : nullptr);
        return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_SETBUDDY, window)));
    }
    CWnd* GetBuddy() const { return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY))); }
};
