#pragma once

#include "mapbuild/builders/quick_off_bld_dlg.h"

/// The quick map builder without all but its latitudes and longitudes, its sizes and its
/// projection: for the boundary of picks, which is to be exported.
class KVGUICTL_API CKvPickBdryDlg : public CKvGuiQuickOffBldDlg {
public:
    explicit CKvPickBdryDlg(CWnd* pParent);

    void HideExtraControls();

    BOOL OnInitDialog() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnSelchangeProjCombo();
};
