#include "base/user_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace kv {

namespace {

std::string HomeFolder() {
    const std::string home = FromEnvironment("HOME", "");
    if (!home.empty()) return home;
    const passwd* user = getpwuid(getuid());
    return user && user->pw_dir ? user->pw_dir : "/tmp";
}

/// A folder of the base directory rules, which leave out a variable that is no absolute path.
std::string BaseFolder(const char* variable, const char* belowHome) {
    const std::string folder = FromEnvironment(variable, "");
    return folder.starts_with('/') ? folder : HomeFolder() + belowHome;
}

}  // namespace

std::string ConfigFolder() {
    return BaseFolder("XDG_CONFIG_HOME", "/.config") + "/KVGuiCtl";
}

std::string DataFolder() {
    return BaseFolder("XDG_DATA_HOME", "/.local/share") + "/kvguictl";
}

std::string FromEnvironment(const char* name, const std::string& fallback) {
    const char* value = std::getenv(name);
    return value && *value ? value : fallback;
}

}  // namespace kv
