#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "base/text.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

/// The same by the book: whether what is left of the name fits what is left of the pattern, for
/// every end of both.
bool Fits(std::string_view name, std::string_view pattern) {
    std::vector<bool> fits(name.size() + 1, false);
    fits.back() = true;
    for (std::size_t i = pattern.size(); i-- > 0;) {
        std::vector<bool> before(name.size() + 1, false);
        before.back() = pattern[i] == '*' && fits.back();
        for (std::size_t at = name.size(); at-- > 0;) {
            const bool same = pattern[i] == '?' || kv::ToLower(pattern[i]) == kv::ToLower(name[at]);
            before[at] = pattern[i] == '*' ? fits[at] || before[at + 1] : same && fits[at + 1];
        }
        fits = before;
    }
    return fits.front();
}

}  // namespace

/// The first line is a pattern, the rest a name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kLongest = 1000;
    const std::string_view text(reinterpret_cast<const char*>(data), std::min(size, kLongest));
    const std::string_view pattern = text.substr(0, text.find('\n'));
    const std::string_view name = text.substr(std::min(pattern.size() + 1, text.size()));
    Check(kv::FitsPattern(name, pattern) == Fits(name, pattern));
    Check(kv::FitsPattern(name, "*") && kv::FitsPattern(name, kv::ToUpper(name)));

    Check(kv::FolderOf(name) + kv::NameOf(name) == name);
    Check(kv::NameOf(name).find_first_of("\\/") == std::string::npos);
    Check(kv::NameOf(name).starts_with(kv::TitleOf(name)));
    Check(kv::NameOf(kv::JoinPath(name, "x")) == "x");
    return 0;
}
