#pragma once

#include "mapbuild/builders/quick_off_bld_dlg.h"

/// The quick map builder over the record of a map that there is, to change its size, percentage,
/// name and bounds. The caller gives it the record, the name, the projection, the picks, the kind
/// of bounds, the template type and the dataset, then the texts of the sizes.
class KVGUICTL_API CKvGuiMapBuildingProp : public CKvGuiQuickOffBldDlg {
public:
    explicit CKvGuiMapBuildingProp(CWnd* pParent);

    void SetMapWidth(std::string text) { m_strMapWidth = std::move(text); }
    void SetMapHeight(std::string text) { m_strMapHeight = std::move(text); }
    void SetMapPercent(std::string text) { m_strMapPercent = std::move(text); }
    std::string GetMapWidth() const { return m_strMapWidth; }
    std::string GetMapHeight() const { return m_strMapHeight; }
    /// The percentage that was in force last.
    std::string GetMapPercent() const { return m_strMapPercent; }
    void SetMapSnapRange(int nRange) { m_nSnapRange = nRange; }
    int GetMapSnapRange() const { return m_nSnapRange; }

    BOOL OnInitDialog() override;

private:
    void EnableByKind();
};
