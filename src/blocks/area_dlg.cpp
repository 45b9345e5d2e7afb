#include "blocks/area_dlg.h"

#include "blocks/blk_ext_ids.h"

using namespace kv::blk_ext;

CKvGuiAreaDlg::CKvGuiAreaDlg(CWnd* parent) : CKvGuiBlkExtDlg(kAreaTemplate, parent) {}

void CKvGuiAreaDlg::V_PopulateSelectedListBoxColumns() {
    InsertSelectedColumns(320, 0);
}

const kv::MessageMap& CKvGuiAreaDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&CKvGuiAreaDlg::OnDblclkAvailList>(LBN_DBLCLK, kAvailable),
    };
    static const kv::MessageMap kMap{&CKvGuiBlkExtDlg::Messages(), kEntries};
    return kMap;
}
