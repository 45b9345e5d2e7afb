#include "frame/kvcom/profile.h"

#include "base/numbers.h"
#include "base/user_folders.h"
#include "services/kvcom/ini_file.h"

namespace kv::profile {

namespace {

SettingsFile File() {
    return SettingsFile(FromEnvironment("KVGUICTL_PROFILE", ConfigFolder() + "/profile.ini"));
}

}  // namespace

int GetInt(const std::string& section, const std::string& entry, int fallback) {
    const auto stored = File().Read().Get(section, entry);
    return stored ? ScanInteger(*stored).value_or(fallback) : fallback;
}

std::string GetString(const std::string& section, const std::string& entry,
                      const std::string& fallback) {
    return File().Read().Get(section, entry).value_or(fallback);
}

bool WriteInt(const std::string& section, const std::string& entry, int value) {
    return WriteString(section, entry, std::to_string(value));
}

bool WriteString(const std::string& section, const std::string& entry, const std::string& value) {
    return File().Write(section, entry, value);
}

}  // namespace kv::profile
