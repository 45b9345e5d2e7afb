#include "drawing/swatches/clr_dlg.h"

#include "drawing/swatches/color_cells.h"
#include "drawing/swatches/palette_ids.h"

using namespace kv::palettes;

CClrDlg::CClrDlg(RECT* pRect, CWnd* pParent) : PaletteDlg(kColors, *pRect, pParent) {}

void CClrDlg::MakeCells() {
    for (int i = 0; i < kColorCells; ++i) {
        AddCell(kFirstCell + i, i,
                kv::swatches::MakeCell<CKvGuiBasicColorButton>(E_DIALOG_BASIC_COLOR, i));
    }
    SetAcross(kColorsAcross);
}
