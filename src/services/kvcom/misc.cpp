#include "frame/kvcom/misc.h"

#include <unistd.h>

#include <array>
#include <cstdint>
#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "services/kvdbkvn/connection.h"
#include "services/kvdbkvn/engines/secrets.h"
#include "services/kvdbkvn/engines/server_text.h"

namespace {

CString& ImportFilePath() {
    static CString path;
    return path;
}

/// What the operating system tells this machine by, else its name in the network.
std::string MachineName() {
    for (const char* path : {"/etc/machine-id", "/var/lib/dbus/machine-id"}) {
        const std::string id = kv::TrimSpace(kv::ReadTextFile(path).value_or(""));
        if (!id.empty()) return id;
    }
    std::array<char, 256> name{};
    gethostname(name.data(), name.size() - 1);
    return name.data();
}

/// The 64-bit FNV-1a hash.
std::uint64_t Hash(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char ch : text) {
        hash ^= static_cast<unsigned char>(ch);
        hash *= 0x100000001b3;
    }
    return hash;
}

}  // namespace

CString CKvMisc::S_GetImportFilePath() {
    return ImportFilePath();
}

void CKvMisc::S_SetImportFilePath(CString path) {
    ImportFilePath() = std::move(path);
}

void CKvMisc::GetParsedConnectString(std::string& user, std::string& password, std::string& server,
                                     bool withPassword) {
    const CKvDbInfo& connection = kv::db::ConnectionInForce();
    const CKvDbInfo parts = kv::db::TakenApart(connection);
    user = parts.GetUser();
    password = withPassword ? parts.GetPassword() : std::string();
    // The password beside the text is none of it, also where some of its signs are the same.
    const CKvDbInfo text("", "", connection.GetServer().c_str());
    server = withPassword ? parts.GetServer() : kv::db::Scrub(parts.GetServer(), text);
}

CString CKvMisc::GetMachineID(bool upperCase) {
    // The system's own identifier is not to be spread; its hash tells machines apart as well.
    const auto hash = static_cast<unsigned long long>(Hash("KVGuiCtl " + MachineName()));
    const std::string id = kv::FormatText("%016llx", hash);
    return upperCase ? kv::ToUpper(id) : id;
}
