#include "drawing/swatches/symbol_palettes.h"

#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/palette_opener.h"
#include "drawing/swatches/symbol_button.h"

using namespace kv::palettes;
using kv::swatches::RegisterPalette;

namespace {

template <typename Palette>
int Open(const CRect& swatch, CWnd* parent, int& value) {
    CRect place = swatch;
    Palette palette(&place, parent);
    palette.SetValue(value);
    const int result = palette.DoModal();
    value = palette.GetReturnValue();
    return result;
}

const RegisterPalette kNumbersRegistered(kNumberSymbols, &Open<CKvGui3DLineNumSymbolDlg>);
const RegisterPalette kPointsRegistered(kPointSymbols, &Open<CKvGui3DPointSymbolDlg>);

template <typename Button>
std::unique_ptr<kv::swatches::Swatch> MakeCell(int image) {
    auto cell = std::make_unique<Button>();
    cell->m_bActive = false;
    cell->m_nSymbolId = image;
    return cell;
}

}  // namespace

CKvGui3DLineNumSymbolDlg::CKvGui3DLineNumSymbolDlg(RECT* pRect, CWnd* pParent)
    : SymbolPaletteDlg(kNumberSymbols, *pRect, pParent) {}

void CKvGui3DLineNumSymbolDlg::MakeCells() {
    for (int i = 0; i < kNumbers; ++i) {
        AddCell(kFirstNumberCell + i, kFirstNumberImage + i,
                MakeCell<CKvGuiLineNumSymbolButton>(kFirstNumberImage + i));
    }
    SetAcross(kNumbersAcross);
}

CKvGui3DPointSymbolDlg::CKvGui3DPointSymbolDlg(RECT* pRect, CWnd* pParent)
    : SymbolPaletteDlg(kPointSymbols, *pRect, pParent) {}

BOOL CKvGui3DPointSymbolDlg::OnInitDialog() {
    const bool known = m_nValue >= kFirstPointImage && m_nValue < kFirstPointImage + kPoints;
    if (!known) m_nValue = kDefaultPointImage;
    return SymbolPaletteDlg::OnInitDialog();
}

void CKvGui3DPointSymbolDlg::MakeCells() {
    for (int i = 0; i < kPoints; ++i) {
        AddCell(kFirstPointCell + i, kFirstPointImage + i,
                MakeCell<CKvGuiPointSymbolButton>(kFirstPointImage + i));
    }
    SetAcross(kPointsAcross);
}
