#include "services/kvdbkvn/engines/server_text.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "base/text.h"

namespace kv::db {
namespace {

constexpr std::string_view kOdbc = "odbc:";

/// What a server text says beside where the server is.
struct Parts {
    std::string user;
    std::string password;
    std::string server;
};

bool IsUserKeyword(std::string_view keyword) {
    return EqualsNoCase(keyword, "uid") || EqualsNoCase(keyword, "user") ||
           EqualsNoCase(keyword, "username");
}
bool IsPasswordKeyword(std::string_view keyword) {
    return EqualsNoCase(keyword, "pwd") || EqualsNoCase(keyword, "password");
}

/// Whether it is a host by all looks: a name or an address in brackets, with or without a port.
bool IsHost(std::string_view text) {
    const std::size_t bracket = text.starts_with('[') ? text.find(']') : std::string_view::npos;
    const std::size_t colon = text.find(':', bracket == std::string_view::npos ? 0 : bracket);
    return colon == std::string_view::npos || std::ranges::all_of(text.substr(colon + 1), IsDigit);
}

/// Where user and password end in what follows the slashes of a URL. Signs of a password that
/// should have been encoded do not end it, unless hosts stand there by all looks.
std::size_t EndOfLogin(std::string_view rest) {
    const std::string_view authority = rest.substr(0, rest.find_first_of("/?#"));
    const std::size_t at = authority.rfind('@');
    if (at != std::string_view::npos) return at;
    const std::vector<std::string> hosts = Split(authority, ',');
    return std::ranges::all_of(hosts, IsHost) ? std::string_view::npos : rest.rfind('@');
}

/// The last of two equal keywords counts, and they count ahead of what stands before the host.
std::string WithoutLogin(const std::string& query, Parts& parts) {
    std::string kept;
    for (const std::string& option : Split(query, '&')) {
        const std::size_t equals = option.find('=');
        const std::string keyword = option.substr(0, equals);
        const std::string value =
            equals == std::string::npos ? "" : PercentDecoded(option.substr(equals + 1));
        if (IsUserKeyword(keyword))
            parts.user = value;
        else if (IsPasswordKeyword(keyword))
            parts.password = value;
        else
            kept += (kept.empty() ? "?" : "&") + option;
    }
    return kept;
}

Parts OfUrl(const std::string& server) {
    const std::size_t begin = server.find("://") + 3;
    std::string rest = server.substr(begin);
    Parts parts;
    if (const std::size_t end = EndOfLogin(rest); end != std::string::npos) {
        const std::string login = rest.substr(0, end);
        const std::size_t colon = std::min(login.find(':'), login.size());
        parts.user = PercentDecoded(login.substr(0, colon));
        parts.password =
            PercentDecoded(std::string_view(login).substr(std::min(colon + 1, login.size())));
        rest.erase(0, end + 1);
    }
    const std::size_t question = std::min(rest.find('?'), rest.size());
    parts.server = server.substr(0, begin) + rest.substr(0, question);
    if (question < rest.size()) parts.server += WithoutLogin(rest.substr(question + 1), parts);
    return parts;
}

/// Cuts the first of the settings of an ODBC text: "Keyword=value", or "Keyword={va;l}}ue}".
std::string CutSetting(std::string_view& text) {
    const std::size_t equals = text.find('=');
    const std::size_t value = std::min(text.find_first_not_of(' ', equals + 1), text.size());
    std::size_t end = text.find(';');
    if (equals < end && value < text.size() && text[value] == '{') {
        end = text.find('}', value);
        while (end < text.size() && text.substr(end, 2) == "}}")
            end = text.find('}', end + 2);
        end = text.find(';', std::min(end, text.size()));
    }
    const std::string setting(text.substr(0, end));
    text.remove_prefix(std::min(setting.size() + 1, text.size()));
    return setting;
}

std::string ValueOf(const std::string& setting) {
    const std::string value = setting.substr(setting.find('=') + 1);
    const std::string trimmed = TrimSpace(value);
    const bool isBraced = trimmed.size() > 1 && trimmed.front() == '{' && trimmed.back() == '}';
    return isBraced ? ReplaceAll(trimmed.substr(1, trimmed.size() - 2), "}}", "}") : value;
}

/// The first of two equal keywords counts.
Parts OfOdbc(const std::string& server) {
    std::string_view rest = std::string_view(server).substr(kOdbc.size());
    Parts parts;
    std::string kept;
    while (!rest.empty()) {
        const std::string setting = CutSetting(rest);
        const std::string keyword = TrimSpace(setting.substr(0, setting.find('=')));
        const bool isUser = IsUserKeyword(keyword);
        if (!isUser && !IsPasswordKeyword(keyword)) {
            kept += (kept.empty() ? "" : ";") + setting;
            continue;
        }
        std::string& part = isUser ? parts.user : parts.password;
        if (part.empty()) part = ValueOf(setting);
    }
    parts.server = server.substr(0, kOdbc.size()) + kept;
    return parts;
}

Parts Of(const std::string& server) {
    if (StartsWithNoCase(server, kOdbc)) return OfOdbc(server);
    if (server.find("://") != std::string::npos) return OfUrl(server);
    return {"", "", server};
}

}  // namespace

CKvDbInfo TakenApart(const CKvDbInfo& info) {
    const Parts parts = Of(info.GetServer());
    const std::string& user = info.GetUser().empty() ? parts.user : info.GetUser();
    const std::string& password = info.GetPassword().empty() ? parts.password : info.GetPassword();
    return {user.c_str(), password.c_str(), parts.server.c_str()};
}

std::string PercentDecoded(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = 0;
        const char* digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() &&
            std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2) {
            plain.push_back(static_cast<char>(code));
            i += 2;
        } else {
            plain.push_back(text[i]);
        }
    }
    return plain;
}

}  // namespace kv::db
