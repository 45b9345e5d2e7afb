#pragma once

#include "drawing/swatches/palette_dlg.h"

/// A palette of the sixteen named colours.
class KVGUICTL_API CClrDlg : public kv::swatches::PaletteDlg {
public:
    /// The rectangle, on the screen, at whose top left corner it opens.
    CClrDlg(RECT* pRect, CWnd* pParent);
    /// The index of the colour that was picked.
    int GetReturnValue() const { return GetValue(); }

protected:
    void MakeCells() override;
};
