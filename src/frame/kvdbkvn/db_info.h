#pragma once

#include <string>

#include "base/export.h"

/// A connection record: who connects, with what password, to which server.
///
/// The server text chooses the engine: `sqlite:PATH`, `postgresql://...`, `odbc:DSN` or
/// `odbc:Driver=...`. User and password may be empty where the server text holds them or the engine
/// has none. Null arguments count as empty text.
class KVGUICTL_API CKvDbInfo {
public:
    CKvDbInfo() = default;
    CKvDbInfo(const char* user, const char* password, const char* server);

    const std::string& GetUser() const { return m_sUser; }
    const std::string& GetPassword() const { return m_sPassword; }
    const std::string& GetServer() const { return m_sServer; }

    bool operator==(const CKvDbInfo&) const = default;

private:
    std::string m_sUser;
    std::string m_sPassword;
    std::string m_sServer;
};
