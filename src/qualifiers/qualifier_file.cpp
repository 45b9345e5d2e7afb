#include "qualifiers/qualifier_file.h"

#include "base/text.h"

namespace kv {

std::vector<std::string> ParseQualifiers(std::string_view text, int* cut) {
    if (cut) *cut = 0;
    std::vector<std::string> values;
    for (const std::string& line : SplitLines(text)) {
        if (line.empty() || line.front() == '#') continue;
        if (cut && line.size() > kLongestQualifier) ++*cut;
        const std::string value = ToUpper(TrimSpace(line.substr(0, kLongestQualifier)));
        if (!value.empty()) values.push_back(value);
    }
    return values;
}

}  // namespace kv
