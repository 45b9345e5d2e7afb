#include "drawing/search_replace_dlg.h"

#include "drawing/search_replace_ids.h"
#include "window/controls/combo_box.h"

using namespace kv::search_replace;

CKvGuiSearchReplaceDlg::CKvGuiSearchReplaceDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

BOOL CKvGuiSearchReplaceDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    auto& layers = Control<CComboBox>(kLayer);
    for (const char* layer : {"LEASES", "WELLS", "PIPELINES"})
        layers.AddString(layer);
    layers.SetCurSel(0);
    return TRUE;
}

void CKvGuiSearchReplaceDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_CBString(pDX, kLayer, m_strLayer);
    DDX_Text(pDX, kSearch, m_strSearch);
    DDX_Text(pDX, kReplace, m_strReplace);
    DDV_MaxChars(pDX, m_strReplace, kLongestReplacement);
}
