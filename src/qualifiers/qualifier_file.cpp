#include "qualifiers/qualifier_file.h"

#include "base/text.h"
#include "base/utf8.h"

namespace kv {

namespace {

/// Where a value ends at the latest.
std::size_t LongestIn(std::string_view line) {
    std::size_t end = 0;
    for (std::size_t count = 0; count < kLongestQualifier && end < line.size(); ++count)
        end += Utf8At(line, end).length;
    return end;
}

}  // namespace

std::vector<std::string> ParseQualifiers(std::string_view text, int* cut) {
    if (cut) *cut = 0;
    std::vector<std::string> values;
    for (const std::string& line : SplitLines(text)) {
        if (line.empty() || line.front() == '#') continue;
        const std::size_t end = LongestIn(line);
        if (cut && !TrimSpace(line.substr(end)).empty()) ++*cut;
        const std::string value = ToUpper(TrimSpace(line.substr(0, end)));
        if (!value.empty()) values.push_back(value);
    }
    return values;
}

std::string WordsOfCut(const std::string& path, int cut) {
    return path + ":\n" + std::to_string(cut) + (cut == 1 ? " line was" : " lines were") +
           " longer than " + std::to_string(kLongestQualifier) + " characters and cut there.";
}

}  // namespace kv
