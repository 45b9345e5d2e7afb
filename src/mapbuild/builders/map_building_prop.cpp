#include "mapbuild/builders/map_building_prop.h"

#include "mapbuild/builders/quick_off_bld_ids.h"
#include "window/controls/edit.h"

using namespace kv::quick_bld;

CKvGuiMapBuildingProp::CKvGuiMapBuildingProp(CWnd* pParent)
    : CKvGuiQuickOffBldDlg(kTemplate, pParent) {}

BOOL CKvGuiMapBuildingProp::OnInitDialog() {
    SetMode(m_tBounds.GetPickOneFlag(), m_tBounds.GetPickMultFlag(), m_tBounds.GetPickWinFlag());
    m_nCustomMap = m_tBounds.GetCustomMapFlag();
    m_bAreaMapKnown = m_nModeArea == 1;
    m_bBlockMapKnown = m_nModeArea != 1 && m_nModeBlock == 1;
    SetMapPropMode(true);
    CKvGuiQuickOffBldDlg::OnInitDialog();
    SetWindowText("Map Properties");
    for (const int id : {kFeet, kMeters, kXYBounded, kLatLonBounded})
        Control<CWnd>(id).EnableWindow(FALSE);
    EnableByKind();
    if (IsXYBounded()) {
        for (const int id : kXYBoxes)
            Control<CEdit>(id).SetReadOnly(FALSE);
    } else {
        for (const int id : kAngleBoxes)
            Control<CEdit>(id).SetReadOnly(FALSE);
    }
    return TRUE;
}

void CKvGuiMapBuildingProp::EnableByKind() {
    const bool many = m_nModeAll == 1 || m_nModeArea == 1;
    const bool one = !many && m_nModeBlock == 1;
    if (!many && !one && m_nCustomMap != 1) return;
    for (const int id : {kWidth, kHeight})
        Control<CWnd>(id).EnableWindow(one);
    Control<CWnd>(kPercent).EnableWindow(many || one);
}
