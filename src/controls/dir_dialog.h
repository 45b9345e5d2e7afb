#pragma once

#include <string>

#include "base/paths.h"
#include "controls/dir_dialog_edit.h"
#include "window/controls/button.h"
#include "window/dialogs/file_dialog.h"

class CDirDialog;

/// The folder chooser's window: takes the button that the chooser has put over OK.
class KVGUICTL_API CDirDialogWnd : public CWnd {
public:
    explicit CDirDialogWnd(CDirDialog& dialog) : m_dialog(dialog) {}

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

private:
    void OnOpen();

    CDirDialog& m_dialog;
};

/// The file dialog as a chooser of folders. What is typed goes along with the folder that is shown,
/// and a folder that is not there is made, with its parents.
class KVGUICTL_API CDirDialog : public CFileDialog, private kv::dir_dialog::Chooser {
public:
    /// `filter` stands behind a line of its own, "All Files (*.*)" without one. With
    /// `openExportDir` a folder that holds anything is asked about before it is taken.
    CDirDialog(const char* initialDir, const char* filter, CWnd* parent, bool openExportDir);

    /// The chosen folder, with a backslash at its end.
    CString GetPath() const { return m_strPath; }
    bool GetOpenExportDir() const { return m_bOpenExportDir; }

    /// While the dialog is open: as if the path had been typed, and Open pressed.
    void ValidatePath(CString path);

protected:
    void OnInitDone() override;
    void OnFolderChange() override;
    BOOL OnFileNameOK() override { return TRUE; }

private:
    friend class CDirDialogWnd;

    void OnOpen();
    std::string Meant(const std::string& text) const override { return PathMeant(text); }
    void GoTo(const std::string& path) override;
    void TakeEnter() override;
    void GoToAndEnd(const std::string& path);
    void Refuse(const std::string& words);
    bool Make(const std::string& path, const char* otherwise);
    bool MayExportInto(const std::string& path);
    bool IsDrive(const std::string& path) const;
    kv::DriveKind KindOf(const std::string& path) const;

    std::string m_strInitialDir;
    CString m_strPath;
    bool m_bOpenExportDir;
    CDirDialogWnd m_window;
    CDirDialogEdit m_edit;
    CButton m_open;
};
