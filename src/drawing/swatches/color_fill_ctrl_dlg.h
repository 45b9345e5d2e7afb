#pragma once

#include <memory>

#include "drawing/swatches/color_button.h"
#include "frame/kvcom/color.h"
#include "window/dialogs/dialog.h"

/// Asks for the colour that a block is filled with.
class KVGUICTL_API CKvColorFillCtrlDlg : public CDialog {
public:
    explicit CKvColorFillCtrlDlg(CWnd* pParent = nullptr);

    void SetFillColor(KVColor nColor) { m_nFillColor = nColor; }
    /// The outcome; after Cancel what was set.
    KVColor GetFillColor() const { return m_nFillColor; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    LRESULT OnDestroy(WPARAM wParam, LPARAM lParam);

    KVColor m_nFillColor = KV_COLOR_DEFAULT;
    std::unique_ptr<CKvGuiBasicColorButton> m_pColorBtn;
};
