#include "controls/tool_bar.h"

#include <algorithm>
#include <string>

#include "frame/kvcom/profile.h"
#include "window/drawing/gdi_objects.h"
#include "window/frames/frame_wnd.h"

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_TOOLTIPS;
constexpr CSize kPlainButton{23, 22};
constexpr CSize kImage{16, 16};

std::string SectionOf(const char* name) {
    return std::string(name ? name : "") + "-Summary";
}

std::string EntryOf(const CWnd& bar) {
    return bar.WindowText() + "-Visible";
}

}  // namespace

BOOL CKvToolBar::Finish(BOOL bReady, const char* pszTitle) {
    if (!bReady) {
        DestroyWindow();
        return FALSE;
    }
    SetBarStyle(GetBarStyle() | CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);
    SetWindowText(pszTitle);
    EnableDocking(CBRS_ALIGN_ANY);
    return TRUE;
}

BOOL CKvToolBar::CreateBar(CWnd* pParent, int nId, UINT nBitmapId, const UINT* pButtons,
                           int nButtons, const char* pszTitle) {
    if (!Create(pParent, kStyle, static_cast<UINT>(nId))) return FALSE;
    return Finish(LoadBitmap(nBitmapId) && SetButtons(pButtons, nButtons), pszTitle);
}

BOOL CKvToolBar::CreateBarEx(CWnd* pParent, int, UINT nBitmapId, const UINT* pButtons, int nButtons,
                             const char* pszTitle) {
    if (!CreateEx(pParent, TBSTYLE_FLAT, kStyle, AFX_IDW_TOOLBAR)) return FALSE;
    return Finish(LoadToolBar(nBitmapId) && SetButtons(pButtons, nButtons), pszTitle);
}

bool CKvToolBar::SaveSettings(const char* pszName, void*) {
    return kv::profile::WriteInt(SectionOf(pszName), EntryOf(*this), IsVisible() ? 1 : 0);
}

bool CKvToolBar::LoadSettings(const char* pszName, void* pVisible) {
    *static_cast<int*>(pVisible) = kv::profile::GetInt(SectionOf(pszName), EntryOf(*this), 0);
    return false;
}

CSize CKvToolBar::LargestButton() const {
    CSize largest = kPlainButton;
    for (int index = 0; index < GetCount(); ++index) {
        const CSize size = GetNaturalSize(index);
        largest.cx = std::max(largest.cx, size.cx);
        largest.cy = std::max(largest.cy, size.cy);
    }
    return largest;
}

void CKvToolBar::SetLabel(int nCount, const UINT* pIds, const char* const* ppLabels, int bShow) {
    if (bShow) {
        CFont font;
        if (!font.CreateStockObject(DEFAULT_GUI_FONT)) font.CreateStockObject(ANSI_VAR_FONT);
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), TRUE);
        for (int index = 0; index < nCount; ++index) {
            if (ppLabels[index]) SetButtonText(CommandToIndex(pIds[index]), ppLabels[index]);
        }
        // The texts stand below images of this size.
        SetSizes(kPlainButton, kImage);
        SetSizes(LargestButton(), kImage);
    } else {
        SetSizes(kPlainButton, kImage);
    }
    ResizeClientRect();
}

void CKvToolBar::ResizeClientRect() {
    auto* frame = dynamic_cast<CFrameWnd*>(GetParent());
    const auto layOut = [&] {
        Invalidate();
        if (frame) frame->RecalcLayout();
    };
    if (GetMaxSize().cx == 0) return;
    layOut();
    // As many rows as its width made of it, in a bar just wide enough for them.
    SetRows(GetRows());
    layOut();
}
