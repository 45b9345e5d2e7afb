#include "services/kvdbkvn/engines/secrets.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "services/kvdbkvn/engines/server_text.h"

namespace kv::db {
namespace {

bool IsWordByte(char c) {
    const char lower = ToLower(c);
    return IsDigit(c) || (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

using Secrets = std::vector<std::string>;

void AddPieces(std::string_view text, Secrets& out) {
    out.emplace_back(text);
    out.push_back(PercentDecoded(text));
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("@:/?#"), text.size());
        out.emplace_back(text.substr(0, end));
        out.push_back(PercentDecoded(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

/// What stands between the user and the last "@", which is the password also where it holds signs
/// that should have been encoded.
void AddUrlPassword(std::string_view server, Secrets& out) {
    const std::size_t slashes = server.find("//");
    if (slashes == std::string_view::npos) return;
    const std::string_view rest = server.substr(slashes + 2);
    const std::size_t colon = rest.find(':');
    const std::size_t at = rest.rfind('@');
    if (colon < at && at != std::string_view::npos)
        AddPieces(rest.substr(colon + 1, at - colon - 1), out);
}

/// The values of the password keywords, between "?", "&" and ";".
void AddKeywordPasswords(std::string_view server, Secrets& out) {
    const std::string lower = ToLower(server);
    for (std::string_view keyword : {"pwd", "password", "passwd", "sslpassword"}) {
        for (std::size_t at = lower.find(keyword); at != std::string::npos;
             at = lower.find(keyword, at + 1)) {
            const std::size_t equals = lower.find_first_not_of(' ', at + keyword.size());
            if (equals == std::string::npos || lower[equals] != '=') continue;
            std::string_view value = server.substr(equals + 1);
            value.remove_prefix(std::min(value.find_first_not_of(' '), value.size()));
            const bool braced = !value.empty() && value.front() == '{';
            if (braced) value.remove_prefix(1);
            value = value.substr(0, value.find_first_of(braced ? "}" : "&;"));
            out.emplace_back(value);
            out.push_back(PercentDecoded(value));
        }
    }
}

Secrets SecretsOf(const CKvDbInfo& info) {
    Secrets secrets{info.GetPassword()};
    AddUrlPassword(info.GetServer(), secrets);
    AddKeywordPasswords(info.GetServer(), secrets);
    std::erase(secrets, "");
    std::ranges::stable_sort(secrets, std::ranges::greater{}, &std::string::size);
    return secrets;
}

/// Whether the bytes [at, end) are a word of their own, and no part of a longer one.
bool StandsAlone(const std::string& text, std::size_t at, std::size_t end) {
    const bool joinedLeft = at > 0 && IsWordByte(text[at - 1]) && IsWordByte(text[at]);
    const bool joinedRight =
        end < text.size() && IsWordByte(text[end]) && IsWordByte(text[end - 1]);
    return !joinedLeft && !joinedRight;
}

}  // namespace

std::string Scrub(const std::string& text, const CKvDbInfo& info) {
    static constexpr std::string_view kHidden = "***";
    std::string clean = text;
    for (const std::string& secret : SecretsOf(info)) {
        for (std::size_t at = clean.find(secret); at != std::string::npos;) {
            const std::size_t end = at + secret.size();
            const bool hide = StandsAlone(clean, at, end);
            if (hide) clean.replace(at, secret.size(), kHidden);
            at = clean.find(secret, at + (hide ? kHidden.size() : 1));
        }
    }
    return clean;
}

}  // namespace kv::db
