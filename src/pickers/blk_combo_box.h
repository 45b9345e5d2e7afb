#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/catalogue.h"
#include "frame/kvdbkvn/db_info.h"
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
    void V_SelChanged(bool) override { m_bCameByTyping = false; }

    /// Whether the list is still the one that `V_InitializeCombo` last made: by the statement of
    /// the present state, on the connection in force, and without a failure. To fill it again would
    /// only lose the pick.
    bool IsFilled() const;

    /// Moves the focus here behind the last letter of an area. The Tab that a person types behind
    /// that letter is meant to come here, and so it stays.
    void SetFocusBehindTyping();

    /// The window text; with `bStripSuffix` without its water suffix.
    std::string GetBlk(bool bStripSuffix) const;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// Names the tables that are not named yet.
    void EnsureTables();
    /// The statement of the present state.
    virtual std::string BlockQuery() const;
    /// Such a statement: its beginning up to "decode(", the tables, the area that is meant, and
    /// what is asked beside it.
    std::string BlockQuery(std::string_view select, const std::string& tables,
                           const std::string& area, const std::string& condition) const;

    bool m_bIncludeAll = true;
    std::string m_sBlockTable;
    std::string m_sAreaTable;
    std::string m_sArea;
    int m_nMode = kv::catalogue::kMmsCode;

private:
    struct Filling {
        std::string statement;
        CKvDbInfo connection;
        int rows;
    };

    std::optional<Filling> m_filling;
    bool m_bCameByTyping = false;
};
