// Qualifier files and the list file.

#include "base/foreign_text.h"
#include "base/paths.h"
#include "frame/catalogue.h"
#include "frame/import_folder.h"
#include "frame/kvcom/misc.h"
#include "qualifiers/list_rows.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "qualifiers/qualifier_file.h"
#include "window/controls/list_box.h"
#include "window/dialogs/file_dialog.h"

using namespace kv::list_sel;

namespace {

constexpr const char* kFilter = "Text File |*.txt|All Files |*.*|";
constexpr const char* kImportTitle = "Import Norvadon PC Qualifiers";
constexpr const char* kExportTitle = "Export Norvadon PC Qualifiers";

/// Below the work folder, where no import folder is remembered.
void EnsureImportFolder() {
    kv::EnsureImportFolder(std::string(kv::catalogue::kReportFolder) + "\\");
}

}  // namespace

void CKvGuiListSel::OnImportButton() {
    EnsureImportFolder();
    const kv::BackToHome back(kv::catalogue::kAppFolder);
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter, this);
    if (kv::AskForFile(dialog, kImportTitle, true)) LoadQualifiers(dialog.GetPathName().str());
}

void CKvGuiListSel::LoadQualifiers(const std::string& path) {
    const auto text = kv::ReadForeignText(path);
    if (!text || !kv::IsText(*text)) {
        const std::string fault =
            text ? path + " is not a text file" : "Can't open settings file " + path;
        AfxMessageBox((fault + ".\nSettings not read.").c_str(), 0, 0);
        return;
    }
    int cut = 0;
    for (const std::string& value : kv::ParseQualifiers(*text, &cut)) {
        Selected().AddString(value.c_str());
    }
    UpdateActionButtons();
    if (cut > 0) AfxMessageBox(kv::WordsOfCut(path, cut).c_str(), 0, 0);
}

void CKvGuiListSel::OnExportButton() {
    EnsureImportFolder();
    kv::MakeFolder(CKvMisc::S_GetImportFilePath().str());
    const kv::BackToHome back(kv::catalogue::kAppFolder);
    CFileDialog dialog(FALSE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter,
                       this);
    if (!kv::AskForFile(dialog, kExportTitle, true)) return;
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
    const kv::BackToHome back(kv::catalogue::kAppFolder);
    CFileDialog dialog(TRUE, nullptr, m_sListFile.empty() ? nullptr : m_sListFile.c_str(),
                       OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, kFilter, this);
    if (kv::AskForFile(dialog, kImportTitle, m_sListFile.empty())) {
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
