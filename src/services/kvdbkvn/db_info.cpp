#include "frame/kvdbkvn/db_info.h"

namespace {

std::string Text(const char* text) {
    return text ? text : "";
}

}  // namespace

CKvDbInfo::CKvDbInfo(const char* user, const char* password, const char* server)
    : m_sUser(Text(user)), m_sPassword(Text(password)), m_sServer(Text(server)) {}
