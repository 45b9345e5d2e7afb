#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>

#include "base/paths.h"

namespace test {

/// A folder of its own for one test, removed with all it holds at the end. While it lives, every
/// file that the library keeps for its user (settings, profile, log, sample database) is in it; the
/// environment, the current folder and the drives are put back afterward.
class TempFolder {
public:
    TempFolder() : before_(std::filesystem::current_path()) {
        std::string name = (std::filesystem::temp_directory_path() / "kvguictl-XXXXXX").string();
        path_ = mkdtemp(name.data());
        Set("HOME", Native("home"));
        Set("XDG_CONFIG_HOME", Native("config"));
        Set("XDG_DATA_HOME", Native("data"));
        Set("XDG_STATE_HOME", Native("state"));
        Set("XDG_CACHE_HOME", Native("cache"));
        Set("KVGUICTL_REGISTRY", Native("registry.ini"));
        Set("KVGUICTL_PROFILE", Native("profile.ini"));
        Set("KVGUICTL_LOG", Native("log.txt"));
        Set("KVGUICTL_DB", "sqlite:" + Native("sample.db"));
        Set("KVGUICTL_LOG_TERMINAL", std::nullopt);
        kv::ForgetDrives();
    }
    ~TempFolder() {
        std::error_code error;
        std::filesystem::current_path(before_, error);
        std::filesystem::remove_all(path_, error);
        for (const auto& [name, value] : environment_)
            Put(name, value);
        kv::ForgetDrives();
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The machine's own path of the folder, or of a name in it.
    std::string Native(const std::string& name = {}) const {
        return name.empty() ? path_.string() : (path_ / name).string();
    }
    /// The same as the dialogs speak it.
    std::string Dialog(const std::string& name = {}) const { return kv::FromNative(Native(name)); }

    /// Writes a file of these bytes, in a folder that is made if need be.
    void Write(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << content;
    }
    /// The bytes of a file; "" where there is none.
    std::string Read(const std::string& name) const {
        std::ostringstream content;
        content << std::ifstream(path_ / name, std::ios::binary).rdbuf();
        return content.str();
    }
    bool Has(const std::string& name) const { return std::filesystem::exists(path_ / name); }
    /// How many names stand in the folder itself.
    std::size_t Count() const {
        const std::filesystem::directory_iterator entries(path_);
        return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
    }

    /// Sets a variable of the environment until the end; with none unsets it.
    void Set(const std::string& name, const std::optional<std::string>& value) {
        const char* old = std::getenv(name.c_str());
        environment_.try_emplace(name, old ? std::optional<std::string>(old) : std::nullopt);
        Put(name, value);
    }

private:
    static void Put(const std::string& name, const std::optional<std::string>& value) {
        if (value) {
            setenv(name.c_str(), value->c_str(), 1);
        } else {
            unsetenv(name.c_str());
        }
    }

    std::filesystem::path before_;
    std::filesystem::path path_;
    std::map<std::string, std::optional<std::string>> environment_;
};

}  // namespace test
