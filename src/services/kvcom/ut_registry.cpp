#include "frame/kvcom/ut_registry.h"

#include <array>

#include "base/paths.h"
#include "base/text.h"
#include "base/user_folders.h"
#include "frame/kvlogs/log.h"
#include "services/kvcom/ini_file.h"

namespace {

constexpr const char* kPath = "SOFTWARE\\KVI";
constexpr const char* kDrivesPath = "SOFTWARE\\KVI\\Drives";
constexpr const char* kHomeKey = "HOME_DIR";
constexpr const char* kWorkKey = "WORK_DIR";

/// A folder that the application keeps below the user's data folder unless it is told another.
struct Folder {
    const char* key;
    const char* name;
    const char* inside;  ///< what is made in it, since dialogs count on it
};
constexpr std::array<Folder, 2> kFolders = {
    {{kHomeKey, "/home", "/App"}, {kWorkKey, "/work", "/Report"}}};

struct Default {
    const char* key;
    const char* value;
};
constexpr std::array<Default, 3> kDefaults = {
    {{"DATASET_OWNER", "NORVADON"}, {"DATASET", "GULF_MEXICO"}, {"TABLE_OWNER", "NORVADON"}}};

kv::SettingsFile File() {
    return kv::SettingsFile(
        kv::FromEnvironment("KVGUICTL_REGISTRY", kv::ConfigFolder() + "/registry.ini"));
}

const Folder* FindFolder(const std::string& path, const std::string& key) {
    if (!kv::EqualsNoCase(path, kPath)) return nullptr;
    for (const Folder& folder : kFolders) {
        if (kv::EqualsNoCase(folder.key, key)) return &folder;
    }
    return nullptr;
}

std::string DefaultValue(const std::string& path, const std::string& key) {
    if (!kv::EqualsNoCase(path, kPath)) return {};
    for (const Default& entry : kDefaults) {
        if (kv::EqualsNoCase(entry.key, key)) return entry.value;
    }
    return {};
}

std::string FolderPath(const Folder& folder, const std::string& stored) {
    std::string path = stored;
    if (path.empty()) {
        path = kv::DataFolder() + folder.name;
        kv::MakeFolders(path + folder.inside);
    }
    path = kv::FromNative(path);
    while (!path.empty() && (path.back() == '\\' || path.back() == '/'))
        path.pop_back();
    return path;
}

void MapDrives() {
    for (const auto& [name, root] : File().Read().Entries(kDrivesPath)) {
        const bool letter = name.size() == 1 || (name.size() == 2 && name[1] == ':');
        if (letter && root.starts_with('/')) {
            kv::MapDrive(name[0], root);
        } else {
            CKvLog::Output("Not a drive and its folder in the registry: " + name + "=" + root, 101,
                           false);
        }
    }
}

[[maybe_unused]] const bool kDrivesComeFromTheRegistry = [] {
    kv::SetDriveSource(&MapDrives);
    return true;
}();

}  // namespace

std::string CKvUtRegistry::S_GetHomePath() {
    return kPath;
}
std::string CKvUtRegistry::S_GetHomeKey() {
    return kHomeKey;
}
std::string CKvUtRegistry::S_GetWorkPath() {
    return kPath;
}
std::string CKvUtRegistry::S_GetWorkKey() {
    return kWorkKey;
}

std::string CKvUtRegistry::GetRegistry(const std::string& path, const std::string& key,
                                       bool /*user*/) const {
    const std::string stored = File().Read().Get(path, key).value_or("");
    if (const Folder* folder = FindFolder(path, key)) return FolderPath(*folder, stored);
    return stored.empty() ? DefaultValue(path, key) : stored;
}

bool CKvUtRegistry::SetRegistry(const std::string& path, const std::string& key,
                                const std::string& value) const {
    return File().Write(path, key, value);
}
