#include "window/dialogs/file_dialog.h"

#include "base/file.h"
#include "base/paths.h"
#include "base/text.h"
#include "window/desktop.h"
#include "window/modal_scope.h"
#include "window/window_system.h"

using namespace kv::file_dialog;

namespace {

std::string TextOrEmpty(const char* text) {
    return text ? text : "";
}

/// What follows the last period of the name, with that period; "" where there is none.
std::string ExtensionOf(const std::string& path) {
    return kv::NameOf(path).substr(kv::TitleOf(path).size());
}

std::string WithDefaultExtension(const std::string& path, const OPENFILENAME& setup) {
    const std::string extension = TextOrEmpty(setup.lpstrDefExt);
    return extension.empty() || !ExtensionOf(path).empty() ? path : path + "." + extension;
}

bool IsRoot(const std::string& folder) {
    return folder.size() == 3 && folder[1] == ':';
}

std::string WithoutSlashAtEnd(const std::string& folder) {
    const bool cut = !folder.empty() && folder.back() == '\\' && !IsRoot(folder);
    return cut ? folder.substr(0, folder.size() - 1) : folder;
}

}  // namespace

namespace kv {

std::vector<FileFilter> ParseFilter(const std::string& filter) {
    std::vector<FileFilter> filters;
    const std::vector<std::string> parts = Split(filter, '|');
    for (std::size_t at = 0; at < parts.size() && !parts[at].empty(); at += 2) {
        filters.push_back({parts[at], at + 1 < parts.size() ? parts[at + 1] : std::string()});
    }
    return filters;
}

}  // namespace kv

CFileDialog::CFileDialog(BOOL open, const char* defaultExtension, const char* fileName, DWORD flags,
                         const char* filter, CWnd* parent)
    : CDialog(0, parent),
      m_bOpen(open),
      m_strFilter(TextOrEmpty(filter)),
      m_strPath(TextOrEmpty(fileName)) {
    m_ofn.lpstrDefExt = defaultExtension;
    m_ofn.Flags = flags;
}

void CFileDialog::DrawByItself() {
    m_nTemplate = kTemplate;
}

int CFileDialog::DoModal() {
    return m_nTemplate ? CDialog::DoModal() : RunOnDesktop();
}

int CFileDialog::RunOnDesktop() {
    kv::FileDialogRequest request;
    request.open = m_bOpen != FALSE;
    request.title = TextOrEmpty(m_ofn.lpstrTitle);
    request.defaultExtension = TextOrEmpty(m_ofn.lpstrDefExt);
    request.fileName = m_strPath.str();
    request.initialFolder = TextOrEmpty(m_ofn.lpstrInitialDir);
    request.filter = m_strFilter;
    request.flags = m_ofn.Flags;
    request.parent = m_pParentWnd;

    std::string path;
    int answer = IDCANCEL;
    {
        const kv::ModalScope scope;
        answer = kv::WindowSystem::Get().GetDesktop().RunFileDialog(request, path);
    }
    if (answer != IDOK || path.empty()) return IDCANCEL;
    TakePath(path);
    return IDOK;
}

void CFileDialog::TakePath(const std::string& path) {
    const std::string chosen = path.front() == '/' ? kv::FromNative(path) : path;
    m_strPath = WithDefaultExtension(chosen, m_ofn);
    if (!(m_ofn.Flags & OFN_NOCHANGEDIR)) kv::ChangeFolder(kv::FolderOf(chosen));
}

CString CFileDialog::GetFileName() const {
    return kv::NameOf(m_strPath.str());
}

CString CFileDialog::GetFileTitle() const {
    return kv::TitleOf(m_strPath.str());
}

CString CFileDialog::GetFileExt() const {
    const std::string extension = ExtensionOf(m_strPath.str());
    return extension.empty() ? extension : extension.substr(1);
}

CString CFileDialog::GetFolderPath() const {
    return m_hWnd ? m_strFolder : WithoutSlashAtEnd(kv::FolderOf(m_strPath.str()));
}

// The dialog that is drawn by itself.

BOOL CFileDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    const std::string title = TextOrEmpty(m_ofn.lpstrTitle);
    SetWindowText(!title.empty() ? title.c_str() : m_bOpen ? "Open" : "Save As");
    SetDlgItemText(kName, kv::NameOf(m_strPath.str()).c_str());
    FillTypes();
    std::string folder = TextOrEmpty(m_ofn.lpstrInitialDir);
    if (folder.empty()) folder = kv::FolderOf(m_strPath.str());
    m_strFolder =
        WithoutSlashAtEnd(kv::IsFolder(folder) ? kv::AbsolutePath(folder) : kv::CurrentFolder());
    if (!m_bOpen) SetDlgItemText(IDOK, "&Save");
    FillFiles();
    GotoDlgCtrl(GetDlgItem(kName));
    OnInitDone();
    OnFolderChange();
    return FALSE;
}

void CFileDialog::FillTypes() {
    for (const auto& filter : kv::ParseFilter(m_strFilter)) {
        SendDlgItemMessage(kTypes, CB_ADDSTRING, 0, kv::AsParam(filter.description.c_str()));
    }
    SendDlgItemMessage(kTypes, CB_SETCURSEL, 0);
}

std::string CFileDialog::CurrentPattern() const {
    const auto filters = kv::ParseFilter(m_strFilter);
    const auto chosen = static_cast<std::size_t>(SendDlgItemMessage(kTypes, CB_GETCURSEL));
    return chosen < filters.size() ? filters[chosen].pattern : "*.*";
}

void CFileDialog::FillFiles() {
    m_rows.clear();
    if (!IsRoot(m_strFolder)) m_rows.push_back({"..", true});
    for (const auto& entry : kv::ListFolder(m_strFolder)) {
        if (entry.isFolder) m_rows.push_back({entry.name, true});
    }
    for (const std::string& pattern : kv::Split(CurrentPattern(), ';')) {
        CFileFind find;
        bool more = find.FindFile(kv::JoinPath(m_strFolder, pattern).c_str());
        while (more) {
            more = find.FindNextFile();
            if (!find.IsDirectory()) m_rows.push_back({find.GetFileName().str(), false});
        }
    }
    SetDlgItemText(kFolder, m_strFolder.c_str());
    SendDlgItemMessage(kFiles, LB_RESETCONTENT);
    for (const FileRow& row : m_rows) {
        const std::string shown = row.isFolder ? "[" + row.name + "]" : row.name;
        SendDlgItemMessage(kFiles, LB_ADDSTRING, 0, kv::AsParam(shown.c_str()));
    }
}

void CFileDialog::GoToFolder(const std::string& folder) {
    m_strFolder = WithoutSlashAtEnd(kv::AbsolutePath(folder));
    FillFiles();
    SetDlgItemText(kName, "");
    OnFolderChange();
}

std::string CFileDialog::PathMeant(const std::string& text) const {
    const std::string drive = m_strFolder.substr(0, 2);
    const bool named = text.find(':') == 1;
    const bool onDrive = named && text.size() > 2 && (text[2] == '\\' || text[2] == '/');
    if (onDrive || text.starts_with("\\\\") || text.starts_with('/')) return text;
    if (text.starts_with('\\')) return drive + text;
    if (!named) return kv::JoinPath(m_strFolder, text);
    // Without a backslash behind it, a drive stands for its folder that is shown.
    const bool here = kv::EqualsNoCase(text.substr(0, 2), drive);
    return kv::JoinPath(here ? m_strFolder : text.substr(0, 2) + "\\", text.substr(2));
}

void CFileDialog::OnOK() {
    const std::string text = kv::Trim(DlgItemText(kName));
    if (text.empty()) return;
    const std::string path = PathMeant(text);
    if (kv::IsFolder(path)) {
        GoToFolder(path);
    } else {
        AcceptName(path);
    }
}

void CFileDialog::AcceptName(const std::string& path) {
    const std::string full = WithDefaultExtension(kv::AbsolutePath(path), m_ofn);
    if (!MayAccept(full)) return;
    const CString former = m_strPath;
    m_strPath = full;
    if (OnFileNameOK()) {
        m_strPath = former;
        return;
    }
    TakePath(full);
    EndDialog(IDOK);
}

/// Whether the dialog's flags, and the user when they say so, let the file through.
bool CFileDialog::MayAccept(const std::string& path) {
    const bool exists = kv::Exists(path);
    const bool mustExist = m_bOpen && (m_ofn.Flags & OFN_FILEMUSTEXIST);
    if (mustExist && !exists) {
        AfxMessageBox((path + "\nThis file is not there.\nPlease check its name.").c_str());
        return false;
    }
    if ((m_ofn.Flags & OFN_PATHMUSTEXIST) && !kv::IsFolder(kv::FolderOf(path))) {
        AfxMessageBox((path + "\nThis folder is not there.\nPlease check the path.").c_str());
        return false;
    }
    if (!m_bOpen && exists && (m_ofn.Flags & OFN_OVERWRITEPROMPT)) {
        const std::string question = path + " is there already.\nDo you want to replace it?";
        return AfxMessageBox(question.c_str(), MB_YESNO) == IDYES;
    }
    return true;
}

void CFileDialog::OnTypeChosen() {
    FillFiles();
}

void CFileDialog::OnFileChosen() {
    const auto chosen = static_cast<std::size_t>(SendDlgItemMessage(kFiles, LB_GETCURSEL));
    if (chosen < m_rows.size() && !m_rows[chosen].isFolder) {
        SetDlgItemText(kName, m_rows[chosen].name.c_str());
    }
}

void CFileDialog::OnFileDoubleClicked() {
    const auto chosen = static_cast<std::size_t>(SendDlgItemMessage(kFiles, LB_GETCURSEL));
    if (chosen >= m_rows.size()) return;
    const FileRow row = m_rows[chosen];
    if (row.isFolder) {
        GoToFolder(kv::JoinPath(m_strFolder, row.name));
    } else {
        SetDlgItemText(kName, row.name.c_str());
        OnOK();
    }
}

const kv::MessageMap& CFileDialog::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&CFileDialog::OnTypeChosen>(CBN_SELCHANGE, kTypes),
        kv::OnControl<&CFileDialog::OnFileChosen>(LBN_SELCHANGE, kFiles),
        kv::OnControl<&CFileDialog::OnFileDoubleClicked>(LBN_DBLCLK, kFiles),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
