#pragma once

#include <functional>

#include "pickers/abe_bar.h"
#include "window/frames/frame_wnd.h"

namespace workbench {

/// The bar, which tells its host when something may have changed in it.
class WorkbenchBar : public CVZABEBar {
public:
    std::function<void()> m_onIdle;
    void OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler) override;
};

/// The main window as the library sees it: a frame with the bar docked at the top.
class MainFrame : public CFrameWnd {
public:
    WorkbenchBar m_bar;
    std::function<void()> m_onRun;      ///< Run was pressed in the bar
    std::function<bool()> m_onClosing;  ///< the window is about to go; false keeps it
    std::function<void()> m_onClosed;

    /// No larger than the screen. False when the bar's template is missing: the library was not
    /// started.
    bool CreateWithBar();

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void PostNcDestroy() override;

private:
    LRESULT OnRun(WPARAM, LPARAM);
    void OnClose();
};

}  // namespace workbench
