#pragma once

#include <string>

#include "base/export.h"

class CFileDialog;

/// What every handler that opens a file dialog does around it.
namespace kv {

/// Lets the import folder be that one below the work folder, such as "\REPORT", unless one is
/// remembered. It is remembered for the whole process.
KVGUICTL_API void EnsureImportFolder(const std::string& belowWork);

/// Makes that folder below the home folder, such as "\App", the current one when it goes: a file
/// dialog may have left the program in another. Looked up at once, so that nothing fails then.
class KVGUICTL_API BackToHome {
public:
    explicit BackToHome(const std::string& belowHome);
    ~BackToHome();
    BackToHome(const BackToHome&) = delete;
    BackToHome& operator=(const BackToHome&) = delete;

private:
    std::string home_;
};

/// Asks for a file under that title; true when the user chose one, whose folder is then the import
/// folder.
KVGUICTL_API bool AskForFile(CFileDialog& dialog, const char* title, bool startInImportFolder);

}  // namespace kv
