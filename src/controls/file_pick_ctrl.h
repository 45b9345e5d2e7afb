#pragma once

#include <string>
#include <vector>

#include "window/controls/combo_box.h"
#include "window/controls/combo_box_ex.h"
#include "window/controls/edit.h"
#include "window/dialogs/dialog.h"
#include "window/drawing/image_list.h"
#include "window/list_view/list_ctrl.h"

namespace kv::file_pick {

/// Longest text of a mask, and room for a picked path with its closing 0, in bytes.
inline constexpr std::size_t kLongestMask = 260;
inline constexpr std::size_t kPathSize = 1024;

/// What stands in the last pair of brackets of a mask such as "Text Files (*.txt)"; empty where
/// there is none.
KVGUICTL_API std::string PatternOf(const std::string& mask);

/// All in lower case but the first letter and each that follows a blank.
KVGUICTL_API std::string StrToCapitalizedWords(const std::string& text);

}  // namespace kv::file_pick

/// A dialog in which a person goes through drives and folders and picks one file or several, a
/// folder, or a name to save under. Paths have drive letters and backslashes.
///
/// The list begins with the way up. A folder is shown in capitalized words, and opened by its own
/// name. Double click or Space opens it, Backspace goes up.
class KVGUICTL_API CFilePickCtrl : public CDialog {
public:
    explicit CFilePickCtrl(CWnd* parent = nullptr);

    // Ahead of `DoModal`.

    /// "C:\" of itself. A path without a backslash at its end gets one; an empty one is left.
    void SetStartPath(const char* path);
    /// A folder is picked, and no files are listed.
    void SetDirOnly(int on) { m_bDirOnly = on; }
    void SetShowPath(int on) { m_bShowPath = on; }
    /// The name to save under is typed.
    void SetSaveFileFlag(int on) { m_bSaveFile = on; }
    /// Leaves out the type line that the dialog has of itself. Without any line no files are
    /// listed.
    void SetCustomFileExt(int on) { m_bCustomFileExt = on; }
    void SetLargeDriveIcons(int on) { m_bLargeDriveIcons = on; }
    void SetLargeFilesIcons(int on) { m_bLargeFilesIcons = on; }
    /// Adds a type line, a description with one pattern in brackets. 0 where it has no brackets or
    /// over `kLongestMask` bytes, and when a folder is picked; else 1.
    int AddFilemask(const char* mask);
    void DeleteFilemasks() { m_masks.clear(); }

    /// IDOK or IDCANCEL. Forgets what was picked before; Cancel goes back to the first folder.
    int DoModal(const char* title);
    /// The same with the caption of the run before.
    int DoModal() override;

    // After it.

    /// A folder with a backslash at its end, or a file. The buffer must have `kPathSize` bytes.
    void GetSelectedItem(char* out) const;
    /// The full paths of the selected lines, in their order, when a file was the first of them.
    /// Returns how many.
    int GetMultipleSelectedItem(std::vector<std::string>& out) const;

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void PopulateFilePickCtrl();
    void OnTypeChange();
    void OnDriveChange();
    void OnDblclkFilePickCtrlFiles(NMHDR*, LRESULT* answer);
    void OnKeydownFiles(NMHDR* notification, LRESULT* answer);

    CComboBox m_cmbFileName;
    CComboBoxEx m_cmbDrives;
    CEdit m_edtPath;
    CComboBox m_cmbTypes;
    CListCtrl m_lvFiles;
    int m_bSaveFile = 0;
    int m_bCustomFileExt = 0;
    int m_bLargeDriveIcons = 0;
    int m_bLargeFilesIcons = 0;
    int m_bDirOnly = 0;
    int m_bShowPath = 1;
    std::string m_szTitle;
    /// Ends in a backslash.
    std::string m_szPath;
    std::string m_szSelected;
    std::string m_szStartPath;
    int m_nDrive = -1;
    int m_nType = 0;
    std::vector<std::string> m_vSelected;

private:
    /// A line of the list.
    struct Entry {
        std::string name;   ///< as the folder has it
        std::string shown;  ///< as the list shows it
        LPARAM attributes;
    };
    using Entries = std::vector<Entry>;

    void AttachControls();
    void FillTypes();
    void FillDrives();
    void AttachImages();
    std::string CurrentPattern() const;
    bool Collect(Entries& folders, Entries& files) const;
    void ShowEntries();
    int WidestName();
    void OpenLine(int line);
    std::string PathUp() const;
    int FirstSelectedLine() const;
    void PickFolder(const Entry& entry);
    void PickFiles(const Entry& first);

    std::vector<std::string> m_masks;
    CImageList m_driveImages;
    CImageList m_fileImages;
    Entries m_entries;
};
