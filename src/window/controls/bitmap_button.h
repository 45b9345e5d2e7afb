#pragma once

#include "base/export.h"
#include "window/controls/button.h"
#include "window/drawing/gdi_objects.h"
#include "window/owner_draw.h"

/// An owner-drawn push button with up to four pictures: as it is, pressed, with the focus, and
/// disabled. Where a picture is missing the first one stands in; without any it draws itself as a
/// plain push button.
class KVGUICTL_API CBitmapButton : public CButton, public kv::OwnerDrawn {
public:
    static constexpr CRuntimeClass classCBitmapButton{"CBitmapButton"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCBitmapButton; }

    /// Pictures by their ids in the resource chain; 0 for one that there is none of. False when one
    /// that was named is not found.
    BOOL LoadBitmaps(UINT up, UINT pressed = 0, UINT focused = 0, UINT disabled = 0);
    /// Attaches to the control of that id in `parent`. Pictures go by number here and not by the
    /// control's text, so it has those that were loaded, and takes the first one's extent. False
    /// when there is no such control.
    BOOL AutoLoad(UINT id, CWnd* parent);
    /// Gives the button the extent of its first picture, if it has one.
    void SizeToContent();

    void DrawItem(DRAWITEMSTRUCT* item) override;

protected:
    const CBitmap& PictureFor(UINT state) const;

    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;
};
