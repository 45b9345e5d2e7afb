#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/foreign_text.h"
#include "base/text.h"
#include "qualifiers/qualifier_file.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckValue(const std::string& value) {
    constexpr std::size_t kLongestCharacter = 4;
    Check(!value.empty() && value.size() <= kLongestCharacter * kv::kLongestQualifier);
    Check(kv::TrimSpace(value) == value);
    Check(kv::ToUpper(value) == value);
    Check(value.find('\n') == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = kv::DecodeText(bytes);
    Check(text.size() <= 3 * size && text.find('\r') == std::string::npos);
    if (!kv::IsText(text)) return 0;
    int cut = -1;
    std::vector<std::string> values = kv::ParseQualifiers(text, &cut);
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    Check(cut >= 0 && static_cast<std::size_t>(cut) <= lines && values.size() <= lines);
    std::for_each(values.begin(), values.end(), CheckValue);

    // What was read once and written is read the same again, but for what now looks like a comment.
    std::erase_if(values, [](const std::string& value) { return value.front() == '#'; });
    Check(kv::ParseQualifiers(kv::JoinLines(values), &cut) == values && cut == 0);
    return 0;
}
