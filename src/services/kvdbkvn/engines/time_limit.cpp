#include "services/kvdbkvn/engines/time_limit.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "base/text.h"
#include "frame/kvcom/exception.h"

namespace kv::db {
namespace {

constexpr std::string_view kKeyword = "statement_timeout=";
constexpr std::string_view kSigns = "?&;";

/// Where the setting begins; npos where there is none.
std::size_t PlaceIn(const std::string& server) {
    const std::string lower = ToLower(server);
    std::size_t at = lower.find(kKeyword);
    while (at != std::string::npos && (at == 0 || kSigns.find(server[at - 1]) == kSigns.npos))
        at = lower.find(kKeyword, at + 1);
    return at;
}

std::chrono::milliseconds MillisecondsIn(const std::string& value) {
    int number = 0;
    const char* end = value.data() + value.size();
    const auto [read, error] = std::from_chars(value.data(), end, number);
    if (error == std::errc() && read == end && number >= 0)
        return std::chrono::milliseconds(number);
    throw CKvException("The server text sets statement_timeout to \"" + value +
                       "\", which is no number of milliseconds");
}

}  // namespace

TimeLimited TakeTimeLimit(const CKvDbInfo& info) {
    std::string server = info.GetServer();
    const std::size_t at = PlaceIn(server);
    if (at == std::string::npos) return {info, {}};
    const std::size_t value = at + kKeyword.size();
    const std::size_t end = std::min(server.find_first_of(kSigns, value), server.size());
    const auto limit = MillisecondsIn(server.substr(value, end - value));
    // One of the signs around it goes, too.
    const bool isLast = end == server.size();
    server.erase(isLast ? at - 1 : at, end - at + 1);
    return {{info.GetUser().c_str(), info.GetPassword().c_str(), server.c_str()}, limit};
}

}  // namespace kv::db
