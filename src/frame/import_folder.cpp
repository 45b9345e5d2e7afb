#include "frame/import_folder.h"

#include "base/paths.h"
#include "frame/kvcom/misc.h"
#include "frame/kvcom/ut_registry.h"
#include "window/dialogs/file_dialog.h"

namespace kv {

namespace {

std::string Folder(const std::string& path, const std::string& key) {
    return CKvUtRegistry().GetRegistry(path, key, true);
}

}  // namespace

void EnsureImportFolder(const std::string& belowWork) {
    if (!CKvMisc::S_GetImportFilePath().IsEmpty()) return;
    const std::string work = Folder(CKvUtRegistry::S_GetWorkPath(), CKvUtRegistry::S_GetWorkKey());
    CKvMisc::S_SetImportFilePath((work + belowWork).c_str());
}

BackToHome::BackToHome(const std::string& belowHome)
    : home_(ToNative(Folder(CKvUtRegistry::S_GetHomePath(), CKvUtRegistry::S_GetHomeKey()) +
                     belowHome)) {}

BackToHome::~BackToHome() {
    ChangeNativeFolder(home_);
}

bool AskForFile(CFileDialog& dialog, const char* title, bool startInImportFolder) {
    const CString folder = CKvMisc::S_GetImportFilePath();
    dialog.m_ofn.lpstrTitle = title;
    if (startInImportFolder) dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK) return false;
    CKvMisc::S_SetImportFilePath(FolderOf(dialog.GetPathName().str()).c_str());
    return true;
}

}  // namespace kv
