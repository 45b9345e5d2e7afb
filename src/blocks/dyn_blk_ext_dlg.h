#pragma once

#include <string>

#include "blocks/blk_ext_dlg.h"

/// The block selection dialog on the areas and blocks that stand in a table of the caller's.
///
/// A row of that table has one area and block, or two: two column sets, by either of which it
/// counts. A block column may be an expression; what stands before its first "||" is what blocks
/// are ordered by.
class KVGUICTL_API CKvGuiDynBlkExtDlg : public CKvGuiBlkExtDlg {
public:
    /// With `single` only the first column set counts, and the second may be empty.
    CKvGuiDynBlkExtDlg(std::string abeTable, std::string areaColumn1, std::string blockColumn1,
                       std::string areaColumn2, std::string blockColumn2, bool single);

    std::string GetBlkExtQuery(const std::string& area) override;
    std::string GetAreaQuery(const std::string& pattern) override;

private:
    /// The column with the area code, and the block column or expression.
    struct Columns {
        std::string area;
        std::string block;
    };
    std::string BlocksBy(const Columns& columns, const std::string& area) const;

    std::string m_sAbeTable;
    Columns m_first;
    Columns m_second;
    bool m_bSingle;
};
