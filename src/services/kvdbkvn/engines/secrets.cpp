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
        const std::size_t end = std::min(text.find_first_of("@:/?#,&="), text.size());
        out.emplace_back(text.substr(0, end));
        out.push_back(PercentDecoded(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

/// What stands between the user and the last "@", which is the password also where it holds signs
/// that should have been encoded. Without an "@" it is what has the place of a port and is none.
void AddUrlPassword(std::string_view server, Secrets& out) {
    const std::size_t slashes = server.find("//");
    if (slashes == std::string_view::npos) return;
    const std::string_view rest = server.substr(slashes + 2);
    const std::size_t colon = rest.find(':');
    const std::size_t at = rest.rfind('@');
    const bool isHostAlone = at == std::string_view::npos;
    const std::size_t end = isHostAlone ? std::min(rest.find_first_of("/?#,"), rest.size()) : at;
    if (colon >= end || (isHostAlone && rest.starts_with('['))) return;
    const std::string_view password = rest.substr(colon + 1, end - colon - 1);
    if (!isHostAlone || !std::ranges::all_of(password, IsDigit)) AddPieces(password, out);
}

/// The value of a setting behind its opening brace. A closing brace in it is doubled; not every
/// reader takes it so, so what stands ahead of the first is a secret, too.
void AddBracedPassword(std::string_view value, Secrets& out) {
    std::size_t end = value.find('}');
    out.emplace_back(value.substr(0, end));
    while (end != std::string_view::npos && value.substr(end, 2) == "}}")
        end = value.find('}', end + 2);
    out.emplace_back(value.substr(0, end));
    out.push_back(ReplaceAll(value.substr(0, end), "}}", "}"));
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
            if (value.starts_with('{')) {
                value.remove_prefix(1);
                AddBracedPassword(value, out);
                value = value.substr(0, value.find('}'));
            } else {
                value = value.substr(0, value.find_first_of("&;"));
                out.emplace_back(value);
            }
            out.push_back(PercentDecoded(value));
        }
    }
}

Secrets SecretsOf(const CKvDbInfo& info) {
    // The second is how it stands in braces, which an ODBC text is sent with.
    Secrets secrets{info.GetPassword(), ReplaceAll(info.GetPassword(), "}", "}}")};
    AddUrlPassword(info.GetServer(), secrets);
    AddKeywordPasswords(info.GetServer(), secrets);
    std::erase(secrets, "");
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
    // Found in the text as it came, so that no secret is looked for in the mark of another, and of
    // two that overlap no end is left over.
    std::vector<bool> hidden(text.size());
    for (const std::string& secret : SecretsOf(info)) {
        for (std::size_t at = text.find(secret); at != std::string::npos;
             at = text.find(secret, at + 1)) {
            const std::size_t end = at + secret.size();
            if (StandsAlone(text, at, end))
                std::fill(hidden.begin() + at, hidden.begin() + end, true);
        }
    }

    std::string clean;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!hidden[at])
            clean += text[at];
        else if (at == 0 || !hidden[at - 1])
            clean += "***";
    }
    return clean;
}

}  // namespace kv::db
