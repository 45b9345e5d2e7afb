#include "drawing/swatches/text_style_palette_dlg.h"

#include "drawing/swatches/line_button.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/palette_opener.h"

using namespace kv::palettes;

namespace {

const kv::swatches::RegisterPalette kRegistered(E_DIALOG_TEXT_STYLE,
                                                &kv::swatches::OpenOn<CKvTextStylePaletteDlg>);

}  // namespace

LRESULT CKvTextStylePaletteDlg::StyleList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool key = message == WM_KEYDOWN || message == WM_CHAR;
    const bool former = m_bByKey;
    if (key) m_bByKey = true;
    const LRESULT result = CListBox::WindowProc(message, wParam, lParam);
    m_bByKey = former;
    return result;
}

CKvTextStylePaletteDlg::CKvTextStylePaletteDlg(const RECT& swatch, CWnd* parent)
    : PaletteDlg(kStyle, swatch, parent) {}

BOOL CKvTextStylePaletteDlg::OnInitDialog() {
    PaletteDlg::OnInitDialog();
    m_list.SubclassDlgItem(kStyles, this);
    for (int style = 0; style < kv::swatches::kTextStyles; ++style)
        m_list.AddString(kv::swatches::TextStyleWord(style).c_str());
    m_list.SetCurSel(m_nValue);
    m_list.SetFocus();
    return FALSE;
}

void CKvTextStylePaletteDlg::Place() {
    MoveWindow(BelowSwatchOrWide());
}

void CKvTextStylePaletteDlg::OnSelchange() {
    if (!m_list.ByKey()) OnOK();
}

void CKvTextStylePaletteDlg::OnOK() {
    const int style = m_list.GetCurSel();
    if (style < 0) return;
    m_nValue = style;
    EndDialog(IDOK);
}

const kv::MessageMap& CKvTextStylePaletteDlg::Messages() {
    using Self = CKvTextStylePaletteDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&Self::OnSelchange>(LBN_SELCHANGE, kStyles),
    };
    static const kv::MessageMap kMap{&PaletteDlg::Messages(), kEntries};
    return kMap;
}
