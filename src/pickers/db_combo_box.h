#pragma once

#include <string>

#include "pickers/combo_box_exx.h"

/// A combo box that fills from the database: the base of the area and the block boxes.
class KVGUICTL_API CKvDbComboBox : public CComboBoxExx {
public:
    /// Builds the query for the present state and fills the list.
    virtual void V_InitializeCombo() = 0;
    /// Reacts to a change of the text; `bCommit` when the user settled on it: a row was picked, or
    /// the box lost the focus.
    virtual void V_SelChanged(bool bCommit) = 0;

    /// Hook for the box's own notifications: 1 (selection changed) and 4 (focus lost) commit, 768
    /// (text changed) does not. They go on to the base in every case.
    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;

    /// Adds column 0 of each row of the query, in row order; `bClear` empties the list first. A
    /// failure of the database goes to the log, and what was added stays; then the answer is false.
    bool FillFromQuery(const std::string& sql, bool bClear);
};
