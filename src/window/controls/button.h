#pragma once

#include "base/cstring.h"
#include "base/export.h"
#include "window/wnd.h"

/// A handle on a button. Images are named by their ids in the resource chain, 0 for none.
class KVGUICTL_API CButton : public CWnd {
public:
    static constexpr CRuntimeClass classCButton{"CButton"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCButton; }

    BOOL Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id);

    /// BST_CHECKED or BST_UNCHECKED.
    int GetCheck() const;
    /// Notifies nobody, and leaves the other buttons of the group as they are.
    void SetCheck(int check);
    UINT GetState() const;
    void SetState(BOOL pushed);
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);
    UINT GetButtonStyle() const;

    /// Each setter returns the former image.
    UINT SetIcon(UINT imageId);
    UINT GetIcon() const;
    UINT SetBitmap(UINT imageId);
    UINT GetBitmap() const;
};
