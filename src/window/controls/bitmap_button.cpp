#include "window/controls/bitmap_button.h"

#include "window/drawing/raster.h"
#include "window/templates/resources.h"

BOOL CBitmapButton::LoadBitmaps(UINT up, UINT pressed, UINT focused, UINT disabled) {
    const auto load = [](CBitmap& bitmap, UINT id) { return bitmap.LoadBitmap(id) || id == 0; };
    bool all = load(m_bitmap, up) && up != 0;
    all = load(m_bitmapSel, pressed) && all;
    all = load(m_bitmapFocus, focused) && all;
    all = load(m_bitmapDisabled, disabled) && all;
    Invalidate();
    return all;
}

BOOL CBitmapButton::AutoLoad(UINT id, CWnd* parent) {
    if (!SubclassDlgItem(id, parent)) return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent() {
    BITMAP extent;
    if (!m_hWnd || !m_bitmap.GetBitmap(&extent)) return;
    SetWindowPos(nullptr, 0, 0, extent.bmWidth, extent.bmHeight, SWP_NOMOVE | SWP_NOZORDER);
}

const CBitmap& CBitmapButton::PictureFor(UINT state) const {
    const CBitmap* picture = &m_bitmap;
    if ((state & ODS_SELECTED) && m_bitmapSel.GetSafeHandle()) {
        picture = &m_bitmapSel;
    } else if ((state & ODS_FOCUS) && m_bitmapFocus.GetSafeHandle()) {
        picture = &m_bitmapFocus;
    } else if ((state & ODS_DISABLED) && m_bitmapDisabled.GetSafeHandle()) {
        picture = &m_bitmapDisabled;
    }
    return *picture;
}

void CBitmapButton::DrawItem(DRAWITEMSTRUCT* item) {
    const HBITMAP picture = PictureFor(item->itemState).GetSafeHandle();
    if (!picture) {
        kv::DrawPushButton(*item->hDC, item->rcItem, item->itemState, WindowText());
        return;
    }
    item->hDC->DrawPicture(item->rcItem.left, item->rcItem.top, *picture);
}
