#include "mapbuild/builders/snap_range_dlg.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "base/text.h"
#include "mapbuild/builders/quick_off_bld_ids.h"
#include "window/controls/combo_box.h"
#include "window/dialogs/message_box.h"

using namespace kv::snap_range;

namespace {

bool IsLetter(char ch) {
    return kv::ToUpper(ch) >= 'A' && kv::ToUpper(ch) <= 'Z';
}

}  // namespace

CKvGuiSnapRangeDlg::CKvGuiSnapRangeDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

BOOL CKvGuiSnapRangeDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    auto& combo = Control<CComboBox>(kRange);
    for (const char* range : {"0", "100", "500", "1000", "10000", "20000"})
        combo.AddString(range);
    const std::string range = std::to_string(m_nRange);
    combo.SetCurSel(combo.FindStringExact(-1, range.c_str()));
    // Also where it is none of the lines.
    combo.SetWindowText(range.c_str());
    combo.SetFocus();
    combo.SetEditSel(0, -1);
    return FALSE;
}

void CKvGuiSnapRangeDlg::OnOK() {
    const std::string text = Control<CComboBox>(kRange).WindowText();
    if (std::any_of(text.begin(), text.end(), IsLetter)) {
        AfxMessageBox("Error! Please enter a number.", 0, 0);
        return;
    }
    m_nRange = kv::Atoi(text);
    CDialog::OnOK();
}
