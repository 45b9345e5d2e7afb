#pragma once

#include <string>

#include "frame/catalogue.h"
#include "pickers/db_combo_box.h"

/// The blocks of one area, each with its extension and water suffix, in the order of the block
/// numbers as texts, with an "ALL" row on request.
class KVGUICTL_API CKvBlkComboBox : public CKvDbComboBox {
public:
    /// None of these refills the list.
    void SetMode(int mode) { m_nMode = mode; }
    /// The area to list, as the mode names areas.
    void SetArea(const std::string& area) { m_sArea = area; }
    void SetIncludeAll(bool includeAll) { m_bIncludeAll = includeAll; }

    void V_InitializeCombo() override;
    void V_SelChanged(bool) override {}

    /// The window text; with `bStripSuffix` without its water suffix.
    std::string GetBlk(bool bStripSuffix) const;

protected:
    /// Names the tables that are not named yet.
    void EnsureTables();

    bool m_bIncludeAll = true;
    std::string m_sBlockTable;
    std::string m_sAreaTable;
    std::string m_sArea;
    int m_nMode = kv::catalogue::kMmsCode;
};
