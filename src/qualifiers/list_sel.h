#pragma once

#include <string>
#include <vector>

#include "window/dialogs/dialog.h"

class CComboBox;
class CEdit;
class CKvDbAbsDataMgr;
class CListBox;

/// Lets the user build a list of values, a qualifier, for one database column: a search fills the
/// Available list, rows go over to the Selected list, or values are typed in directly.
///
/// The caller hands in a control of its own, an edit or a combo box, and a vector; neither is
/// owned. On IDOK the vector holds the Selected list in its order, and the control shows "<LIST>"
/// for more than one value or where a list file is in use, else the one value, or nothing. On
/// IDCANCEL both are as they were, unless opening has emptied the vector: a value that the control
/// shows wins over an old vector.
class KVGUICTL_API CKvGuiListSel : public CDialog {
public:
    explicit CKvGuiListSel(CWnd* parent = nullptr);
    CKvGuiListSel(UINT templateId, CWnd* parent);
    CKvGuiListSel(const std::string& column, const std::string& table, CComboBox* combo,
                  std::vector<std::string>& values, UINT templateId, CWnd* parent);
    CKvGuiListSel(const std::string& column1, const std::string& column2, const std::string& table,
                  bool twoColumns, CComboBox* combo, std::vector<std::string>& values,
                  UINT templateId, CWnd* parent);
    CKvGuiListSel(const std::string& column, const std::string& table, CEdit* edit,
                  std::vector<std::string>& values, CWnd* parent);
    CKvGuiListSel(const std::string& column1, const std::string& column2, const std::string& table,
                  bool twoColumns, CEdit* edit, std::vector<std::string>& values, CWnd* parent);

    /// The statement that fills the Available list. An empty one stops the search; the user has
    /// then been told why.
    virtual std::string V_SqlQuery();
    virtual void OnSearchButton();

    /// Set the caller's control and vector, for a dialog that was made without them.
    void MakeComboType(CComboBox* combo, std::vector<std::string>& values);
    void MakeEditType(CEdit* edit, std::vector<std::string>& values);

    /// Orders the result by the database function `lesort`.
    void SetSpecialOrderByFlag(bool special) { m_bSpecialOrderBy = special; }
    /// The file that the caller takes the list from, and whether it does.
    std::string GetListFileName() const { return m_sListFile; }
    void SetListFileName(const std::string& name) { m_sListFile = name; }
    bool GetListFileFlag() const { return m_bListFile; }
    void SetListFileFlag(bool flag) { m_bListFile = flag; }
    bool GetEnableFileButtonFlag() const { return m_bEnableFileButton; }
    void SetEnableFileButtonFlag(bool flag) { m_bEnableFileButton = flag; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnRadioSearch();
    void OnRadioInsert();
    void OnAdd();
    void OnRemove();
    void OnSelchangeAvailList();
    void OnSelchangeSelectList();
    void OnChangeFindEdit();
    void OnClearButton();
    void OnSearchClicked() { OnSearchButton(); }
    void OnImportButton();
    void OnExportButton();
    void OnButtonListFile();
    void OnCheckListFile();

    void UpdateActionButtons();
    void ParseSelectedItems();
    /// Adds the values of a file behind those of the Selected list.
    void LoadQualifiers(const std::string& path);

    CListBox& Available() const;
    CListBox& Selected() const;
    /// The Find text in upper case.
    std::string FindText() const;
    /// The Find text as a pattern, by the radios that tell where it has to stand.
    std::string MatchPattern() const;
    /// Removes every row of the Selected list, as Remove does.
    void RemoveAll();

    std::string m_sColumn;
    std::string m_sColumn1;
    std::string m_sColumn2;
    std::string m_sTable;
    bool m_bTwoColumns = false;
    std::vector<std::string>* m_pValues = &m_noValues;
    CEdit* m_pEdit = nullptr;
    bool m_bSpecialOrderBy = false;
    CComboBox* m_pCombo = nullptr;
    bool m_bFindMatch = false;
    std::string m_sListFile;
    bool m_bListFile = false;
    bool m_bEnableFileButton = true;

private:
    CWnd* CallersControl() const;
    void Search();
    /// Fills the Available list.
    void ShowFound(const CKvDbAbsDataMgr& found);
    void Insert();
    bool WriteQualifiers(const std::string& path) const;
    std::string CallersText() const;

    /// What stands in for the caller's vector in a dialog that was made without one.
    std::vector<std::string> m_noValues;
};
