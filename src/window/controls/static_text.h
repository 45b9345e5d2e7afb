#pragma once

#include "base/cstring.h"
#include "base/export.h"
#include "window/wnd.h"

/// A handle on a label. Images are named by their ids in the resource chain, 0 for none.
class KVGUICTL_API CStatic : public CWnd {
public:
    static constexpr CRuntimeClass classCStatic{"CStatic"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCStatic; }

    BOOL Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id = IDC_STATIC);

    /// Each setter returns the former image.
    UINT SetIcon(UINT imageId);
    UINT GetIcon() const;
    UINT SetBitmap(UINT imageId);
    UINT GetBitmap() const;
};
