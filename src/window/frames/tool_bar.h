#pragma once

#include <string>

#include "window/frames/control_bar.h"
#include "window/frames/tool_bar_node.h"

inline constexpr DWORD TBSTYLE_FLAT = 0x0800;
inline constexpr UINT AFX_IDW_TOOLBAR = 0xE800;
inline constexpr UINT ID_SEPARATOR = 0;

/// A bar of buttons, each of which sends its command to the frame, and is enabled and checked by
/// the command's idle update.
class KVGUICTL_API CToolBar : public CControlBar {
public:
    static constexpr CRuntimeClass classCToolBar{"CToolBar"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCToolBar; }

    virtual BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT id = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd* parent, DWORD toolStyle = TBSTYLE_FLAT,
                          DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                          UINT id = AFX_IDW_TOOLBAR);

    /// The strip of button images. False when there is no such image.
    BOOL LoadBitmap(UINT bitmapId);
    /// The same, with images as high as the strip.
    BOOL LoadToolBar(UINT resourceId);
    /// The ids of the buttons, ID_SEPARATOR for gaps; images are taken from the strip in order. No
    /// ids make `count` buttons that are yet to be named.
    BOOL SetButtons(const UINT* ids, int count);
    int GetCount() const;
    UINT GetItemID(int index) const;
    /// -1 for none.
    int CommandToIndex(UINT id) const;
    BOOL SetButtonText(int index, const char* text);
    std::string GetButtonText(int index) const;
    void GetItemRect(int index, CRect* rect) const;
    /// Extents of all buttons and their images, in logical pixels.
    void SetSizes(CSize button, CSize image);
    /// Extent of a button with its text.
    CSize GetNaturalSize(int index) const;
    /// Extent that shows all buttons in one row.
    CSize GetMaxSize() const;
    int GetRows() const;
    void SetRows(int rows);

    void OnUpdateCmdUI(CCmdTarget* target, BOOL disableIfNoHandler) override;
    int GetHeightAt(int width) const override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    kv::ToolBarNode* Bar() const;
};
