#include "drawing/swatches/line_palettes.h"

#include "drawing/swatches/color_cells.h"
#include "drawing/swatches/line_button.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/palette_opener.h"

using namespace kv::palettes;
using kv::swatches::OpenOn;
using kv::swatches::RegisterPalette;

namespace {

const RegisterPalette kWidths(E_DIALOG_LINE_WIDTH, &OpenOn<CKvLineWidthPaletteDlg>);
const RegisterPalette kTypes(E_DIALOG_LINE_TYPE, &OpenOn<CKvLineTypePaletteDlg>);

}  // namespace

CKvLineWidthPaletteDlg::CKvLineWidthPaletteDlg(const RECT& swatch, CWnd* parent)
    : PaletteDlg(kLineWidths, swatch, parent) {}

void CKvLineWidthPaletteDlg::MakeCells() {
    for (int i = 0; i < kWidthCells; ++i) {
        AddCell(kFirstCell + i, i,
                kv::swatches::MakeCell<CKvGuiLineWidthButton>(E_DIALOG_LINE_WIDTH, i));
    }
}

void CKvLineWidthPaletteDlg::Place() {
    CRect place = BelowSwatch();
    const int beyond = place.bottom - ScreenRect().bottom;
    if (beyond > 0) {
        place.OffsetRect(SwatchRect().right - place.left, SwatchRect().top - beyond - place.top);
        if (place.left < 1 || place.top < 1 || place.Width() < 1 || place.Height() < 1) {
            AfxMessageBox("LineWidth Dialog: Invalid Coordinates to move window!");
            return;
        }
    }
    MoveWindow(place);
}

CKvLineTypePaletteDlg::CKvLineTypePaletteDlg(const RECT& swatch, CWnd* parent)
    : PaletteDlg(kLineTypes, swatch, parent) {}

void CKvLineTypePaletteDlg::MakeCells() {
    for (int i = 0; i < kTypeCells; ++i) {
        AddCell(kFirstCell + i, i,
                kv::swatches::MakeCell<CKvGuiLineTypeButton>(E_DIALOG_LINE_TYPE, i));
    }
}

void CKvLineTypePaletteDlg::Place() {
    MoveWindow(BelowSwatchOrWide());
}
