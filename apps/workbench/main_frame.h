#pragma once

#include <functional>

#include "pickers/abe_bar.h"
#include "window/frames/frame_wnd.h"

namespace workbench {

/// The main window as the library sees it: a frame with the bar docked at the top.
class MainFrame : public CFrameWnd {
public:
    CVZABEBar m_bar;
    std::function<void()> m_onRun;      ///< Run was pressed in the bar
    std::function<void()> m_onClosing;  ///< the window is about to go
    std::function<void()> m_onClosed;

    /// False when the bar's template is missing: the library was not started.
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
