#pragma once

#include "window/dialogs/dialog.h"

/// Asks whether a file is to be loaded from the user's folder or from the system's. The last answer
/// holds for all of the program, and is what the next dialog begins with.
class KVGUICTL_API CKvImportFromDlg : public CDialog {
public:
    explicit CKvImportFromDlg(CWnd* parent = nullptr);

    bool IsUserFolder() const { return m_bstatUserFolder; }
    /// Whether both are one folder: the work folder is the home folder.
    bool IsUserFolderSameAsSysFolder() const;

    BOOL OnInitDialog() override;
    void OnOK() override;

protected:
    static bool m_bstatUserFolder;
};
