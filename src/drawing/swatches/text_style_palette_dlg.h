#pragma once

#include "drawing/swatches/palette_dlg.h"
#include "window/controls/list_box.h"

/// The palette of text styles, a list of their words. A click ends it; the arrows move, and Enter
/// ends it.
class CKvTextStylePaletteDlg : public kv::swatches::PaletteDlg {
public:
    CKvTextStylePaletteDlg(const RECT& swatch, CWnd* parent);

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void MakeCells() override {}
    void Place() override;
    void OnSelchange();

private:
    /// Knows whether a key is at work in it.
    class StyleList : public CListBox {
    public:
        bool ByKey() const { return m_bByKey; }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    private:
        bool m_bByKey = false;
    };

    StyleList m_list;
};
