// Qualifier files and the list file.

#include "frame/catalogue.h"
#include "frame/log.h"
#include "frame/misc.h"
#include "frame/ut_registry.h"
#include "qualifiers/list_rows.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "qualifiers/qualifier_file.h"
#include "window/file_dialog.h"
#include "window/list_box.h"
#include "window/paths.h"

using namespace kv::list_sel;

namespace {

constexpr const char* kFilter = "Text File |*.txt|All Files |*.*|";
constexpr const char* kImportTitle = "Import Norvadon PC Qualifiers";
constexpr const char* kExportTitle = "Export Norvadon PC Qualifiers";

std::string Folder(const std::string& path, const std::string& key) {
    return CKvUtRegistry().GetRegistry(path, key, true);
}

/// The folder that the file dialogs start in is remembered for the whole process.
void EnsureImportFolder() {
    if (!CKvMisc::S_GetImportFilePath().IsEmpty()) return;
    const std::string work = Folder(CKvUtRegistry::S_GetWorkPath(), CKvUtRegistry::S_GetWorkKey());
    CKvMisc::S_SetImportFilePath((work + kv::catalogue::kReportFolder + "\\").c_str());
}

/// A file dialog may have left the program in another folder.
class BackToHome {
public:
    BackToHome() = default;
    ~BackToHome() {
        kv::ChangeFolder(Folder(CKvUtRegistry::S_GetHomePath(), CKvUtRegistry::S_GetHomeKey()) +
                         kv::catalogue::kAppFolder);
    }
    BackToHome(const BackToHome&) = delete;
    BackToHome& operator=(const BackToHome&) = delete;
};

/// Asks for a file; true when the user chose one, whose folder is then the import folder.
bool AskForFile(CFileDialog& dialog, const char* title, bool startInImportFolder) {
    const CString folder = CKvMisc::S_GetImportFilePath();
    dialog.m_ofn.lpstrTitle = title;
    if (startInImportFolder) dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK) return false;
    CKvMisc::S_SetImportFilePath(kv::FolderOf(dialog.GetPathName().str()).c_str());
    return true;
}

}  // namespace

void CKvGuiListSel::OnImportButton() {
    EnsureImportFolder();
    const BackToHome back;
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter, this);
    if (AskForFile(dialog, kImportTitle, true)) LoadQualifiers(dialog.GetPathName().str());
}

void CKvGuiListSel::LoadQualifiers(const std::string& path) {
    const auto text = kv::ReadTextFile(path);
    if (!text) {
        const std::string words = "Can't open settings file " + path + ".\nSettings not read.";
        AfxMessageBox(words.c_str(), 0, 0);
        return;
    }
    int cut = 0;
    for (const std::string& value : kv::ParseQualifiers(*text, &cut)) {
        Selected().AddString(value.c_str());
    }
    if (cut > 0) {
        CKvLog::Output(path + ": " + std::to_string(cut) + " lines were cut to " +
                           std::to_string(kv::kLongestQualifier) + " characters",
                       101, false);
    }
    UpdateActionButtons();
}

void CKvGuiListSel::OnExportButton() {
    EnsureImportFolder();
    kv::MakeFolder(CKvMisc::S_GetImportFilePath().str());
    const BackToHome back;
    CFileDialog dialog(FALSE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter,
                       this);
    if (!AskForFile(dialog, kExportTitle, true)) return;
    const std::string path =
        CKvMisc::S_GetImportFilePath().str() + dialog.GetFileTitle().str() + ".txt";
    if (!WriteQualifiers(path)) {
        AfxMessageBox(("Can't write to settings file " + path).c_str(), 0, 0);
    }
}

bool CKvGuiListSel::WriteQualifiers(const std::string& path) const {
    kv::FileWriter file;
    if (!file.Open(path)) return false;
    for (const std::string& row : RowsOf(Selected())) {
        if (!file.Write(row + "\n")) return false;
    }
    return file.Commit();
}

void CKvGuiListSel::OnButtonListFile() {
    EnsureImportFolder();
    const BackToHome back;
    CFileDialog dialog(TRUE, nullptr, m_sListFile.empty() ? nullptr : m_sListFile.c_str(),
                       OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter, this);
    if (AskForFile(dialog, kImportTitle, m_sListFile.empty())) {
        m_sListFile = dialog.GetPathName().str();
        m_bListFile = true;
    }
    CheckDlgButton(kListFileCheck, m_bListFile);
}

void CKvGuiListSel::OnCheckListFile() {
    if (IsDlgButtonChecked(kListFileCheck)) {
        OnButtonListFile();
    } else {
        m_bListFile = false;
    }
}
