#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"
#include "services/kvdbkvn/engines/server_text.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

bool IsPlain(std::string_view word) {
    const auto isPlain = [](char ch) {
        const char lower = kv::ToLower(ch);
        return kv::IsDigit(ch) || (lower >= 'a' && lower <= 'z');
    };
    return !word.empty() && std::ranges::all_of(word, isPlain);
}

void CheckTakenApart(const std::string& password, const std::string& ahead,
                     const std::string& behind, const std::string& server) {
    const CKvDbInfo taken = kv::db::TakenApart({"", "", (ahead + password + behind).c_str()});
    Check(taken.GetUser() == "u" && taken.GetPassword() == password);
    Check(taken.GetServer() == server);
}

}  // namespace

/// A server text, which may also be a word that stands in one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    text.resize(std::min(text.find('\0'), text.size()));
    const CKvDbInfo taken = kv::db::TakenApart({"", "", text.c_str()});
    Check(taken.GetServer().size() <= text.size());
    Check(taken.GetUser().size() + taken.GetPassword().size() <= text.size());
    const CKvDbInfo own = kv::db::TakenApart({"own", "word", text.c_str()});
    Check(own.GetUser() == "own" && own.GetPassword() == "word");
    Check(own.GetServer() == taken.GetServer());
    Check(kv::db::PercentDecoded(text).size() <= text.size());

    if (!IsPlain(text)) return 0;
    CheckTakenApart(text, "postgresql://u:", "@host:5432/db", "postgresql://host:5432/db");
    CheckTakenApart(text, "POSTGRES://host/db?user=u&password=", "&a=b", "POSTGRES://host/db?a=b");
    CheckTakenApart(text, "odbc:Driver={a;b};UID=u;PWD=", ";DATABASE=x",
                    "odbc:Driver={a;b};DATABASE=x");
    CheckTakenApart(text, "ODBC:DSN=d;PWD={", "};uid=u", "ODBC:DSN=d");
    return 0;
}
