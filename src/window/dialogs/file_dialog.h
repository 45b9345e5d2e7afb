#pragma once

#include <string>
#include <vector>

#include "base/cstring.h"
#include "base/export.h"
#include "base/types.h"
#include "window/dialogs/dialog.h"

inline constexpr DWORD OFN_READONLY = 0x00000001;
inline constexpr DWORD OFN_OVERWRITEPROMPT = 0x00000002;
inline constexpr DWORD OFN_HIDEREADONLY = 0x00000004;
inline constexpr DWORD OFN_NOCHANGEDIR = 0x00000008;
inline constexpr DWORD OFN_ENABLEHOOK = 0x00000020;
inline constexpr DWORD OFN_ENABLETEMPLATE = 0x00000040;
inline constexpr DWORD OFN_ALLOWMULTISELECT = 0x00000200;
inline constexpr DWORD OFN_EXTENSIONDIFFERENT = 0x00000400;
inline constexpr DWORD OFN_PATHMUSTEXIST = 0x00000800;
inline constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;
inline constexpr DWORD OFN_CREATEPROMPT = 0x00002000;
inline constexpr DWORD OFN_EXPLORER = 0x00080000;

/// What a file dialog is set up with. Null texts are empty ones; the texts are not owned.
struct OPENFILENAME {
    const char* lpstrTitle = nullptr;
    const char* lpstrInitialDir = nullptr;
    const char* lpstrDefExt = nullptr;  ///< without a period
    DWORD Flags = 0;                    ///< OFN_...
};

namespace kv {

/// One line of a file dialog's list of types.
struct FileFilter {
    std::string description;
    std::string pattern;
    bool operator==(const FileFilter&) const = default;
};

/// The lines of a filter text: descriptions and patterns in turn with "|" between them, up to an
/// empty description. A description without a pattern behind it has an empty one.
KVGUICTL_API std::vector<FileFilter> ParseFilter(const std::string& filter);

}  // namespace kv

/// The platform's dialog for opening a file, or saving one.
///
/// What is in `m_ofn` when `DoModal` is called is what the dialog is opened with. An accepted
/// path's folder becomes the current one, unless OFN_NOCHANGEDIR is set. Paths are absolute, in the
/// dialogs' form.
class KVGUICTL_API CFileDialog : public CDialog {
public:
    static constexpr CRuntimeClass classCFileDialog{"CFileDialog"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCFileDialog; }

    explicit CFileDialog(BOOL open, const char* defaultExtension = nullptr,
                         const char* fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         const char* filter = nullptr, CWnd* parent = nullptr);

    OPENFILENAME m_ofn;

    /// IDOK or IDCANCEL.
    int DoModal() override;

    /// The chosen path, or what the constructor was given as long as none is chosen. The name gets
    /// the default extension when it is chosen without one.
    CString GetPathName() const { return m_strPath; }
    /// Its name, the name without the extension, the extension without its period, and the folder
    /// without a backslash at its end unless it is a root.
    CString GetFileName() const;
    CString GetFileTitle() const;
    CString GetFileExt() const;
    CString GetFolderPath() const;

    BOOL IsOpenDialog() const { return m_bOpen; }

    BOOL OnInitDialog() override;
    void OnOK() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    /// For the constructor of a class that rebuilds the dialog: it is then not the platform's own,
    /// but one with the controls below, which are its children.
    void DrawByItself();

    // Called in a dialog that is drawn by itself.

    /// The controls are there, and show what the dialog begins with.
    virtual void OnInitDone() {}
    /// `GetFolderPath` tells another folder than before, or the first one.
    virtual void OnFolderChange() {}
    /// `GetPathName` tells a file that the user has accepted; true refuses it, and the dialog
    /// stays.
    virtual BOOL OnFileNameOK() { return FALSE; }

    /// The path that a text means to a person who looks at the folder that is shown.
    std::string PathMeant(const std::string& text) const;

private:
    int RunOnDesktop();
    void TakePath(const std::string& path);
    void GoToFolder(const std::string& folder);
    void FillTypes();
    void FillFiles();
    void AcceptName(const std::string& path);
    bool MayAccept(const std::string& path);
    std::string CurrentPattern() const;
    void OnTypeChosen();
    void OnFileChosen();
    void OnFileDoubleClicked();

    BOOL m_bOpen;
    std::string m_strFilter;
    CString m_strPath;

    struct FileRow {
        std::string name;
        bool isFolder;
    };
    std::string m_strFolder;
    std::vector<FileRow> m_rows;
};

namespace kv::file_dialog {

// The dialog that is drawn by itself, and its controls, by the platform's numbers.
inline constexpr int kTemplate = 1536;
inline constexpr int kTypeLabel = 1089;
inline constexpr int kNameLabel = 1090;
inline constexpr int kFolderLabel = 1091;
inline constexpr int kFiles = 1120;
inline constexpr int kTypes = 1136;
inline constexpr int kFolder = 1137;
inline constexpr int kName = 1152;

}  // namespace kv::file_dialog
