#pragma once

#include "base/export.h"
#include "window/message_handlers.h"
#include "window/wnd.h"

inline constexpr DWORD CBRS_ALIGN_LEFT = 0x1000;
inline constexpr DWORD CBRS_ALIGN_TOP = 0x2000;
inline constexpr DWORD CBRS_ALIGN_RIGHT = 0x4000;
inline constexpr DWORD CBRS_ALIGN_BOTTOM = 0x8000;
inline constexpr DWORD CBRS_ALIGN_ANY = 0xF000;
inline constexpr DWORD CBRS_LEFT = CBRS_ALIGN_LEFT;
inline constexpr DWORD CBRS_TOP = CBRS_ALIGN_TOP;
inline constexpr DWORD CBRS_RIGHT = CBRS_ALIGN_RIGHT;
inline constexpr DWORD CBRS_BOTTOM = CBRS_ALIGN_BOTTOM;
inline constexpr DWORD CBRS_TOOLTIPS = 0x0010;
inline constexpr DWORD CBRS_FLYBY = 0x0020;
inline constexpr DWORD CBRS_SIZE_DYNAMIC = 0x0004;

/// A bar in a frame, which asks its frame at idle time how its controls stand.
class KVGUICTL_API CControlBar : public CWnd {
public:
    static constexpr CRuntimeClass classCControlBar{"CControlBar"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCControlBar; }

    /// At which sides the bar may dock; 0 for none.
    void EnableDocking(DWORD sides) { m_dwDockStyle = sides; }
    DWORD GetDockStyle() const { return m_dwDockStyle; }
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style) { m_dwStyle = style; }
    bool IsVisible() const { return m_hWnd && m_hWnd->Visible(); }

    /// The height that the bar takes at that width.
    virtual int GetHeightAt(int width) const;

    /// The idle update of the bar's controls. `target` is the frame.
    virtual void OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler);

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    /// What the bar does not take goes to its frame.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    /// Makes the window and joins the idle updates.
    BOOL CreateBarWindow(CWnd* parent, kv::NodeClass nodeClass, DWORD style, UINT id);

private:
    DWORD m_dwDockStyle = 0;
    DWORD m_dwStyle = 0;
};

/// A bar whose controls come from a dialog template.
class KVGUICTL_API CDialogBar : public CControlBar {
public:
    static constexpr CRuntimeClass classCDialogBar{"CDialogBar"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCDialogBar; }

    /// False when there is no such template.
    virtual BOOL Create(CWnd* parent, UINT templateId, UINT style, UINT id);

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }
};
