#pragma once

#include <string>

#include "base/export.h"

/// The application's registry: folders and settings by path and value name.
///
/// It is a text file under the user's configuration folder ("KVGuiCtl/registry.ini" under
/// `XDG_CONFIG_HOME`, or under ".config" of the home folder; `KVGUICTL_REGISTRY` names another
/// file), with a section for each path. Every entry has a default that works on a fresh machine. A
/// file that cannot be read is logged once and counts as empty. Paths and value names are found
/// without regard to case.
///
/// The path "SOFTWARE\KVI\Drives" holds the drives of this machine that the dialogs know, as
/// "D=/srv/maps".
class KVGUICTL_API CKvUtRegistry {
public:
    /// The entry of the application's home folder: "SOFTWARE\KVI", "HOME_DIR".
    static std::string S_GetHomePath();
    static std::string S_GetHomeKey();
    /// The entry of the work folder: "SOFTWARE\KVI", "WORK_DIR".
    static std::string S_GetWorkPath();
    static std::string S_GetWorkKey();

    /// The stored text; for a folder without a trailing backslash. Where nothing is stored, the
    /// default of that entry; "" for entries without one. For home and work folder that is a folder
    /// of the user's, which is made, with "\App" and "\Report" in it, if it is not there. The flag
    /// asks for the user's entry ahead of the machine's; there is but the user's.
    std::string GetRegistry(const std::string& path, const std::string& key, bool user) const;

    /// Stores a text. False, with a line in the log, when the file cannot be written; it is then
    /// what it was.
    bool SetRegistry(const std::string& path, const std::string& key,
                     const std::string& value) const;
};
