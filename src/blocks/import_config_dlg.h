#pragma once

#include <string>

#include "window/dialogs/dialog.h"

/// Asks how the lines of a text file tell areas, blocks and extensions. It has one way out: Close.
class CKvImportConfigDlg : public CDialog {
public:
    explicit CKvImportConfigDlg(CWnd* parent = nullptr);

    /// The column that the file's areas are of: "areaname", "stcode" or "area_abbr".
    std::string GetAreaType() const { return m_sAreaType; }
    /// Whether the block's number stands ahead of its extension.
    bool GetBlockFirst() const { return m_bBlockFirst; }
    /// What stands behind the area: a tab, or what the user typed.
    std::string GetColumnDelimiter() const;
    /// What stands between block and extension: what the user typed, or nothing.
    std::string GetExtDelimiter() const;

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnDelimiterChoice() { EnableEdits(); }
    void OnTabCheck() { EnableEdits(); }

    std::string m_sAreaType = "area_abbr";
    bool m_bBlockFirst = true;
    bool m_bHasExtDelimiter = false;
    bool m_bTab = true;
    std::string m_sExtDelimiter = "-";
    std::string m_sColumnDelimiter = "-";

private:
    void EnableEdits();
};
