#pragma once

#include "blocks/blk_ext_dlg.h"

/// The block selection dialog for whole areas: it lists no blocks.
class KVGUICTL_API CKvGuiAreaDlg : public CKvGuiBlkExtDlg {
public:
    explicit CKvGuiAreaDlg(CWnd* parent = nullptr);

    void V_PopulateSelectedListBoxColumns() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnDblclkAvailList() {}
};
