#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "blocks/neighbor_blocks.h"
#include "blocks/selection.h"
#include "controls/list_ctrl_ex.h"
#include "window/controls/list_box.h"
#include "window/dialogs/dialog.h"

namespace kv {
struct ImportedBlock;
}
namespace kv::blocks {
enum class Vocabulary;
}

/// Lets the user compose a selection of areas and of blocks inside areas: a search fills the list
/// of areas, a double click on one lists its blocks, and both go over to the selection; or areas
/// are typed in, or come from a file or from a map. Blocks that touch the selected ones can be
/// added.
///
/// The selection is the caller's and is worked on in place, so that it is what the user made of it
/// whichever way the dialog ends. Cancel brings back only the neighbor relation. An entry whose
/// block is empty is a whole area; no entry is there twice.
class KVGUICTL_API CKvGuiBlkExtDlg : public CDialog {
public:
    explicit CKvGuiBlkExtDlg(CWnd* parent = nullptr);
    CKvGuiBlkExtDlg(UINT templateId, CWnd* parent);
    ~CKvGuiBlkExtDlg() override;

    // Before the dialog opens.

    /// The selection must outlive the dialog. An empty owner stands for that of the current
    /// dataset.
    void SetType(kv::blocks::Selection& selection, std::string owner);
    /// The column that areas are shown by: "areaname", "stcode" or "area_abbr".
    void SetFieldString(const std::string& field) { m_sFieldString = field; }
    /// The table that areas are searched in, with its owner.
    void SetTableName(const std::string& table) { m_sTableName = table; }
    void SetSqlStatement(const std::string& sql) { m_sSqlStatement = sql; }
    /// The file that the caller takes the selection from, and whether it does.
    void SetListFileName(std::string name) { m_sListFileName = std::move(name); }
    void SetListFileFlag(bool flag) { m_bListFile = flag; }

    // Afterward.

    /// An import may have changed it.
    std::string GetFieldString() const { return m_sFieldString; }
    std::string GetTableName() const { return m_sTableName; }
    std::string GetListFileName() const { return m_sListFileName; }
    bool GetListFileFlag() const { return m_bListFile; }
    /// To each selected block the blocks that were found to touch it.
    kv::blocks::NeighborRelation& GetNeighborRel() { return m_mapNeighborRel; }
    /// Owned by the dialog; null until it was opened.
    CNeighborBlocks* GetNeighborBlockPointer() const { return m_pNeighborBlocks.get(); }
    void ClearNBMap() { m_mapNeighborRel.clear(); }

    /// The statement that lists the blocks of an area as it is shown, and the one that lists the
    /// areas that match a pattern.
    virtual std::string GetBlkExtQuery(const std::string& area);
    virtual std::string GetAreaQuery(const std::string& pattern);
    virtual void V_PopulateSelectedListBoxColumns();

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    BOOL PreTranslateMessage(MSG* message) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnAddButton();
    void OnRemoveButton();
    void OnClearButton();
    void OnChangeFindEdit();
    void OnSearchButton();
    void OnSelchangeAvailList();
    void OnDblclkAvailList();
    void OnClickList1(NMHDR* notification, LRESULT* result);
    /// Space does what a click does.
    void OnKeydownList1(NMHDR* notification, LRESULT* result);
    void OnButtonImportmap();
    void OnButtonNeighbor();
    void OnRadioSearch();
    void OnRadioInsert();
    void OnButtonImport();
    void OnButtonExport();
    void OnButtonListFile();
    void OnCheckListFile();

    /// Makes the finder of neighbors anew, for what areas are shown by.
    void OnChangeAreatype();
    void RefreshSelectedListBox();
    void UpdateActionButtons();
    void listExt(const std::string& area);
    /// Puts an entry at the end of the selection; false when it is there. For one entry: many are
    /// added through an index.
    bool AddSelectedExts(const std::string& area, const std::string& block);
    /// The smallest of the values and -1; -1 for a count below 1.
    static int MinVal(const int* values, int count);
    /// The two headings of the selection, with their widths in pixels.
    void InsertSelectedColumns(int areaWidth, int blockWidth);

    // Block selection files. The readers add to what is selected; what cannot be read is told in a
    // message box.

    void ImportWithTabDelimiter(const std::string& file);
    void ImportWithFixedSizes(const std::string& file);
    void ExportWithTabDelimiter(std::ostream& out);
    void ExportWithFixedSizes(std::ostream& out);
    void ImportNeighborBlockInfo(const std::string& file);
    void ExportNeighborBlockInfo(std::ostream& out);
    /// False when the file cannot be read. Of a file in which the user told how lines are made; of
    /// one with 1 to 3 columns and tabs between them; of one with columns of fixed widths.
    bool ReadImportFile(const std::string& file, bool blockFirst, std::string columnDelimiter,
                        std::string extDelimiter);
    bool ReadImportFile(const std::string& file, int columns);
    bool ReadImportFile(const std::string& file, int areaWidth, int blockWidth, int extWidth);

    CListCtrlEx m_listSelected;
    int m_bFound = 0;
    std::string m_sSqlStatement;
    std::string m_sOwner;
    std::string m_sFieldString;
    std::string m_sTableName;
    kv::blocks::NeighborRelation m_mapNeighborSaved;
    kv::blocks::NeighborRelation m_mapNeighborRel;
    kv::blocks::Selection* m_pSelection = &m_noSelection;
    std::unique_ptr<CNeighborBlocks> m_pNeighborBlocks;
    CListBox m_listAvail;
    CListBox m_listExt;
    int m_nSelectedRows = 0;
    std::string m_sListFileName;
    bool m_bListFile = false;

private:
    std::string SearchPattern() const;
    void Search();
    void Insert();
    void AddEntries(std::vector<kv::ImportedBlock> entries);
    /// An area that goes by its name, as the selection has it.
    std::string AreaOfName(const std::string& areaName) const;
    bool Allows(kv::blocks::Vocabulary vocabulary) const;
    void UseFieldString(const std::string& field);
    void ImportUsersFile(const std::string& file);
    bool TakeListFile(const std::string& file);

    /// What stands in for the caller's selection in a dialog that was told none.
    kv::blocks::Selection m_noSelection;
    /// Whether what is being handled is the press of Space.
    bool m_bSpace = false;
};
