#include "mapbuild/builders/pick_bdry_dlg.h"

#include "mapbuild/builders/quick_off_bld_ids.h"
#include "window/window_system.h"

using namespace kv::quick_bld;

CKvPickBdryDlg::CKvPickBdryDlg(CWnd* pParent) : CKvGuiQuickOffBldDlg(kBoundaryTemplate, pParent) {}

BOOL CKvPickBdryDlg::OnInitDialog() {
    CString caption;
    GetWindowText(caption);
    CKvGuiQuickOffBldDlg::OnInitDialog();
    SetWindowText(caption.GetString());
    HideExtraControls();
    return TRUE;
}

void CKvPickBdryDlg::HideExtraControls() {
    for (const int id : {kMapName, kFeet, kMeters, kXYBounded, kLatLonBounded, kYMin, kXMin, kYMax,
                         kXMax, kSizingOptions, kMapBasics, kMapNameLabel, kXMinLabel, kYMinLabel,
                         kXMaxLabel, kYMaxLabel}) {
        Control<CWnd>(id).ShowWindow(SW_HIDE);
    }
}

void CKvPickBdryDlg::OnSelchangeProjCombo() {
    CKvGuiQuickOffBldDlg::OnSelchangeProjCombo();
    // The dialog for projections may have left it behind other windows. What owns it comes along.
    kv::WindowSystem::Get().Activate(*m_hWnd);
}

const kv::MessageMap& CKvPickBdryDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&CKvPickBdryDlg::OnSelchangeProjCombo>(CBN_SELCHANGE, kProjection),
    };
    static const kv::MessageMap kMap{&CKvGuiQuickOffBldDlg::Messages(), kEntries};
    return kMap;
}
