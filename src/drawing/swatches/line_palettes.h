#pragma once

#include "drawing/swatches/palette_dlg.h"

/// The palette of line widths, 0 to 9. Where there is no room below the swatch it stands beside it.
class CKvLineWidthPaletteDlg : public kv::swatches::PaletteDlg {
public:
    CKvLineWidthPaletteDlg(const RECT& swatch, CWnd* parent);

protected:
    void MakeCells() override;
    void Place() override;
};

/// The palette of line types, 0 to 4.
class CKvLineTypePaletteDlg : public kv::swatches::PaletteDlg {
public:
    CKvLineTypePaletteDlg(const RECT& swatch, CWnd* parent);

protected:
    void MakeCells() override;
    void Place() override;
};
