#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/export.h"
#include "window/message_handlers.h"
#include "window/wnd.h"

class CControlBar;

/// A document of the host.
class KVGUICTL_API CDocument : public CCmdTarget {};

/// A main window, in which bars dock.
class KVGUICTL_API CFrameWnd : public CWnd {
public:
    static constexpr CRuntimeClass classCFrameWnd{"CFrameWnd"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCFrameWnd; }

    virtual BOOL Create(const char* title, const CRect& rect = {0, 0, 1024, 768});
    /// At which sides bars may dock.
    void EnableDocking(DWORD sides) { m_dwDockSides = sides; }
    DWORD GetDockSides() const { return m_dwDockSides; }
    void DockControlBar(CControlBar* bar);
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    /// Lays the bars out along the edges that they dock at.
    virtual void RecalcLayout(BOOL notify = TRUE);
    /// What the bars leave free, in the frame's own coordinates.
    CRect GetFreeRect() const { return m_rcFree; }

    /// The frame that is worked in: this one, where there are no frames within it.
    virtual CFrameWnd* GetActiveFrame() { return this; }
    virtual CDocument* GetActiveDocument() { return nullptr; }

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    LRESULT OnSize(WPARAM wParam, LPARAM lParam);

    DWORD m_dwDockSides = 0;
    CRect m_rcFree;
};

/// The application: its main window. Where there are several, the newest counts, and behind it the
/// one before.
class KVGUICTL_API CWinApp : public CCmdTarget {
public:
    CWinApp();
    ~CWinApp() override;
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    /// Not owned.
    CWnd* m_pMainWnd = nullptr;

private:
    CWinApp* m_pBefore;
};

/// The application, or null.
KVGUICTL_API CWinApp* AfxGetApp();
/// The application's main window, or null.
KVGUICTL_API CWnd* AfxGetMainWnd();
