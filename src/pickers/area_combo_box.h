#pragma once

#include <string>

#include "pickers/blk_combo_box.h"
#include "pickers/db_combo_box.h"
#include "window/named.h"

/// The areas of the dataset in one of the three area modes, with two label rows that switch the
/// mode. A pick fills the block box that is bound to it. The text of the box is its only record of
/// the pick.
class KVGUICTL_API CKvAreaComboBox : public CKvDbComboBox, public kv::Named {
public:
    /// Binds the block box, which is not owned, and gives it the present mode. Null for none.
    void SetBlkCombo(CKvBlkComboBox* combo);

    int GetMode() const { return m_nMode; }
    /// Touches neither the list nor the block box.
    void SetMode(int mode);

    void V_InitializeCombo() override;
    void V_SelChanged(bool bCommit) override;

    /// Whether the current row was only gone to by keys in the open list: it is picked when the
    /// list closes.
    bool IsLookingAtRow() const;
    /// As the base, but for a row that is only looked at.
    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override;
    BOOL PreTranslateMessage(MSG* message) override;

    /// The window text as it stands.
    std::string GetArea() const { return WindowText(); }

    /// The area code of the pick, or the codes where an MMS code stands for several and no single
    /// block is picked: c1,c2. With `bQuoted` ready to stand in SQL: 'c1', or ('c1','c2'). Empty
    /// for an empty box.
    std::string GetAreacode(bool bQuoted) const;

    /// Selects the area with that area code. One that the database does not know, or that is not in
    /// the list, which may not be filled yet, is logged, and the box stays as it was.
    void SetArea(const std::string& areacode);

    /// Whether the text is a row of the list, wholly entered: the block box may then be used. If it
    /// is not, the block box's text is emptied.
    bool EnableBlkCombo();

    std::string SpokenName() const override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void PreSubclassWindow() override { ShowMode(); }
    void OnEditUpdate();

    /// Names the table that is not named yet.
    void EnsureTable();
    /// The column of the present mode, null for an unknown mode.
    const char* AreaColumn() const;
    /// The beginning of each statement that lists labels and areas: the labels of the other modes.
    std::string LabelQuery() const;
    /// The areas of the present mode, to which a condition may be added.
    std::string DistinctAreas() const;
    /// Fills the list from the statement. The first fill in the process, which `firstFill` marks,
    /// does not clear it. False when the database failed.
    bool Fill(const std::string& query, bool& firstFill);
    /// Leaves no rows but the labels of the other modes, by which this one can be left.
    void ShowLabelsAlone();

    std::string m_sTable;
    CKvBlkComboBox* m_pBlkCombo = nullptr;
    int m_nMode = kv::catalogue::kMmsCode;

private:
    /// The statement of the present mode, empty for an unknown mode.
    std::string AreaQuery() const;
    std::string AreacodesOfMms(const std::string& mmsCode, bool bQuoted) const;
    /// Whether that filled a list anew.
    bool TakeText(const std::string& text);
    void TakeWhatIsShown();
    void ShowMode();
    bool HoldsFocus() const;
    /// Whether another row goes on from the text of a row.
    bool GoesOn(const std::string& text) const;
    /// The row that is the area, not one that merely begins with it; CB_ERR for none.
    int RowOf(const std::string& area) const;

    bool m_bLookedAtRow = false;
};
