#pragma once

#include "window/frames/tool_bar.h"

/// A tool bar that remembers whether it is shown, and whose buttons can have labels.
class KVGUICTL_API CKvToolBar : public CToolBar {
public:
    CKvToolBar() = default;

    /// Makes the bar at the top of the frame, with a strip of images and the buttons' ids. False,
    /// and no bar, on any failure.
    BOOL CreateBar(CWnd* pParent, int nId, UINT nBitmapId, const UINT* pButtons, int nButtons,
                   const char* pszTitle);
    /// The same, flat, and under the standard id of a tool bar instead of `nId`.
    BOOL CreateBarEx(CWnd* pParent, int nId, UINT nBitmapId, const UINT* pButtons, int nButtons,
                     const char* pszTitle);

    /// Stores in the application's profile whether the bar is visible. The second argument is not
    /// looked at.
    bool SaveSettings(const char* pszName, void*);
    /// Reads it to the int at `pVisible`, 0 when it was never stored. Always false.
    bool LoadSettings(const char* pszName, void* pVisible);

    /// Fits the bar to its buttons and lets the frame lay its bars out.
    void ResizeClientRect();
    void SetVisible(int nVisible) { m_bVisible = nVisible; }
    /// Gives buttons their labels, one for each of the ids, and room for the largest; or takes the
    /// room back.
    void SetLabel(int nCount, const UINT* pIds, const char* const* ppLabels, int bShow);

protected:
    int m_bVisible = 0;

private:
    BOOL Finish(BOOL bReady, const char* pszTitle);
    CSize LargestButton() const;
};
