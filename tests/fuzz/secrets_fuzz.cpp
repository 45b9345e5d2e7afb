#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"
#include "services/kvdbkvn/engines/secrets.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

/// The next line of the input, which goes with its line feed.
std::string CutLine(std::string_view& text) {
    const std::string line(text.substr(0, text.find('\n')));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

/// Whether no client library reads any of it as a sign.
bool IsPlain(std::string_view password) {
    const auto isPlain = [](char ch) {
        const char lower = kv::ToLower(ch);
        return kv::IsDigit(ch) || (lower >= 'a' && lower <= 'z');
    };
    return !password.empty() && std::ranges::all_of(password, isPlain);
}

/// What an engine may say of that record.
void CheckHidden(const std::string& password, const CKvDbInfo& info) {
    Check(kv::db::Scrub("( " + password + " )", info) == "( *** )");
    Check(kv::db::Scrub("\"" + password + "\"", info) == "\"***\"");
}

}  // namespace

/// User, password and server text, a line each; the rest is what an engine says.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string user = CutLine(bytes);
    const std::string password = CutLine(bytes);
    const std::string server = CutLine(bytes);
    const std::string words(bytes);
    const CKvDbInfo info(user.c_str(), password.c_str(), server.c_str());
    Check(kv::db::Scrub(words, info).size() <= 3 * words.size());
    Check(kv::db::Scrub(words, CKvDbInfo()) == words);

    if (!IsPlain(password)) return 0;
    CheckHidden(password, {"", password.c_str(), ""});
    CheckHidden(password, {"", "", ("postgresql://u:" + password + "@host/db").c_str()});
    CheckHidden(password, {"", "", ("postgresql://host/db?password=" + password).c_str()});
    CheckHidden(password,
                {"", "", ("odbc:Driver=d;UID=u;PWD=" + password + ";DATABASE=x").c_str()});
    return 0;
}
