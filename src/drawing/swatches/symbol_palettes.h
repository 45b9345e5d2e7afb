#pragma once

#include "drawing/swatches/palette_dlg.h"

namespace kv::swatches {

/// A palette of symbols. The value is the id of an image.
class KVGUICTL_API SymbolPaletteDlg : public PaletteDlg {
public:
    /// The symbol that has the focus at the start.
    void SetButtonID(unsigned int nId) { SetValue(static_cast<int>(nId)); }
    unsigned int GetButtonID() const { return static_cast<unsigned int>(GetValue()); }
    /// The symbol that was picked.
    int GetReturnValue() const { return GetValue(); }

protected:
    using PaletteDlg::PaletteDlg;
};

}  // namespace kv::swatches

/// The palette of eight signs that numbers stand in.
class KVGUICTL_API CKvGui3DLineNumSymbolDlg : public kv::swatches::SymbolPaletteDlg {
public:
    /// The rectangle, on the screen, at whose top left corner it opens.
    CKvGui3DLineNumSymbolDlg(RECT* pRect, CWnd* pParent);

protected:
    void MakeCells() override;
};

/// The palette of nineteen signs of wells and other points. A symbol that is none of them counts as
/// an oil well.
class KVGUICTL_API CKvGui3DPointSymbolDlg : public kv::swatches::SymbolPaletteDlg {
public:
    CKvGui3DPointSymbolDlg(RECT* pRect, CWnd* pParent);
    BOOL OnInitDialog() override;

protected:
    void MakeCells() override;
};
