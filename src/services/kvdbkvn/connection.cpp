#include "services/kvdbkvn/connection.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "base/text.h"
#include "base/user_folders.h"

namespace kv::db {

namespace {

std::string NativeCurrentFolder() {
    std::error_code ignored;
    return std::filesystem::current_path(ignored).string();
}

/// Where the program was started, which is what its environment was written for: handlers change
/// the current folder.
const std::string startFolder = NativeCurrentFolder();

bool IsRelative(std::string_view path) {
    const bool hasDrive = path.size() > 1 && path[1] == ':';
    return !path.empty() && path[0] != '/' && path[0] != '\\' && !hasDrive;
}

/// The server text with the path of a database file as it stands in that folder of the machine.
std::string WithAbsolutePath(const std::string& server, const std::string& folder) {
    static constexpr std::string_view kFile = "sqlite:";
    if (!StartsWithNoCase(server, kFile)) return server;
    const std::string path = server.substr(kFile.size());
    return IsRelative(path) ? server.substr(0, kFile.size()) + folder + "/" + path : server;
}

/// Empty while none is set.
CKvDbInfo& WasSet() {
    static CKvDbInfo info;
    return info;
}

CKvDbInfo Default() {
    const std::string sample = "sqlite:" + DataFolder() + "/sample.db";
    const std::string server = FromEnvironment("KVGUICTL_DB", sample);
    return {"", "", WithAbsolutePath(server, startFolder).c_str()};
}

}  // namespace

const CKvDbInfo& ConnectionInForce() {
    if (WasSet() != CKvDbInfo()) return WasSet();
    static CKvDbInfo fallback;
    fallback = Default();
    return fallback;
}

void SetConnectionInForce(const CKvDbInfo& info) {
    const std::string server = WithAbsolutePath(info.GetServer(), NativeCurrentFolder());
    WasSet() = {info.GetUser().c_str(), info.GetPassword().c_str(), server.c_str()};
}

}  // namespace kv::db
